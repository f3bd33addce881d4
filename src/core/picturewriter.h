#ifndef PICTUREWRITER_H
#define PICTUREWRITER_H

#include <QCoreApplication>
#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>

// Writing exported pictures: what each format can hold, the write itself, and
// the watermark of an unregistered copy.
class PictureWriter
{
    Q_DECLARE_TR_FUNCTIONS(PictureWriter)
public:
    // Largest side each encoder accepts; beyond it the writer fails with no reason.
    static constexpr int kWebpMaxSide = 16383;
    static constexpr int kJpegMaxSide = 65500;

    // Why a picture of `size` cannot be written as `format` ("PNG", "jpg", ...),
    // naming the limit and offering PNG; empty when it can. Usable before
    // anything is rendered or written.
    static QString formatProblem(const QString& format, const QSize& size);

    // Writes `image` to exactly `path` (an existing file is replaced, and only
    // once the new one is complete). False with the reason in *error.
    // `quality` as QImageWriter takes it; -1 is the format's default.
    static bool write(const QImage& image, const QString& path, const QString& format, QString* error = nullptr,
                      int quality = -1);

    // Stamps `text` and the tagline into the middle of the picture, in place.
    static void paintWatermark(QImage& image, const QString& text);
    static void paintWatermark(QPixmap& pixmap, const QString& text);
    // The largest point size, from 40 down, at which text fits width in the
    // default font (never below 1).
    static int fontSizeForWidth(const QString& text, int width);
};

#endif // PICTUREWRITER_H
