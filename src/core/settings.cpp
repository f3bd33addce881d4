#include "settings.h"

#include "appconfig.h"

#include <QSettings>
#include <QVector>

namespace {
struct DefaultRow {
    QString key;
    Settings::Reader reader;
    QVariant value;
};

// Every setting the program reads, with its default. Built on first use: the
// key constants are not guaranteed to exist during static initialisation.
const QVector<DefaultRow>& defaults()
{
    static const QVector<DefaultRow> rows{
        // Persistent
        {AppConfig::FILE_SAVE_PATH, Settings::AnyReader, QString()},
        {AppConfig::OPEN_FILE_PATH, Settings::AnyReader, QString()},
        {AppConfig::FILE_EXTENSION, Settings::AnyReader, AppConfig::FORMAT_JPG},
        {AppConfig::FILE_EXTENSION, Settings::ExportWorker, AppConfig::FORMAT_PNG},
        {AppConfig::RADIO_TYPE, Settings::AnyReader, 1},
        {AppConfig::PLAYER_VOLUME, Settings::AnyReader, 100},
        {AppConfig::PLAYER_MUTE, Settings::AnyReader, false},
        {AppConfig::AI_CAPTION_LANG, Settings::AnyReader, 7},
        {AppConfig::APP_LANG, Settings::AnyReader, -1},
        {AppConfig::FIRST_OPEN_APP, Settings::AnyReader, false},
        {AppConfig::APP_REGISTER, Settings::AnyReader, QString()},
        {AppConfig::SPEECH_SERVER_URL, Settings::AnyReader, AppConfig::DEFAULT_SPEECH_SERVER_URL},
        {AppConfig::SPEECH_ENGINE, Settings::AnyReader, AppConfig::SPEECH_ENGINE_BUILTIN},
        {AppConfig::SPEECH_ENGINE_URL, Settings::AnyReader, QString()},
        {AppConfig::SPEECH_ENGINE_MODEL, Settings::AnyReader, AppConfig::DEFAULT_SPEECH_ENGINE_MODEL},
        {AppConfig::SPEECH_ENGINE_KEY, Settings::AnyReader, QString()},
        {AppConfig::LICENSE_SERVER_URL, Settings::AnyReader, AppConfig::DEFAULT_LICENSE_SERVER_URL},
        {AppConfig::VERSION_FILE_URL, Settings::AnyReader, AppConfig::DEFAULT_VERSION_FILE_URL},
        // This run only
        {AppConfig::PROPERTY_WIDTH, Settings::AnyReader, QStringLiteral("0")},
        {AppConfig::PROPERTY_HEIGHT, Settings::AnyReader, QStringLiteral("0")},
        {AppConfig::PROPERTY_X_SPACE, Settings::AnyReader, QStringLiteral("0")},
        {AppConfig::PROPERTY_Y_SPACE, Settings::AnyReader, QStringLiteral("0")},
        {AppConfig::PROPERTY_SCALE, Settings::AnyReader, QStringLiteral("100")},
        {AppConfig::PROPERTY_COLUMN, Settings::AnyReader, QStringLiteral("2")},
        {AppConfig::SHOW_GUIDE_REGISTER_BY_EXPORT, Settings::AnyReader, false},
        {AppConfig::EXPORT_FIRST_IN_APP, Settings::AnyReader, false},
    };
    return rows;
}
} // namespace

Settings* Settings::instance()
{
    static Settings* s_instance = new Settings();
    return s_instance;
}

Settings::Settings(QObject* parent)
    : QObject(parent)
{
}

QVariant Settings::defaultValue(const QString& key, Reader reader)
{
    QVariant fallback;
    for (const DefaultRow& row : defaults()) {
        if (row.key != key) {
            continue;
        }
        if (row.reader == reader) {
            return row.value;
        }
        if (row.reader == AnyReader) {
            fallback = row.value;
        }
    }
    return fallback;
}

QVariant Settings::value(const QString& key, Reader reader) const
{
    return read(key, defaultValue(key, reader));
}

QVariant Settings::read(const QString& key, const QVariant& fallback) const
{
    // A fresh object per read: safe from any thread, and always what is on disk.
    const QSettings settings(QSettings::UserScope, AppConfig::APP_NAME, QString());
    return settings.value(key, fallback);
}

bool Settings::contains(const QString& key) const
{
    const QSettings settings(QSettings::UserScope, AppConfig::APP_NAME, QString());
    return settings.contains(key);
}

void Settings::setValue(const QString& key, const QVariant& value)
{
    auto* settings = new QSettings(QSettings::UserScope, AppConfig::APP_NAME, QString());
    settings->setValue(key, value);
    // Synced when released; the event loop (or exit) does that.
    settings->deleteLater();
    emit valueWritten(key);
}

QVariant Settings::inAppValue(const QString& key, Reader reader) const
{
    return readInApp(key, defaultValue(key, reader));
}

QVariant Settings::readInApp(const QString& key, const QVariant& fallback) const
{
    const auto it = m_inApp.constFind(key);
    if (it == m_inApp.constEnd() || it.value().isNull()) {
        return fallback;
    }
    return it.value();
}

void Settings::setInAppValue(const QString& key, const QVariant& value)
{
    m_inApp.insert(key, value);
}
