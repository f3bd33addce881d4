#ifndef CAPTIONDOCK_H
#define CAPTIONDOCK_H

#include <QObject>

class QDialog;
class QSplitter;
class QWidget;

// Moves the caption panel between its column of the main window and a window
// of its own ("Popup"), and back when that window is closed.
class CaptionDock : public QObject
{
    Q_OBJECT
public:
    CaptionDock(QWidget* panel, QSplitter* splitter, QWidget* window);

    bool isPoppedOut() const;
    // Shows or hides the docked panel. The window narrows by the panel's
    // width when it goes (unless maximised) and keeps room for it when it
    // shows; a popped-out panel's window is only raised.
    void setShown(bool shown);
    void popOut();
    void dockBack();
    // Raises the panel's own window; false when the panel is docked.
    bool raiseIfPoppedOut();
    void close();
    void retranslate();

signals:
    // The panel is back in the main window.
    void docked();
    void shownChanged(bool shown);

private:
    QWidget* m_panel;
    QSplitter* m_splitter;
    QWidget* m_window;
    QDialog* m_dialog = nullptr;
    // How much showing the panel widened the window; hiding gives it back.
    int m_grownBy = -1;
};

#endif // CAPTIONDOCK_H
