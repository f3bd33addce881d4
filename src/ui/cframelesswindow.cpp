#include "cframelesswindow.h"

#include "appconfig.h"

#include <QAbstractButton>
#include <QMouseEvent>
#include <QWindow>

CFramelessWindow::CFramelessWindow(QWidget* parent)
    : QWidget(parent)
{
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint | Qt::Window);
    setMouseTracking(true);
    m_border = AppConfig::rate(5);
}

void CFramelessWindow::setTitleBar(QWidget* titleBar)
{
    m_titleBar = titleBar;
    m_titleBar->installEventFilter(this);
}

void CFramelessWindow::toggleMaximized()
{
    if (isMaximized()) {
        showNormal();
    } else {
        showMaximized();
    }
}

bool CFramelessWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_titleBar) {
        if (event->type() == QEvent::MouseButtonPress) {
            auto* mouse = static_cast<QMouseEvent*>(event);
            QWidget* child = m_titleBar->childAt(mouse->pos());
            const bool onButton = child && (qobject_cast<QAbstractButton*>(child)
                                            || qobject_cast<QAbstractButton*>(child->parentWidget()));
            if (mouse->button() == Qt::LeftButton && !onButton && windowHandle()) {
                windowHandle()->startSystemMove();
            }
        } else if (event->type() == QEvent::MouseButtonDblClick) {
            toggleMaximized();
        }
    }
    return QWidget::eventFilter(watched, event);
}

Qt::Edges CFramelessWindow::edgesAt(const QPoint& pos) const
{
    Qt::Edges edges;
    if (isMaximized()) {
        return edges;
    }
    if (pos.x() < m_border) {
        edges |= Qt::LeftEdge;
    }
    if (pos.x() >= width() - m_border) {
        edges |= Qt::RightEdge;
    }
    if (pos.y() < m_border) {
        edges |= Qt::TopEdge;
    }
    if (pos.y() >= height() - m_border) {
        edges |= Qt::BottomEdge;
    }
    return edges;
}

void CFramelessWindow::mousePressEvent(QMouseEvent* event)
{
    const Qt::Edges edges = edgesAt(event->pos());
    if (event->button() == Qt::LeftButton && edges && windowHandle()) {
        windowHandle()->startSystemResize(edges);
        return;
    }
    QWidget::mousePressEvent(event);
}

void CFramelessWindow::mouseMoveEvent(QMouseEvent* event)
{
    const Qt::Edges edges = edgesAt(event->pos());
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge)) {
        setCursor(Qt::SizeFDiagCursor);
    } else if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge)) {
        setCursor(Qt::SizeBDiagCursor);
    } else if (edges & (Qt::LeftEdge | Qt::RightEdge)) {
        setCursor(Qt::SizeHorCursor);
    } else if (edges & (Qt::TopEdge | Qt::BottomEdge)) {
        setCursor(Qt::SizeVerCursor);
    } else {
        unsetCursor();
    }
    QWidget::mouseMoveEvent(event);
}
