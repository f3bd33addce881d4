#include "captionsnapshot.h"

#include "captionmanager.h"

#include <QFile>

CaptionSnapshot::Ptr CaptionSnapshot::take(const QString& shownFile)
{
    CaptionManager* manager = CaptionManager::instance();
    auto* snapshot = new CaptionSnapshot;
    for (const CaptionInfo* info : manager->getCaptions()) {
        snapshot->m_captions.append(*info);
    }
    for (const CaptionStyle* style : manager->getStyles()) {
        snapshot->m_styles.append(*style);
    }
    snapshot->m_fileLines = manager->getFileLines();
    snapshot->m_assFilePath = manager->getAssFilePath();
    snapshot->m_allOverride = manager->allOverride();
    QFile file(shownFile);
    if (!shownFile.isEmpty() && file.open(QIODevice::ReadOnly)) {
        snapshot->m_shownText = file.readAll();
    }
    return Ptr(snapshot);
}

void CaptionSnapshot::restore() const
{
    CaptionManager* manager = CaptionManager::instance();
    // Ticks choose what to capture next; they are not part of the edit.
    const QList<CaptionInfo*> live = manager->getCaptions();
    QList<CaptionInfo*> captions;
    for (int i = 0; i < m_captions.size(); ++i) {
        auto* info = new CaptionInfo(m_captions.at(i));
        if (live.size() == m_captions.size()) {
            info->isCheck = live.at(i)->isCheck;
        }
        captions.append(info);
    }
    QList<CaptionStyle*> styles;
    for (const CaptionStyle& style : m_styles) {
        styles.append(new CaptionStyle(style));
    }
    manager->restoreState(captions, styles, m_fileLines, m_assFilePath, m_shownText, m_allOverride);
}
