// The caption overlay over the video, the caption style toolbar, and adding a
// caption from the player panel.
#include "appconfig.h"
#include "captioninfo.h"
#include "captionmanager.h"
#include "captionoverlay.h"
#include "captionstylebar.h"
#include "globalmanager.h"
#include "mpvwidget.h"
#include "testsupport.h"
#include "videoplaywidget.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest>

namespace {

void makeCaptions()
{
    CaptionManager::instance()->createCaptions(
        TestSupport::utterances({{1000, 3000, "one"}, {5000, 8000, "two"}, {8000, 9000, "three"}}), false);
}

CaptionInfo* captionWithText(const QString& text)
{
    for (CaptionInfo* info : CaptionManager::instance()->getCaptions()) {
        if (info->text == text) {
            return info;
        }
    }
    return nullptr;
}

// The caption's own position, in script units, as an edit would set it.
CaptionEdit* placeAt(CaptionInfo* info, int x, int y)
{
    CaptionEdit* edit = CaptionStyleBar::ensureEdit(info);
    edit->x = x;
    edit->y = y;
    edit->isChange = true;
    return edit;
}

// The overlay's caption box in the coordinates of the video frame.
QRectF overlayBoxInFrame(const CaptionOverlay* overlay, const QSize& frame)
{
    const QRect video = overlay->videoRect();
    const QRect box = overlay->captionRect();
    const double scale = frame.width() / double(video.width());
    return QRectF((box.x() - video.x()) * scale, (box.y() - video.y()) * scale, box.width() * scale,
                  box.height() * scale);
}

// An overlay on a 640x360 surface over a 1280x720 video, shown.
void showOverlay(CaptionOverlay& overlay)
{
    overlay.resize(640, 360);
    overlay.setVideoSize(QSize(1280, 720));
    overlay.show();
    QVERIFY(QTest::qWaitForWindowExposed(&overlay));
}

} // namespace

class TestCaptionOverlay : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void captionAtTime();
    void geometryFollowsScriptSpaceAndLetterbox();
    void styleBarSendsOneEdit();
    void editAndDragInPlace();
    void panelAddsCaptionAtCurrentTime();
    void editsReachTheBurntInFrame();
};

void TestCaptionOverlay::initTestCase()
{
    TestSupport::isolate();
}

void TestCaptionOverlay::init()
{
    makeCaptions();
    QCOMPARE(CaptionManager::instance()->getCaptions().size(), 3);
}

void TestCaptionOverlay::captionAtTime()
{
    const QList<CaptionInfo*> expected{nullptr, captionWithText("one"), captionWithText("one"), nullptr,
                                       captionWithText("two"), captionWithText("three"), nullptr, nullptr};
    QList<CaptionInfo*> found;
    for (double seconds : {0.5, 1.0, 3.0, 4.0, 6.5, 8.5, -1.0, 20.0}) {
        found << CaptionOverlay::captionAtTime(seconds);
    }
    QCOMPARE(found, expected);
}

void TestCaptionOverlay::geometryFollowsScriptSpaceAndLetterbox()
{
    CaptionOverlay overlay;
    overlay.resize(640, 360);
    overlay.setVideoSize(QSize(1280, 720));
    QCOMPARE(overlay.videoRect(), QRect(0, 0, 640, 360));
    QCOMPARE(overlay.scriptToWidget(192, 268), QPoint(320, 335));
    QCOMPARE(overlay.widgetToScript(QPoint(320, 335)), QPoint(192, 268));
    QCOMPARE(overlay.widgetToScript(QPoint(-50, 900)), QPoint(0, 288));

    // A 4:3 surface letterboxes the 16:9 video.
    overlay.resize(640, 480);
    QCOMPARE(overlay.videoRect(), QRect(0, 60, 640, 360));
    QCOMPARE(overlay.scriptToWidget(0, 0), QPoint(0, 60));

    CaptionInfo* info = captionWithText(QStringLiteral("one"));
    CaptionEdit* edit = placeAt(info, 192, 268);
    overlay.setCaption(info);
    QRect box = overlay.captionRect();
    QVERIFY(qAbs(box.center().x() - 320) <= 1 && qAbs(box.bottom() - (60 + 335 + 4)) <= 1);
    QVERIFY(box.height() > 10);

    // A bigger font gives a bigger box.
    const int height = box.height();
    edit->fontSize *= 2;
    QVERIFY(overlay.captionRect().height() > height);
    overlay.setCaption(nullptr);
    QVERIFY(overlay.captionRect().isNull());
}

