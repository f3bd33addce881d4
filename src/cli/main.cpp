// glimmer-cli: from a video and its subtitles to the stitched picture in one
// command, without a window.
#include "appconfig.h"
#include "clijob.h"
#include "clioptions.h"
#include "licensemanager.h"
#include "progressreporter.h"
#include "transcribejob.h"

#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTimer>

#include <clocale>
#include <cstdio>
#include <type_traits>
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {
// The library reports through Qt's log; a command prints its own messages.
void messageHandler(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        std::fprintf(stderr, "glimmer-cli: %s\n", message.toLocal8Bit().constData());
    }
}
} // namespace

int main(int argc, char* argv[])
{
#ifdef __GLIBC__
    // Frames of several megabytes are made on the players' threads and freed
    // on others; with few malloc arenas that memory is found again instead
    // of piling up in one arena per thread.
    mallopt(M_ARENA_MAX, 2);
#endif
    // Never a window: the minimal platform needs no display, still has the
    // fonts the watermark is drawn with, and (unlike the offscreen one) frees
    // its screen at exit.
    qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts");
    qInstallMessageHandler(messageHandler);
    QGuiApplication app(argc, argv);
    // libmpv refuses to start under a non-C numeric locale.
    std::setlocale(LC_NUMERIC, "C");

    const CliOptions options = CliOptions::parse(QCoreApplication::arguments());
    switch (options.action) {
    case CliOptions::Help:
        std::fputs(CliOptions::helpText().toLocal8Bit().constData(), stdout);
        return 0;
    case CliOptions::Version:
        std::printf("glimmer-cli %s\n", GLIMMER_VERSION);
        return 0;
    case CliOptions::UsageError:
        std::fprintf(stderr, "glimmer-cli: %s\nTry 'glimmer-cli --help' for more information.\n",
                     options.error.toLocal8Bit().constData());
        return 2;
    case CliOptions::Run:
        break;
    }

    // Working files (converted subtitles) in a folder of this run alone, so
    // that runs side by side never share a file.
    QTemporaryDir work(QDir::tempPath() + QStringLiteral("/glimmer-cli-XXXXXX"));
    if (!work.isValid()) {
        std::fprintf(stderr, "glimmer-cli: cannot create a temporary folder in %s\n",
                     QDir::tempPath().toLocal8Bit().constData());
        return 1;
    }
    qputenv("TMPDIR", QFile::encodeName(work.path()));

    AppConfig::registerMetaTypes();
    // Registered or not, as the window would be with the stored licence. No
    // check over the network: the command may end before any answer, and a
    // request still under way as the program exits can bring it down.
    LicenseManager::instance()->restoreStored();

    ProgressReporter progress(ProgressReporter::modeFor(stderr, options.quiet));
    int exitCode = 1;
    // Runs a job to its end: its finished(code) is the exit status.
    const auto run = [&app, &exitCode](auto& job) {
        using Job = std::remove_reference_t<decltype(job)>;
        QObject::connect(&job, &Job::finished, &app, [&exitCode](int code) {
            exitCode = code;
            QCoreApplication::exit(code);
        }, Qt::QueuedConnection);
        QTimer::singleShot(0, &job, &Job::start);
        app.exec();
    };
    if (options.transcribe) {
        TranscribeJob job(options, &progress);
        run(job);
    } else {
        CliJob job(options, work.path(), &progress);
        run(job);
    }
    return exitCode;
}
