// glimmer-speechd: a small speech-recognition service on the loopback interface.
// Upload audio with POST /api/speech/submit?language=CODE (multipart, part "file"),
// then GET /api/speech/query?task_id=ID, which answers once the task is done.
// Started with $GLIMMER_SPEECHD_TOKEN set, it answers only requests that carry
// "Authorization: Bearer <token>".

#include "audiodecoder.h"
#include "openairecognizer.h"
#include "speechserver.h"
#include "sphinxrecognizer.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <pthread.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

QString envOr(const char* name, const QString& fallback)
{
    const QString value = qEnvironmentVariable(name);
    return value.isEmpty() ? fallback : value;
}

QString findFfmpeg(const QString& given)
{
    if (!given.isEmpty()) {
        return given;
    }
    const QString local = QCoreApplication::applicationDirPath() + QStringLiteral("/ffmpeg");
    if (QFileInfo(local).isExecutable()) {
        return local;
    }
    const QString onPath = QStandardPaths::findExecutable(QStringLiteral("ffmpeg"));
    return onPath.isEmpty() ? QStringLiteral("ffmpeg") : onPath;
}

// Temporary folders are named after the service's process id, so that those
// of services that ended without cleaning up (killed) can be told from those
// of services still running.
const QString kWorkPrefix = QStringLiteral("glimmer-speechd-");

bool isRunningService(pid_t pid)
{
    if (pid == getpid()) {
        return true;
    }
    if (kill(pid, 0) != 0 && errno != EPERM) {
        return false;
    }
    // The id may have gone to another program since.
    QFile comm(QStringLiteral("/proc/%1/comm").arg(pid));
    return !comm.open(QIODevice::ReadOnly) || comm.readAll().trimmed() == "glimmer-speechd";
}

void sweepStaleFolders(const QString& tempPath)
{
    QDirIterator it(tempPath, {kWorkPrefix + QStringLiteral("*")}, QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden);
    while (it.hasNext()) {
        const QString path = it.next();
        const QStringList parts = it.fileName().mid(kWorkPrefix.size()).split(QLatin1Char('-'));
        bool isPid = false;
        const pid_t pid = parts.size() == 2 ? static_cast<pid_t>(parts.first().toLong(&isPid)) : 0;
        struct stat info {};
        if (!isPid || pid <= 0 || lstat(QFile::encodeName(path).constData(), &info) != 0 || info.st_uid != getuid()
            || !S_ISDIR(info.st_mode) || isRunningService(pid)) {
            continue;
        }
        QDir(path).removeRecursively();
    }
}

int fail(const QString& message)
{
    std::fprintf(stderr, "glimmer-speechd: %s\n", qPrintable(message));
    return 1;
}

} // namespace

