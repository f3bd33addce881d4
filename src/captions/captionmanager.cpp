#include "captionmanager.h"

#include "appconfig.h"
#include "globalmanager.h"

#include <QDebug>
#include <QFileInfo>
#include <QFont>
#include <QFontMetrics>

CaptionManager* CaptionManager::instance()
{
    static CaptionManager* s_instance = new CaptionManager();
    return s_instance;
}

CaptionManager::CaptionManager(QObject* parent)
    : QObject(parent)
{
    initLang();
}

void CaptionManager::initLang()
{
    qDeleteAll(m_langItems);
    m_langItems.clear();
    m_currentLangItem = nullptr;
    m_langItems.append(new Language::LanguageItem(tr("英语（美国）"), QStringLiteral("en-US"), 7));
    m_langItems.append(new Language::LanguageItem(tr("西班牙语"), QStringLiteral("es-MX"), 10));
    m_langItems.append(new Language::LanguageItem(tr("法语"), QStringLiteral("fr-FR"), 12));
    m_langItems.append(new Language::LanguageItem(tr("简体中文"), QStringLiteral("zh-CN"), 0));
    m_langItems.append(new Language::LanguageItem(tr("粤语"), QStringLiteral("yue"), 1));
    m_langItems.append(new Language::LanguageItem(tr("韩语"), QStringLiteral("ko-KR"), 9));
    m_langItems.append(new Language::LanguageItem(tr("日语"), QStringLiteral("ja-JP"), 8));
    m_langItems.append(new Language::LanguageItem(tr("俄语"), QStringLiteral("ru-RU"), 11));
}

QString CaptionManager::workingFilePath(const QString& suffix) const
{
    const QString base = GlobalManager::instance()->getCurrentFile().completeBaseName();
    const QString code = m_currentLangItem ? m_currentLangItem->code : QString();
    return QStringLiteral("%1/%2-%3.") .arg(GlobalManager::instance()->getTempPath(AppConfig::APP_NAME), base, code)
           + suffix;
}

QString CaptionManager::getAudioFilePath() const
{
    if (!m_audioFilePath.isEmpty()) {
        return m_audioFilePath;
    }
    const QFileInfo current = GlobalManager::instance()->getCurrentFile();
    qDebug() << "getAudioFilePath:" << current.completeBaseName() << current.baseName();
    return workingFilePath(QStringLiteral("mp3"));
}

QString CaptionManager::getCaptionPath() const
{
    if (!m_captionPath.isEmpty()) {
        return m_captionPath;
    }
    const QFileInfo current = GlobalManager::instance()->getCurrentFile();
    qDebug() << "getCaptionPath:" << current.completeBaseName() << current.baseName();
    return workingFilePath(QStringLiteral("txt"));
}

QString CaptionManager::getTempAssFilePath() const
{
    return workingFilePath(QStringLiteral("ass"));
}

void CaptionManager::setCurrentLangItem(Language::LanguageItem* item)
{
    m_currentLangItem = item;
    if (item) {
        GlobalManager::instance()->saveSettings(AppConfig::AI_CAPTION_LANG, item->key);
    }
}

void CaptionManager::setCurrentLangItem(int key)
{
    m_currentLangItem = getLangItemByKey(key);
}

Language::LanguageItem* CaptionManager::getLangItemByKey(int key) const
{
    for (Language::LanguageItem* item : m_langItems) {
        if (item->key == key) {
            return item;
        }
    }
    return nullptr;
}

int CaptionManager::getLangItemIndexByKey(int key) const
{
    for (int i = 0; i < m_langItems.size(); ++i) {
        if (m_langItems.at(i)->key == key) {
            return i;
        }
    }
    return -1;
}

CaptionInfo* CaptionManager::getCaptionDataByIndex(int index) const
{
    // 1-based like CaptionInfo::index; out of range gives none rather than a crash.
    if (index < 1 || index > m_captions.size()) {
        return nullptr;
    }
    return m_captions.at(index - 1);
}

void CaptionManager::clearCaptions()
{
    m_captions.clear();
}

int CaptionManager::getMaxTextWidth() const
{
    QFont font(QStringLiteral("Microsoft YaHei"), 8, 50, false);
    const QFontMetrics metrics(font);
    int maxWidth = 0;
    for (const CaptionInfo* info : m_captions) {
        maxWidth = qMax(maxWidth, metrics.boundingRect(info->text).width());
    }
    return maxWidth;
}

void updateCaptionByCheck(CaptionInfo* info)
{
    Q_UNUSED(info)
}
