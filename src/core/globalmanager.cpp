#include "globalmanager.h"

#include "appconfig.h"
#include "captionmanager.h"
#include "filemanager.h"
#include "httpmanager.h"
#include "picturewriter.h"
#include "processthread.h"
#include "subtitleencoding.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDebug>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFontMetrics>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>
#include <QTextCodec>
#include <QTextStream>
#include <QTime>
#include <QUrl>

#include <cstdio>

namespace {
QString g_logFilePath;
constexpr int kAudioExtractionLimitMs = 60 * 60 * 1000;

void messageHandler(QtMsgType type, const QMessageLogContext& context, const QString& msg)
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QString line = GlobalManager::formatLogLine(
        type, context.file ? QString::fromLocal8Bit(context.file) : QString(), context.line,
        context.function ? QString::fromLocal8Bit(context.function) : QString(), msg);
    const QByteArray bytes = line.toLocal8Bit();
    // Written as text: a per-cent sign in a message must never act as a format.
    std::fputs(bytes.constData(), stdout);
    std::fflush(stdout);

    QFile file(g_logFilePath);
    if (file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) {
        QTextStream stream(&file);
        stream.setCodec("UTF-8");
        stream << line;
        file.close();
    }
}
} // namespace

GlobalManager* GlobalManager::instance()
{
    static GlobalManager* s_instance = new GlobalManager();
    return s_instance;
}

GlobalManager::GlobalManager(QObject* parent)
    : QObject(parent)
{
    HttpManager* http = HttpManager::instance();
    connect(http, &HttpManager::requestFinished, this, &GlobalManager::httpRequestFinished);
    connect(http, &HttpManager::requestError, this, &GlobalManager::httpRequestError);

    m_appVersion = QStringLiteral("2.1.0");

    m_mp3Thread = new ProcessThread(this);
    connect(m_mp3Thread, &ProcessThread::processOutput, this, [](const QString& text) {
        qDebug() << "m_mp3_thread->processOutput" << text;
    });
    connect(m_mp3Thread, &ProcessThread::processStop, this, [this]() {
        qDebug() << "m_mp3_thread->processStop" << (m_isStopConvert ? "true" : "false");
        if (!m_isStopConvert) {
            emitEvent(AppConfig::VIDEO_TO_AUDIO_STOP, 0);
        }
    });
    connect(m_mp3Thread, &ProcessThread::processStart, this, [this]() {
        qDebug() << "m_mp3_thread->processStart";
        emitEvent(AppConfig::VIDEO_TO_AUDIO_START, 0);
    });
    connect(m_mp3Thread, &ProcessThread::processError, this, [](const QString&) {
        qDebug() << "m_mp3_thread->processStop";
    });
    // ffmpeg that cannot be started at all ends the extraction too: the upload
    // step then finds no file and reports it, so the user is never left waiting.
    connect(m_mp3Thread, &ProcessThread::processFailed, this, [this]() {
        qDebug() << "m_mp3_thread->processFailed";
        if (!m_isStopConvert) {
            emitEvent(AppConfig::VIDEO_TO_AUDIO_STOP, 0);
        }
    });
}

void GlobalManager::emitEvent(const QString& eventName, const QVariant& value)
{
    const QString name = eventName;
    const QVariant copy = value;
    emit globalEvent(name, copy);
}

// ---------------------------------------------------------------- settings

void GlobalManager::saveSettings(const QString& key, const QVariant& value)
{
    auto* settings = new QSettings(QSettings::UserScope, AppConfig::APP_NAME, QString());
    settings->setValue(key, value);
    // Synced when released; the event loop (or exit) does that.
    settings->deleteLater();
    emitEvent(AppConfig::SETTING_CHANGE, key);
}

QVariant GlobalManager::readSettings(const QString& key, const QVariant& defaultValue) const
{
    QSettings settings(QSettings::UserScope, AppConfig::APP_NAME, QString());
    return settings.value(key, defaultValue);
}

void GlobalManager::saveInAppSettings(const QString& key, const QVariant& value)
{
    m_inAppSettings.insert(key, value);
}

QVariant GlobalManager::readInAppSettings(const QString& key, const QVariant& defaultValue) const
{
    const auto it = m_inAppSettings.constFind(key);
    if (it == m_inAppSettings.constEnd() || it.value().isNull()) {
        return defaultValue;
    }
    return it.value();
}

// ---------------------------------------------------------------- paths

QString GlobalManager::getWritePath(const QString& name) const
{
    const QString path = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)
                         + QLatin1Char('/') + name;
    QDir().mkpath(path);
    return path;
}

QString GlobalManager::getDirPath() const
{
    return QCoreApplication::applicationDirPath();
}

