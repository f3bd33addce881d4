// glimmer-cli on 30 captions of a 60 s 1080p H.264 video, side by side with
// ffmpeg taking the same 30 frames with the subtitles burnt in: in one pass
// (select of the frame numbers + the subtitles filter) and one process per
// frame. Prints milliseconds per frame, the ratios and our peak memory.
// Needs no display: bench/bench_cli
#include "appconfig.h"
#include "framegrabber.h"
#include "globalmanager.h"
#include "testsupport.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QSettings>
#include <QTemporaryDir>

#include <cmath>
#include <cstdio>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

extern char** environ;

namespace {
constexpr int kCaptions = 30;
constexpr int kFps = 25;
constexpr int kRounds = 3;

struct Run {
    double ms = -1.0;
    long peakKb = 0;
    int exitCode = -1;
};

// Runs a program with its output discarded; its wall time and its own peak memory.
Run spawn(const QString& program, const QStringList& arguments)
{
    QList<QByteArray> storage{program.toLocal8Bit()};
    for (const QString& argument : arguments) {
        storage << argument.toLocal8Bit();
    }
    QVector<char*> argv;
    for (QByteArray& item : storage) {
        argv << item.data();
    }
    argv << nullptr;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    Run run;
    QElapsedTimer timer;
    timer.start();
    pid_t pid = 0;
    if (posix_spawnp(&pid, argv.first(), &actions, nullptr, argv.data(), environ) == 0) {
        int status = 0;
        rusage usage{};
        if (wait4(pid, &status, 0, &usage) == pid) {
            run.ms = timer.nsecsElapsed() / 1e6;
            run.peakKb = usage.ru_maxrss;
            run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        }
    }
    posix_spawn_file_actions_destroy(&actions);
    return run;
}

// Keeps the best of several runs: the figure least disturbed by the rest of the machine.
void keepBest(Run* best, const Run& run)
{
    if (best->exitCode > 0) {
        return;
    }
    if (run.exitCode != 0) {
        *best = run;
    } else if (best->ms < 0 || run.ms < best->ms) {
        *best = run;
    }
}

QString srtTime(int ms)
{
    return QStringLiteral("%1:%2:%3,%4")
        .arg(ms / 3600000, 2, 10, QLatin1Char('0'))
        .arg(ms / 60000 % 60, 2, 10, QLatin1Char('0'))
        .arg(ms / 1000 % 60, 2, 10, QLatin1Char('0'))
        .arg(ms % 1000, 3, 10, QLatin1Char('0'));
}

int countFiles(const QString& dir)
{
    return QDir(dir).entryList(QDir::Files).size();
}
} // namespace

