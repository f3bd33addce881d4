// Pixel-exact checks of the stitched picture on frames painted here: every
// pixel of a frame encodes its frame, row and column, so a wrong band, offset
// or overlap shows up as a wrong colour.
#include "appconfig.h"
#include "globalmanager.h"
#include "imageitem.h"
#include "previewwidget.h"
#include "propertyitem.h"
#include "testsupport.h"

#include <QApplication>
#include <QtTest>
#include <functional>

namespace {
QRgb frameColor(int frame, int x, int y)
{
    return qRgb(30 + frame * 30, y % 256, (y / 256) * 128 + (x % 128));
}

QPixmap makeFrame(int frame, int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            line[x] = frameColor(frame, x, y);
        }
    }
    return QPixmap::fromImage(std::move(image));
}

const QRgb kWhite = qRgb(255, 255, 255);

// One entry per placed frame: where its visible part lands and which source
// rectangle it shows. Later entries cover earlier ones; the rest is white.
struct Placement {
    int frame;
    QPoint at;
    QRect source;
};
} // namespace

class TestComposition : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();
    void gridExample();
    void gridFewerThanColumns();
    void gridNegativeSpacing();
    void gridNonNumericColumn();
    void gridLargerSecondFrame();
    void verticalCaptionBands();
    void verticalPositiveSpacing();
    void verticalOtherFrameSizes();
    void horizontalNegativeSpacing();
    void singleImage_data();
    void singleImage();
    void emptySelectionKeepsComposite();

private:
    QPixmap compose(const QList<QSize>& sizes, int layout, const QString& x, const QString& y,
                    const QString& column);
    void verify(const QPixmap& composite, const QSize& expectedSize, const QList<Placement>& placements);

    PreviewWidget* m_preview = nullptr;
    QList<ImageItem*> m_items;
    QList<QPixmap> m_frames;
};

void TestComposition::initTestCase()
{
    TestSupport::isolate();
    m_preview = new PreviewWidget();
}

void TestComposition::cleanup()
{
    GlobalManager::instance()->selectedImages().clear();
    qDeleteAll(m_items);
    m_items.clear();
    m_frames.clear();
}

QPixmap TestComposition::compose(const QList<QSize>& sizes, int layout, const QString& x, const QString& y,
                                 const QString& column)
{
    QList<ImageItem*>& selected = GlobalManager::instance()->selectedImages();
    selected.clear();
    for (int i = 0; i < sizes.size(); ++i) {
        auto* item = new ImageItem();
        m_frames.append(makeFrame(i, sizes.at(i).width(), sizes.at(i).height()));
        item->changeImageByPixmap(m_frames.last());
        item->setSelect(true);
        m_items.append(item);
        selected.append(item);
    }
    m_preview->propertyItem(PropertyItem::XSpace)->setText(x);
    m_preview->propertyItem(PropertyItem::YSpace)->setText(y);
    m_preview->propertyItem(PropertyItem::Column)->setText(column);
    m_preview->setRadioType(layout);
    return m_preview->getGroupPixmap();
}

void TestComposition::verify(const QPixmap& composite, const QSize& expectedSize,
                             const QList<Placement>& placements)
{
    QCOMPARE(composite.size(), expectedSize);
    const QImage image = composite.toImage().convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            QRgb expected = kWhite;
            for (const Placement& p : placements) {
                const QPoint local = QPoint(x, y) - p.at + p.source.topLeft();
                if (p.source.contains(local)) {
                    expected = frameColor(p.frame, local.x(), local.y());
                }
            }
            if ((line[x] | 0xff000000) != expected) {
                QFAIL(qPrintable(QStringLiteral("pixel (%1,%2) is %3, expected %4")
                                     .arg(x)
                                     .arg(y)
                                     .arg(line[x] & 0xffffff, 6, 16)
                                     .arg(expected & 0xffffff, 6, 16)));
            }
        }
    }
}

void TestComposition::gridExample()
{
    const QSize s(100, 50);
    const QPixmap composite = compose({s, s, s, s, s}, PreviewWidget::Grid, "10", "4", "2");
    QList<Placement> places;
    for (int i = 0; i < 5; ++i) {
        places.append({i, QPoint((i % 2) * 110, (i / 2) * 54), QRect(QPoint(0, 0), s)});
    }
    // Image 4 opens the third row at (0, 108); the cell beside it stays white.
    QCOMPARE(places.last().at, QPoint(0, 108));
    verify(composite, QSize(210, 158), places);
}

void TestComposition::gridFewerThanColumns()
{
    const QSize s(100, 50);
    const QPixmap composite = compose({s, s}, PreviewWidget::Grid, "7", "0", "3");
    verify(composite, QSize(207, 50),
           {{0, QPoint(0, 0), QRect(QPoint(0, 0), s)}, {1, QPoint(107, 0), QRect(QPoint(0, 0), s)}});
}

void TestComposition::gridNegativeSpacing()
{
    const QSize s(100, 50);
    const QPixmap composite = compose({s, s, s, s}, PreviewWidget::Grid, "-5", "-3", "2");
    QList<Placement> places;
    for (int i = 0; i < 4; ++i) {
        places.append({i, QPoint((i % 2) * 100, (i / 2) * 50), QRect(QPoint(0, 0), s)});
    }
    verify(composite, QSize(200, 100), places);
}

