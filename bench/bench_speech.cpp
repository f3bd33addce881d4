// Automatic captions on real read speech: the recordings of pocketsphinx-testdata
// with their transcripts, joined with known silences into about a minute.
// Printed in one run, each against pocketsphinx_continuous on the same audio:
// word error rate and time of the engine's own tool, of glimmer-speechd, and of
// the app's whole road (extraction from a video, then the service); caption
// timing against each recording's onset; sentence ends; memory per decoder;
// how fast a cancel acts.
//   bench_speech             all of the above
//   bench_speech extraction  word error rate and size of the extracted audio per encoder setting
#include "appconfig.h"
#include "captionmanager.h"
#include "captionsegmenter.h"
#include "globalmanager.h"
#include "speechdprocess.h"
#include "sphinxrecognizer.h"
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
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTimer>
#include <QtEndian>

#include <cmath>
#include <cstdio>

namespace {

const QString kData = QStringLiteral("/usr/share/pocketsphinx/test/data/");
constexpr int kGapMs = 1600; // silence before every recording

struct Clip {
    QString path;
    QString transcript;
    qint64 offsetMs = 0; // where it starts in the joined audio
    qint64 onsetMs = 0;  // its first word, from its own leading silence
    qint64 endMs = 0;
};

QStringList words(const QString& text)
{
    QString lower = text.toLower();
    lower.replace(QRegularExpression(QStringLiteral("[^a-z' ]")), QStringLiteral(" "));
    return lower.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

// Word error rate in percent: edits over reference words.
double wer(const QStringList& reference, const QStringList& hypothesis)
{
    QVector<int> row(hypothesis.size() + 1);
    for (int j = 0; j <= hypothesis.size(); ++j) {
        row[j] = j;
    }
    for (int i = 1; i <= reference.size(); ++i) {
        int diagonal = row[0];
        row[0] = i;
        for (int j = 1; j <= hypothesis.size(); ++j) {
            const int above = row[j];
            row[j] = qMin(qMin(row[j] + 1, row[j - 1] + 1), diagonal + (reference[i - 1] == hypothesis[j - 1] ? 0 : 1));
            diagonal = above;
        }
    }
    return 100.0 * row[hypothesis.size()] / qMax(1, reference.size());
}

QByteArray pcmOf(const QString& path)
{
    QByteArray pcm;
    const QStringList input = path.endsWith(QLatin1String(".raw"))
                                  ? QStringList{"-f", "s16le", "-ar", "16000", "-ac", "1", "-i", path}
                                  : QStringList{"-i", path};
    TestSupport::run(QStringLiteral("ffmpeg"),
                     QStringList{"-hide_banner", "-loglevel", "error"} + input
                         + QStringList{"-ar", "16000", "-ac", "1", "-f", "s16le", "-"},
                     120000, &pcm);
    return pcm;
}

// The first 10 ms frame within 25 dB of the loudest one.
qint64 onsetMs(const QByteArray& pcm)
{
    const auto* samples = reinterpret_cast<const qint16*>(pcm.constData());
    const int frames = pcm.size() / 2 / 160;
    QVector<double> energy(frames);
    double loudest = 0;
    for (int f = 0; f < frames; ++f) {
        double sum = 0;
        for (int i = 0; i < 160; ++i) {
            sum += double(samples[f * 160 + i]) * samples[f * 160 + i];
        }
        energy[f] = 10 * std::log10(sum / 160 + 1);
        loudest = qMax(loudest, energy[f]);
    }
    for (int f = 0; f < frames; ++f) {
        if (energy[f] > loudest - 25) {
            return f * 10;
        }
    }
    return 0;
}

QByteArray wavHeader(int dataBytes)
{
    QByteArray header("RIFF....WAVEfmt ");
    qToLittleEndian<quint32>(36 + dataBytes, header.data() + 4);
    QByteArray fmt(20, '\0');
    qToLittleEndian<quint32>(16, fmt.data());
    qToLittleEndian<quint16>(1, fmt.data() + 4);
    qToLittleEndian<quint16>(1, fmt.data() + 6);
    qToLittleEndian<quint32>(16000, fmt.data() + 8);
    qToLittleEndian<quint32>(32000, fmt.data() + 12);
    qToLittleEndian<quint16>(2, fmt.data() + 16);
    qToLittleEndian<quint16>(16, fmt.data() + 18);
    QByteArray data("data....");
    qToLittleEndian<quint32>(dataBytes, data.data() + 4);
    return header + fmt + data;
}

// The recordings with their transcripts, joined: writes the WAV and the raw samples.
QList<Clip> buildCorpus(const QString& wav, const QString& pcmPath)
{
    QList<Clip> clips;
    const auto transcripts = [](const QString& file) {
        QFile in(file);
        in.open(QIODevice::ReadOnly);
        QList<QPair<QString, QString>> lines;
        for (const QByteArray& line : in.readAll().split('\n')) {
            const QRegularExpressionMatch match =
                QRegularExpression(QStringLiteral("^<s>(.*)</s> \\((.*)\\)")).match(QString::fromUtf8(line));
            if (match.hasMatch()) {
                lines.append({match.captured(2), match.captured(1).simplified()});
            }
        }
        return lines;
    };
    for (const auto& line : transcripts(kData + "librivox/transcription")) {
        clips.append({kData + "librivox/" + line.first + ".wav", line.second});
    }
    for (const auto& line : transcripts(kData + "cards/cards.transcription")) {
        clips.append({kData + "cards/" + line.first + ".wav", line.second});
    }
    clips.append({kData + "goforward.raw", QStringLiteral("go forward ten meters")});
    clips.append({kData + "something.raw", QStringLiteral("go somewhere and do something")});

    QByteArray joined;
    for (Clip& clip : clips) {
        const QByteArray pcm = pcmOf(clip.path);
        joined += QByteArray(kGapMs * 32, '\0');
        clip.offsetMs = joined.size() / 32;
        clip.onsetMs = clip.offsetMs + onsetMs(pcm);
        joined += pcm;
        clip.endMs = joined.size() / 32;
    }
    joined += QByteArray(kGapMs * 32, '\0');
    TestSupport::writeFile(wav, wavHeader(joined.size()) + joined);
    TestSupport::writeFile(pcmPath, joined);
    return clips;
}

QString reference(const QList<Clip>& clips)
{
    QStringList all;
    for (const Clip& clip : clips) {
        all << clip.transcript;
    }
    return all.join(QLatin1Char(' '));
}

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

QString submit(QNetworkAccessManager& network, const QString& base, const QString& file)
{
    auto* multiPart = new QHttpMultiPart(QHttpMultiPart::FormDataType);
    QHttpPart part;
    part.setHeader(QNetworkRequest::ContentDispositionHeader, QStringLiteral("form-data; name=\"file\"; filename=\"a\""));
    auto* device = new QFile(file, multiPart);
    device->open(QIODevice::ReadOnly);
    part.setBodyDevice(device);
    multiPart->append(part);
    QNetworkReply* reply = network.post(QNetworkRequest(QUrl(base + "/api/speech/submit?language=en-US")), multiPart);
    multiPart->setParent(reply);
    return QJsonDocument::fromJson(wait(reply)).object().value("task_id").toString();
}

// Submit and query, as the app does; the captions, or an empty array.
QJsonArray recognise(QNetworkAccessManager& network, const QString& base, const QString& file)
{
    const QString id = submit(network, base, file);
    const QJsonObject result = QJsonDocument::fromJson(
        wait(network.get(QNetworkRequest(QUrl(base + "/api/speech/query?task_id=" + id))))).object();
    return result.value("utterances").toArray();
}

QString textOf(const QJsonArray& captions)
{
    QStringList texts;
    for (const QJsonValue& caption : captions) {
        texts << caption.toObject().value("text").toString();
    }
    return texts.join(QLatin1Char(' '));
}

double seconds(const QElapsedTimer& clock)
{
    return clock.nsecsElapsed() / 1e9;
}

// pocketsphinx_continuous on the WAV: its transcript, and the wall time.
QString pocketsphinx(const QString& wav, const QStringList& extra, double* wall)
{
    QElapsedTimer clock;
    clock.start();
    QByteArray output;
    TestSupport::run(QStringLiteral("pocketsphinx_continuous"),
                     QStringList{"-infile", wav, "-logfn", "/dev/null"} + extra, 600000, &output);
    *wall = seconds(clock);
    return QString::fromUtf8(output).simplified();
}

qint64 peakMemoryKb(qint64 pid)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(pid));
    status.open(QIODevice::ReadOnly);
    const QRegularExpressionMatch match =
        QRegularExpression(QStringLiteral("VmHWM:\\s+(\\d+)")).match(QString::fromLatin1(status.readAll()));
    return match.captured(1).toLongLong();
}

