#include "speechenginetest.h"

#include "logcategories.h"
#include "speechreply.h"
#include "speechservice.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QHttpMultiPart>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>
#include <QRandomGenerator>
#include <QTimer>
#include <QUrlQuery>
#include <QtEndian>

#include <cmath>

namespace {
void appendLe(QByteArray& out, quint32 value, int bytes)
{
    for (int i = 0; i < bytes; ++i) {
        out.append(static_cast<char>((value >> (8 * i)) & 0xff));
    }
}
} // namespace

SpeechEngineTest::SpeechEngineTest(QObject* parent)
    : QObject(parent)
    , m_network(new QNetworkAccessManager(this))
    , m_deadline(new QTimer(this))
{
    m_deadline->setSingleShot(true);
    connect(m_deadline, &QTimer::timeout, this, [this]() {
        done(false, tr("The test got no answer within %n second(s).", nullptr, m_timeoutSeconds + 30));
    });
}

SpeechEngineTest::~SpeechEngineTest()
{
    cancel();
}

QByteArray SpeechEngineTest::toneClip(int milliseconds)
{
    constexpr int rate = 16000;
    const int samples = rate * milliseconds / 1000;
    QByteArray wav("RIFF");
    appendLe(wav, static_cast<quint32>(36 + samples * 2), 4);
    wav += "WAVEfmt ";
    appendLe(wav, 16, 4);
    appendLe(wav, 1, 2); // PCM
    appendLe(wav, 1, 2); // mono
    appendLe(wav, rate, 4);
    appendLe(wav, rate * 2, 4);
    appendLe(wav, 2, 2);
    appendLe(wav, 16, 2);
    wav += "data";
    appendLe(wav, static_cast<quint32>(samples * 2), 4);
    for (int i = 0; i < samples; ++i) {
        const auto sample = static_cast<qint16>(2000.0 * std::sin(2.0 * M_PI * 440.0 * i / rate));
        appendLe(wav, static_cast<quint16>(sample), 2);
    }
    return wav;
}

void SpeechEngineTest::start(const SpeechEngine& engine)
{
    cancel();
    m_engine = engine;
    m_running = true;
    m_lastError.clear();
    m_dir = std::make_unique<QTemporaryDir>();
    const QString program = SpeechService::instance()->program();
    if (!QFileInfo(program).isExecutable()) {
        done(false, tr("The speech service program is missing: %1").arg(program));
        return;
    }
    quint32 words[8];
    QRandomGenerator::system()->fillRange(words);
    m_token = QByteArray(reinterpret_cast<const char*>(words), sizeof words).toHex();

    // The engine as the dialog shows it, whatever the environment says.
    QProcessEnvironment environment = SpeechService::serviceEnvironment(m_token);
    environment.remove(QStringLiteral("GLIMMER_SPEECHD_OPENAI_URL"));
    environment.remove(QStringLiteral("GLIMMER_SPEECHD_OPENAI_MODEL"));
    environment.remove(QStringLiteral("GLIMMER_SPEECHD_OPENAI_KEY"));
    engine.applyTo(environment);

    m_process = new QProcess(this);
    QProcess* process = m_process;
    process->setProcessEnvironment(environment);
    connect(process, &QProcess::readyReadStandardOutput, this, [this, process]() {
        process->setReadChannel(QProcess::StandardOutput);
        while (process->canReadLine()) {
            const QString url = SpeechService::listeningUrl(QString::fromUtf8(process->readLine()).trimmed());
            if (!url.isEmpty()) {
                listening(url);
            }
        }
    });
    connect(process, &QProcess::readyReadStandardError, this, [this, process]() {
        const QString text = QString::fromUtf8(process->readAllStandardError()).trimmed();
        if (!text.isEmpty()) {
            m_lastError = text.section(QLatin1Char('\n'), -1).remove(QStringLiteral("glimmer-speechd: "));
        }
    });
    connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, [this, process]() {
        if (process == m_process && m_running) {
            done(false, tr("The speech service stopped: %1").arg(m_lastError));
        }
    });
    connect(process, &QProcess::errorOccurred, this, [this, process](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart && process == m_process) {
            done(false, tr("The speech service could not be started: %1").arg(process->errorString()));
        }
    });
    const QStringList arguments{QStringLiteral("--host"), QStringLiteral("127.0.0.1"), QStringLiteral("--port"),
                                QStringLiteral("0"), QStringLiteral("--parent-pid"),
                                QString::number(QCoreApplication::applicationPid()), QStringLiteral("--openai-timeout"),
                                QString::number(m_timeoutSeconds)};
    qCDebug(lcNetwork) << "testing speech engine" << (engine.kind == SpeechEngine::Server ? engine.serverName() : "built-in");
    m_deadline->start((m_timeoutSeconds + 30) * 1000);
    process->start(program, arguments, QIODevice::ReadOnly);
}

