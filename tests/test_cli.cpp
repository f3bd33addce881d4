// glimmer-cli run as a user runs it (a separate process with no display) on
// media made by ffmpeg: its frames against the window's capture of the same
// captions, the caption bands it crops to, every bad input, and files that
// are never overwritten by accident.
#include "appconfig.h"
#include "framegrabber.h"
#include "globalmanager.h"
#include "mpvwidget.h"
#include "testsupport.h"
#include "videoplaywidget.h"

#include <QDir>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QtTest>

namespace {
struct CliRun {
    int exitCode = -1;
    QString err;
};

// One-line captions of equal height, one at a time; 1234 ms is sought at
// 1.2339999675750732 s, and the last starts after the end of the 10 s video.
const QList<std::tuple<int, int, QString>> kCaptions{{500, 1200, QStringLiteral("Alpha bravo charlie")},
                                                     {1234, 1934, QStringLiteral("Delta echo foxtrot")},
                                                     {6040, 6740, QStringLiteral("Golf hotel india")},
                                                     {12000, 12700, QStringLiteral("After the end")}};
} // namespace

class TestCli : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void framesEqualTheWindowsCapture();
    void bandsAutoCropsToTheCaptionRows();
    void watermarkFollowsRegistration();
    void subtitleTrackOfTheVideo();
    void badInput_data();
    void badInput();
    void neverOverwritesWithoutForce();

private:
    CliRun cli(const QStringList& arguments) const;
    void setRegistered(bool registered) const;

    QString m_dir;
    QString m_video;
    QString m_srt;
    QString m_frames; // frames of captions 1-3 written by the command
    QList<QImage> m_window; // the same frames captured through the window's player
    QList<QRect> m_caption; // where each caption lies in its frame
};

void TestCli::initTestCase()
{
    TestSupport::isolate();
    m_dir = TestSupport::makeWorkDir(QStringLiteral("cli"));
    m_video = m_dir + QStringLiteral("/film.mp4");
    m_srt = m_dir + QStringLiteral("/film.srt");
    QVERIFY(TestSupport::makeVideo(m_video, 10.0, 640, 360, 25, true));
    QVERIFY(TestSupport::writeFile(m_srt, TestSupport::srt(kCaptions)));
    setRegistered(true);
    m_frames = m_dir + QStringLiteral("/frames");
    const CliRun run = cli({m_video, "--subtitles", m_srt, "--frames-dir", m_frames});
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    // The caption after the end is reported and skipped; the others are written in order.
    QVERIFY2(run.err.contains(QStringLiteral("caption 4 starts at 0:00:12.00")), qPrintable(run.err));
    QCOMPARE(QDir(m_frames).entryList(QDir::Files), (QStringList{"film_1.png", "film_2.png", "film_3.png"}));

    // The window's path on the same captions: the SRT converted and added to
    // the player, an exact seek to each start, a snapshot at its restart; and
    // the same frame with the subtitles hidden, to tell where the caption lies.
    const QString ass = GlobalManager::instance()->srtToAss(m_srt);
    QVERIFY(!ass.isEmpty());
    TestSupport::PlayerPanel panel(QSize(640, 400));
    MpvWidget& player = *panel.mpv();
    QVERIFY(panel.open(m_video, true));
    QSignalSpy subtitles(panel.widget.get(), &VideoPlayWidget::subtitleTrackAdded);
    panel.widget->loadSubTitleFile(ass);
    QVERIFY(subtitles.wait(10000));
    for (int i = 0; i < 3; ++i) {
        QVERIFY(panel.seekForCapture(FrameGrabber::captureSeconds(std::get<0>(kCaptions.at(i)))));
        m_window << player.takeSnapshot().toImage();
        QVERIFY(player.setOption(QStringLiteral("sub-visibility"), QStringLiteral("no")));
        m_caption << TestSupport::changedBox(player.takeSnapshot().toImage(), m_window.last());
        QVERIFY(player.setOption(QStringLiteral("sub-visibility"), QStringLiteral("yes")));
        QVERIFY(m_caption.last().height() > 10 && m_caption.last().height() < 60);
    }
}

