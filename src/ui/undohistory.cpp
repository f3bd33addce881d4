#include "undohistory.h"

#include "appconfig.h"
#include "globalmanager.h"
#include "imageitem.h"
#include "translatemanager.h"

#include <QAction>
#include <QTimer>
#include <QUndoCommand>
#include <QUndoStack>

namespace {

// A change of the captions between two snapshots. The change itself has
// happened when the step is pushed, so the first redo does nothing.
class CaptionsCommand : public QUndoCommand
{
public:
    using Restore = std::function<void(const CaptionSnapshot::Ptr&)>;
    CaptionsCommand(const QString& text, CaptionSnapshot::Ptr before, CaptionSnapshot::Ptr after, Restore restore)
        : QUndoCommand(text)
        , m_before(std::move(before))
        , m_after(std::move(after))
        , m_restore(std::move(restore))
    {
    }
    void undo() override { m_restore(m_before); }
    void redo() override
    {
        if (m_done) {
            m_restore(m_after);
        }
        m_done = true;
    }

private:
    CaptionSnapshot::Ptr m_before;
    CaptionSnapshot::Ptr m_after;
    Restore m_restore;
    bool m_done = false;
};

// A step that holds pictures of frames; release() lets them go and makes the
// step obsolete, so the stack drops it instead of undoing it.
class FrameStep : public QUndoCommand
{
public:
    FrameStep(const QString& text, ImagesWidget* strip)
        : QUndoCommand(text)
        , m_strip(strip)
    {
    }
    virtual void release() = 0;

protected:
    ImagesWidget* m_strip;
    bool m_done = false;
};

// Frames deleted one by one or by clearing the strip.
class FramesRemovedCommand : public FrameStep
{
public:
    FramesRemovedCommand(const QString& text, ImagesWidget* strip, QList<ImagesWidget::Frame> frames)
        : FrameStep(text, strip)
        , m_frames(std::move(frames))
    {
    }
    void undo() override { m_strip->restoreFrames(m_frames); }
    void redo() override
    {
        if (m_done) {
            QList<int> positions;
            for (const ImagesWidget::Frame& frame : qAsConst(m_frames)) {
                positions.append(frame.position);
            }
            m_strip->removeFrames(positions);
        }
        m_done = true;
    }
    void release() override
    {
        m_frames.clear();
        setObsolete(true);
    }

private:
    QList<ImagesWidget::Frame> m_frames;
};

// Frames captured again after a caption edit: their pictures before and after.
class RecaptureCommand : public FrameStep
{
public:
    RecaptureCommand(const QString& text, ImagesWidget* strip, QList<int> positions, QList<QPixmap> before,
                     QList<QPixmap> after)
        : FrameStep(text, strip)
        , m_positions(std::move(positions))
        , m_before(std::move(before))
        , m_after(std::move(after))
    {
    }
    void undo() override { m_strip->setFramePixmaps(m_positions, m_before); }
    void redo() override
    {
        if (m_done) {
            m_strip->setFramePixmaps(m_positions, m_after);
        }
        m_done = true;
    }
    void release() override
    {
        m_before.clear();
        m_after.clear();
        setObsolete(true);
    }

private:
    QList<int> m_positions;
    QList<QPixmap> m_before;
    QList<QPixmap> m_after;
};

} // namespace

UndoHistory::UndoHistory(ImagesWidget* strip, QObject* parent)
    : QObject(parent)
    , m_strip(strip)
    , m_stack(new QUndoStack(this))
    , m_undo(new QAction(this))
    , m_redo(new QAction(this))
{
    m_stack->setUndoLimit(kUndoLimit);
    m_undo->setShortcut(QKeySequence::Undo);
    m_redo->setShortcuts({QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_Z), QKeySequence(Qt::CTRL + Qt::Key_Y)});
    m_undo->setEnabled(false);
    m_redo->setEnabled(false);
    connect(m_undo, &QAction::triggered, m_stack, &QUndoStack::undo);
    connect(m_redo, &QAction::triggered, m_stack, &QUndoStack::redo);
    connect(m_stack, &QUndoStack::canUndoChanged, m_undo, &QAction::setEnabled);
    connect(m_stack, &QUndoStack::canRedoChanged, m_redo, &QAction::setEnabled);
    connect(m_stack, &QUndoStack::undoTextChanged, this, &UndoHistory::retranslate);
    connect(m_stack, &QUndoStack::redoTextChanged, this, &UndoHistory::retranslate);
    connect(strip, &ImagesWidget::framesRemoved, this, &UndoHistory::framesRemoved);
    connect(GlobalManager::instance(), &GlobalManager::globalEvent, this, &UndoHistory::globalEventHandle);
    connect(TranslateManager::instance(), &TranslateManager::notify, this, &UndoHistory::retranslate);
    retranslate();
    reset();
}

