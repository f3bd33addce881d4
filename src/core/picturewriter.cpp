#include "picturewriter.h"


#include <QFont>
#include <QFontMetrics>
#include <QFontMetricsF>
#include <QImageWriter>
#include <QPainter>
#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cmath>
#include <cstring>

namespace {
// The raster paint engine drops whatever lies beyond this coordinate.
constexpr int kPainterLimit = 32767;
const QString kTagline = QStringLiteral("Get the gleam moments in video");

// Where the watermark goes in a picture of width x height.
struct WaterMark {
    QFont font1;
    QFont font2;
    QPointF text;
    QPointF tagline;
    double lineHeight = 0.0;
    double textWidth = 0.0;
    double taglineWidth = 0.0;
};

WaterMark layoutWaterMark(int width, int height, const QString& text)
{
    WaterMark mark;
    const int s = qMin(width, height);
    mark.font1 = QFont(QStringLiteral("Microsoft YaHei"));
    mark.font1.setPointSize(qMax(1, static_cast<int>(s * 0.15)));
    const QFontMetricsF metrics1(mark.font1);
    mark.textWidth = metrics1.horizontalAdvance(text);
    mark.lineHeight = metrics1.height();
    mark.font2 = QFont(QStringLiteral("Microsoft YaHei"));
    mark.font2.setPointSize(PictureWriter::fontSizeForWidth(kTagline, static_cast<int>(mark.textWidth)));
    mark.taglineWidth = QFontMetricsF(mark.font2).horizontalAdvance(kTagline);
    mark.text = QPointF((width - mark.textWidth) * 0.5, (mark.lineHeight * 0.5 + height) * 0.5);
    mark.tagline = QPointF((width - mark.taglineWidth) * 0.5, mark.text.y() + mark.lineHeight / 2.5);
    return mark;
}

// Paints the mark with `origin` of the picture at the device's top left.
void paintWaterMark(QPaintDevice* device, const WaterMark& mark, const QString& text, const QPoint& origin)
{
    QPainter painter(device);
    painter.setFont(mark.font1);
    painter.setOpacity(0.6);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    QPen pen(QColor(255, 255, 255));
    pen.setWidth(1);
    painter.setPen(pen);
    painter.setBrush(QBrush(QColor(255, 255, 255), Qt::SolidPattern));
    // Positions moved by whole pixels, not by a painter transform, so that
    // the glyphs are drawn exactly as on the whole picture.
    painter.drawText(mark.text - origin, text);
    painter.setFont(mark.font2);
    painter.drawText(mark.tagline - origin, kTagline);
    painter.end();
}
} // namespace

QString PictureWriter::formatProblem(const QString& format, const QSize& size)
{
    const QByteArray codec = format.toLower().toUtf8();
    const QString upper = format.toUpper();
    if (!QImageWriter::supportedImageFormats().contains(codec)) {
        return tr("This system cannot write %1 pictures. Choose PNG.").arg(upper);
    }
    const int longest = qMax(size.width(), size.height());
    const bool tall = size.height() >= size.width();
    if (codec == "webp" && longest > kWebpMaxSide) {
        return (tall ? tr("The picture is too tall for WEBP: %1x%2 pixels, and WEBP holds at "
                          "most %3 pixels on a side. Choose PNG or a smaller scale.")
                     : tr("The picture is too wide for WEBP: %1x%2 pixels, and WEBP holds at "
                          "most %3 pixels on a side. Choose PNG or a smaller scale."))
            .arg(QString::number(size.width()), QString::number(size.height()), QString::number(kWebpMaxSide));
    }
    if ((codec == "jpg" || codec == "jpeg") && longest > kJpegMaxSide) {
        return (tall ? tr("The picture is too tall for JPG: %1x%2 pixels, and JPG holds at "
                          "most %3 pixels on a side. Choose PNG or a smaller scale.")
                     : tr("The picture is too wide for JPG: %1x%2 pixels, and JPG holds at "
                          "most %3 pixels on a side. Choose PNG or a smaller scale."))
            .arg(QString::number(size.width()), QString::number(size.height()), QString::number(kJpegMaxSide));
    }
    return QString();
}

