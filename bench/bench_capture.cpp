// Capture checked through the real main window on a 1080p H.264 video, side by
// side with ffmpeg extracting the same frames with the subtitles burnt in.
// Prints, per frame, where the time goes (seek sent -> seek answered -> frame
// ready -> snapshot -> strip updated -> preview updated -> next seek), the
// per-frame totals of a 30-frame and a 200-frame pass, the longest stall of the
// GUI thread during a pass, and the peak resident memory after 200 full-HD
// captures against the frames' own pixel bytes; then the time from launching
// the program to its window being on screen.
// Run under an X server: xvfb-run -a -s "-screen 0 1920x1080x24" bench/bench_capture [frames]
// (frames: the length of the long pass, 200 unless given).
#include "appconfig.h"
#include "captionmanager.h"
#include "capturecontroller.h"
#include "globalmanager.h"
#include "imageitem.h"
#include "imageswidget.h"
#include "mainwindow.h"
#include "mpvwidget.h"
#include "previewwidget.h"
#include "testsupport.h"
#include "undohistory.h"
#include "videoplaywidget.h"
#include "windowflows.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <malloc.h>

#include <clocale>
#include <cstdio>
#include <functional>

namespace {
constexpr double kSettle = CaptureController::kSettleMs / 1000.0;

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

// Resident memory of this process in MiB: now and at its peak.
double memoryMiB(const char* field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return -1.0;
    }
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith(field)) {
            return line.mid(int(qstrlen(field))).trimmed().split(' ').first().toDouble() / 1024.0;
        }
    }
    return -1.0;
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

// Empties the strip and lets its items go now: without a running event loop
// deleteLater() alone would keep every cleared frame alive.
// Empties the strip and the undo history (which would keep the cleared frames),
// as opening another video does, so a pass starts from nothing held.
void clearStrip(MainWindow* window)
{
    window->imagesWidget()->clearButtonClickedHandle();
    window->flows()->history()->reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    waitFor([] { return false; }, 300);
    malloc_trim(0);
}

// The moments of one captured frame, in seconds since the pass started.
struct FrameTimes {
    double seekSent = -1;
    double answered = -1;
    double frameReady = -1;
    double snapshot = -1;
    double strip = -1;
    double preview = -1;
    double next = -1; // the next seek, or the end of the pass
};

struct PassResult {
    QVector<FrameTimes> frames;
    double seconds = 0.0;
    double longestStallMs = 0.0;
    double longestStallEnd = 0.0;
    int captured = 0;
    bool ok = false;
};

QList<int> captionStarts(int count)
{
    QList<int> starts;
    for (int i = 0; i < count; ++i) {
        starts << 500 + i * (37000 / count);
    }
    return starts;
}

QString writeSrt(const QString& path, const QList<int>& starts)
{
    QString srt;
    for (int i = 0; i < starts.size(); ++i) {
        srt += QStringLiteral("%1\n%2 --> %3\nCaption number %1, with a comma\n\n")
                   .arg(i + 1)
                   .arg(srtTime(starts.at(i)), srtTime(starts.at(i) + 150));
    }
    TestSupport::writeFile(path, srt.toUtf8());
    return path;
}

class PassRecorder
{
public:
    PassRecorder(MainWindow* window, QElapsedTimer* clock)
        : m_window(window)
        , m_clock(clock)
    {
    }

    // Bus events seen before the window handles them (connected first).
    void early(const QString& name)
    {
        if (m_active && name == AppConfig::SELECT_IMAGE_COMPLETE && !m_frames.isEmpty()) {
            m_frames.last().strip = now();
        }
    }
    // ... and after it (connected last).
    void late(const QString& name)
    {
        if (m_active && name == AppConfig::SELECT_IMAGE_COMPLETE && !m_frames.isEmpty()) {
            m_frames.last().preview = now();
        }
    }
    void state(CaptureController::State state)
    {
        if (!m_active) {
            return;
        }
        const double t = now();
        switch (state) {
        case CaptureController::State::SeekSent:
            if (!m_frames.isEmpty()) {
                m_frames.last().next = t;
            }
            m_frames.append(FrameTimes());
            m_frames.last().seekSent = t;
            break;
        case CaptureController::State::SeekAnswered:
            m_frames.last().answered = t;
            break;
        case CaptureController::State::FrameReady:
            m_frames.last().frameReady = t;
            break;
        case CaptureController::State::Captured:
            m_frames.last().snapshot = t;
            break;
        default:
            break;
        }
    }

