#include "imageswidget.h"

#include "confirmation.h"
#include "globalmanager.h"
#include "imageexporter.h"
#include "imageitem.h"
#include "imagelistviewdialog.h"
#include "logcategories.h"
#include "saveimagethread.h"

#include <QCheckBox>
#include <QDebug>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

ImagesWidget::ImagesWidget(QWidget* parent)
    : BaseWidget(parent)
    , m_scrollArea(new QScrollArea(this))
    , m_stripWidget(new QWidget())
    , m_stripLayout(new QHBoxLayout(m_stripWidget))
    , m_countLabel(new QLabel(this))
    , m_selectAllBox(new QCheckBox(this))
    , m_showButton(new QPushButton(this))
    , m_clearButton(new QPushButton(this))
    , m_applyStyleButton(new QPushButton(this))
    , m_exporter(new ImageExporter(this))
{
    setObjectName(QStringLiteral("images_widget"));
    setAttribute(Qt::WA_StyledBackground, true);

    m_stripLayout->setContentsMargins(AppConfig::rate(6), AppConfig::rate(6), AppConfig::rate(6), AppConfig::rate(6));
    m_stripLayout->setSpacing(AppConfig::rate(8));
    m_stripLayout->addStretch(1);
    m_scrollArea->setWidget(m_stripWidget);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollArea->setFrameShape(QFrame::NoFrame);

    // List view and clear are icons named by their tooltips: the column keeps
    // its width for the style button in every language.
    m_showButton->setIcon(QIcon(QStringLiteral(":/images/imageview/list.svg")));
    m_showButton->setIconSize(AppConfig::rate(QSize(16, 16)));
    m_showButton->setProperty("iconOnly", true);
    m_clearButton->setIcon(QIcon(QStringLiteral(":/images/caption/trash.svg")));
    m_clearButton->setIconSize(AppConfig::rate(QSize(16, 16)));
    m_clearButton->setProperty("iconOnly", true);

    auto* header = new QHBoxLayout();
    header->setSpacing(AppConfig::rate(4));
    header->addWidget(m_selectAllBox);
    header->addWidget(m_countLabel);
    header->addStretch(1);
    header->addWidget(m_applyStyleButton);
    header->addWidget(m_showButton);
    header->addWidget(m_clearButton);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(4), AppConfig::rate(4), AppConfig::rate(4), AppConfig::rate(4));
    layout->setSpacing(AppConfig::rate(4));
    layout->addLayout(header);
    layout->addWidget(m_scrollArea, 1);

    connect(m_selectAllBox, &QCheckBox::clicked, this, &ImagesWidget::selectAll);
    connect(m_showButton, &QPushButton::clicked, this, &ImagesWidget::showButtonClickedHandle);
    connect(m_clearButton, &QPushButton::clicked, this, &ImagesWidget::askAndClear);
    connect(m_applyStyleButton, &QPushButton::clicked, this, &ImagesWidget::applyStyleSignal);
    connect(m_exporter, &ImageExporter::showRegisterGuide, this, &ImagesWidget::showRegisterGuide);
    connect(m_exporter, &ImageExporter::exportFinished, this, &ImagesWidget::exportFinishedSignal);

    initListViewDialog();
    retranslate();
}

void ImagesWidget::changeLang(int type)
{
    Q_UNUSED(type)
    retranslate();
}

void ImagesWidget::retranslate()
{
    m_selectAllBox->setText(tr("Select all"));
    m_showButton->setToolTip(tr("List view"));
    m_showButton->setAccessibleName(m_showButton->toolTip());
    m_clearButton->setToolTip(tr("Clear"));
    m_clearButton->setAccessibleName(m_clearButton->toolTip());
    m_applyStyleButton->setText(tr("Apply Current Style"));
    m_applyStyleButton->setToolTip(tr("Capture every frame again with the current caption style"));
    m_countLabel->setText(tr("%n frame(s)", nullptr, m_items.size()));
}

ImagesWidget::~ImagesWidget()
{
    // The shared selection must never point at items that are gone.
    QList<ImageItem*>& selected = GlobalManager::instance()->selectedImages();
    for (ImageItem* item : qAsConst(m_items)) {
        selected.removeAll(item);
    }
}

SaveImageThread* ImagesWidget::saveImageThread() const
{
    return m_exporter->saveThread();
}

void ImagesWidget::addImage(const QVariant& value)
{
    addImage(value.value<AppConfig::CaptureData>());
}

