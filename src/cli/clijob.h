#ifndef CLIJOB_H
#define CLIJOB_H

#include "clioptions.h"
#include "framegrabber.h"

#include <QImage>
#include <QList>
#include <QMap>
#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>

class ImageComposer;
class ProgressReporter;

// One run of glimmer-cli: the captions chosen, their frames taken by a few
// headless grabbers side by side, then either stitched into one picture or
// written one by one. Frames are used in caption order as they arrive, so only
// the canvas and a few frames are held at any time.
class CliJob : public QObject
{
    Q_OBJECT
public:
    CliJob(const CliOptions& options, const QString& workDir, ProgressReporter* progress, QObject* parent = nullptr);
    ~CliJob() override;

    void start();

signals:
    void finished(int exitCode);

private:
    struct Shot {
        int number = 0;   // 1-based caption number
        QString start;    // ASS time text
        int startMs = -1;
        double seconds = 0.0;
    };
    struct Frame {
        QImage image;
        QImage plain;
    };

    void fail(const QString& message, int exitCode = 1);
    void succeed(const QString& summary);
    bool checkOutput();
    bool addGrabber(const QString& video, int threads);
    void releaseGrabbers();
    bool chooseShots();
    void grabberReady();
    void grabberFailed(FrameGrabber::Failure failure, const QString& detail);
    void beginCapture();
    void dispatch();
    void frameArrived(int tag, const QImage& image, const QImage& plain);
    void useFrame(int index, const Frame& frame);
    bool startCanvas(const QSize& firstSize);
    void writeFrame(int index, const QImage& image);
    void frameWritten(const QString& path, const QString& error);
    void maybeFinish();
    void finishPicture();
    QString framePath(int index) const;
    QSize scaledSize(const QSize& size) const;

    CliOptions m_options;
    QString m_workDir;
    ProgressReporter* m_progress;
    QList<FrameGrabber*> m_grabbers;
    QList<Shot> m_chosen;
    QList<Shot> m_shots;
    bool m_capturing = false;
    bool m_done = false;
    bool m_finishing = false;
    int m_nextShot = 0;
    int m_nextFrame = 0;
    QMap<int, Frame> m_waiting;
    std::unique_ptr<ImageComposer> m_composer;
    QList<QImage> m_bands;
    int m_writesRunning = 0;
    int m_written = 0;
};

#endif // CLIJOB_H
