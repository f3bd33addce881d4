#ifndef FRAMEGRABBER_H
#define FRAMEGRABBER_H

#include <QByteArray>
#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>

#include <mpv/client.h>

class QTimer;

// Frames of a video with its subtitles burnt in, without any window or GPU:
// one libmpv handle with no video output, frames taken with "screenshot-raw".
// A grab seeks exactly as the player's capture does and takes the frame once
// that seek's frame is decoded (the playback restart after the seek's reply),
// never after a fixed wait. Several instances run side by side on their own
// libmpv threads; all calls and signals are on the thread that owns the object.
class FrameGrabber : public QObject
{
    Q_OBJECT
public:
    enum Failure {
        LoadFailed,      // the file cannot be opened or decoded
        NoVideo,         // the file has no video stream
        SubtitlesFailed, // the player refused the subtitle file
        GrabFailed,      // a seek or a frame failed
        TimedOut,        // the player did not answer
    };
    Q_ENUM(Failure)

    // Throws std::runtime_error when libmpv cannot be started.
    explicit FrameGrabber(QObject* parent = nullptr);
    ~FrameGrabber() override;

    // Decoding threads for this instance (0: as many as libmpv likes). Before open().
    void setDecoderThreads(int threads);
    // Longest wait for any answer of the player before giving up.
    void setTimeout(int ms) { m_timeoutMs = ms; }

    // Loads the video, paused on its first frame. ready() or failed() follows.
    void open(const QString& videoPath);
    // Renders this subtitle file over every frame (as the player's sub-add does);
    // may be called before the video has loaded. ready() or failed() follows.
    void setSubtitles(const QString& path);
    // Loaded, with the subtitles asked for in place, and no grab running.
    bool isReady() const;

    // Takes the frame an exact seek to `seconds` lands on, subtitles burnt in,
    // and the same frame without them when `withPlain`. frameReady() or failed() follows.
    void grab(int tag, double seconds, bool withPlain);

    double duration() const { return m_duration; }
    QString videoPath() const { return m_videoPath; }

    // A caption's start as the capture seeks it: divided in single precision on
    // purpose, as that decides the frame hit near a frame boundary.
    static double captureSeconds(int startMs);
    // The time argument of the capture seek: the shortest text that reads back exactly.
    static QByteArray seekArgument(double seconds);
    // A "screenshot-raw" result as an RGB32 image (mpv's fourth byte is padding,
    // not alpha); null, with what was wrong in *problem, when it holds no frame.
    static QImage imageFromScreenshot(const mpv_node& result, QByteArray* problem = nullptr);

signals:
    void ready();
    void frameReady(int tag, QImage image, QImage plain);
    void failed(FrameGrabber::Failure failure, QString detail);

private slots:
    void drainEvents();

private:
    enum State { Idle, Loading, Loaded, Seeking, Shooting, Broken };
    enum RequestId : quint64 { RequestLoad = 1, RequestSubAdd, RequestSeek, RequestShot, RequestPlainShot };

    static void wakeup(void* ctx);
    void handleEvent(mpv_event* event);
    void fileLoaded();
    void addPendingSubtitles();
    void shoot();
    void finishShot();
    void fail(Failure failure, const QString& detail);
    void arm();

    mpv_handle* m_mpv = nullptr;
    QTimer* m_watchdog = nullptr;
    int m_timeoutMs = 60000;
    State m_state = Idle;
    QString m_videoPath;
    bool m_fileLoaded = false;
    double m_duration = -1.0;
    QString m_wantedSubtitles;
    QString m_addedSubtitles;
    bool m_subAddPending = false;

    int m_tag = -1;
    bool m_withPlain = false;
    bool m_seekReplied = false;
    int m_shotsPending = 0;
    QImage m_image;
    QImage m_plain;
};

Q_DECLARE_METATYPE(FrameGrabber::Failure)

#endif // FRAMEGRABBER_H
