#include "previewwidget.h"

#include "appconfig.h"
#include "globalmanager.h"
#include "imagecanvas.h"
#include "imagecomposer.h"
#include "imageexporter.h"
#include "imageitem.h"
#include "imageviewdialog.h"
#include "logcategories.h"
#include "picturewriter.h"
#include "propertyitem.h"
#include "savefilebar.h"
#include "saveimagethread.h"
#include "settings.h"

#include <QApplication>
#include <QButtonGroup>
#include <QDebug>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QtMath>
#include <QVBoxLayout>

PreviewWidget::PreviewWidget(QWidget* parent)
    : BaseWidget(parent)
    , m_radioGroup(new QButtonGroup(this))
    , m_canvas(new ImageCanvas(this))
    , m_fitButton(new QPushButton(this))
    , m_actualButton(new QPushButton(QStringLiteral("100%"), this))
    , m_viewButton(new QPushButton(this))
    , m_sizeLabel(new QLabel(this))
    , m_zoomLabel(new QLabel(this))
    , m_saveFileBar(new SaveFileBar(false, this))
    , m_progressBar(new QProgressBar(this))
    , m_exporter(new ImageExporter(this))
    , m_refreshTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("preview_widget"));
    setAttribute(Qt::WA_StyledBackground, true);

    // Layout choice
    auto* layoutRow = new QHBoxLayout();
    layoutRow->setSpacing(AppConfig::rate(12));
    m_layoutLabel = new QLabel(this);
    layoutRow->addWidget(m_layoutLabel);
    for (int i = Grid; i <= Horizontal; ++i) {
        auto* radio = new QRadioButton(this);
        m_radioGroup->addButton(radio, i);
        layoutRow->addWidget(radio);
    }
    layoutRow->addStretch(1);
    m_radioType = Settings::instance()->value(AppConfig::RADIO_TYPE).toInt();
    if (m_radioType < Grid || m_radioType > Horizontal) {
        m_radioType = Vertical;
    }
    m_radioGroup->button(m_radioType)->setChecked(true);
    connect(m_radioGroup, &QButtonGroup::idClicked, this, [this](int id) {
        setRadioType(id);
        GlobalManager::instance()->saveSettings(AppConfig::RADIO_TYPE,
                                                QVariant::fromValue(static_cast<unsigned long>(id)));
    });

    // Output properties
    // Three rows of two (size, spacing, scale and columns), so every title stays
    // readable in the column's narrowest width.
    auto* propertyRow = new QGridLayout();
    propertyRow->setHorizontalSpacing(AppConfig::rate(12));
    propertyRow->setVerticalSpacing(AppConfig::rate(6));
    initPropertyItems();
    for (int type = PropertyItem::Width; type <= PropertyItem::Column; ++type) {
        propertyRow->addWidget(m_propertyItems.value(type), type / 2, type % 2, Qt::AlignLeft);
    }
    propertyRow->setColumnStretch(2, 1);

    // Zoom bar
    m_fitButton->setCheckable(true);
    m_actualButton->setCheckable(true);
    m_fitButton->setChecked(true);
    auto* zoomGroup = new QButtonGroup(this);
    zoomGroup->addButton(m_fitButton, ImageCanvas::Fit);
    zoomGroup->addButton(m_actualButton, ImageCanvas::Actual);
    connect(zoomGroup, &QButtonGroup::idClicked, this, &PreviewWidget::changeZoomHandle);
    connect(m_canvas, &ImageCanvas::zoomChangedSignal, this, [this](int, double factor) {
        m_zoomLabel->setText(QStringLiteral("%1%").arg(qRound(factor * 100)));
    });
    connect(m_viewButton, &QPushButton::clicked, this, &PreviewWidget::showViewDialogHandle);
    m_sizeLabel->setObjectName(QStringLiteral("preview_size_label"));
    auto* zoomRow = new QHBoxLayout();
    zoomRow->addWidget(m_sizeLabel);
    zoomRow->addStretch(1);
    zoomRow->addWidget(m_zoomLabel);
    zoomRow->addWidget(m_fitButton);
    zoomRow->addWidget(m_actualButton);
    zoomRow->addWidget(m_viewButton);

    m_progressBar->setTextVisible(false);
    m_progressBar->setFixedHeight(AppConfig::rate(4));
    m_progressBar->hide();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(10), AppConfig::rate(10), AppConfig::rate(10), AppConfig::rate(4));
    layout->setSpacing(AppConfig::rate(6));
    layout->addLayout(layoutRow);
    layout->addLayout(propertyRow);
    layout->addWidget(m_canvas, 1);
    layout->addLayout(zoomRow);
    layout->addWidget(m_progressBar);
    layout->addWidget(m_saveFileBar);

    connect(m_saveFileBar, &SaveFileBar::exportButtonTap, this, &PreviewWidget::exportButtonClickHandle);
    connect(m_exporter, &ImageExporter::exportStarted, this, [this]() { setExporting(true); });
    connect(m_exporter, &ImageExporter::exportProgress, this, [this](int index, int total) {
        m_progressBar->setRange(0, total);
        m_progressBar->setValue(index + 1);
    });
    connect(m_exporter, &ImageExporter::writingFinished, this, [this]() { setExporting(false); });
    connect(m_exporter, &ImageExporter::showRegisterGuide, this, &PreviewWidget::showRegisterGuide);
    connect(m_exporter, &ImageExporter::exportFinished, this,
            [this](const QStringList& files, const QStringList& errors) {
                qCDebug(lcImages) << "export image:" << files;
                emit exportFinishedSignal(files, errors);
            });
    m_refreshTimer->setSingleShot(true);
    connect(m_refreshTimer, &QTimer::timeout, this, &PreviewWidget::refreshPicture);
    // The fitted picture is drawn for the visible area: redraw when it changes.
    connect(m_canvas, &ImageCanvas::areaResized, this, [this]() {
        if (m_canvas->zoomType() == ImageCanvas::Fit && !m_compositeSize.isEmpty()) {
            scheduleRefresh();
        }
    });
    updatePropertyEnabled();
    retranslate();
    showImage();
}