QString GlobalManager::getTempPath(const QString& name) const
{
    const QStringList locations = QStandardPaths::standardLocations(QStandardPaths::TempLocation);
    if (locations.isEmpty()) {
        qWarning() << "Unable to retrieve temporary directory path.";
    }
    const QString base = locations.isEmpty() ? QString() : locations.first();
    const QString path = base + QLatin1Char('/') + name;
    qDebug() << "Temporary directory path:" << path;
    QDir().mkpath(path);
    return path;
}

QString GlobalManager::getDirByCheck(const QString& path) const
{
    // A folder that exists but refuses writes would lose the export: fall back as well.
    if (isUsableDir(path)) {
        return path;
    }
    return getWritePath(AppConfig::APP_NAME);
}

QString GlobalManager::getHomePageUrl() const
{
    return AppConfig::HOME_PAGE_URL;
}

// ---------------------------------------------------------------- helpers

QString GlobalManager::formatSecondToTime(double seconds)
{
    return QTime(0, 0, 0).addSecs(static_cast<int>(seconds)).toString(QStringLiteral("hh:mm:ss"));
}

int GlobalManager::getFontSizeByTextAndWidth(const QString& text, int width)
{
    QFont font;
    int size = 40;
    font.setPointSize(size);
    QFontMetrics metrics(font);
    while (metrics.horizontalAdvance(text) > width && size >= 2) {
        --size;
        font.setPointSize(size);
        metrics = QFontMetrics(font);
    }
    return qMax(size, 1);
}

QString GlobalManager::readFileContent(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qDebug() << "readFileContent failed:" << path << file.errorString();
        return QString();
    }
    return QString::fromUtf8(file.readAll());
}

bool GlobalManager::writeFileContent(const QString& path, const QString& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        qDebug() << "writeFileContent failed:" << path << file.errorString();
        return false;
    }
    const QByteArray bytes = content.toUtf8();
    const bool ok = file.write(bytes) == bytes.size();
    file.close();
    return ok;
}

void GlobalManager::openUrl(const QString& url)
{
    QDesktopServices::openUrl(QUrl(url));
}

// ---------------------------------------------------------------- logging

QString GlobalManager::getLogDir() const
{
    const QString dir = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
                        + QStringLiteral("/logs/");
    qDebug() << "getLogDir:" << dir;
    QDir d(dir);
    if (!d.exists() && !d.mkpath(dir)) {
        qWarning() << "Failed to create directory.";
        return QString();
    }
    return dir;
}

void GlobalManager::initLog()
{
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMddhhmmss"));
    m_logFilePath = getLogDir() + stamp + QStringLiteral(".log");
    g_logFilePath = m_logFilePath;
    qInstallMessageHandler(messageHandler);
}

QString GlobalManager::formatLogLine(QtMsgType type, const QString& file, int line,
                                     const QString& function, const QString& message)
{
    QString level;
    switch (type) {
    case QtDebugMsg:
        level = QStringLiteral("Debug");
        break;
    case QtWarningMsg:
        level = QStringLiteral("Warning");
        break;
    case QtCriticalMsg:
        level = QStringLiteral("Critical");
        break;
    case QtFatalMsg:
        level = QStringLiteral("Fatal");
        break;
    case QtInfoMsg:
        level = QStringLiteral("Info");
        break;
    }
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyy MM-dd hh:mm:ss"));
    return QStringLiteral("[%6]%5: %1 (%2:%3, %4)\n")
        .arg(message, file, QString::number(line), function, level, time);
}

// ---------------------------------------------------------------- external tools

QString GlobalManager::getFfmpegPath() const
{
    return FileManager::instance()->findTool(QStringLiteral("ffmpeg"));
}

void GlobalManager::videoToAudio(const QString& videoPath)
{
    const QString program = getFfmpegPath();
    const QString output = CaptionManager::instance()->getAudioFilePath();
    m_isStopConvert = false;
    const QStringList arguments{QStringLiteral("-i"), videoPath, QStringLiteral("-vn"),
                                QStringLiteral("-ar"), QStringLiteral("16000"), QStringLiteral("-ac"),
                                QStringLiteral("1"), QStringLiteral("-format"), QStringLiteral("wav"),
                                QStringLiteral("-y"), output};
    // A file left by an earlier run must not pass for this run's result when ffmpeg fails.
    QFile::remove(output);
    // Hours of sound take longer than the runner's default limit to extract.
    m_mp3Thread->setWaitFinishTime(kAudioExtractionLimitMs);
    m_mp3Thread->setCommand(program, arguments, QIODevice::ReadWrite);
    m_mp3Thread->start(QThread::InheritPriority);
}

void GlobalManager::stopConvert()
{
    if (m_mp3Thread->isRunning()) {
        m_isStopConvert = true;
        m_mp3Thread->stopProcess();
    }
}

