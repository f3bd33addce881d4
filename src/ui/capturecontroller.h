#ifndef CAPTURECONTROLLER_H
#define CAPTURECONTROLLER_H

#include <QList>
#include <QObject>
#include <QPixmap>
#include <QPointer>

class CaptionInfo;
class CaptureSource;
class ImageItem;
class ImagesWidget;
class QTimer;

// The three ways frames are captured:
//  - now: the frame on screen;
//  - checked: the frame at the start of every ticked caption, in list order;
//  - again after a style edit: the strip's frames at their own times, all of
//    them or the one at the current position.
// Every capture after a seek waits for the seek's answer, then for 500 ms and
// for that seek's frame to be on screen, before it asks for the snapshot (which
// the player renders while the window keeps drawing):
//   Idle -> SeekSent -> SeekAnswered -> FrameReady -> Captured -> (next seek | Idle)
class CaptureController : public QObject
{
    Q_OBJECT
public:
    enum class State { Idle, SeekSent, SeekAnswered, FrameReady, Captured };
    Q_ENUM(State)
    enum class Pass { None, Checked, RecaptureAll, RecaptureSingle };
    Q_ENUM(Pass)

    // A seek whose frame never shows must not stall a pass for ever: after its
    // answer the frame is awaited this long, the answer itself twice as long.
    static constexpr int kFrameTimeoutMs = 5000;
    // The fixed pause between a seek's answer and its snapshot.
    static constexpr int kSettleMs = 500;

    CaptureController(CaptureSource* source, ImagesWidget* strip, QObject* parent = nullptr);

    State state() const { return m_state; }
    Pass pass() const { return m_pass; }
    QList<CaptionInfo*> queue() const { return m_queue; }
    CaptionInfo* editedCaption() const { return m_editedCaption; }
    bool isRecaptureAllPending() const { return m_recaptureAllPending; }
    bool isBusy() const { return m_pass != Pass::None; }
    void setFrameTimeout(int ms) { m_frameTimeoutMs = ms; }

    // The seek time of a caption: its start in milliseconds divided in single
    // precision, which decides the frame hit near a frame boundary.
    static double seekSeconds(const CaptionInfo* caption);

public slots:
    void captureNow();
    void startCaptureChecked();
    // A caption's text or style was edited (isAll: applied to all captions);
    // the frames are captured again once the rewritten subtitles are loaded.
    void captionEdited(CaptionInfo* caption, bool isAll);
    // The caption being edited in the list (null: none).
    void setEditedCaption(CaptionInfo* caption);
    // The user cancelled: no new seek starts; the frame in hand is kept.
    void cancel();
    // The captions were put back as they were (undo): the next subtitle
    // reload is not an edit and re-captures nothing.
    void forgetEdit();

signals:
    // Show a busy dialog with this text / hide it.
    void busy(QString text);
    void idle();
    void failed(QString title, QString message);
    void stateChanged(CaptureController::State state);
    // Every ticked caption was captured (skipped: how many could not be).
    void checkedPassFinished(int skipped);
    // A re-capture after a style edit finished (one frame or all of them).
    void recaptureFinished();
    // A strip frame got its new picture.
    void frameReplaced(ImageItem* item);
    // A re-capture pass ended (finished or not) having replaced the pictures
    // of these frames; before: their pictures until then.
    void framesRecaptured(const QList<ImageItem*>& items, const QList<QPixmap>& before);

private:
    void subtitlesLoaded();
    void seekAnswered();
    void frameReady();
    void showBusy(const QString& text);
    void seekTo(double seconds);
    void setState(State state);
    void tryCapture();
    void snapshotTaken(const QPixmap& pixmap);
    void captureCheckedStep(const QPixmap& pixmap);
    void recaptureSingleStep(const QPixmap& pixmap);
    void recaptureAllStep(const QPixmap& pixmap);
    bool seekNextQueued();
    void finishPass();
    void replaceFrame(ImageItem* item, const QPixmap& pixmap);

    CaptureSource* m_source;
    QPointer<ImagesWidget> m_strip;
    State m_state = State::Idle;
    Pass m_pass = Pass::None;
    int m_frameTimeoutMs = kFrameTimeoutMs;
    bool m_settled = false;
    // A snapshot was asked for and has not come back yet.
    bool m_shooting = false;
    bool m_busyShown = false;
    QTimer* m_settleTimer;
    QTimer* m_frameTimeout;

    QList<CaptionInfo*> m_queue;
    int m_skipped = 0;
    QList<QPixmap> m_recapturedPixmaps;
    QList<ImageItem*> m_recaptureItems;
    QPointer<ImageItem> m_currentItem;
    // Frames replaced in this pass and their pictures before it.
    QList<QPointer<ImageItem>> m_replacedItems;
    QList<QPixmap> m_replacedBefore;
    CaptionInfo* m_editedCaption = nullptr;
    bool m_recaptureAllPending = false;
};

#endif // CAPTURECONTROLLER_H
