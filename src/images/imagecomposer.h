#ifndef IMAGECOMPOSER_H
#define IMAGECOMPOSER_H

#include <QImage>
#include <QList>
#include <QPoint>
#include <QRect>
#include <QRegion>
#include <QSize>

// Stitches frames into one picture. Frames are copied row by row into one
// RGB32 canvas (QPainter's coordinates stop at 32767, a QImage's rows do not),
// so a stitch of any height a QImage can hold comes out exactly.
//
// Grid: cells of the first frame's size, spaced by the positive X and Y
// spaces. Vertical (Horizontal): the first frame whole, then the bottom
// (right-hand) band of every further frame; a negative spacing narrows the
// band instead of overlapping the frames. Positions come from the first frame
// alone: a larger frame spills over its neighbours, a smaller one leaves white.
class ImageComposer
{
public:
    enum LayoutType { Grid = 0, Vertical = 1, Horizontal = 2 };

    // The geometry for `count` frames, the first of size `firstSize`.
    // Column counts below 1 mean 1.
    ImageComposer(int layoutType, int xSpace, int ySpace, int column, int count, const QSize& firstSize);

    QSize canvasSize() const { return m_canvasSize; }
    // Allocates the canvas; false when it would be empty or too large to hold.
    bool begin();
    // Copies the visible part of frame `index` into the canvas. Frames may come
    // in any order, except that overlapping frames must come in index order.
    void place(int index, const QImage& frame);
    // Whites out whatever no frame covered and hands the canvas over.
    QImage finish();

    // All frames at once; a null frame is skipped but keeps its place.
    static QImage compose(const QList<QImage>& frames, int layoutType, int xSpace, int ySpace, int column);
    // The parts one after another along the layout's axis (downwards for
    // Vertical, rightwards for Horizontal), without gaps; the first part sets
    // the other side, and white fills where a part is smaller.
    static QImage stack(const QList<QImage>& parts, int layoutType);
    // The composite of frames of full sizes `sizes`, drawn at `factor` of its
    // full size (at most 1) from reduced copies of the frames (`copies`, any
    // size, null to skip), for showing on screen: the full-size canvas is
    // never made. Each frame's part is scaled smoothly from its copy.
    static QImage composeScaled(const QList<QImage>& copies, const QList<QSize>& sizes, int layoutType, int xSpace,
                                int ySpace, int column, double factor);
    // Nearest-neighbour scaling to `width` (height in proportion): the pixels
    // QImage::scaledToWidth gives with Qt::FastTransformation, at any height.
    static QImage scaledToWidth(const QImage& image, int width);

private:
    ImageComposer() = default;
    bool partFor(int index, const QSize& frameSize, QPoint* at, QRect* source) const;
    void copyPart(const QImage& frame, const QPoint& at, const QRect& source);

    int m_layout = Vertical;
    int m_xSpace = 0;
    int m_ySpace = 0;
    int m_columns = 1;
    int m_count = 0;
    QSize m_first;
    int m_band = 0;
    QSize m_canvasSize;
    QImage m_canvas;
    QRegion m_covered;
};

#endif // IMAGECOMPOSER_H
