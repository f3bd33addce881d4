// Automatic captions end to end: a video with read speech, the app's audio
// extraction, the bundled glimmer-speechd started on demand and the result
// query. pocketsphinx_continuous with the service's settings on the same audio
// is the oracle for the words and their times.
#include "appconfig.h"
#include "captionmanager.h"
#include "globalmanager.h"
#include "httpmanager.h"
#include "processthread.h"
#include "speechdprocess.h"
#include "speechservice.h"
#include "sphinxrecognizer.h"
#include "testsupport.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

namespace {

struct RefWord {
    QString text;
    int startMs;
    int endMs;
};
} // namespace

using TestSupport::hasEvent;

class TestSpeechEndToEnd : public QObject
{
    Q_OBJECT

private:
    QString m_work;
    QString m_video;
    QByteArray m_reply;
    QList<RefWord> m_reference;

    // Words with times from pocketsphinx_continuous, fillers and variant marks removed.
    static QList<RefWord> referenceWords(const QString& wav)
    {
        QStringList arguments{"-infile", wav, "-time", "yes", "-logfn", "/dev/null"};
        for (const auto& setting : SphinxRecognizer::tunedArgs()) {
            arguments << QString::fromStdString(setting.first) << QString::fromStdString(setting.second);
        }
        QProcess process;
        process.start(QStringLiteral("pocketsphinx_continuous"), arguments);
        process.waitForFinished(120000);
        const QByteArray output = process.readAllStandardOutput();
        QList<RefWord> words;
        for (const QByteArray& line : output.split('\n')) {
            const QList<QByteArray> fields = line.trimmed().split(' ');
            bool startOk = false;
            bool endOk = false;
            if (fields.size() != 4) {
                continue;
            }
            const double start = fields.at(1).toDouble(&startOk);
            const double end = fields.at(2).toDouble(&endOk);
            QString token = QString::fromUtf8(fields.at(0));
            if (!startOk || !endOk || token.startsWith('<') || token.startsWith('[') || token.startsWith('+')) {
                continue;
            }
            token.remove(QRegularExpression(QStringLiteral("\\(\\d+\\)$")));
            words.append({token, qRound(start * 1000), qRound(end * 1000)});
        }
        return words;
    }

private slots:
    void initTestCase()
    {
        TestSupport::isolate();
        m_work = TestSupport::makeWorkDir(QStringLiteral("speech-e2e"));
        using TestSupport::librivox;
        const QString speech = m_work + QStringLiteral("/speech.wav");
        // Three read sentences with pauses between them.
        QCOMPARE(TestSupport::ffmpeg({"-i", librivox("0870"), "-f", "lavfi", "-t", "1.5", "-i",
                                      "anullsrc=r=16000:cl=mono", "-i", librivox("0890"), "-i", librivox("0920"),
                                      "-filter_complex", "[0:a][1:a][2:a][3:a]concat=n=4:v=0:a=1", speech}),
                 0);
        m_video = m_work + QStringLiteral("/read speech.mp4");
        QCOMPARE(TestSupport::ffmpeg({"-f", "lavfi", "-i", "testsrc2=size=320x240:rate=25", "-i", speech,
                                      "-shortest", "-c:v", "libx264", "-preset", "ultrafast", "-c:a", "aac",
                                      "-b:a", "128k", m_video}),
                 0);

        // The app's own way: extraction, then the bundled service started on demand.
        GlobalManager* global = GlobalManager::instance();
        global->setCurrentFile(QFileInfo(m_video));
        CaptionManager::instance()->setCurrentLangItem(7);
        QCOMPARE(CaptionManager::instance()->getCurrentLangItem()->code, QStringLiteral("en-US"));
        const QString url = QStringLiteral("http://127.0.0.1:%1").arg(TestSupport::freePort());
        SpeechService::instance()->setManagedBaseUrl(url);
        SpeechService::instance()->setProgram(SpeechdProcess::program());
        global->saveSettings(AppConfig::SPEECH_SERVER_URL, url);

        QSignalSpy events(global, &GlobalManager::globalEvent);
        global->videoToAudio(m_video);
        QTRY_VERIFY_WITH_TIMEOUT(hasEvent(events, AppConfig::VIDEO_TO_AUDIO_STOP), 60000);
        QVERIFY(hasEvent(events, AppConfig::VIDEO_TO_AUDIO_START));
        const QString audio = CaptionManager::instance()->getAudioFilePath();
        QVERIFY(audio.endsWith(QStringLiteral("/read speech-en-US.mp3")));
        QFile audioFile(audio);
        QVERIFY(audioFile.open(QIODevice::ReadOnly));
        QCOMPARE(audioFile.read(3), QByteArray("ID3")); // "-format wav" leaves it an MP3

        events.clear();
        HttpManager::instance()->loadCaptions(audio, CaptionManager::instance()->getCurrentLangItem()->code);
        QTRY_VERIFY_WITH_TIMEOUT(hasEvent(events, AppConfig::TASK_ID), 120000);
        m_reply = TestSupport::eventValues(events, AppConfig::TASK_ID).last().toByteArray();

        // The oracle decodes the very same MP3.
        const QString wav = m_work + QStringLiteral("/reference.wav");
        QCOMPARE(TestSupport::ffmpeg({"-i", audio, "-fflags", "+bitexact", "-flags:a", "+bitexact", "-map_metadata",
                                      "-1", "-ac", "1", "-ar", "16000", "-c:a", "pcm_s16le", wav}),
                 0);
        m_reference = referenceWords(wav);
        QVERIFY(m_reference.size() >= 20);
    }

