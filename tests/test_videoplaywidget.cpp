// The player panel and its libmpv surface, against real libmpv and media made by ffmpeg.
#include "appconfig.h"
#include "capturecontroller.h"
#include "globalmanager.h"
#include "mpvwidget.h"
#include "playercapturesource.h"
#include "testsupport.h"
#include "videoplaywidget.h"

#include <QComboBox>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QUrl>
#include <QtTest>

#include <memory>

namespace {

// The shared panel with the capture button's flow, as the main window wires
// it, and libmpv's replies and restarts in the order they came.
class Panel : public TestSupport::PlayerPanel
{
public:
    Panel()
        : capture(new CaptureController(new PlayerCaptureSource(widget.get()), nullptr, widget.get()))
    {
        QObject::connect(widget.get(), &VideoPlayWidget::captureNowRequested, capture, &CaptureController::captureNow);
        QObject::connect(mpv(), &MpvWidget::playbackRestarted, widget.get(), [this](MpvWidget::RestartKind kind) {
            order.append(QStringLiteral("restart%1").arg(int(kind)));
        });
        QObject::connect(mpv(), &MpvWidget::mpvEvents, widget.get(), [this](mpv_event* event) {
            if (event->event_id == MPV_EVENT_COMMAND_REPLY || event->event_id == MPV_EVENT_SET_PROPERTY_REPLY) {
                replies.append({event->reply_userdata, event->error});
                order.append(QStringLiteral("reply%1").arg(event->reply_userdata));
            }
        });
    }

    // Replies of libmpv to one request, oldest first: their error codes.
    QList<int> repliesTo(quint64 id) const
    {
        QList<int> errors;
        for (const auto& reply : replies) {
            if (reply.first == id) {
                errors << reply.second;
            }
        }
        return errors;
    }

    void click(int id) { widget->getControlButton(id)->click(); }

    CaptureController* capture;
    QList<QPair<quint64, int>> replies;
    QStringList order;
};

} // namespace

class TestVideoPlayWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void mutedAtStart();
    void openFileShowsVideoAndFigures();
    void labelsFollowFramesAndSliderSeeks();
    void transportButtons();
    void captureButtons();
    void captureSeekRepliesFollowCaptureType();
    void subtitleAddAndRemove();
    void unloadedPanelTakesOneDroppedFile();
    void badFilesReturnToLogo();
    void unusualVideos();

private:
    QString m_dir;
    QString m_video;
};

void TestVideoPlayWidget::initTestCase()
{
    TestSupport::isolate();
    m_dir = TestSupport::makeWorkDir(QStringLiteral("videoplaywidget"));
    m_video = m_dir + QStringLiteral("/clip.mp4");
    QVERIFY(TestSupport::makeVideo(m_video, 10.0));
}

void TestVideoPlayWidget::init()
{
    GlobalManager::instance()->saveSettings(AppConfig::PLAYER_MUTE, false);
    GlobalManager::instance()->saveSettings(AppConfig::PLAYER_VOLUME, 100);
}

void TestVideoPlayWidget::mutedAtStart()
{
    GlobalManager::instance()->saveSettings(AppConfig::PLAYER_MUTE, true);
    GlobalManager::instance()->saveSettings(AppConfig::PLAYER_VOLUME, 40);
    Panel panel;
    QVERIFY(!panel.widget->soundSlider()->isEnabled());
    QCOMPARE(panel.widget->soundSlider()->value(), 40);
    QVERIFY(panel.widget->soundButton()->property("muted").toBool());
    QTRY_VERIFY_WITH_TIMEOUT(panel.mpv()->isMute(), 2000);

    panel.widget->soundButton()->click();
    QTRY_VERIFY_WITH_TIMEOUT(!panel.mpv()->isMute(), 2000);
    QVERIFY(panel.widget->soundSlider()->isEnabled());
    QCOMPARE(GlobalManager::instance()->readSettings(AppConfig::PLAYER_MUTE).toBool(), false);

    panel.widget->soundSlider()->setValue(65);
    QCOMPARE(GlobalManager::instance()->readSettings(AppConfig::PLAYER_VOLUME).toInt(), 65);
    panel.mpv()->setPlaySpeed(2.0);
    // libmpv answers each value and accepts it (0 = no error).
    for (quint64 request : {MpvWidget::RequestMute, MpvWidget::RequestVolume, MpvWidget::RequestSpeed}) {
        QTRY_VERIFY_WITH_TIMEOUT(!panel.repliesTo(request).isEmpty(), 2000);
        QCOMPARE(panel.repliesTo(request).count(0), panel.repliesTo(request).size());
    }
}

