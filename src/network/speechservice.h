#ifndef SPEECHSERVICE_H
#define SPEECHSERVICE_H

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

class QNetworkReply;
class QProcess;
class QTimer;

// Makes sure the speech service answers before an upload. When the address is
// the default local one and nothing answers there, the bundled glimmer-speechd
// is started, and it is stopped again when the application quits.
class SpeechService : public QObject
{
    Q_OBJECT
public:
    using Callback = std::function<void(bool ok, const QString& message)>;

    static SpeechService* instance();

    // Calls done(true, {}) once baseUrl can take uploads, or done(false, message)
    // when the bundled service cannot be started. Other addresses are not
    // managed: done(true, {}) at once, and the upload reports their failures.
    // Never blocks; done runs on the GUI thread.
    void ensureRunning(const QString& baseUrl, const Callback& done);
    // Forgets the callbacks still waiting (the user cancelled).
    void cancelPending();
    // Stops the service this application started; nothing otherwise.
    void stop();

    bool isManaged(const QString& baseUrl) const;
    bool isStartedByUs() const;

    // The address that is served by the bundled service, the default one unless changed.
    void setManagedBaseUrl(const QString& url) { m_managedUrl = url; }
    QString managedBaseUrl() const { return m_managedUrl; }
    // The service executable; found next to the application, then on PATH, unless set.
    void setProgram(const QString& path) { m_program = path; }
    QString program() const;

signals:
    void serviceStarted();
    void serviceStopped();

private:
    explicit SpeechService(QObject* parent = nullptr);
    void probe();
    void probeFinished(bool alive);
    void startProcess();
    void finishAll(bool ok, const QString& message);

    QString m_managedUrl;
    QString m_program;
    QList<Callback> m_waiting;
    QPointer<QNetworkReply> m_probe;
    QProcess* m_process = nullptr;
    QTimer* m_retryTimer = nullptr;
    qint64 m_startDeadline = 0;
    QString m_lastError;
};

#endif // SPEECHSERVICE_H
