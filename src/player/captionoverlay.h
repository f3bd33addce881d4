#ifndef CAPTIONOVERLAY_H
#define CAPTIONOVERLAY_H

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QWidget>

class CaptionInfo;
class QLineEdit;

// Transparent layer over the video: frames the caption on screen, lets the
// user drag it to a new position and edit its text in place (double-click).
// mpv renders the caption itself, so the layer only draws the frame and the editor.
class CaptionOverlay : public QWidget
{
    Q_OBJECT
public:
    explicit CaptionOverlay(QWidget* parent = nullptr);

    // The first caption of the store shown at this playback time, or none.
    static CaptionInfo* captionAtTime(double seconds);
    // A caption's text as shown: override blocks removed, line breaks as newlines.
    static QString plainText(const QString& text);

    void setCaption(CaptionInfo* info);
    CaptionInfo* caption() const { return m_caption; }
    void setVideoSize(const QSize& size);
    QSize videoSize() const { return m_videoSize; }

    // Where the video and the caption lie in this widget's coordinates.
    QRect videoRect() const;
    QRect captionRect() const;
    // Script space (384x288) to widget coordinates and back.
    QPoint scriptToWidget(int x, int y) const;
    QPoint widgetToScript(const QPoint& point) const;

    bool isEditing() const;
    QLineEdit* editor() const { return m_editor; }

public slots:
    void startEditing();
    void finishEditing(bool commit);
    void clearEditorFocus();

signals:
    void captionEditSignal(CaptionInfo* info, bool isAll);
    void editStateChanged(bool editing, QString text);
    void positionDragged(CaptionInfo* info, int x, int y);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void placeEditor();

    CaptionInfo* m_caption = nullptr;
    QSize m_videoSize;
    QLineEdit* m_editor = nullptr;
    bool m_hovered = false;
    bool m_dragging = false;
    bool m_finishing = false;
    QPoint m_pressPos;
    QPoint m_dragOffset;
};

#endif // CAPTIONOVERLAY_H