void TestVideoPlayWidget::openFileShowsVideoAndFigures()
{
    Panel panel;
    QVERIFY(!panel.widget->openFile(m_dir + QStringLiteral("/nothing-here.mp4")));
    QVERIFY(!panel.widget->openFile(m_dir));
    QVERIFY(panel.widget->isLogoShown());

    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    QSignalSpy polled(panel.mpv(), &MpvWidget::getMpvProperty);
    QVERIFY(panel.open(m_video));
    QCOMPARE((QList<int>{panel.mpv()->getFrameInSecond(), panel.mpv()->pollInterval(), panel.mpv()->getTotalFrame()}),
             (QList<int>{25, 37, 250}));
    QVERIFY(qAbs(panel.mpv()->getTotalSeconds() - 10.0) < 0.05);
    QCOMPARE(panel.mpv()->getMpvPlayerSize(), qMakePair(1280, 720));
    QCOMPARE(panel.mpv()->getFilePath(), m_video);
    // The poll reports duration first, then the position, on every tick.
    QTRY_VERIFY_WITH_TIMEOUT(polled.count() >= 4, 3000);
    QCOMPARE((QStringList{polled.at(0).at(0).toString(), polled.at(1).at(0).toString()}),
             (QStringList{AppConfig::MPV_DURATION, AppConfig::MPV_TIME_POS}));
    QVERIFY(!panel.widget->isLogoShown() && panel.mpv()->isVisible() && panel.widget->isLoadFile());
    QCOMPARE(TestSupport::eventValues(bus, AppConfig::LOAD_FILE_COMPLETE).value(0).toString(), m_video);
    QCOMPARE(GlobalManager::instance()->readSettings(AppConfig::OPEN_FILE_PATH).toString(), m_video);
    QCOMPARE(panel.widget->progressSlider()->maximum(), 10);
    QCOMPARE(panel.mpv()->getPlayStatus(), MpvWidget::Play);
    QTRY_COMPARE_WITH_TIMEOUT(panel.widget->totalTimeText(), QStringLiteral("00:00:10:00"), 3000);

    panel.widget->speedComboBox()->setCurrentIndex(4);
    QTRY_VERIFY_WITH_TIMEOUT(panel.widget->getCurrentTime() > 0.5, 5000);
}