void ImagesWidget::addImage(const AppConfig::CaptureData& data)
{
    qCDebug(lcImages) << "addImage:" << data.time << data.frame;
    ImageItem* item = createItem(data, true);
    // Before the trailing stretch, so the strip stays packed to the left.
    m_stripLayout->insertWidget(m_stripLayout->count() - 1, item);
    m_items.append(item);

    QTimer::singleShot(100, this, [this]() {
        m_scrollArea->horizontalScrollBar()->setValue(m_scrollArea->horizontalScrollBar()->maximum());
    });
    checkSelectImages();
    refreshListView();
}

ImageItem* ImagesWidget::createItem(const AppConfig::CaptureData& data, bool selected)
{
    auto* item = new ImageItem(m_stripWidget);
    item->changeImageByPixmap(data.pixmap);
    item->setCaptureTime(data.time);
    item->setFrame(data.frame);
    item->setSelect(selected);

    const int width = AppConfig::rate(150);
    const int pixmapWidth = data.pixmap.width();
    if (pixmapWidth <= 0) {
        qCWarning(lcImages) << "addImage: empty frame";
    }
    const int height = pixmapWidth > 0
                           ? static_cast<int>(data.pixmap.height() * (width / static_cast<float>(pixmapWidth)))
                           : 0;
    item->setFixedSize(width, height);

    connect(item, &ImageItem::selectedSignal, this, [this]() {
        checkSelectImages();
        refreshListView();
    });
    connect(item, &ImageItem::deleteSignal, this, [this, item]() {
        const int position = m_items.indexOf(item);
        if (position >= 0) {
            emit framesRemoved({frameAt(position)});
        }
        removeItem(item);
        checkSelectImages();
        refreshListView();
    });
    return item;
}

ImagesWidget::Frame ImagesWidget::frameAt(int position) const
{
    const ImageItem* item = m_items.at(position);
    Frame frame;
    frame.position = position;
    frame.data.pixmap = item->getPixmap();
    frame.data.time = item->getCpatureTime();
    frame.data.frame = item->getFrame();
    frame.selected = item->isSelect();
    return frame;
}

void ImagesWidget::restoreFrames(const QList<Frame>& frames)
{
    for (const Frame& frame : frames) {
        const int position = qBound(0, frame.position, m_items.size());
        ImageItem* item = createItem(frame.data, frame.selected);
        m_stripLayout->insertWidget(position, item);
        m_items.insert(position, item);
    }
    checkSelectImages();
    refreshListView();
}

void ImagesWidget::removeFrames(const QList<int>& positions)
{
    QList<ImageItem*> doomed;
    for (int position : positions) {
        if (position >= 0 && position < m_items.size()) {
            doomed.append(m_items.at(position));
        }
    }
    for (ImageItem* item : qAsConst(doomed)) {
        removeItem(item);
    }
    checkSelectImages();
    refreshListView();
}

void ImagesWidget::setFramePixmaps(const QList<int>& positions, const QList<QPixmap>& pixmaps)
{
    for (int i = 0; i < positions.size() && i < pixmaps.size(); ++i) {
        if (positions.at(i) >= 0 && positions.at(i) < m_items.size()) {
            m_items.at(positions.at(i))->changeImageByPixmap(pixmaps.at(i));
        }
    }
    updateImageShow();
}

void ImagesWidget::checkSelectImages()
{
    QList<ImageItem*>& selected = GlobalManager::instance()->selectedImages();
    selected.clear();
    bool all = !m_items.isEmpty();
    for (ImageItem* item : qAsConst(m_items)) {
        if (item->isSelect()) {
            selected.append(item);
        } else {
            all = false;
        }
    }
    m_selectAllBox->setChecked(all);
    m_countLabel->setText(tr("%n frame(s)", nullptr, m_items.size()));
    GlobalManager::instance()->emitEvent(AppConfig::SELECT_IMAGE_COMPLETE, QString());
}

void ImagesWidget::selectAll(bool selected)
{
    for (ImageItem* item : qAsConst(m_items)) {
        const bool blocked = item->blockSignals(true);
        item->setSelect(selected);
        item->blockSignals(blocked);
    }
    checkSelectImages();
}

void ImagesWidget::updateByPixmapList(const QList<QPixmap>& pixmaps)
{
    for (int i = 0; i < m_items.size() && i < pixmaps.size(); ++i) {
        m_items.at(i)->changeImageByPixmap(pixmaps.at(i));
    }
    checkSelectImages();
    refreshListView();
}

