// The speech client against the real glimmer-speechd: results, failures the user
// must see, cancelling, and the on-demand start of the bundled service.
#include "appconfig.h"
#include "globalmanager.h"
#include "httpmanager.h"
#include "localhttpserver.h"
#include "speechdprocess.h"
#include "speechservice.h"
#include "testsupport.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QTest>

using TestSupport::freePort;

class TestHttpManager : public QObject
{
    Q_OBJECT

private:
    SpeechdProcess m_server;
    QString m_work;
    QString m_speech;

    static void useService(const QString& url)
    {
        GlobalManager::instance()->saveSettings(AppConfig::SPEECH_SERVER_URL, url);
    }

private slots:
    void initTestCase()
    {
        TestSupport::isolate();
        m_work = TestSupport::makeWorkDir(QStringLiteral("httpmanager"));
        m_speech = m_work + QStringLiteral("/speech.mp3");
        QVERIFY(TestSupport::makeSpeechMp3({TestSupport::librivox("0870")}, m_speech));
        QVERIFY(m_server.start());
        GlobalManager::instance(); // connects the client's replies to the bus
    }

    void failuresReachTheUserWithAMessage_data()
    {
        QTest::addColumn<QString>("url");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("expected");
        QTest::newRow("missing audio file") << QString() << "/nonexistent/a.mp3" << "could not be read";
        QTest::newRow("empty audio file") << QString() << "empty" << "no sound";
        QTest::newRow("nothing listens") << QStringLiteral("http://127.0.0.1:%1").arg(freePort()) << QString()
                                         << "refused";
        // The bundled service is to be started, but its program is not there.
        QTest::newRow("bundled service missing") << "bundled" << QString() << "missing";
    }

    void failuresReachTheUserWithAMessage()
    {
        QFETCH(QString, url);
        QFETCH(QString, file);
        QFETCH(QString, expected);
        if (url == QLatin1String("bundled")) {
            url = QStringLiteral("http://127.0.0.1:%1").arg(freePort());
            SpeechService::instance()->setManagedBaseUrl(url);
            SpeechService::instance()->setProgram(m_work + QStringLiteral("/no-such-speechd"));
        }
        useService(url.isEmpty() ? m_server.url() : url);
        if (file == QLatin1String("empty")) {
            file = m_work + QStringLiteral("/empty.mp3");
            QVERIFY(TestSupport::writeFile(file, QByteArray()));
        } else if (file.isEmpty()) {
            file = m_speech;
        }
        QSignalSpy finished(HttpManager::instance(), &HttpManager::requestFinished);
        QSignalSpy errors(HttpManager::instance(), &HttpManager::requestError);
        QSignalSpy refused(HttpManager::instance(), &HttpManager::submitFailed);
        QSignalSpy events(GlobalManager::instance(), &GlobalManager::globalEvent);
        HttpManager::instance()->loadCaptions(file, QStringLiteral("en-US"));
        QTRY_COMPARE_WITH_TIMEOUT(refused.size(), 1, 30000);
        const QString message = refused.first().at(0).toString();
        QVERIFY2(message.contains(expected, Qt::CaseInsensitive), qPrintable(message));
        // A failed submit is no request error and nothing on the bus.
        QVERIFY(!refused.wait(200));
        QVERIFY(errors.isEmpty() && finished.isEmpty() && events.isEmpty());
    }

    void cancelledRecognitionStaysSilent()
    {
        useService(m_server.url());
        QSignalSpy finished(HttpManager::instance(), &HttpManager::requestFinished);
        QSignalSpy errors(HttpManager::instance(), &HttpManager::requestError);
        // Cancel while uploading, and again while the result is awaited.
        for (bool awaitResult : {false, true}) {
            HttpManager::instance()->loadCaptions(m_speech, QStringLiteral("en-US"));
            if (awaitResult) {
                QTRY_VERIFY_WITH_TIMEOUT(HttpManager::instance()->isAwaitingResult(), 10000);
            }
            QVERIFY(HttpManager::instance()->isUploading());
            HttpManager::instance()->stopUploadFile();
        }
        // A result would be in well within this time.
        QVERIFY(!finished.wait(4000));
        QVERIFY(errors.isEmpty() && !HttpManager::instance()->isUploading());
    }

    void bundledServiceIsTheAppsOwn()
    {
        // Something else squats on the managed address and invents captions.
        LocalHttpServer squatter([](const LocalHttpServer::Request& request) {
            LocalHttpServer::Response response;
            response.body = request.path.contains(QLatin1String("submit"))
                                ? QByteArray(R"({"task_id":"made-up"})")
                                : TestSupport::utterances({{0, 1000, QStringLiteral("invented")}});
            return response;
        });
        QVERIFY(squatter.listen());
        const QString url = squatter.url(QString());
        SpeechService* service = SpeechService::instance();
        service->setManagedBaseUrl(url);
        service->setProgram(SpeechdProcess::program());
        useService(url);
        QVERIFY(!service->isStartedByUs());

        QSignalSpy finished(HttpManager::instance(), &HttpManager::requestFinished);
        QSignalSpy errors(HttpManager::instance(), &HttpManager::requestError);
        QSignalSpy events(GlobalManager::instance(), &GlobalManager::globalEvent);
        HttpManager::instance()->loadCaptions(m_speech, QStringLiteral("en-US"));
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, 60000);
        QVERIFY(errors.isEmpty() && !HttpManager::instance()->isUploading());
        // The app started its own service and never asked the squatter.
        QVERIFY(service->isStartedByUs() && squatter.requests().isEmpty());
        const QByteArray result = TestSupport::eventValues(events, AppConfig::TASK_ID).value(0).toByteArray();
        QVERIFY2(!result.contains("invented") && result.contains("utterances"), result.constData());

        // The service started for this run listens elsewhere and wants the run's token.
        const QUrl own(service->serviceUrl(url));
        QCOMPARE(own.host(), QStringLiteral("127.0.0.1"));
        QVERIFY(own.port() != QUrl(url).port());
        QNetworkAccessManager network;
        QNetworkReply* anonymous = network.get(QNetworkRequest(QUrl(own.toString() + "/api/speech/health")));
        QTRY_VERIFY_WITH_TIMEOUT(anonymous->isFinished(), 10000);
        QCOMPARE(anonymous->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), 401);
        delete anonymous;

        // A second request reuses the running service.
        QSignalSpy started(service, &SpeechService::serviceStarted);
        HttpManager::instance()->loadCaptions(m_speech, QStringLiteral("en-US"));
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 2, 60000);
        QVERIFY(started.isEmpty());

        service->stop();
        QVERIFY(!service->isStartedByUs());
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(own.port()));
        QVERIFY(!socket.waitForConnected(1000));

        // An address the user chose is used as it is, without the token.
        service->setManagedBaseUrl(AppConfig::DEFAULT_SPEECH_SERVER_URL);
        HttpManager::instance()->loadCaptions(m_speech, QStringLiteral("en-US"));
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 3, 30000);
        QVERIFY(!service->isStartedByUs());
        QCOMPARE(squatter.requests().size(), 2);
        for (const LocalHttpServer::Request& request : squatter.requests()) {
            QVERIFY2(!request.head.toLower().contains("authorization"), request.head.constData());
        }
    }

    void cleanupTestCase() { m_server.stop(); }
};

QTEST_GUILESS_MAIN(TestHttpManager)
#include "test_httpmanager.moc"
