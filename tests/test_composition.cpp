// Pixel-exact checks of the stitched picture on frames painted here: every
// pixel of a frame encodes its frame, row and column, so a wrong band, offset
// or overlap shows up as a wrong colour.
#include "appconfig.h"
#include "globalmanager.h"
#include "imagecanvas.h"
#include "imagecomposer.h"
#include "imageitem.h"
#include "previewwidget.h"
#include "propertyitem.h"
#include "testsupport.h"

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
} // namespace

// One entry per placed frame: where its visible part lands and which source
// rectangle it shows. Later entries cover earlier ones; the rest is white.
struct Placement {
    int frame;
    QPoint at;
    QRect source;
};
Q_DECLARE_METATYPE(Placement)

class TestComposition : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();
    void layouts_data();
    void layouts();
    void emptySelectionKeepsComposite();
    void tallCanvasIsExact();
    void scaledToWidthMatchesQt_data();
    void scaledToWidthMatchesQt();

private:
    QPixmap compose(const QList<QSize>& sizes, int layout, const QString& x, const QString& y,
                    const QString& column);

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

void TestComposition::layouts_data()
{
    QTest::addColumn<QList<QSize>>("sizes");
    QTest::addColumn<int>("layout");
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("y");
    QTest::addColumn<QString>("column");
    QTest::addColumn<QSize>("expectedSize");
    QTest::addColumn<QList<Placement>>("places");

    const QSize s(100, 50);
    const QRect all(QPoint(0, 0), s);
    const int grid = PreviewWidget::Grid;
    const int vertical = PreviewWidget::Vertical;
    const int horizontal = PreviewWidget::Horizontal;
    // Image 4 opens the third row at (0, 108); the cell beside it stays white.
    QTest::newRow("grid example") << QList<QSize>{s, s, s, s, s} << grid << "10" << "4" << "2" << QSize(210, 158)
                                  << QList<Placement>{{0, {0, 0}, all}, {1, {110, 0}, all}, {2, {0, 54}, all},
                                                      {3, {110, 54}, all}, {4, {0, 108}, all}};
    QTest::newRow("grid fewer than columns") << QList<QSize>{s, s} << grid << "7" << "0" << "3" << QSize(207, 50)
                                             << QList<Placement>{{0, {0, 0}, all}, {1, {107, 0}, all}};
    QTest::newRow("grid negative spacing") << QList<QSize>{s, s, s, s} << grid << "-5" << "-3" << "2"
                                           << QSize(200, 100)
                                           << QList<Placement>{{0, {0, 0}, all}, {1, {100, 0}, all},
                                                               {2, {0, 50}, all}, {3, {100, 50}, all}};
    QTest::newRow("grid non-numeric column") << QList<QSize>{s, s, s} << grid << "0" << "2" << "abc"
                                             << QSize(100, 154)
                                             << QList<Placement>{{0, {0, 0}, all}, {1, {0, 52}, all},
                                                                 {2, {0, 104}, all}};
    // Cells come from the first frame; the larger second frame spills right
    // (cut by the canvas) and into the cell below it, where a later frame
    // paints over the spill.
    QTest::newRow("grid larger second frame")
        << QList<QSize>{s, QSize(150, 80), s} << grid << "0" << "0" << "2" << QSize(200, 100)
        << QList<Placement>{{0, {0, 0}, all}, {1, {100, 0}, QRect(0, 0, 150, 80)}, {2, {0, 50}, all}};
    QTest::newRow("grid spill covered")
        << QList<QSize>{s, QSize(150, 80), s, s} << grid << "0" << "0" << "2" << QSize(200, 100)
        << QList<Placement>{{0, {0, 0}, all}, {1, {100, 0}, QRect(0, 0, 150, 80)}, {2, {0, 50}, all},
                            {3, {100, 50}, all}};

    const QSize hd(640, 360);
    const QRect hdAll(QPoint(0, 0), hd);
    QTest::newRow("vertical caption bands") << QList<QSize>{hd, hd, hd} << vertical << "0" << "-300" << "2"
                                            << QSize(640, 480)
                                            << QList<Placement>{{0, {0, 0}, hdAll},
                                                                {1, {0, 360}, QRect(0, 300, 640, 60)},
                                                                {2, {0, 420}, QRect(0, 300, 640, 60)}};
    QTest::newRow("vertical positive spacing") << QList<QSize>{hd, hd, hd} << vertical << "25" << "8" << "2"
                                               << QSize(640, 1096)
                                               << QList<Placement>{{0, {0, 0}, hdAll}, {1, {0, 368}, hdAll},
                                                                   {2, {0, 736}, hdAll}};
    // Each band is cut from the bottom of its own frame; a frame shorter than
    // the band leaves white above it, a wider one is cut by the canvas.
    QTest::newRow("vertical other frame sizes")
        << QList<QSize>{QSize(320, 180), QSize(400, 200), QSize(320, 40)} << vertical << "0" << "-120" << "2"
        << QSize(320, 300)
        << QList<Placement>{{0, {0, 0}, QRect(0, 0, 320, 180)}, {1, {0, 180}, QRect(0, 140, 400, 60)},
                            {2, {0, 260}, QRect(0, 0, 320, 40)}};
    QTest::newRow("horizontal negative spacing")
        << QList<QSize>{hd, hd} << horizontal << "-100" << "50" << "2" << QSize(1180, 360)
        << QList<Placement>{{0, {0, 0}, hdAll}, {1, {640, 0}, QRect(100, 0, 540, 360)}};
    QTest::newRow("horizontal spacing") << QList<QSize>{hd, hd} << horizontal << "12" << "0" << "2"
                                        << QSize(1292, 360)
                                        << QList<Placement>{{0, {0, 0}, hdAll}, {1, {652, 0}, hdAll}};
    for (int layout : {grid, vertical, horizontal}) {
        QTest::addRow("single image, layout %d", layout)
            << QList<QSize>{QSize(123, 77)} << layout << "-40" << "-30" << "4" << QSize(123, 77)
            << QList<Placement>{{0, {0, 0}, QRect(0, 0, 123, 77)}};
    }
}