void TestCaptionOverlay::styleBarSendsOneEdit()
{
    CaptionStyleBar bar;
    CaptionInfo* info = captionWithText(QStringLiteral("two"));
    const CaptionEdit before = CaptionStyleBar::currentValues(info);
    bar.setCaption(info);
    // The boxes show the caption's values, within the script's 384x288.
    QCOMPARE((QList<int>{bar.fontSizeBox()->value(), bar.xBox()->value(), bar.yBox()->value(), bar.xBox()->maximum(),
                         bar.yBox()->maximum()}),
             (QList<int>{before.fontSize, before.x, before.y, 384, 288}));

    QSignalSpy edits(&bar, &CaptionStyleBar::captionEditSignal);
    bar.fontSizeBox()->stepUp();
    bar.fontSizeBox()->stepUp();
    bar.fontSizeBox()->stepUp();
    bar.borderBox()->setValue(3);
    bar.shadowBox()->setValue(2);
    QCOMPARE(edits.count(), 0);
    QVERIFY(bar.hasPendingEdit());
    QVERIFY(edits.wait(2000));
    QVERIFY(!edits.wait(400));
    QCOMPARE(edits.count(), 1);
    QVERIFY(edits.at(0).at(0).value<CaptionInfo*>() == info && !edits.at(0).at(1).toBool());
    const CaptionEdit* edit = info->captionEdit;
    QVERIFY(edit && edit->isChange && info->isStyleChanged);
    QCOMPARE((QList<int>{edit->fontSize, edit->border, edit->shadow, edit->x}),
             (QList<int>{before.fontSize + 3, 3, 2, before.x}));
    QCOMPARE(edit->text, QStringLiteral("two"));

    // A refresh for the same caption shows the record, now edited.
    bar.setCaption(info);
    QCOMPARE(bar.fontSizeBox()->value(), before.fontSize + 3);

    // Unticking "capture" is no style edit.
    QVERIFY(bar.captureBox()->isChecked());
    QSignalSpy ticks(&bar, &CaptionStyleBar::captionCheckStateChangedSignal);
    bar.captureBox()->setChecked(false);
    QVERIFY(!info->isCheck);
    QVERIFY(ticks.count() == 1 && ticks.at(0).at(1).toInt() == int(Qt::Unchecked));
    QCOMPARE(edits.count(), 1);

    // Applied to all: moving to another caption sends the waiting change at once.
    CaptionInfo* one = captionWithText(QStringLiteral("one"));
    CaptionInfo* three = captionWithText(QStringLiteral("three"));
    bar.setCaption(one);
    bar.applyAllBox()->setChecked(true);
    edits.clear();

    bar.xBox()->setValue(100);
    bar.setCaption(three);
    QCOMPARE(edits.count(), 1);
    QVERIFY(edits.at(0).at(0).value<CaptionInfo*>() == one && edits.at(0).at(1).toBool());
    QCOMPARE(one->captionEdit->x, 100);
    QVERIFY(one->isPositionChanged);
    QCOMPARE(bar.xBox()->value(), CaptionStyleBar::currentValues(three).x);
    QVERIFY(!edits.wait(500));

    // A caption dropped from the store while its change waited gets nothing.
    bar.yBox()->setValue(50);
    CaptionManager::instance()->clearCaptions();
    bar.commitPending();
    QCOMPARE(edits.count(), 1);
}