int main(int argc, char* argv[])
{
    // Termination stopSignals are taken by one thread with sigwait, so that the
    // server shuts down cleanly and removes its temporary files.
    sigset_t stopSignals;
    sigemptyset(&stopSignals);
    sigaddset(&stopSignals, SIGTERM);
    sigaddset(&stopSignals, SIGINT);
    sigaddset(&stopSignals, SIGHUP);
    pthread_sigmask(SIG_BLOCK, &stopSignals, nullptr);
    std::signal(SIGPIPE, SIG_IGN);

    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("glimmer-speechd"));
    QCoreApplication::setApplicationVersion(QStringLiteral(GLIMMER_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Local speech-recognition service for Glimmer.\n"
        "It prints one line, \"glimmer-speechd listening on http://HOST:PORT (BACKEND)\", once it listens.\n"
        "With $GLIMMER_SPEECHD_TOKEN set, requests without \"Authorization: Bearer <token>\" are refused (401).\n"
        "Requests whose Host is not the service's own address, and any with an Origin, are refused (403)."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption hostOption(QStringLiteral("host"), QStringLiteral("Address to listen on."),
                                        QStringLiteral("address"), QStringLiteral("127.0.0.1"));
    const QCommandLineOption portOption(QStringLiteral("port"), QStringLiteral("Port to listen on; 0 picks a free one."),
                                        QStringLiteral("port"), QStringLiteral("17861"));
    const QCommandLineOption uploadOption(QStringLiteral("max-upload-mb"), QStringLiteral("Largest upload accepted."),
                                          QStringLiteral("megabytes"), QStringLiteral("512"));
    const QCommandLineOption queueOption(QStringLiteral("max-queue"),
                                         QStringLiteral("Tasks waiting or running at most; twice as many uploads may arrive at once."),
                                         QStringLiteral("count"), QStringLiteral("8"));
    const QCommandLineOption jobsOption(QStringLiteral("jobs"), QStringLiteral("Recognitions running at the same time."),
                                        QStringLiteral("count"), QStringLiteral("1"));
    const QCommandLineOption queryTimeoutOption(QStringLiteral("query-timeout"),
                                                QStringLiteral("Longest wait of a result query."),
                                                QStringLiteral("seconds"), QStringLiteral("3600"));
    const QCommandLineOption requestTimeoutOption(
        QStringLiteral("request-timeout"),
        QStringLiteral("Longest time a client may take to send one request, upload included "
                       "(its headers get at most 10 seconds of it)."),
        QStringLiteral("seconds"), QStringLiteral("300"));
    const QCommandLineOption idleTimeoutOption(QStringLiteral("idle-timeout"),
                                               QStringLiteral("Idle connections are closed after this long."),
                                               QStringLiteral("seconds"), QStringLiteral("5"));
    const QCommandLineOption maxDurationOption(QStringLiteral("max-duration"),
                                               QStringLiteral("Longest audio accepted."),
                                               QStringLiteral("seconds"), QStringLiteral("14400"));
    const QCommandLineOption decodeTimeoutOption(QStringLiteral("decode-timeout"),
                                                 QStringLiteral("Longest time decoding one upload may take."),
                                                 QStringLiteral("seconds"), QStringLiteral("1800"));
    const QCommandLineOption ttlOption(QStringLiteral("result-ttl"), QStringLiteral("How long finished results are kept."),
                                       QStringLiteral("seconds"), QStringLiteral("600"));
    const QCommandLineOption ffmpegOption(QStringLiteral("ffmpeg"), QStringLiteral("The ffmpeg program to decode uploads."),
                                          QStringLiteral("path"));
    const QCommandLineOption modelOption(QStringLiteral("model-dir"),
                                         QStringLiteral("pocketsphinx English model folder (en-us, en-us.lm.bin, cmudict-en-us.dict)."),
                                         QStringLiteral("folder"));
    const QCommandLineOption openAiUrlOption(
        QStringLiteral("openai-url"),
        QStringLiteral("Forward recognitions to this OpenAI-compatible transcription server "
                       "(default: $GLIMMER_SPEECHD_OPENAI_URL). Its key is read from $GLIMMER_SPEECHD_OPENAI_KEY."),
        QStringLiteral("url"));
    const QCommandLineOption openAiModelOption(QStringLiteral("openai-model"),
                                               QStringLiteral("Model name sent to that server (default: "
                                                              "$GLIMMER_SPEECHD_OPENAI_MODEL or whisper-1)."),
                                               QStringLiteral("name"));
    const QCommandLineOption decodersOption(
        QStringLiteral("decoders"),
        QStringLiteral("Decoders the built-in engine runs side by side on one recognition, each holding its own "
                       "copy of the model (about 110 MB); 0: one per processor core."),
        QStringLiteral("count"), QStringLiteral("0"));
    const QCommandLineOption decoderArgOption(
        QStringLiteral("decoder-arg"),
        QStringLiteral("A pocketsphinx setting for the built-in engine, such as -lw=8 (repeatable; for tuning)."),
        QStringLiteral("name=value"));
    const QCommandLineOption openAiTimeoutOption(QStringLiteral("openai-timeout"),
                                                 QStringLiteral("Longest wait for the transcription server's answer."),
                                                 QStringLiteral("seconds"), QStringLiteral("3600"));
    const QCommandLineOption parentOption(QStringLiteral("parent-pid"),
                                          QStringLiteral("Exit when this process, the one that started the service, ends."),
                                          QStringLiteral("pid"));
    const QCommandLineOption quietOption(QStringLiteral("quiet"), QStringLiteral("Log nothing but errors."));
    parser.addOptions({hostOption, portOption, uploadOption, queueOption, jobsOption, queryTimeoutOption,
                       requestTimeoutOption, idleTimeoutOption, ttlOption, maxDurationOption, decodeTimeoutOption,
                       ffmpegOption, modelOption, decodersOption, decoderArgOption, openAiUrlOption, openAiModelOption,
                       openAiTimeoutOption, parentOption, quietOption});
    parser.process(app);

    auto number = [&parser](const QCommandLineOption& option, long long low, long long high, long long& out) {
        bool ok = false;
        out = parser.value(option).toLongLong(&ok);
        return ok && out >= low && out <= high;
    };
    long long port = 0, uploadMb = 0, queue = 0, jobs = 0, queryTimeout = 0, ttl = 0, parentPid = 0;
    long long requestTimeout = 0, idleTimeout = 0, maxDuration = 0, decodeTimeout = 0, decoders = 0, openAiTimeout = 0;
    if (!number(portOption, 0, 65535, port) || !number(uploadOption, 1, 1 << 20, uploadMb)
        || !number(queueOption, 1, 1000, queue) || !number(jobsOption, 1, 64, jobs)
        || !number(queryTimeoutOption, 1, 86400 * 7, queryTimeout) || !number(ttlOption, 1, 86400 * 7, ttl)
        || !number(requestTimeoutOption, 1, 86400, requestTimeout) || !number(idleTimeoutOption, 1, 3600, idleTimeout)
        || !number(maxDurationOption, 1, 86400, maxDuration) || !number(decodeTimeoutOption, 1, 86400, decodeTimeout)
        || !number(decodersOption, 0, 64, decoders) || !number(openAiTimeoutOption, 1, 86400, openAiTimeout)) {
        return fail(QStringLiteral("invalid option value; see --help"));
    }
    if (parser.isSet(parentOption) && !number(parentOption, 1, 1LL << 31, parentPid)) {
        return fail(QStringLiteral("invalid --parent-pid"));
    }

    // The token is read once and kept from the programs the service runs.
    const QByteArray token = qgetenv("GLIMMER_SPEECHD_TOKEN");
    qunsetenv("GLIMMER_SPEECHD_TOKEN");

    sweepStaleFolders(QDir::tempPath());
    QTemporaryDir workDir(QDir::tempPath() + QLatin1Char('/') + kWorkPrefix + QString::number(getpid())
                          + QStringLiteral("-XXXXXX"));
    if (!workDir.isValid()) {
        return fail(QStringLiteral("cannot create a temporary folder: ") + workDir.errorString());
    }

    std::unique_ptr<Recognizer> recognizer;
    const QString openAiUrl = parser.isSet(openAiUrlOption) ? parser.value(openAiUrlOption)
                                                            : envOr("GLIMMER_SPEECHD_OPENAI_URL", QString());
    if (!openAiUrl.isEmpty()) {
        const QString model = parser.isSet(openAiModelOption)
                                  ? parser.value(openAiModelOption)
                                  : envOr("GLIMMER_SPEECHD_OPENAI_MODEL", QStringLiteral("whisper-1"));
        auto remote = std::make_unique<OpenAiRecognizer>(openAiUrl.toStdString(), model.toStdString(),
                                                         qEnvironmentVariable("GLIMMER_SPEECHD_OPENAI_KEY").toStdString(),
                                                         static_cast<int>(openAiTimeout));
        if (!remote->isValid()) {
            return fail(QStringLiteral("not an http(s) address: ") + openAiUrl);
        }
        recognizer = std::move(remote);
    } else {
        SphinxRecognizer::Options sphinx;
        sphinx.modelDir = parser.value(modelOption).toStdString();
        sphinx.decoders = static_cast<int>(decoders);
        for (const QString& setting : parser.values(decoderArgOption)) {
            const int equals = setting.indexOf(QLatin1Char('='));
            if (equals < 2 || !setting.startsWith(QLatin1Char('-'))) {
                return fail(QStringLiteral("--decoder-arg takes -name=value, not \"%1\"").arg(setting));
            }
            sphinx.decoderArgs.emplace_back(setting.left(equals).toStdString(), setting.mid(equals + 1).toStdString());
        }
        recognizer = std::make_unique<SphinxRecognizer>(sphinx);
    }

    ServerOptions options;
    options.host = parser.value(hostOption).toStdString();
    options.port = static_cast<int>(port);
    options.maxUploadBytes = static_cast<size_t>(uploadMb) * 1024u * 1024u;
    options.maxQueue = static_cast<size_t>(queue);
    options.jobs = static_cast<int>(jobs);
    options.queryTimeoutSeconds = static_cast<int>(queryTimeout);
    options.resultTtlSeconds = static_cast<int>(ttl);
    options.requestTimeoutSeconds = static_cast<int>(requestTimeout);
    options.idleTimeoutSeconds = static_cast<int>(idleTimeout);
    options.token = token.toStdString();
    options.workDir = workDir.path().toStdString();
    options.quiet = parser.isSet(quietOption);

    const std::string backend = recognizer->name();
    SpeechServer server(options, std::move(recognizer),
                        AudioDecoder(findFfmpeg(parser.value(ffmpegOption)).toStdString(),
                                     static_cast<int>(decodeTimeout), static_cast<int>(maxDuration)));
    if (!server.bind()) {
        return fail(QStringLiteral("cannot listen on %1:%2 (address in use?)").arg(parser.value(hostOption), QString::number(port)));
    }
    // The one line on standard output: where the service listens.
    std::printf("glimmer-speechd listening on http://%s:%d (%s)\n", options.host.c_str(), server.port(),
                backend.c_str());
    std::fflush(stdout);

    std::thread signalWatcher([&server, stopSignals] {
        int received = 0;
        sigwait(&stopSignals, &received);
        server.stop();
    });
    signalWatcher.detach();

    if (parentPid > 0) {
        std::thread parentWatcher([&server, parentPid] {
            while (getppid() == static_cast<pid_t>(parentPid)) {
                std::this_thread::sleep_for(std::chrono::milliseconds(500));
            }
            server.stop();
        });
        parentWatcher.detach();
    }

    const bool ok = server.run();
    return ok ? 0 : 1;
}
