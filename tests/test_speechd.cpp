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
#include <QRandomGenerator>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>

namespace {

struct Answer {
    int status = 0;
    QByteArray body;
    QJsonObject json;
    bool isJsonObject = false;
};

Answer finish(QNetworkReply* reply, int timeoutMs = 120000)
{
    QEventLoop loop;
    QTimer::singleShot(timeoutMs, &loop, &QEventLoop::quit);
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (!reply->isFinished()) {
        loop.exec();
    }
    Answer answer;
    if (!reply->isFinished()) {
        reply->abort();
    }
    answer.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    answer.body = reply->readAll();
    const QJsonDocument document = QJsonDocument::fromJson(answer.body);
    answer.isJsonObject = document.isObject();
    answer.json = document.object();
    reply->deleteLater();
    return answer;
}

} // namespace

class TestSpeechd : public QObject
{
    Q_OBJECT

private:
    QNetworkAccessManager m_network;
    SpeechdProcess m_server;
    QString m_work;
    QString m_speech;     // ~7 s of read speech
    QString m_longSpeech; // ~22 s

    QNetworkReply* submit(const QString& base, const QString& file, const QString& language)
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

    Answer recognise(const QString& base, const QString& file, const QString& language)
    {
        const Answer submitted = finish(submit(base, file, language));
        if (submitted.status != 200) {
            return submitted;
        }
        return finish(query(base, submitted.json.value(QStringLiteral("task_id")).toString()));
    }

