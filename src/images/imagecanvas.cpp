#include "imagecanvas.h"

#include "imagecomposer.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

namespace {
// Smooth scaling in the raster engine steps through the source in 16.16 fixed
// point: a source past this many pixels on a side is reduced first.
constexpr int kSmoothSourceLimit = 16383;
} // namespace

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
        const QPixmap& pixmap = m_owner->m_reduced.isNull() ? m_owner->m_pixmap : m_owner->m_reduced;
        if (pixmap.isNull() || m_owner->m_size.isEmpty()) {
            return;
        }
        QPainter painter(this);
        // Screen pixels per pixel of what is drawn.
        const double f = m_owner->m_factor * m_owner->m_size.width() / pixmap.width();
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
    setPicture(pixmap.size(), pixmap);
}

void ImageCanvas::setPicture(const QSize& size, const QPixmap& shown)
{
    m_size = shown.isNull() && size.isEmpty() ? QSize() : size;
    m_pixmap = shown;
    m_reduced = QPixmap();
    changeSizeByWindow();
    m_surface->update();
}

void ImageCanvas::setZoomType(int type)
{
    m_zoomType = type == Actual ? Actual : Fit;
    changeSizeByWindow();
    m_surface->update();
}

double ImageCanvas::fitFactor(const QSize& size) const
{
    if (size.isEmpty()) {
        return 1.0;
    }
    const QSize area = maximumViewportSize();
    // Never enlarge a small picture: fitting only shrinks.
    return qMin(1.0, qMin(area.width() / double(size.width()), area.height() / double(size.height())));
}

void ImageCanvas::changeSizeByWindow()
{
    if (m_size.isEmpty()) {
        m_factor = 1.0;
        m_reduced = QPixmap();
        m_surface->resize(0, 0);
        emit zoomChangedSignal(m_zoomType, m_factor);
        return;
    }
    m_factor = m_zoomType == Actual ? 1.0 : fitFactor(m_size);
    const QSize target(qMax(1, qRound(m_size.width() * m_factor)), qMax(1, qRound(m_size.height() * m_factor)));
    const bool huge = qMax(m_pixmap.width(), m_pixmap.height()) > kSmoothSourceLimit;
    if (huge && m_factor < 1.0) {
        // Twice the shown size, so that the smooth pass at paint time still averages.
        if (m_reduced.isNull() || m_reduced.width() < target.width() || m_reduced.width() > 2 * target.width()) {
            m_reduced = QPixmap::fromImage(
                ImageComposer::scaledToWidth(m_pixmap.toImage(), qMin(m_pixmap.width(), 2 * target.width())));
        }
    } else {
        m_reduced = QPixmap();
    }
    m_surface->resize(target);
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
    emit areaResized();
}