void TestComposition::gridNonNumericColumn()
{
    const QSize s(60, 40);
    const QPixmap composite = compose({s, s, s}, PreviewWidget::Grid, "0", "2", "abc");
    QCOMPARE(m_preview->propertyValue(PropertyItem::Column), 0);
    verify(composite, QSize(60, 124),
           {{0, QPoint(0, 0), QRect(0, 0, 60, 40)},
            {1, QPoint(0, 42), QRect(0, 0, 60, 40)},
            {2, QPoint(0, 84), QRect(0, 0, 60, 40)}});
}

void TestComposition::gridLargerSecondFrame()
{
    // Cells come from the first frame; the larger second frame spills right
    // (cut by the canvas) and into the empty cell below it.
    const QPixmap composite
        = compose({QSize(100, 50), QSize(150, 80), QSize(100, 50)}, PreviewWidget::Grid, "0", "0", "2");
    verify(composite, QSize(200, 100),
           {{0, QPoint(0, 0), QRect(0, 0, 100, 50)},
            {1, QPoint(100, 0), QRect(0, 0, 150, 80)},
            {2, QPoint(0, 50), QRect(0, 0, 100, 50)}});

    // A later frame paints over the spill of an earlier one.
    cleanup();
    const QPixmap covered = compose({QSize(100, 50), QSize(150, 80), QSize(100, 50), QSize(100, 50)},
                                    PreviewWidget::Grid, "0", "0", "2");
    const QImage image = covered.toImage();
    QCOMPARE(image.pixel(150, 60) | 0xff000000, frameColor(3, 50, 10));
    QCOMPARE(image.pixel(150, 40) | 0xff000000, frameColor(1, 50, 40));
}

void TestComposition::verticalCaptionBands()
{
    const QSize s(640, 360);
    const QPixmap composite = compose({s, s, s}, PreviewWidget::Vertical, "0", "-300", "2");
    verify(composite, QSize(640, 480),
           {{0, QPoint(0, 0), QRect(0, 0, 640, 360)},
            {1, QPoint(0, 360), QRect(0, 300, 640, 60)},
            {2, QPoint(0, 420), QRect(0, 300, 640, 60)}});
}

void TestComposition::verticalPositiveSpacing()
{
    const QSize s(640, 360);
    const QPixmap composite = compose({s, s, s}, PreviewWidget::Vertical, "25", "8", "2");
    verify(composite, QSize(640, 1096),
           {{0, QPoint(0, 0), QRect(0, 0, 640, 360)},
            {1, QPoint(0, 368), QRect(0, 0, 640, 360)},
            {2, QPoint(0, 736), QRect(0, 0, 640, 360)}});
}

void TestComposition::verticalOtherFrameSizes()
{
    // Each band is cut from the bottom of its own frame; a frame shorter than
    // the band leaves white above it, a wider one is cut by the canvas.
    const QPixmap composite = compose({QSize(320, 180), QSize(400, 200), QSize(320, 40)},
                                      PreviewWidget::Vertical, "0", "-120", "2");
    verify(composite, QSize(320, 300),
           {{0, QPoint(0, 0), QRect(0, 0, 320, 180)},
            {1, QPoint(0, 180), QRect(0, 140, 400, 60)},
            {2, QPoint(0, 260), QRect(0, 0, 320, 40)}});
}

void TestComposition::horizontalNegativeSpacing()
{
    const QSize s(640, 360);
    const QPixmap composite = compose({s, s}, PreviewWidget::Horizontal, "-100", "50", "2");
    verify(composite, QSize(1180, 360),
           {{0, QPoint(0, 0), QRect(0, 0, 640, 360)}, {1, QPoint(640, 0), QRect(100, 0, 540, 360)}});

    cleanup();
    const QPixmap spaced = compose({s, s}, PreviewWidget::Horizontal, "12", "0", "2");
    verify(spaced, QSize(1292, 360),
           {{0, QPoint(0, 0), QRect(0, 0, 640, 360)}, {1, QPoint(652, 0), QRect(0, 0, 640, 360)}});
}

void TestComposition::singleImage_data()
{
    QTest::addColumn<int>("layout");
    QTest::newRow("grid") << int(PreviewWidget::Grid);
    QTest::newRow("vertical") << int(PreviewWidget::Vertical);
    QTest::newRow("horizontal") << int(PreviewWidget::Horizontal);
}

void TestComposition::singleImage()
{
    QFETCH(int, layout);
    const QPixmap composite = compose({QSize(123, 77)}, layout, "-40", "-30", "4");
    verify(composite, QSize(123, 77), {{0, QPoint(0, 0), QRect(0, 0, 123, 77)}});
}

void TestComposition::emptySelectionKeepsComposite()
{
    const QPixmap first = compose({QSize(50, 20), QSize(50, 20)}, PreviewWidget::Vertical, "0", "0", "1");
    QCOMPARE(first.size(), QSize(50, 40));
    GlobalManager::instance()->selectedImages().clear();
    QVERIFY(m_preview->getGroupPixmap().isNull());
    QCOMPARE(m_preview->groupPixmap().cacheKey(), first.cacheKey());
}

QTEST_MAIN(TestComposition)
#include "test_composition.moc"
