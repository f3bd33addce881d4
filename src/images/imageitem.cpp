#include "imageitem.h"

#include "appconfig.h"
#include "logcategories.h"
#include "translatemanager.h"

#include <QCheckBox>
#include <QDebug>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

ImageItem::ImageItem(QWidget* parent)
    : QWidget(parent)
    , m_imageLabel(new QLabel(this))
    , m_checkBox(new QCheckBox(this))
    , m_deleteButton(new QPushButton(this))
{
    setObjectName(QStringLiteral("image_item_widget"));
    setAttribute(Qt::WA_StyledBackground, true);

    // The label shows the reduced copy, scaled to the item when it paints.
    m_imageLabel->setScaledContents(true);
    m_imageLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    m_imageLabel->installEventFilter(this);

    m_deleteButton->setObjectName(QStringLiteral("noborder"));
    QIcon icon(QStringLiteral(":/images/imageview/delete3.png"));
    if (icon.isNull()) {
        icon = style()->standardIcon(QStyle::SP_TrashIcon);
    }
    m_deleteButton->setIcon(icon);
    m_deleteButton->setIconSize(AppConfig::rate(QSize(16, 16)));
    m_deleteButton->setCursor(Qt::PointingHandCursor);
    m_deleteButton->setToolTip(tr("Delete"));
    connect(TranslateManager::instance(), &TranslateManager::notify, m_deleteButton,
            [this]() { m_deleteButton->setToolTip(tr("Delete")); });
    m_checkBox->setCursor(Qt::PointingHandCursor);

    // Check box and delete button float over the top of the picture.
    auto* overlay = new QHBoxLayout();
    overlay->setContentsMargins(AppConfig::rate(4), AppConfig::rate(4), AppConfig::rate(4), 0);
    overlay->addWidget(m_checkBox, 0, Qt::AlignLeft | Qt::AlignTop);
    overlay->addStretch(1);
    overlay->addWidget(m_deleteButton, 0, Qt::AlignRight | Qt::AlignTop);

    auto* labelLayout = new QVBoxLayout(m_imageLabel);
    labelLayout->setContentsMargins(0, 0, 0, 0);
    labelLayout->addLayout(overlay);
    labelLayout->addStretch(1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(m_imageLabel);

    // The frame follows every state change; only a user's click is announced, so
    // that setSelect() from code never echoes back as a selection event.
    connect(m_checkBox, &QCheckBox::toggled, this, &ImageItem::setSelect);
    connect(m_checkBox, &QCheckBox::clicked, this, &ImageItem::selectedSignal);
    connect(m_deleteButton, &QPushButton::clicked, this, &ImageItem::deleteSignal);
}

void ImageItem::changeImageByPixmap(const QPixmap& pixmap)
{
    m_pixmap = pixmap;
    m_thumbnail = pixmap.width() > kThumbnailWidth
                      ? QPixmap::fromImage(pixmap.toImage().scaledToWidth(kThumbnailWidth, Qt::SmoothTransformation))
                      : pixmap;
    m_mini = m_thumbnail.width() > kMiniWidth
                 ? QPixmap::fromImage(m_thumbnail.toImage().scaledToWidth(kMiniWidth, Qt::SmoothTransformation))
                 : m_thumbnail;
    m_imageLabel->setPixmap(m_thumbnail);
}

void ImageItem::shareImage(const ImageItem& source)
{
    m_pixmap = source.m_pixmap;
    m_thumbnail = source.m_thumbnail;
    m_mini = source.m_mini;
    m_imageLabel->setPixmap(m_thumbnail);
}

QImage ImageItem::thumbnail(int width) const
{
    // Raster pixmaps hand out their pixels without a copy.
    return (width <= m_mini.width() ? m_mini : m_thumbnail).toImage();
}

void ImageItem::setSelect(bool select)
{
    if (m_checkBox->isChecked() != select) {
        m_checkBox->setChecked(select);
    }
    setStyleSheet(select ? QStringLiteral("QWidget#image_item_widget{border: 1px solid #008cf1;}")
                         : QString());
}

bool ImageItem::isSelect() const
{
    return m_checkBox->isChecked();
}

void ImageItem::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    qCDebug(lcImages) << "checkbox->" << width() << m_checkBox->width();
}

bool ImageItem::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_imageLabel && event->type() == QEvent::MouseButtonRelease) {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() == Qt::LeftButton && m_imageLabel->rect().contains(mouse->pos())) {
            emit clickedSignal();
        }
    }
    return QWidget::eventFilter(watched, event);
}
