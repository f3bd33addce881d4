#ifndef CAPTIONFILEFLOW_H
#define CAPTIONFILEFLOW_H

#include <QObject>
#include <QString>

#include <memory>

class QThread;
class QWidget;

// Local subtitle files: choosing one, converting an SRT, loading it into the
// caption store. The conversion and the reading run on a thread of their own;
// the records are taken into the store on the GUI thread once they are ready.
class CaptionFileFlow : public QObject
{
    Q_OBJECT
public:
    explicit CaptionFileFlow(QWidget* window);
    ~CaptionFileFlow() override;

    // The open dialog; empty when cancelled.
    QString chooseFile();
    // Starts loading path (a load still running is given up); finished() or
    // cancelled() tells the outcome.
    void load(const QString& path);
    bool isLoading() const { return m_thread != nullptr; }

public slots:
    // Gives up the running load: the caption store stays as it was.
    void cancel();

signals:
    // What the work is doing; percent is -1 while it cannot be told.
    void progress(QString text, int percent);
    // assPath: the file the player should show (empty: nothing new to show);
    // problem: what the user should be told under title (empty when all went well).
    void finished(QString assPath, QString title, QString problem);
    void cancelled();

private:
    struct Job;
    void stopThread();
    void jobDone(const std::shared_ptr<Job>& job);

    QWidget* m_window;
    QThread* m_thread = nullptr;
    std::shared_ptr<Job> m_job;
};

#endif // CAPTIONFILEFLOW_H
