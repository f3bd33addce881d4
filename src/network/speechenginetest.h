#ifndef SPEECHENGINETEST_H
#define SPEECHENGINETEST_H

#include "speechengine.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTemporaryDir>

#include <memory>

class QNetworkAccessManager;
class QNetworkReply;
class QProcess;
class QTimer;

// Tries a speech engine before it is kept: starts a speech service of its own
// with that engine, sends it a second of generated sound and says what
// happened. Nothing of the running service changes.
class SpeechEngineTest : public QObject
{
    Q_OBJECT
public:
    explicit SpeechEngineTest(QObject* parent = nullptr);
    ~SpeechEngineTest() override;

    void start(const SpeechEngine& engine);
    // Stops the test; finished() does not follow.
    void cancel();
    bool isRunning() const { return m_running; }

    // Longest wait for the server's answer, in seconds.
    void setTimeout(int seconds) { m_timeoutSeconds = seconds; }

    // A WAV file of a quiet tone, 16 kHz mono.
    static QByteArray toneClip(int milliseconds);

signals:
    // ok: the engine answered; message: what happened, for the user.
    void finished(bool ok, QString message);

private:
    void listening(const QString& url);
    void submitted(QNetworkReply* reply, const QString& url);
    void done(bool ok, const QString& message);

    SpeechEngine m_engine;
    QNetworkAccessManager* m_network;
    QProcess* m_process = nullptr;
    QTimer* m_deadline;
    std::unique_ptr<QTemporaryDir> m_dir;
    QByteArray m_token;
    QPointer<QNetworkReply> m_reply;
    QString m_lastError;
    int m_timeoutSeconds = 30;
    bool m_running = false;
};

#endif // SPEECHENGINETEST_H