    void captionsMatchTheReferenceDecoder()
    {
        const QJsonObject result = QJsonDocument::fromJson(m_reply).object();
        QCOMPARE(result.value("state").toString(), QStringLiteral("success"));
        const QJsonArray utterances = result.value("utterances").toArray();
        QVERIFY(utterances.size() >= 3);

        int word = 0;
        int previousEnd = -1;
        bool sentenceEnded = false;
        int fullStops = 0;
        for (int i = 0; i < utterances.size(); ++i) {
            const QJsonObject utterance = utterances.at(i).toObject();
            const int start = utterance.value("start_time").toInt();
            const int end = utterance.value("end_time").toInt();
            const QString text = utterance.value("text").toString();
            const QStringList words = QString(text).replace(QLatin1Char('\n'), QLatin1Char(' ')).split(QLatin1Char(' '));
            // Readable: at most two lines of 42, 1 to 7 s unless the next one starts sooner, no overlap.
            QVERIFY2(text.count(QLatin1Char('\n')) <= 1, qPrintable(text));
            for (const QString& line : text.split(QLatin1Char('\n'))) {
                QVERIFY2(line.size() <= 42, qPrintable(line));
            }
            const int next = i + 1 < utterances.size() ? utterances.at(i + 1).toObject().value("start_time").toInt() : -1;
            QVERIFY2(end - start <= 7000 && (end - start >= 1000 || end == next), qPrintable(text));
            QVERIFY(start >= previousEnd && (next < 0 || end <= next));
            QVERIFY(word + words.size() <= m_reference.size());
            for (int k = 0; k < words.size(); ++k) {
                // Letters are words of the dictionary too ("s."): compare without full stops.
                QCOMPARE(words.at(k).toLower().remove(QLatin1Char('.')),
                         QString(m_reference.at(word + k).text).remove(QLatin1Char('.')));
            }
            // A sentence starts with a capital; the one before the pause ends with a full stop.
            QVERIFY2(!(word == 0 || sentenceEnded) || text.at(0).isUpper(), qPrintable(text));
            sentenceEnded = text.endsWith(QLatin1Char('.'));
            fullStops += sentenceEnded ? 1 : 0;
            QVERIFY2(qAbs(start - m_reference.at(word).startMs) <= 50, qPrintable(QString::number(start)));
            QVERIFY2(end >= m_reference.at(word + words.size() - 1).endMs - 50, qPrintable(QString::number(end)));
            word += words.size();
            previousEnd = end;
        }
        QCOMPARE(word, m_reference.size());
        // At least at the pause between the recordings and at the end.
        QVERIFY(sentenceEnded && fullStops >= 2);
    }

    void commandLineWritesTheSameCaptions()
    {
        // glimmer-cli --transcribe: the same extraction and service, captions as SRT.
        const QString out = m_work + QStringLiteral("/captions.srt");
        QProcess cli;
        cli.start(QStringLiteral(GLIMMER_BINARY_DIR "/glimmer-cli"), {m_video, "--transcribe", "-o", out});
        QVERIFY(cli.waitForFinished(180000));
        QVERIFY2(cli.exitCode() == 0, cli.readAllStandardError().constData());
        QFile srt(out);
        QVERIFY(srt.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(srt.readAll());
        const QJsonArray utterances = QJsonDocument::fromJson(m_reply).object().value("utterances").toArray();
        QCOMPARE(text.count(QStringLiteral(" --> ")), utterances.size());
        QVERIFY2(text.contains(utterances.first().toObject().value("text").toString()), qPrintable(text));
    }

    void missingFfmpegStillEndsTheExtraction()
    {
        // With no ffmpeg the extraction ends at once and the upload reports the missing audio.
        qputenv("PATH", "/nonexistent");
        QSignalSpy events(GlobalManager::instance(), &GlobalManager::globalEvent);
        GlobalManager::instance()->videoToAudio(m_video);
        QTRY_VERIFY_WITH_TIMEOUT(hasEvent(events, AppConfig::VIDEO_TO_AUDIO_STOP), 10000);
        QVERIFY(!QFile::exists(CaptionManager::instance()->getAudioFilePath()));
    }

    void cleanupTestCase() { SpeechService::instance()->stop(); }
};

QTEST_GUILESS_MAIN(TestSpeechEndToEnd)
#include "test_speech_e2e.moc"