void ImagesWidget::removeItem(ImageItem* item)
{
    if (!m_items.removeOne(item)) {
        return;
    }
    m_stripLayout->removeWidget(item);
    item->hide();
    // Later: the item's own button is the sender of the signal that led here.
    item->deleteLater();
}

void ImagesWidget::askAndClear()
{
    if (!m_items.isEmpty()
        && !Confirmation::ask(window(), tr("Clear frames"),
                              tr("Remove all %Ln frames?", nullptr, m_items.size()), tr("Remove"))) {
        return;
    }
    clearButtonClickedHandle();
}

void ImagesWidget::clearButtonClickedHandle()
{
    if (!m_items.isEmpty()) {
        QList<Frame> frames;
        for (int i = 0; i < m_items.size(); ++i) {
            frames.append(frameAt(i));
        }
        emit framesRemoved(frames);
    }
    m_listViewDialog->clearImageList();
    const QList<ImageItem*> items = m_items;
    for (ImageItem* item : items) {
        removeItem(item);
    }
    m_items.clear();
    checkSelectImages();
}

void ImagesWidget::showButtonClickedHandle()
{
    m_listViewDialog->showImageList(m_items);
    m_listViewDialog->show();
    m_listViewDialog->activateWindow();
    m_listViewDialog->raise();
}

void ImagesWidget::updateImageShow()
{
    checkSelectImages();
    m_listViewDialog->showImageList(m_items);
}

void ImagesWidget::refreshListView()
{
    if (m_listViewDialog->isVisible()) {
        m_listViewDialog->showImageList(m_items);
    }
}

void ImagesWidget::clickImageHandle(const QPixmap& pixmap)
{
    auto* label = new QLabel();
    label->setAttribute(Qt::WA_DeleteOnClose);
    label->setScaledContents(true);
    label->setPixmap(pixmap);
    if (QScreen* screen = QGuiApplication::primaryScreen()) {
        const QSize size = pixmap.size().scaled(screen->availableSize() * 0.8, Qt::KeepAspectRatio);
        label->resize(size);
        label->move(screen->availableGeometry().center() - QPoint(size.width() / 2, size.height() / 2));
    }
    label->show();
}

void ImagesWidget::initListViewDialog()
{
    m_listViewDialog = new ImageListViewDialog(this);
    connect(m_listViewDialog, &ImageListViewDialog::deleteImage, this, [this](ImageItem* item) {
        const int position = m_items.indexOf(item);
        if (position >= 0) {
            emit framesRemoved({frameAt(position)});
        }
        removeItem(item);
        checkSelectImages();
    });
    connect(m_listViewDialog, &ImageListViewDialog::selectImage, this, [this](bool selected, ImageItem* item) {
        if (m_items.contains(item)) {
            const bool blocked = item->blockSignals(true);
            item->setSelect(selected);
            item->blockSignals(blocked);
        }
        checkSelectImages();
    });
    connect(m_listViewDialog, &ImageListViewDialog::selectAllSignal, this, &ImagesWidget::selectAll);
    connect(m_listViewDialog, &ImageListViewDialog::deleteAllSignal, this, &ImagesWidget::askAndClear);
    connect(m_listViewDialog, &ImageListViewDialog::exportButtonTap, this, &ImagesWidget::exportSelectedHandle);

    connect(m_exporter, &ImageExporter::exportStarted, m_listViewDialog, [this]() {
        m_listViewDialog->showProgressBar(true);
        m_listViewDialog->setButtonEnabled(false);
    });
    connect(m_exporter, &ImageExporter::exportProgress, m_listViewDialog, &ImageListViewDialog::changeProgress);
    connect(m_exporter, &ImageExporter::writingFinished, m_listViewDialog, [this]() {
        m_listViewDialog->showProgressBar(false);
        m_listViewDialog->setButtonEnabled(true);
    });
}

void ImagesWidget::exportSelectedHandle(const QString& ext)
{
    Q_UNUSED(ext)
    QList<QPixmap> pixmaps;
    for (ImageItem* item : GlobalManager::instance()->selectedImages()) {
        pixmaps.append(item->getPixmap());
    }
    if (pixmaps.isEmpty()) {
        emit exportFinishedSignal({}, {tr("No frame is selected.")});
        return;
    }
    m_exporter->start(pixmaps);
}

void ImagesWidget::registerGuideClosedHandle()
{
    m_exporter->registerGuideClosedHandle();
}

void ImagesWidget::quitAppFinishEvent()
{
    m_listViewDialog->hide();
    m_listViewDialog->deleteLater();
    m_listViewDialog = nullptr;
    saveImageThread()->wait();
}
