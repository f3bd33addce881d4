#ifndef HTTPMANAGER_H
#define HTTPMANAGER_H

#include <QByteArray>
#include <QJsonObject>
#include <QObject>
#include <QPointer>
#include <QString>

class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;

// Client of the speech-recognition service and of JSON posts (licensing).
class HttpManager : public QObject
{
    Q_OBJECT
public:
    static HttpManager* instance();

    // Base address of the speech service; a setting, local service by default.
    QString speechBaseUrl() const;

    // Speech recognition of an audio file. The result arrives as
    // requestFinished("task_id", {}, reply) and the bus event "task_id"; every
    // failure, including a {"state":"failed"} result, as
    // requestError("task_id", {"message": text for the user}, reply).
    void loadCaptions(const QString& filePath, const QString& language);
    void getCaptionsByTaskId(const QString& taskId);
    // Cancels the recognition in flight: no signal follows.
    void stopUploadFile();
    bool isUploading() const;
    // The upload is done and the service is asked for the result.
    bool isAwaitingResult() const;

    // The "message" of a JSON error body, or the fallback.
    static QString replyMessage(const QByteArray& body, const QString& fallback);

    void get(const QString& url);
    void getRequest(const QString& url, const QString& key);
    void post(const QString& url, const QJsonObject& object, int retry = 0);

    QNetworkAccessManager* networkManager() const { return m_manager; }

signals:
    void requestFinished(QString key, const QJsonObject& object, const QByteArray& data);
    void requestError(QString key, const QJsonObject& object, const QByteArray& data);
    // The audio never reached recognition (unreadable file, no service, the
    // upload refused or failed): the reason in words for the user. Not a
    // request error, so nothing reaches the bus.
    void submitFailed(QString reason);

private:
    explicit HttpManager(QObject* parent = nullptr);
    static QString keyForUrl(const QString& url);
    void submit(const QString& filePath, const QString& language);

    QNetworkAccessManager* m_manager = nullptr;
    QPointer<QNetworkReply> m_uploadReply;
    QPointer<QNetworkReply> m_queryReply;
    QString m_taskId;            // task of the query in flight
    quint64 m_generation = 0;    // bumped by stopUploadFile: late callbacks are dropped
    bool m_waitingForService = false;
};

#endif // HTTPMANAGER_H
