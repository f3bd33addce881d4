// Every shortcut the window advertises, pressed in the real window: each has
// one owner (an ambiguous one does nothing) and does what its label says.
#include "appconfig.h"
#include "globalmanager.h"
#include "mainwindow.h"
#include "mpvwidget.h"
#include "testsupport.h"
#include "videoplaywidget.h"

#include <QFileDialog>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include <functional>

class TestShortcuts : public QObject
{
    Q_OBJECT
private:
    MainWindow* m_window = nullptr;
    QString m_video;

    MpvWidget* mpv() const { return m_window->videoPlayWidget()->getMpvWidget(); }

    // Rejects the next modal dialog (the open dialog blocks the key press until then).
    bool m_dialogSeen = false;
    void rejectNextDialog()
    {
        m_dialogSeen = false;
        auto* poll = new QTimer(this);
        connect(poll, &QTimer::timeout, this, [this, poll]() {
            if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
                m_dialogSeen = true;
                dialog->reject();
                poll->deleteLater();
            }
        });
        poll->start(20);
    }

private slots:
    void initTestCase()
    {
        TestSupport::isolate();
        const QString dir = TestSupport::makeWorkDir(QStringLiteral("shortcuts"));
        GlobalManager::instance()->saveSettings(AppConfig::FIRST_OPEN_APP, true);
        m_video = dir + QStringLiteral("/walk.mp4");
        QVERIFY(TestSupport::makeVideo(m_video, 30.0, 320, 180, 25, false));
        m_window = TestSupport::showMainWindow();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        QVERIFY(m_window->videoPlayWidget()->openFile(m_video));
        QTRY_VERIFY_WITH_TIMEOUT(mpv()->getPlayStatus() == MpvWidget::Play && mpv()->getCurrentSecond() > 0.2,
                                 20000);
    }

    void cleanupTestCase() { delete m_window; }

    // One row per advertised shortcut, in the order they are pressed (each
    // starts from the state the row before left). Add new shortcuts here.
    void everyShortcutActs()
    {
        QSignalSpy events(GlobalManager::instance(), &GlobalManager::globalEvent);
        double before = 0.0;
        QString question;
        struct Row {
            QKeySequence keys;
            const char* effect;
            std::function<void()> prepare;
            std::function<bool()> done;
        };
        // Paused and no longer moving: the position read twice, a poll apart, is the
        // same (a pause or a frame step lands a moment after the key on a busy machine).
        double last = -1.0;
        const auto settled = [&]() {
            const double now = mpv()->getCurrentSecond();
            const bool same = now == last;
            last = now;
            return mpv()->getPlayStatus() == MpvWidget::Pause && same;
        };
        const QList<Row> rows{
            {QKeySequence(Qt::Key_Space), "pauses", [] {}, settled},
            {QKeySequence(Qt::Key_Right), "steps a frame forward", [&] { before = mpv()->getCurrentSecond(); },
             [&] { return settled() && last > before; }},
            {QKeySequence(Qt::Key_Left), "steps a frame back", [&] { before = mpv()->getCurrentSecond(); },
             [&] { return settled() && last < before; }},
            {QKeySequence(Qt::Key_Space), "plays again", [] {},
             [this] { return mpv()->getPlayStatus() == MpvWidget::Play; }},
            {QKeySequence(QStringLiteral("Ctrl+Alt+S")), "captures the frame", [&] { events.clear(); },
             [&] { return TestSupport::hasEvent(events, AppConfig::CAPTURE_IMAGE); }},
            {QKeySequence(Qt::CTRL | Qt::Key_Slash), "stops", [] {},
             [this] { return m_window->videoPlayWidget()->isLogoShown(); }},
            {QKeySequence(Qt::CTRL | Qt::Key_O), "asks for a video", [this] { rejectNextDialog(); },
             [this] { return m_dialogSeen; }},
            // The frame captured above was never exported: the close asks first.
            {QKeySequence(Qt::CTRL | Qt::Key_Q), "asks, then quits",
             [&] { TestSupport::answerConfirmation(QStringLiteral("Close anyway"), &question); },
             [&] { return !m_window->isVisible() && question.contains(QStringLiteral("1 captured frame")); }},
        };
        for (const Row& row : rows) {
            row.prepare();
            QWidget* target = QApplication::focusWidget() ? QApplication::focusWidget() : m_window;
            QTest::keySequence(target, row.keys);
            QTRY_VERIFY2_WITH_TIMEOUT(row.done(), qPrintable(row.keys.toString() + QStringLiteral(" ")
                                                             + QLatin1String(row.effect)), 20000);
        }
    }
};

QTEST_MAIN(TestShortcuts)
#include "test_shortcuts.moc"
