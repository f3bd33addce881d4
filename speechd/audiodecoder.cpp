#include "audiodecoder.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QString>
#include <QStringList>

const char* const AudioDecoder::kAllowedFormats
    = "wav,w64,mp3,aac,ac3,eac3,dts,truehd,mlp,loas,flac,ogg,mov,matroska,asf,avi,flv,mpegts,mpeg,"
      "aiff,caf,amr,ape,au,tta,tak,wv,mpc,mpc8,voc,rm,nut,mxf,dv,dsf,xwma";

namespace {
std::string spoken(int seconds)
{
    if (seconds % 3600 == 0) {
        return std::to_string(seconds / 3600) + (seconds == 3600 ? " hour" : " hours");
    }
    if (seconds % 60 == 0) {
        return std::to_string(seconds / 60) + " minutes";
    }
    return std::to_string(seconds) + " seconds";
}
} // namespace

AudioDecoder::AudioDecoder(std::string ffmpegPath, int timeoutSeconds, int maxSeconds)
    : m_ffmpeg(std::move(ffmpegPath))
    , m_timeoutSeconds(timeoutSeconds)
    , m_maxSeconds(maxSeconds)
{
}

bool AudioDecoder::decode(const std::string& input, const std::string& output,
                          const std::atomic<bool>* cancelled, std::string& error, std::string& detail) const
{
    QProcess process;
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.setStandardOutputFile(QProcess::nullDevice());
    // One second beyond the limit tells a longer file from one of exactly that length.
    const QStringList arguments{QStringLiteral("-nostdin"), QStringLiteral("-hide_banner"),
                                QStringLiteral("-loglevel"), QStringLiteral("error"),
                                QStringLiteral("-protocol_whitelist"), QStringLiteral("file"),
                                QStringLiteral("-format_whitelist"), QString::fromLatin1(kAllowedFormats),
                                QStringLiteral("-i"), QString::fromStdString(input),
                                QStringLiteral("-vn"), QStringLiteral("-sn"), QStringLiteral("-dn"),
                                QStringLiteral("-t"), QString::number(m_maxSeconds + 1),
                                QStringLiteral("-ac"), QStringLiteral("1"),
                                QStringLiteral("-ar"), QString::number(kSampleRate),
                                QStringLiteral("-f"), QStringLiteral("s16le"),
                                QStringLiteral("-acodec"), QStringLiteral("pcm_s16le"),
                                QStringLiteral("-y"), QString::fromStdString(output)};
    process.start(QString::fromStdString(m_ffmpeg), arguments, QIODevice::ReadOnly);
    if (!process.waitForStarted(10000)) {
        error = "The speech service could not run its audio decoder.";
        detail = m_ffmpeg + ": " + process.errorString().toStdString();
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
    if (size > static_cast<qint64>(m_maxSeconds) * kSampleRate * 2) {
        error = "The audio is longer than the speech service accepts (" + spoken(m_maxSeconds) + ").";
        return false;
    }
    // A damaged or cut-off file still decodes up to the damage: keep what came out.
    if (size >= 2) {
        return true;
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        error = "The uploaded file contains no audio that could be decoded.";
        detail = log.left(1000).toStdString();
        return false;
    }
    // A file with an empty audio stream: silence, nothing to recognise.
    return true;
}
