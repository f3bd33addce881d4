// Capture checked on 30 captions of a 1080p H.264 video through the real main
// window, side by side with ffmpeg extracting the same 30 frames with the
// subtitles burnt in; then the time from launching the program to its window
// being on screen. Run under an X server: xvfb-run -a bench/bench_capture
#include "appconfig.h"
#include "captioninfo.h"
#include "captionmanager.h"
#include "globalmanager.h"
#include "imageswidget.h"
#include "mainwindow.h"
#include "mpvwidget.h"
#include "testsupport.h"
#include "videoplaywidget.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

#include <clocale>
#include <cstdio>

namespace {
constexpr int kCaptions = 30;

QString srtTime(int ms)
{
    return QStringLiteral("%1:%2:%3,%4")
        .arg(ms / 3600000, 2, 10, QLatin1Char('0'))
        .arg(ms / 60000 % 60, 2, 10, QLatin1Char('0'))
        .arg(ms / 1000 % 60, 2, 10, QLatin1Char('0'))
        .arg(ms % 1000, 3, 10, QLatin1Char('0'));
}

bool waitFor(const std::function<bool()>& done, int timeoutMs)
{
    QElapsedTimer timer;
    timer.start();
    while (!done() && timer.elapsed() < timeoutMs) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return done();
}

// Launch to a visible window, found the way a person's desktop would see it.
double launchSeconds(const QString& program)
{
    QProcess app;
    QElapsedTimer timer;
    timer.start();
    app.start(program, QStringList());
    if (!app.waitForStarted(10000)) {
        return -1.0;
    }
    QProcess search;
    search.start(QStringLiteral("xdotool"), {QStringLiteral("search"), QStringLiteral("--sync"),
                                             QStringLiteral("--onlyvisible"), QStringLiteral("--pid"),
                                             QString::number(app.processId())});
    const bool found = search.waitForFinished(30000) && search.exitCode() == 0;
    const double seconds = timer.elapsed() / 1000.0;
    app.terminate();
    if (!app.waitForFinished(5000)) {
        app.kill();
        app.waitForFinished(2000);
    }
    return found ? seconds : -1.0;
}
} // namespace

int main(int argc, char* argv[])
{
    // Never touch the real user's settings, logs or pictures.
    QTemporaryDir home;
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        qputenv(name, home.path().toUtf8() + '/' + name);
    }
    qputenv("TMPDIR", home.path().toUtf8());
    qputenv("GLIMMER_TEST", "1");
    QDir().mkpath(home.path() + QStringLiteral("/HOME"));

    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    TestSupport::isolate();
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    GlobalManager* global = GlobalManager::instance();
    global->saveSettings(AppConfig::FIRST_OPEN_APP, true);

    const QString dir = TestSupport::makeWorkDir(QStringLiteral("bench-capture"));
    const QString video = dir + QStringLiteral("/film.mp4");
    std::printf("generating a 40 s 1920x1080 H.264 video...\n");
    std::fflush(stdout);
    if (!TestSupport::makeVideo(video, 40.0, 1920, 1080, 25, true)) {
        std::fprintf(stderr, "ffmpeg could not make the video\n");
        return 1;
    }
    QString srt;
    QList<int> starts;
    for (int i = 0; i < kCaptions; ++i) {
        const int start = 500 + i * 1270;
        starts << start;
        srt += QStringLiteral("%1\n%2 --> %3\nCaption number %1, with a comma\n\n")
                   .arg(i + 1)
                   .arg(srtTime(start), srtTime(start + 1000));
    }
    const QString srtPath = dir + QStringLiteral("/film.srt");
    TestSupport::writeFile(srtPath, srt.toUtf8());

    // Ours: the real window, capture checked on every caption.
    auto* window = new MainWindow();
    window->show();
    window->resize(AppConfig::rate(QSize(1100, 741)));
    window->videoPlayWidget()->getMpvWidget()->setOption(QStringLiteral("ao"), QStringLiteral("null"));
    window->videoPlayWidget()->openFile(video);
    if (!waitFor([&] { return global->getCurrentFile().fileName() == QStringLiteral("film.mp4"); }, 30000)) {
        std::fprintf(stderr, "the video did not load\n");
        return 1;
    }
    window->loadCaption(srtPath);
    waitFor([] { return false; }, 1000);
    const QString assPath = CaptionManager::instance()->getAssFilePath();

    bool finished = false;
    QObject::connect(window, &MainWindow::captureSelectFinished, [&finished]() { finished = true; });
    QElapsedTimer timer;
    timer.start();
    window->videoPlayWidget()->getControlButton(VideoPlayWidget::ButtonCaptureSelected)->click();
    if (!waitFor([&] { return finished; }, 600000)) {
        std::fprintf(stderr, "capture checked did not finish\n");
        return 1;
    }
    const double ours = timer.elapsed() / 1000.0;
    const int captured = window->imagesWidget()->items().size();

    // Peer: ffmpeg seeking to each caption start and rendering the subtitles.
    timer.restart();
    int peerFrames = 0;
    for (int i = 0; i < kCaptions; ++i) {
        const QString seconds = QString::number(starts.at(i) / 1000.0, 'f', 3);
        const QString out = dir + QStringLiteral("/peer_%1.png").arg(i + 1);
        // -copyts keeps the subtitle filter on the film's own clock after the input seek.
        if (TestSupport::ffmpeg({"-ss", seconds, "-copyts", "-i", video, "-vf",
                                 QStringLiteral("subtitles=%1").arg(assPath), "-frames:v", "1", out})
            == 0) {
            ++peerFrames;
        }
    }
    const double peer = timer.elapsed() / 1000.0;
    const double wait = kCaptions * 0.5;

    std::printf("capture checked: %d frames in %.2f s, %.3f s per frame (ours)\n", captured, ours, ours / kCaptions);
    std::printf("ffmpeg subtitles filter: %d frames in %.2f s, %.3f s per frame (peer)\n", peerFrames, peer,
                peer / kCaptions);
    std::printf("capture ratio ours/ffmpeg: %.2f\n", ours / peer);
    std::printf("share of the fixed 500 ms wait in our time: %.0f %%\n", 100.0 * wait / ours);
    std::printf("capture ratio without the fixed wait ours/ffmpeg: %.2f\n", (ours - wait) / peer);

    window->close();
    delete window;

    const double launch = launchSeconds(QStringLiteral(GLIMMER_BINARY_DIR "/glimmer"));
    std::printf("launch to main window shown: %.2f s\n", launch);
    return captured == kCaptions ? 0 : 1;
}
