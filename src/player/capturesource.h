#ifndef CAPTURESOURCE_H
#define CAPTURESOURCE_H

#include <QObject>
#include <QPixmap>

// What the capture flows need from a player: exact seeks, the frame on screen
// with its subtitles, and word of when a seek's frame is ready. The player
// panel provides one; tests provide their own.
class CaptureSource : public QObject
{
    Q_OBJECT
public:
    explicit CaptureSource(QObject* parent = nullptr)
        : QObject(parent)
    {
    }

    virtual bool isLoaded() const = 0;
    virtual void pause() = 0;
    // Asks for the exact frame at seconds; seekAnswered() and then frameReady() follow.
    virtual void seekForCapture(double seconds) = 0;
    // The frame on screen at video resolution with the subtitles burnt in; null on failure.
    virtual QPixmap snapshot() = 0;
    // The same without blocking: snapshotTaken() follows, from the event loop.
    virtual void requestSnapshot();
    virtual double currentSecond() = 0;
    virtual int currentFrame() = 0;
    // Length of the loaded video in seconds; negative when unknown.
    virtual double duration() = 0;
    // 1 while a capture-checked pass runs, 0 otherwise: decides how the player
    // reports a capture seek's reply to the rest of the program.
    virtual void setCaptureType(int type) = 0;

signals:
    // The player accepted the capture seek (its reply arrived).
    void seekAnswered();
    // The frame of that seek is decoded and on screen.
    void frameReady();
    // A subtitle file was added to the player (its reply arrived).
    void subtitlesLoaded();
    // The frame asked for with requestSnapshot(); null on failure.
    void snapshotTaken(QPixmap pixmap);
};

#endif // CAPTURESOURCE_H
