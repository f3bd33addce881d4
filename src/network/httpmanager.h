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

    void loadCaptions(const QString& filePath, const QString& language);
    void getCaptionsByTaskId(const QString& taskId);
    void stopUploadFile();
    bool isUploading() const;

    void get(const QString& url);
    void getRequest(const QString& url, const QString& key);
    void post(const QString& url, const QJsonObject& object, int retry = 0);

    QNetworkAccessManager* networkManager() const { return m_manager; }

signals:
    void requestFinished(QString key, const QJsonObject& object, const QByteArray& data);
    void requestError(QString key, const QJsonObject& object, const QByteArray& data);

private:
    explicit HttpManager(QObject* parent = nullptr);
    static QString keyForUrl(const QString& url);

    QNetworkAccessManager* m_manager = nullptr;
    QPointer<QNetworkReply> m_uploadReply;
    QPointer<QNetworkReply> m_queryReply;
};

#endif // HTTPMANAGER_H
