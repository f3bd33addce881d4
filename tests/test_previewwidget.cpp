// The preview panel around the composition: stored properties and layout,
// size label, zoom bar and the output settings bar.
#include "appconfig.h"
#include "globalmanager.h"
#include "imagecanvas.h"
#include "imageitem.h"
#include "imageswidget.h"
#include "previewwidget.h"
#include "propertyitem.h"
#include "savefilebar.h"
#include "settings.h"
#include "testsupport.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QtTest>

class TestPreviewWidget : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void propertiesAndLayoutAreStored();
    void sizeLabelZoomAndScaleFields();
    void outputBarFollowsSettings();
};

void TestPreviewWidget::initTestCase()
{
    TestSupport::isolate();
}

void TestPreviewWidget::propertiesAndLayoutAreStored()
{
    GlobalManager* manager = GlobalManager::instance();
    manager->saveInAppSettings(AppConfig::PROPERTY_Y_SPACE, QStringLiteral("-40"));
    PreviewWidget preview;
    QCOMPARE(preview.propertyItem(PropertyItem::YSpace)->getText(), QStringLiteral("-40"));
    QCOMPARE(preview.propertyItem(PropertyItem::Scale)->getText(), QStringLiteral("100"));
    QCOMPARE(manager->readInAppSettings(AppConfig::PROPERTY_COLUMN).toString(),
             preview.propertyItem(PropertyItem::Column)->getText());

    preview.propertyItem(PropertyItem::YSpace)->lineEdit()->clear();
    QTest::keyClicks(preview.propertyItem(PropertyItem::YSpace)->lineEdit(), QStringLiteral("-12"));
    QCOMPARE(manager->readInAppSettings(AppConfig::PROPERTY_Y_SPACE).toString(), QStringLiteral("-12"));
    // Scale takes no sign and no letters.
    preview.propertyItem(PropertyItem::Scale)->lineEdit()->clear();
    QTest::keyClicks(preview.propertyItem(PropertyItem::Scale)->lineEdit(), QStringLiteral("-5a0"));
    QCOMPARE(preview.propertyItem(PropertyItem::Scale)->getText(), QStringLiteral("50"));
    QCOMPARE(manager->readInAppSettings(AppConfig::PROPERTY_SCALE).toString(), QStringLiteral("50"));
    manager->saveInAppSettings(AppConfig::PROPERTY_SCALE, QStringLiteral("100"));
    manager->saveInAppSettings(AppConfig::PROPERTY_Y_SPACE, QStringLiteral("0"));

    // The layout choice is kept for the next panel.
    QCOMPARE(preview.getRadioType(), int(PreviewWidget::Vertical));
    preview.show();
    const auto radios = preview.findChildren<QRadioButton*>();
    QCOMPARE(radios.size(), 3);
    QTest::mouseClick(radios.at(0), Qt::LeftButton);
    QCOMPARE(preview.getRadioType(), int(PreviewWidget::Grid));
    QCOMPARE(manager->readSettings(AppConfig::RADIO_TYPE, 1).toInt(), 0);
    QVERIFY(preview.propertyItem(PropertyItem::Column)->isEnabled());
    PreviewWidget again;
    QCOMPARE(again.getRadioType(), int(PreviewWidget::Grid));
    again.setRadioType(PreviewWidget::Vertical);
    QVERIFY(!again.propertyItem(PropertyItem::Column)->isEnabled());
    QVERIFY(!again.propertyItem(PropertyItem::XSpace)->isEnabled());
}

void TestPreviewWidget::sizeLabelZoomAndScaleFields()
{
    ImagesWidget strip;
    PreviewWidget preview;
    preview.resize(700, 600);
    preview.show();
    QVERIFY(QTest::qWaitForWindowExposed(&preview));
    connect(GlobalManager::instance(), &GlobalManager::globalEvent, &preview, [&](const QString& name, const QVariant&) {
        if (name == AppConfig::SELECT_IMAGE_COMPLETE) {
            preview.showImage();
            preview.scrollToEnd();
            preview.initScaleProperty();
        }
    });
    const AppConfig::CaptureData data = TestSupport::capture(TestSupport::solidFrame(Qt::darkGreen, 1000, 400), 0, 0);
    preview.setRadioType(PreviewWidget::Vertical);
    strip.addImage(data);
    strip.addImage(data);
    QCOMPARE((QStringList{preview.sizeLabel()->text(), preview.propertyItem(PropertyItem::Width)->getText(),
                          preview.propertyItem(PropertyItem::Height)->getText()}),
             (QStringList{"1000x800", "1000", "800"}));

    // Fit shrinks the picture into the visible area; 100 % shows it as it is.
    ImageCanvas* canvas = preview.canvas();
    QVERIFY(canvas->zoomFactor() < 1.0);
    QVERIFY(canvas->viewport()->rect().contains(QRect(QPoint(), canvas->widget()->size())));
    preview.changeZoomHandle(ImageCanvas::Actual);
    QCOMPARE(canvas->widget()->size(), QSize(1000, 800));
    preview.scrollToEnd();
    QCOMPARE(canvas->verticalScrollBar()->value(), canvas->verticalScrollBar()->maximum());
    QVERIFY(canvas->verticalScrollBar()->maximum() > 0);

    // Typing a width sets the scale and the height in proportion.
    QLineEdit* width = preview.propertyItem(PropertyItem::Width)->lineEdit();
    // Six digits fit beside the padding (6 px a side), the frame and the text margins.
    QVERIFY(width->width() >= width->fontMetrics().horizontalAdvance(QStringLiteral("999999")) + 2 * 6 + 2 + 4);
    width->selectAll();
    QTest::keyClicks(width, QStringLiteral("250"));
    QCOMPARE(preview.propertyItem(PropertyItem::Scale)->getText(), QStringLiteral("25"));
    QCOMPARE(preview.propertyItem(PropertyItem::Height)->getText(), QStringLiteral("200"));

    strip.clearButtonClickedHandle();
    QVERIFY(preview.sizeLabel()->text().isEmpty() && !preview.saveFileBar()->exportButton()->isEnabled());
    preview.propertyItem(PropertyItem::Scale)->setText(QStringLiteral("100"));
}

void TestPreviewWidget::outputBarFollowsSettings()
{
    GlobalManager* manager = GlobalManager::instance();
    PreviewWidget preview;
    SaveFileBar* bar = preview.saveFileBar();
    QCOMPARE(bar->fileExtension(), AppConfig::FORMAT_JPG);
    // On a fresh profile the export worker reads the format the bar shows.
    QCOMPARE(Settings::instance()->value(AppConfig::FILE_EXTENSION, Settings::ExportWorker).toString(),
             AppConfig::FORMAT_JPG);
    manager->saveSettings(AppConfig::FILE_SAVE_PATH, QStringLiteral("/some/where"));
    manager->saveSettings(AppConfig::FILE_EXTENSION, AppConfig::FORMAT_WEBP);
    QCOMPARE(bar->outputDir(), QStringLiteral("/some/where"));
    QCOMPARE(bar->fileExtension(), AppConfig::FORMAT_WEBP);
    preview.changeFileExtension(QStringLiteral("png"));
    QCOMPARE(bar->fileExtension(), AppConfig::FORMAT_PNG);

    // Choosing a format in the bar stores it.
    bar->formatBox()->setCurrentIndex(1);
    emit bar->formatBox()->activated(1);
    QCOMPARE(manager->readSettings(AppConfig::FILE_EXTENSION).toString(), AppConfig::FORMAT_JPG);
}

QTEST_MAIN(TestPreviewWidget)
#include "test_previewwidget.moc"