void PreviewWidget::changeLang(int type)
{
    Q_UNUSED(type)
    retranslate();
}

void PreviewWidget::retranslate()
{
    m_layoutLabel->setText(tr("Layout:"));
    m_radioGroup->button(Grid)->setText(tr("Grid"));
    m_radioGroup->button(Vertical)->setText(tr("Vertical"));
    m_radioGroup->button(Horizontal)->setText(tr("Horizontal"));
    for (PropertyItem* item : qAsConst(m_propertyItems)) {
        item->setTitle(propertyTitle(item->getType()));
    }
    // The fields of one column line up under each other whatever the titles' lengths.
    for (int column = 0; column < 2; ++column) {
        int widest = 0;
        for (int type = column; type <= PropertyItem::Column; type += 2) {
            QLabel* title = propertyItem(type)->titleLabel();
            title->setMinimumWidth(0);
            title->ensurePolished();
            widest = qMax(widest, title->sizeHint().width());
        }
        for (int type = column; type <= PropertyItem::Column; type += 2) {
            propertyItem(type)->titleLabel()->setMinimumWidth(widest);
        }
    }
    m_fitButton->setText(tr("Fit"));
    m_viewButton->setText(tr("Enlarge"));
}

QString PreviewWidget::propertyTitle(int type)
{
    switch (type) {
    case PropertyItem::Width:
        return tr("Width");
    case PropertyItem::Height:
        return tr("Height");
    case PropertyItem::XSpace:
        return tr("X space");
    case PropertyItem::YSpace:
        return tr("Y space");
    case PropertyItem::Scale:
        return tr("Scale");
    default:
        return tr("Column");
    }
}

