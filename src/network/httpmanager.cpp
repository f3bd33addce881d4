#include "httpmanager.h"

#include "appconfig.h"
#include "globalmanager.h"

#include <QDebug>
#include <QFile>
#include <QHttpMultiPart>
#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>
#include <QUrlQuery>

HttpManager* HttpManager::instance()
{
    static HttpManager* s_instance = new HttpManager();
    return s_instance;
}

HttpManager::HttpManager(QObject* parent)
    : QObject(parent)
    , m_manager(new QNetworkAccessManager(this))
{
}

QString HttpManager::speechBaseUrl() const
{
    QString base = GlobalManager::instance()
                       ->readSettings(AppConfig::SPEECH_SERVER_URL, AppConfig::DEFAULT_SPEECH_SERVER_URL)
                       .toString();
    while (base.endsWith(QLatin1Char('/'))) {
        base.chop(1);
    }
    return base;
}

QString HttpManager::keyForUrl(const QString& url)
{
    // The key of a JSON post is the last path segment (".../license/register" -> "register").
    const QString path = QUrl(url).path();
    return path.section(QLatin1Char('/'), -1, -1, QString::SectionSkipEmpty);
}

bool HttpManager::isUploading() const
{
    return (m_uploadReply && m_uploadReply->isRunning()) || (m_queryReply && m_queryReply->isRunning());
}

void HttpManager::loadCaptions(const QString& filePath, const QString& language)
{
    qDebug() << "start loadCaptions";
    QUrl url(speechBaseUrl() + QStringLiteral("/api/speech/submit"));
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("language"), language);
    url.setQuery(query);
    QNetworkRequest request(url);

    auto* file = new QFile(filePath);
    if (!file->open(QIODevice::ReadOnly)) {
        qDebug() << "Failed to open file";
        delete file;
        QJsonObject error;
        error.insert(QStringLiteral("message"), tr("The extracted audio file could not be read."));
        emit requestError(AppConfig::TASK_ID, error, QByteArray());
        return;
    }

    auto* multiPart = new QHttpMultiPart(QHttpMultiPart::FormDataType);
    QHttpPart part;
    part.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("multipart/form-data"));
    part.setHeader(QNetworkRequest::ContentDispositionHeader,
                   QStringLiteral("form-data; name=\"file\"; filename=\"") + filePath + QLatin1Char('"'));
    part.setBodyDevice(file);
    file->setParent(multiPart);
    multiPart->append(part);

    QNetworkReply* reply = m_manager->post(request, multiPart);
    multiPart->setParent(reply);
    m_uploadReply = reply;
    connect(reply, &QNetworkReply::finished, this, [this, reply]() {
        const QByteArray body = reply->readAll();
        if (reply->error() == QNetworkReply::NoError) {
            const QJsonObject object = QJsonDocument::fromJson(body).object();
            const QString taskId = object.value(QStringLiteral("task_id")).toString();
            getCaptionsByTaskId(taskId);
            qDebug() << "Request successful";
            qDebug() << "Response: " << body;
            qDebug() << "TaskId: " << taskId;
        } else {
            qDebug() << "Request failed. Error: " << reply->errorString();
            // A cancelled upload is the user's own doing: nothing to report.
            if (reply->error() != QNetworkReply::OperationCanceledError) {
                QJsonObject error;
                error.insert(QStringLiteral("message"), reply->errorString());
                emit requestError(AppConfig::TASK_ID, error, body);
            }
        }
        reply->deleteLater();
    });
}

void HttpManager::getCaptionsByTaskId(const QString& taskId)
{
    qDebug() << "start getCaptionsByTaskId";
    QNetworkRequest request(QUrl(speechBaseUrl() + QStringLiteral("/api/speech/query?task_id=") + taskId));
    QNetworkReply* reply = m_manager->get(request);
    m_queryReply = reply;
    connect(reply, &QNetworkReply::finished, this, [this, reply]() {
        const QByteArray body = reply->readAll();
        if (reply->error() == QNetworkReply::NoError) {
            emit requestFinished(AppConfig::TASK_ID, QJsonObject(), body);
        } else if (reply->error() != QNetworkReply::OperationCanceledError) {
            QJsonObject error;
            error.insert(QStringLiteral("message"), reply->errorString());
            emit requestError(AppConfig::TASK_ID, error, body);
        }
        reply->deleteLater();
    });
}

void HttpManager::stopUploadFile()
{
    if (m_uploadReply) {
        m_uploadReply->abort();
    }
    if (m_queryReply) {
        m_queryReply->abort();
    }
}

void HttpManager::get(const QString& url)
{
    getRequest(url, url);
}

void HttpManager::getRequest(const QString& url, const QString& key)
{
    QNetworkReply* reply = m_manager->get(QNetworkRequest(QUrl(url)));
    connect(reply, &QNetworkReply::finished, this, [this, reply, key]() {
        const QByteArray body = reply->readAll();
        const QJsonObject object = QJsonDocument::fromJson(body).object();
        if (reply->error() == QNetworkReply::NoError) {
            emit requestFinished(key, object, body);
        } else {
            emit requestError(key, object, body);
        }
        reply->deleteLater();
    });
}

void HttpManager::post(const QString& url, const QJsonObject& object, int retry)
{
    QNetworkRequest request{QUrl(url)};
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    const QByteArray payload = QJsonDocument(object).toJson(QJsonDocument::Compact);
    QNetworkReply* reply = m_manager->post(request, payload);
    const QString key = keyForUrl(url);
    connect(reply, &QNetworkReply::finished, this, [this, reply, url, object, retry, key]() {
        const QByteArray body = reply->readAll();
        const QJsonObject answer = QJsonDocument::fromJson(body).object();
        if (reply->error() == QNetworkReply::NoError) {
            emit requestFinished(key, answer, body);
        } else if (retry < 3) {
            qDebug() << "retry:" << retry;
            post(url, object, retry + 1);
        } else {
            QJsonObject error = answer;
            if (!error.contains(QStringLiteral("message"))) {
                error.insert(QStringLiteral("message"), reply->errorString());
            }
            emit requestError(key, error, body);
        }
        reply->deleteLater();
    });
}
