#ifndef PREVIEWWIDGET_H
#define PREVIEWWIDGET_H

#include "basewidget.h"

#include <QElapsedTimer>
#include <QImage>
#include <QList>
#include <QMap>
#include <QPixmap>
#include <QStringList>

class ImageCanvas;
class ImageItem;
class ImageExporter;
class ImageViewDialog;
class PropertyItem;
class QButtonGroup;
class QLabel;
class QProgressBar;
class QPushButton;
class QTimer;
class SaveFileBar;
class SaveImageThread;

// The preview panel: stitches the selected frames into one picture, shows it
// fitted or at 100 %, holds the output properties and layout choice, and
// exports the picture.
//
// The full-size composite is made only for the export and while someone looks
// at it at 100 % (the zoom or the enlarged view). Fitted, the panel shows a
// composite drawn at the screen's size from the frames' reduced copies, and
// while frames keep arriving it redraws at most once per kRefreshMs; the size
// shown and the size fields always follow the selection at once.
class PreviewWidget : public BaseWidget
{
    Q_OBJECT
public:
    enum LayoutType { Grid = 0, Vertical = 1, Horizontal = 2 };
    Q_ENUM(LayoutType)

    explicit PreviewWidget(QWidget* parent = nullptr);

    static constexpr int kRefreshMs = 250;

    // Composes the selected frames at full size with the current properties and layout.
    QPixmap getGroupPixmap();
    // The full-size composite's size for the current selection (nothing is composed).
    QSize compositeSize() const { return m_compositeSize; }
    // The composition itself, on any list of frames. Column counts below 1 mean 1.
    static QImage composeImages(const QList<QPixmap>& pixmaps, int layoutType, int xSpace, int ySpace,
                                int column);

    int getRadioType() const { return m_radioType; }
    void setRadioType(int type);
    PropertyItem* propertyItem(int type) const { return m_propertyItems.value(type); }
    // Integer value of a property (0 for text that is not a number).
    int propertyValue(int type) const;
    // The full-size composite kept while it is looked at 100 % (null otherwise).
    QPixmap groupPixmap() const { return m_groupPixmap; }

    ImageCanvas* canvas() const { return m_canvas; }
    SaveFileBar* saveFileBar() const { return m_saveFileBar; }
    QLabel* sizeLabel() const { return m_sizeLabel; }
    QProgressBar* progressBar() const { return m_progressBar; }
    ImageExporter* exporter() const { return m_exporter; }
    SaveImageThread* saveImageThread() const;

signals:
    // First export of an unregistered copy in this run: show the registration
    // guide and call registerGuideClosedHandle() once it is closed.
    void showRegisterGuide();
    // files: pictures now in the output folder; errors: one text per failure.
    void exportFinishedSignal(QStringList files, QStringList errors);
    // The picture on screen shows the current selection again.
    void previewUpdated();

public slots:
    void showImage();
    void scrollToEnd();
    void initScaleProperty();
    void changeOutputDir(const QString& dir);
    void changeFileExtension(const QString& ext);
    void exportButtonClickHandle();
    void registerGuideClosedHandle();
    void changeZoomHandle(int zoomType);
    void showViewDialogHandle();
    // Recomposes after frames were captured again in place.
    void updateImageShow();
    // Ends editing of a property field (a click elsewhere in the window).
    void resetEditStatus();
    // Waits for a running export; called while the application shuts down.
    void quitAppFinishEvent();
    void changeLang(int type) override;

private:
    void initPropertyItems();
    void propertyChangedHandle(int type, const QString& text);
    void updatePropertyEnabled();
    void setExporting(bool exporting);
    static QString propertyKey(int type);
    static QString propertyTitle(int type);
    void retranslate();
    QSize composeSize(const QList<ImageItem*>& items) const;
    bool fullSizeWanted() const;
    void scheduleRefresh();
    void refreshPicture();
    QPixmap displayPixmap(const QList<ImageItem*>& items);

    QPixmap m_groupPixmap;
    QSize m_compositeSize;
    int m_radioType = Vertical;
    QMap<int, PropertyItem*> m_propertyItems;
    QButtonGroup* m_radioGroup = nullptr;
    QLabel* m_layoutLabel = nullptr;
    ImageCanvas* m_canvas = nullptr;
    QPushButton* m_fitButton = nullptr;
    QPushButton* m_actualButton = nullptr;
    QPushButton* m_viewButton = nullptr;
    QLabel* m_sizeLabel = nullptr;
    QLabel* m_zoomLabel = nullptr;
    SaveFileBar* m_saveFileBar = nullptr;
    QProgressBar* m_progressBar = nullptr;
    ImageExporter* m_exporter = nullptr;
    ImageViewDialog* m_viewDialog = nullptr;
    QTimer* m_refreshTimer = nullptr;
    QElapsedTimer m_sinceRefresh;
};

#endif // PREVIEWWIDGET_H
