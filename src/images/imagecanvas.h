#ifndef IMAGECANVAS_H
#define IMAGECANVAS_H

#include <QPixmap>
#include <QScrollArea>

// Shows one picture either fitted into the visible area or at 100 %, with
// scroll bars. The picture is drawn scaled at paint time: no reduced copy of a
// possibly very large composite is ever kept.
class ImageCanvas : public QScrollArea
{
    Q_OBJECT
public:
    enum ZoomType { Fit = 0, Actual = 1 };
    Q_ENUM(ZoomType)

    explicit ImageCanvas(QWidget* parent = nullptr);

    void setPixmap(const QPixmap& pixmap);
    QPixmap pixmap() const { return m_pixmap; }
    void setZoomType(int type);
    int zoomType() const { return m_zoomType; }
    // Factor from picture pixels to screen pixels currently in use.
    double zoomFactor() const { return m_factor; }
    // Fits the picture into the visible area again (in Fit mode).
    void changeSizeByWindow();
    void scrollToEnd();

signals:
    void zoomChangedSignal(int type, double factor);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    class Surface;
    Surface* m_surface = nullptr;
    QPixmap m_pixmap;
    int m_zoomType = Fit;
    double m_factor = 1.0;
};

#endif // IMAGECANVAS_H
