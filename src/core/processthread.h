#ifndef PROCESSTHREAD_H
#define PROCESSTHREAD_H

#include <QAtomicInt>
#include <QIODevice>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QThread>

// Runs one external tool on a worker thread so the GUI never waits for it.
class ProcessThread : public QThread
{
    Q_OBJECT
public:
    explicit ProcessThread(QObject* parent = nullptr);
    ~ProcessThread() override;

    void setCommand(const QString& program, const QStringList& arguments, QIODevice::OpenMode mode);
    void setProcessWorkingDirectory(const QString& dir);
    void setWaitFinishTime(int ms);
    // Waits 200 ms, then has the worker kill the child. Safe from any thread.
    void stopProcess();

    QString program() const { return m_program; }
    QStringList arguments() const { return m_arguments; }
    qint64 processId() const { return m_processId; }

signals:
    void processOutput(QString text);
    void processError(QString text);
    void processStart();
    void processFailed();
    void processStop();

protected:
    void run() override;

private slots:
    void onReadyReadStandardOutput();
    void onReadyReadStandardError();
    void onErrorOccurred(QProcess::ProcessError error);

private:
    // Waits up to the finish limit; true when the child ended (or was stopped).
    bool waitForEnd();

    QString m_program;
    QStringList m_arguments;
    QIODevice::OpenMode m_openMode = QIODevice::ReadWrite;
    QProcess* m_process = nullptr;
    qint64 m_processId = 0;
    int m_waitFinishTime = 120000;
    QAtomicInt m_stopRequested;
};

#endif // PROCESSTHREAD_H
