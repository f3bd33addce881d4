#include "imagecomposer.h"

#include "logcategories.h"

#include <QDebug>
#include <QMutex>
#include <QMutexLocker>
#include <QPainter>
#include <QtMath>

#include <cstdlib>
#include <cstring>
#include <limits>

namespace {
// Canvas memory is recycled: a fresh buffer of a few hundred megabytes costs more
// in page faults than the whole stitch. The last released canvas is kept as a
// spare and reused when it fits, so recomposing (every property edit) writes
// into memory that is already mapped. The pool is never destroyed, so a canvas
// released during exit still finds it.
struct CanvasBuffer {
    uchar* data;
    qsizetype size;
};

struct CanvasPool {
    QMutex mutex;
    CanvasBuffer* spare = nullptr;
};

CanvasPool* canvasPool()
{
    static auto* pool = new CanvasPool();
    return pool;
}

void releaseCanvas(void* info)
{
    auto* buffer = static_cast<CanvasBuffer*>(info);
    CanvasPool* pool = canvasPool();
    CanvasBuffer* old = nullptr;
    {
        QMutexLocker locker(&pool->mutex);
        old = pool->spare;
        pool->spare = buffer;
    }
    if (old) {
        std::free(old->data);
        delete old;
    }
}

QImage acquireCanvas(const QSize& size)
{
    const qsizetype bytesPerLine = qsizetype(size.width()) * 4;
    const qsizetype bytes = bytesPerLine * size.height();
    if (size.width() > (std::numeric_limits<int>::max() / 4) || bytes / bytesPerLine != size.height()) {
        return QImage();
    }
    CanvasPool* pool = canvasPool();
    CanvasBuffer* buffer = nullptr;
    {
        QMutexLocker locker(&pool->mutex);
        // A spare much larger than needed is given back rather than kept alive.
        if (pool->spare && pool->spare->size >= bytes && pool->spare->size <= 2 * bytes) {
            buffer = pool->spare;
            pool->spare = nullptr;
        }
    }
    if (!buffer) {
        {
            QMutexLocker locker(&pool->mutex);
            if (pool->spare) {
                std::free(pool->spare->data);
                delete pool->spare;
                pool->spare = nullptr;
            }
        }
        auto* data = static_cast<uchar*>(std::malloc(size_t(bytes)));
        if (!data) {
            return QImage();
        }
        buffer = new CanvasBuffer{data, bytes};
    }
    return QImage(buffer->data, size.width(), size.height(), bytesPerLine, QImage::Format_RGB32, releaseCanvas,
                  buffer);
}

void fillWhite(QImage& canvas, const QRegion& region)
{
    for (const QRect& rect : region) {
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            std::memset(canvas.scanLine(y) + qsizetype(rect.left()) * 4, 0xff, size_t(rect.width()) * 4);
        }
    }
}

// x * a / 255 on every channel at once, rounded as the raster paint engine does.
inline uint byteMul(uint x, uint a)
{
    uint t = (x & 0xff00ff) * a;
    t = (t + ((t >> 8) & 0xff00ff) + 0x800080) >> 8;
    t &= 0xff00ff;
    x = ((x >> 8) & 0xff00ff) * a;
    x = (x + ((x >> 8) & 0xff00ff) + 0x800080);
    x &= 0xff00ff00;
    return x | t;
}
} // namespace

ImageComposer::ImageComposer(int layoutType, int xSpace, int ySpace, int column, int count, const QSize& firstSize)
    : m_layout(layoutType == Grid || layoutType == Horizontal ? layoutType : Vertical)
    , m_xSpace(xSpace)
    , m_ySpace(ySpace)
    , m_columns(column > 0 ? column : 1)
    , m_count(count)
    , m_first(firstSize)
{
    if (count <= 0 || firstSize.isEmpty()) {
        return;
    }
    const int n = count;
    const int c = m_columns;
    const int W = firstSize.width();
    const int H = firstSize.height();
    const int X = xSpace;
    const int Y = ySpace;
    switch (m_layout) {
    case Grid: {
        const int xs = qMax(X, 0);
        const int ys = qMax(Y, 0);
        const int k = n < c ? n : c;
        m_canvasSize = QSize(qMin(W * c, W * n) + (k - 1) * xs, ((n - 1) / c) * (H + ys) + H);
        qCDebug(lcImages) << "getGroupPixmap Grid" << m_canvasSize.width() << m_canvasSize.height() << W << H << (k - 1) * xs;
        break;
    }
    case Horizontal:
        m_band = W + qMin(X, 0);
        m_canvasSize = QSize((n - 1) * m_band + W + (n - 1) * qMax(X, 0), H);
        qCDebug(lcImages) << "other image's width:" << m_band << "image total width" << m_canvasSize.width();
        break;
    default:
        m_band = H + qMin(Y, 0);
        m_canvasSize = QSize(W, (n - 1) * m_band + H + (n - 1) * qMax(Y, 0));
        qCDebug(lcImages) << "other image's height:" << m_band << "image total height" << m_canvasSize.height();
        break;
    }
}

