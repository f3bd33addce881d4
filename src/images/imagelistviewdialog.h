#ifndef IMAGELISTVIEWDIALOG_H
#define IMAGELISTVIEWDIALOG_H

#include <QDialog>
#include <QHash>
#include <QList>

class ImageItem;
class QGridLayout;
class QProgressBar;
class QPushButton;
class QScrollArea;
class SaveFileBar;

// The captured frames in a larger grid, for selecting, deleting and exporting
// them one by one. Its own thumbnails share the strip's pixmaps; the signals
// name the strip's items they stand for.
class ImageListViewDialog : public QDialog
{
    Q_OBJECT
public:
    explicit ImageListViewDialog(QWidget* parent = nullptr);

    void showImageList(const QList<ImageItem*>& items);
    void clearImageList();
    void changeSizeByWindow();
    void showProgressBar(bool show);
    void changeProgress(int index, int total);
    void setButtonEnabled(bool enabled);

    const QList<ImageItem*>& items() const { return m_items; }
    // The strip item that a thumbnail of this dialog stands for.
    ImageItem* sourceOf(ImageItem* item) const { return m_sourceOf.value(item); }
    SaveFileBar* saveFileBar() const { return m_saveFileBar; }
    QGridLayout* gridLayout() const { return m_gridLayout; }
    QPushButton* deleteAllButton() const { return m_deleteAllButton; }

signals:
    void deleteImage(ImageItem* item);
    void selectImage(bool selected, ImageItem* item);
    void selectAllSignal(bool selected);
    void deleteAllSignal();
    void exportButtonTap(QString ext);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateSelectAllBox();
    void retranslate();

    QScrollArea* m_scrollArea = nullptr;
    QWidget* m_container = nullptr;
    QGridLayout* m_gridLayout = nullptr;
    SaveFileBar* m_saveFileBar = nullptr;
    QProgressBar* m_progressBar = nullptr;
    QPushButton* m_deleteAllButton = nullptr;
    QList<ImageItem*> m_items;
    QHash<ImageItem*, ImageItem*> m_sourceOf;
};

#endif // IMAGELISTVIEWDIALOG_H