QString GlobalManager::srtToAss(const QString& srtPath)
{
    const QString output = QStringLiteral("%1/%2.ass")
                               .arg(getTempPath(AppConfig::APP_NAME), QFileInfo(srtPath).completeBaseName());
    qDebug() << "srtToAss->" << output;
    CaptionManager* captions = CaptionManager::instance();
    captions->setLastError(QString(), output);
    const QString name = QFileInfo(srtPath).fileName();

    // ffmpeg refuses subtitles that are not UTF-8 unless told their charset.
    QStringList arguments;
    const QByteArray charset = SubtitleEncoding::detectLegacyFile(srtPath);
    if (!charset.isEmpty()) {
        qDebug() << "srtToAss charset:" << charset;
        arguments << QStringLiteral("-sub_charenc") << QString::fromLatin1(charset);
    }
    arguments << QStringLiteral("-i") << srtPath << QStringLiteral("-y") << output;

    const QString program = getFfmpegPath();
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForStarted(10000)) {
        qDebug() << "Error: FFmpeg process failed to start:" << program << process.errorString();
        captions->setLastError(tr("The SRT file \"%1\" could not be converted: ffmpeg was not found.").arg(name),
                               output);
        return QString();
    }
    process.closeWriteChannel();
    if (!process.waitForFinished(30000)) {
        qDebug() << "Error: FFmpeg process failed to finish.";
        process.kill();
        process.waitForFinished(1000);
        captions->setLastError(
            tr("The SRT file \"%1\" could not be converted: ffmpeg did not finish in time.").arg(name), output);
        return QString();
    }
    const bool failed = process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0;
    if (failed) {
        qDebug() << "srtToAss: ffmpeg exit code" << process.exitCode()
                 << QString::fromLocal8Bit(process.readAll().right(2000));
    }
    if (!QFileInfo::exists(output)) {
        qDebug() << "Error: Failed to convert SRT to ASS.";
        captions->setLastError(tr("The SRT file \"%1\" could not be converted.").arg(name), output);
        return QString();
    }
    if (failed) {
        captions->setLastError(tr("The SRT file \"%1\" could not be converted.").arg(name), output);
    }
    qDebug() << "SRT to ASS conversion completed successfully.";
    QString content = readFileContent(output);
    content.remove(QRegularExpression(QStringLiteral("\\{\\\\an[1-9]\\}")));

    const QString header = QStringLiteral(
        "[Script Info]\n"
        "; Script generated by Glimmer\n"
        "Title: Your Subtitle Title\n"
        "ScriptType: v4.00+\n"
        "WrapStyle: 0\n"
        "\n"
        "[V4+ Styles]\n"
        "Format: Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, OutlineColour, BackColour, "
        "Bold, Italic, Underline, StrikeOut, ScaleX, ScaleY, Spacing, Angle, BorderStyle, Outline, "
        "Shadow, Alignment, MarginL, MarginR, MarginV, Encoding\n"
        "Style: Default,Arial,20,&H00FFFFFF,&H000000FF,&H00000000,&H80000000,-1,0,0,0,100,100,0,0,1,2,3,"
        "2,20,20,20,1\n"
        "\n");
    const int events = content.indexOf(QStringLiteral("[Events]"));
    if (events >= 0) {
        content = header + content.mid(events);
    } else {
        qDebug() << "[Events] not found in the string.";
    }
    writeFileContent(output, content);
    return output;
}

// ---------------------------------------------------------------- http hand-off

void GlobalManager::httpRequestFinished(QString key, const QJsonObject& object, const QByteArray& data)
{
    Q_UNUSED(object)
    if (key == AppConfig::TASK_ID) {
        emitEvent(AppConfig::TASK_ID, data);
    }
}

void GlobalManager::httpRequestError(QString key, const QJsonObject& object, const QByteArray& data)
{
    Q_UNUSED(data)
    qDebug() << "requestError:" << key;
    if (key == AppConfig::KEY_REGISTER) {
        emitEvent(AppConfig::REGISTER_ERROR, object.value(QStringLiteral("message")).toString());
    }
}

// ---------------------------------------------------------------- export helpers

bool GlobalManager::isUsableDir(const QString& path)
{
    if (path.isEmpty()) {
        return false;
    }
    if (!QDir(path).exists() && !QDir().mkpath(path)) {
        return false;
    }
    return QFileInfo(path).isWritable();
}

QString GlobalManager::saveImage(const QPixmap& pixmap, const QString& dir, const QString& name,
                                 const QString& ext, QString* error)
{
    return saveImage(pixmap.toImage(), dir, name, ext, error);
}

