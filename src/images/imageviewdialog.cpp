#include "imageviewdialog.h"

#include "appconfig.h"
#include "imagecanvas.h"
#include "translatemanager.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

ImageViewDialog::ImageViewDialog(QWidget* parent)
    : QDialog(parent)
    , m_canvas(new ImageCanvas(this))
    , m_fitButton(new QPushButton(this))
    , m_actualButton(new QPushButton(QStringLiteral("100%"), this))
    , m_exportButton(new QPushButton(this))
    , m_sizeLabel(new QLabel(this))
    , m_progressBar(new QProgressBar(this))
{
    setObjectName(QStringLiteral("image_view_dialog"));
    resize(AppConfig::rate(QSize(900, 640)));

    m_fitButton->setCheckable(true);
    m_actualButton->setCheckable(true);
    auto* group = new QButtonGroup(this);
    group->addButton(m_fitButton, ImageCanvas::Fit);
    group->addButton(m_actualButton, ImageCanvas::Actual);
    connect(group, &QButtonGroup::idClicked, m_canvas, &ImageCanvas::setZoomType);
    connect(m_exportButton, &QPushButton::clicked, this, [this]() { emit exportButtonTap(QString()); });

    m_progressBar->setTextVisible(false);
    m_progressBar->setFixedHeight(AppConfig::rate(4));
    m_progressBar->hide();

    auto* bar = new QHBoxLayout();
    bar->addWidget(m_sizeLabel);
    bar->addStretch(1);
    bar->addWidget(m_fitButton);
    bar->addWidget(m_actualButton);
    bar->addWidget(m_exportButton);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_canvas, 1);
    layout->addWidget(m_progressBar);
    layout->addLayout(bar);
    connect(TranslateManager::instance(), &TranslateManager::notify, this, &ImageViewDialog::retranslate);
    retranslate();
}

void ImageViewDialog::retranslate()
{
    setWindowTitle(tr("Preview"));
    m_fitButton->setText(tr("Fit"));
    m_exportButton->setText(tr("Export"));
}

void ImageViewDialog::changePixmap(const QPixmap& pixmap, int zoomType)
{
    m_canvas->setPixmap(pixmap);
    m_canvas->setZoomType(zoomType);
    m_fitButton->setChecked(m_canvas->zoomType() == ImageCanvas::Fit);
    m_actualButton->setChecked(m_canvas->zoomType() == ImageCanvas::Actual);
    m_sizeLabel->setText(QStringLiteral("%1x%2").arg(QString::number(pixmap.width()), QString::number(pixmap.height())));
    m_exportButton->setEnabled(!pixmap.isNull());
}

int ImageViewDialog::zoomType() const
{
    return m_canvas->zoomType();
}

void ImageViewDialog::showProgressBar(bool show)
{
    m_progressBar->setRange(0, 0);
    m_progressBar->setVisible(show);
}

void ImageViewDialog::changeProgress(int index, int total)
{
    m_progressBar->setRange(0, total);
    m_progressBar->setValue(index + 1);
}

void ImageViewDialog::setButtonEnabled(bool enabled)
{
    m_exportButton->setEnabled(enabled);
    m_fitButton->setEnabled(enabled);
    m_actualButton->setEnabled(enabled);
}
