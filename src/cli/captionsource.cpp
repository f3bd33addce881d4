#include "captionsource.h"

#include "captioninfo.h"
#include "captionmanager.h"
#include "captionoverlay.h"
#include "filemanager.h"
#include "globalmanager.h"

#include <QFileInfo>
#include <QProcess>
#include <QSet>

namespace {
// Reading a long film's subtitle stream means reading the whole file.
constexpr int kExtractLimitMs = 10 * 60 * 1000;

// Runs a tool to its end; its standard output, or empty with the reason in *error.
QByteArray runTool(const QString& program, const QStringList& arguments, QString* error)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForStarted(10000)) {
        *error = QStringLiteral("%1 could not be started: %2").arg(QFileInfo(program).fileName(), process.errorString());
        return QByteArray();
    }
    process.closeWriteChannel();
    if (!process.waitForFinished(kExtractLimitMs)) {
        process.kill();
        process.waitForFinished(2000);
        *error = QStringLiteral("%1 did not finish in time").arg(QFileInfo(program).fileName());
        return QByteArray();
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        const QList<QByteArray> lines = process.readAllStandardError().trimmed().split('\n');
        *error = QString::fromLocal8Bit(lines.constLast().trimmed());
        if (error->isEmpty()) {
            *error = QStringLiteral("%1 failed").arg(QFileInfo(program).fileName());
        }
        return QByteArray();
    }
    return process.readAllStandardOutput();
}

// Subtitle codecs that are pictures, not text: nothing to render them from.
bool isPictureCodec(const QString& codec)
{
    static const QSet<QString> pictures{QStringLiteral("hdmv_pgs_subtitle"), QStringLiteral("dvd_subtitle"),
                                        QStringLiteral("dvb_subtitle"), QStringLiteral("xsub"),
                                        QStringLiteral("dvb_teletext"), QStringLiteral("arib_caption")};
    return pictures.contains(codec);
}
} // namespace

QString CaptionSource::extractTrack(const QString& video, const QString& workDir, QString* error)
{
    const QString name = QFileInfo(video).fileName();
    QString reason;
    const QByteArray probe = runTool(FileManager::instance()->findTool(QStringLiteral("ffprobe")),
                                     {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-select_streams"),
                                      QStringLiteral("s:0"), QStringLiteral("-show_entries"),
                                      QStringLiteral("stream=codec_name"), QStringLiteral("-of"),
                                      QStringLiteral("default=noprint_wrappers=1:nokey=1"), video},
                                     &reason);
    if (!reason.isEmpty()) {
        *error = QStringLiteral("cannot read video %1: %2").arg(name, reason);
        return QString();
    }
    const QString codec = QString::fromUtf8(probe).trimmed().section(QLatin1Char('\n'), 0, 0).trimmed();
    if (codec.isEmpty()) {
        *error = QStringLiteral("%1 has no subtitle track: give one with --subtitles FILE").arg(name);
        return QString();
    }
    if (isPictureCodec(codec)) {
        *error = QStringLiteral("the subtitle track of %1 holds pictures (%2), not text: give subtitles with "
                                "--subtitles FILE")
                     .arg(name, codec);
        return QString();
    }
    // Styled tracks keep their styles; plain text goes the way of a user's SRT.
    const bool styled = codec == QLatin1String("ass") || codec == QLatin1String("ssa");
    const QString output = QStringLiteral("%1/%2.%3")
                               .arg(workDir, QFileInfo(video).completeBaseName(),
                                    styled ? QStringLiteral("ass") : QStringLiteral("srt"));
    runTool(FileManager::instance()->findTool(QStringLiteral("ffmpeg")),
            {QStringLiteral("-hide_banner"), QStringLiteral("-loglevel"), QStringLiteral("error"), QStringLiteral("-y"),
             QStringLiteral("-i"), video, QStringLiteral("-map"), QStringLiteral("0:s:0"), QStringLiteral("-c:s"),
             styled ? QStringLiteral("ass") : QStringLiteral("srt"), output},
            &reason);
    if (!reason.isEmpty() || !QFileInfo(output).isFile()) {
        *error = QStringLiteral("the subtitle track of %1 (%2) could not be read: %3").arg(name, codec, reason);
        return QString();
    }
    return output;
}

QString CaptionSource::load(const QString& video, const QString& subtitles, const QString& workDir, QString* error)
{
    QString source = subtitles;
    if (source.isEmpty()) {
        source = extractTrack(video, workDir, error);
        if (source.isEmpty()) {
            return QString();
        }
    } else if (!QFileInfo(source).isFile()) {
        *error = QStringLiteral("cannot read subtitles %1: %2")
                     .arg(source, QFileInfo::exists(source) ? QStringLiteral("it is not a file")
                                                            : QStringLiteral("no such file"));
        return QString();
    }
    const QString shown = subtitles.isEmpty() ? QStringLiteral("the subtitle track of %1").arg(QFileInfo(video).fileName())
                                              : QStringLiteral("subtitles %1").arg(subtitles);
    // The window's own path: SRT through the converter, then the reader.
    CaptionManager* captions = CaptionManager::instance();
    QString assPath = source;
    if (QFileInfo(source).suffix().toLower() == QLatin1String("srt")) {
        assPath = GlobalManager::instance()->srtToAss(source);
    }
    const int result = assPath.isEmpty() ? 1 : captions->loadCaptionFile(assPath);
    if (result != 0 || captions->getCaptions().isEmpty()) {
        const QString reason = captions->lastError();
        *error = QStringLiteral("cannot read %1: %2")
                     .arg(shown, reason.isEmpty() ? QStringLiteral("it holds no captions") : reason);
        return QString();
    }
    return assPath;
}

QList<CaptionInfo*> CaptionSource::select(const QList<CaptionInfo*>& captions, const QList<int>& numbers,
                                          const QString& search, QString* error)
{
    QList<CaptionInfo*> chosen;
    if (!numbers.isEmpty()) {
        for (int number : numbers) {
            if (number > captions.size()) {
                *error = QStringLiteral("there is no caption %1: the subtitles hold %2").arg(QString::number(number), QString::number(captions.size()));
                return {};
            }
            chosen.append(captions.at(number - 1));
        }
        return chosen;
    }
    if (search.isEmpty()) {
        return captions;
    }
    const QString needle = search.simplified();
    for (CaptionInfo* info : captions) {
        const QString shown = CaptionOverlay::plainText(info->text).simplified();
        if (shown.contains(needle, Qt::CaseInsensitive)) {
            chosen.append(info);
        }
    }
    if (chosen.isEmpty()) {
        *error = QStringLiteral("no caption contains \"%1\"").arg(search);
    }
    return chosen;
}
