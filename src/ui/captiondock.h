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
    void popOut();
    void dockBack();
    // Raises the panel's own window; false when the panel is docked.
    bool raiseIfPoppedOut();
    void close();
    void retranslate();

signals:
    // The panel is back in the main window.
    void docked();

private:
    QWidget* m_panel;
    QSplitter* m_splitter;
    QWidget* m_window;
    QDialog* m_dialog = nullptr;
};

#endif // CAPTIONDOCK_H
