#include "audiodecoder.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QString>
#include <QStringList>

AudioDecoder::AudioDecoder(std::string ffmpegPath, int timeoutSeconds)
    : m_ffmpeg(std::move(ffmpegPath))
    , m_timeoutSeconds(timeoutSeconds)
{
}

bool AudioDecoder::decode(const std::string& input, const std::string& output,
                          const std::atomic<bool>* cancelled, std::string& error) const
{
    QProcess process;
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.setStandardOutputFile(QProcess::nullDevice());
    const QStringList arguments{QStringLiteral("-nostdin"), QStringLiteral("-hide_banner"),
                                QStringLiteral("-loglevel"), QStringLiteral("error"),
                                QStringLiteral("-i"), QString::fromStdString(input),
                                QStringLiteral("-vn"), QStringLiteral("-sn"), QStringLiteral("-dn"),
                                QStringLiteral("-ac"), QStringLiteral("1"),
                                QStringLiteral("-ar"), QString::number(kSampleRate),
                                QStringLiteral("-f"), QStringLiteral("s16le"),
                                QStringLiteral("-acodec"), QStringLiteral("pcm_s16le"),
                                QStringLiteral("-y"), QString::fromStdString(output)};
    process.start(QString::fromStdString(m_ffmpeg), arguments, QIODevice::ReadOnly);
    if (!process.waitForStarted(10000)) {
        error = "The speech service could not run ffmpeg (" + m_ffmpeg + ").";
        return false;
    }
    process.closeWriteChannel();

    // Poll so that a cancelled task does not wait for a long decode.
    QElapsedTimer clock;
    clock.start();
    while (!process.waitForFinished(200)) {
        if (process.state() == QProcess::NotRunning) {
            break;
        }
        if ((cancelled && cancelled->load()) || clock.elapsed() > m_timeoutSeconds * 1000LL) {
            process.kill();
            process.waitForFinished(5000);
            error = (cancelled && cancelled->load()) ? "The recognition was cancelled."
                                                     : "Decoding the uploaded audio took too long.";
            return false;
        }
    }

    const QByteArray log = process.readAllStandardError().trimmed();
    const qint64 size = QFileInfo(QString::fromStdString(output)).size();
    // A damaged or cut-off file still decodes up to the damage: keep what came out.
    if (size >= 2) {
        return true;
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        error = "The uploaded file contains no audio that could be decoded";
        if (!log.isEmpty()) {
            error += ": " + log.left(300).toStdString();
        }
        error += ".";
        return false;
    }
    // A file with an empty audio stream: silence, nothing to recognise.
    return true;
}