    // Sends bytes as they are and returns the status and body of the answer.
    Answer raw(const QByteArray& request)
    {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_server.port()));
        Answer answer;
        if (!socket.waitForConnected(5000)) {
            return answer;
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
        answer.status = data.mid(9, 3).toInt();
        answer.body = data.mid(data.indexOf("\r\n\r\n") + 4);
        const QJsonDocument document = QJsonDocument::fromJson(answer.body);
        answer.isJsonObject = document.isObject();
        answer.json = document.object();
        return answer;
    }

    static void checkCaptionShape(const QJsonArray& utterances)
    {
        qint64 previousEnd = -1;
        for (const QJsonValue& value : utterances) {
            const QJsonObject utterance = value.toObject();
            const qint64 start = utterance.value(QStringLiteral("start_time")).toVariant().toLongLong();
            const qint64 end = utterance.value(QStringLiteral("end_time")).toVariant().toLongLong();
            const QString text = utterance.value(QStringLiteral("text")).toString();
            QVERIFY2(start < end, qPrintable(text));
            QVERIFY2(start >= previousEnd, qPrintable(text));
            QVERIFY2(end - start <= 5000 || !text.contains(QLatin1Char(' ')), qPrintable(text));
            QVERIFY2(!text.isEmpty() && !text.contains(QLatin1Char('<')) && !text.contains(QLatin1Char('['))
                         && !text.contains(QLatin1Char('(')) && !text.contains(QLatin1Char('+')),
                     qPrintable(text));
            previousEnd = end;
        }
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
        QVERIFY(m_server.start({QStringLiteral("--jobs"), QStringLiteral("2")}));
    }

    void recognisesReadSpeechIntoCaptions()
    {
        const Answer answer = recognise(m_server.url(), m_longSpeech, QStringLiteral("en-US"));
        QCOMPARE(answer.status, 200);
        QCOMPARE(answer.json.value("state").toString(), QStringLiteral("success"));
        const QJsonArray utterances = answer.json.value("utterances").toArray();
        // 22 s of speech in several sentences: more than one caption, none too long.
        QVERIFY2(utterances.size() >= 4, answer.body.constData());
        checkCaptionShape(utterances);
        QString all;
        for (const QJsonValue& value : utterances) {
            all += value.toObject().value("text").toString() + QLatin1Char(' ');
        }
        QVERIFY2(all.contains(QStringLiteral("consider")), qPrintable(all));
    }

    void unsupportedLanguageFailsAtOnce()
    {
        QElapsedTimer clock;
        clock.start();
        const Answer answer = recognise(m_server.url(), m_longSpeech, QStringLiteral("fr-FR"));
        QVERIFY(clock.elapsed() < 3000);
        QCOMPARE(answer.status, 200);
        QCOMPARE(answer.json.value("state").toString(), QStringLiteral("failed"));
        QVERIFY(answer.json.value("message").toString().contains(QStringLiteral("fr-FR")));
    }

    void badRequestsGetJsonErrors_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::addColumn<int>("status");
        const QByteArray boundary = "XyZ";
        const auto post = [&](const QByteArray& path, const QByteArray& type, const QByteArray& body) {
            return "POST " + path + " HTTP/1.1\r\nHost: x\r\nConnection: close\r\nContent-Type: " + type
                   + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
        };
        const QByteArray multipart = "multipart/form-data; boundary=" + boundary;
        const QByteArray submitPath = "/api/speech/submit?language=en-US";
        QTest::newRow("unknown path") << QByteArray("GET /nothing HTTP/1.1\r\nHost: x\r\nConnection: close\r\n\r\n") << 404;
        QTest::newRow("unknown task") << QByteArray("GET /api/speech/query?task_id=abc HTTP/1.1\r\nHost: x\r\nConnection: close\r\n\r\n") << 404;
        QTest::newRow("no task id") << QByteArray("GET /api/speech/query HTTP/1.1\r\nHost: x\r\nConnection: close\r\n\r\n") << 404;
        QTest::newRow("not multipart") << post(submitPath, "application/json", "{}") << 400;
        QTest::newRow("no language") << post("/api/speech/submit", multipart,
                                             "--XyZ\r\nContent-Disposition: form-data; name=\"file\"; filename=\"a\"\r\n\r\nabc\r\n--XyZ--\r\n")
                                     << 400;
        QTest::newRow("no file part") << post(submitPath, multipart,
                                              "--XyZ\r\nContent-Disposition: form-data; name=\"other\"\r\n\r\nabc\r\n--XyZ--\r\n")
                                      << 400;
        QTest::newRow("empty file") << post(submitPath, multipart,
                                            "--XyZ\r\nContent-Disposition: form-data; name=\"file\"; filename=\"a\"\r\n\r\n\r\n--XyZ--\r\n")
                                    << 400;
        QTest::newRow("wrong boundary") << post(submitPath, multipart,
                                                "--Other\r\nContent-Disposition: form-data; name=\"file\"\r\n\r\nabc\r\n--Other--\r\n")
                                        << 400;
        QTest::newRow("cut-off part") << post(submitPath, multipart, "--XyZ\r\nContent-Disposition: form-da") << 400;
        QTest::newRow("garbage") << QByteArray("HELLO THERE\r\n\r\n") << 400;
    }

    void badRequestsGetJsonErrors()
    {
        QFETCH(QByteArray, request);
        QFETCH(int, status);
        const Answer answer = raw(request);
        QCOMPARE(answer.status, status);
        QVERIFY2(answer.isJsonObject, answer.body.constData());
        QVERIFY(!answer.json.value("message").toString().isEmpty());
        // The service is still there for the next client.
        QCOMPARE(finish(m_network.get(QNetworkRequest(QUrl(m_server.url() + "/api/speech/health")))).status, 200);
    }

    void nonAudioAndTruncatedUploads()
    {
        QByteArray noise(200000, '\0');
        for (char& byte : noise) {
            byte = static_cast<char>(QRandomGenerator::global()->bounded(256));
        }
        const QString noisePath = m_work + QStringLiteral("/noise.mp3");
        QVERIFY(TestSupport::writeFile(noisePath, noise));
        const Answer garbage = recognise(m_server.url(), noisePath, QStringLiteral("en-US"));
        QCOMPARE(garbage.status, 200);
        // Random bytes either decode to nothing recognisable or fail with a reason.
        const QString state = garbage.json.value("state").toString();
        if (state == QLatin1String("failed")) {
            QVERIFY(!garbage.json.value("message").toString().isEmpty());
        } else {
            QCOMPARE(state, QStringLiteral("success"));
            checkCaptionShape(garbage.json.value("utterances").toArray());
        }

        const QString textPath = m_work + QStringLiteral("/text.mp3");
        QVERIFY(TestSupport::writeFile(textPath, QByteArray("this is not audio at all\n").repeated(100)));
        const Answer text = recognise(m_server.url(), textPath, QStringLiteral("en-US"));
        QCOMPARE(text.json.value("state").toString(), QStringLiteral("failed"));
        QVERIFY(text.json.value("message").toString().contains(QStringLiteral("no audio")));

        QFile full(m_longSpeech);
        QVERIFY(full.open(QIODevice::ReadOnly));
        const QString halfPath = m_work + QStringLiteral("/half.mp3");
        QVERIFY(TestSupport::writeFile(halfPath, full.read(full.size() / 2)));
        const Answer half = recognise(m_server.url(), halfPath, QStringLiteral("en-US"));
        QCOMPARE(half.json.value("state").toString(), QStringLiteral("success"));
        const QJsonArray utterances = half.json.value("utterances").toArray();
        QVERIFY(!utterances.isEmpty());
        checkCaptionShape(utterances);
        // Only the first half was sent.
        QVERIFY(utterances.last().toObject().value("end_time").toInt() < 13000);
    }

    void uploadSizeIsBounded()
    {
        SpeechdProcess small;
        QVERIFY(small.start({QStringLiteral("--max-upload-mb"), QStringLiteral("1")}));
        const QString big = m_work + QStringLiteral("/big.mp3");
        QVERIFY(TestSupport::writeFile(big, QByteArray(3 * 1024 * 1024, 'a')));
        const Answer answer = finish(submit(small.url(), big, QStringLiteral("en-US")));
        QCOMPARE(answer.status, 413);
        QVERIFY2(answer.isJsonObject, answer.body.constData());
        QCOMPARE(recognise(small.url(), m_speech, QStringLiteral("en-US")).json.value("state").toString(),
                 QStringLiteral("success"));
    }

    void queueLengthIsBoundedAndTasksCancel()
    {
        SpeechdProcess queued;
        QVERIFY(queued.start({QStringLiteral("--max-queue"), QStringLiteral("2")}));
        const Answer first = finish(submit(queued.url(), m_longSpeech, QStringLiteral("en-US")));
        const Answer second = finish(submit(queued.url(), m_longSpeech, QStringLiteral("en-US")));
        QCOMPARE(first.status, 200);
        QCOMPARE(second.status, 200);
        const Answer third = finish(submit(queued.url(), m_speech, QStringLiteral("en-US")));
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

        const Answer done = finish(query(queued.url(), first.json.value("task_id").toString()));
        QCOMPARE(done.json.value("state").toString(), QStringLiteral("success"));
        QCOMPARE(finish(submit(queued.url(), m_speech, QStringLiteral("en-US"))).status, 200);
    }

    void concurrentClientsGetTheSameResult()
    {
        QList<QNetworkReply*> submits;
        for (int i = 0; i < 6; ++i) {
            submits << submit(m_server.url(), m_speech, QStringLiteral("en-US"));
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

    void temporaryFilesAreRemoved()
    {
        const QString tmp = m_work + QStringLiteral("/service-tmp");
        SpeechdProcess service;
        QVERIFY(service.start({}, tmp));
        QCOMPARE(recognise(service.url(), m_speech, QStringLiteral("en-US")).json.value("state").toString(),
                 QStringLiteral("success"));
        const QString textPath = m_work + QStringLiteral("/text2.mp3");
        QVERIFY(TestSupport::writeFile(textPath, QByteArray("plain text")));
        QCOMPARE(recognise(service.url(), textPath, QStringLiteral("en-US")).json.value("state").toString(),
                 QStringLiteral("failed"));
        const QStringList folders = QDir(tmp).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        QCOMPARE(folders.size(), 1);
        QVERIFY(QDir(tmp + QLatin1Char('/') + folders.first()).entryList(QDir::Files).isEmpty());
        service.stop();
        QCOMPARE(service.process().exitCode(), 0);
        QVERIFY(QDir(tmp).entryList(QDir::Dirs | QDir::NoDotAndDotDot).isEmpty());
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
        QVERIFY(service.start({QStringLiteral("--openai-url"), QStringLiteral("http://127.0.0.1:%1").arg(fake.port()),
                               QStringLiteral("--openai-model"), QStringLiteral("tiny-test")}));
        const Answer answer = recognise(service.url(), m_speech, QStringLiteral("fr-FR"));
        QCOMPARE(answer.json.value("state").toString(), QStringLiteral("success"));
        const QJsonArray utterances = answer.json.value("utterances").toArray();
        QCOMPARE(utterances.size(), 2);
        QCOMPARE(utterances.at(0).toObject().value("text").toString(), QStringLiteral("Bonjour tout le monde."));
        QCOMPARE(utterances.at(1).toObject().value("start_time").toInt(), 2500);
        QCOMPARE(utterances.at(1).toObject().value("end_time").toInt(), 4250);

        QCOMPARE(fake.requests().size(), 1);
        QCOMPARE(fake.requests().first().method, QByteArray("POST"));
        QCOMPARE(fake.requests().first().path, QStringLiteral("/v1/audio/transcriptions"));
        const QByteArray request = fake.requests().first().body;
        QVERIFY(request.contains("name=\"response_format\"\r\n\r\nverbose_json"));
        QVERIFY(request.contains("name=\"language\"\r\n\r\nfr"));
        QVERIFY(request.contains("name=\"model\"\r\n\r\ntiny-test"));
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
        QVERIFY(unreachable.start({QStringLiteral("--openai-url"), QStringLiteral("http://127.0.0.1:1")}));
        const Answer gone = recognise(unreachable.url(), m_speech, QStringLiteral("de-DE"));
        QCOMPARE(gone.json.value("state").toString(), QStringLiteral("failed"));
        QVERIFY(gone.json.value("message").toString().contains(QStringLiteral("could not be reached")));
    }

    void cleanupTestCase() { m_server.stop(); }
};

QTEST_GUILESS_MAIN(TestSpeechd)
#include "test_speechd.moc"
