#include "appconfig.h"
#include "captioninfo.h"
#include "captionitem.h"
#include "captionlabelwidget.h"
#include "captionmanager.h"
#include "captionwidget.h"
#include "globalmanager.h"
#include "testsupport.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

class TestCaptionWidget : public QObject
{
    Q_OBJECT
private:
    // n captions of 1 s, back to back every 2 s; every tenth one says "needle".
    static void makeCaptions(int n)
    {
        QList<std::tuple<int, int, QString>> items;
        for (int i = 0; i < n; ++i) {
            items.append({i * 2000, i * 2000 + 1000,
                          i % 10 == 0 ? QStringLiteral("a needle %1").arg(i) : QStringLiteral("hay %1").arg(i)});
        }
        CaptionManager::instance()->createCaptions(TestSupport::utterances(items), false);
    }

    static QString title(CaptionWidget& widget)
    {
        return widget.findChild<QLabel*>(QStringLiteral("sub_title"))->text();
    }

    static void scrollToBottom(CaptionWidget& widget)
    {
        QScrollBar* bar = widget.listWidget()->verticalScrollBar();
        // Lay out the rows added last, so the range is current.
        widget.listWidget()->doItemsLayout();
        const int before = bar->value();
        bar->setValue(bar->maximum());
        if (bar->value() == before) {
            // An unchanged value sends no signal: call the handler as the bar would.
            widget.scrollValueChanged(bar->value());
        }
    }

private slots:
    void initTestCase()
    {
        TestSupport::isolate();
        GlobalManager::instance()->setCurrentFile(QFileInfo(QStringLiteral("/videos/clip.mp4")));
    }

    void rowsAreCreatedLazily()
    {
        makeCaptions(100);
        CaptionWidget widget;
        widget.resize(300, 400);
        widget.show();
        QCOMPARE(widget.items().size(), 36);
        QCOMPARE(title(widget), QStringLiteral("Captions (100)"));
        scrollToBottom(widget);
        QCOMPARE(widget.items().size(), 72);
        scrollToBottom(widget);
        QCOMPARE(widget.items().size(), 100);
        scrollToBottom(widget);
        QCOMPARE(widget.items().size(), 100);
        // Rows keep the manager's own records.
        QCOMPARE(widget.items().at(57)->getCaptionInfo(), CaptionManager::instance()->getCaptions().at(57));

        // Half a screen above the bottom is near enough for the next page.
        CaptionWidget other;
        other.resize(300, 400);
        other.show();
        QScrollBar* bar = other.listWidget()->verticalScrollBar();
        QTRY_VERIFY(bar->maximum() > 0);
        bar->setValue(bar->maximum() - bar->pageStep() / 2);
        QCOMPARE(other.items().size(), 72);
    }

    void rowsReadAsOnScreenAndWrap()
    {
        const QString raw = QStringLiteral("{\\i1}Élan{\\i0}\\Nvital\\hnow");
        const QString longText = QStringLiteral("a caption long enough to need several lines in a narrow list ").repeated(3);
        CaptionManager::instance()->createCaptions(
            TestSupport::utterances({{0, 1000, raw}, {2000, 3000, QStringLiteral("short")}, {4000, 5000, longText}}),
            false);
        CaptionWidget widget;
        widget.resize(300, 500);
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
        QCOMPARE(CaptionManager::instance()->getCaptions().first()->text, raw);
        CaptionItem* first = widget.items().first();
        auto* label = first->labelWidget()->findChild<QLabel*>(QStringLiteral("show_text"));
        QCOMPARE(label->text(), QStringLiteral("Élan\nvital\u00a0now"));
        // Editing edits the file's own text.
        first->changeToEdit(true);
        QCOMPARE(first->labelWidget()->editor()->text(), raw);
        first->changeToEdit(false);
        QCOMPARE(CaptionManager::instance()->getCaptions().first()->text, raw);

        // Rows are as wide as the list, and a long text wraps into a taller row.
        QListWidget* list = widget.listWidget();
        const int width = list->viewport()->width();
        for (int i = 0; i < list->count(); ++i) {
            QCOMPARE(list->item(i)->sizeHint().width(), width);
            QVERIFY(widget.items().at(i)->height() >= widget.items().at(i)->minimumSizeHint().height());
        }
        QVERIFY(list->item(2)->sizeHint().height() > list->item(1)->sizeHint().height() + label->fontMetrics().height());
        QVERIFY(list->item(0)->sizeHint().height() > list->item(1)->sizeHint().height());
        widget.resize(500, 500);
        QTRY_COMPARE(list->item(0)->sizeHint().width(), list->viewport()->width());
    }

    void searchIsCaseSensitiveAndCounts()
    {
        makeCaptions(100);
        CaptionWidget widget;
        widget.show();
        widget.searchEdit()->setText(QStringLiteral("needle"));
        QVERIFY(title(widget) == QStringLiteral("Captions (10)") && widget.items().size() == 10);
        QCOMPARE(widget.items().at(3)->getCaptionInfo()->text, QStringLiteral("a needle 30"));
        // Paging still looks at the whole store, and clamps to the results.
        scrollToBottom(widget);
        QCOMPARE(widget.items().size(), 10);
        widget.searchEdit()->setText(QStringLiteral("Needle"));
        QCOMPARE(title(widget), QStringLiteral("Captions (0)"));
        QVERIFY(widget.items().isEmpty());
        widget.searchEdit()->clear();
        QCOMPARE(widget.items().size(), 36);

        // New captions are not filtered by the search for the old ones.
        widget.searchEdit()->setText(QStringLiteral("needle"));
        makeCaptions(5);
        widget.createCaption(QByteArray());
        QVERIFY(widget.searchEdit()->text().isEmpty());
        QCOMPARE(title(widget), QStringLiteral("Captions (5)"));
        QCOMPARE(widget.items().size(), 5);
    }