CliRun TestCli::cli(const QStringList& arguments) const
{
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove(QStringLiteral("DISPLAY"));
    env.remove(QStringLiteral("WAYLAND_DISPLAY"));
    env.remove(QStringLiteral("XAUTHORITY"));
    process.setProcessEnvironment(env);
    process.start(QStringLiteral(GLIMMER_BINARY_DIR "/glimmer-cli"), arguments);
    CliRun run;
    if (!process.waitForFinished(120000)) {
        process.kill();
        process.waitForFinished(2000);
        return run;
    }
    run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.err = QString::fromLocal8Bit(process.readAllStandardError());
    return run;
}

void TestCli::setRegistered(bool registered) const
{
    // The command reads the settings a user's window keeps; the licence server
    // is a port where nothing answers, so the stored key stands.
    QSettings settings(qEnvironmentVariable("XDG_CONFIG_HOME") + QStringLiteral("/Glimmer.conf"),
                       QSettings::IniFormat);
    settings.setValue(AppConfig::APP_REGISTER, registered ? QStringLiteral("TEST-KEY-0001") : QString());
    settings.setValue(AppConfig::LICENSE_SERVER_URL,
                      QStringLiteral("http://127.0.0.1:%1").arg(TestSupport::freePort()));
}

void TestCli::framesEqualTheWindowsCapture()
{
    for (int i = 0; i < 3; ++i) {
        const QImage ours(m_frames + QStringLiteral("/film_%1.png").arg(i + 1));
        const QImage& window = m_window.at(i);
        QCOMPARE(ours.size(), window.size());
        // The same frame (its counter in the corner) and the same caption.
        const double whole = TestSupport::meanDifference(ours, window);
        const double caption = TestSupport::meanDifference(ours, window, m_caption.at(i));
        const double counter = TestSupport::meanDifference(ours, window, QRect(0, 0, 110, 40));
        QVERIFY2(whole < 0.25 && caption < 0.5 && counter < 0.5,
                 qPrintable(QStringLiteral("caption %1: mean difference %2, %3 on the caption, %4 on the "
                                           "frame counter")
                                .arg(i + 1)
                                .arg(whole)
                                .arg(caption)
                                .arg(counter)));
    }
}

void TestCli::bandsAutoCropsToTheCaptionRows()
{
    const QString out = m_dir + QStringLiteral("/bands.png");
    const CliRun run
        = cli({m_video, "--subtitles", m_srt, "--captions", "1-3", "--bands", "auto", "-o", out, "--quiet"});
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QVERIFY(run.err.isEmpty());
    // Rows compared by their hashes: a band is a verbatim run of its frame's rows.
    auto rows = [](const QImage& image) {
        const QImage pixels = image.convertToFormat(QImage::Format_RGB32);
        QVector<uint> hashes;
        for (int y = 0; y < pixels.height(); ++y) {
            hashes << qHashBits(pixels.constScanLine(y), size_t(pixels.width()) * 4);
        }
        return hashes;
    };
    const QImage picture(out);
    const QVector<uint> stitched = rows(picture);
    QList<QVector<uint>> frames;
    for (int i = 0; i < 3; ++i) {
        frames << rows(QImage(m_frames + QStringLiteral("/film_%1.png").arg(i + 1)));
    }
    const QList<QRect>& captions = m_caption;
    QCOMPARE(picture.width(), 640);
    QCOMPARE(stitched.mid(0, 360), frames.at(0));

    // After the whole first frame, two runs of rows, each its frame's rows
    // around the caption with a small margin and no more.
    auto bandAt = [&](int i, int at, int height) {
        const QRect& caption = captions.at(i);
        for (int y = qMax(0, caption.bottom() - height + 1); y <= caption.top() && y + height <= 360; ++y) {
            if (frames.at(i).mid(y, height) == stitched.mid(at, height)) {
                return true;
            }
        }
        return false;
    };
    const int rest = picture.height() - 360;
    QVERIFY2(rest >= captions.at(1).height() + captions.at(2).height()
                 && rest <= captions.at(1).height() + captions.at(2).height() + 4 * 12,
             qPrintable(QStringLiteral("%1 rows of bands").arg(rest)));
    bool found = false;
    for (int first = captions.at(1).height(); first <= rest - captions.at(2).height() && !found; ++first) {
        found = bandAt(1, 360, first) && bandAt(2, 360 + first, rest - first);
    }
    QVERIFY(found);
}

