#include "appconfig.h"
#include "captioninfo.h"
#include "captionfileflow.h"
#include "captionitem.h"
#include "captionmanager.h"
#include "captionwidget.h"
#include "exportnotice.h"
#include "globalmanager.h"
#include "imageitem.h"
#include "imageswidget.h"
#include "loadingdialog.h"
#include "mainwindow.h"
#include "messagedialog.h"
#include "previewwidget.h"
#include "propertyitem.h"
#include "savefilebar.h"
#include "windowflows.h"
#include "testsupport.h"
#include "undohistory.h"
#include "titlebar.h"
#include "videoplaywidget.h"

#include <QDir>
#include <QPushButton>
#include <QSignalSpy>
#include <QTime>
#include <QTimer>
#include <QtTest>

using TestSupport::meanDifference;

// The real main window end to end: video and subtitles in, stitched picture out.
class TestMainWindow : public QObject
{
    Q_OBJECT
private:
    QString m_dir;
    QString m_video;
    QString m_srt;
    QString m_output;
    MainWindow* m_window = nullptr;

    CaptionFileFlow* flow() const { return m_window->findChild<CaptionFileFlow*>(); }

    // The frame ffmpeg decodes at a time, converted the way mpv converts HD video.
    QImage referenceFrame(double seconds, bool withSubtitles = false)
    {
        const QString out = m_dir + QStringLiteral("/ref-%1-%2.png").arg(seconds).arg(withSubtitles);
        QString filter = QStringLiteral("scale=in_color_matrix=bt709:flags=accurate_rnd+full_chroma_int");
        if (withSubtitles) {
            filter.prepend(QStringLiteral("subtitles=%1,").arg(CaptionManager::instance()->getAssFilePath()));
        }
        const int rc = TestSupport::ffmpeg({"-ss", QString::number(seconds), "-i", m_video, "-frames:v", "1",
                                            "-vf", filter, out});
        return rc == 0 ? QImage(out) : QImage();
    }

private slots:
    void initTestCase()
    {
        TestSupport::isolate();
        m_dir = TestSupport::makeWorkDir(QStringLiteral("mainwindow"));
        m_output = m_dir + QStringLiteral("/out");
        GlobalManager* global = GlobalManager::instance();
        global->saveSettings(AppConfig::FIRST_OPEN_APP, true);
        global->saveSettings(AppConfig::FILE_SAVE_PATH, m_output);
        global->saveSettings(AppConfig::FILE_EXTENSION, AppConfig::FORMAT_PNG);
        // The registration guide would wait for a click after the export.
        global->saveInAppSettings(AppConfig::SHOW_GUIDE_REGISTER_BY_EXPORT, true);

        m_video = m_dir + QStringLiteral("/holiday.mp4");
        QVERIFY(TestSupport::makeVideo(m_video, 10.0, 1280, 720, 25, true));
        m_srt = m_dir + QStringLiteral("/holiday.srt");
        QVERIFY(TestSupport::writeFile(m_srt, TestSupport::srt({{1000, 2000, "First caption"},
                                                               {3000, 4000, "Second caption"},
                                                               {5040, 6000, "Third caption"},
                                                               {7000, 8000, "Fourth, the last"}})));
        m_window = TestSupport::showMainWindow();
    }

    void cleanupTestCase()
    {
        if (m_window) {
            m_window->close();
            delete m_window;
        }
    }

    void openVideoAndSubtitles()
    {
        QVERIFY(TestSupport::openVideo(m_window, m_video));
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Glimmer - holiday.mp4"));
        // No captions yet: an empty working file was written and loaded.
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(CaptionManager::instance()->getTempAssFilePath()), 5000);

