#include "speechservice.h"

#include "appconfig.h"
#include "filemanager.h"
#include "logcategories.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QNetworkRequest>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTimer>
#include <QUrl>

namespace {
// Loading the speech model takes under a second; a slow disk gets some slack.
constexpr int kStartTimeoutMs = 20000;
// The service closes its connections and ends at once on SIGTERM; a
// recognition in progress is cancelled first.
constexpr int kStopTimeoutMs = 10000;

QUrl normalized(const QString& url)
{
    return QUrl(url).adjusted(QUrl::StripTrailingSlash | QUrl::NormalizePathSegments);
}

QByteArray newToken()
{
    quint32 words[8];
    QRandomGenerator::system()->fillRange(words);
    return QByteArray(reinterpret_cast<const char*>(words), sizeof words).toHex();
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
    , m_startTimer(new QTimer(this))
{
    m_startTimer->setSingleShot(true);
    m_startTimer->setInterval(kStartTimeoutMs);
    connect(m_startTimer, &QTimer::timeout, this, [this]() {
        finishAll(false, tr("The speech service did not start in time."));
        stop();
    });
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

QString SpeechService::serviceUrl(const QString& baseUrl) const
{
    return isManaged(baseUrl) ? m_serviceUrl : baseUrl;
}

void SpeechService::authorize(QNetworkRequest& request) const
{
    const QUrl service(m_serviceUrl);
    const QUrl target = request.url();
    if (!m_token.isEmpty() && target.scheme() == service.scheme() && target.host() == service.host()
        && target.port() == service.port()) {
        request.setRawHeader("Authorization", "Bearer " + m_token);
    }
}

void SpeechService::ensureRunning(const QString& baseUrl, const Callback& done)
{
    if (!isManaged(baseUrl) || (isStartedByUs() && !m_serviceUrl.isEmpty())) {
        done(true, QString());
        return;
    }
    m_waiting.append(done);
    if (!isStartedByUs()) {
        startProcess();
    }
}

void SpeechService::cancelPending()
{
    m_waiting.clear();
}

void SpeechService::startProcess()
{
    const QString path = program();
    if (!QFileInfo(path).isExecutable()) {
        finishAll(false, tr("The speech service program is missing: %1").arg(path));
        return;
    }
    m_lastError.clear();
    m_serviceUrl.clear();
    m_token = newToken();
    m_process = new QProcess(this);
    QProcess* process = m_process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("GLIMMER_SPEECHD_TOKEN"), QString::fromLatin1(m_token));
    process->setProcessEnvironment(environment);
    process->setProcessChannelMode(QProcess::SeparateChannels);
    connect(process, &QProcess::readyReadStandardOutput, this, [this, process]() { readOutput(process); });
    connect(process, &QProcess::readyReadStandardError, this, [this, process]() {
        process->setReadChannel(QProcess::StandardError);
        while (process->canReadLine()) {
            const QString line = QString::fromUtf8(process->readLine()).trimmed();
            if (!line.isEmpty()) {
                qCDebug(lcNetwork).noquote() << "speech service:" << line;
                m_lastError = line;
            }
        }
    });
    connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            [this, process](int exitCode, QProcess::ExitStatus) {
                const QString rest = QString::fromUtf8(process->readAllStandardError()).trimmed();
                if (!rest.isEmpty()) {
                    m_lastError = rest.section(QLatin1Char('\n'), -1);
                }
                qCDebug(lcNetwork) << "speech service ended with exit code" << exitCode;
                if (m_process == process) {
                    m_process = nullptr;
                    m_serviceUrl.clear();
                    m_token.clear();
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
        qCDebug(lcNetwork) << "speech service failed to start:" << process->errorString();
        if (m_process == process) {
            m_process = nullptr;
        }
        process->deleteLater();
        finishAll(false, tr("The speech service could not be started: %1").arg(process->errorString()));
    });

    // Port 0: the service takes a free port and says which on its standard output.
    const QStringList arguments{QStringLiteral("--host"), QStringLiteral("127.0.0.1"),
                                QStringLiteral("--port"), QStringLiteral("0"),
                                QStringLiteral("--parent-pid"), QString::number(QCoreApplication::applicationPid())};
    qCDebug(lcNetwork) << "starting speech service" << path << arguments;
    m_startTimer->start();
    process->start(path, arguments, QIODevice::ReadOnly);
    if (m_process == process) {
        emit serviceStarted();
    }
}

void SpeechService::readOutput(QProcess* process)
{
    static const QRegularExpression listening(QStringLiteral("listening on (http://[^ ]+)"));
    process->setReadChannel(QProcess::StandardOutput);
    while (process->canReadLine()) {
        const QString line = QString::fromUtf8(process->readLine()).trimmed();
        qCDebug(lcNetwork).noquote() << "speech service:" << line;
        const QRegularExpressionMatch match = listening.match(line);
        if (match.hasMatch() && process == m_process && m_serviceUrl.isEmpty()) {
            m_serviceUrl = match.captured(1);
            finishAll(true, QString());
        }
    }
}

void SpeechService::finishAll(bool ok, const QString& message)
{
    m_startTimer->stop();
    const QList<Callback> waiting = m_waiting;
    m_waiting.clear();
    for (const Callback& done : waiting) {
        done(ok, message);
    }
}

void SpeechService::stop()
{
    m_waiting.clear();
    m_startTimer->stop();
    QProcess* process = m_process;
    if (!process) {
        return;
    }
    m_process = nullptr;
    m_serviceUrl.clear();
    m_token.clear();
    process->disconnect(this);
    process->terminate();
    if (!process->waitForFinished(kStopTimeoutMs)) {
        process->kill();
        process->waitForFinished(1000);
    }
    process->deleteLater();
    emit serviceStopped();
}