void TestCli::watermarkFollowsRegistration()
{
    // The frames written so far came from a registered copy: no mark. An
    // unregistered copy stamps the middle of the frame and nothing else.
    const QString dir = m_dir + QStringLiteral("/unregistered");
    setRegistered(false);
    const CliRun run = cli({m_video, "--subtitles", m_srt, "--captions", "1", "--frames-dir", dir});
    setRegistered(true);
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    const QImage marked(dir + QStringLiteral("/film_1.png"));
    const QRect mark = TestSupport::changedBox(QImage(m_frames + QStringLiteral("/film_1.png")), marked);
    QVERIFY(QRect(40, 100, 560, 180).contains(mark) && mark.width() > 200);
}

void TestCli::subtitleTrackOfTheVideo()
{
    // Without --subtitles the video's own text track goes the way of an SRT:
    // the very same frames.
    const QString muxed = m_dir + QStringLiteral("/film.mkv");
    QCOMPARE(TestSupport::ffmpeg({"-i", m_video, "-i", m_srt, "-map", "0", "-map", "1", "-c", "copy", "-c:s", "srt",
                                  muxed}),
             0);
    const QString dir = m_dir + QStringLiteral("/track");
    const CliRun run = cli({muxed, "--search", "ECHO", "--frames-dir", dir, "--quiet"});
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QCOMPARE(QDir(dir).entryList(QDir::Files), QStringList{"film_1.png"});
    QCOMPARE(QImage(dir + QStringLiteral("/film_1.png")), QImage(m_frames + QStringLiteral("/film_2.png")));
}

void TestCli::badInput_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");

    const QString dir = TestSupport::makeWorkDir(QStringLiteral("cli-bad"));
    const QString out = dir + QStringLiteral("/out.png");
    const QString text = dir + QStringLiteral("/notes.mp4");
    TestSupport::writeFile(text, "This is not a video.\n");
    const QString garbage = dir + QStringLiteral("/garbage.srt");
    TestSupport::writeFile(garbage, "no times here\njust words\n");
    const QString sound = dir + QStringLiteral("/sound.m4a");
    TestSupport::ffmpeg({"-f", "lavfi", "-i", "sine=duration=2", sound});

    QTest::newRow("no video") << QStringList{"-o", out} << 2 << "no video given";
    QTest::newRow("unknown option") << QStringList{m_video, "--colour", "red"} << 2 << "Unknown option 'colour'";
    QTest::newRow("two outputs") << QStringList{m_video, "-o", out, "--frames-dir", dir} << 2 << "cannot be combined";
    QTest::newRow("bad layout") << QStringList{m_video, "--layout", "diagonal", "-o", out} << 2
                                << "--layout must be vertical, horizontal or grid";
    QTest::newRow("bands in a grid") << QStringList{m_video, "--layout", "grid", "--bands", "auto", "-o", out} << 2
                                     << "--bands auto needs --layout vertical or horizontal";
    QTest::newRow("backward range") << QStringList{m_video, "--captions", "5-3", "-o", out} << 2
                                    << "\"5-3\" is not a range";
    QTest::newRow("unknown suffix") << QStringList{m_video, "-o", dir + "/out.gif"} << 2 << "add --format";
    QTest::newRow("space eats the frames") << QStringList{m_video, "--subtitles", m_srt, "--space", "-360", "-o", out}
                                           << 2 << "--space -360 leaves nothing";
    QTest::newRow("missing video") << QStringList{dir + "/none.mp4", "-o", out} << 1 << "cannot read video";
    const QString captions = dir + QStringLiteral("/out.srt");
    QTest::newRow("transcribe nowhere") << QStringList{m_video, "--transcribe"} << 2 << "needs -o OUT.srt";
    QTest::newRow("transcribe to a picture") << QStringList{m_video, "--transcribe", "-o", out} << 2 << "use a .srt or .ass";
    QTest::newRow("transcribe and stitch") << QStringList{m_video, "--transcribe", "--layout", "grid", "-o", captions}
                                           << 2 << "--layout makes pictures";
    QTest::newRow("unknown language") << QStringList{m_video, "--transcribe", "--language", "xx", "-o", captions} << 2
                                      << "--language must be one of en-US, es-MX";
    // The bundled glimmer-speechd knows English only: refused before any extraction.
    QTest::newRow("language the engine lacks") << QStringList{m_video, "--transcribe", "--language", "ko-KR", "-o", captions}
                                               << 1 << "the speech engine does not recognise ko-KR";
    QTest::newRow("unreadable video") << QStringList{text, "--subtitles", m_srt, "-o", out} << 1
                                      << "cannot read video notes.mp4";
    QTest::newRow("no video stream") << QStringList{sound, "--subtitles", m_srt, "-o", out} << 1
                                     << "sound.m4a has no video stream";
    QTest::newRow("unparsable subtitles") << QStringList{m_video, "--subtitles", garbage, "-o", out} << 1
                                          << "cannot read subtitles";
    QTest::newRow("no subtitle track") << QStringList{m_video, "-o", out} << 1 << "film.mp4 has no subtitle track";
    QTest::newRow("search finds nothing") << QStringList{m_video, "--subtitles", m_srt, "--search", "zulu", "-o", out}
                                          << 1 << "no caption contains \"zulu\"";
    QTest::newRow("no such caption") << QStringList{m_video, "--subtitles", m_srt, "--captions", "2,9", "-o", out} << 1
                                     << "there is no caption 9";
    QTest::newRow("only after the end") << QStringList{m_video, "--subtitles", m_srt, "--captions", "4", "-o", out} << 1
                                        << "no chosen caption starts before the end";
    QTest::newRow("folder missing") << QStringList{m_video, "--subtitles", m_srt, "-o", dir + "/none/out.png"} << 1
                                    << "does not exist";
    QTest::newRow("too wide for webp")
        << QStringList{m_video, "--subtitles", m_srt, "--layout", "horizontal", "--scale", "900", "-o",
                       dir + "/out.webp"}
        << 1 << "WEBP holds at most 16383 pixels on a side. Choose PNG";
}

