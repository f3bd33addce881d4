#include "testsupport.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QtTest>

#include <csignal>

// Runs the real program: the single-instance guard, and recovery after a crash.
class TestStartup : public QObject
{
    Q_OBJECT
private:
    QString program() const { return QStringLiteral(GLIMMER_BINARY_DIR "/glimmer"); }

    void startFirst(QProcess& process)
    {
        m_output.clear();
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program(), QStringList());
        QVERIFY(process.waitForStarted(10000));
        // Ready once the main window has logged its language.
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 20000 && process.state() == QProcess::Running
               && !m_output.contains("changeLangByType")) {
            process.waitForReadyRead(200);
            m_output += process.readAll();
        }
        QVERIFY2(m_output.contains("changeLangByType"), m_output.constData());
        QCOMPARE(process.state(), QProcess::Running);
    }

    int runSecond() { return TestSupport::run(program(), {}, 20000); }

    QByteArray m_output;

private slots:
    void initTestCase()
    {
        TestSupport::isolate();
        // The first run would open the home page in a browser.
        QSettings(QSettings::UserScope, QStringLiteral("Glimmer"), QString()).setValue("first_open_app", true);
    }

    void secondCopyExitsWithOneAfterCrashAndQuit()
    {
        QProcess first;
        startFirst(first);
        QCOMPARE(runSecond(), 1);
        QCOMPARE(first.state(), QProcess::Running);
        ::kill(static_cast<pid_t>(first.processId()), SIGKILL);
        QVERIFY(first.waitForFinished(10000));

        // After a crash the next start succeeds and guards as before.
        QProcess next;
        startFirst(next);
        QCOMPARE(runSecond(), 1);
        next.terminate();
        QVERIFY(next.waitForFinished(10000));

        // After a normal quit the key is free again.
        QProcess again;
        startFirst(again);
        again.terminate();
        QVERIFY(again.waitForFinished(10000));
    }
};

QTEST_GUILESS_MAIN(TestStartup)
#include "test_startup.moc"
