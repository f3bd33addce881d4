#ifndef IMAGEVIEWDIALOG_H
#define IMAGEVIEWDIALOG_H

#include <QDialog>
#include <QPixmap>

class ImageCanvas;
class QLabel;
class QProgressBar;
class QPushButton;

// Shows one picture large, fitted to the window or at 100 %, with its own
// export button and progress bar.
class ImageViewDialog : public QDialog
{
    Q_OBJECT
public:
    explicit ImageViewDialog(QWidget* parent = nullptr);

    // zoomType: ImageCanvas::Fit or ImageCanvas::Actual.
    void changePixmap(const QPixmap& pixmap, int zoomType);
    int zoomType() const;
    ImageCanvas* canvas() const { return m_canvas; }

    void showProgressBar(bool show);
    void changeProgress(int index, int total);
    void setButtonEnabled(bool enabled);

signals:
    void exportButtonTap(QString ext);

private:
    void retranslate();

    ImageCanvas* m_canvas = nullptr;
    QPushButton* m_fitButton = nullptr;
    QPushButton* m_actualButton = nullptr;
    QPushButton* m_exportButton = nullptr;
    QLabel* m_sizeLabel = nullptr;
    QProgressBar* m_progressBar = nullptr;
};

#endif // IMAGEVIEWDIALOG_H