void TestCli::badInput()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, message);
    const CliRun run = cli(arguments << "--quiet");
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
    QCOMPARE(run.exitCode, exitCode);
    // One clear line (and for a mistyped command the pointer to --help), nothing written.
    const QStringList lines = run.err.trimmed().split(QLatin1Char('\n'));
    QVERIFY2(lines.size() == 1 || (lines.size() == 2 && lines.at(1).startsWith(QStringLiteral("Try"))),
             qPrintable(run.err));
    const QString dir = QDir::tempPath() + QStringLiteral("/glimmer-test-cli-bad");
    QCOMPARE(QDir(dir).entryList({QStringLiteral("out.*")}, QDir::Files), QStringList());
}

void TestCli::neverOverwritesWithoutForce()
{
    const QString dir = TestSupport::makeWorkDir(QStringLiteral("cli-force"));
    const QString out = dir + QStringLiteral("/quotes.png");
    QVERIFY(TestSupport::writeFile(out, "precious"));
    const QStringList stitch{m_video, "--subtitles", m_srt, "--captions", "1-2", "-o", out};
    CliRun run = cli(stitch);
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.err.contains(QStringLiteral("add --force")), qPrintable(run.err));
    QCOMPARE(TestSupport::readFile(out), QByteArray("precious"));
    run = cli(stitch + QStringList{"--force", "--space", "10"});
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QCOMPARE(QImage(out).size(), QSize(640, 730));

    // A frame already in the folder stops the run before any frame is written.
    const QString frames = dir + QStringLiteral("/frames");
    QVERIFY(TestSupport::writeFile(frames + QStringLiteral("/film_2.png"), "precious"));
    const QStringList single{m_video, "--subtitles", m_srt, "--frames-dir", frames};
    run = cli(single);
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.err.contains(QStringLiteral("film_2.png already exists")), qPrintable(run.err));
    QCOMPARE(QDir(frames).entryList(QDir::Files), QStringList{"film_2.png"});
    run = cli(single + QStringList{"--force"});
    QVERIFY2(run.exitCode == 0, qPrintable(run.err));
    QCOMPARE(QImage(frames + QStringLiteral("/film_2.png")), QImage(m_frames + QStringLiteral("/film_2.png")));
}

QTEST_MAIN(TestCli)
#include "test_cli.moc"