QString GlobalManager::saveImage(const QImage& image, const QString& dir, const QString& name,
                                 const QString& ext, QString* error)
{
    QString path = QStringLiteral("%1/%2").arg(dir, name);
    QString format = ext;
    const QFileInfo nameInfo(name);
    if (format.isEmpty()) {
        format = nameInfo.suffix();
    }
    const QString stem = nameInfo.completeBaseName();
    int n = 1;
    while (QFileInfo::exists(path)) {
        path = QStringLiteral("%1/%2(%3).%4").arg(dir, stem).arg(n).arg(format);
        ++n;
    }

    QString reason;
    if (!PictureWriter::write(image, path, format, &reason)) {
        qWarning() << "saveImage failed:" << path << reason;
        if (error) {
            *error = reason;
        }
        return QString();
    }
    return path;
}

void GlobalManager::changePixmapWithWaterMark(QPixmap& pixmap, const QString& text)
{
    if (pixmap.isNull()) {
        return;
    }
    PictureWriter::paintWatermark(pixmap, text);
}

void GlobalManager::changeImageWithWaterMark(QImage& image, const QString& text)
{
    if (image.isNull()) {
        return;
    }
    PictureWriter::paintWatermark(image, text);
}

QStringList GlobalManager::selectOutPutFilesByTempList(const QStringList& tempPaths, QStringList* errors)
{
    QString dest = readSettings(AppConfig::FILE_SAVE_PATH, QString()).toString();
    if (!isUsableDir(dest)) {
        dest = getWritePath(AppConfig::APP_NAME);
    }
    const QString fallback = getWritePath(AppConfig::APP_NAME);

    auto moveInto = [](const QString& temp, const QString& dir) -> QString {
        const QFileInfo info(temp);
        if (QDir(info.absolutePath()) == QDir(dir)) {
            // Already written into the output folder under a free name.
            return info.absoluteFilePath();
        }
        QString target = QStringLiteral("%2/%1.%3").arg(info.completeBaseName(), dir, info.suffix());
        int n = 1;
        while (QFileInfo::exists(target)) {
            target = QStringLiteral("%1/%2(%3).%4")
                         .arg(dir, info.completeBaseName())
                         .arg(n)
                         .arg(info.suffix());
            ++n;
        }
        // A rename within one file system, a copy and remove across them.
        return QFile::rename(temp, target) ? target : QString();
    };

    QStringList collected;
    for (const QString& temp : tempPaths) {
        if (!QFileInfo::exists(temp)) {
            qWarning() << "selectOutPutFilesByTempList: missing" << temp;
            if (errors) {
                errors->append(tr("%1: the file has vanished before it could be moved to the "
                                  "output folder.")
                                   .arg(QFileInfo(temp).fileName()));
            }
            continue;
        }
        QString target = moveInto(temp, dest);
        if (target.isEmpty() && dest != fallback) {
            target = moveInto(temp, fallback);
        }
        if (target.isEmpty()) {
            // Keep the temporary file: it is the only copy of the picture.
            qWarning() << "selectOutPutFilesByTempList: move failed" << temp << dest;
            if (errors) {
                errors->append(tr("%1 could not be moved to the output folder %2; it was kept at %3.")
                                   .arg(QFileInfo(temp).fileName(), QDir::toNativeSeparators(dest),
                                        QDir::toNativeSeparators(temp)));
            }
            collected.append(temp);
            continue;
        }
        collected.append(target);
    }
    openFilesBySelect(collected);
    return collected;
}

void GlobalManager::openFilesBySelect(const QStringList& paths)
{
    if (paths.isEmpty()) {
        return;
    }
#ifdef Q_OS_MACOS
    QStringList items;
    for (const QString& path : paths) {
        items.append(QStringLiteral("\"%1\" as POSIX file").arg(path));
    }
    const QString command
        = QStringLiteral("osascript -e 'tell application \"Finder\" to reveal {%1} activate'")
              .arg(items.join(QStringLiteral(", ")));
    const QString script = QStringLiteral("/tmp/selectfile.sh");
    writeFileContent(script, command);
    qDebug() << "openfileselected:" << command;
    QProcess::startDetached(QStringLiteral("/bin/sh"), {script});
#else
    QStringList uris;
    for (const QString& path : paths) {
        uris.append(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
    }
    qDebug() << "openfileselected:" << uris;
    const QUrl folder = QUrl::fromLocalFile(QFileInfo(paths.first()).absolutePath());
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        QDesktopServices::openUrl(folder);
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << uris << QString();
    // Asynchronous: a file manager that is slow to start must not freeze the window.
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, 5000), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [folder](QDBusPendingCallWatcher* w) {
        if (w->isError()) {
            // No file manager service: open the folder itself, quietly if that fails too.
            qDebug() << "openfileselected: file manager unavailable:" << w->error().message();
            QDesktopServices::openUrl(folder);
        }
        w->deleteLater();
    });
#endif
}
