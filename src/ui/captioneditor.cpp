#include "captioneditor.h"

#include "captionmanager.h"
#include "capturecontroller.h"
#include "capturesource.h"

CaptionEditor::CaptionEditor(CaptureSource* player, CaptureController* capture, QObject* parent)
    : QObject(parent)
    , m_player(player)
    , m_capture(capture)
{
}

void CaptionEditor::textEdited(CaptionInfo* caption)
{
    CaptionManager* captions = CaptionManager::instance();
    if (captions->getCaptions().isEmpty()) {
        return;
    }
    CaptionInfo* target = caption ? caption : captions->getCaptions().constFirst();
    if (caption) {
        // A text edit from the list: the re-capture follows the single-caption path.
        m_capture->captionEdited(caption, false);
    }
    m_player->pause();
    captions->changeCaptionNew(target, false);
    emit captionChanged(caption);
}

void CaptionEditor::styleEdited(CaptionInfo* caption, bool isAll)
{
    if (!m_player->isLoaded()) {
        return;
    }
    m_capture->captionEdited(caption, isAll);
    CaptionManager::instance()->changeCaptionNew(caption, isAll);
    emit captionChanged(isAll ? nullptr : caption);
}