bool ImageComposer::begin()
{
    m_covered = QRegion();
    m_canvas = QImage();
    if (m_canvasSize.isEmpty()) {
        return false;
    }
    m_canvas = acquireCanvas(m_canvasSize);
    return !m_canvas.isNull();
}

bool ImageComposer::partFor(int index, const QSize& frameSize, QPoint* at, QRect* source) const
{
    const int W = m_first.width();
    const int H = m_first.height();
    const int w = frameSize.width();
    const int h = frameSize.height();
    QRect wanted(QPoint(0, 0), frameSize);
    if (m_layout == Grid) {
        *at = QPoint((index % m_columns) * (m_xSpace >= 1 ? W + m_xSpace : W),
                     (index / m_columns) * (m_ySpace >= 1 ? H + m_ySpace : H));
    } else if (index == 0) {
        *at = QPoint(0, 0);
    } else if (m_band <= 0) {
        return false;
    } else if (m_layout == Horizontal) {
        *at = QPoint(m_xSpace >= 1 ? index * (W + m_xSpace) : qAbs(qMin(m_xSpace, 0)) + index * m_band, 0);
        wanted = QRect(w - m_band, 0, m_band, h);
    } else {
        *at = QPoint(0, m_ySpace >= 1 ? index * (H + m_ySpace) : qAbs(qMin(m_ySpace, 0)) + index * m_band);
        wanted = QRect(0, h - m_band, w, m_band);
    }
    // A band reaching outside a smaller frame takes only what the frame has;
    // the canvas stays white where the rest would have gone.
    const QRect part = wanted.intersected(QRect(QPoint(0, 0), frameSize));
    if (part.isEmpty()) {
        return false;
    }
    *at += part.topLeft() - wanted.topLeft();
    *source = part;
    return true;
}

void ImageComposer::place(int index, const QImage& frame)
{
    if (m_canvas.isNull() || frame.isNull() || index < 0 || index >= m_count) {
        return;
    }
    QPoint at;
    QRect source;
    if (partFor(index, frame.size(), &at, &source)) {
        copyPart(frame, at, source);
    }
}

void ImageComposer::copyPart(const QImage& frame, const QPoint& at, const QRect& source)
{
    const QRect target = QRect(at, source.size()).intersected(m_canvas.rect());
    if (target.isEmpty()) {
        return;
    }
    const QPoint from = source.topLeft() + (target.topLeft() - at);
    const size_t rowBytes = size_t(target.width()) * 4;
    if (!frame.hasAlphaChannel()) {
        const QImage pixels = frame.format() == QImage::Format_RGB32 ? frame
                                                                     : frame.convertToFormat(QImage::Format_RGB32);
        for (int row = 0; row < target.height(); ++row) {
            std::memcpy(m_canvas.scanLine(target.top() + row) + qsizetype(target.left()) * 4,
                        pixels.constScanLine(from.y() + row) + qsizetype(from.x()) * 4, rowBytes);
        }
        m_covered += target;
        return;
    }
    // A translucent frame is laid over white (or over the frames before it).
    fillWhite(m_canvas, QRegion(target) - m_covered);
    m_covered += target;
    const QImage pixels = frame.format() == QImage::Format_ARGB32_Premultiplied
                              ? frame
                              : frame.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int row = 0; row < target.height(); ++row) {
        auto* dst = reinterpret_cast<QRgb*>(m_canvas.scanLine(target.top() + row)) + target.left();
        const auto* src = reinterpret_cast<const QRgb*>(pixels.constScanLine(from.y() + row)) + from.x();
        for (int x = 0; x < target.width(); ++x) {
            dst[x] = 0xff000000u | (src[x] + byteMul(dst[x], 255 - qAlpha(src[x])));
        }
    }
}

QImage ImageComposer::finish()
{
    if (m_canvas.isNull()) {
        return QImage();
    }
    // White goes only where no frame was drawn: each pixel is written once.
    fillWhite(m_canvas, QRegion(m_canvas.rect()) - m_covered);
    m_covered = QRegion();
    QImage canvas = m_canvas;
    m_canvas = QImage();
    return canvas;
}

QImage ImageComposer::compose(const QList<QImage>& frames, int layoutType, int xSpace, int ySpace, int column)
{
    if (frames.isEmpty()) {
        return QImage();
    }
    ImageComposer composer(layoutType, xSpace, ySpace, column, frames.size(), frames.first().size());
    if (!composer.begin()) {
        if (!composer.canvasSize().isEmpty()) {
            qCWarning(lcImages) << "getGroupPixmap: canvas too large" << composer.canvasSize();
        }
        return QImage();
    }
    for (int i = 0; i < frames.size(); ++i) {
        composer.place(i, frames.at(i));
    }
    return composer.finish();
}

