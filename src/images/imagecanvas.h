#ifndef IMAGECANVAS_H
#define IMAGECANVAS_H

#include <QPixmap>
#include <QScrollArea>
#include <QSize>

// Shows one picture either fitted into the visible area or at 100 %, with
// scroll bars. The picture may be handed over reduced (a copy made for the
// screen) together with its true size: zoom, scroll range and the factor shown
// all refer to the true size. A very large picture shown whole is drawn from a
// reduced copy made once, never resampled in full at paint time.
class ImageCanvas : public QScrollArea
{
    Q_OBJECT
public:
    enum ZoomType { Fit = 0, Actual = 1 };
    Q_ENUM(ZoomType)

    explicit ImageCanvas(QWidget* parent = nullptr);

    // The picture at its own size.
    void setPixmap(const QPixmap& pixmap);
    // `shown` drawn as a picture of `size` (shown may be smaller, or null until it is ready).
    void setPicture(const QSize& size, const QPixmap& shown);
    // What is drawn (possibly reduced) and the size it stands for.
    QPixmap pixmap() const { return m_pixmap; }
    QSize pictureSize() const { return m_size; }
    void setZoomType(int type);
    int zoomType() const { return m_zoomType; }
    // Factor from picture pixels to screen pixels currently in use.
    double zoomFactor() const { return m_factor; }
    // The factor that fits a picture of `size` into the visible area (at most 1).
    double fitFactor(const QSize& size) const;
    // Fits the picture into the visible area again (in Fit mode).
    void changeSizeByWindow();
    void scrollToEnd();

signals:
    void zoomChangedSignal(int type, double factor);
    // The visible area changed size.
    void areaResized();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    class Surface;
    Surface* m_surface = nullptr;
    QPixmap m_pixmap;
    QPixmap m_reduced;
    QSize m_size;
    int m_zoomType = Fit;
    double m_factor = 1.0;
};

#endif // IMAGECANVAS_H
