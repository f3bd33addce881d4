#include "appconfig.h"
#include "captionmanager.h"
#include "captionwidget.h"
#include "globalmanager.h"
#include "loadingdialog.h"
#include "mainwindow.h"
#include "messagedialog.h"
#include "localhttpserver.h"
#include "speechdprocess.h"
#include "speechengine.h"
#include "speechenginedialog.h"
#include "speechenginetest.h"
#include "speechservice.h"
#include "testsupport.h"
#include "videoplaywidget.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
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

    void aLanguageTheEngineLacksIsRefusedBeforeExtraction()
    {
        // Opening the video asked the built-in engine for its languages: the box marks the others.
        CaptionWidget* panel = m_window->captionWidget();
        auto* box = panel->findChild<QComboBox*>();
        QTRY_VERIFY(SpeechService::instance()->languagesKnown());
        QCOMPARE(box->itemText(box->findData(7)), QStringLiteral("英语（美国）"));
        QCOMPARE(box->itemText(box->findData(9)), QStringLiteral("韩语 – needs a speech server"));

        // Korean: refused with the reason and the way out, and nothing is extracted.
        QSignalSpy events(GlobalManager::instance(), &GlobalManager::globalEvent);
        emit panel->autoCaptionSignal(9);
        QMessageBox* offer = nullptr;
        QTRY_VERIFY((offer = m_window->findChild<QMessageBox*>(QStringLiteral("speech_engine_needed"))));
        QVERIFY(offer->isVisible() && !m_window->loadingDialog()->isVisible());
        QVERIFY2(offer->text().contains(QStringLiteral("韩语")), qPrintable(offer->text()));
        QVERIFY(!TestSupport::hasEvent(events, AppConfig::VIDEO_TO_AUDIO_START));
        offer->buttons().constFirst()->click();
        auto* dialog = m_window->findChild<SpeechEngineDialog*>();
        QTRY_VERIFY(dialog && dialog->isVisible());
        dialog->reject();
        QVERIFY(CaptionManager::instance()->getCaptions().isEmpty());
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

    void aTranscriptionServerFromTheDialog()
    {
        // A stand-in for an OpenAI-compatible transcription server that wants a key.
        LocalHttpServer server([](const LocalHttpServer::Request& request) {
            LocalHttpServer::Response answer;
            if (!request.head.contains("Authorization: Bearer sk-right")) {
                answer.status = 401;
                answer.body = R"({"error":{"message":"Incorrect API key provided"}})";
                return answer;
            }
            answer.body = R"({"text":"Annyeong.","segments":[{"start":0.5,"end":1.2,"text":" Annyeonghaseyo."}]})";
            return answer;
        });
        QVERIFY(server.listen());
        auto* dialog = SpeechEngineDialog::showFor(m_window);
        dialog->findChild<QRadioButton*>(QStringLiteral("speech_engine_server"))->setChecked(true);
        dialog->findChild<QLineEdit*>(QStringLiteral("speech_engine_url"))->setText(server.url(QString()));
        dialog->findChild<QLineEdit*>(QStringLiteral("speech_engine_model"))->setText(QStringLiteral("tiny"));
        auto* key = dialog->findChild<QLineEdit*>(QStringLiteral("speech_engine_key"));
        auto* test = dialog->findChild<QPushButton*>(QStringLiteral("speech_engine_test"));

        // Test says what happened, in one sentence naming the server and the reason.
        QStringList results;
        for (const QString& given : {QStringLiteral("sk-wrong"), QStringLiteral("sk-right")}) {
            key->setText(given);
            QSignalSpy finished(dialog->test(), &SpeechEngineTest::finished);
            test->click();
            QVERIFY(finished.wait(60000));
            results << dialog->testResult();
        }
        QCOMPARE(server.requests().size(), 2);
        QVERIFY(server.requests().first().path.endsWith(QStringLiteral("/v1/audio/transcriptions")));
        QVERIFY2(results.first().startsWith(QStringLiteral("Failed: The transcription server at http://127.0.0.1"))
                     && results.first().endsWith(QStringLiteral("refused the key (HTTP 401): Incorrect API key provided.")),
                 qPrintable(results.first()));
        QVERIFY2(results.last().startsWith(QStringLiteral("Works:")), qPrintable(results.last()));

        // Kept: the service restarts with the server, which takes any language.
        dialog->accept();
        QCOMPARE(SpeechEngine::stored().url, server.url(QString()));
        auto* box = m_window->captionWidget()->findChild<QComboBox*>();
        emit m_window->captionWidget()->autoCaptionSignal(9);
        const auto firstText = [] {
            const QList<CaptionInfo*> captions = CaptionManager::instance()->getCaptions();
            return captions.isEmpty() ? QString() : captions.first()->text;
        };
        QTRY_COMPARE_WITH_TIMEOUT(firstText(), QStringLiteral("Annyeonghaseyo."), 60000);
        QCOMPARE(box->itemText(box->findData(9)), QStringLiteral("韩语"));

        // A wrong key later: one sentence naming the server and the reason, nothing half-done.
        SpeechEngine wrong = SpeechEngine::stored();
        wrong.key = QStringLiteral("sk-wrong");
        wrong.store();
        SpeechService::instance()->restart();
        const int captions = CaptionManager::instance()->getCaptions().size();
        emit m_window->captionWidget()->autoCaptionSignal(9);
        QTRY_VERIFY_WITH_TIMEOUT(m_window->messageDialog()->isVisible(), 60000);
        const QString message = m_window->messageDialog()->message();
        QVERIFY2(message.contains(QStringLiteral("127.0.0.1:%1").arg(server.port()))
                     && message.contains(QStringLiteral("refused the key (HTTP 401): Incorrect API key provided.")),
                 qPrintable(message));
        QVERIFY(!m_window->loadingDialog()->isVisible());
        QCOMPARE(CaptionManager::instance()->getCaptions().size(), captions);
        m_window->messageDialog()->accept();
    }
};

QTEST_MAIN(TestAutoCaptions)
#include "test_autocaptions.moc"
