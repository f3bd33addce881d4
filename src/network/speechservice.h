#ifndef SPEECHSERVICE_H
#define SPEECHSERVICE_H

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

class QNetworkAccessManager;
class QNetworkRequest;
class QProcess;
class QProcessEnvironment;
class QTimer;

// The bundled speech service. The managed address (the default setting)
// stands for it: the application starts its own glimmer-speechd on a free
// loopback port with a secret token for the run, talks to that one only, and
// stops it when the application quits. Whatever else answers at the managed
// address is never used. Any other address is the user's own service.
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
    // The engine changed: the running service stops, the next request starts
    // one with the new engine, and its languages are asked anew.
    void restart();

    // Asks the service at baseUrl which languages its engine recognises
    // (starting the bundled one if need be); done(false, message) when it
    // cannot be reached. A service that does not say takes any language.
    void fetchLanguages(const QString& baseUrl, const Callback& done);
    bool languagesKnown() const { return m_languagesKnown; }
    // Whether the engine recognises the language ("fr-FR", "yue"); true while unknown.
    bool recognises(const QString& code) const;

    // The environment glimmer-speechd runs with: the stored speech engine's
    // server, unless the environment names one, and the token when not empty.
    static QProcessEnvironment serviceEnvironment(const QByteArray& token);
    // "http://HOST:PORT" from the service's "listening on" line; empty for other lines.
    static QString listeningUrl(const QString& line);

    bool isManaged(const QString& baseUrl) const;
    bool isStartedByUs() const;

    // Where requests for baseUrl go: the bundled service's own address for the
    // managed one, baseUrl itself otherwise.
    QString serviceUrl(const QString& baseUrl) const;
    // Adds the bundled service's token to a request addressed to it.
    void authorize(QNetworkRequest& request) const;

    // The setting value that stands for the bundled service, the default one unless changed.
    void setManagedBaseUrl(const QString& url) { m_managedUrl = url; }
    QString managedBaseUrl() const { return m_managedUrl; }
    // The service executable; found next to the application, then on PATH, unless set.
    void setProgram(const QString& path) { m_program = path; }
    QString program() const;

signals:
    void serviceStarted();
    void serviceStopped();
    // The recognised languages became known, or unknown again.
    void languagesChanged();

private:
    explicit SpeechService(QObject* parent = nullptr);
    void startProcess();
    void readOutput(QProcess* process);
    void finishAll(bool ok, const QString& message);

    QString m_managedUrl;
    QString m_program;
    QList<Callback> m_waiting;
    QProcess* m_process = nullptr;
    QTimer* m_startTimer = nullptr;
    QString m_serviceUrl; // where the bundled service listens, once it said so
    QByteArray m_token;
    QString m_lastError;
    QNetworkAccessManager* m_network = nullptr;
    QStringList m_languages; // primary subtags, lower case
    bool m_anyLanguage = true;
    bool m_languagesKnown = false;
    quint64 m_generation = 0; // bumped by restart: answers from before are dropped
};

#endif // SPEECHSERVICE_H
