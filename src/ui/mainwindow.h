#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "cframelesswindow.h"
#include "downloadmanager.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QPixmap>
#include <QPointer>
#include <QStringList>
#include <QVariant>

class CaptionDock;
class MainMenu;
class CaptionInfo;
class CaptureController;
class CaptionWidget;
class ImageItem;
class ImagesWidget;
class LoadingDialog;
class MessageDialog;
class PreviewWidget;
class QDialog;
class QMenu;
class QSplitter;
class QTimer;
class QTranslator;
class TitleBar;
class VideoPlayWidget;
class WindowFlows;

// The application's single top-level window: creates and lays out the panels,
// reacts to every event of the bus and runs the capture flows.
class MainWindow : public CFramelessWindow
{
    Q_OBJECT
public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    // Work that follows the first show: first-run step, a video named on the command line.
    void startUp(const QStringList& arguments);

    void changeLangByType(int type);
    void languageMenuTapByType(int type);
    void menuTapByType(int type);
    QMap<int, QString> getMenuTextMap() const;
    void showCaptionWidget(bool show);
    void loadCaption(const QString& path);
    void quitAppFinishEvent();

    QTranslator* translator() const { return m_translator; }
    TitleBar* titleBar() const { return m_titleBar; }
    VideoPlayWidget* videoPlayWidget() const { return m_videoPlayWidget; }
    ImagesWidget* imagesWidget() const { return m_imagesWidget; }
    PreviewWidget* previewWidget() const { return m_previewWidget; }
    CaptionWidget* captionWidget() const { return m_captionWidget; }
    MessageDialog* messageDialog() const { return m_messageDialog; }
    LoadingDialog* loadingDialog() const { return m_loadingDialog; }
    CaptureController* captureController() const;
    WindowFlows* flows() const { return m_flows; }

public slots:
    void globalEventHandle(QString eventName, QVariant value);
    void titleBarButtonClickedHandle(int type);
    void downloadLastVersionStatus(DownloadManager::DownloadState state, QString text, QByteArray data);

signals:
    // A capture-checked pass ended with every ticked caption captured.
    void captureSelectFinished();
    // A re-capture after a style edit finished (one item or all of them).
    void recaptureFinished();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void initialize();
    void initTitleBar();
    void initVideoPlayWidget();
    void initImagesWidget();
    void initPreviewWidget();
    void initCaptionWidget();
    void initMenu();
    void initTopBarMenu();
    void initConfig();
    void retranslate();



    void addLocalSubtitle();
    void openMediaFile(const QString& path);
    void showMessage(const QString& title, const QString& message);

    QTranslator* m_translator = nullptr;
    TitleBar* m_titleBar = nullptr;
    VideoPlayWidget* m_videoPlayWidget = nullptr;
    ImagesWidget* m_imagesWidget = nullptr;
    PreviewWidget* m_previewWidget = nullptr;
    CaptionWidget* m_captionWidget = nullptr;
    MessageDialog* m_messageDialog = nullptr;
    LoadingDialog* m_loadingDialog = nullptr;
    QSplitter* m_mainSplitter = nullptr;
    QSplitter* m_rightSplitter = nullptr;
    CaptionDock* m_captionDock = nullptr;

    MainMenu* m_menu = nullptr;
    WindowFlows* m_flows = nullptr;
    // Ctrl+Q or the title bar's close: the user's own close, which may ask.
    bool m_userClose = false;


};

#endif // MAINWINDOW_H
