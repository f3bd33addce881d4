// The libmpv video surface against real libmpv and media made by ffmpeg.
#include "appconfig.h"
#include "globalmanager.h"
#include "mpvwidget.h"
#include "testsupport.h"

#include <QSignalSpy>
#include <QtTest>

#include <memory>

namespace {

struct Reply {
    quint64 id;
    int error;
};

// One shown surface with its replies and restarts recorded in arrival order.
class Player
{
public:
    Player()
        : widget(new MpvWidget())
    {
        widget->setOption(QStringLiteral("ao"), QStringLiteral("null"));
        widget->resize(640, 360);
        widget->show();
        QObject::connect(widget.get(), &MpvWidget::mpvEvents, widget.get(), [this](mpv_event* event) {
            if (event->event_id == MPV_EVENT_COMMAND_REPLY || event->event_id == MPV_EVENT_SET_PROPERTY_REPLY) {
                replies.append({event->reply_userdata, event->error});
                order.append(QStringLiteral("reply%1").arg(event->reply_userdata));
            }
        });
        QObject::connect(widget.get(), &MpvWidget::playbackRestarted, widget.get(),
                         [this](MpvWidget::RestartKind kind) {
                             restarts.append(kind);
                             order.append(QStringLiteral("restart%1").arg(int(kind)));
                         });
    }

    bool exposed() { return QTest::qWaitForWindowExposed(widget.get()); }

    int replyCount(quint64 id) const
    {
        int n = 0;
        for (const Reply& r : replies) {
            n += r.id == id ? 1 : 0;
        }
        return n;
    }

    // Loads a file and waits for the restart that belongs to the load.
    bool load(const QString& path)
    {
        restarts.clear();
        widget->loadFile(path);
        return QTest::qWaitFor([this] { return restarts.contains(MpvWidget::RestartAfterLoad); }, 20000);
    }

    // Exact seek for capture; returns once its frame is ready.
    bool seekForCapture(double seconds)
    {
        const int before = replyCount(MpvWidget::RequestCaptureSeek);
        const int restartsBefore = restarts.count(MpvWidget::RestartAfterCaptureSeek);
        widget->seekToPositionForCapture(seconds);
        return QTest::qWaitFor([&] {
            return replyCount(MpvWidget::RequestCaptureSeek) > before
                && restarts.count(MpvWidget::RestartAfterCaptureSeek) > restartsBefore;
        }, 10000);
    }

    std::unique_ptr<MpvWidget> widget;
    QList<Reply> replies;
    QList<MpvWidget::RestartKind> restarts;
    QStringList order;
};

} // namespace

class TestMpvWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void loadReportsFiguresAndEvent();
    void playPauseStop();
    void captureSeekReplyThenRestart();
    void valueSettersAreAnswered();
    void snapshotBurnsInSubtitlesOnlyInCaptionRegion();
    void snapshotWithoutVideoFails();
    void videoWithoutAudio();

private:
    QString m_dir;
    QString m_video;
};

void TestMpvWidget::initTestCase()
{
    TestSupport::isolate();
    m_dir = TestSupport::makeWorkDir(QStringLiteral("mpvwidget"));
    m_video = m_dir + QStringLiteral("/clip.mp4");
    QVERIFY(TestSupport::makeVideo(m_video, 10.0));
}

void TestMpvWidget::loadReportsFiguresAndEvent()
{
    Player player;
    QVERIFY(player.exposed());
    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    QSignalSpy polled(player.widget.get(), &MpvWidget::getMpvProperty);
    QCOMPARE(player.widget->getPlayStatus(), MpvWidget::Stop);

    QVERIFY(player.load(m_video));
    QCOMPARE(player.widget->getPlayStatus(), MpvWidget::Play);
    QCOMPARE(player.widget->getFilePath(), m_video);

    QCOMPARE(TestSupport::eventValues(bus, AppConfig::LOAD_FILE_COMPLETE).value(0).toString(), m_video);
    QCOMPARE(player.widget->getFrameInSecond(), 25);
    QCOMPARE(player.widget->pollInterval(), 37);
    QCOMPARE(player.widget->getTotalFrame(), 250);
    QVERIFY(qAbs(player.widget->getTotalSeconds() - 10.0) < 0.05);
    QCOMPARE(player.widget->getMpvPlayerSize(), qMakePair(1280, 720));

    // The poll reports duration first, then the position, on every tick.
    QTRY_VERIFY_WITH_TIMEOUT(polled.count() >= 4, 3000);
    QCOMPARE(polled.at(0).at(0).toString(), AppConfig::MPV_DURATION);
    QCOMPARE(polled.at(1).at(0).toString(), AppConfig::MPV_TIME_POS);
    QVERIFY(qAbs(polled.at(0).at(1).toDouble() - 10.0) < 0.05);
}