QString PreviewWidget::propertyKey(int type)
{
    switch (type) {
    case PropertyItem::Width:
        return AppConfig::PROPERTY_WIDTH;
    case PropertyItem::Height:
        return AppConfig::PROPERTY_HEIGHT;
    case PropertyItem::XSpace:
        return AppConfig::PROPERTY_X_SPACE;
    case PropertyItem::YSpace:
        return AppConfig::PROPERTY_Y_SPACE;
    case PropertyItem::Scale:
        return AppConfig::PROPERTY_SCALE;
    default:
        return AppConfig::PROPERTY_COLUMN;
    }
}

void PreviewWidget::initPropertyItems()
{
    struct Field {
        int type;
        QString unit;
    };
    const QList<Field> fields{{PropertyItem::Width, QStringLiteral("px")}, {PropertyItem::Height, QStringLiteral("px")},
                              {PropertyItem::XSpace, QStringLiteral("px")}, {PropertyItem::YSpace, QStringLiteral("px")},
                              {PropertyItem::Scale, QStringLiteral("%")},   {PropertyItem::Column, QString()}};
    GlobalManager* manager = GlobalManager::instance();
    for (const Field& field : fields) {
        auto* item = new PropertyItem(field.type, propertyTitle(field.type), field.unit, this);
        const QString key = propertyKey(field.type);
        const QString value = Settings::instance()->inAppValue(key).toString();
        item->setText(value);
        manager->saveInAppSettings(key, value);
        m_propertyItems.insert(field.type, item);
        connect(item, &PropertyItem::valueChangedSignal, this, &PreviewWidget::propertyChangedHandle);
        connect(item, &PropertyItem::editFinishedSignal, this, [this](int type) {
            // Width and height snap to what the whole-percent scale really gives.
            if (type == PropertyItem::Width || type == PropertyItem::Height) {
                initScaleProperty();
            }
        });
    }
}

int PreviewWidget::propertyValue(int type) const
{
    const PropertyItem* item = m_propertyItems.value(type);
    return item ? item->getValue() : 0;
}

void PreviewWidget::propertyChangedHandle(int type, const QString& text)
{
    GlobalManager* manager = GlobalManager::instance();
    manager->saveInAppSettings(propertyKey(type), text);
    const QSize size = m_compositeSize;
    switch (type) {
    case PropertyItem::Width:
    case PropertyItem::Height: {
        if (size.isEmpty()) {
            return;
        }
        const int value = propertyItem(type)->getValue();
        const int scale = type == PropertyItem::Width ? qRound(value * 100.0 / size.width())
                                                      : qRound(value * 100.0 / size.height());
        const QString scaleText = QString::number(scale);
        propertyItem(PropertyItem::Scale)->setText(scaleText);
        manager->saveInAppSettings(AppConfig::PROPERTY_SCALE, scaleText);
        const int other = type == PropertyItem::Width ? PropertyItem::Height : PropertyItem::Width;
        const int otherValue = other == PropertyItem::Width ? static_cast<int>(size.width() * scale / 100.0f)
                                                            : static_cast<int>(size.height() * scale / 100.0f);
        propertyItem(other)->setText(QString::number(otherValue));
        manager->saveInAppSettings(propertyKey(other), QString::number(otherValue));
        break;
    }
    case PropertyItem::Scale:
        initScaleProperty();
        break;
    default:
        showImage();
        initScaleProperty();
        break;
    }
}

void PreviewWidget::updatePropertyEnabled()
{
    propertyItem(PropertyItem::XSpace)->setEnabled(m_radioType != Vertical);
    propertyItem(PropertyItem::YSpace)->setEnabled(m_radioType != Horizontal);
    propertyItem(PropertyItem::Column)->setEnabled(m_radioType == Grid);
}

void PreviewWidget::setRadioType(int type)
{
    m_radioType = type;
    if (QAbstractButton* button = m_radioGroup->button(type)) {
        button->setChecked(true);
    }
    updatePropertyEnabled();
    showImage();
    initScaleProperty();
}

SaveImageThread* PreviewWidget::saveImageThread() const
{
    return m_exporter->saveThread();
}

