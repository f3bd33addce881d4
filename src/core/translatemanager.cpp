#include "translatemanager.h"

#include "appconfig.h"
#include "globalmanager.h"
#include "logcategories.h"
#include "settings.h"

#include <QDebug>
#include <QLocale>

namespace {
struct LanguageRow {
    const char* file;
    const char* name;
    const char* shortName;
};

const LanguageRow kLanguages[] = {
    {":/i18n/glimmer_en.qm", "English", "en"},
    {":/i18n/glimmer_de.qm", "Deutsch", "de"},
    {":/i18n/glimmer_es.qm", "Español", "es"},
    {":/i18n/glimmer_fr.qm", "Français", "fr"},
    {":/i18n/glimmer_it.qm", "Italiano", "it"},
    {":/i18n/glimmer_pt.qm", "Português", "pt"},
    {":/i18n/glimmer_cn.qm", "简体中文", "cn"},
    {":/i18n/glimmer_hk.qm", "繁體中文", "hk"},
    {":/i18n/glimmer_jp.qm", "日本語", "jp"},
};
constexpr int kLanguageCount = sizeof(kLanguages) / sizeof(kLanguages[0]);
} // namespace

TranslateManager* TranslateManager::instance()
{
    static TranslateManager* s_instance = new TranslateManager();
    return s_instance;
}

TranslateManager::TranslateManager(QObject* parent)
    : QObject(parent)
{
}

void TranslateManager::init()
{
    m_langFileMap.clear();
    m_langNameMap.clear();
    for (int i = 0; i < kLanguageCount; ++i) {
        m_langFileMap.insert(i, QString::fromUtf8(kLanguages[i].file));
        m_langNameMap.insert(i, QString::fromUtf8(kLanguages[i].name));
    }

    const QLocale locale = QLocale::system();
    const int stored = Settings::instance()->value(AppConfig::APP_LANG).toInt();
    qCDebug(lcCore) << "Current system language: " << QLocale::languageToString(locale.language())
             << locale.name() << stored;
    m_langType = chooseLangType(locale.name(), stored);
}

int TranslateManager::chooseLangType(const QString& localeName, int storedType)
{
    if (storedType >= 0) {
        return storedType;
    }
    // Case-sensitive on purpose: zh_CN, zh_HK and ja_JP match none of cn/hk/jp.
    for (int i = 0; i < kLanguageCount; ++i) {
        const QString shortName = getShortNameByType(static_cast<LanguageType>(i));
        if (localeName.contains(shortName, Qt::CaseSensitive)) {
            qCDebug(lcCore) << "short" << shortName << localeName;
            return i;
        }
    }
    return English;
}

QString TranslateManager::getShortNameByType(LanguageType type)
{
    const int i = static_cast<int>(type);
    if (i < 0 || i >= kLanguageCount) {
        return QStringLiteral("en");
    }
    return QString::fromLatin1(kLanguages[i].shortName);
}

QString TranslateManager::getCurrentShortName() const
{
    return getShortNameByType(static_cast<LanguageType>(m_langType));
}
