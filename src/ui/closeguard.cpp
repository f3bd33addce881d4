#include "closeguard.h"

#include "appconfig.h"
#include "captionmanager.h"
#include "captionsaveflow.h"
#include "confirmation.h"
#include "globalmanager.h"
#include "imageitem.h"
#include "imageswidget.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

CloseGuard::CloseGuard(QWidget* window, ImagesWidget* strip, CaptionSaveFlow* saver)
    : QObject(window)
    , m_window(window)
    , m_strip(strip)
    , m_saver(saver)
{
    connect(saver, &CaptionSaveFlow::saved, this, &CloseGuard::markCaptionsSaved);
    connect(GlobalManager::instance(), &GlobalManager::globalEvent, this, [this](const QString& name) {
        if (name == AppConfig::LOAD_FILE_COMPLETE) {
            // Once the new video's working file is written.
            QTimer::singleShot(0, this, &CloseGuard::markCaptionsSaved);
        }
    });
    markCaptionsSaved();
}

void CloseGuard::markCaptionsSaved()
{
    m_savedText = CaptionManager::instance()->captionFileText(QStringLiteral("ass"));
}

void CloseGuard::markSelectionExported()
{
    for (const ImageItem* item : GlobalManager::instance()->selectedImages()) {
        m_exported.insert(item->getPixmap().cacheKey());
    }
}

bool CloseGuard::hasUnsavedCaptions() const
{
    return !CaptionManager::instance()->getCaptions().isEmpty()
           && CaptionManager::instance()->captionFileText(QStringLiteral("ass")) != m_savedText;
}

int CloseGuard::unexportedFrames() const
{
    int count = 0;
    for (const ImageItem* item : m_strip->items()) {
        count += m_exported.contains(item->getPixmap().cacheKey()) ? 0 : 1;
    }
    return count;
}

bool CloseGuard::confirmClose()
{
    const bool captions = hasUnsavedCaptions();
    const int frames = unexportedFrames();
    if (!captions && frames == 0) {
        return true;
    }
    QStringList lines;
    if (captions) {
        lines << tr("The captions have changes that were not saved.");
    }
    if (frames > 0) {
        lines << tr("%Ln captured frames were never exported and will be lost.", nullptr, frames);
    }
    QMessageBox box(QMessageBox::Warning, tr("Close Glimmer"), lines.join(QLatin1Char('\n')), QMessageBox::NoButton,
                    m_window);
    box.setObjectName(QLatin1String(Confirmation::kObjectName));
    QPushButton* save = captions ? box.addButton(tr("Save captions"), QMessageBox::AcceptRole) : nullptr;
    QPushButton* discard =
        box.addButton(captions ? tr("Discard") : tr("Close anyway"), QMessageBox::DestructiveRole);
    QPushButton* cancel = box.addButton(tr("Cancel"), QMessageBox::RejectRole);
    box.setDefaultButton(save ? save : cancel);
    box.setEscapeButton(cancel);
    box.exec();
    if (box.clickedButton() == discard) {
        return true;
    }
    // Saving that fails or is cancelled keeps the window open.
    return save && box.clickedButton() == save && m_saver->save();
}