    void playingRowFollowsTheTimeAndClickSeeks()
    {
        // Two captions that touch: 0-1000 and 1000-2000 ms; one at "0:0:5.3".
        CaptionManager::instance()->createCaptions(
            TestSupport::utterances({{0, 1010, QStringLiteral("one")}, {1000, 2000, QStringLiteral("two")},
                                     {5030, 6000, QStringLiteral("late")}}),
            false);
        CaptionWidget widget;
        widget.show();
        // The first ends 10 ms early (0:0:1.0); the boundary at 1.0 s is the earlier one's.
        widget.changeCaptionPlayByTime(1.0);
        QVERIFY(widget.playingItem());
        QCOMPARE(widget.playingItem()->getCaptionInfo()->text, QStringLiteral("one"));
        widget.changeCaptionPlayByTime(1.5);
        QCOMPARE(widget.playingItem()->getCaptionInfo()->text, QStringLiteral("two"));
        QVERIFY(!widget.items().at(0)->isPlaying());
        widget.changeCaptionPlayByTime(7.0);
        QVERIFY(!widget.playingItem());

        // A click seeks to the start, read as renderers read it.
        QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
        widget.captionListItemClicked(widget.listWidget()->item(2));
        QVERIFY(bus.count() == 1 && bus.at(0).at(0).toString() == AppConfig::TIME_POS);
        QCOMPARE(bus.at(0).at(1).toInt(), 5030);
        QVERIFY(widget.items().at(2)->isSelect());
    }

    void selectAllTicksEveryCaption()
    {
        makeCaptions(80);
        CaptionWidget widget;
        widget.show();
        auto* selectAll = widget.findChild<QCheckBox*>(QStringLiteral("select_all"));
        QCOMPARE(selectAll->checkState(), Qt::Checked);
        selectAll->click();
        for (CaptionInfo* info : CaptionManager::instance()->getCaptions()) {
            QVERIFY(!info->isCheck); // rows not created yet included
        }
        QVERIFY(!widget.items().at(5)->checkBox()->isChecked());
        widget.items().at(5)->checkBox()->click();
        QVERIFY(CaptionManager::instance()->getCaptions().at(5)->isCheck);
        QCOMPARE(selectAll->checkState(), Qt::PartiallyChecked);
    }

    void editingInPlaceRaisesTheEvents()
    {
        makeCaptions(3);
        CaptionWidget widget;
        widget.show();
        QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
        QSignalSpy changed(&widget, &CaptionWidget::captionTextChangedSignal);
        CaptionItem* row = widget.items().at(1);
        row->changeToEdit(true);
        QCOMPARE(widget.editItem(), row);
        QVERIFY(bus.count() == 1 && bus.at(0).at(0).toString() == AppConfig::CHANGE_CAPTION);
        QCOMPARE(bus.at(0).at(1).value<CaptionInfo*>(), row->getCaptionInfo());

        row->labelWidget()->editor()->setText(QStringLiteral("edited text"));
        widget.resetEditStatus();
        QVERIFY(!widget.editItem());
        QCOMPARE(changed.count(), 1);
        QCOMPARE(row->getCaptionInfo()->text, QStringLiteral("edited text"));
        QCOMPARE(row->getCaptionInfo()->captionEdit->text, QStringLiteral("edited text"));

        // Ending an edit without a change changes nothing.
        row->changeToEdit(true);
        row->changeToEdit(false);
        QCOMPARE(changed.count(), 1);
    }

    void emptyStoreShowsTheStartOptions()
    {
        CaptionManager::instance()->clearCaptions();
        CaptionWidget widget;
        widget.show();
        QVERIFY(!widget.listWidget()->isVisible());
        QCOMPARE(title(widget), QStringLiteral("Captions (0)"));
        QSignalSpy automatic(&widget, &CaptionWidget::autoCaptionSignal);
        auto* button = widget.findChild<QPushButton*>(QStringLiteral("auto_caption"));
        QVERIFY(button && button->isVisible());
        button->click();
        QCOMPARE(automatic.count(), 1);
        // English (US) is the default recognition language.
        QCOMPARE(automatic.at(0).at(0).toInt(), 7);

        // A created caption shows at once: row, count and capture button.
        auto* capture = widget.findChild<QPushButton*>(QStringLiteral("capture"));
        QVERIFY(!capture->isEnabled());
        QVERIFY(CaptionManager::instance()->insertCaptionInfo(1.0, 3000));
        QVERIFY(widget.listWidget()->isVisible());
        QCOMPARE(title(widget), QStringLiteral("Captions (1)"));
        QCOMPARE(widget.items().size(), 1);
        QVERIFY(capture->isEnabled());
    }

    void captionAddedAtTheEndIsInView()
    {
        makeCaptions(100);
        CaptionWidget widget;
        widget.resize(300, 400);
        widget.show();
        CaptionInfo* added = CaptionManager::instance()->insertCaptionInfo(500.0, 3000);
        QVERIFY(added);
        QVERIFY(title(widget) == QStringLiteral("Captions (101)") && widget.items().size() == 101);
        QCOMPARE(widget.items().last()->getCaptionInfo(), added);
        QTRY_VERIFY(widget.listWidget()->viewport()->rect().intersects(
            widget.listWidget()->visualItemRect(widget.listWidget()->item(100))));
    }
};

QTEST_MAIN(TestCaptionWidget)
#include "test_captionwidget.moc"
