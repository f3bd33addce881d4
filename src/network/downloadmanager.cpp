#include "downloadmanager.h"

#include "appconfig.h"
#include "filemanager.h"
#include "globalmanager.h"
#include "logcategories.h"
#include "md5calculator.h"
#include "processthread.h"
#include "settings.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QUrl>

namespace {
// A server that accepts the connection and then says nothing must not keep a
// check pending for ever.
constexpr int kVersionFileTimeoutMs = 30000;

const QString kEtaPattern = QStringLiteral(
    "\\[(.*)\\s+(.*)/(.*)\\((\\d+%)\\)\\s+CN:(\\d+)\\s+DL:(.*)\\s+ETA:(.*)\\]");
const QString kNoEtaPattern = QStringLiteral(
    "\\[(.*)\\s+(.*)/(.*)\\((\\d+%)\\)\\s+CN:(\\d+)\\s+DL:(.*)\\]");
const QString kCompleteMarker = QStringLiteral("Download complete: ");
} // namespace

DownloadManager* DownloadManager::instance()
{
    static DownloadManager* s_instance = new DownloadManager();
    return s_instance;
}

DownloadManager::DownloadManager(QObject* parent)
    : QObject(parent)
    , m_network(new QNetworkAccessManager(this))
{
    qRegisterMetaType<DownloadManager::DownloadState>("DownloadManager::DownloadState");
    qRegisterMetaType<DownloadManager::DownloadProgress>("DownloadManager::DownloadProgress");

    // Do not leave the tool running behind a closed application.
    if (QCoreApplication::instance()) {
        connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this]() {
            if (m_process && m_process->isRunning()) {
                m_process->stopProcess();
                m_process->wait(3000);
            }
        });
    }
}

QString DownloadManager::versionFileUrl() const
{
    return Settings::instance()->value(AppConfig::VERSION_FILE_URL)
        .toString();
}

QString DownloadManager::versionFileCachePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
           + QStringLiteral("/upgrade.json");
}

QString DownloadManager::toolPath() const
{
    const QString shipped = FileManager::instance()->findTool(TOOL_NAME);
    const QFileInfo info(shipped);
    if (info.isFile() && info.isExecutable()) {
        return shipped;
    }
    return FileManager::instance()->findTool(FALLBACK_TOOL_NAME);
}

QString DownloadManager::tagOfStateText(const QString& text)
{
    return text.section(QLatin1Char(','), -1);
}

// ---------------------------------------------------------------- version file

void DownloadManager::downloadLastVersion(QString tag, int retry)
{
    const QString url = versionFileUrl();
    QNetworkRequest request{QUrl(url)};
    request.setTransferTimeout(kVersionFileTimeoutMs);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    QNetworkReply* reply = m_network->get(request);
    qCDebug(lcNetwork) << "downloadLastVersion:" << url << tag;
    const QString stateText = url + QLatin1Char(',') + tag;
    emit downloadLastVersionStateChanged(DownloadStart, stateText, QByteArray());

    connect(reply, &QNetworkReply::finished, this, [this, reply, tag, retry, stateText]() {
        reply->deleteLater();
        if (reply->error() == QNetworkReply::NoError) {
            qCDebug(lcNetwork) << "downloadLastVersion complete";
            const QByteArray body = reply->readAll();
            // Keep a copy for the update dialog; only a file that looks like
            // ours, never an error page a proxy may have served.
            const QJsonDocument doc = QJsonDocument::fromJson(body);
            if (doc.isObject() && doc.object().contains(QStringLiteral("win"))) {
                QDir().mkpath(QFileInfo(versionFileCachePath()).absolutePath());
                GlobalManager::writeFileContent(versionFileCachePath(), QString::fromUtf8(body));
            }
            emit downloadLastVersionStateChanged(DownloadFinished, stateText, body);
            return;
        }
        const QString error = reply->errorString();
        qCDebug(lcNetwork) << "downloadLastVersion error:" << error;
        qCDebug(lcNetwork) << "try to downloadLastVersion again:" << retry;
        if (retry <= 0) {
            emit downloadLastVersionStateChanged(DownloadError, stateText, error.toUtf8());
        } else {
            downloadLastVersion(tag, retry - 1);
        }
    });
}

// ---------------------------------------------------------------- tool download

void DownloadManager::download(QString url, QString dir)
{
    if (m_downloading) {
        qCWarning(lcNetwork) << "download already running, ignored:" << url;
        return;
    }
    QDir().mkpath(dir);
    m_completeSeen = false;
    m_lastToolError.clear();

    // A runner per download: the previous one may still be winding down
    // after its tool has exited, and its late signals must not touch this one.
    auto* runner = new ProcessThread(this);
    m_process = runner;
    runner->setWaitFinishTime(-1); // a download can outlast any fixed wait
    connect(runner, &ProcessThread::processOutput, this, [this, runner](QString text) {
        if (runner == m_process) {
            toolOutputHandle(text);
        }
    });
    connect(runner, &ProcessThread::processError, this, [this, runner](QString text) {
        if (runner == m_process) {
            toolErrorHandle(text);
        }
    });
    connect(runner, &ProcessThread::processFailed, this, [this, runner]() {
        if (runner == m_process) {
            failDownload(tr("The download tool could not be started: %1").arg(runner->program()));
        }
    });
    connect(runner, &QThread::finished, this, [this, runner]() {
        if (runner == m_process) {
            toolStoppedHandle();
            m_process = nullptr;
        }
        runner->deleteLater();
    });

    const QStringList arguments{QStringLiteral("-d"), dir, QStringLiteral("--check-certificate=false"),
                                QStringLiteral("-j"), QStringLiteral("10"), url};
    runner->setCommand(toolPath(), arguments, QIODevice::ReadWrite);
    runner->start();
    m_downloading = true;
    emit downloadStateChanged(DownloadStart, QString());
}

