#include "speechservice.h"

#include "appconfig.h"
#include "filemanager.h"
#include "httpmanager.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QProcess>
#include <QTimer>
#include <QUrl>

namespace {
// Loading the speech model takes under a second; a slow disk gets some slack.
constexpr int kStartTimeoutMs = 20000;
constexpr int kProbeIntervalMs = 150;

QUrl normalized(const QString& url)
{
    return QUrl(url).adjusted(QUrl::StripTrailingSlash | QUrl::NormalizePathSegments);
}
} // namespace

SpeechService* SpeechService::instance()
{
    static SpeechService* s_instance = new SpeechService();
    return s_instance;
}

SpeechService::SpeechService(QObject* parent)
    : QObject(parent)
    , m_managedUrl(AppConfig::DEFAULT_SPEECH_SERVER_URL)
    , m_retryTimer(new QTimer(this))
{
    m_retryTimer->setSingleShot(true);
    m_retryTimer->setInterval(kProbeIntervalMs);
    connect(m_retryTimer, &QTimer::timeout, this, &SpeechService::probe);
    if (QCoreApplication::instance()) {
        connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &SpeechService::stop);
    }
}

QString SpeechService::program() const
{
    return m_program.isEmpty() ? FileManager::instance()->findTool(QStringLiteral("glimmer-speechd")) : m_program;
}

bool SpeechService::isManaged(const QString& baseUrl) const
{
    return normalized(baseUrl) == normalized(m_managedUrl);
}

bool SpeechService::isStartedByUs() const
{
    return m_process && m_process->state() != QProcess::NotRunning;
}

void SpeechService::ensureRunning(const QString& baseUrl, const Callback& done)
{
    if (!isManaged(baseUrl)) {
        done(true, QString());
        return;
    }
    m_waiting.append(done);
    if (m_probe || m_retryTimer->isActive()) {
        return; // a check is under way and will answer this caller too
    }
    probe();
}

void SpeechService::cancelPending()
{
    m_waiting.clear();
}

void SpeechService::probe()
{
    QNetworkRequest request(QUrl(normalized(m_managedUrl).toString() + QStringLiteral("/api/speech/health")));
    request.setTransferTimeout(2000);
    QNetworkReply* reply = HttpManager::instance()->networkManager()->get(request);
    m_probe = reply;
    connect(reply, &QNetworkReply::finished, this, [this, reply]() {
        const QJsonObject answer = QJsonDocument::fromJson(reply->readAll()).object();
        const bool alive = reply->error() == QNetworkReply::NoError
                           && answer.value(QStringLiteral("state")).toString() == QLatin1String("ok");
        reply->deleteLater();
        probeFinished(alive);
    });
}

void SpeechService::probeFinished(bool alive)
{
    if (alive) {
        finishAll(true, QString());
        return;
    }
    if (m_waiting.isEmpty()) {
        return; // nobody waits any more
    }
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    if (!isStartedByUs()) {
        startProcess();
        if (!isStartedByUs()) {
            return; // the failure has been reported
        }
        m_startDeadline = now + kStartTimeoutMs;
    } else if (m_startDeadline == 0) {
        m_startDeadline = now + kStartTimeoutMs;
    }
    if (now > m_startDeadline) {
        finishAll(false, tr("The speech service did not answer at %1.").arg(m_managedUrl));
        return;
    }
    m_retryTimer->start();
}

void SpeechService::startProcess()
{
    const QString path = program();
    const QUrl url = normalized(m_managedUrl);
    if (!QFileInfo(path).isExecutable()) {
        finishAll(false, tr("The speech service program is missing: %1").arg(path));
        return;
    }
    m_lastError.clear();
    m_process = new QProcess(this);
    m_process->setProcessChannelMode(QProcess::MergedChannels);
    QProcess* process = m_process;
    connect(process, &QProcess::readyReadStandardOutput, this, [this, process]() {
        while (process->canReadLine()) {
            const QString line = QString::fromUtf8(process->readLine()).trimmed();
            if (!line.isEmpty()) {
                qDebug().noquote() << "speech service:" << line;
                m_lastError = line;
            }
        }
    });
    connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            [this, process](int exitCode, QProcess::ExitStatus) {
                const QString rest = QString::fromUtf8(process->readAll()).trimmed();
                if (!rest.isEmpty()) {
                    m_lastError = rest.section(QLatin1Char('\n'), -1);
                }
                qDebug() << "speech service ended with exit code" << exitCode;
                if (m_process == process) {
                    m_process = nullptr;
                }
                process->deleteLater();
                emit serviceStopped();
                if (!m_waiting.isEmpty()) {
                    finishAll(false, tr("The speech service stopped: %1").arg(m_lastError));
                }
            });
    connect(process, &QProcess::errorOccurred, this, [this, process](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart) {
            return;
        }
        qDebug() << "speech service failed to start:" << process->errorString();
        if (m_process == process) {
            m_process = nullptr;
        }
        process->deleteLater();
        finishAll(false, tr("The speech service could not be started: %1").arg(process->errorString()));
    });

    const QStringList arguments{QStringLiteral("--host"), url.host(),
                                QStringLiteral("--port"), QString::number(url.port(80)),
                                QStringLiteral("--parent-pid"), QString::number(QCoreApplication::applicationPid())};
    qDebug() << "starting speech service" << path << arguments;
    process->start(path, arguments, QIODevice::ReadOnly);
    if (m_process == process) {
        emit serviceStarted();
    }
}

void SpeechService::finishAll(bool ok, const QString& message)
{
    m_retryTimer->stop();
    m_startDeadline = 0;
    const QList<Callback> waiting = m_waiting;
    m_waiting.clear();
    for (const Callback& done : waiting) {
        done(ok, message);
    }
}

void SpeechService::stop()
{
    m_waiting.clear();
    m_retryTimer->stop();
    QProcess* process = m_process;
    if (!process) {
        return;
    }
    m_process = nullptr;
    process->disconnect(this);
    process->terminate();
    if (!process->waitForFinished(3000)) {
        process->kill();
        process->waitForFinished(1000);
    }
    process->deleteLater();
    emit serviceStopped();
}
