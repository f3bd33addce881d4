#ifndef AUDIOEXTRACTOR_H
#define AUDIOEXTRACTOR_H

#include <QObject>
#include <QString>

class ProcessThread;

// Extracts the sound track of a video into a 16 kHz mono file with ffmpeg, on
// the process runner's worker thread.
class AudioExtractor : public QObject
{
    Q_OBJECT
public:
    explicit AudioExtractor(QObject* parent = nullptr);

    // Starts ffmpeg and returns at once.
    void start(const QString& videoPath, const QString& outputPath);
    // Stops a running extraction; finished() then does not follow.
    void stop();
    bool isStopRequested() const { return m_stopRequested; }
    ProcessThread* thread() const { return m_thread; }

signals:
    void started();
    // ffmpeg ended (or could not be started) and nobody stopped it.
    void finished();

private:
    ProcessThread* m_thread;
    bool m_stopRequested = false;
};

#endif // AUDIOEXTRACTOR_H