void TestVideoPlayWidget::labelsFollowFramesAndSliderSeeks()
{
    Panel panel;
    QVERIFY(panel.open(m_video, true));
    QSignalSpy times(panel.widget.get(), &VideoPlayWidget::playerTimePos);

    // 2.04 s is frame 51: the second frame of second 2 reads 01 (frames count from 0).
    QVERIFY(panel.seekForCapture(2.04));
    QTRY_COMPARE_WITH_TIMEOUT(panel.widget->currentTimeText(), QStringLiteral("00:00:02:01"), 3000);
    QCOMPARE(panel.widget->progressSlider()->value(), 2);
    QVERIFY(times.count() > 0);
    QVERIFY(qAbs(times.last().at(0).toDouble() - 2.04) < 0.001);

    // A user move of the slider seeks to whole seconds.
    QSlider* slider = panel.widget->progressSlider();
    slider->setSliderDown(true);
    panel.restarts.clear();
    slider->setValue(7);
    QVERIFY(panel.waitFor(MpvWidget::RestartAfterSeek));
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(panel.widget->getCurrentTime() - 7.0) < 0.05, 3000);

    // A click goes to the pointer's position, not a page step.
    slider->setSliderDown(false);
    panel.restarts.clear();
    QTest::mouseClick(slider, Qt::LeftButton, Qt::NoModifier, QPoint(slider->width() * 8 / 10, slider->height() / 2));
    QVERIFY(qAbs(slider->value() - 8) <= 1);
    QVERIFY(panel.waitFor(MpvWidget::RestartAfterSeek));
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(panel.widget->getCurrentTime() - slider->value()) < 0.05, 3000);
    slider->setSliderDown(true);
    const int held = slider->value();

    // While the handle is held the poll leaves the slider alone.
    panel.mpv()->seekToPosition(3);
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(panel.widget->getCurrentTime() - 3.0) < 0.05, 3000);
    QCOMPARE(slider->value(), held);
    slider->setSliderDown(false);
    QTRY_COMPARE_WITH_TIMEOUT(slider->value(), 3, 3000);
}

void TestVideoPlayWidget::transportButtons()
{
    Panel panel;
    QVERIFY(panel.open(m_video, true) && panel.seekForCapture(1.0));
    QCOMPARE(panel.mpv()->getCurrentFrame(), 25);

    panel.click(VideoPlayWidget::ButtonNextFrame);
    QTRY_COMPARE_WITH_TIMEOUT(panel.mpv()->getCurrentFrame(), 26, 3000);
    QCOMPARE(panel.mpv()->getPlayStatus(), MpvWidget::Pause);
    panel.click(VideoPlayWidget::ButtonPreviousFrame);
    QTRY_COMPARE_WITH_TIMEOUT(panel.mpv()->getCurrentFrame(), 25, 3000);

    panel.click(VideoPlayWidget::ButtonPlay);
    QCOMPARE(panel.mpv()->getPlayStatus(), MpvWidget::Play);
    QTRY_VERIFY_WITH_TIMEOUT(panel.mpv()->getCurrentFrame() > 30, 5000);
    panel.click(VideoPlayWidget::ButtonPlay);
    QCOMPARE(panel.mpv()->getPlayStatus(), MpvWidget::Pause);
    // Paused, a frame that has been shown stays.
    QVERIFY(panel.seekForCapture(2.0));
    QVERIFY(!QTest::qWaitFor([&] { return panel.mpv()->getCurrentFrame() != 50; }, 400));

    panel.click(VideoPlayWidget::ButtonStop);
    QCOMPARE(panel.mpv()->getPlayStatus(), MpvWidget::Stop);
    QVERIFY(panel.widget->isLogoShown() && !panel.widget->isLoadFile());
    QVERIFY(panel.mpv()->getFilePath().isEmpty());
    // play() after stop has nothing left to reload: mpv refuses the empty name.
    QSignalSpy failed(panel.mpv(), &MpvWidget::loadFailed);
    panel.mpv()->play();
    QVERIFY(failed.wait(5000));
    QCOMPARE(panel.mpv()->getPlayStatus(), MpvWidget::Stop);

    // The panel is usable again after stop.
    QVERIFY(panel.open(m_video));
    QVERIFY(!panel.widget->isLogoShown());
}

void TestVideoPlayWidget::captureButtons()
{
    Panel panel;
    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    QVERIFY(panel.open(m_video, true) && panel.seekForCapture(3.0));
    panel.click(VideoPlayWidget::ButtonCapture);
    const QList<QVariant> captures = TestSupport::eventValues(bus, AppConfig::CAPTURE_IMAGE);
    QCOMPARE(captures.size(), 1);
    const auto data = captures.first().value<AppConfig::CaptureData>();
    QCOMPARE(data.pixmap.size(), QSize(1280, 720));
    QVERIFY(qAbs(data.time - 3.0) < 0.001);
    QCOMPARE(data.frame, 75);
    QCOMPARE(panel.mpv()->getPlayStatus(), MpvWidget::Pause);

    QSignalSpy select(panel.widget.get(), &VideoPlayWidget::captureSelectSignal);
    panel.widget->play();
    panel.click(VideoPlayWidget::ButtonCaptureSelected);
    QCOMPARE(panel.mpv()->getPlayStatus(), MpvWidget::Pause);
    QCOMPARE(panel.widget->getCaptureType(), 1);
    QVERIFY(select.count() == 1 && select.at(0).at(0).toInt() == 0);
}

