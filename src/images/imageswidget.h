#ifndef IMAGESWIDGET_H
#define IMAGESWIDGET_H

#include "appconfig.h"
#include "basewidget.h"

#include <QList>
#include <QPixmap>
#include <QStringList>
#include <QVariant>

class ImageExporter;
class ImageItem;
class ImageListViewDialog;
class QCheckBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QScrollArea;
class SaveImageThread;

// The strip of captured frames. Checked frames, in strip order, form the
// selection kept in GlobalManager::selectedImages(); every change of it is
// announced with "select_image_complete".
class ImagesWidget : public BaseWidget
{
    Q_OBJECT
public:
    // A frame as it stood in the strip, to put it back where it was.
    struct Frame {
        int position = 0;
        AppConfig::CaptureData data;
        bool selected = true;
    };

    explicit ImagesWidget(QWidget* parent = nullptr);
    ~ImagesWidget() override;

    void addImage(const QVariant& value);
    void addImage(const AppConfig::CaptureData& data);
    const QList<ImageItem*>& items() const { return m_items; }
    ImageListViewDialog* listViewDialog() const { return m_listViewDialog; }
    ImageExporter* exporter() const { return m_exporter; }
    SaveImageThread* saveImageThread() const;
    QScrollArea* scrollArea() const { return m_scrollArea; }

signals:
    void applyStyleSignal();
    // First export of an unregistered copy in this run: show the registration
    // guide and call registerGuideClosedHandle() once it is closed.
    void showRegisterGuide();
    // files: pictures now in the output folder; errors: one text per failure.
    void exportFinishedSignal(QStringList files, QStringList errors);
    // The user removed frames (deleted one, cleared the strip); emitted before
    // they go, in strip order.
    void framesRemoved(const QList<ImagesWidget::Frame>& frames);

public slots:
    void checkSelectImages();
    void selectAll(bool selected);
    void updateByPixmapList(const QList<QPixmap>& pixmaps);
    void clearButtonClickedHandle();
    // The clear button: asks first when there is anything to lose.
    void askAndClear();
    // Puts frames back at their positions (ascending), selected as they were.
    void restoreFrames(const QList<ImagesWidget::Frame>& frames);
    // Removes the frames at these positions without announcing framesRemoved.
    void removeFrames(const QList<int>& positions);
    // Gives the frames at these positions these pictures.
    void setFramePixmaps(const QList<int>& positions, const QList<QPixmap>& pixmaps);
    void showButtonClickedHandle();
    void updateImageShow();
    void clickImageHandle(const QPixmap& pixmap);
    void initListViewDialog();
    void exportSelectedHandle(const QString& ext);
    void registerGuideClosedHandle();
    void quitAppFinishEvent();
    void changeLang(int type) override;

private:
    void removeItem(ImageItem* item);
    ImageItem* createItem(const AppConfig::CaptureData& data, bool selected);
    Frame frameAt(int position) const;
    void retranslate();
    void refreshListView();

    QList<ImageItem*> m_items;
    QScrollArea* m_scrollArea = nullptr;
    QWidget* m_stripWidget = nullptr;
    QHBoxLayout* m_stripLayout = nullptr;
    QLabel* m_countLabel = nullptr;
    QCheckBox* m_selectAllBox = nullptr;
    QPushButton* m_showButton = nullptr;
    QPushButton* m_clearButton = nullptr;
    QPushButton* m_applyStyleButton = nullptr;
    ImageListViewDialog* m_listViewDialog = nullptr;
    ImageExporter* m_exporter = nullptr;
};

#endif // IMAGESWIDGET_H