void TestComposition::layouts()
{
    QFETCH(QList<QSize>, sizes);
    QFETCH(int, layout);
    QFETCH(QString, x);
    QFETCH(QString, y);
    QFETCH(QString, column);
    QFETCH(QSize, expectedSize);
    QFETCH(QList<Placement>, places);

    const QPixmap composite = compose(sizes, layout, x, y, column);
    QCOMPARE(composite.size(), expectedSize);
    const QImage image = composite.toImage().convertToFormat(QImage::Format_RGB32);

    // On screen: drawn from the frames at 100 % it is the same picture; at a
    // quarter, from the reduced copies, it is the composite scaled down.
    QList<QImage> frames;
    QList<QImage> copies;
    for (ImageItem* item : qAsConst(m_items)) {
        frames << item->getPixmap().toImage();
        copies << item->thumbnail();
    }
    const int xs = m_preview->propertyValue(PropertyItem::XSpace);
    const int ys = m_preview->propertyValue(PropertyItem::YSpace);
    const int columns = m_preview->propertyValue(PropertyItem::Column);
    QCOMPARE(ImageComposer::composeScaled(frames, sizes, layout, xs, ys, columns, 1.0), image);
    const QImage quarter = ImageComposer::composeScaled(copies, sizes, layout, xs, ys, columns, 0.25);
    QCOMPARE(quarter.size(), QSize(qRound(expectedSize.width() * 0.25), qRound(expectedSize.height() * 0.25)));
    const double difference = TestSupport::meanDifference(
        quarter, image.scaled(quarter.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    QVERIFY2(difference < 10.0, qPrintable(QString::number(difference)));
    for (int row = 0; row < image.height(); ++row) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(row));
        for (int col = 0; col < image.width(); ++col) {
            QRgb expected = kWhite;
            for (const Placement& p : places) {
                const QPoint local = QPoint(col, row) - p.at + p.source.topLeft();
                if (p.source.contains(local)) {
                    expected = frameColor(p.frame, local.x(), local.y());
                }
            }
            if ((line[col] | 0xff000000) != expected) {
                QFAIL(qPrintable(QStringLiteral("pixel (%1,%2) is %3, expected %4")
                                     .arg(col)
                                     .arg(row)
                                     .arg(line[col] & 0xffffff, 6, 16)
                                     .arg(expected & 0xffffff, 6, 16)));
            }
        }
    }
}