QImage PreviewWidget::composeImages(const QList<QPixmap>& pixmaps, int layoutType, int xSpace, int ySpace,
                                    int column)
{
    QList<QImage> images;
    images.reserve(pixmaps.size());
    for (const QPixmap& pixmap : pixmaps) {
        images.append(pixmap.isNull() ? QImage() : pixmap.toImage());
    }
    return ImageComposer::compose(images, layoutType, xSpace, ySpace, column);
}

QSize PreviewWidget::composeSize(const QList<ImageItem*>& items) const
{
    if (items.isEmpty() || !items.first()) {
        return QSize();
    }
    return ImageComposer(m_radioType, propertyValue(PropertyItem::XSpace), propertyValue(PropertyItem::YSpace),
                         propertyValue(PropertyItem::Column), items.size(), items.first()->getPixmap().size())
        .canvasSize();
}

bool PreviewWidget::fullSizeWanted() const
{
    return m_canvas->zoomType() == ImageCanvas::Actual || (m_viewDialog && m_viewDialog->isVisible());
}

QPixmap PreviewWidget::getGroupPixmap()
{
    const int S = propertyValue(PropertyItem::Scale);
    const int X = propertyValue(PropertyItem::XSpace);
    const int Y = propertyValue(PropertyItem::YSpace);
    const int M = propertyValue(PropertyItem::Column);
    qCDebug(lcImages) << "getGroupPixmap data" << S << X << Y;

    const QList<ImageItem*> items = GlobalManager::instance()->selectedImages();
    if (items.isEmpty()) {
        return QPixmap();
    }
    QList<QPixmap> pixmaps;
    pixmaps.reserve(items.size());
    for (ImageItem* item : items) {
        pixmaps.append(item ? item->getPixmap() : QPixmap());
    }
    const QPixmap composite = QPixmap::fromImage(composeImages(pixmaps, m_radioType, X, Y, M));
    // Kept only while it is on screen at 100 %: a tall stitch is hundreds of megabytes.
    m_groupPixmap = fullSizeWanted() ? composite : QPixmap();
    return composite;
}

void PreviewWidget::showImage()
{
    // The size follows the selection at once; the picture within kRefreshMs.
    const QList<ImageItem*> items = GlobalManager::instance()->selectedImages();
    m_compositeSize = composeSize(items);
    if (items.isEmpty()) {
        // The stored composite survives an empty selection, but nothing is shown.
        m_canvas->setPicture(QSize(), QPixmap());
        m_sizeLabel->clear();
    } else {
        m_canvas->setPicture(m_compositeSize, m_canvas->pixmap());
        m_sizeLabel->setText(QStringLiteral("%1x%2").arg(QString::number(m_compositeSize.width()),
                                                         QString::number(m_compositeSize.height())));
    }
    const bool canShow = !items.isEmpty() && !m_compositeSize.isEmpty();
    m_saveFileBar->exportButton()->setEnabled(canShow && !m_exporter->isRunning());
    m_viewButton->setEnabled(canShow);
    scheduleRefresh();
}

void PreviewWidget::scheduleRefresh()
{
    if (m_refreshTimer->isActive()) {
        return;
    }
    const qint64 since = m_sinceRefresh.isValid() ? m_sinceRefresh.elapsed() : qint64(kRefreshMs);
    if (since >= kRefreshMs) {
        refreshPicture();
    } else {
        m_refreshTimer->start(int(kRefreshMs - since));
    }
}

