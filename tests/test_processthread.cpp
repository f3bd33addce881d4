#include "appconfig.h"
#include "globalmanager.h"
#include "processthread.h"
#include "testsupport.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

class TestProcessThread : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { TestSupport::isolate(); }

    void printsThenStopsInOrder()
    {
        ProcessThread runner;
        QStringList order;
        connect(&runner, &ProcessThread::processStart, this, [&] { order << QStringLiteral("start"); });
        connect(&runner, &ProcessThread::processOutput, this,
                [&](const QString& text) { order << "out:" + text.trimmed(); });
        connect(&runner, &ProcessThread::processError, this,
                [&](const QString& text) { order << "err:" + text.trimmed(); });
        connect(&runner, &ProcessThread::processStop, this, [&] { order << QStringLiteral("stop"); });
        connect(&runner, &ProcessThread::processFailed, this, [&] { order << QStringLiteral("failed"); });

        runner.setCommand(QStringLiteral("/bin/sh"), {"-c", "echo hello; echo oops 1>&2"}, QIODevice::ReadWrite);
        QElapsedTimer timer;
        timer.start();
        runner.start();
        QTRY_VERIFY_WITH_TIMEOUT(order.contains(QStringLiteral("stop")), 10000);
        QVERIFY(runner.wait(5000));
        // The stop waits a second so that output is delivered first.
        QVERIFY(timer.elapsed() >= 1000);
        QCOMPARE(order.first(), QStringLiteral("start"));
        QCOMPARE(order.last(), QStringLiteral("stop"));
        QVERIFY(order.contains(QStringLiteral("out:hello")) && order.contains(QStringLiteral("err:oops")));
        QVERIFY(!order.contains(QStringLiteral("failed")));
        QVERIFY(runner.processId() > 0);

        // The runner can be given a new command once finished.
        order.clear();
        runner.setCommand(QStringLiteral("/bin/true"), {}, QIODevice::ReadWrite);
        runner.start();
        QTRY_VERIFY_WITH_TIMEOUT(order.contains(QStringLiteral("stop")), 10000);
        QCOMPARE(order, (QStringList{"start", "stop"}));
        runner.wait(5000);
    }

    void overrunningToolOnlyStarts()
    {
        ProcessThread runner;
        QSignalSpy start(&runner, &ProcessThread::processStart);
        QSignalSpy stop(&runner, &ProcessThread::processStop);
        QSignalSpy failed(&runner, &ProcessThread::processFailed);
        runner.setWaitFinishTime(300);
        runner.setCommand(QStringLiteral("/bin/sleep"), {QStringLiteral("30")}, QIODevice::ReadWrite);
        runner.start();
        QVERIFY(runner.wait(10000));
        QCoreApplication::processEvents();
        QCOMPARE((QList<int>{start.count(), stop.count(), failed.count()}), (QList<int>{1, 0, 0}));
        // The child is still running until someone stops it.
        const qint64 pid = runner.processId();
        QVERIFY(pid > 0 && QFile::exists(QStringLiteral("/proc/%1").arg(pid)));
        runner.stopProcess();
        QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(QStringLiteral("/proc/%1/cmdline").arg(pid))
                                     || QFile(QStringLiteral("/proc/%1/cmdline").arg(pid)).size() == 0,
                                 5000);
    }

    void missingExecutableFails()
    {
        ProcessThread runner;
        QSignalSpy start(&runner, &ProcessThread::processStart);
        QSignalSpy stop(&runner, &ProcessThread::processStop);
        QSignalSpy failed(&runner, &ProcessThread::processFailed);
        runner.setCommand(QStringLiteral("/nonexistent/tool"), {}, QIODevice::ReadWrite);
        runner.start();
        QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, 35000);
        QVERIFY(runner.wait(5000));
        QCoreApplication::processEvents();
        QCOMPARE(start.count(), 0);
        QCOMPARE(stop.count(), 0);
    }

    void audioExtractionEvents()
    {
        // The extraction's start and stop reach the bus; a cancelled one never
        // announces its end, so no upload can start.
        GlobalManager* g = GlobalManager::instance();
        const QString dir = TestSupport::makeWorkDir(QStringLiteral("extract"));
        const QString video = dir + QStringLiteral("/clip.mp4");
        QVERIFY(TestSupport::makeVideo(video, 2.0, 320, 240));
        g->setCurrentFile(QFileInfo(video));

        QStringList events;
        QObject listener;
        connect(g, &GlobalManager::globalEvent, &listener,
                [&](const QString& name, const QVariant&) { events << name; });
        g->videoToAudio(video);
        QTRY_VERIFY_WITH_TIMEOUT(events.contains(AppConfig::VIDEO_TO_AUDIO_STOP), 30000);
        QVERIFY(g->audioThread()->wait(5000));
        // (test_speech_e2e checks the file it writes and the start event.)
        const QStringList args = g->audioThread()->arguments();
        // Every argument of the extraction, and an explicit bitrate before the output.
        QCOMPARE(args.mid(2, 10), (QStringList{"-vn", "-ar", "16000", "-ac", "1", "-format", "wav", "-b:a", "48k", "-y"}));

        // Stopping while nothing runs does nothing.
        QElapsedTimer timer;
        timer.start();
        g->stopConvert();
        QVERIFY(timer.elapsed() < 150);
        QVERIFY(!g->isStopConvert());

        // A named pipe that nobody writes keeps ffmpeg waiting until it is stopped.
        const QString fifo = dir + QStringLiteral("/never.fifo");
        QCOMPARE(TestSupport::run(QStringLiteral("mkfifo"), {fifo}), 0);
        events.clear();
        g->videoToAudio(fifo);
        QTRY_VERIFY_WITH_TIMEOUT(events.contains(AppConfig::VIDEO_TO_AUDIO_START), 10000);
        g->stopConvert();
        QVERIFY(g->isStopConvert());
        QVERIFY(g->audioThread()->wait(10000));
        // Whatever the finished thread queued is delivered now.
        QCoreApplication::processEvents();
        QVERIFY(!events.contains(AppConfig::VIDEO_TO_AUDIO_STOP));
    }
};

QTEST_MAIN(TestProcessThread)
#include "test_processthread.moc"
