#ifndef UNDOHISTORY_H
#define UNDOHISTORY_H

#include "captionsnapshot.h"
#include "imageswidget.h"

#include <QObject>
#include <QPixmap>
#include <functional>

class ImageItem;
class QAction;
class QUndoCommand;
class QUndoStack;

// The window's undo history of the open video: caption edits, inserts, loads
// and clears, and the frames removed from or re-captured in the strip.
// Opening another video starts a new history.
//
// Caption steps keep snapshots of the caption list (shared between
// neighbouring steps); frame steps keep pictures, which are large, so only
// the last kFrameSteps of them stay undoable.
class UndoHistory : public QObject
{
    Q_OBJECT
public:
    // Steps in all; older ones fall off the bottom.
    static constexpr int kUndoLimit = 50;
    // Steps that hold pictures (deleted, cleared or re-captured frames).
    static constexpr int kFrameSteps = 5;

    UndoHistory(ImagesWidget* strip, QObject* parent = nullptr);

    QUndoStack* stack() const { return m_stack; }
    QAction* undoAction() const { return m_undo; }
    QAction* redoAction() const { return m_redo; }

    // Runs a change of the captions as one undoable step named text.
    void recordCaptions(const QString& text, const std::function<void()>& change);
    // The captions were replaced from a subtitle file now shown from shownFile.
    void captionsLoaded(const QString& shownFile);
    // Frames of the strip that a re-capture pass gave new pictures.
    void framesRecaptured(const QList<ImageItem*>& items, const QList<QPixmap>& before);
    // Starts afresh: nothing to undo, the current captions as the base.
    void reset();
    void retranslate();


signals:
    // The caption list was put back by an undo or redo: panels rebuild their rows.
    void captionsRestored();

private:
    void globalEventHandle(const QString& eventName, const QVariant& value);
    void framesRemoved(const QList<ImagesWidget::Frame>& frames);
    void pushCaptions(const QString& text, CaptionSnapshot::Ptr before);
    void pushFrameStep(QUndoCommand* command);
    void restoreCaptions(const CaptionSnapshot::Ptr& state);

    ImagesWidget* m_strip;
    QUndoStack* m_stack;
    QAction* m_undo;
    QAction* m_redo;
    CaptionSnapshot::Ptr m_current;
    QString m_shownFile;
    // Inside a recorded change or a restore: the bus events it raises are ours.
    int m_busy = 0;
    // A video is being opened: its captions are the new base.
    bool m_opening = false;
};

#endif // UNDOHISTORY_H