    PassResult run(const QString& srtPath, int count)
    {
        PassResult result;
        clearStrip(m_window);
        m_window->loadCaption(srtPath);
        if (!waitFor([&] { return CaptionManager::instance()->getCaptions().size() == count; }, 30000)) {
            return result;
        }
        waitFor([] { return false; }, 1000); // the subtitle track is loaded
        bool finished = false;
        QMetaObject::Connection done = QObject::connect(m_window, &MainWindow::captureSelectFinished,
                                                        [&finished]() { finished = true; });
        // The GUI thread's longest stall while the pass runs.
        QTimer ticker;
        ticker.setInterval(5);
        QElapsedTimer sinceTick;
        double longest = 0.0;
        double longestEnd = 0.0;
        QObject::connect(&ticker, &QTimer::timeout, [&]() {
            const double gap = sinceTick.nsecsElapsed() / 1e6;
            if (gap > longest) {
                longest = gap;
                longestEnd = now();
            }
            sinceTick.restart();
        });
        m_frames.clear();
        m_active = true;
        m_clock->restart();
        sinceTick.start();
        ticker.start();
        m_window->videoPlayWidget()->getControlButton(VideoPlayWidget::ButtonCaptureSelected)->click();
        result.ok = waitFor([&] { return finished; }, 1200000);
        result.seconds = now();
        ticker.stop();
        m_active = false;
        QObject::disconnect(done);
        if (!m_frames.isEmpty()) {
            m_frames.last().next = result.seconds;
        }
        result.frames = m_frames;
        result.longestStallMs = longest;
        result.longestStallEnd = longestEnd;
        result.captured = m_window->imagesWidget()->items().size();
        return result;
    }

private:
    double now() const { return m_clock->nsecsElapsed() / 1e9; }

    MainWindow* m_window;
    QElapsedTimer* m_clock;
    QVector<FrameTimes> m_frames;
    bool m_active = false;
};

void printBreakdown(const char* title, const PassResult& pass, const QList<int>& which)
{
    std::printf("\n%s: %d frames in %.2f s, %.3f s per frame; longest GUI stall %.0f ms\n", title, pass.captured,
                pass.seconds, pass.seconds / qMax(1, pass.frames.size()), pass.longestStallMs);
    // Where the longest stall ended: which frame, after which step.
    for (int k = 0; k < pass.frames.size(); ++k) {
        const FrameTimes& f = pass.frames.at(k);
        const double t = pass.longestStallEnd;
        if (t >= f.seekSent && t <= f.next) {
            const char* step = t <= f.answered     ? "waiting for the seek's answer"
                               : t <= f.snapshot   ? "waiting for the frame (settle, restart, snapshot)"
                               : t <= f.strip      ? "strip update"
                               : t <= f.preview    ? "preview update"
                                                   : "before the next seek";
            std::printf("  the longest stall ended in frame %d, %s, %.0f ms after its seek\n", k + 1, step,
                        (t - f.seekSent) * 1000);
        }
    }
    std::printf("  frame  answer  ready  snapshot  strip  preview  next-seek | total  ours(-%.0f ms)\n",
                kSettle * 1000);
    for (int k : which) {
        if (k < 1 || k > pass.frames.size()) {
            continue;
        }
        const FrameTimes& f = pass.frames.at(k - 1);
        auto ms = [](double from, double to) { return from < 0 || to < 0 ? -1.0 : (to - from) * 1000.0; };
        const double total = f.next - f.seekSent;
        std::printf("  %5d  %6.1f %6.1f %9.1f %6.1f %8.1f %10.1f | %5.3f  %6.1f ms\n", k, ms(f.seekSent, f.answered),
                    ms(f.answered, f.frameReady), ms(f.answered, f.snapshot) - kSettle * 1000,
                    ms(f.snapshot, f.strip), ms(f.strip, f.preview), ms(f.preview, f.next), total,
                    (total - kSettle) * 1000.0);
    }
    std::printf("  (answer: seek sent->answered; ready: answered->playback restart; snapshot: answered->taken,"
                " beyond the settle wait; strip/preview: the bus event's handlers; next-seek: preview->next seek)\n");
}

