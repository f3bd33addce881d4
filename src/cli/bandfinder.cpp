#include "bandfinder.h"

namespace {
// Sum of the three channel differences above which a pixel counts as changed;
// it leaves out the faintest edge of the outline, which the margin covers.
constexpr int kThreshold = 16;

inline bool differs(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) + qAbs(qGreen(a) - qGreen(b)) + qAbs(qBlue(a) - qBlue(b)) > kThreshold;
}

bool rowDiffers(const QImage& a, const QImage& b, int y, int* first = nullptr, int* last = nullptr)
{
    const auto* p = reinterpret_cast<const QRgb*>(a.constScanLine(y));
    const auto* q = reinterpret_cast<const QRgb*>(b.constScanLine(y));
    const int w = a.width();
    int x = 0;
    while (x < w && !differs(p[x], q[x])) {
        ++x;
    }
    if (x == w) {
        return false;
    }
    if (first && last) {
        int end = w - 1;
        while (end > x && !differs(p[end], q[end])) {
            --end;
        }
        *first = x;
        *last = end;
    }
    return true;
}
} // namespace

int BandFinder::marginFor(const QSize& frame)
{
    return qMax(4, frame.height() / 60);
}

QRect BandFinder::captionBand(const QImage& captioned, const QImage& plain, bool vertical, int margin)
{
    if (captioned.isNull() || captioned.size() != plain.size()) {
        return QRect();
    }
    const QImage a = captioned.format() == QImage::Format_RGB32 ? captioned
                                                                : captioned.convertToFormat(QImage::Format_RGB32);
    const QImage b = plain.format() == QImage::Format_RGB32 ? plain : plain.convertToFormat(QImage::Format_RGB32);
    const int h = a.height();
    int top = 0;
    while (top < h && !rowDiffers(a, b, top)) {
        ++top;
    }
    if (top == h) {
        return QRect();
    }
    int bottom = h - 1;
    while (bottom > top && !rowDiffers(a, b, bottom)) {
        --bottom;
    }
    QRect band;
    if (vertical) {
        band = QRect(0, top - margin, a.width(), bottom - top + 1 + 2 * margin);
    } else {
        int left = a.width();
        int right = -1;
        for (int y = top; y <= bottom; ++y) {
            int first = 0;
            int last = 0;
            if (rowDiffers(a, b, y, &first, &last)) {
                left = qMin(left, first);
                right = qMax(right, last);
            }
        }
        band = QRect(left - margin, 0, right - left + 1 + 2 * margin, h);
    }
    return band.intersected(a.rect());
}