void TestMpvWidget::playPauseStop()
{
    Player player;
    QVERIFY(player.exposed());
    QVERIFY(player.load(m_video));
    QTRY_VERIFY_WITH_TIMEOUT(player.widget->getCurrentSecond() > 0.3, 5000);

    QSignalSpy polled(player.widget.get(), &MpvWidget::getMpvProperty);
    player.widget->pause();
    QCOMPARE(player.widget->getPlayStatus(), MpvWidget::Pause);
    // Settled once two polls in a row report the same position; then it stays.
    QList<double> positions;
    QVERIFY(QTest::qWaitFor([&] {
        positions.clear();
        for (const auto& args : polled) {
            if (args.at(0).toString() == AppConfig::MPV_TIME_POS) {
                positions << args.at(1).toDouble();
            }
        }
        return positions.size() >= 2 && positions.last() == positions.at(positions.size() - 2);
    }, 3000));
    const double pausedAt = player.widget->getCurrentSecond();
    QVERIFY(!QTest::qWaitFor([&] { return player.widget->getCurrentSecond() != pausedAt; }, 400));

    player.widget->play();
    QCOMPARE(player.widget->getPlayStatus(), MpvWidget::Play);
    QTRY_VERIFY_WITH_TIMEOUT(player.widget->getCurrentSecond() > pausedAt + 0.2, 5000);

    player.widget->stop();
    QCOMPARE(player.widget->getPlayStatus(), MpvWidget::Stop);
    QVERIFY(player.widget->getFilePath().isEmpty());

    // play() after stop has nothing left to reload: mpv refuses the empty name.
    QSignalSpy failed(player.widget.get(), &MpvWidget::loadFailed);
    player.widget->play();
    QCOMPARE(player.widget->getPlayStatus(), MpvWidget::Play);
    QVERIFY(failed.wait(5000));
    QCOMPARE(player.widget->getPlayStatus(), MpvWidget::Stop);
}

void TestMpvWidget::captureSeekReplyThenRestart()
{
    Player player;
    QVERIFY(player.exposed());
    QVERIFY(player.load(m_video));
    player.widget->pause();
    player.order.clear();

    QVERIFY(player.seekForCapture(3.5));
    // The reply comes first; the frame is ready at the restart after it.
    const int reply = player.order.indexOf(QStringLiteral("reply16"));
    const int restart = player.order.indexOf(QStringLiteral("restart2"));
    QVERIFY(reply >= 0);
    QVERIFY(restart > reply);
    // An exact seek lands on the first frame at or after the target.
    QVERIFY(qAbs(player.widget->getCurrentSecond() - 3.52) < 0.001);
    QCOMPARE(player.widget->getCurrentFrame(), 88);

    // An ordinary seek is answered by 6 and its restart is not taken for a capture's.
    player.restarts.clear();
    player.widget->seekToPosition(7);
    QTRY_VERIFY_WITH_TIMEOUT(!player.restarts.isEmpty(), 5000);
    QCOMPARE(player.restarts.first(), MpvWidget::RestartAfterSeek);
    QTRY_VERIFY_WITH_TIMEOUT(player.replyCount(MpvWidget::RequestTimePos) == 1, 2000);
    QVERIFY(qAbs(player.widget->getCurrentSecond() - 7.0) < 0.05);

    player.widget->seekToPercent(50);
    QTRY_VERIFY_WITH_TIMEOUT(player.replyCount(MpvWidget::RequestPercentPos) == 1, 2000);
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(player.widget->getCurrentSecond() - 5.0) < 0.1, 3000);
}

void TestMpvWidget::valueSettersAreAnswered()
{
    Player player;
    QVERIFY(player.exposed());
    QVERIFY(player.load(m_video));
    QVERIFY(!player.widget->isMute());
    player.widget->setMute(true);
    QTRY_VERIFY_WITH_TIMEOUT(player.replyCount(MpvWidget::RequestMute) == 1, 2000);
    QVERIFY(player.widget->isMute());
    player.widget->setMute(false);
    QTRY_VERIFY_WITH_TIMEOUT(player.replyCount(MpvWidget::RequestMute) == 2, 2000);
    QVERIFY(!player.widget->isMute());

    player.widget->setVolume(40);
    player.widget->setPlaySpeed(2.0);
    QTRY_VERIFY_WITH_TIMEOUT(player.replyCount(MpvWidget::RequestVolume) == 1, 2000);
    QTRY_VERIFY_WITH_TIMEOUT(player.replyCount(MpvWidget::RequestSpeed) == 1, 2000);
    for (const Reply& r : player.replies) {
        if (r.id == MpvWidget::RequestVolume || r.id == MpvWidget::RequestSpeed) {
            QCOMPARE(r.error, 0);
        }
    }
}

