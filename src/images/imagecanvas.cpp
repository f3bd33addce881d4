#include "imagecanvas.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

class ImageCanvas::Surface : public QWidget
{
public:
    explicit Surface(ImageCanvas* owner)
        : QWidget(nullptr)
        , m_owner(owner)
    {
        setAttribute(Qt::WA_OpaquePaintEvent, false);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        const QPixmap& pixmap = m_owner->m_pixmap;
        if (pixmap.isNull()) {
            return;
        }
        QPainter painter(this);
        const double f = m_owner->m_factor;
        if (qFuzzyCompare(f, 1.0)) {
            painter.drawPixmap(event->rect(), pixmap, event->rect());
            return;
        }
        painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
        painter.scale(f, f);
        // Only the exposed part is resampled.
        const QRectF source = QRectF(event->rect()).adjusted(-1, -1, 1, 1);
        const QRectF visible(source.x() / f, source.y() / f, source.width() / f, source.height() / f);
        painter.drawPixmap(visible, pixmap, visible);
    }

private:
    ImageCanvas* m_owner;
};

ImageCanvas::ImageCanvas(QWidget* parent)
    : QScrollArea(parent)
    , m_surface(new Surface(this))
{
    setObjectName(QStringLiteral("image_canvas"));
    setAlignment(Qt::AlignCenter);
    setWidgetResizable(false);
    setWidget(m_surface);
    m_surface->resize(0, 0);
}

void ImageCanvas::setPixmap(const QPixmap& pixmap)
{
    m_pixmap = pixmap;
    changeSizeByWindow();
    m_surface->update();
}

void ImageCanvas::setZoomType(int type)
{
    m_zoomType = type == Actual ? Actual : Fit;
    changeSizeByWindow();
    m_surface->update();
}

void ImageCanvas::changeSizeByWindow()
{
    if (m_pixmap.isNull()) {
        m_factor = 1.0;
        m_surface->resize(0, 0);
        emit zoomChangedSignal(m_zoomType, m_factor);
        return;
    }
    const QSize size = m_pixmap.size();
    if (m_zoomType == Actual) {
        m_factor = 1.0;
    } else {
        const QSize area = maximumViewportSize();
        // Never enlarge a small picture: fitting only shrinks.
        m_factor = qMin(1.0, qMin(area.width() / double(size.width()), area.height() / double(size.height())));
    }
    m_surface->resize(qMax(1, qRound(size.width() * m_factor)), qMax(1, qRound(size.height() * m_factor)));
    emit zoomChangedSignal(m_zoomType, m_factor);
}

void ImageCanvas::scrollToEnd()
{
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    horizontalScrollBar()->setValue(horizontalScrollBar()->maximum());
}

void ImageCanvas::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    if (m_zoomType == Fit) {
        changeSizeByWindow();
    }
}
