// The captured strip, its selection in GlobalManager and the list view.
#include "appconfig.h"
#include "globalmanager.h"
#include "imageitem.h"
#include "imagelistviewdialog.h"
#include "imageswidget.h"
#include "savefilebar.h"
#include "testsupport.h"

#include <QCheckBox>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

namespace {
QPixmap solidFrame(const QColor& color, int width = 1920, int height = 1080)
{
    return TestSupport::solidFrame(color, width, height);
}
} // namespace

using TestSupport::capture;

class TestImageStrip : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void capturesKeepArrivalOrderAndStartChecked();
    void selectAllThenCheckOneEmitsTwice();
    void stripChangesEmitOnce();
    void listViewMirrorsAndDrivesStrip();

private:
    int events() const { return m_events; }
    QList<ImageItem*> selection() const { return GlobalManager::instance()->selectedImages(); }

    ImagesWidget* m_strip = nullptr;
    int m_events = 0;
};

void TestImageStrip::initTestCase()
{
    TestSupport::isolate();
    connect(GlobalManager::instance(), &GlobalManager::globalEvent, this, [this](const QString& name, const QVariant&) {
        if (name == AppConfig::SELECT_IMAGE_COMPLETE) {
            ++m_events;
        }
    });
}

void TestImageStrip::init()
{
    m_strip = new ImagesWidget();
    m_strip->resize(800, 200);
    m_strip->show();
    m_events = 0;
}

void TestImageStrip::cleanup()
{
    delete m_strip;
    m_strip = nullptr;
    GlobalManager::instance()->selectedImages().clear();
}

void TestImageStrip::capturesKeepArrivalOrderAndStartChecked()
{
    const QPixmap frame = solidFrame(Qt::red);
    m_strip->addImage(QVariant::fromValue(capture(frame, 4.0, 100)));
    m_strip->addImage(capture(solidFrame(Qt::blue), 2.0, 50));
    m_strip->addImage(capture(frame, 4.0, 100));
    QCOMPARE(events(), 3);

    const QList<ImageItem*> items = m_strip->items();
    QCOMPARE(items.size(), 3);
    QCOMPARE((QList<int>{items.at(0)->getFrame(), items.at(1)->getFrame(), items.at(2)->getFrame()}),
             (QList<int>{100, 50, 100}));
    QCOMPARE(items.at(1)->getCpatureTime(), 2.0);
    // The frame is shared, not copied.
    QCOMPARE(items.at(0)->getPixmap().cacheKey(), frame.cacheKey());
    QCOMPARE(selection(), items);
    for (ImageItem* item : items) {
        QVERIFY(item->isSelect());
        // 1920x1080 at display rate 1: 150 x 84.
        QCOMPARE(item->size(), QSize(150, 84));
    }
}

void TestImageStrip::selectAllThenCheckOneEmitsTwice()
{
    for (int i = 0; i < 3; ++i) {
        m_strip->addImage(capture(solidFrame(Qt::gray, 320, 180), i, i));
    }
    m_events = 0;
    m_strip->selectAll(false);
    QCOMPARE(events(), 1);
    QVERIFY(selection().isEmpty());

    ImageItem* middle = m_strip->items().at(1);
    middle->checkBox()->click();
    QCOMPARE(events(), 2);
    QCOMPARE(selection(), QList<ImageItem*>{middle});
    QVERIFY(!m_strip->items().at(0)->isSelect());

    m_strip->selectAll(true);
    QCOMPARE(events(), 3);
    QCOMPARE(selection(), m_strip->items());
}

void TestImageStrip::stripChangesEmitOnce()
{
    // Clearing an empty strip still tells the preview.
    m_strip->clearButtonClickedHandle();
    QCOMPARE(events(), 1);

    for (int i = 0; i < 3; ++i) {
        m_strip->addImage(capture(solidFrame(Qt::gray, 320, 180), i, i));
    }
    m_events = 0;
    QPointer<ImageItem> doomed = m_strip->items().at(1);
    QTest::mouseClick(doomed->deleteButton(), Qt::LeftButton);
    QCOMPARE(events(), 1);
    QCOMPARE(m_strip->items().size(), 2);
    QVERIFY(!selection().contains(doomed.data()));
    QCOMPARE(selection().size(), 2);
    QTRY_VERIFY(doomed.isNull());

    // Re-captured frames replace the old ones in order.
    const QPixmap a = solidFrame(Qt::yellow, 320, 180);
    const QPixmap b = solidFrame(Qt::cyan, 320, 180);
    m_strip->updateByPixmapList({a, b});
    QCOMPARE(events(), 2);
    QCOMPARE(m_strip->items().at(0)->getPixmap().cacheKey(), a.cacheKey());
    QCOMPARE(m_strip->items().at(1)->getPixmap().cacheKey(), b.cacheKey());

    QPointer<ImageItem> first = m_strip->items().first();
    m_strip->clearButtonClickedHandle();
    QCOMPARE(events(), 3);
    QVERIFY(m_strip->items().isEmpty() && selection().isEmpty());
    QTRY_VERIFY(first.isNull());
}

void TestImageStrip::listViewMirrorsAndDrivesStrip()
{
    for (int i = 0; i < 4; ++i) {
        m_strip->addImage(capture(solidFrame(Qt::gray, 320, 180), i, i));
    }
    m_strip->items().at(3)->setSelect(false);
    m_strip->showButtonClickedHandle();
    ImageListViewDialog* dialog = m_strip->listViewDialog();
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->items().size(), 4);
    QVERIFY(!dialog->items().at(3)->isSelect());
    QCOMPARE(dialog->items().first()->size(), QSize(200, 112));
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(dialog->sourceOf(dialog->items().at(i)), m_strip->items().at(i));
        QCOMPARE(dialog->items().at(i)->getPixmap().cacheKey(), m_strip->items().at(i)->getPixmap().cacheKey());
    }

    m_events = 0;
    dialog->items().at(0)->checkBox()->click();
    QCOMPARE(events(), 1);
    QVERIFY(!m_strip->items().at(0)->isSelect());
    QCOMPARE(selection(), (QList<ImageItem*>{m_strip->items().at(1), m_strip->items().at(2)}));

    ImageItem* stripSecond = m_strip->items().at(1);
    QTest::mouseClick(dialog->items().at(1)->deleteButton(), Qt::LeftButton);
    QCOMPARE(events(), 2);
    QCOMPARE(m_strip->items().size(), 3);
    QVERIFY(!m_strip->items().contains(stripSecond));
    QCOMPARE(dialog->items().size(), 3);

    dialog->saveFileBar()->selectAllBox()->click();
    QCOMPARE(events(), 3);
    QCOMPARE(selection(), m_strip->items());
    for (ImageItem* item : dialog->items()) {
        QVERIFY(item->isSelect());
    }

    QString question;
    TestSupport::answerConfirmation(QStringLiteral("Cancel"), &question);
    dialog->deleteAllButton()->click();
    QCOMPARE(question, QStringLiteral("Remove all 3 frames?"));
    QCOMPARE(m_strip->items().size(), 3);
    TestSupport::answerConfirmation(QStringLiteral("Remove"));
    dialog->deleteAllButton()->click();
    QCOMPARE(events(), 4);
    QVERIFY(m_strip->items().isEmpty() && dialog->items().isEmpty());
    dialog->hide();
}

QTEST_MAIN(TestImageStrip)
#include "test_imagestrip.moc"