void TestMpvWidget::snapshotBurnsInSubtitlesOnlyInCaptionRegion()
{
    const QString ass = m_dir + QStringLiteral("/caption.ass");
    QVERIFY(TestSupport::writeFile(ass, QByteArrayLiteral(
        "[Script Info]\nScriptType: v4.00+\n\n[V4+ Styles]\n"
        "Format: Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, OutlineColour, BackColour, Bold, "
        "Italic, Underline, StrikeOut, ScaleX, ScaleY, Spacing, Angle, BorderStyle, Outline, Shadow, Alignment, "
        "MarginL, MarginR, MarginV, Encoding\n"
        "Style: Default,Arial,24,&H00FFFFFF,&H000000FF,&H00000000,&H00000000,0,0,0,0,100,100,0,0,1,1,1,2,10,10,10,1\n"
        "\n[Events]\nFormat: Layer, Start, End, Style, Name, MarginL, MarginR, MarginV, Effect, Text\n"
        "Dialogue: 0,0:00:00.00,0:00:09.00,Default,,0,0,0,,{\\pos(192,268)}GLIMMER CAPTION\n")));

    Player player;
    QVERIFY(player.exposed());
    QVERIFY(player.load(m_video));
    player.widget->pause();
    QVERIFY(player.seekForCapture(4.0));
    const QImage plain = player.widget->takeSnapshot().toImage();
    // Opaque pixels: mpv's fourth byte is padding, not alpha.
    QVERIFY(!plain.hasAlphaChannel() || plain.pixelColor(640, 360).alpha() == 255);

    player.widget->subTitleAdd(ass);
    QTRY_VERIFY_WITH_TIMEOUT(player.replyCount(MpvWidget::RequestSubAdd) == 1, 5000);
    QCOMPARE(player.replies.last().error, 0);
    QCOMPARE(player.widget->externalSubtitleTracks().size(), 1);
    const QImage captioned = player.widget->takeSnapshot().toImage();
    QCOMPARE(captioned.size(), plain.size());

    const QRect changed = TestSupport::changedBox(plain, captioned);
    QVERIFY(!changed.isEmpty());
    // The caption sits at the bottom centre (anchor 192,268 of 384x288, i.e.
    // 640,670 in 1280x720): nothing else of the frame changed.
    const QRect captionRegion(200, 560, 880, 130);
    QVERIFY2(captionRegion.contains(changed), qPrintable(QStringLiteral("changed %1,%2 %3x%4")
                                                           .arg(changed.x()).arg(changed.y())
                                                           .arg(changed.width()).arg(changed.height())));
    QVERIFY(changed.width() > 200);
    QVERIFY(qAbs(changed.center().x() - 640) < 40);

    player.widget->subTitleRemove(player.widget->externalSubtitleTracks().value(0));
    QTRY_VERIFY_WITH_TIMEOUT(player.replyCount(MpvWidget::RequestSubRemove) == 1, 5000);
    QVERIFY(player.widget->externalSubtitleTracks().isEmpty());
    QVERIFY(TestSupport::meanDifference(player.widget->takeSnapshot().toImage(), plain) < 0.01);
}

void TestMpvWidget::snapshotWithoutVideoFails()
{
    Player player;
    QVERIFY(player.exposed());
    QSignalSpy errors(player.widget.get(), &MpvWidget::error);
    QVERIFY(player.widget->takeSnapshot(QStringLiteral("/tmp/unused.jpg")).isNull());
    QCOMPARE(errors.count(), 1);
    QCOMPARE(errors.at(0).at(0).toString(), QStringLiteral("Cannot take snapshot"));
}

void TestMpvWidget::videoWithoutAudio()
{
    const QString silent = m_dir + QStringLiteral("/silent.mp4");
    QVERIFY(TestSupport::makeVideo(silent, 3.0, 640, 360, 30, false));
    Player player;
    QVERIFY(player.exposed());
    QVERIFY(player.load(silent));
    QCOMPARE(player.widget->getFrameInSecond(), 30);
    QCOMPARE(player.widget->pollInterval(), 1000 / 32);
    QTRY_VERIFY_WITH_TIMEOUT(player.widget->getCurrentSecond() > 0.2, 5000);
    QCOMPARE(player.widget->takeSnapshot().size(), QSize(640, 360));
}

QTEST_MAIN(TestMpvWidget)
#include "test_mpvwidget.moc"
