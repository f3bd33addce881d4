// The local speech service (glimmer-speechd) over real HTTP on 127.0.0.1.
#include "localhttpserver.h"
#include "speechdprocess.h"
#include "testsupport.h"

#include <QElapsedTimer>
#include <QtEndian>
#include <QEventLoop>
#include <QFile>
#include <QHttpMultiPart>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>

#include <csignal>

namespace {

struct Answer {
    int status = 0;
    QByteArray head;
    QByteArray body;
    QJsonObject json;
    bool isJsonObject = false;
};

Answer answerOf(int status, const QByteArray& head, const QByteArray& body)
{
    const QJsonDocument document = QJsonDocument::fromJson(body);
    return {status, head, body, document.object(), document.isObject()};
}

Answer finish(QNetworkReply* reply, int timeoutMs = 120000)
{
    QEventLoop loop;
    QTimer::singleShot(timeoutMs, &loop, &QEventLoop::quit);
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (!reply->isFinished()) {
        loop.exec();
    }
    if (!reply->isFinished()) {
        reply->abort();
    }
    reply->deleteLater();
    return answerOf(reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), QByteArray(), reply->readAll());
}

} // namespace

class TestSpeechd : public QObject
{
    Q_OBJECT

private:
    QNetworkAccessManager m_network;
    SpeechdProcess m_server;
    SpeechdProcess m_secured; // requires kToken
    QString m_work;
    QString m_speech;     // ~7 s of read speech
    QString m_longSpeech; // ~22 s
    QString m_sleeper;    // an "ffmpeg" that never ends

    static constexpr const char* kToken = "0123456789abcdef";

    QNetworkReply* submit(const QString& base, const QString& file, const QString& language = "en-US")
    {
        auto* multiPart = new QHttpMultiPart(QHttpMultiPart::FormDataType);
        QHttpPart part;
        part.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("multipart/form-data"));
        part.setHeader(QNetworkRequest::ContentDispositionHeader,
                       QStringLiteral("form-data; name=\"file\"; filename=\"%1\"").arg(file));
        auto* device = new QFile(file, multiPart);
        device->open(QIODevice::ReadOnly);
        part.setBodyDevice(device);
        multiPart->append(part);
        QNetworkReply* reply = m_network.post(
            QNetworkRequest(QUrl(base + QStringLiteral("/api/speech/submit?language=") + language)), multiPart);
        multiPart->setParent(reply);
        return reply;
    }

    QNetworkReply* query(const QString& base, const QString& taskId)
    {
        return m_network.get(QNetworkRequest(QUrl(base + QStringLiteral("/api/speech/query?task_id=") + taskId)));
    }

    Answer recognise(const QString& base, const QString& file, const QString& language = "en-US")
    {
        const Answer submitted = finish(submit(base, file, language));
        if (submitted.status != 200) {
            return submitted;
        }
        return finish(query(base, submitted.json.value(QStringLiteral("task_id")).toString()));
    }

    // Sends bytes as they are ("HOST" standing for the service's address) and
    // returns the status, head and body of the answer.
    Answer raw(int port, QByteArray request)
    {
        request.replace("HOST", "127.0.0.1:" + QByteArray::number(port));
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(port));
        if (!socket.waitForConnected(5000)) {
            return Answer();
        }
        socket.write(request);
        QByteArray data;
        for (int i = 0; i < 100 && socket.state() == QAbstractSocket::ConnectedState; ++i) {
            socket.waitForReadyRead(100);
            data += socket.readAll();
            const int headerEnd = data.indexOf("\r\n\r\n");
            const int at = data.toLower().indexOf("content-length:");
            if (headerEnd > 0 && at > 0) {
                const int length = data.mid(at + 15, data.indexOf("\r\n", at) - at - 15).trimmed().toInt();
                if (data.size() >= headerEnd + 4 + length) {
                    break;
                }
            }
        }
        data += socket.readAll();
        const int headEnd = data.indexOf("\r\n\r\n");
        return answerOf(data.mid(9, 3).toInt(), data.left(headEnd), data.mid(headEnd + 4));
    }

