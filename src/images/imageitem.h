#ifndef IMAGEITEM_H
#define IMAGEITEM_H

#include <QImage>
#include <QPixmap>
#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;

// One captured frame as a checkable thumbnail. The item holds the frame at full
// resolution (shared with the capture, never copied) and one reduced copy,
// scaled once, that the strip and the preview draw from.
class ImageItem : public QWidget
{
    Q_OBJECT
public:
    explicit ImageItem(QWidget* parent = nullptr);

    void changeImageByPixmap(const QPixmap& pixmap);
    // Shows the same frame as `source`, sharing its pixels and its reduced copy.
    void shareImage(const ImageItem& source);
    QPixmap getPixmap() const { return m_pixmap; }
    // Reduced copies of the frame, each scaled once (the frame itself stands in
    // for a copy it is narrower than): the smallest at least `width` pixels
    // wide, or the largest.
    QImage thumbnail(int width = kThumbnailWidth) const;
    static constexpr int kThumbnailWidth = 320;
    static constexpr int kMiniWidth = 80;

    void setSelect(bool select);
    bool isSelect() const;

    void setCaptureTime(double time) { m_captureTime = time; }
    double getCpatureTime() const { return m_captureTime; }
    void setFrame(int frame) { m_frame = frame; }
    int getFrame() const { return m_frame; }

    QLabel* imageLabel() const { return m_imageLabel; }
    QCheckBox* checkBox() const { return m_checkBox; }
    QPushButton* deleteButton() const { return m_deleteButton; }

signals:
    void selectedSignal(bool selected);
    void deleteSignal();
    void clickedSignal();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLabel* m_imageLabel = nullptr;
    QCheckBox* m_checkBox = nullptr;
    QPushButton* m_deleteButton = nullptr;
    QPixmap m_pixmap;
    QPixmap m_thumbnail;
    QPixmap m_mini;
    double m_captureTime = 0.0;
    int m_frame = 0;
};

#endif // IMAGEITEM_H