        QSignalSpy replies(m_window->videoPlayWidget(), &VideoPlayWidget::captureEventSignal);
        QSignalSpy loaded(flow(), &CaptionFileFlow::finished);
        m_window->loadCaption(m_srt);
        QVERIFY(loaded.wait(30000));
        // The player's answer to this load, not to the empty file's earlier one.
        QSignalSpy track(m_window->videoPlayWidget(), &VideoPlayWidget::subtitleTrackAdded);
        QVERIFY(track.wait(10000));
        QCOMPARE(CaptionManager::instance()->getCaptions().size(), 4);
        QVERIFY(m_window->captionWidget()->isVisible());
        QCOMPARE(m_window->captionWidget()->items().size(), 4);
        QTRY_VERIFY_WITH_TIMEOUT(!replies.isEmpty() && replies.last().at(0).toInt() == 14, 10000);
        QVERIFY(!m_window->messageDialog()->isVisible());
    }

    void captureCheckedTakesTheCaptionStarts()
    {
        // Three of the four captions are ticked.
        CaptionInfo* second = CaptionManager::instance()->getCaptions().at(1);
        m_window->captionWidget()->items().at(1)->setCheck(false, true);
        QVERIFY(!second->isCheck);

        QSignalSpy finished(m_window, &MainWindow::captureSelectFinished);
        m_window->videoPlayWidget()->getControlButton(VideoPlayWidget::ButtonCaptureSelected)->click();
        QVERIFY(m_window->loadingDialog()->isVisible());
        QVERIFY(finished.wait(60000));
        QVERIFY(!m_window->loadingDialog()->isVisible());

        const QList<ImageItem*> items = m_window->imagesWidget()->items();
        QCOMPARE(items.size(), 3);
        const QList<double> starts{1.0, 5.04, 7.0};
        for (int i = 0; i < items.size(); ++i) {
            const QImage shot = items.at(i)->getPixmap().toImage();
            QCOMPARE(shot.size(), QSize(1280, 720));
            QVERIFY2(qAbs(items.at(i)->getCpatureTime() - starts.at(i)) < 0.045,
                     qPrintable(QString::number(items.at(i)->getCpatureTime())));
            const QImage plain = referenceFrame(starts.at(i));
            QVERIFY(!plain.isNull());
            // The picture above the caption band is the frame at the caption's start...
            const double above = meanDifference(shot, plain, QRect(0, 0, 1280, 540));
            QVERIFY2(above < 3.0, qPrintable(QStringLiteral("frame %1 differs by %2").arg(i).arg(above)));
            // ...and the caption is burnt into the band below.
            const double band = meanDifference(shot, plain, QRect(0, 560, 1280, 160));
            QVERIFY2(band > 3.0, qPrintable(QStringLiteral("no caption in frame %1 (%2)").arg(i).arg(band)));
        }
    }

    void composeVerticalAndExport()
    {
        PreviewWidget* preview = m_window->previewWidget();
        preview->setRadioType(1);
        preview->propertyItem(3)->setText(QStringLiteral("-500"));
        preview->showImage();
        const QPixmap composite = preview->getGroupPixmap();
        QCOMPARE(composite.size(), QSize(1280, 720 + 2 * 220));

        QSignalSpy exported(preview, &PreviewWidget::exportFinishedSignal);
        preview->exportButtonClickHandle();
        QVERIFY(exported.wait(30000));
        QVERIFY(exported.at(0).at(1).toStringList().isEmpty());
        QCOMPARE(QDir(m_output).entryList({QStringLiteral("*.png")}, QDir::Files).size(), 1);
        // The window says where the picture went and offers to open the folder.
        ExportNotice* notice = m_window->flows()->exportNotice();
        QVERIFY(notice->isVisible());
        QCOMPARE(notice->text(),
                 ExportNotice::tr("Saved %n picture(s) to %1", nullptr, 1).arg(QDir::toNativeSeparators(m_output)));
        QVERIFY(notice->openButton()->isVisible());

        // A folder that cannot be written: the notice says so and where the
        // pictures went, and the output folder shown is the real one.
        const QString locked = m_dir + QStringLiteral("/locked");
        QVERIFY(TestSupport::writeFile(locked, "a file, not a folder"));
        GlobalManager::instance()->saveSettings(AppConfig::FILE_SAVE_PATH, locked);
        preview->exportButtonClickHandle();
        QVERIFY(exported.wait(30000));
        const QString real = QFileInfo(exported.last().at(0).toStringList().value(0)).absolutePath();
        QCOMPARE(QDir(real), QDir(GlobalManager::instance()->getWritePath(AppConfig::APP_NAME)));
        QVERIFY2(notice->text().contains(locked) && notice->text().contains(QDir::toNativeSeparators(real)),
                 qPrintable(notice->text()));
        QCOMPARE(preview->saveFileBar()->outputDir(), real);
        GlobalManager::instance()->saveSettings(AppConfig::FILE_SAVE_PATH, m_output);
    }

    void applyToAllRecapturesEveryFrame()
    {
        const QList<ImageItem*> items = m_window->imagesWidget()->items();
        QList<QImage> before;
        for (ImageItem* item : items) {
            before << item->getPixmap().toImage();
        }
        CaptionInfo* info = CaptionManager::instance()->getCaptions().first();
        QVERIFY(info->captionEdit);
        info->captionEdit->fontSize = 34;
        info->captionEdit->y = 150;

        QSignalSpy done(m_window, &MainWindow::recaptureFinished);
        emit m_window->videoPlayWidget()->captionEditSignal(info, true);
        QVERIFY(done.wait(60000));
        QVERIFY(!m_window->loadingDialog()->isVisible());
        for (int i = 0; i < items.size(); ++i) {
            const QImage after = items.at(i)->getPixmap().toImage();
            QCOMPARE(after.size(), before.at(i).size());
            // The caption moved up to the middle (its baseline at 150/288 of the height):
            // the band above that line changed, and so did the bottom band it left.
            QVERIFY2(meanDifference(after, before.at(i), QRect(0, 250, 1280, 125)) > 2.0,
                     qPrintable(QStringLiteral("item %1 not re-captured").arg(i)));
            QVERIFY2(meanDifference(after, before.at(i), QRect(0, 600, 1280, 120)) > 2.0,
                     qPrintable(QStringLiteral("item %1 still shows the old caption").arg(i)));
            QVERIFY(meanDifference(after, before.at(i), QRect(0, 0, 1280, 200)) < 1.0);
        }
    }

    void failuresReachTheUser()
    {
        // A subtitle file without captions says so.
        const QString empty = m_dir + QStringLiteral("/empty.srt");
        QVERIFY(TestSupport::writeFile(empty, "no captions here\n"));
        m_window->loadCaption(empty);
        QTRY_VERIFY_WITH_TIMEOUT(m_window->messageDialog()->isVisible(), 30000);
        QVERIFY(m_window->messageDialog()->message().contains(QStringLiteral("empty.srt")));
        m_window->messageDialog()->accept();

        // Every finish of the loading dialog asks the running work to stop, once.
        QSignalSpy events(GlobalManager::instance(), &GlobalManager::globalEvent);
        m_window->loadingDialog()->showWithText(QStringLiteral("x"));
        m_window->loadingDialog()->hide();
        m_window->loadingDialog()->showWithText(QStringLiteral("y"));
        m_window->loadingDialog()->reject();
        int stops = 0;
        for (const auto& args : events) {
            stops += args.at(0).toString() == AppConfig::STOP_AI_CAPTION ? 1 : 0;
        }
        QCOMPARE(stops, 1);
    }

    void lostCaptionsAreReported()
    {
        // An ffmpeg that drops captions and still exits 0 (as it does with text it cannot read).
        const QString bin = TestSupport::makeWorkDir(QStringLiteral("fakebin"));
        QVERIFY(TestSupport::writeFile(bin + QStringLiteral("/ffmpeg"),
                                       "#!/bin/sh\nfor last; do :; done\n"
                                       "printf '[Events]\\nDialogue: 0,0:00:01.00,0:00:02.00,Default,,0,0,0,,kept\\n'"
                                       " > \"$last\"\n"));
        QVERIFY(QFile::setPermissions(bin + QStringLiteral("/ffmpeg"), QFileDevice::ReadOwner | QFileDevice::ExeOwner));
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", bin.toLocal8Bit() + ':' + path);
        QSignalSpy loaded(flow(), &CaptionFileFlow::finished);
        m_window->loadCaption(m_srt);
        QVERIFY(loaded.wait(30000));
        qputenv("PATH", path);
        QCOMPARE(CaptionManager::instance()->getCaptions().size(), 1);
        QVERIFY(m_window->messageDialog()->isVisible());
        const QString message = m_window->messageDialog()->message();
        QVERIFY2(message.contains(QStringLiteral("3 of the 4 captions in holiday.srt")), qPrintable(message));
        m_window->messageDialog()->accept();
    }

    void largeSubtitlesLoadWithoutBlocking()
    {
        QByteArray srt;
        for (int i = 0; i < 5000; ++i) {
            const QByteArray time = QTime(0, 0).addMSecs(i * 1000).toString(QStringLiteral("hh:mm:ss,zzz")).toLatin1();
            srt += QByteArray::number(i + 1) + "\n" + time + " --> " + time.left(9) + "500\nline "
                   + QByteArray::number(i + 1) + "\n\n";
        }
        const QString big = m_dir + QStringLiteral("/big.srt");
        QVERIFY(TestSupport::writeFile(big, srt));
        CaptionManager* captions = CaptionManager::instance();
        QSignalSpy progress(flow(), &CaptionFileFlow::progress);
        QSignalSpy done(flow(), &CaptionFileFlow::finished);
        QSignalSpy cancelled(flow(), &CaptionFileFlow::cancelled);

        // Cancelled: the captions stay as they were.
        const QList<CaptionInfo*> before = captions->getCaptions();
        m_window->loadCaption(big);
        QVERIFY(flow()->isLoading());
        QVERIFY(m_window->loadingDialog()->isVisible());
        m_window->loadingDialog()->cancelButton()->click();
        QVERIFY(cancelled.wait(30000));
        QCOMPARE(captions->getCaptions(), before);
        QCOMPARE(done.count(), 0);
        QVERIFY(!m_window->loadingDialog()->isVisible());

        // Loaded again and again: the window handles events meanwhile, old records go.
        int ticks = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, [&ticks]() { ++ticks; });
        timer.start(5);
        for (int round = 0; round < 3; ++round) {
            ticks = 0;
            m_window->loadCaption(big);
            QVERIFY(flow()->isLoading());
            QVERIFY(done.wait(60000));
            QVERIFY(ticks > 0);
            QVERIFY(captions->getCaptions().size() == 5000
                    && captions->getCaptions().last()->text == QStringLiteral("line 5000"));
            // Earlier loads live on only in the undo history: started afresh, it holds
            // one copy of the current list as its base, and nothing else is left.
            m_window->findChild<UndoHistory*>()->reset();
            QCOMPARE(CaptionInfo::liveCount(), 2 * 5000);
            QVERIFY(!m_window->loadingDialog()->isVisible());
        }
        QVERIFY(!m_window->messageDialog()->isVisible());
        bool percentShown = false;
        for (const QList<QVariant>& args : qAsConst(progress)) {
            QVERIFY(args.at(0).toString().contains(QStringLiteral("big.srt")));
            percentShown = percentShown || args.at(1).toInt() >= 0;
        }
        QVERIFY(percentShown);
    }

    void captionPanelRestoresTheWidth()
    {
        // At the narrowest and at the start-up width, shown and hidden again and again.
        m_window->showCaptionWidget(false);
        for (int start : {m_window->minimumWidth(), AppConfig::rate(1100)}) {
            m_window->resize(start, m_window->height());
            QTRY_COMPARE(m_window->width(), start);
            for (int round = 0; round < 3; ++round) {
                m_window->showCaptionWidget(true);
                QTRY_VERIFY(m_window->captionWidget()->width() > 0);
                m_window->showCaptionWidget(false);
                QTRY_COMPARE(m_window->width(), start);
            }
        }
    }
};

QTEST_MAIN(TestMainWindow)
#include "test_mainwindow.moc"
