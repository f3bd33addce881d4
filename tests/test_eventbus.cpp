#include "appconfig.h"
#include "globalmanager.h"
#include "testsupport.h"

#include <QtTest>

class TestEventBus : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { TestSupport::isolate(); }

    void deliversSynchronouslyToEveryListenerWithItsPayload()
    {
        GlobalManager* bus = GlobalManager::instance();
        QStringList seenByFirst;
        QList<QVariant> seenBySecond;
        QObject first;
        QObject second;
        connect(bus, &GlobalManager::globalEvent, &first,
                [&](const QString& name, const QVariant& value) { seenByFirst << name + '=' + value.toString(); });
        connect(bus, &GlobalManager::globalEvent, &second,
                [&](const QString&, const QVariant& value) { seenBySecond << value; });

        bus->emitEvent(AppConfig::TIME_POS, 1500);
        // No event loop ran: delivery happened inside emitEvent.
        QCOMPARE(seenByFirst, QStringList{"time_pos=1500"});
        QCOMPARE(seenBySecond, QList<QVariant>{1500});

        bus->emitEvent(AppConfig::CAPTURE_IMAGE, QVariant::fromValue(TestSupport::capture(QPixmap(8, 4), 2.5, 62)));
        const auto received = seenBySecond.last().value<AppConfig::CaptureData>();
        QCOMPARE(received.pixmap.size(), QSize(8, 4));
        QCOMPARE(received.time, 2.5);
        QCOMPARE(received.frame, 62);
    }
};

QTEST_MAIN(TestEventBus)
#include "test_eventbus.moc"
