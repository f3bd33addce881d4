#include "appconfig.h"
#include "captionmanager.h"
#include "captionwidget.h"
#include "globalmanager.h"
#include "loadingdialog.h"
#include "mainwindow.h"
#include "messagedialog.h"
#include "speechdprocess.h"
#include "speechservice.h"
#include "testsupport.h"
#include "videoplaywidget.h"

#include <QSignalSpy>
#include <QtTest>

// The automatic-caption flow as a person runs it from the window, against the
// bundled glimmer-speechd that the program starts on demand.
class TestAutoCaptions : public QObject
{
    Q_OBJECT
private:
    MainWindow* m_window = nullptr;
    QString m_video;

private slots:
    void initTestCase()
    {
        TestSupport::isolate();
        const QString dir = TestSupport::makeWorkDir(QStringLiteral("autocaptions"));
        const QString speech = TestSupport::librivox("0870");
        m_video = dir + QStringLiteral("/spoken.mp4");
        QCOMPARE(TestSupport::ffmpeg({"-f", "lavfi", "-i", "testsrc2=size=320x240:rate=25", "-i", speech, "-shortest",
                                      "-c:v", "libx264", "-preset", "ultrafast", "-c:a", "aac", m_video}),
                 0);

        GlobalManager* global = GlobalManager::instance();
        global->saveSettings(AppConfig::FIRST_OPEN_APP, true);
        // The program's own service on a free port, started by the program itself.
        const QString url = QStringLiteral("http://127.0.0.1:%1").arg(TestSupport::freePort());
        SpeechService::instance()->setManagedBaseUrl(url);
        SpeechService::instance()->setProgram(SpeechdProcess::program());
        global->saveSettings(AppConfig::SPEECH_SERVER_URL, url);

        m_window = TestSupport::showMainWindow();
    }

    void cleanupTestCase()
    {
        delete m_window;
        SpeechService::instance()->stop();
    }

    void withoutAVideoTheUserIsTold()
    {
        emit m_window->captionWidget()->autoCaptionSignal(7);
        QVERIFY(m_window->messageDialog()->isVisible() && !m_window->loadingDialog()->isVisible());
        m_window->messageDialog()->accept();

        QVERIFY(TestSupport::openVideo(m_window, m_video));
    }

    void aLanguageWithoutAModelFailsClearly()
    {
        // Korean: the built-in recogniser has no model for it.
        emit m_window->captionWidget()->autoCaptionSignal(9);
        QVERIFY(m_window->loadingDialog()->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(m_window->messageDialog()->isVisible(), 60000);
        QVERIFY(!m_window->loadingDialog()->isVisible());
        QVERIFY2(m_window->messageDialog()->message().contains(QStringLiteral("ko")),
                 qPrintable(m_window->messageDialog()->message()));
        QVERIFY(CaptionManager::instance()->getCaptions().isEmpty());
        m_window->messageDialog()->accept();
    }

    void cancellingStopsEverything()
    {
        QSignalSpy events(GlobalManager::instance(), &GlobalManager::globalEvent);
        emit m_window->captionWidget()->autoCaptionSignal(7);
        QVERIFY(m_window->loadingDialog()->isVisible());
        m_window->loadingDialog()->reject();
        QTRY_VERIFY_WITH_TIMEOUT(TestSupport::hasEvent(events, AppConfig::STOP_AI_CAPTION), 3000);
        // Neither a result nor a failure follows (recognition of this clip takes less).
        QVERIFY(!QTest::qWaitFor([&] {
            return TestSupport::hasEvent(events, AppConfig::TASK_ID) || m_window->messageDialog()->isVisible();
        }, 3000));
        QVERIFY(CaptionManager::instance()->getCaptions().isEmpty());
    }

    void englishSpeechBecomesCaptions()
    {
        QSignalSpy replies(m_window->videoPlayWidget(), &VideoPlayWidget::captureEventSignal);
        emit m_window->captionWidget()->autoCaptionSignal(7);
        QVERIFY(m_window->loadingDialog()->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!CaptionManager::instance()->getCaptions().isEmpty(), 120000);
        QTRY_VERIFY_WITH_TIMEOUT(!m_window->loadingDialog()->isVisible(), 10000);
        QVERIFY(!m_window->messageDialog()->isVisible() && m_window->captionWidget()->isVisible());
        QCOMPARE(m_window->captionWidget()->items().size(), CaptionManager::instance()->getCaptions().size());
        // Real words, and the working file went to the player.
        QVERIFY(CaptionManager::instance()->getCaptions().first()->text.size() > 3);
        QTRY_VERIFY_WITH_TIMEOUT(!replies.isEmpty() && replies.last().at(0).toInt() == 14, 10000);
        QCOMPARE(GlobalManager::instance()->readSettings(AppConfig::AI_CAPTION_LANG, -1).toInt(), 7);
    }
};

QTEST_MAIN(TestAutoCaptions)
#include "test_autocaptions.moc"