void PreviewWidget::refreshPicture()
{
    m_refreshTimer->stop();
    m_sinceRefresh.start();
    if (!fullSizeWanted()) {
        m_groupPixmap = QPixmap();
    }
    const QList<ImageItem*> items = GlobalManager::instance()->selectedImages();
    m_compositeSize = composeSize(items);
    if (m_compositeSize.isEmpty()) {
        m_canvas->setPicture(QSize(), QPixmap());
    } else if (fullSizeWanted()) {
        // The old canvas goes first, so that the new one reuses its memory.
        m_groupPixmap = QPixmap();
        m_canvas->setPicture(m_compositeSize, QPixmap());
        if (m_viewDialog && m_viewDialog->isVisible()) {
            m_viewDialog->changePixmap(QPixmap(), m_viewDialog->zoomType());
        }
        const QPixmap composite = getGroupPixmap();
        m_canvas->setPicture(composite.size(), composite);
        if (m_viewDialog && m_viewDialog->isVisible()) {
            m_viewDialog->changePixmap(composite, m_viewDialog->zoomType());
        }
    } else {
        m_canvas->setPicture(m_compositeSize, displayPixmap(items));
    }
    emit previewUpdated();
}

QPixmap PreviewWidget::displayPixmap(const QList<ImageItem*>& items)
{
    double factor = m_canvas->fitFactor(m_compositeSize);
    if (factor <= 0.0) {
        // No visible area yet: something of a screen's size.
        factor = qMin(1.0, 2048.0 / qMax(m_compositeSize.width(), m_compositeSize.height()));
    }
    // Each frame is drawn from its smallest reduced copy that is still as wide
    // as the frame on screen, so the cost follows the screen, not the frames.
    QList<QImage> copies;
    QList<QSize> sizes;
    copies.reserve(items.size());
    sizes.reserve(items.size());
    for (ImageItem* item : items) {
        const QPixmap frame = item->getPixmap();
        const int shownWidth = qCeil(factor * frame.width());
        sizes.append(frame.size());
        copies.append(shownWidth <= ImageItem::kThumbnailWidth ? item->thumbnail(shownWidth) : frame.toImage());
    }
    return QPixmap::fromImage(ImageComposer::composeScaled(copies, sizes, m_radioType,
                                                           propertyValue(PropertyItem::XSpace),
                                                           propertyValue(PropertyItem::YSpace),
                                                           propertyValue(PropertyItem::Column), factor));
}

void PreviewWidget::scrollToEnd()
{
    m_canvas->scrollToEnd();
}

void PreviewWidget::initScaleProperty()
{
    GlobalManager* manager = GlobalManager::instance();
    const int scale = propertyValue(PropertyItem::Scale);
    const bool empty = manager->selectedImages().isEmpty() || m_compositeSize.isEmpty();
    const int width = empty ? 0 : static_cast<int>(static_cast<float>(m_compositeSize.width() * scale) / 100.0f);
    const int height = empty ? 0 : static_cast<int>(static_cast<float>(m_compositeSize.height() * scale) / 100.0f);
    propertyItem(PropertyItem::Width)->setText(QString::number(width));
    propertyItem(PropertyItem::Height)->setText(QString::number(height));
    manager->saveInAppSettings(AppConfig::PROPERTY_WIDTH, QString::number(width));
    manager->saveInAppSettings(AppConfig::PROPERTY_HEIGHT, QString::number(height));
}

void PreviewWidget::changeOutputDir(const QString& dir)
{
    m_saveFileBar->changeOutputDir(dir);
}

void PreviewWidget::changeFileExtension(const QString& ext)
{
    m_saveFileBar->changeFileExtension(ext);
}