void TestCaptionOverlay::editAndDragInPlace()
{
    CaptionOverlay overlay;
    CaptionStyleBar bar;
    QObject::connect(&overlay, &CaptionOverlay::positionDragged, &bar, &CaptionStyleBar::setPosition);
    showOverlay(overlay);
    CaptionInfo* info = captionWithText(QStringLiteral("one"));
    overlay.setCaption(info);
    QSignalSpy edits(&overlay, &CaptionOverlay::captionEditSignal);
    QSignalSpy states(&overlay, &CaptionOverlay::editStateChanged);

    QTest::mouseDClick(&overlay, Qt::LeftButton, Qt::NoModifier, overlay.captionRect().center());
    QVERIFY(overlay.isEditing());
    QCOMPARE(overlay.editor()->text(), QStringLiteral("one"));
    QVERIFY(states.count() == 1 && states.at(0).at(0).toBool());

    overlay.editor()->setText(QStringLiteral("one, edited"));
    QTest::keyClick(overlay.editor(), Qt::Key_Return);
    QVERIFY(!overlay.isEditing());
    QCOMPARE(edits.count(), 1);
    QVERIFY(edits.at(0).at(0).value<CaptionInfo*>() == info && !edits.at(0).at(1).toBool());
    QCOMPARE(info->captionEdit->text, QStringLiteral("one, edited"));
    QCOMPARE(states.last().at(0).toBool(), false);

    // Escape drops the change; an unchanged text sends nothing either.
    overlay.startEditing();
    overlay.editor()->setText(QStringLiteral("thrown away"));
    QTest::keyClick(overlay.editor(), Qt::Key_Escape);
    QVERIFY(!overlay.isEditing());
    overlay.startEditing();
    overlay.finishEditing(true);
    QCOMPARE(edits.count(), 1);

    // Moving on to another caption while editing keeps what was typed.
    overlay.startEditing();
    overlay.editor()->setText(QStringLiteral("kept"));
    overlay.setCaption(captionWithText(QStringLiteral("two")));
    QCOMPARE(edits.count(), 2);
    QCOMPARE(info->captionEdit->text, QStringLiteral("kept"));

    // Dragging the caption moves it through the toolbar.
    info = captionWithText(QStringLiteral("three"));
    placeAt(info, 192, 268);
    overlay.setCaption(info);
    bar.setCaption(info);
    QSignalSpy moves(&bar, &CaptionStyleBar::captionEditSignal);

    // 64 px right and 72 px up on a 640x360 surface is 38 and 58 script units.
    const QPoint start = overlay.captionRect().center();
    // Moves are sent straight to the widget: QTest::mouseMove goes through the
    // X server's pointer, whose events a busy machine may deliver late.
    auto dragTo = [&overlay](const QPoint& pos) {
        QMouseEvent move(QEvent::MouseMove, pos, overlay.mapToGlobal(pos), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(&overlay, &move);
    };
    QTest::mousePress(&overlay, Qt::LeftButton, Qt::NoModifier, start);
    dragTo(start + QPoint(30, -30));
    dragTo(start + QPoint(64, -72));
    QTest::mouseRelease(&overlay, Qt::LeftButton, Qt::NoModifier, start + QPoint(64, -72));
    QCOMPARE(moves.count(), 1);
    QVERIFY(qAbs(info->captionEdit->x - 230) <= 1 && qAbs(info->captionEdit->y - 210) <= 1);
    QCOMPARE(bar.xBox()->value(), info->captionEdit->x);

    // A click without a move is no drag.
    const QPoint now = overlay.captionRect().center();
    QTest::mouseClick(&overlay, Qt::LeftButton, Qt::NoModifier, now);
    QCOMPARE(moves.count(), 1);
}

void TestCaptionOverlay::panelAddsCaptionAtCurrentTime()
{
    const QString dir = TestSupport::makeWorkDir(QStringLiteral("captionoverlay"));
    const QString video = dir + QStringLiteral("/clip.mp4");
    QVERIFY(TestSupport::makeVideo(video, 10.0, 640, 360));

    TestSupport::PlayerPanel player(QSize(800, 600));
    VideoPlayWidget& panel = *player.widget;
    // Nothing loaded: nothing to add to.
    QCOMPARE(panel.insertCaptionAtCurrentTime(), nullptr);
    QCOMPARE(CaptionManager::instance()->getCaptions().size(), 3);
    QVERIFY(player.open(video, true) && player.seekForCapture(2.0));
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(panel.getCurrentTime() - 2.0) < 0.001, 5000);
    // The overlay and the toolbar follow the caption on screen.
    CaptionInfo* one = captionWithText(QStringLiteral("one"));
    QVERIFY(panel.getCaptionOverlay()->caption() == one && panel.getCaptionStyleBar()->caption() == one);

    // Inside a caption nothing is added, the panel says so, and the caption
    // there is not opened for typing over.
    QSignalSpy edits(&panel, &VideoPlayWidget::captionEditSignal);
    QSignalSpy refused(&panel, &VideoPlayWidget::captionInsertRefused);
    QCOMPARE(panel.insertCaptionAtCurrentTime(), nullptr);
    QCOMPARE(refused.count(), 1);
    QVERIFY(!panel.getCaptionOverlay()->isEditing());
    QCOMPARE(edits.count(), 0);

    panel.getMpvWidget()->seekToPositionForCapture(4.0);
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(panel.getCurrentTime() - 4.0) < 0.001, 5000);
    QCOMPARE(panel.getCaptionOverlay()->caption(), nullptr);
    QVERIFY(!panel.getCaptionStyleBar()->fontSizeBox()->isEnabled());

    CaptionInfo* added = panel.insertCaptionAtCurrentTime();
    // At the panel's time (where and how long: test_captionmanager's insert).
    QVERIFY(added && added->startMs() == 4000);
    QVERIFY(added->isInsert && !added->text.isEmpty() && added->captionEdit);
    QCOMPARE(added->captionEdit->text, added->text);
    QCOMPARE(edits.count(), 1);
    QVERIFY(edits.at(0).at(0).value<CaptionInfo*>() == added && !edits.at(0).at(1).toBool());
    QVERIFY(panel.getCaptionOverlay()->isEditing());
    QCOMPARE(panel.getCaptionOverlay()->caption(), added);
    QCOMPARE(panel.getMpvWidget()->getPlayStatus(), MpvWidget::Pause);
}