QImage ImageComposer::stack(const QList<QImage>& parts, int layoutType)
{
    if (parts.isEmpty() || parts.first().isNull()) {
        return QImage();
    }
    const bool across = layoutType == Horizontal;
    qint64 length = 0;
    for (const QImage& part : parts) {
        length += across ? part.width() : part.height();
    }
    if (length > std::numeric_limits<int>::max()) {
        return QImage();
    }
    ImageComposer composer;
    composer.m_canvasSize = across ? QSize(int(length), parts.first().height())
                                   : QSize(parts.first().width(), int(length));
    if (!composer.begin()) {
        return QImage();
    }
    int offset = 0;
    for (const QImage& part : parts) {
        if (!part.isNull()) {
            composer.copyPart(part, across ? QPoint(offset, 0) : QPoint(0, offset), part.rect());
        }
        offset += across ? part.width() : part.height();
    }
    return composer.finish();
}

QImage ImageComposer::composeScaled(const QList<QImage>& copies, const QList<QSize>& sizes, int layoutType,
                                    int xSpace, int ySpace, int column, double factor)
{
    if (sizes.isEmpty() || copies.size() != sizes.size() || factor <= 0.0) {
        return QImage();
    }
    const ImageComposer layout(layoutType, xSpace, ySpace, column, sizes.size(), sizes.first());
    const QSize full = layout.canvasSize();
    if (full.isEmpty()) {
        return QImage();
    }
    factor = qMin(factor, 1.0);
    auto scaled = [factor](int v) { return qRound(v * factor); };
    QImage out(qMax(1, scaled(full.width())), qMax(1, scaled(full.height())), QImage::Format_RGB32);
    if (out.isNull()) {
        return out;
    }
    out.fill(Qt::white);
    QPainter painter(&out);
    for (int i = 0; i < copies.size(); ++i) {
        const QImage& copy = copies.at(i);
        const QSize size = sizes.at(i);
        QPoint at;
        QRect source;
        if (copy.isNull() || size.isEmpty() || !layout.partFor(i, size, &at, &source)) {
            continue;
        }
        // Edges are rounded, not sizes, so that neighbouring parts meet without a seam.
        const QRect target(QPoint(scaled(at.x()), scaled(at.y())),
                           QPoint(scaled(at.x() + source.width()) - 1, scaled(at.y() + source.height()) - 1));
        const double sx = double(copy.width()) / size.width();
        const double sy = double(copy.height()) / size.height();
        const QRect from = QRect(QPoint(qRound(source.left() * sx), qRound(source.top() * sy)),
                                 QPoint(qRound((source.right() + 1) * sx) - 1, qRound((source.bottom() + 1) * sy) - 1))
                               .intersected(copy.rect());
        if (target.isEmpty() || from.isEmpty()) {
            continue;
        }
        // A view of the copy's rows, not a copy of them.
        const QImage part = from == copy.rect()
                                ? copy
                                : QImage(copy.constScanLine(from.top()) + qsizetype(from.left()) * (copy.depth() / 8),
                                         from.width(), from.height(), copy.bytesPerLine(), copy.format());
        painter.drawImage(target.topLeft(),
                          part.size() == target.size()
                              ? part
                              : part.scaled(target.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    painter.end();
    return out;
}

QImage ImageComposer::scaledToWidth(const QImage& image, int width)
{
    if (image.isNull() || width <= 0) {
        return QImage();
    }
    const int W = image.width();
    const int H = image.height();
    const qreal factor = qreal(width) / W;
    const int wd = qRound(factor * W);
    const int hd = qRound(factor * H);
    if (wd <= 0 || hd <= 0) {
        return QImage();
    }
    const QImage source = image.hasAlphaChannel() ? image.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                          : image.format() == QImage::Format_RGB32 ? image
                                                                   : image.convertToFormat(QImage::Format_RGB32);
    QImage out(wd, hd, source.format());
    if (out.isNull()) {
        return QImage();
    }
    // The raster engine's fixed-point stepping (16.16): each target pixel takes
    // the source pixel under its centre.
    const qreal sx = (W * factor) / W;
    const qreal sy = (H * factor) / H;
    const qint64 ix = qint64(0x00010000 / sx);
    const qint64 iy = qint64(0x00010000 / sy);
    const qint64 startX = qCeil(qreal(0.5) * ix) - 1;
    qint64 sourceY = qCeil(qreal(0.5) * iy) - 1;
    for (int y = 0; y < hd; ++y, sourceY += iy) {
        const auto* src = reinterpret_cast<const QRgb*>(source.constScanLine(int(qMin<qint64>(sourceY >> 16, H - 1))));
        auto* dst = reinterpret_cast<QRgb*>(out.scanLine(y));
        qint64 sourceX = startX;
        for (int x = 0; x < wd; ++x, sourceX += ix) {
            dst[x] = src[qMin<qint64>(sourceX >> 16, W - 1)];
        }
    }
    return out;
}