private slots:
    void initTestCase()
    {
        TestSupport::isolate();
        QVERIFY(QFile::exists(SpeechdProcess::program()));
        m_work = TestSupport::makeWorkDir(QStringLiteral("speechd"));
        m_speech = m_work + QStringLiteral("/speech.mp3");
        m_longSpeech = m_work + QStringLiteral("/long.mp3");
        using TestSupport::librivox;
        QVERIFY(TestSupport::makeSpeechMp3({librivox("0870")}, m_speech));
        QVERIFY(TestSupport::makeSpeechMp3({librivox("0870"), librivox("0890"), librivox("0920"), librivox("0930")},
                                           m_longSpeech));
        QVERIFY(m_server.start({"--jobs", "2"}));
        QVERIFY(m_secured.start({}, QString(), QString::fromLatin1(kToken)));

        // Uploads that name other files: the speech as an HLS segment and a concat list.
        const QString segment = m_work + QStringLiteral("/local.ts");
        QCOMPARE(TestSupport::ffmpeg({"-i", m_speech, "-c:a", "aac", "-f", "mpegts", segment}), 0);
        QVERIFY(TestSupport::writeFile(m_work + QStringLiteral("/playlist.m3u8"),
                                       "#EXTM3U\n#EXT-X-TARGETDURATION:10\n#EXTINF:8,\n" + segment.toUtf8()
                                           + "\n#EXT-X-ENDLIST\n"));
        QVERIFY(TestSupport::writeFile(m_work + QStringLiteral("/list.ffconcat"),
                                       "ffconcat version 1.0\nfile " + segment.toUtf8() + "\n"));
        QVERIFY(TestSupport::writeFile(m_work + "/text.mp3", QByteArray("this is not audio at all\n").repeated(100)));
        m_sleeper = m_work + QStringLiteral("/sleeper");
        QVERIFY(TestSupport::writeFile(m_sleeper, "#!/bin/sh\nexec sleep 120\n"));
        QVERIFY(QFile::setPermissions(m_sleeper, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    void requestsGetProperAnswers_data()
    {
        QTest::addColumn<bool>("secured");
        QTest::addColumn<QByteArray>("request");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("expected");
        const auto get = [](const QByteArray& path, const QByteArray& headers = "Host: HOST\r\n") {
            return "GET " + path + " HTTP/1.1\r\n" + headers + "Connection: close\r\n\r\n";
        };
        const auto post = [](const QByteArray& path, const QByteArray& type, const QByteArray& body) {
            return "POST " + path + " HTTP/1.1\r\nHost: HOST\r\nConnection: close\r\nContent-Type: " + type
                   + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
        };
        const QByteArray multipart = "multipart/form-data; boundary=XyZ";
        const QByteArray submitPath = "/api/speech/submit?language=en-US";
        const QByteArray filePart = "--XyZ\r\nContent-Disposition: form-data; name=\"file\"; filename=\"a\"\r\n\r\nabc\r\n--XyZ--\r\n";
        const QByteArray health = "/api/speech/health";
        QTest::newRow("unknown path") << false << get("/nothing") << 404 << "no such address";
        QTest::newRow("unknown task") << false << get("/api/speech/query?task_id=abc") << 404 << "knows no task";
        QTest::newRow("no task id") << false << get("/api/speech/query") << 404 << "knows no task";
        QTest::newRow("not multipart") << false << post(submitPath, "application/json", "{}") << 400 << "multipart";
        QTest::newRow("no language") << false << post("/api/speech/submit", multipart, filePart) << 400 << "language";
        QTest::newRow("no file part") << false
                                      << post(submitPath, multipart, "--XyZ\r\nContent-Disposition: form-data; name=\"other\"\r\n\r\nabc\r\n--XyZ--\r\n")
                                      << 400 << "no part named";
        QTest::newRow("empty file") << false
                                    << post(submitPath, multipart, "--XyZ\r\nContent-Disposition: form-data; name=\"file\"; filename=\"a\"\r\n\r\n\r\n--XyZ--\r\n")
                                    << 400 << "empty";
        QTest::newRow("wrong boundary") << false
                                        << post(submitPath, multipart, "--Other\r\nContent-Disposition: form-data; name=\"file\"\r\n\r\nabc\r\n--Other--\r\n")
                                        << 400 << "malformed";
        QTest::newRow("cut-off part") << false << post(submitPath, multipart, "--XyZ\r\nContent-Disposition: form-da") << 400 << "malformed";
        QTest::newRow("garbage") << false << QByteArray("HELLO THERE\r\n\r\n") << 400 << "malformed";
        // Refused before the upload is read, and nothing is kept of it.
        QTest::newRow("no model for the language") << false << post("/api/speech/submit?language=fr-FR", multipart, filePart)
                                                   << 422 << "fr-FR";
        QTest::newRow("too large") << false
                                   << QByteArray("POST " + submitPath + " HTTP/1.1\r\nHost: HOST\r\nConnection: close\r\n"
                                                 "Content-Type: " + multipart + "\r\nContent-Length: 99999999999\r\n\r\n")
                                   << 413 << "larger";
        QByteArray chunked = "POST " + submitPath + " HTTP/1.1\r\nHost: HOST\r\nContent-Type: " + multipart
                             + "\r\nTransfer-Encoding: chunked\r\n\r\n";
        for (const QByteArray& piece : {filePart.left(40), filePart.mid(40), QByteArray()}) {
            chunked += QByteArray::number(piece.size(), 16) + "\r\n" + piece + "\r\n";
        }
        QTest::newRow("chunked upload") << false << chunked << 200 << "task_id";
        QTest::newRow("post without a length") << false
                                               << QByteArray("POST /api/speech/cancel?task_id=abc HTTP/1.1\r\nHost: HOST\r\n\r\n")
                                               << 404 << "knows no task";
        QTest::newRow("foreign host") << false << get(health, "Host: rebound.example:PORT\r\n") << 403 << "own address";
        QTest::newRow("other port") << false << get(health, "Host: 127.0.0.1:1\r\n") << 403 << "own address";
        QTest::newRow("no host") << false << get(health, "") << 403 << "own address";
        QTest::newRow("localhost") << false << get(health, "Host: localhost:PORT\r\n") << 200 << "\"languages\":[\"en\"]";
        QTest::newRow("from a web page") << false << get(health, "Host: HOST\r\nOrigin: http://HOST\r\n") << 403 << "web pages";
        QTest::newRow("no token") << true << get(health) << 401 << "token";
        QTest::newRow("wrong token") << true << get(health, "Host: HOST\r\nAuthorization: Bearer 0123456789abcdeX\r\n") << 401
                                     << "token";
        QTest::newRow("token") << true << get(health, "Host: HOST\r\nAuthorization: Bearer " + QByteArray(kToken) + "\r\n")
                               << 200 << "ok";
        QTest::newRow("token, foreign host")
            << true << get(health, "Host: rebound.example:PORT\r\nAuthorization: Bearer " + QByteArray(kToken) + "\r\n") << 403
            << "own address";
    }

    void requestsGetProperAnswers()
    {
        QFETCH(bool, secured);
        QFETCH(QByteArray, request);
        QFETCH(int, status);
        QFETCH(QString, expected);
        SpeechdProcess& service = secured ? m_secured : m_server;
        const Answer answer = raw(service.port(), request.replace("PORT", QByteArray::number(service.port())));
        QCOMPARE(answer.status, status);
        QVERIFY2(answer.isJsonObject, answer.body.constData());
        QVERIFY2(answer.body.contains(expected.toUtf8()), answer.body.constData());
        QVERIFY2(answer.head.toLower().count("\r\nconnection:") <= 1, answer.head.constData());
        if (status >= 400) {
            QVERIFY(!answer.json.value("message").toString().isEmpty());
            QVERIFY2(answer.head.contains("\r\nConnection: close"), answer.head.constData());
        }
        // The service is still there for the next client.
        QCOMPARE(finish(m_network.get(QNetworkRequest(QUrl(m_server.url() + "/api/speech/health")))).status, 200);
    }

    void uploadsAreDecodedAlone_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("expected");
        QTest::newRow("text") << QStringList() << "text.mp3" << "no audio";
        QTest::newRow("playlist naming a local file") << QStringList() << "playlist.m3u8" << "no audio";
        QTest::newRow("concat list naming a local file") << QStringList() << "list.ffconcat" << "no audio";
        QTest::newRow("longer than accepted") << QStringList{"--max-duration", "5"} << "long.mp3"
                                              << "longer than the speech service accepts (5 seconds)";
        QTest::newRow("decoding takes too long") << QStringList{"--ffmpeg", "SLEEPER", "--decode-timeout", "1"}
                                                 << "speech.mp3" << "took too long";
        QTest::newRow("no decoder") << QStringList{"--ffmpeg", "/nonexistent/ffmpeg"} << "speech.mp3" << "could not run";
    }

    void uploadsAreDecodedAlone()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, file);
        QFETCH(QString, expected);
        SpeechdProcess service;
        QVERIFY(arguments.isEmpty() || service.start(arguments.replaceInStrings(QStringLiteral("SLEEPER"), m_sleeper)));
        const Answer answer = recognise(arguments.isEmpty() ? m_server.url() : service.url(),
                                        m_work + QLatin1Char('/') + file);
        QCOMPARE(answer.json.value("state").toString(), QStringLiteral("failed"));
        const QString message = answer.json.value("message").toString();
        QVERIFY2(message.contains(expected), qPrintable(message));
        // What failed, in the user's words: no paths, no decoder output.
        QVERIFY2(!message.contains(QLatin1Char('/')) && !message.contains(QStringLiteral("ffmpeg")), qPrintable(message));
    }

    void truncatedUploadIsRecognisedAsFarAsItGoes()
    {
        QFile full(m_longSpeech);
        QVERIFY(full.open(QIODevice::ReadOnly));
        const QString halfPath = m_work + QStringLiteral("/half.mp3");
        QVERIFY(TestSupport::writeFile(halfPath, full.read(full.size() / 2)));
        const Answer half = recognise(m_server.url(), halfPath);
        QCOMPARE(half.json.value("state").toString(), QStringLiteral("success"));
        const QJsonArray utterances = half.json.value("utterances").toArray();
        QVERIFY(!utterances.isEmpty());
        // Only the first half was sent.
        QVERIFY(utterances.last().toObject().value("end_time").toInt() < 13000);
    }

    void uploadSizeAndQueueLengthAreBoundedAndTasksCancel()
    {
        SpeechdProcess queued;
        QVERIFY(queued.start({"--max-queue", "2", "--max-upload-mb", "1"}));
        const QString big = m_work + QStringLiteral("/big.mp3");
        QVERIFY(TestSupport::writeFile(big, QByteArray(3 * 1024 * 1024, 'a')));
        const Answer tooBig = finish(submit(queued.url(), big));
        QCOMPARE(tooBig.status, 413);
        QVERIFY2(tooBig.isJsonObject, tooBig.body.constData());

        const Answer first = finish(submit(queued.url(), m_longSpeech));
        const Answer second = finish(submit(queued.url(), m_longSpeech));
        QVERIFY(first.status == 200 && second.status == 200);
        const Answer third = finish(submit(queued.url(), m_speech));
        QCOMPARE(third.status, 503);
        QVERIFY(third.json.value("message").toString().contains(QStringLiteral("busy")));

        // The second waits behind the first; cancelling it frees its place at once.
        const QString secondId = second.json.value("task_id").toString();
        const Answer cancel = finish(m_network.post(
            QNetworkRequest(QUrl(queued.url() + "/api/speech/cancel?task_id=" + secondId)), QByteArray()));
        QCOMPARE(cancel.status, 200);
        const Answer cancelled = finish(query(queued.url(), secondId), 5000);
        QCOMPARE(cancelled.json.value("state").toString(), QStringLiteral("failed"));
        QVERIFY(cancelled.json.value("message").toString().contains(QStringLiteral("cancelled")));

        const QString firstId = first.json.value("task_id").toString();
        const Answer done = finish(query(queued.url(), firstId));
        QCOMPARE(done.json.value("state").toString(), QStringLiteral("success"));
        QCOMPARE(finish(submit(queued.url(), m_speech)).status, 200);

        // Finished results are kept for their query, but not without end (16 here).
        const QString textPath = m_work + QStringLiteral("/text.mp3");
        for (int i = 0; i < 17; ++i) {
            QCOMPARE(recognise(queued.url(), textPath).json.value("state").toString(), QStringLiteral("failed"));
        }
        QCOMPARE(finish(query(queued.url(), firstId)).status, 404);
    }

    // Two recognitions at once (--jobs 2): the decoders share no state.
    void concurrentClientsGetTheSameResult()
    {
        QList<QNetworkReply*> submits;
        for (int i = 0; i < 6; ++i) {
            submits << submit(m_server.url(), m_speech);
        }
        QList<QNetworkReply*> queries;
        for (QNetworkReply* reply : submits) {
            const Answer answer = finish(reply);
            QCOMPARE(answer.status, 200);
            queries << query(m_server.url(), answer.json.value("task_id").toString());
        }
        QByteArray expected;
        for (QNetworkReply* reply : queries) {
            const Answer answer = finish(reply);
            QCOMPARE(answer.json.value("state").toString(), QStringLiteral("success"));
            if (expected.isEmpty()) {
                expected = answer.body;
            }
            QCOMPARE(answer.body, expected);
        }
    }

    void temporaryFilesAreRemovedAndSwept()
    {
        const QString tmp = m_work + QStringLiteral("/service-tmp");
        const auto folders = [&tmp]() { return QDir(tmp).entryList({"glimmer-speechd-*"}, QDir::Dirs); };
        SpeechdProcess running;
        SpeechdProcess killed;
        QVERIFY(running.start({}, tmp) && killed.start({}, tmp));
        const QStringList both = folders();
        QCOMPARE(both.size(), 2);
        ::kill(static_cast<pid_t>(killed.process().processId()), SIGKILL);
        QVERIFY(killed.process().waitForFinished(5000));
        QCOMPARE(folders(), both); // left behind

        // The next start sweeps the folder of the killed service, not the running one's.
        SpeechdProcess service;
        QVERIFY(service.start({}, tmp));
        const QString runningFolder = QStringLiteral("glimmer-speechd-%1-").arg(running.process().processId());
        QCOMPARE(folders().size(), 2);
        QCOMPARE(folders().filter(runningFolder).size(), 1);
        const QString own = folders().filter(QStringLiteral("glimmer-speechd-%1-").arg(service.process().processId())).value(0);
        QVERIFY(!own.isEmpty());

        QCOMPARE(recognise(service.url(), m_speech).json.value("state").toString(), QStringLiteral("success"));
        QCOMPARE(recognise(service.url(), m_work + "/text.mp3").json.value("state").toString(),
                 QStringLiteral("failed"));
        QVERIFY(QDir(tmp + QLatin1Char('/') + own).entryList(QDir::Files).isEmpty());

        // A kept-alive connection does not hold up the end.
        QCOMPARE(finish(m_network.get(QNetworkRequest(QUrl(service.url() + "/api/speech/health")))).status, 200);
        QElapsedTimer clock;
        clock.start();
        service.stop();
        QVERIFY2(clock.elapsed() < 3000, qPrintable(QString::number(clock.elapsed())));
        QVERIFY(service.process().exitStatus() == QProcess::NormalExit && service.process().exitCode() == 0);
        const QStringList left = folders();
        QVERIFY(left.size() == 1 && left.first().startsWith(runningFolder));
    }

    void forwardsToTranscriptionServer()
    {
        // A stand-in for an OpenAI-style transcription server.
        LocalHttpServer::Response reply;
        reply.body = R"({"task":"transcribe","language":"french","duration":7.1,"text":"Bonjour. Au revoir.",
            "segments":[{"id":0,"start":0.0,"end":2.5,"text":" Bonjour tout le monde."},
                        {"id":1,"start":2.5,"end":4.25,"text":" Au revoir."}]})";
        LocalHttpServer fake([&reply](const LocalHttpServer::Request&) { return reply; });
        QVERIFY(fake.listen());
        SpeechdProcess service;
        QVERIFY(service.start({"--openai-url", QStringLiteral("http://127.0.0.1:%1").arg(fake.port()), "--openai-model",
                               "tiny-test"}));
        const Answer answer = recognise(service.url(), m_speech, QStringLiteral("fr-FR"));
        QCOMPARE(answer.json.value("state").toString(), QStringLiteral("success"));
        const QJsonArray utterances = answer.json.value("utterances").toArray();
        QCOMPARE(utterances.size(), 2);
        QCOMPARE((QVariantList{utterances.at(0).toObject().value("text").toString(),
                               utterances.at(1).toObject().value("start_time").toInt(),
                               utterances.at(1).toObject().value("end_time").toInt()}),
                 (QVariantList{"Bonjour tout le monde.", 2500, 4250}));

        QCOMPARE(fake.requests().size(), 1);
        QCOMPARE(fake.requests().first().method + ' ' + fake.requests().first().path.toUtf8(),
                 QByteArray("POST /v1/audio/transcriptions"));
        const QByteArray request = fake.requests().first().body;
        for (const char* field :
             {"response_format\"\r\n\r\nverbose_json", "language\"\r\n\r\nfr", "model\"\r\n\r\ntiny-test"}) {
            QVERIFY2(request.contains("name=\"" + QByteArray(field)), field);
        }
        // The audio goes out decoded: a 16 kHz mono WAV.
        const int riff = request.indexOf("RIFF");
        QVERIFY(riff > 0);
        QCOMPARE(request.mid(riff + 8, 8), QByteArray("WAVEfmt "));
        QCOMPARE(qFromLittleEndian<quint32>(request.constData() + riff + 24), 16000u);

        reply.status = 500;
        reply.body = R"({"error":{"message":"model tiny-test is not loaded"}})";
        const Answer refused = recognise(service.url(), m_speech, QStringLiteral("fr-FR"));
        QCOMPARE(refused.json.value("state").toString(), QStringLiteral("failed"));
        QVERIFY(refused.json.value("message").toString().contains(QStringLiteral("model tiny-test is not loaded")));

        SpeechdProcess unreachable;
        QVERIFY(unreachable.start({"--openai-url", "http://127.0.0.1:1"}));
        const Answer gone = recognise(unreachable.url(), m_speech, QStringLiteral("de-DE"));
        QCOMPARE(gone.json.value("state").toString(), QStringLiteral("failed"));
        QVERIFY(gone.json.value("message").toString().contains(QStringLiteral("could not be reached")));
    }

    void cleanupTestCase() { m_server.stop(); }
};

QTEST_GUILESS_MAIN(TestSpeechd)
#include "test_speechd.moc"