double perFrame(const PassResult& pass, int from, int to)
{
    double sum = 0.0;
    int n = 0;
    for (int k = from; k <= to && k <= pass.frames.size(); ++k) {
        const FrameTimes& f = pass.frames.at(k - 1);
        sum += f.next - f.seekSent;
        ++n;
    }
    return n ? sum / n : 0.0;
}

double ffmpegPerFrame(const QString& video, const QString& assPath, const QList<int>& starts, const QString& dir,
                      int* frames)
{
    QElapsedTimer timer;
    timer.start();
    *frames = 0;
    for (int i = 0; i < starts.size(); ++i) {
        const QString seconds = QString::number(starts.at(i) / 1000.0, 'f', 3);
        const QString out = dir + QStringLiteral("/peer_%1.png").arg(i + 1);
        // -copyts keeps the subtitle filter on the film's own clock after the input seek.
        if (TestSupport::ffmpeg({"-ss", seconds, "-copyts", "-i", video, "-vf",
                                 QStringLiteral("subtitles=%1").arg(assPath), "-frames:v", "1", out})
            == 0) {
            ++*frames;
        }
    }
    return timer.elapsed() / 1000.0 / starts.size();
}
} // namespace

int main(int argc, char* argv[])
{
    // Never touch the real user's settings, logs or pictures.
    QTemporaryDir home;
    TestSupport::isolateEnvironment(home.path());

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
    const QList<int> starts30 = captionStarts(30);
    // The long pass: 200 captions unless a count is given.
    const int longCount = argc > 1 ? qMax(30, QByteArray(argv[1]).toInt()) : 200;
    const QString srt30 = writeSrt(dir + QStringLiteral("/film30.srt"), starts30);
    const QString srtLong = writeSrt(dir + QStringLiteral("/filmlong.srt"), captionStarts(longCount));

    QElapsedTimer clock;
    clock.start();
    PassRecorder* recorder = nullptr;
    QObject::connect(global, &GlobalManager::globalEvent, [&recorder](const QString& name, const QVariant&) {
        if (recorder) {
            recorder->early(name);
        }
    });
    auto* window = new MainWindow();
    QObject::connect(global, &GlobalManager::globalEvent, [&recorder](const QString& name, const QVariant&) {
        if (recorder) {
            recorder->late(name);
        }
    });
    PassRecorder passes(window, &clock);
    recorder = &passes;
    QObject::connect(window->captureController(), &CaptureController::stateChanged,
                     [&passes](CaptureController::State state) { passes.state(state); });
    window->show();
    window->resize(AppConfig::rate(QSize(1100, 741)));
    window->videoPlayWidget()->getMpvWidget()->setOption(QStringLiteral("ao"), QStringLiteral("null"));
    window->videoPlayWidget()->getMpvWidget()->setOption(QStringLiteral("terminal"), QStringLiteral("no"));
    window->videoPlayWidget()->openFile(video);
    if (!waitFor([&] { return global->getCurrentFile().fileName() == QStringLiteral("film.mp4"); }, 30000)) {
        std::fprintf(stderr, "the video did not load\n");
        return 1;
    }
    waitFor([] { return false; }, 500);
    const double baseMiB = memoryMiB("VmRSS:");

    const PassResult pass30 = passes.run(srt30, 30);
    const QString assPath = CaptionManager::instance()->getAssFilePath();
    int peerFrames = 0;
    const double peer = ffmpegPerFrame(video, assPath, starts30, dir, &peerFrames);
    const double ours30 = pass30.seconds / 30;
    printBreakdown("capture checked, 30 captions", pass30, {1, 2, 10, 20, 30});
    std::printf("ffmpeg subtitles filter: %d frames, %.3f s per frame (peer)\n", peerFrames, peer);
    std::printf("capture ratio ours/ffmpeg (30 frames): %.2f; without the fixed wait: %.2f\n", ours30 / peer,
                (ours30 - kSettle) / peer);
    std::fflush(stdout);

    clearStrip(window);
    const double longBaseMiB = memoryMiB("VmRSS:");
    const PassResult passLong = passes.run(srtLong, longCount);
    waitFor([] { return false; }, 500); // the last preview refresh lands
    // The snapshot call alone, on the paused frame.
    QElapsedTimer shot;
    shot.start();
    for (int i = 0; i < 5; ++i) {
        window->videoPlayWidget()->getMpvWidget()->takeSnapshot(QString());
    }
    const double snapshotMs = shot.nsecsElapsed() / 1e6 / 5;
    const double rssMiB = memoryMiB("VmRSS:");
    const double peakMiB = memoryMiB("VmHWM:");
    qint64 pixelBytes = 0;
    for (ImageItem* item : window->imagesWidget()->items()) {
        pixelBytes += qint64(item->getPixmap().width()) * item->getPixmap().height() * 4;
    }
    const double pixelMiB = pixelBytes / 1048576.0;
    const QByteArray title = QByteArray("capture checked, ") + QByteArray::number(longCount) + " captions";
    printBreakdown(title.constData(), passLong, {1, 10, 30, 100, 150, 200});
    const double oursLong = passLong.seconds / longCount;
    std::printf("per-frame total: 30 frames %.3f s, %d frames %.3f s (%d/30: %.3f); its last 30 frames %.3f s\n",
                ours30, longCount, oursLong, longCount, oursLong / ours30,
                perFrame(passLong, longCount - 29, longCount));
    std::printf("ours beyond the %.0f ms wait: 30 frames %.1f ms, %d frames %.1f ms per frame\n", kSettle * 1000,
                (ours30 - kSettle) * 1000, longCount, (oursLong - kSettle) * 1000);
    std::printf("capture ratio ours/ffmpeg (%d frames): %.2f\n", longCount, oursLong / peer);
    std::printf("the snapshot call alone (screenshot-raw with subtitles, full HD): %.1f ms\n", snapshotMs);
    std::printf("memory after %d captures: resident %.0f MiB, peak %.0f MiB, before the passes %.0f MiB; "
                "frames' pixels %.0f MiB; peak/pixels %.2f; peak over the resident memory before this pass (%.0f MiB)/pixels %.2f\n",
                longCount, rssMiB, peakMiB, baseMiB, pixelMiB, peakMiB / pixelMiB, longBaseMiB,
                (peakMiB - longBaseMiB) / pixelMiB);
    // What is left once the frames are gone: the program's own growth over the passes.
    clearStrip(window);
    const double clearedMiB = memoryMiB("VmRSS:");
    malloc_trim(0);
    std::printf("after clearing the strip: resident %.0f MiB (%.0f MiB once the allocator gives back what it "
                "holds); growth over the passes without the frames: %.0f MiB\n",
                clearedMiB, memoryMiB("VmRSS:"), memoryMiB("VmRSS:") - baseMiB);
    std::fflush(stdout);

    window->close();
    delete window;

    const double launch = launchSeconds(QStringLiteral(GLIMMER_BINARY_DIR "/glimmer"));
    std::printf("launch to main window shown: %.2f s\n", launch);
    return pass30.ok && passLong.ok && pass30.captured == 30 && passLong.captured == longCount ? 0 : 1;
}
