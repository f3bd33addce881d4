#include "imagelistviewdialog.h"

#include "appconfig.h"
#include "imageitem.h"
#include "savefilebar.h"
#include "screenmanager.h"
#include "translatemanager.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

ImageListViewDialog::ImageListViewDialog(QWidget* parent)
    : QDialog(parent)
    , m_scrollArea(new QScrollArea(this))
    , m_container(new QWidget())
    , m_gridLayout(new QGridLayout(m_container))
    , m_saveFileBar(new SaveFileBar(true, this))
    , m_progressBar(new QProgressBar(this))
    , m_deleteAllButton(new QPushButton(this))
{
    setObjectName(QStringLiteral("image_list_view_dialog"));
    resize(AppConfig::rate(QSize(900, 600)));

    m_gridLayout->setSpacing(AppConfig::rate(10));
    m_gridLayout->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_scrollArea->setWidget(m_container);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    m_progressBar->setTextVisible(false);
    m_progressBar->setFixedHeight(AppConfig::rate(4));
    m_progressBar->hide();

    auto* top = new QHBoxLayout();
    top->addStretch(1);
    top->addWidget(m_deleteAllButton);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, AppConfig::rate(6), 0, 0);
    layout->addLayout(top);
    layout->addWidget(m_scrollArea, 1);
    layout->addWidget(m_progressBar);
    layout->addWidget(m_saveFileBar);

    connect(m_saveFileBar, &SaveFileBar::selectAllSignal, this, [this](bool checked) {
        for (ImageItem* item : qAsConst(m_items)) {
            item->setSelect(checked);
        }
        emit selectAllSignal(checked);
    });
    connect(m_saveFileBar, &SaveFileBar::exportButtonTap, this, &ImageListViewDialog::exportButtonTap);
    connect(m_deleteAllButton, &QPushButton::clicked, this, &ImageListViewDialog::deleteAllSignal);
    connect(TranslateManager::instance(), &TranslateManager::notify, this, &ImageListViewDialog::retranslate);
    retranslate();
}

void ImageListViewDialog::retranslate()
{
    setWindowTitle(tr("Captured frames"));
    m_deleteAllButton->setText(tr("Delete all"));
}

void ImageListViewDialog::showImageList(const QList<ImageItem*>& items)
{
    clearImageList();
    const int width = AppConfig::rate(200);
    for (ImageItem* source : items) {
        auto* item = new ImageItem(m_container);
        const QPixmap pixmap = source->getPixmap();
        item->shareImage(*source); // the strip's pixels, not scaled again
        item->setSelect(source->isSelect());
        const int height = pixmap.width() > 0
                               ? static_cast<int>(pixmap.height() * (width / static_cast<float>(pixmap.width())))
                               : 0;
        item->setFixedSize(width, height);
        m_items.append(item);
        m_sourceOf.insert(item, source);
        connect(item, &ImageItem::selectedSignal, this, [this, item](bool selected) {
            updateSelectAllBox();
            emit selectImage(selected, m_sourceOf.value(item));
        });
        connect(item, &ImageItem::deleteSignal, this, [this, item]() {
            ImageItem* source = m_sourceOf.take(item);
            m_items.removeOne(item);
            m_gridLayout->removeWidget(item);
            item->hide();
            item->deleteLater();
            changeSizeByWindow();
            updateSelectAllBox();
            emit deleteImage(source);
        });
    }
    updateSelectAllBox();
    changeSizeByWindow();
}

void ImageListViewDialog::clearImageList()
{
    for (ImageItem* item : qAsConst(m_items)) {
        m_gridLayout->removeWidget(item);
        item->hide();
        // Later: the item may be the sender of the signal that led here.
        item->deleteLater();
    }
    m_items.clear();
    m_sourceOf.clear();
    updateSelectAllBox();
}

void ImageListViewDialog::changeSizeByWindow()
{
    for (ImageItem* item : qAsConst(m_items)) {
        m_gridLayout->removeWidget(item);
    }
    if (m_items.isEmpty()) {
        return;
    }
    const int itemWidth = qMax(1, m_items.first()->width());
    const double rate = ScreenManager::instance()->getCurrentRate();
    int columns = (width() - static_cast<int>(20 / (rate > 0 ? rate : 1.0)) + 2 * AppConfig::rate(10)) / itemWidth;
    columns = qBound(1, columns, m_items.size());
    for (int i = 0; i < m_items.size(); ++i) {
        m_gridLayout->addWidget(m_items.at(i), i / columns, i % columns);
    }
}

void ImageListViewDialog::showProgressBar(bool show)
{
    m_progressBar->setRange(0, 0);
    m_progressBar->setVisible(show);
}

void ImageListViewDialog::changeProgress(int index, int total)
{
    m_progressBar->setRange(0, total);
    m_progressBar->setValue(index + 1);
}

void ImageListViewDialog::setButtonEnabled(bool enabled)
{
    m_saveFileBar->setButtonEnabled(enabled);
    m_deleteAllButton->setEnabled(enabled);
}

void ImageListViewDialog::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    changeSizeByWindow();
}

void ImageListViewDialog::updateSelectAllBox()
{
    bool all = !m_items.isEmpty();
    for (ImageItem* item : qAsConst(m_items)) {
        all = all && item->isSelect();
    }
    m_saveFileBar->setSelectAllChecked(all);
}