bool DownloadManager::parseProgress(const QString& text, DownloadProgress& progress)
{
    if (text.contains(QStringLiteral("FileAlloc"))) {
        return false;
    }
    static const QRegularExpression withEta(kEtaPattern);
    static const QRegularExpression withoutEta(kNoEtaPattern);
    const QRegularExpression& pattern = text.contains(QStringLiteral("ETA")) ? withEta : withoutEta;
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch()) {
        return false;
    }
    progress.hash = match.captured(1);
    progress.completed = match.captured(2);
    progress.total = match.captured(3);
    progress.percent = match.captured(4);
    progress.connections = match.captured(5);
    progress.speed = match.captured(6);
    progress.eta = match.captured(7);
    return true;
}

void DownloadManager::toolOutputHandle(QString text)
{
    qCDebug(lcNetwork) << "aria2:" << text;

    // A chunk often holds several lines (a notice and one or more progress
    // lines); the patterns' \s would run across line ends, so each line is
    // matched on its own.
    static const QRegularExpression lineEnd(QStringLiteral("[\r\n]+"));
    const QStringList lines = text.split(lineEnd, Qt::SkipEmptyParts);
    // The tool reports a failed transfer on standard output; its reason is
    // kept for the error raised when the tool stops without a file.
    static const QRegularExpression failure(QStringLiteral("errorCode=\\d+\\s+(.+)$"));
    for (const QString& line : lines) {
        const QRegularExpressionMatch failed = failure.match(line);
        if (failed.hasMatch()) {
            m_lastToolError = failed.captured(1).trimmed();
        }
        DownloadProgress progress;
        if (!parseProgress(line, progress)) {
            continue;
        }
        qCDebug(lcNetwork) << "Hash:" << progress.hash;
        qCDebug(lcNetwork) << "Completed:" << progress.completed;
        qCDebug(lcNetwork) << "Total:" << progress.total;
        qCDebug(lcNetwork) << "Percent:" << progress.percent;
        qCDebug(lcNetwork) << "Connections:" << progress.connections;
        qCDebug(lcNetwork) << "Download speed:" << progress.speed;
        qCDebug(lcNetwork) << "ETA:" << progress.eta;
        emit downloadProgress(progress);
    }

    if (!text.contains(kCompleteMarker)) {
        return;
    }
    static const QRegularExpression completePattern(QStringLiteral("Download complete: (.+)"));
    const QRegularExpressionMatch match = completePattern.match(text);
    if (!match.hasMatch()) {
        qCDebug(lcNetwork) << "No match";
        m_completeSeen = true;
        failDownload(QStringLiteral("File cann't find in local:") + text);
        return;
    }
    m_completeSeen = true;
    const QString path = match.captured(1).trimmed();
    qCDebug(lcNetwork) << "Path:" << path;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(lcNetwork) << "Failed to open file:" << path;
        failDownload(tr("The downloaded file could not be opened: %1").arg(path));
        return;
    }
    file.close();

    auto* calculator = new Md5Calculator(path);
    connect(calculator, &Md5Calculator::md5Calculated, this, [this](QString filePath, QString md5) {
        qCDebug(lcNetwork) << "MD5:" << filePath << md5;
        m_downloading = false;
        emit downloadMd5(filePath, md5);
        emit downloadStateChanged(DownloadFinished, filePath);
    });
    connect(calculator, &Md5Calculator::md5Error, this, [this](QString filePath, QString error) {
        qCWarning(lcNetwork) << "MD5 failed:" << filePath << error;
        failDownload(error);
    });
    calculator->start(QThread::InheritPriority);
}

void DownloadManager::toolErrorHandle(QString text)
{
    qCDebug(lcNetwork) << "aria2 Error:" << text;
    m_lastToolError = text.trimmed();
}

void DownloadManager::toolStoppedHandle()
{
    if (!m_downloading || m_completeSeen) {
        return;
    }
    QString text = tr("The download tool stopped before the download was complete.");
    if (!m_lastToolError.isEmpty()) {
        text += QLatin1Char(' ') + m_lastToolError;
    }
    failDownload(text);
}

void DownloadManager::failDownload(const QString& text)
{
    m_downloading = false;
    emit downloadStateChanged(DownloadError, text);
}

// ---------------------------------------------------------------- storage

QString DownloadManager::getAutoStorage() const
{
    const QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
    if (volumes.isEmpty()) {
        return QString();
    }
    QStorageInfo best = volumes.first();
    for (const QStorageInfo& volume : volumes) {
        if (volume.bytesFree() > best.bytesFree()) {
            best = volume;
        }
    }
    return best.rootPath() + QLatin1Char('/') + AppConfig::APP_NAME + QStringLiteral("Cache");
}

bool DownloadManager::checkSpaceEnough(QString path) const
{
    Q_UNUSED(path)
    return false;
}