void TestVideoPlayWidget::captureSeekRepliesFollowCaptureType()
{
    Panel panel;
    QVERIFY(panel.open(m_video, true));
    QSignalSpy events(panel.widget.get(), &VideoPlayWidget::captureEventSignal);
    QSignalSpy select(panel.widget.get(), &VideoPlayWidget::captureSelectSignal);

    panel.order.clear();
    QVERIFY(panel.seekForCapture(3.5));
    QVERIFY(events.count() == 1 && events.at(0).at(0).toInt() == 16);
    QCOMPARE(select.count(), 0);
    // The reply comes first; the frame is ready at the restart after it, on the
    // first frame at or after the target.
    QVERIFY(panel.order.indexOf(QStringLiteral("reply16")) >= 0);
    QVERIFY(panel.order.indexOf(QStringLiteral("restart2")) > panel.order.indexOf(QStringLiteral("reply16")));
    QVERIFY(qAbs(panel.mpv()->getCurrentSecond() - 3.52) < 0.001);
    QCOMPARE(panel.mpv()->getCurrentFrame(), 88);

    // An ordinary seek is answered by 6 and its restart is not taken for a capture's.
    panel.restarts.clear();
    panel.mpv()->seekToPosition(7);
    QVERIFY(panel.waitFor(MpvWidget::RestartAfterSeek));
    QVERIFY(!panel.restarts.contains(MpvWidget::RestartAfterCaptureSeek));
    QTRY_COMPARE_WITH_TIMEOUT(panel.repliesTo(MpvWidget::RequestTimePos).size(), 1, 2000);
    QCOMPARE(events.count(), 1);
    panel.mpv()->seekToPercent(50);
    QTRY_COMPARE_WITH_TIMEOUT(panel.repliesTo(MpvWidget::RequestPercentPos).size(), 1, 2000);
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(panel.mpv()->getCurrentSecond() - 5.0) < 0.1, 3000);

    panel.widget->changeCaptureType(1);
    QVERIFY(panel.seekForCapture(2.5));
    QCOMPARE(events.count(), 1);
    QVERIFY(select.count() == 1 && select.at(0).at(0).toInt() == 17);
}

void TestVideoPlayWidget::subtitleAddAndRemove()
{
    const QString ass = m_dir + QStringLiteral("/panel.ass");
    QVERIFY(TestSupport::writeFile(
        ass, TestSupport::assFile("Dialogue: 0,0:00:00.00,0:00:09.00,Default,,0,0,0,,{\\pos(192,268)}GLIMMER CAPTION\n")));
    Panel panel;
    QVERIFY(panel.open(m_video, true) && panel.seekForCapture(4.0));
    const QImage plain = panel.mpv()->takeSnapshot().toImage();
    // Opaque pixels: mpv's fourth byte is padding, not alpha.
    QVERIFY(!plain.hasAlphaChannel() || plain.pixelColor(640, 360).alpha() == 255);
    QSignalSpy events(panel.widget.get(), &VideoPlayWidget::captureEventSignal);

    panel.widget->loadSubTitleFile(QString());
    QVERIFY(!events.wait(200));

    panel.widget->loadSubTitleFile(ass);
    QTRY_COMPARE_WITH_TIMEOUT(events.count(), 1, 3000);
    QCOMPARE(events.at(0).at(0).toInt(), 14);
    // Burnt in at the bottom centre (anchor 192,268 of 384x288, i.e. 640,670 in
    // 1280x720): nothing else of the frame changed.
    const QRect changed = TestSupport::changedBox(plain, panel.mpv()->takeSnapshot().toImage());
    QVERIFY2(QRect(200, 560, 880, 130).contains(changed) && changed.width() > 200,
             qPrintable(QStringLiteral("changed %1,%2 %3x%4")
                            .arg(changed.x()).arg(changed.y()).arg(changed.width()).arg(changed.height())));
    QVERIFY(qAbs(changed.center().x() - 640) < 40);
    panel.widget->loadSubTitleFile(ass);
    QTRY_COMPARE_WITH_TIMEOUT(events.count(), 2, 3000);
    QCOMPARE(panel.mpv()->externalSubtitleTracks().size(), 2);

    panel.widget->removeCaption(0);
    QTRY_COMPARE_WITH_TIMEOUT(events.count(), 4, 3000);
    QVERIFY(events.at(2).at(0).toInt() == 15 && events.at(3).at(0).toInt() == 15);
    QVERIFY(panel.mpv()->externalSubtitleTracks().isEmpty());
    QVERIFY(TestSupport::meanDifference(panel.mpv()->takeSnapshot().toImage(), plain) < 0.01);
}

