// The real window: clears ask first, every destructive step undoes and redoes
// with the window's shortcuts, re-captured frames come back, and the history
// is per video and bounded.
#include "appconfig.h"
#include "captioninfo.h"
#include "captionitem.h"
#include "captionmanager.h"
#include "captionwidget.h"
#include "globalmanager.h"
#include "imageitem.h"
#include "imageswidget.h"
#include "loadingdialog.h"
#include "mainwindow.h"
#include "messagedialog.h"
#include "testsupport.h"
#include "undohistory.h"
#include "videoplaywidget.h"

#include <QAction>
#include <QFileDialog>
#include <QPushButton>
#include <QUndoStack>
#include <QtTest>

namespace {
QPushButton* buttonWithToolTip(QWidget* parent, const QString& tip)
{
    for (QPushButton* button : parent->findChildren<QPushButton*>()) {
        if (button->toolTip() == tip) {
            return button;
        }
    }
    return nullptr;
}

QList<qint64> frameKeys(ImagesWidget* strip)
{
    QList<qint64> keys;
    for (ImageItem* item : strip->items()) {
        keys << item->getPixmap().cacheKey();
    }
    return keys;
}
} // namespace

class TestUndoHistory : public QObject
{
    Q_OBJECT
private:
    QString m_dir;
    QString m_video;
    MainWindow* m_window = nullptr;
    UndoHistory* m_history = nullptr;
    const QStringList m_texts{"First caption", "Second caption", "Third caption", "After the end"};

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        m_window->activateWindow();
        QTRY_VERIFY(m_window->isActiveWindow());
        QTest::keyClick(m_window, static_cast<Qt::Key>(key), modifiers);
    }