// The app's extraction of the video's sound track, as Auto captions runs it.
QString extract(const QString& video, double* wall)
{
    GlobalManager* global = GlobalManager::instance();
    global->setCurrentFile(QFileInfo(video));
    CaptionManager::instance()->setCurrentLangItem(7);
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
    *wall = seconds(clock);
    return CaptionManager::instance()->getAudioFilePath();
}

// Word error rate and size of the extracted audio for a few encoder settings.
int extractionTable(const QString& work, const QString& video, const QString& ref, const QString& base)
{
    QNetworkAccessManager network;
    std::printf("%-34s %10s %8s\n", "extraction setting", "bytes", "WER %");
    const QList<QPair<QString, QStringList>> settings{
        {"MP3, encoder default (24 kbit/s)", {}},
        {"MP3 -b:a 32k", {"-b:a", "32k"}},
        {"MP3 -b:a 48k", {"-b:a", "48k"}},
        {"MP3 -b:a 64k", {"-b:a", "64k"}},
        {"MP3 -b:a 96k", {"-b:a", "96k"}},
        {"WAV (lossless)", {"-c:a", "pcm_s16le", "-f", "wav"}},
    };
    for (const auto& setting : settings) {
        const QString out = work + "/setting.mp3";
        TestSupport::ffmpeg(QStringList{"-i", video, "-vn", "-ar", "16000", "-ac", "1", "-format", "wav"} + setting.second
                            + QStringList{"-y", out});
        const QString text = textOf(recognise(network, base, out));
        std::printf("%-34s %10lld %8.1f\n", qPrintable(setting.first), QFileInfo(out).size(), wer(words(ref), words(text)));
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // each figure as soon as it is measured
    QStandardPaths::setTestModeEnabled(true);
    CaptionManager::registerMetaTypes();
    const QString work = TestSupport::makeWorkDir(QStringLiteral("bench-speech"));
    const QString wav = work + "/speech.wav";
    const QString pcm = work + "/speech.pcm";
    const QList<Clip> clips = buildCorpus(wav, pcm);
    const QString ref = reference(clips);
    const double audioSeconds = QFileInfo(pcm).size() / 32000.0;
    std::printf("real read speech: %d recordings of pocketsphinx-testdata, %lld words, %.1f s joined with %d ms silences\n",
                int(clips.size()), qint64(words(ref).size()), audioSeconds, kGapMs);

    // A video as users have them: H.264 at x264's defaults and a 128 kbit/s AAC track.
    const QString video = work + "/speech.mp4";
    if (TestSupport::ffmpeg({"-f", "lavfi", "-i", "testsrc2=size=1280x720:rate=25", "-i", wav, "-shortest", "-c:v",
                             "libx264", "-preset", "veryfast", "-c:a", "aac", "-b:a", "128k", "-ar", "48000", "-ac",
                             "2", video},
                            600000)
        != 0) {
        return 1;
    }
    SpeechdProcess server;
    if (!server.start()) {
        std::fprintf(stderr, "cannot start glimmer-speechd\n");
        return 1;
    }
    if (argc > 1 && QByteArray(argv[1]) == "extraction") {
        return extractionTable(work, video, ref, server.url());
    }
    QNetworkAccessManager network;
    recognise(network, server.url(), kData + "cards/001.wav"); // connection and page cache warm

    // Alternating, best of three each, so that both see the same machine load.
    double bestService = 1e9;
    double bestReference = 1e9;
    QString serviceText;
    QString referenceText;
    QJsonArray captions;
    for (int round = 0; round < 3; ++round) {
        QElapsedTimer clock;
        clock.start();
        captions = recognise(network, server.url(), wav);
        bestService = qMin(bestService, seconds(clock));
        serviceText = textOf(captions);
        double wall = 0;
        referenceText = pocketsphinx(wav, {}, &wall);
        bestReference = qMin(bestReference, wall);
    }
    const double referenceWer = wer(words(ref), words(referenceText));
    const double serviceWer = wer(words(ref), words(serviceText));
    std::printf("pocketsphinx_continuous, default settings, original audio: WER %.1f %%, %.2f s (RTF %.3f)\n",
                referenceWer, bestReference, bestReference / audioSeconds);
    std::printf("glimmer-speechd, original audio:                          WER %.1f %%, %.2f s (RTF %.3f)\n",
                serviceWer, bestService, bestService / audioSeconds);
    double wall = 0;
    const QString tuned = pocketsphinx(wav, [] {
        QStringList args;
        for (const auto& arg : SphinxRecognizer::tunedArgs()) {
            args << QString::fromStdString(arg.first) << QString::fromStdString(arg.second);
        }
        return args;
    }(), &wall);
    std::printf("pocketsphinx_continuous with the service's settings:      WER %.1f %%, %.2f s\n",
                wer(words(ref), words(tuned)), wall);

    double extraction = 0;
    const QString audio = extract(video, &extraction);
    QElapsedTimer clock;
    clock.start();
    const QString appText = textOf(recognise(network, server.url(), audio));
    const double appWall = seconds(clock);
    const double appWer = wer(words(ref), words(appText));
    std::printf("the app's road (extraction %.2f s, %lld bytes; recognition):  WER %.1f %%, %.2f s\n", extraction,
                QFileInfo(audio).size(), appWer, appWall);
    std::printf("ratio service/pocketsphinx_continuous wall time: %.3f (target at most 0.6)\n", bestService / bestReference);
    std::printf("WER points: app road - service on the original %+.1f (target at most +2); "
                "app road - pocketsphinx_continuous default %+.1f (target below 0)\n",
                appWer - serviceWer, appWer - referenceWer);

    // Timing: each recording's first caption against the recording's own onset.
    int within = 0;
    qint64 worst = 0;
    double total = 0;
    int found = 0;
    int stops = 0;
    int falseStops = 0;
    for (const Clip& clip : clips) {
        bool first = true;
        QString last;
        for (const QJsonValue& value : captions) {
            const QJsonObject caption = value.toObject();
            const qint64 start = caption.value("start_time").toInt();
            if (start < clip.offsetMs - kGapMs / 2 || start >= clip.endMs) {
                continue;
            }
            if (first) {
                const qint64 error = start - clip.onsetMs;
                worst = qMax(worst, qAbs(error));
                total += qAbs(error);
                within += qAbs(error) <= 150 ? 1 : 0;
                ++found;
                first = false;
            } else {
                falseStops += last.endsWith(QLatin1Char('.')) ? 1 : 0;
            }
            last = caption.value("text").toString();
        }
        stops += last.endsWith(QLatin1Char('.')) ? 1 : 0;
    }
    std::printf("caption start vs onset of the first word: %d of %d recordings within 150 ms, mean %.0f ms, worst %lld ms\n",
                within, found, total / qMax(1, found), worst);
    std::printf("sentence ends: %d of %d recordings end in a full stop; %d full stops inside a recording\n", stops,
                int(clips.size()), falseStops);

    // The pause that ends a sentence, from the data: full stops per threshold.
    RecognitionJob job;
    job.pcmPath = pcm.toStdString();
    std::vector<Word> recognised;
    std::string error;
    SphinxRecognizer recognizer;
    recognizer.recognizeWords(job, recognised, error);
    std::printf("sentence pause  full stops at recording ends  full stops inside\n");
    for (int pause : {300, 400, 500, 600, 700, 800, 1000}) {
        CaptionSegmenter::Limits limits;
        limits.sentencePauseMs = pause;
        const std::vector<Utterance> segmented = CaptionSegmenter::segment(recognised, limits);
        int atEnds = 0;
        int inside = 0;
        for (const Clip& clip : clips) {
            for (size_t i = 0; i < segmented.size(); ++i) {
                const Utterance& caption = segmented[i];
                if (caption.startMs < clip.offsetMs - kGapMs / 2 || caption.startMs >= clip.endMs
                    || caption.text.back() != '.') {
                    continue;
                }
                const bool lastInClip = i + 1 == segmented.size() || segmented[i + 1].startMs >= clip.endMs;
                (lastInClip ? atEnds : inside) += 1;
            }
        }
        std::printf("%10d ms  %14d of %-12d %6d\n", pause, atEnds, int(clips.size()), inside);
    }

    // Memory: the service's peak with one decoder and with two.
    qint64 peaks[2] = {0, 0};
    for (int decoders = 1; decoders <= 2; ++decoders) {
        SpeechdProcess alone;
        alone.start({"--decoders", QString::number(decoders)});
        recognise(network, alone.url(), wav);
        peaks[decoders - 1] = peakMemoryKb(alone.process().processId());
    }
    std::printf("service peak memory: %lld MB with one decoder, %lld MB with two: %lld MB a decoder\n", peaks[0] / 1024,
                peaks[1] / 1024, (peaks[1] - peaks[0]) / 1024);

    // Cancel: how long after the request the waiting query learns of it.
    const QString id = submit(network, server.url(), wav);
    QEventLoop pause;
    QTimer::singleShot(1000, &pause, &QEventLoop::quit);
    pause.exec();
    QNetworkReply* query = network.get(QNetworkRequest(QUrl(server.url() + "/api/speech/query?task_id=" + id)));
    QElapsedTimer cancelClock;
    cancelClock.start();
    wait(network.post(QNetworkRequest(QUrl(server.url() + "/api/speech/cancel?task_id=" + id)), QByteArray()));
    const QString state = QJsonDocument::fromJson(wait(query)).object().value("message").toString();
    std::printf("cancel acted after %.0f ms (%s)\n", cancelClock.nsecsElapsed() / 1e6, qPrintable(state));
    return 0;
}
