#ifndef MPVWIDGET_H
#define MPVWIDGET_H

#include <QImage>
#include <QOpenGLWidget>
#include <QPair>
#include <QPixmap>
#include <QString>
#include <QVariant>

#include <mpv/client.h>
#include <mpv/render_gl.h>

class QTimer;

// The video surface: one libmpv client handle drawn through libmpv's OpenGL
// render API into this widget. libmpv's own threads only post calls to the
// GUI thread; every other libmpv call is made here, on the GUI thread.
class MpvWidget : public QOpenGLWidget
{
    Q_OBJECT
public:
    enum PlayStatus : qint32 {
        Stop = 0,
        Play = 1,
        Pause = 2,
    };
    Q_ENUM(PlayStatus)

    // Why playback (re)started: a file load, an ordinary seek, or the exact
    // seek made for a capture (only after that seek's reply arrived).
    enum RestartKind {
        RestartAfterLoad = 0,
        RestartAfterSeek = 1,
        RestartAfterCaptureSeek = 2,
    };
    Q_ENUM(RestartKind)

    // reply_userdata of the asynchronous calls; they come back in the reply events.
    enum RequestId : quint64 {
        RequestLoadFile = 0,
        RequestVolume = 3,
        RequestMute = 5,
        RequestTimePos = 6,
        RequestSpeed = 7,
        RequestPercentPos = 13,
        RequestSubAdd = 14,
        RequestSubRemove = 15,
        RequestCaptureSeek = 16,
        RequestObserveEof = 20,
        RequestObserveDuration = 21,
        RequestObserveTimePos = 22,
        RequestSnapshot = 23,
    };

    // Throws std::runtime_error when libmpv cannot be created or initialised.
    explicit MpvWidget(QWidget* parent = nullptr);
    ~MpvWidget() override;

    void loadFile(const QString& path);
    void play();
    void resumePlay();
    void pause();
    void stop();
    void seekToNextFrame();
    void seekToPreviousFrame();
    void seekToPosition(double seconds);
    void seekToPercent(double percent);
    void seekToPositionForCapture(double seconds);
    void setVolume(int volume);
    void setMute(bool mute);
    void setPlaySpeed(double speed);
    void subTitleAdd(const QString& path);
    void subTitleRemove(int id);
    void setPlayerStatus(PlayStatus status) { playStatus = status; }

    // A runtime option or property as text (for example "ao" = "null"); true on success.
    bool setOption(const QString& name, const QString& value);
    // Ids of the subtitle tracks mpv has loaded from external files.
    QList<int> externalSubtitleTracks() const;
    // A picture track that is not just a cover image.
    bool hasVideoTrack() const;

    PlayStatus getPlayStatus() const { return playStatus; }
    QString getFilePath() const { return filePath; }
    double getTotalSeconds();
    double getCurrentSecond();
    double getCurrentPlayPercent();
    int getTotalFrame();
    int getCurrentFrame();
    bool isMute();
    int getFrameInSecond() const { return frameInSecond; }
    int getNowFrameInSecond();
    QPair<int, int> getMpvPlayerSize();
    bool isEofReached() const { return eofReached; }
    int pollInterval() const;
    bool hasRenderContext() const { return mpv_gl != nullptr; }
    // The position libmpv last reported by itself. Unlike getCurrentSecond()
    // it never waits for the player, which right after a seek is itself
    // waiting for this thread to draw the frame (up to 200 ms).
    double reportedSecond() const { return observedTimePos; }

    // The frame on screen at video resolution, with the subtitles burnt in.
    // The path is accepted for callers that name a target; nothing is written.
    QPixmap takeSnapshot(const QString& path = QString());
    // The same frame without blocking: libmpv renders it while the window keeps
    // drawing, and snapshotTaken() brings it (null on failure). False when the
    // request could not be made; nothing follows then.
    bool requestSnapshot();

    static int roundHalfAwayFromZero(double value);

signals:
    void getMpvProperty(QString commond, double value);
    void mpvLaunchEvent();
    void mpvEvents(mpv_event* event);
    void snapshotReady(QImage image);
    void snapshotTaken(QPixmap pixmap);
    void error(QString text);
    void playbackRestarted(MpvWidget::RestartKind kind);
    // A file could not be opened or decoded (mpv ended it with an error).
    void loadFailed(QString path, QString reason);
    void endReached(bool reached);

public slots:
    void handleWakeupCallback();
    void maybeUpdate();

protected:
    void initializeGL() override;
    void paintGL() override;

private:
    static void wakeupCallback(void* ctx);
    static void on_update(void* ctx);
    static void* get_proc_address(void* ctx, const char* name);

    void initTimer();
    void mpvEventHandle(mpv_event* event);
    void render();
    void freeRenderContext();
    void issueLoad();
    void failLoad(const QString& reason);
    int runCommand(const QVariantList& args);
    QPixmap pixmapFromScreenshot(const mpv_node& result);

    mpv_handle* mpv = nullptr;
    mpv_render_context* mpv_gl = nullptr;
    QMetaObject::Connection contextDestroyed;
    PlayStatus playStatus = Stop;
    QString filePath;
    QTimer* timer = nullptr;
    int currentFrame = 0;
    int totalFrame = 0;
    int frameInSecond = 0;
    double totalSeconds = 0.0;
    double currentSecond = 0.0;
    QPair<qint32, qint32> videoSize{0, 0};

    // A load asked for before the render context exists waits for it, so
    // that mpv's video output finds a context when it opens.
    bool loadPending = false;
    bool loadRestartPending = false;
    bool loadActive = false;
    quint64 loadsIssued = 0;
    quint64 loadsAnswered = 0;
    bool captureSeekPending = false;
    bool captureSeekReplied = false;
    bool eofReached = false;
    double observedDuration = -1.0;
    double observedTimePos = -1.0;
};

Q_DECLARE_METATYPE(MpvWidget::RestartKind)

#endif // MPVWIDGET_H