void PreviewWidget::exportButtonClickHandle()
{
    if (m_exporter->isRunning()) {
        return;
    }
    // A format that cannot hold the picture is refused before anything is composed or written.
    const QSize size = composeSize(GlobalManager::instance()->selectedImages());
    const int scale = propertyValue(PropertyItem::Scale);
    if (!size.isEmpty() && scale > 0) {
        const double factor = static_cast<int>(static_cast<float>(size.width() * scale) / 100.0f)
                              / double(size.width());
        const QSize written(qRound(size.width() * factor), qRound(size.height() * factor));
        const QString problem = PictureWriter::formatProblem(
            Settings::instance()->value(AppConfig::FILE_EXTENSION).toString(), written);
        if (!written.isEmpty() && !problem.isEmpty()) {
            emit exportFinishedSignal({}, {problem});
            return;
        }
    }
    QPixmap composite = getGroupPixmap();
    if (composite.isNull()) {
        return;
    }
    GlobalManager* manager = GlobalManager::instance();
    if (!manager->isRegister()) {
        GlobalManager::changePixmapWithWaterMark(composite, AppConfig::APP_NAME);
    }
    const int width = static_cast<int>(static_cast<float>(composite.width() * scale) / 100.0f);
    // Scale 100 keeps the composite as it is; no resampling pass.
    const QPixmap picture = width == composite.width() ? composite
                            : width > 0 ? QPixmap::fromImage(ImageComposer::scaledToWidth(composite.toImage(), width))
                                        : QPixmap();
    if (picture.isNull()) {
        emit exportFinishedSignal({}, {tr("The scale is 0: there is no picture to export.")});
        return;
    }
    m_exporter->start({picture}, true);
}

void PreviewWidget::registerGuideClosedHandle()
{
    m_exporter->registerGuideClosedHandle();
}

void PreviewWidget::changeZoomHandle(int zoomType)
{
    m_canvas->setZoomType(zoomType);
    m_fitButton->setChecked(zoomType == ImageCanvas::Fit);
    m_actualButton->setChecked(zoomType == ImageCanvas::Actual);
    // 100 % needs the full-size composite; fitted, it is let go.
    refreshPicture();
}

void PreviewWidget::showViewDialogHandle()
{
    if (m_compositeSize.isEmpty() || GlobalManager::instance()->selectedImages().isEmpty()) {
        return;
    }
    if (!m_viewDialog) {
        m_viewDialog = new ImageViewDialog(this);
        connect(m_viewDialog, &ImageViewDialog::exportButtonTap, this, &PreviewWidget::exportButtonClickHandle);
        connect(m_exporter, &ImageExporter::exportStarted, m_viewDialog, [this]() {
            m_viewDialog->showProgressBar(true);
            m_viewDialog->setButtonEnabled(false);
        });
        connect(m_exporter, &ImageExporter::exportProgress, m_viewDialog, &ImageViewDialog::changeProgress);
        connect(m_exporter, &ImageExporter::writingFinished, m_viewDialog, [this]() {
            m_viewDialog->showProgressBar(false);
            m_viewDialog->setButtonEnabled(true);
        });
        // Closed, the enlarged view lets its full-size picture go.
        connect(m_viewDialog, &QDialog::finished, this, [this]() {
            m_viewDialog->changePixmap(QPixmap(), ImageCanvas::Fit);
            refreshPicture();
        });
    }
    m_viewDialog->changePixmap(QPixmap(), ImageCanvas::Fit);
    m_viewDialog->show();
    m_viewDialog->activateWindow();
    m_viewDialog->raise();
    refreshPicture();
}

void PreviewWidget::quitAppFinishEvent()
{
    if (m_viewDialog) {
        m_viewDialog->hide();
    }
    saveImageThread()->wait();
}

void PreviewWidget::setExporting(bool exporting)
{
    m_progressBar->setVisible(exporting);
    if (exporting) {
        m_progressBar->setRange(0, 0);
    }
    m_saveFileBar->setButtonEnabled(!exporting);
    m_saveFileBar->exportButton()->setEnabled(!exporting && !m_compositeSize.isEmpty()
                                              && !GlobalManager::instance()->selectedImages().isEmpty());
    for (PropertyItem* item : qAsConst(m_propertyItems)) {
        item->setEnabled(!exporting);
    }
    for (QAbstractButton* button : m_radioGroup->buttons()) {
        button->setEnabled(!exporting);
    }
    if (!exporting) {
        updatePropertyEnabled();
    }
}

void PreviewWidget::updateImageShow()
{
    showImage();
}

void PreviewWidget::resetEditStatus()
{
    QWidget* focused = QApplication::focusWidget();
    if (focused && isAncestorOf(focused)) {
        focused->clearFocus();
    }
}
