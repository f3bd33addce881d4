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

public slots:
    void checkSelectImages();
    void selectAll(bool selected);
    void updateByPixmapList(const QList<QPixmap>& pixmaps);
    void clearButtonClickedHandle();
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
