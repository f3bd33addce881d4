#ifndef IMAGEITEM_H
#define IMAGEITEM_H

#include <QPixmap>
#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;

// One captured frame as a checkable thumbnail. The item holds the frame at full
// resolution (shared with the capture, never copied) and only draws it reduced.
class ImageItem : public QWidget
{
    Q_OBJECT
public:
    explicit ImageItem(QWidget* parent = nullptr);

    void changeImageByPixmap(const QPixmap& pixmap);
    QPixmap getPixmap() const { return m_pixmap; }

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
    double m_captureTime = 0.0;
    int m_frame = 0;
};

#endif // IMAGEITEM_H