private slots:
    void initTestCase()
    {
        TestSupport::isolate();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        m_dir = TestSupport::makeWorkDir(QStringLiteral("undo"));
        GlobalManager::instance()->saveSettings(AppConfig::FIRST_OPEN_APP, true);
        m_video = m_dir + QStringLiteral("/walk.mp4");
        QVERIFY(TestSupport::makeVideo(m_video, 4.0, 640, 360, 25, false));
        const QString srt = m_dir + QStringLiteral("/walk.srt");
        QVERIFY(TestSupport::writeFile(srt, TestSupport::srt({{500, 1000, m_texts.at(0)},
                                                             {1500, 2000, m_texts.at(1)},
                                                             {2500, 3000, m_texts.at(2)},
                                                             {9000, 10000, m_texts.at(3)}})));
        m_window = TestSupport::showMainWindow();
        m_history = m_window->findChild<UndoHistory*>();
        QVERIFY(m_history);
        QVERIFY(TestSupport::openVideo(m_window, m_video));
        QSignalSpy replies(m_window->videoPlayWidget(), &VideoPlayWidget::captureEventSignal);
        m_window->loadCaption(srt);
        QTRY_COMPARE_WITH_TIMEOUT(TestSupport::captionTexts(), m_texts, 20000);
        QTRY_VERIFY_WITH_TIMEOUT(!replies.isEmpty() && replies.last().at(0).toInt() == 14, 10000);
        // The new video's history starts with nothing but the load.
        QTRY_COMPARE(m_history->stack()->count(), 1);
    }

    void cleanupTestCase()
    {
        if (m_window->isVisible()) {
            m_window->close();
        }
        delete m_window;
    }

    void captureCheckedSkipsThePastTheEndCaptionAndSaysSo()
    {
        QSignalSpy finished(m_window, &MainWindow::captureSelectFinished);
        m_window->videoPlayWidget()->getControlButton(VideoPlayWidget::ButtonCaptureSelected)->click();
        QVERIFY(finished.wait(60000));
        QCOMPARE(m_window->imagesWidget()->items().size(), 3);
        QVERIFY(m_window->messageDialog()->isVisible());
        QVERIFY2(m_window->messageDialog()->message().contains(QStringLiteral("1 caption")),
                 qPrintable(m_window->messageDialog()->message()));
        m_window->messageDialog()->accept();
    }

    void recaptureIsShownAndUndoneWithCtrlZ()
    {
        ImagesWidget* strip = m_window->imagesWidget();
        const QList<qint64> before = frameKeys(strip);
        CaptionInfo* info = CaptionManager::instance()->getCaptions().first();
        info->captionEdit->fontSize = 30;

        QSignalSpy done(m_window, &MainWindow::recaptureFinished);
        emit m_window->videoPlayWidget()->captionEditSignal(info, true);
        // The pass runs under the dialog that says so.
        QTRY_VERIFY_WITH_TIMEOUT(m_window->loadingDialog()->isVisible(), 10000);
        QVERIFY(done.wait(60000));
        const QList<qint64> after = frameKeys(strip);
        QCOMPARE(after.size(), 3);
        for (int i = 0; i < 3; ++i) {
            QVERIFY(after.at(i) != before.at(i));
        }

        press(Qt::Key_Z); // the frames first
        QCOMPARE(frameKeys(strip), before);
        QCOMPARE(CaptionManager::instance()->getCaptions().first()->style, QStringLiteral("StyleAll"));
        QSignalSpy events(GlobalManager::instance(), &GlobalManager::globalEvent);
        press(Qt::Key_Z); // then the style
        QVERIFY(TestSupport::hasEvent(events, AppConfig::UPDATE_CAPTION));
        QVERIFY(CaptionManager::instance()->getCaptions().first()->style != QStringLiteral("StyleAll"));
        QVERIFY(!QString::fromUtf8(TestSupport::readFile(CaptionManager::instance()->getTempAssFilePath()))
                     .contains(QStringLiteral("StyleAll")));

        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(CaptionManager::instance()->getCaptions().first()->style, QStringLiteral("StyleAll"));
        press(Qt::Key_Y);
        QCOMPARE(frameKeys(strip), after);
        // Undoing re-captured nothing by itself.
        QCOMPARE(m_history->stack()->index(), m_history->stack()->count());
    }

    void textEditUndoesAndReloads()
    {
        CaptionItem* row = m_window->captionWidget()->items().at(1);
        CaptionInfo* info = row->getCaptionInfo();
        info->text = QStringLiteral("Edited text");
        info->captionEdit->text = info->text;
        emit row->captionChangedSignal(info, row);
        QVERIFY(TestSupport::readFile(CaptionManager::instance()->getTempAssFilePath()).contains("Edited text"));

        QSignalSpy events(GlobalManager::instance(), &GlobalManager::globalEvent);
        press(Qt::Key_Z);
        QCOMPARE(TestSupport::captionTexts(), m_texts);
        QCOMPARE(m_window->captionWidget()->items().at(1)->getCaptionInfo()->text, m_texts.at(1));
        QVERIFY(!TestSupport::readFile(CaptionManager::instance()->getTempAssFilePath()).contains("Edited text"));
        QCOMPARE(TestSupport::eventValues(events, AppConfig::UPDATE_CAPTION).value(0).toString(),
                 CaptionManager::instance()->getTempAssFilePath());
        press(Qt::Key_Y);
        QCOMPARE(TestSupport::captionTexts().at(1), QStringLiteral("Edited text"));
    }

    void clearingCaptionsAsksWithTheCountAndUndoes()
    {
        QPushButton* clear = buttonWithToolTip(m_window->captionWidget(), QStringLiteral("Clear"));
        QVERIFY(clear);
        const QStringList texts = TestSupport::captionTexts();
        QString question;
        TestSupport::answerConfirmation(QStringLiteral("Cancel"), &question);
        clear->click();
        QCOMPARE(question, QStringLiteral("Remove all 4 captions?"));
        QCOMPARE(TestSupport::captionTexts(), texts);

        TestSupport::answerConfirmation(QStringLiteral("Remove"), &question);
        clear->click();
        QVERIFY(CaptionManager::instance()->getCaptions().isEmpty());
        press(Qt::Key_Z);
        QCOMPARE(TestSupport::captionTexts(), texts);
        QCOMPARE(m_window->captionWidget()->items().size(), 4);
        press(Qt::Key_Y);
        QVERIFY(CaptionManager::instance()->getCaptions().isEmpty());
        press(Qt::Key_Z);

        // Big numbers are grouped as the locale writes them.
        QList<std::tuple<int, int, QString>> many;
        for (int i = 0; i < 1332; ++i) {
            many.append(std::make_tuple(i * 10, i * 10 + 5, QStringLiteral("c%1").arg(i)));
        }
        CaptionManager::instance()->createCaptions(TestSupport::utterances(many), false);
        TestSupport::answerConfirmation(QStringLiteral("Cancel"), &question);
        clear->click();
        QCOMPARE(question, QStringLiteral("Remove all 1,332 captions?"));
        QCOMPARE(CaptionManager::instance()->getCaptions().size(), 1332);
        QCOMPARE(m_history->undoAction()->text(), QStringLiteral("Undo Automatic captions"));
        press(Qt::Key_Z); // the automatic captions
        QCOMPARE(TestSupport::captionTexts(), texts);
    }

    void deletedAndClearedFramesComeBack()
    {
        ImagesWidget* strip = m_window->imagesWidget();
        const QList<qint64> keys = frameKeys(strip);
        strip->items().at(1)->setSelect(false);
        strip->items().at(1)->deleteButton()->click();
        QCOMPARE(frameKeys(strip), (QList<qint64>{keys.at(0), keys.at(2)}));
        press(Qt::Key_Z);
        QCOMPARE(frameKeys(strip), keys);
        QVERIFY(!strip->items().at(1)->isSelect());

        QString question;
        TestSupport::answerConfirmation(QStringLiteral("Remove"), &question);
        buttonWithToolTip(strip, QStringLiteral("Clear"))->click();
        QCOMPARE(question, QStringLiteral("Remove all 3 frames?"));
        QVERIFY(strip->items().isEmpty());
        press(Qt::Key_Z);
        QCOMPARE(frameKeys(strip), keys);
        QCOMPARE(GlobalManager::instance()->selectedImages().size(), 2);
    }

    void onlyTheLastFrameStepsKeepTheirPictures()
    {
        ImagesWidget* strip = m_window->imagesWidget();
        while (!strip->items().isEmpty()) {
            strip->items().constLast()->deleteButton()->click();
        }
        for (int i = 0; i < UndoHistory::kFrameSteps + 2; ++i) {
            strip->addImage(TestSupport::capture(TestSupport::solidFrame(Qt::red), i, i));
        }
        for (int i = 0; i < UndoHistory::kFrameSteps + 2; ++i) {
            strip->items().constFirst()->deleteButton()->click();
        }
        for (int i = 0; i < UndoHistory::kFrameSteps + 2; ++i) {
            m_history->stack()->undo();
        }
        QCOMPARE(strip->items().size(), UndoHistory::kFrameSteps);
    }

    void ctrlSSavesThroughTheDialogThenToTheSameFile()
    {
        const QString path = m_dir + QStringLiteral("/walk.srt");
        QString offered;
        QTimer::singleShot(0, [&offered, path]() {
            QTRY_VERIFY(qobject_cast<QFileDialog*>(QApplication::activeModalWidget()));
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            offered = dialog->selectedFiles().value(0);
            dialog->selectFile(QStringLiteral("saved"));
            QMetaObject::invokeMethod(dialog, "accept");
        });
        press(Qt::Key_S);
        QCOMPARE(offered, path);
        const QString saved = m_dir + QStringLiteral("/saved.srt");
        QVERIFY(TestSupport::readFile(saved).contains("First caption"));
        QFile::remove(saved);
        press(Qt::Key_S); // no dialog the second time
        QVERIFY(QFile::exists(saved));
    }

    void anotherVideoStartsAFreshHistory()
    {
        QVERIFY(m_history->stack()->count() > 0);
        // What the player announces once a video is open.
        GlobalManager::instance()->emitEvent(AppConfig::LOAD_FILE_COMPLETE, m_video);
        QCOMPARE(m_history->stack()->count(), 0);
        QVERIFY(!m_history->undoAction()->isEnabled());
    }
};

QTEST_MAIN(TestUndoHistory)
#include "test_undohistory.moc"