void UndoHistory::retranslate()
{
    const QString undo = m_stack->undoText();
    const QString redo = m_stack->redoText();
    m_undo->setText(undo.isEmpty() ? tr("Undo") : tr("Undo %1").arg(undo));
    m_redo->setText(redo.isEmpty() ? tr("Redo") : tr("Redo %1").arg(redo));
}

void UndoHistory::reset()
{
    m_stack->clear();
    m_current = CaptionSnapshot::take(m_shownFile);
}

void UndoHistory::recordCaptions(const QString& text, const std::function<void()>& change)
{
    const CaptionSnapshot::Ptr before = m_current;
    ++m_busy;
    change();
    --m_busy;
    pushCaptions(text, before);
}

void UndoHistory::captionsLoaded(const QString& shownFile)
{
    m_shownFile = shownFile;
    pushCaptions(tr("Load subtitles"), m_current);
}

void UndoHistory::pushCaptions(const QString& text, CaptionSnapshot::Ptr before)
{
    m_current = CaptionSnapshot::take(m_shownFile);
    m_stack->push(new CaptionsCommand(text, before, m_current,
                                      [this](const CaptionSnapshot::Ptr& state) { restoreCaptions(state); }));
}

void UndoHistory::restoreCaptions(const CaptionSnapshot::Ptr& state)
{
    ++m_busy;
    state->restore();
    --m_busy;
    m_current = state;
    emit captionsRestored();
}

void UndoHistory::globalEventHandle(const QString& eventName, const QVariant& value)
{
    if (eventName == AppConfig::UPDATE_CAPTION || eventName == AppConfig::CREATE_CAPTION_COMPLETE) {
        m_shownFile = value.toString();
        if (m_busy > 0) {
            return;
        }
        if (eventName == AppConfig::CREATE_CAPTION_COMPLETE && !m_opening) {
            pushCaptions(tr("Automatic captions"), m_current);
        } else {
            // A rewrite that is no step of its own (texts shown or hidden): the base moves on.
            m_current = CaptionSnapshot::take(m_shownFile);
        }
    } else if (eventName == AppConfig::REMOVE_CAPTION) {
        m_shownFile.clear();
    } else if (eventName == AppConfig::LOAD_FILE_COMPLETE) {
        // The new video's empty working file that follows is its base, no step.
        reset();
        m_opening = true;
        QTimer::singleShot(0, this, [this]() { m_opening = false; });
    }
}

void UndoHistory::framesRemoved(const QList<ImagesWidget::Frame>& frames)
{
    const bool all = frames.size() == m_strip->items().size() && frames.size() > 1;
    pushFrameStep(new FramesRemovedCommand(all ? tr("Clear frames") : tr("Delete frame"), m_strip, frames));
}

void UndoHistory::framesRecaptured(const QList<ImageItem*>& items, const QList<QPixmap>& before)
{
    QList<int> positions;
    QList<QPixmap> old;
    QList<QPixmap> now;
    for (int i = 0; i < items.size(); ++i) {
        const int position = m_strip->items().indexOf(items.at(i));
        if (position >= 0) {
            positions.append(position);
            old.append(before.at(i));
            now.append(items.at(i)->getPixmap());
        }
    }
    if (!positions.isEmpty()) {
        pushFrameStep(new RecaptureCommand(tr("Re-capture frames"), m_strip, positions, old, now));
    }
}

void UndoHistory::pushFrameStep(QUndoCommand* command)
{
    m_stack->push(command);
    // Pictures are kept for the newest steps only; older frame steps go.
    int kept = 0;
    for (int i = m_stack->count() - 1; i >= 0; --i) {
        auto* step = dynamic_cast<FrameStep*>(const_cast<QUndoCommand*>(m_stack->command(i)));
        if (!step || step->isObsolete()) {
            continue;
        }
        if (++kept > kFrameSteps) {
            step->release();
        }
    }
}