int main(int argc, char* argv[])
{
    // Never touch the real user's settings, logs or pictures.
    QTemporaryDir home;
    TestSupport::isolateEnvironment(home.path());

    QCoreApplication app(argc, argv);
    TestSupport::isolate();
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    // A registered copy, as the peers stamp nothing; the licence server is a
    // port where nothing answers, so the stored key stands.
    QSettings settings(home.path() + QStringLiteral("/XDG_CONFIG_HOME/Glimmer.conf"), QSettings::IniFormat);
    settings.setValue(AppConfig::APP_REGISTER, QStringLiteral("BENCH-KEY-0001"));
    settings.setValue(AppConfig::LICENSE_SERVER_URL, QStringLiteral("http://127.0.0.1:%1").arg(TestSupport::freePort()));
    settings.sync();

    const QString dir = TestSupport::makeWorkDir(QStringLiteral("bench-cli"));
    const QString video = dir + QStringLiteral("/film.mp4");
    std::printf("generating a 60 s 1920x1080 H.264 video and 30 captions, one per two seconds...\n");
    std::fflush(stdout);
    if (!TestSupport::makeVideo(video, 60.0, 1920, 1080, kFps, true)) {
        std::fprintf(stderr, "ffmpeg could not make the video\n");
        return 1;
    }
    QString srt;
    QStringList frameNumbers;
    QList<double> seconds;
    for (int i = 0; i < kCaptions; ++i) {
        const int start = 500 + i * 2000;
        srt += QStringLiteral("%1\n%2 --> %3\nCaption number %1, with a comma\n\n")
                   .arg(i + 1)
                   .arg(srtTime(start), srtTime(start + 1500));
        // The frame an exact seek lands on: the first at or after the start.
        const double t = FrameGrabber::captureSeconds(start);
        seconds << t;
        frameNumbers << QStringLiteral("eq(n\\,%1)").arg(static_cast<int>(std::ceil(t * kFps - 1e-6)));
    }
    const QString srtPath = dir + QStringLiteral("/film.srt");
    TestSupport::writeFile(srtPath, srt.toUtf8());
    // The peers render the very subtitle file the player renders.
    const QString assPath = GlobalManager::instance()->srtToAss(srtPath);
    const QString cli = QStringLiteral(GLIMMER_BINARY_DIR "/glimmer-cli");

    // The contenders take turns, round after round, so that a busy moment of
    // the machine does not fall on one of them only.
    Run frames;
    Run stitch;
    Run onePass;
    Run perFrame;
    Run decode;
    for (int round = 1; round <= kRounds; ++round) {
        const QString tag = QString::number(round);
        const QString framesDir = dir + QStringLiteral("/ours-") + tag;
        Run run = spawn(cli, {video, QStringLiteral("--subtitles"), srtPath, QStringLiteral("--frames-dir"), framesDir,
                              QStringLiteral("--quiet")});
        if (run.exitCode == 0 && countFiles(framesDir) != kCaptions) {
            run.exitCode = 1;
        }
        keepBest(&frames, run);

        const QString passDir = dir + QStringLiteral("/pass-") + tag;
        QDir().mkpath(passDir);
        run = spawn(QStringLiteral("ffmpeg"),
                    {QStringLiteral("-y"), QStringLiteral("-i"), video, QStringLiteral("-vf"),
                     QStringLiteral("select='%1',subtitles=%2").arg(frameNumbers.join(QLatin1Char('+')), assPath),
                     QStringLiteral("-fps_mode"), QStringLiteral("passthrough"), passDir + QStringLiteral("/%02d.png")});
        if (run.exitCode == 0 && countFiles(passDir) != kCaptions) {
            run.exitCode = 1;
        }
        keepBest(&onePass, run);

        keepBest(&stitch, spawn(cli, {video, QStringLiteral("--subtitles"), srtPath, QStringLiteral("--layout"),
                                      QStringLiteral("vertical"), QStringLiteral("--bands"), QStringLiteral("auto"),
                                      QStringLiteral("-o"), dir + QStringLiteral("/quotes-%1.png").arg(tag),
                                      QStringLiteral("--quiet")}));

        const QString eachDir = dir + QStringLiteral("/each-") + tag;
        QDir().mkpath(eachDir);
        Run each;
        each.ms = 0.0;
        each.exitCode = 0;
        for (int i = 0; i < kCaptions; ++i) {
            // -copyts keeps the subtitles filter on the film's own clock after the input seek.
            const Run one = spawn(QStringLiteral("ffmpeg"),
                                  {QStringLiteral("-y"), QStringLiteral("-ss"), QString::number(seconds.at(i), 'g', 17),
                                   QStringLiteral("-copyts"), QStringLiteral("-i"), video, QStringLiteral("-vf"),
                                   QStringLiteral("subtitles=%1").arg(assPath), QStringLiteral("-frames:v"),
                                   QStringLiteral("1"), eachDir + QStringLiteral("/%1.png").arg(i + 1)});
            each.ms += one.ms;
            each.exitCode = qMax(each.exitCode, one.exitCode);
        }
        keepBest(&perFrame, each);

        keepBest(&decode, spawn(QStringLiteral("ffmpeg"), {QStringLiteral("-i"), video, QStringLiteral("-f"),
                                                           QStringLiteral("null"), QStringLiteral("-")}));
    }

    // Memory: a run of two captions holds the program, its libraries and both
    // players; what more the full runs need is the frames in flight and the canvas.
    const Run single = spawn(cli, {video, QStringLiteral("--subtitles"), srtPath, QStringLiteral("--captions"),
                                   QStringLiteral("1-2"), QStringLiteral("--frames-dir"), dir + QStringLiteral("/two"),
                                   QStringLiteral("--quiet")});
    const QString wholePath = dir + QStringLiteral("/whole.png");
    const Run whole = spawn(cli, {video, QStringLiteral("--subtitles"), srtPath, QStringLiteral("-o"), wholePath,
                                  QStringLiteral("--quiet")});
    const QSize wholeSize = QImage(wholePath).size();
    const QSize bandsSize = QImage(dir + QStringLiteral("/quotes-1.png")).size();

    for (const Run* run : std::initializer_list<const Run*>{&frames, &stitch, &onePass, &perFrame, &decode, &single, &whole}) {
        if (run->exitCode != 0) {
            std::fprintf(stderr, "a run failed (exit code %d)\n", run->exitCode);
            return 1;
        }
    }
    auto perFrameMs = [](const Run& run) { return run.ms / kCaptions; };
    std::printf("glimmer-cli, 30 frames as PNG files:      %7.1f ms per frame (ours)\n", perFrameMs(frames));
    std::printf("glimmer-cli, stitched with --bands auto:  %7.1f ms per frame (ours)\n", perFrameMs(stitch));
    std::printf("ffmpeg one pass (select + subtitles):     %7.1f ms per frame (peer)\n", perFrameMs(onePass));
    std::printf("ffmpeg one process per frame:             %7.1f ms per frame (peer)\n", perFrameMs(perFrame));
    std::printf("ffmpeg full decode, for reference:        %7.1f ms per frame\n", perFrameMs(decode));
    std::printf("ratio ours (files) / ffmpeg one pass:         %.2f\n", frames.ms / onePass.ms);
    std::printf("ratio ours (files) / ffmpeg per frame:        %.2f\n", frames.ms / perFrame.ms);
    std::printf("ratio ours (stitched) / ffmpeg one pass:      %.2f\n", stitch.ms / onePass.ms);
    auto mb = [](long kb) { return kb / 1024.0; };
    auto canvasMb = [](const QSize& size) { return 4.0 * size.width() * size.height() / (1024.0 * 1024.0); };
    std::printf("peak memory of glimmer-cli, two captions (program, libraries, two players): %.0f MB\n",
                mb(single.peakKb));
    std::printf("  30 frames as files:           %4.0f MB, %+4.0f MB over two captions (a 1080p frame is 8 MB)\n",
                mb(frames.peakKb), mb(frames.peakKb - single.peakKb));
    std::printf("  stitched with --bands auto:   %4.0f MB, %+4.0f MB over two captions (canvas %dx%d, %.0f MB)\n",
                mb(stitch.peakKb), mb(stitch.peakKb - single.peakKb), bandsSize.width(), bandsSize.height(),
                canvasMb(bandsSize));
    std::printf("  30 whole frames stitched:     %4.0f MB, %+4.0f MB over two captions (canvas %dx%d, %.0f MB)\n",
                mb(whole.peakKb), mb(whole.peakKb - single.peakKb), wholeSize.width(), wholeSize.height(),
                canvasMb(wholeSize));
    return 0;
}