bool PictureWriter::write(const QImage& image, const QString& path, const QString& format, QString* error,
                          int quality)
{
    auto fail = [error](const QString& reason) {
        if (error) {
            *error = reason;
        }
        return false;
    };
    if (image.isNull()) {
        return fail(tr("The picture is empty."));
    }
    const QString problem = formatProblem(format, image.size());
    if (!problem.isEmpty()) {
        return fail(problem);
    }
    // Written beside the target and renamed on success, so a failed write never
    // leaves a truncated picture that looks like a result.
    QSaveFile file(path);
    const QString folder = QDir::toNativeSeparators(QFileInfo(path).absolutePath());
    if (!file.open(QIODevice::WriteOnly)) {
        return fail(tr("Cannot create the file in %1: %2").arg(folder, file.errorString()));
    }
    // The format's default quality unless asked otherwise: for PNG a quality
    // only trades compression for speed.
    // Encoded first, then written: a failing disk then reports the system's
    // reason (full, a size limit) instead of the encoder's "Unknown error".
    QBuffer encoded;
    encoded.open(QIODevice::WriteOnly);
    QImageWriter writer(&encoded, format.toLower().toUtf8());
    writer.setQuality(quality);
    if (!writer.write(image)) {
        file.cancelWriting();
        return fail(tr("Writing the picture to %1 failed: %2").arg(folder, writer.errorString()));
    }
    errno = 0;
    if (file.write(encoded.data()) != encoded.size() || !file.flush()) {
        // A short write (the disk filled up mid-way) leaves the file without
        // a reason; the system's is still in errno.
        const int code = errno;
        QString reason = file.errorString();
        if (code != 0 && (file.error() == QFileDevice::NoError || reason == QLatin1String("Unknown error"))) {
            reason = QString::fromLocal8Bit(std::strerror(code));
        }
        file.cancelWriting();
        return fail(tr("Writing the picture to %1 failed: %2").arg(folder, reason));
    }
    if (!file.commit()) {
        return fail(tr("Writing the picture to %1 failed: %2").arg(folder, file.errorString()));
    }
    return true;
}

void PictureWriter::paintWatermark(QImage& image, const QString& text)
{
    if (image.isNull()) {
        return;
    }
    const WaterMark mark = layoutWaterMark(image.width(), image.height(), text);
    if (image.width() <= kPainterLimit && image.height() <= kPainterLimit) {
        paintWaterMark(&image, mark, text, QPoint());
        return;
    }
    // Past the painter's coordinate limit, paint through a view of the rows and
    // columns around the mark, at the same sub-pixel positions.
    const double reach = 2.0 * mark.lineHeight;
    const double left = qMin(mark.text.x(), mark.tagline.x()) - reach;
    const double right = qMax(mark.text.x() + mark.textWidth, mark.tagline.x() + mark.taglineWidth) + reach;
    const double top = mark.text.y() - reach;
    const double bottom = mark.tagline.y() + reach;
    const QRect area = QRect(QPoint(int(std::floor(left)), int(std::floor(top))),
                             QPoint(int(std::ceil(right)), int(std::ceil(bottom))))
                           .intersected(image.rect());
    if (area.isEmpty()) {
        return;
    }
    const qsizetype stride = image.bytesPerLine();
    uchar* first = image.bits() + area.top() * stride + qsizetype(area.left()) * (image.depth() / 8);
    QImage view(first, area.width(), area.height(), stride, image.format());
    view.setDotsPerMeterX(image.dotsPerMeterX());
    view.setDotsPerMeterY(image.dotsPerMeterY());
    paintWaterMark(&view, mark, text, area.topLeft());
}

void PictureWriter::paintWatermark(QPixmap& pixmap, const QString& text)
{
    if (pixmap.isNull()) {
        return;
    }
    if (pixmap.width() <= kPainterLimit && pixmap.height() <= kPainterLimit) {
        paintWaterMark(&pixmap, layoutWaterMark(pixmap.width(), pixmap.height(), text), text, QPoint());
        return;
    }
    QImage image = pixmap.toImage();
    pixmap = QPixmap();
    paintWatermark(image, text);
    pixmap = QPixmap::fromImage(std::move(image));
}

int PictureWriter::fontSizeForWidth(const QString& text, int width)
{
    QFont font;
    int size = 40;
    font.setPointSize(size);
    QFontMetrics metrics(font);
    while (metrics.horizontalAdvance(text) > width && size >= 2) {
        --size;
        font.setPointSize(size);
        metrics = QFontMetrics(font);
    }
    return qMax(size, 1);
}