void TestVideoPlayWidget::unloadedPanelTakesOneDroppedFile()
{
    Panel panel;
    QSignalSpy dragged(panel.widget.get(), &VideoPlayWidget::dragFileSignal);
    // Qt delivers a drop to the widget that accepted the drag's entry.
    const auto dragAndDrop = [&panel](QMimeData& data) {
        QDragEnterEvent enter(QPoint(100, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.setAccepted(false);
        QApplication::sendEvent(panel.widget.get(), &enter);
        QDropEvent drop(QPoint(100, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        if (enter.isAccepted()) {
            QApplication::sendEvent(panel.widget.get(), &drop);
        }
        return enter.isAccepted();
    };
    QMimeData several;
    several.setUrls({QUrl::fromLocalFile(m_video), QUrl::fromLocalFile(m_dir + QStringLiteral("/b.mp4"))});
    QVERIFY(dragAndDrop(several));
    QCOMPARE(dragged.count(), 0);
    QMimeData text;
    text.setText(QStringLiteral("not a file"));
    QVERIFY(!dragAndDrop(text));
    QMimeData one;
    one.setUrls({QUrl::fromLocalFile(m_video)});
    QVERIFY(dragAndDrop(one));
    QVERIFY(dragged.count() == 1 && dragged.at(0).at(0).toString() == m_video);
    QVERIFY(panel.widget->isLogoShown());

    // Nothing loaded: the start state. Frame steps do nothing but still report the click.
    QVERIFY(!panel.mpv()->isVisible());
    QCOMPARE(panel.widget->speedComboBox()->currentText(), QStringLiteral("1.00x"));
    QSignalSpy clicked(panel.widget.get(), &BaseWidget::buttonClicked);
    panel.click(VideoPlayWidget::ButtonPreviousFrame);
    panel.click(VideoPlayWidget::ButtonNextFrame);
    QCOMPARE(panel.mpv()->getPlayStatus(), MpvWidget::Stop);
    QCOMPARE(clicked.count(), 2);
    QCOMPARE(clicked.at(1).at(0).toInt(), 1);
    QSignalSpy errors(panel.mpv(), &MpvWidget::error);
    QVERIFY(panel.mpv()->takeSnapshot(QStringLiteral("/tmp/unused.jpg")).isNull());
    QVERIFY(errors.count() == 1 && errors.at(0).at(0).toString() == QStringLiteral("Cannot take snapshot"));
}

void TestVideoPlayWidget::badFilesReturnToLogo()
{
    QByteArray noise(300000, '\0');
    for (int i = 0; i < noise.size(); ++i) {
        noise[i] = static_cast<char>((quint32(i) * 31337u + 7u) % 253u);
    }
    const QList<QPair<QString, QByteArray>> files{{QStringLiteral("noise.mp4"), noise},
                                                  {QStringLiteral("words.mp4"), QByteArray("just some words\n")},
                                                  {QStringLiteral("empty.mkv"), QByteArray()}};
    Panel panel;
    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    for (const auto& file : files) {
        const QString path = m_dir + QLatin1Char('/') + file.first;
        QVERIFY(TestSupport::writeFile(path, file.second));
        QSignalSpy failed(panel.mpv(), &MpvWidget::loadFailed);
        QVERIFY(panel.widget->openFile(path));
        QVERIFY(!panel.widget->isLogoShown());
        QVERIFY2(failed.wait(10000), qPrintable(path));
        QCOMPARE(failed.at(0).at(0).toString(), path);
        QVERIFY(panel.widget->isLogoShown() && !panel.widget->isLoadFile());
        QCOMPARE(panel.widget->totalTimeText(), QStringLiteral("00:00:00:00"));
        QCOMPARE(panel.mpv()->getPlayStatus(), MpvWidget::Stop);
        QVERIFY(panel.mpv()->getFilePath().isEmpty() && panel.mpv()->takeSnapshot().isNull());
    }
    // Sound alone is refused with its reason, and no load is announced.
    const QString sound = m_dir + QStringLiteral("/talk.m4a");
    QCOMPARE(TestSupport::ffmpeg({"-f", "lavfi", "-i", "sine=f=300:d=2", "-c:a", "aac", sound}), 0);
    QSignalSpy refused(panel.mpv(), &MpvWidget::loadFailed);
    QVERIFY(panel.widget->openFile(sound));
    QVERIFY(refused.wait(10000));
    QVERIFY(refused.at(0).at(1).toString().contains(QStringLiteral("no video")));
    QVERIFY(panel.widget->isLogoShown());
    QVERIFY(!TestSupport::hasEvent(bus, AppConfig::LOAD_FILE_COMPLETE));

    // The panel is still usable.
    QVERIFY(panel.open(m_video));
    QTRY_COMPARE_WITH_TIMEOUT(panel.widget->totalTimeText(), QStringLiteral("00:00:10:00"), 3000);
}

void TestVideoPlayWidget::unusualVideos()
{
    // No sound track, 30 frames a second.
    const QString silent = m_dir + QStringLiteral("/silent.mp4");
    QVERIFY(TestSupport::makeVideo(silent, 3.0, 640, 360, 30, false));
    {
        TestSupport::PlayerPanel panel;
        QVERIFY(panel.open(silent));
        QVERIFY(panel.mpv()->getFrameInSecond() == 30 && panel.mpv()->pollInterval() == 1000 / 32);
        QTRY_VERIFY_WITH_TIMEOUT(panel.mpv()->getCurrentSecond() > 0.2, 5000);
        QCOMPARE(panel.mpv()->takeSnapshot().size(), QSize(640, 360));
    }

    const QString uhd = m_dir + QStringLiteral("/uhd.mp4");
    QVERIFY(TestSupport::makeVideo(uhd, 1.0, 3840, 2160, 25, true));

    Panel panel;
    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    QVERIFY(panel.open(uhd, true) && panel.seekForCapture(0.5));
    panel.click(VideoPlayWidget::ButtonCapture);
    const QList<QVariant> captures = TestSupport::eventValues(bus, AppConfig::CAPTURE_IMAGE);
    QCOMPARE(captures.size(), 1);
    QCOMPARE(captures.first().value<AppConfig::CaptureData>().pixmap.size(), QSize(3840, 2160));
    // Still responsive: the panel plays on and reaches the end.
    panel.widget->play();
    QTRY_VERIFY_WITH_TIMEOUT(panel.mpv()->isEofReached(), 15000);
    QCOMPARE(panel.mpv()->getPlayStatus(), MpvWidget::Pause);
}

QTEST_MAIN(TestVideoPlayWidget)
#include "test_videoplaywidget.moc"