void TestComposition::emptySelectionKeepsComposite()
{
    // Only kept while shown at 100 %.
    m_preview->changeZoomHandle(ImageCanvas::Actual);
    const QPixmap first = compose({QSize(50, 20), QSize(50, 20)}, PreviewWidget::Vertical, "0", "0", "1");
    QCOMPARE(first.size(), QSize(50, 40));
    GlobalManager::instance()->selectedImages().clear();
    QVERIFY(m_preview->getGroupPixmap().isNull());
    QCOMPARE(m_preview->groupPixmap().cacheKey(), first.cacheKey());
    m_preview->changeZoomHandle(ImageCanvas::Fit);
    QVERIFY(m_preview->groupPixmap().isNull());
}

void TestComposition::tallCanvasIsExact()
{
    // Far past the 32767 rows a painter can address: 45 full-HD frames.
    QList<QPixmap> frames;
    for (int i = 0; i < 45; ++i) {
        frames << makeFrame(i, 1920, 1080);
    }
    const QImage canvas = PreviewWidget::composeImages(frames, PreviewWidget::Vertical, 0, 0, 1);
    frames.clear();
    QCOMPARE(canvas.size(), QSize(1920, 48600));
    for (int row = 0; row < canvas.height(); ++row) {
        const auto* line = reinterpret_cast<const QRgb*>(canvas.constScanLine(row));
        for (int col = 0; col < canvas.width(); ++col) {
            if ((line[col] | 0xff000000) != frameColor(row / 1080, col, row % 1080)) {
                QFAIL(qPrintable(QStringLiteral("pixel (%1,%2) is wrong").arg(col).arg(row)));
            }
        }
    }
    // Halved for export: every other row and column, down to the last.
    const QImage half = ImageComposer::scaledToWidth(canvas, 960);
    QCOMPARE(half.size(), QSize(960, 24300));
    for (int row = 0; row < half.height(); row += 7) {
        const auto* line = reinterpret_cast<const QRgb*>(half.constScanLine(row));
        const auto* source = reinterpret_cast<const QRgb*>(canvas.constScanLine(2 * row));
        for (int col = 0; col < half.width(); ++col) {
            QCOMPARE(line[col], source[2 * col]);
        }
    }
}

void TestComposition::scaledToWidthMatchesQt_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("width");
    QTest::newRow("odd factor") << QSize(333, 99) << 137;
    QTest::newRow("enlarged") << QSize(1280, 720) << 1700;
    QTest::newRow("tiny") << QSize(7, 5) << 3;
    QTest::newRow("one pixel less") << QSize(1920, 1080) << 1919;
}

void TestComposition::scaledToWidthMatchesQt()
{
    QFETCH(QSize, size);
    QFETCH(int, width);
    const QImage frame = makeFrame(3, size.width(), size.height()).toImage();
    const QImage expected = frame.scaledToWidth(width, Qt::FastTransformation);
    const QImage scaled = ImageComposer::scaledToWidth(frame, width);
    QCOMPARE(scaled.size(), expected.size());
    QVERIFY(scaled == expected.convertToFormat(scaled.format()));
}

QTEST_MAIN(TestComposition)
#include "test_composition.moc"
