#ifndef CFRAMELESSWINDOW_H
#define CFRAMELESSWINDOW_H

#include <QWidget>

// A top-level window without the system frame: it draws its own title bar and
// asks the window system to move or resize it when the user drags the title
// bar or an edge.
class CFramelessWindow : public QWidget
{
    Q_OBJECT
public:
    explicit CFramelessWindow(QWidget* parent = nullptr);

    // Drags on this widget (but not on its buttons) move the window; a double
    // click toggles maximised.
    void setTitleBar(QWidget* titleBar);
    void toggleMaximized();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    Qt::Edges edgesAt(const QPoint& pos) const;

    QWidget* m_titleBar = nullptr;
    int m_border = 5;
};

#endif // CFRAMELESSWINDOW_H
