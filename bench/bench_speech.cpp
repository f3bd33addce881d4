// Automatic captions: recognition real-time factor of glimmer-speechd against
// pocketsphinx_continuous on the same minute of read speech, and the app's audio
// extraction against a plain ffmpeg run with the same arguments.
#include "appconfig.h"
#include "captionmanager.h"
#include "globalmanager.h"
#include "speechdprocess.h"
#include "testsupport.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QHttpMultiPart>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QStandardPaths>
#include <QTimer>

#include <cstdio>

namespace {

QByteArray wait(QNetworkReply* reply)
{
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (!reply->isFinished()) {
        loop.exec();
    }
    reply->deleteLater();
    return reply->readAll();
}

// Submit and query, as the app does; returns the number of captions.
int recognise(QNetworkAccessManager& network, const QString& base, const QString& file)
{
    auto* multiPart = new QHttpMultiPart(QHttpMultiPart::FormDataType);
    QHttpPart part;
    part.setHeader(QNetworkRequest::ContentDispositionHeader,
                   QStringLiteral("form-data; name=\"file\"; filename=\"%1\"").arg(file));
    auto* device = new QFile(file, multiPart);
    device->open(QIODevice::ReadOnly);
    part.setBodyDevice(device);
    multiPart->append(part);
    QNetworkReply* submit = network.post(QNetworkRequest(QUrl(base + "/api/speech/submit?language=en-US")), multiPart);
    multiPart->setParent(submit);
    const QString id = QJsonDocument::fromJson(wait(submit)).object().value("task_id").toString();
    const QJsonObject result = QJsonDocument::fromJson(
        wait(network.get(QNetworkRequest(QUrl(base + "/api/speech/query?task_id=" + id))))).object();
    return result.value("state").toString() == QLatin1String("success") ? result.value("utterances").toArray().size() : -1;
}

double seconds(const QElapsedTimer& clock)
{
    return clock.nsecsElapsed() / 1e9;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    CaptionManager::registerMetaTypes();
    const QString work = TestSupport::makeWorkDir(QStringLiteral("bench-speech"));
    const QString data = QStringLiteral("/usr/share/pocketsphinx/test/data/");

    // About a minute of read speech: the librivox sentences twice and the cards recordings.
    QStringList inputs;
    for (const char* id : {"0870", "0880", "0890", "0920", "0930"}) {
        inputs << data + QStringLiteral("librivox/sense_and_sensibility_01_austen_64kb-%1.wav").arg(id);
    }
    for (int i = 1; i <= 5; ++i) {
        inputs << data + QStringLiteral("cards/%1.wav").arg(i, 3, 10, QLatin1Char('0'));
    }
    inputs += inputs.mid(0, 5);
    QStringList args;
    QString filter;
    for (int i = 0; i < inputs.size(); ++i) {
        args << "-i" << inputs.at(i);
        filter += QStringLiteral("[%1:a]").arg(i);
    }
    const QString wav = work + "/speech.wav";
    args << "-filter_complex" << filter + QStringLiteral("concat=n=%1:v=0:a=1").arg(inputs.size()) << "-fflags"
         << "+bitexact" << "-flags:a" << "+bitexact" << "-map_metadata" << "-1" << "-c:a" << "pcm_s16le" << wav;
    if (TestSupport::ffmpeg(args) != 0) {
        std::fprintf(stderr, "cannot build the speech sample\n");
        return 1;
    }
    const double audioSeconds = (QFileInfo(wav).size() - 44) / 32000.0;
    std::printf("speech sample: %.1f s of read speech\n", audioSeconds);

    SpeechdProcess server;
    if (!server.start()) {
        std::fprintf(stderr, "cannot start glimmer-speechd\n");
        return 1;
    }
    QNetworkAccessManager network;
    recognise(network, server.url(), data + "cards/001.wav"); // connection and page cache warm

    // Alternate the two, best of three each, so that both see the same machine load.
    double bestService = 1e9;
    double bestReference = 1e9;
    int captions = 0;
    for (int round = 0; round < 3; ++round) {
        QElapsedTimer clock;
        clock.start();
        captions = recognise(network, server.url(), wav);
        bestService = qMin(bestService, seconds(clock));
        clock.restart();
        QByteArray output;
        TestSupport::run("pocketsphinx_continuous", {"-infile", wav, "-time", "yes", "-logfn", "/dev/null"}, 600000, &output);
        bestReference = qMin(bestReference, seconds(clock));
    }
    std::printf("recognition: glimmer-speechd %.2f s (RTF %.3f, %d captions), pocketsphinx_continuous %.2f s (RTF %.3f)\n",
                bestService, bestService / audioSeconds, captions, bestReference, bestReference / audioSeconds);
    std::printf("recognition ratio service/reference: %.3f (overhead %.1f %%)\n", bestService / bestReference,
                (bestService / bestReference - 1.0) * 100.0);
    server.stop();

    // Extraction: the app's runner against ffmpeg alone with the same arguments.
    const QString video = work + "/speech.mp4";
    if (TestSupport::ffmpeg({"-f", "lavfi", "-i", "testsrc2=size=1280x720:rate=25", "-i", wav, "-shortest", "-c:v",
                             "libx264", "-preset", "ultrafast", "-c:a", "aac", video})
        != 0) {
        return 1;
    }
    GlobalManager* global = GlobalManager::instance();
    global->setCurrentFile(QFileInfo(video));
    CaptionManager::instance()->setCurrentLangItem(7);
    double bestApp = 1e9;
    double bestPlain = 1e9;
    for (int round = 0; round < 3; ++round) {
        QEventLoop loop;
        QObject::connect(global, &GlobalManager::globalEvent, &loop, [&loop](const QString& name, const QVariant&) {
            if (name == AppConfig::VIDEO_TO_AUDIO_STOP) {
                loop.quit();
            }
        });
        QElapsedTimer clock;
        clock.start();
        global->videoToAudio(video);
        loop.exec();
        bestApp = qMin(bestApp, seconds(clock));
        clock.restart();
        TestSupport::run("ffmpeg", {"-i", video, "-vn", "-ar", "16000", "-ac", "1", "-format", "wav", "-y",
                                    work + "/plain.mp3"});
        bestPlain = qMin(bestPlain, seconds(clock));
    }
    // The runner holds its stop signal back 1 s so that late output arrives first.
    std::printf("extraction of %.0f s: videoToAudio %.2f s (%.2f s without the runner's 1 s settling pause), plain ffmpeg %.2f s\n",
                audioSeconds, bestApp, bestApp - 1.0, bestPlain);
    std::printf("extraction ratio app/ffmpeg: %.3f (without the pause %.3f)\n", bestApp / bestPlain,
                (bestApp - 1.0) / bestPlain);
    return 0;
}
