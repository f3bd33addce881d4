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

    void payloadTypesSurvive()
    {
        GlobalManager* bus = GlobalManager::instance();
        QSignalSpy spy(bus, &GlobalManager::globalEvent);
        bus->emitEvent(AppConfig::CAPTURE_IMAGE,
                       QVariant::fromValue(TestSupport::capture(QPixmap(8, 4), 2.5, 62)));
        QCOMPARE(spy.count(), 1);
        const auto received = spy.at(0).at(1).value<AppConfig::CaptureData>();
        QCOMPARE(received.pixmap.size(), QSize(8, 4));
        QCOMPARE(received.time, 2.5);
        QCOMPARE(received.frame, 62);
    }
};

QTEST_MAIN(TestEventBus)
#include "test_eventbus.moc"