void SpeechEngineTest::listening(const QString& url)
{
    const QString path = m_dir->filePath(QStringLiteral("tone.wav"));
    QFile clip(path);
    if (!clip.open(QIODevice::WriteOnly) || clip.write(toneClip(1000)) < 0) {
        done(false, tr("The test sound could not be written: %1").arg(clip.errorString()));
        return;
    }
    clip.close();
    QUrl submitUrl(url + QStringLiteral("/api/speech/submit"));
    submitUrl.setQuery(QStringLiteral("language=en-US"));
    QNetworkRequest request(submitUrl);
    request.setRawHeader("Authorization", "Bearer " + m_token);
    auto* multiPart = new QHttpMultiPart(QHttpMultiPart::FormDataType);
    QHttpPart part;
    part.setHeader(QNetworkRequest::ContentDispositionHeader,
                   QStringLiteral("form-data; name=\"file\"; filename=\"tone.wav\""));
    auto* file = new QFile(path, multiPart);
    file->open(QIODevice::ReadOnly);
    part.setBodyDevice(file);
    multiPart->append(part);
    QNetworkReply* reply = m_network->post(request, multiPart);
    multiPart->setParent(reply);
    m_reply = reply;
    connect(reply, &QNetworkReply::finished, this, [this, reply, url]() { submitted(reply, url); });
}

void SpeechEngineTest::submitted(QNetworkReply* reply, const QString& url)
{
    reply->deleteLater();
    const QByteArray body = reply->readAll();
    const SpeechReply answer = SpeechReply::parse(body);
    const QString taskId = answer.taskId();
    if (reply->error() != QNetworkReply::NoError || taskId.isEmpty()) {
        done(false, answer.message().isEmpty() ? reply->errorString() : answer.message());
        return;
    }
    QNetworkRequest request(QUrl(url + QStringLiteral("/api/speech/query?task_id=") + taskId));
    request.setRawHeader("Authorization", "Bearer " + m_token);
    QNetworkReply* query = m_network->get(request);
    m_reply = query;
    connect(query, &QNetworkReply::finished, this, [this, query]() {
        query->deleteLater();
        const QByteArray answer = query->readAll();
        const SpeechReply result = SpeechReply::parse(answer);
        if (query->error() != QNetworkReply::NoError || result.state() != QLatin1String("success")) {
            done(false, result.message().isEmpty() ? query->errorString() : result.message());
            return;
        }
        if (m_engine.kind == SpeechEngine::BuiltIn) {
            done(true, tr("The built-in engine works. It recognises English."));
        } else {
            done(true, tr("%1 answered with model %2. It recognises the languages its model knows.")
                           .arg(m_engine.serverName(), m_engine.model.isEmpty() ? tr("(default)") : m_engine.model));
        }
    });
}

void SpeechEngineTest::done(bool ok, const QString& message)
{
    if (!m_running) {
        return;
    }
    cancel();
    qCDebug(lcNetwork) << "speech engine test:" << ok << message;
    emit finished(ok, message);
}

void SpeechEngineTest::cancel()
{
    m_running = false;
    m_deadline->stop();
    if (m_reply) {
        m_reply->abort();
    }
    if (QProcess* process = m_process) {
        m_process = nullptr;
        process->disconnect(this);
        process->terminate();
        if (!process->waitForFinished(5000)) {
            process->kill();
            process->waitForFinished(1000);
        }
        process->deleteLater();
    }
    m_dir.reset();
}
