// Stitching 30 full-HD frames (caption bands and a 5-column grid) and encoding
// the result, side by side with libvips and ImageMagick on the same frames, and
// against a plain memory copy of the canvas.
#include "previewwidget.h"
#include "testsupport.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QImageWriter>
#include <QPixmap>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>
#include <vector>

namespace {
constexpr int kFrames = 30;
constexpr int kWidth = 1920;
constexpr int kHeight = 1080;
constexpr int kYSpace = -880; // keeps the 200-row caption band of every further frame
constexpr int kColumns = 5;
constexpr int kRuns = 5;

double medianMs(int runs, const std::function<void()>& work)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.push_back(timer.nsecsElapsed() / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

bool runTool(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(600000) || process.exitCode() != 0) {
        std::fprintf(stderr, "%s failed: %s\n", qPrintable(program), process.readAll().constData());
        return false;
    }
    return true;
}

double toolMs(int runs, const QString& program, const QStringList& arguments)
{
    bool ok = true;
    const double ms = medianMs(runs, [&]() { ok = runTool(program, arguments) && ok; });
    return ok ? ms : -1.0;
}

void ratio(const char* what, double ours, const char* peer, double theirs)
{
    if (theirs <= 0) {
        std::printf("%-34s ours %9.1f ms  %-12s  failed\n", what, ours, peer);
        return;
    }
    std::printf("%-34s ours %9.1f ms  %-12s %9.1f ms  ratio %.2f\n", what, ours, peer, theirs, ours / theirs);
}

void silence(QtMsgType, const QMessageLogContext&, const QString&) {}
} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QGuiApplication app(argc, argv);
    qInstallMessageHandler(silence); // the composition logs every call

    QTemporaryDir dir;
    const QString work = dir.path();
    std::printf("frames: %d x %dx%d, work folder %s\n", kFrames, kWidth, kHeight, qPrintable(work));
    if (TestSupport::ffmpeg({"-f", "lavfi", "-i", QStringLiteral("testsrc2=size=%1x%2:rate=25").arg(kWidth).arg(kHeight),
                             "-frames:v", QString::number(kFrames), work + "/f%02d.png"})
        != 0) {
        return 1;
    }

    // Same frames for everybody: our pixmaps in memory, the peers' own
    // uncompressed formats on disk (PPM for vips, whose arrayjoin crashes on its
    // own .v input in this version, MIFF for ImageMagick) so that nobody pays
    // for PNG decoding.
    QList<QPixmap> frames;
    QStringList vipsFrames, vipsBands, magickFrames;
    for (int i = 1; i <= kFrames; ++i) {
        const QString png = QStringLiteral("%1/f%2.png").arg(work).arg(i, 2, 10, QLatin1Char('0'));
        QImage image(png);
        frames.append(QPixmap::fromImage(image.convertToFormat(QImage::Format_RGB32)));
        const QString v = QStringLiteral("%1/f%2.ppm").arg(work).arg(i, 2, 10, QLatin1Char('0'));
        const QString miff = QStringLiteral("%1/f%2.miff").arg(work).arg(i, 2, 10, QLatin1Char('0'));
        if (!runTool("vips", {"copy", png, v}) || !runTool("convert", {png, "-depth", "8", miff})) {
            return 1;
        }
        vipsFrames << v;
        magickFrames << miff;
    }

    // ---------------------------------------------------------------- composition
    const int bandHeight = kHeight + kYSpace;
    QImage vertical;
    const double oursVertical = medianMs(kRuns, [&]() {
        vertical = PreviewWidget::composeImages(frames, PreviewWidget::Vertical, 0, kYSpace, 1);
    });
    QImage grid;
    const double oursGrid = medianMs(kRuns, [&]() {
        grid = PreviewWidget::composeImages(frames, PreviewWidget::Grid, 0, 0, kColumns);
    });
    // The pixmap the preview keeps is made from the canvas without a copy.
    const double toPixmap = medianMs(kRuns, [&]() { QPixmap p = QPixmap::fromImage(vertical); Q_UNUSED(p) });
    std::printf("vertical canvas %dx%d, grid canvas %dx%d, canvas to pixmap %.3f ms\n", vertical.width(),
                vertical.height(), grid.width(), grid.height(), toPixmap);

    auto memcpyMs = [](qsizetype bytes) {
        std::vector<char> a(bytes, 1), b(bytes, 2);
        return medianMs(kRuns, [&]() { std::memcpy(b.data(), a.data(), bytes); });
    };
    ratio("compose vertical vs memcpy bound", oursVertical, "memcpy", memcpyMs(vertical.sizeInBytes()));
    ratio("compose grid vs memcpy bound", oursGrid, "memcpy", memcpyMs(grid.sizeInBytes()));

    // vips: arrayjoin only stacks cells of one size, so the first frame is cut
    // into its top and its band; all 30 bands are joined, then the top is put
    // above them. The crop calls count as composition.
    const double vipsCrop = medianMs(1, [&]() {
        vipsBands.clear();
        runTool("vips", {"crop", vipsFrames.first(), work + "/top.ppm", "0", "0", QString::number(kWidth),
                         QString::number(-kYSpace)});
        for (int i = 0; i < kFrames; ++i) {
            const QString band = QStringLiteral("%1/b%2.ppm").arg(work).arg(i);
            runTool("vips", {"crop", vipsFrames.at(i), band, "0", QString::number(-kYSpace),
                             QString::number(kWidth), QString::number(bandHeight)});
            vipsBands << band;
        }
    });
    const double vipsJoin = medianMs(3, [&]() {
        runTool("vips", {"arrayjoin", vipsBands.join(' '), work + "/bands.v", "--across", "1"});
        runTool("vips", {"join", work + "/top.ppm", work + "/bands.v", work + "/vertical.v", "vertical"});
    });
    std::printf("vips vertical result: %s\n",
                QFileInfo(work + "/vertical.v").size() > qint64(kWidth) * vertical.height() * 3 ? "ok" : "missing");
    ratio("compose vertical vs vips", oursVertical, "vips", vipsCrop + vipsJoin);
    ratio("compose vertical vs vips (join only)", oursVertical, "vips", vipsJoin);
    const double vipsGrid = toolMs(3, "vips", {"arrayjoin", vipsFrames.join(' '), work + "/grid.v", "--across",
                                               QString::number(kColumns)});
    ratio("compose grid vs vips", oursGrid, "vips", vipsGrid);

    QStringList magickVertical{magickFrames.first(), "("};
    magickVertical << magickFrames.mid(1)
                   << QStringList{"-crop", QStringLiteral("%1x%2+0+%3").arg(kWidth).arg(bandHeight).arg(-kYSpace),
                                  "+repage", ")", "-append", "-depth", "8", work + "/vertical.miff"};
    ratio("compose vertical vs imagemagick", oursVertical, "imagemagick", toolMs(3, "convert", magickVertical));
    QStringList magickGrid;
    for (int row = 0; row * kColumns < kFrames; ++row) {
        magickGrid << "(" << magickFrames.mid(row * kColumns, kColumns) << "+append" << ")";
    }
    magickGrid << "-append" << "-depth" << "8" << work + "/grid.miff";
    ratio("compose grid vs imagemagick", oursGrid, "imagemagick", toolMs(3, "convert", magickGrid));

    // ---------------------------------------------------------------- encoding
    // The vertical stitch, at each format's default quality (JPG and WEBP 75).
    struct Format {
        const char* qt;
        const char* ext;
        QStringList vipsOptions;
        QStringList magickOptions;
    };
    // PNG is lossless at zlib level 6 everywhere; libpng (ours) tries every row
    // filter by default, so vips is asked for the same ("--filter all").
    const QList<Format> formats{{"png", "png", {"--filter", "all"}, {"-quality", "75"}},
                                {"jpg", "jpg", {"--Q", "75"}, {"-quality", "75"}},
                                {"webp", "webp", {"--Q", "75"}, {"-quality", "75"}}};
    for (const Format& format : formats) {
        qint64 size = 0;
        const double ours = medianMs(3, [&]() {
            QBuffer buffer;
            buffer.open(QIODevice::WriteOnly);
            QImageWriter writer(&buffer, format.qt);
            writer.write(vertical);
            size = buffer.size();
        });
        const QString vipsOut = QStringLiteral("%1/vertical-vips.%2").arg(work, format.ext);
        const QString vipsSaver = QStringLiteral("%1save").arg(QString::fromLatin1(format.ext == QByteArray("jpg") ? "jpeg" : format.ext));
        const double vips = toolMs(3, "vips", QStringList{vipsSaver, work + "/vertical.v", vipsOut} + format.vipsOptions);
        const QString magickOut = QStringLiteral("%1/vertical-im.%2").arg(work, format.ext);
        const double magick = toolMs(3, "convert", QStringList{work + "/vertical.miff"} + format.magickOptions << magickOut);
        const QString what = QStringLiteral("encode %1 (%2 KB ours)").arg(QString::fromLatin1(format.ext).toUpper()).arg(size / 1024);
        ratio(qPrintable(what + " vs vips"), ours, "vips", vips);
        std::printf("    sizes: vips %lld KB, imagemagick %lld KB\n", QFileInfo(vipsOut).size() / 1024,
                    QFileInfo(magickOut).size() / 1024);
        ratio(qPrintable(what + " vs imagemagick"), ours, "imagemagick", magick);
    }
    return 0;
}
