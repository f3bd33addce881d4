#include "globalmanager.h"

#include "appconfig.h"
#include "apppaths.h"
#include "audioextractor.h"
#include "filereveal.h"
#include "logcategories.h"
#include "logger.h"
#include "outputfiles.h"
#include "picturewriter.h"
#include "settings.h"

#include <QDebug>
#include <QDesktopServices>
#include <QFile>
#include <QTime>
#include <QUrl>

GlobalManager* GlobalManager::instance()
{
    static GlobalManager* s_instance = new GlobalManager();
    return s_instance;
}

GlobalManager::GlobalManager(QObject* parent)
    : QObject(parent)
    , m_appVersion(QStringLiteral("2.1.0"))
    , m_audio(new AudioExtractor(this))
{
    connect(Settings::instance(), &Settings::valueWritten, this,
            [this](const QString& key) { emitEvent(AppConfig::SETTING_CHANGE, key); });
    connect(m_audio, &AudioExtractor::started, this, [this]() { emitEvent(AppConfig::VIDEO_TO_AUDIO_START, 0); });
    connect(m_audio, &AudioExtractor::finished, this, [this]() { emitEvent(AppConfig::VIDEO_TO_AUDIO_STOP, 0); });
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
    Settings::instance()->setValue(key, value);
}

QVariant GlobalManager::readSettings(const QString& key, const QVariant& defaultValue) const
{
    return Settings::instance()->read(key, defaultValue);
}

void GlobalManager::saveInAppSettings(const QString& key, const QVariant& value)
{
    Settings::instance()->setInAppValue(key, value);
}

QVariant GlobalManager::readInAppSettings(const QString& key, const QVariant& defaultValue) const
{
    return Settings::instance()->readInApp(key, defaultValue);
}

// ---------------------------------------------------------------- paths

QString GlobalManager::getWritePath(const QString& name) const
{
    return AppPaths::writePath(name);
}

QString GlobalManager::getDirPath() const
{
    return AppPaths::dirPath();
}

QString GlobalManager::getTempPath(const QString& name) const
{
    return AppPaths::tempPath(name);
}

QString GlobalManager::getDirByCheck(const QString& path) const
{
    return AppPaths::dirByCheck(path);
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
    return PictureWriter::fontSizeForWidth(text, width);
}

QString GlobalManager::readFileContent(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCDebug(lcCore) << "readFileContent failed:" << path << file.errorString();
        return QString();
    }
    return QString::fromUtf8(file.readAll());
}

bool GlobalManager::writeFileContent(const QString& path, const QString& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        qCDebug(lcCore) << "writeFileContent failed:" << path << file.errorString();
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
    return Logger::logDir();
}

void GlobalManager::initLog()
{
    m_logFilePath = Logger::init();
}

// ---------------------------------------------------------------- audio extraction

void GlobalManager::stopConvert()
{
    m_audio->stop();
}

bool GlobalManager::isStopConvert() const
{
    return m_audio->isStopRequested();
}

ProcessThread* GlobalManager::audioThread() const
{
    return m_audio->thread();
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
    qCDebug(lcCore) << "requestError:" << key;
    if (key == AppConfig::KEY_REGISTER) {
        emitEvent(AppConfig::REGISTER_ERROR, object.value(QStringLiteral("message")).toString());
    }
}

// ---------------------------------------------------------------- export helpers

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
        path = QStringLiteral("%1/%2(%3).%4").arg(dir, stem, QString::number(n), format);
        ++n;
    }

    QString reason;
    if (!PictureWriter::write(image, path, format, &reason)) {
        qCWarning(lcCore) << "saveImage failed:" << path << reason;
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
    const QString fallback = getWritePath(AppConfig::APP_NAME);
    if (!AppPaths::isUsableDir(dest)) {
        dest = fallback;
    }
    const QStringList collected = OutputFiles::moveInto(tempPaths, dest, fallback, errors);
    openFilesBySelect(collected);
    return collected;
}

void GlobalManager::openFilesBySelect(const QStringList& paths)
{
    FileReveal::reveal(paths);
}
