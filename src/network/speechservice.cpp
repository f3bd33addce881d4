#include "speechservice.h"

#include "appconfig.h"
#include "filemanager.h"
#include "logcategories.h"
#include "speechengine.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
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
// The health answer is immediate; a service that does not give it soon is not answering.
constexpr int kHealthTimeoutMs = 10000;

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
    , m_network(new QNetworkAccessManager(this))
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
    process->setProcessEnvironment(serviceEnvironment(m_token));
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

QProcessEnvironment SpeechService::serviceEnvironment(const QByteArray& token)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    SpeechEngine::stored().applyTo(environment);
    environment.remove(QStringLiteral("GLIMMER_SPEECHD_TOKEN"));
    if (!token.isEmpty()) {
        environment.insert(QStringLiteral("GLIMMER_SPEECHD_TOKEN"), QString::fromLatin1(token));
    }
    return environment;
}

QString SpeechService::listeningUrl(const QString& line)
{
    static const QRegularExpression listening(QStringLiteral("listening on (http://[^ ]+)"));
    return listening.match(line).captured(1);
}

void SpeechService::readOutput(QProcess* process)
{
    process->setReadChannel(QProcess::StandardOutput);
    while (process->canReadLine()) {
        const QString line = QString::fromUtf8(process->readLine()).trimmed();
        qCDebug(lcNetwork).noquote() << "speech service:" << line;
        const QString url = listeningUrl(line);
        if (!url.isEmpty() && process == m_process && m_serviceUrl.isEmpty()) {
            m_serviceUrl = url;
            finishAll(true, QString());
        }
    }
}

void SpeechService::restart()
{
    ++m_generation;
    stop();
    m_languagesKnown = false;
    m_languages.clear();
    m_anyLanguage = true;
    emit languagesChanged();
}

bool SpeechService::recognises(const QString& code) const
{
    if (!m_languagesKnown || m_anyLanguage) {
        return true;
    }
    const QString primary = code.section(QLatin1Char('-'), 0, 0).section(QLatin1Char('_'), 0, 0).toLower();
    return m_languages.contains(primary);
}

void SpeechService::fetchLanguages(const QString& baseUrl, const Callback& done)
{
    const quint64 generation = m_generation;
    ensureRunning(baseUrl, [this, baseUrl, done, generation](bool ok, const QString& message) {
        if (generation != m_generation) {
            return;
        }
        if (!ok) {
            done(false, message);
            return;
        }
        QNetworkRequest request(QUrl(serviceUrl(baseUrl) + QStringLiteral("/api/speech/health")));
        request.setTransferTimeout(kHealthTimeoutMs);
        authorize(request);
        QNetworkReply* reply = m_network->get(request);
        connect(reply, &QNetworkReply::finished, this, [this, reply, done, generation, baseUrl]() {
            reply->deleteLater();
            if (generation != m_generation) {
                return;
            }
            const QJsonObject health = QJsonDocument::fromJson(reply->readAll()).object();
            if (reply->error() != QNetworkReply::NoError && isManaged(baseUrl)) {
                done(false, tr("The speech service did not answer: %1").arg(reply->errorString()));
                return;
            }
            // A service of the user's own that does not say takes any language.
            const QJsonValue languages = health.value(QStringLiteral("languages"));
            m_anyLanguage = !languages.isArray() || health.value(QStringLiteral("any_language")).toBool();
            m_languages.clear();
            for (const QJsonValue& language : languages.toArray()) {
                m_languages << language.toString().toLower();
            }
            m_languagesKnown = true;
            qCDebug(lcNetwork) << "speech languages:" << (m_anyLanguage ? QStringList{"any"} : m_languages);
            emit languagesChanged();
            done(true, QString());
        });
    });
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