void TestCaptionOverlay::editsReachTheBurntInFrame()
{
    const QString dir = TestSupport::makeWorkDir(QStringLiteral("captionoverlay-frame"));
    const QString video = dir + QStringLiteral("/hd.mp4");
    QVERIFY(TestSupport::makeVideo(video, 4.0));
    CaptionManager::instance()->createCaptions(TestSupport::utterances({{0, 4000, "MOVE ME"}}), false);
    const QString assPath = CaptionManager::instance()->getTempAssFilePath();
    QVERIFY(QFile::exists(assPath));
    CaptionInfo* info = captionWithText(QStringLiteral("MOVE ME"));
    QVERIFY(info);

    TestSupport::PlayerPanel player(QSize(960, 720));
    VideoPlayWidget& panel = *player.widget;
    // The main window's part: apply each edit, reload the rewritten file.
    connect(&panel, &VideoPlayWidget::captionEditSignal, &panel,
            [](CaptionInfo* edit, bool isAll) { CaptionManager::instance()->changeCaptionNew(edit, isAll); });
    connect(GlobalManager::instance(), &GlobalManager::globalEvent, &panel, [&panel](QString name, QVariant value) {
        if (name == AppConfig::UPDATE_CAPTION) {
            panel.loadSubTitleFile(value.toString());
        }
    });
    int subtitleLoads = 0;
    connect(&panel, &VideoPlayWidget::captureEventSignal, &panel, [&subtitleLoads](int type, QVariant) {
        subtitleLoads += type == 14 ? 1 : 0;
    });
    QVERIFY(player.open(video, true) && player.seekForCapture(2.0));
    QTRY_COMPARE_WITH_TIMEOUT(panel.getCaptionOverlay()->caption(), info, 3000);
    const QImage plain = panel.getMpvWidget()->takeSnapshot().toImage();
    QCOMPARE(plain.size(), QSize(1280, 720));

    panel.loadSubTitleFile(assPath);
    QTRY_COMPARE_WITH_TIMEOUT(subtitleLoads, 1, 5000);
    const QRect burnt = TestSupport::changedBox(plain, panel.getMpvWidget()->takeSnapshot().toImage());
    QVERIFY(!burnt.isEmpty());
    QRectF framed = overlayBoxInFrame(panel.getCaptionOverlay(), plain.size());
    // The frame drawn over the video sits where mpv burns the caption in.
    QVERIFY2(qAbs(burnt.center().x() - framed.center().x()) < 30 && qAbs(burnt.bottom() - framed.bottom()) < 40,
             qPrintable(QStringLiteral("burnt %1,%2 framed %3,%4").arg(burnt.center().x()).arg(burnt.bottom())
                            .arg(framed.center().x()).arg(framed.bottom())));

    // Moving it with the toolbar rewrites the file; the reloaded frame shows it there.
    panel.getCaptionStyleBar()->setPosition(info, 96, 144);
    QTRY_COMPARE_WITH_TIMEOUT(subtitleLoads, 2, 5000);
    const QRect moved = TestSupport::changedBox(plain, panel.getMpvWidget()->takeSnapshot().toImage());
    QVERIFY2(qAbs(moved.center().x() - 320) < 30 && qAbs(moved.bottom() - 360) < 40,
             qPrintable(QStringLiteral("moved %1,%2").arg(moved.center().x()).arg(moved.bottom())));
    framed = overlayBoxInFrame(panel.getCaptionOverlay(), plain.size());
    QVERIFY(qAbs(moved.center().x() - framed.center().x()) < 30 && qAbs(moved.bottom() - framed.bottom()) < 40);
}

QTEST_MAIN(TestCaptionOverlay)
#include "test_captionoverlay.moc"
