#ifndef BANDFINDER_H
#define BANDFINDER_H

#include <QImage>
#include <QRect>
#include <QSize>

// Finds where a caption lies in a frame by comparing the frame as rendered
// with its subtitles against the same frame without them.
class BandFinder
{
public:
    // The full-width rows (vertical layout) or full-height columns (horizontal
    // layout) holding every pixel the subtitles changed, widened by `margin`
    // on both sides and kept inside the frame; a null rect when nothing changed.
    static QRect captionBand(const QImage& captioned, const QImage& plain, bool vertical, int margin);
    // A margin in proportion to the frame: 1/60 of its height, at least 4 pixels.
    static int marginFor(const QSize& frame);
};

#endif // BANDFINDER_H
