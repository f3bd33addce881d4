#include "appconfig.h"
#include "globalmanager.h"
#include "testsupport.h"

#include <QSignalSpy>
#include <QtTest>

class TestEventBus : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { TestSupport::isolate(); }

    void deliversSynchronouslyToEveryListener()
    {
        GlobalManager* bus = GlobalManager::instance();
        QStringList seenByFirst;
        QStringList seenBySecond;
        QObject first;
        QObject second;
        connect(bus, &GlobalManager::globalEvent, &first,
                [&](const QString& name, const QVariant& value) {
                    seenByFirst << name + QLatin1Char('=') + value.toString();
                });
        connect(bus, &GlobalManager::globalEvent, &second,
                [&](const QString& name, const QVariant&) { seenBySecond << name; });

        bus->emitEvent(AppConfig::TIME_POS, 1500);
        // No event loop ran: delivery happened inside emitEvent.
        QCOMPARE(seenByFirst, QStringList{QStringLiteral("time_pos=1500")});
        QCOMPARE(seenBySecond, QStringList{QStringLiteral("time_pos")});
    }

    void unknownNamesAreHarmless()
    {
        GlobalManager* bus = GlobalManager::instance();
        QSignalSpy spy(bus, &GlobalManager::globalEvent);
        bus->emitEvent(QStringLiteral("no_such_event"), QVariant());
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("no_such_event"));
        QVERIFY(!spy.at(0).at(1).isValid());
    }

    void payloadTypesSurvive()
    {
        GlobalManager* bus = GlobalManager::instance();
        QSignalSpy spy(bus, &GlobalManager::globalEvent);
        AppConfig::CaptureData data;
        data.pixmap = QPixmap(8, 4);
        data.time = 2.5;
        data.frame = 62;
        bus->emitEvent(AppConfig::CAPTURE_IMAGE, QVariant::fromValue(data));
        QCOMPARE(spy.count(), 1);
        const auto received = spy.at(0).at(1).value<AppConfig::CaptureData>();
        QCOMPARE(received.pixmap.size(), QSize(8, 4));
        QCOMPARE(received.time, 2.5);
        QCOMPARE(received.frame, 62);
    }

    void sharedNamesAreExact()
    {
        // Irregular spellings are part of the interface.
        QCOMPARE(AppConfig::REGISTER_COMPLETE, QStringLiteral("regiseter_complete"));
        QCOMPARE(AppConfig::REGISTER_ERROR, QStringLiteral("regiseter_error"));
        QCOMPARE(AppConfig::SHOW_GUIDE_REGISTER_BY_EXPORT, QStringLiteral("show_guide_regisetr_by_export"));
        QCOMPARE(AppConfig::MPV_ESTIMATED_FRAME_NUMBER, QStringLiteral("estimated-frame-number"));
        QVERIFY(QMetaType::type("AppConfig::CaptureData") != QMetaType::UnknownType);
        QVERIFY(QMetaType::type("CaptionInfo *") != QMetaType::UnknownType);
        QVERIFY(QMetaType::type("CaptionEdit") != QMetaType::UnknownType);
        QVERIFY(QMetaType::type("QList<QString>&") != QMetaType::UnknownType);
    }
};

QTEST_MAIN(TestEventBus)
#include "test_eventbus.moc"
