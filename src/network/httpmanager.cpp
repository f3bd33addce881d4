#include "httpmanager.h"

#include "appconfig.h"
#include "globalmanager.h"
#include "logcategories.h"
#include "settings.h"
#include "speechservice.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
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
    // Replies reach the bus through the facade's two hand-off slots.
    GlobalManager* global = GlobalManager::instance();
    connect(this, &HttpManager::requestFinished, global, &GlobalManager::httpRequestFinished);
    connect(this, &HttpManager::requestError, global, &GlobalManager::httpRequestError);
}

QString HttpManager::speechBaseUrl() const
{
    QString base = Settings::instance()->value(AppConfig::SPEECH_SERVER_URL)
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

bool HttpManager::isAwaitingResult() const
{
    return m_queryReply && !m_taskId.isEmpty();
}

bool HttpManager::isUploading() const
{
    return m_waitingForService || (m_uploadReply && m_uploadReply->isRunning())
           || (m_queryReply && m_queryReply->isRunning());
}

QString HttpManager::replyMessage(const QByteArray& body, const QString& fallback)
{
    const QString message = QJsonDocument::fromJson(body).object().value(QStringLiteral("message")).toString();
    return message.isEmpty() ? fallback : message;
}

void HttpManager::loadCaptions(const QString& filePath, const QString& language)
{
    qCDebug(lcNetwork) << "start loadCaptions";
    // An extraction that failed leaves no file, or an empty one.
    const QFileInfo info(filePath);
    if (!info.isFile() || !info.isReadable() || info.size() == 0) {
        qCDebug(lcNetwork) << "Failed to open file";
        emit submitFailed(info.isFile() && info.isReadable() ? tr("The video has no sound that could be extracted.")
                                                             : tr("The extracted audio file could not be read."));
        return;
    }
    // The bundled service may have to be started first; that is asynchronous.
    const quint64 generation = ++m_generation;
    m_waitingForService = true;
    SpeechService::instance()->ensureRunning(speechBaseUrl(), [this, generation, filePath, language](
                                                                  bool ok, const QString& message) {
        if (generation != m_generation) {
            return; // cancelled meanwhile
        }
        m_waitingForService = false;
        if (!ok) {
            qCDebug(lcNetwork) << "speech service unavailable:" << message;
            emit submitFailed(message);
            return;
        }
        submit(filePath, language);
    });
}

void HttpManager::submit(const QString& filePath, const QString& language)
{
    QUrl url(SpeechService::instance()->serviceUrl(speechBaseUrl()) + QStringLiteral("/api/speech/submit"));
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("language"), language);
    url.setQuery(query);
    QNetworkRequest request(url);
    SpeechService::instance()->authorize(request);

    auto* file = new QFile(filePath);
    if (!file->open(QIODevice::ReadOnly)) {
        qCDebug(lcNetwork) << "Failed to open file";
        delete file;
        emit submitFailed(tr("The extracted audio file could not be read."));
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
        const QJsonObject object = QJsonDocument::fromJson(body).object();
        if (reply->error() == QNetworkReply::NoError
            && object.value(QStringLiteral("state")).toString() != QLatin1String("failed")) {
            const QString taskId = object.value(QStringLiteral("task_id")).toString();
            getCaptionsByTaskId(taskId);
            qCDebug(lcNetwork).noquote() << "Request successful";
            qCDebug(lcNetwork).noquote() << "Response: " << body;
            qCDebug(lcNetwork).noquote() << "TaskId: " << taskId;
        } else {
            qCDebug(lcNetwork).noquote() << "Request failed. Error: " << reply->errorString();
            // A cancelled upload is the user's own doing: nothing to report.
            if (reply->error() != QNetworkReply::OperationCanceledError) {
                emit submitFailed(
                    replyMessage(body, tr("The speech service could not be reached: %1").arg(reply->errorString())));
            }
        }
        reply->deleteLater();
    });
}

void HttpManager::getCaptionsByTaskId(const QString& taskId)
{
    qCDebug(lcNetwork) << "start getCaptionsByTaskId";
    QNetworkRequest request(QUrl(SpeechService::instance()->serviceUrl(speechBaseUrl())
                                 + QStringLiteral("/api/speech/query?task_id=") + taskId));
    SpeechService::instance()->authorize(request);
    QNetworkReply* reply = m_manager->get(request);
    m_queryReply = reply;
    m_taskId = taskId;
    connect(reply, &QNetworkReply::finished, this, [this, reply]() {
        const QByteArray body = reply->readAll();
        if (reply->error() == QNetworkReply::OperationCanceledError) {
            // Cancelled by the user: nothing to report.
        } else if (reply->error() != QNetworkReply::NoError) {
            qCDebug(lcNetwork).noquote() << "query failed:" << reply->errorString();
            emit requestError(AppConfig::KEY_TASK_ID, QJsonObject(), body);
        } else {
            // A "failed" answer is an answer too: the caption flow reads its reason.
            emit requestFinished(AppConfig::KEY_TASK_ID, QJsonObject(), body);
        }
        if (m_queryReply == reply) {
            m_taskId.clear();
        }
        reply->deleteLater();
    });
}

void HttpManager::stopUploadFile()
{
    ++m_generation;
    if (m_waitingForService) {
        m_waitingForService = false;
        SpeechService::instance()->cancelPending();
    }
    if (m_uploadReply) {
        m_uploadReply->abort();
    }
    if (m_queryReply && m_queryReply->isRunning() && !m_taskId.isEmpty()) {
        // Free the service from a recognition nobody waits for.
        QUrl url(SpeechService::instance()->serviceUrl(speechBaseUrl()) + QStringLiteral("/api/speech/cancel"));
        url.setQuery(QStringLiteral("task_id=") + m_taskId);
        QNetworkRequest request(url);
        SpeechService::instance()->authorize(request);
        QNetworkReply* cancel = m_manager->post(request, QByteArray());
        connect(cancel, &QNetworkReply::finished, cancel, &QObject::deleteLater);
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
            qCDebug(lcNetwork) << "retry:" << retry;
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
