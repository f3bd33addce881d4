#include "mainwindow.h"

#include "aboutdialog.h"
#include "appconfig.h"
#include "captioninfo.h"
#include "captionmanager.h"
#include "captionwidget.h"
#include "checkupdatedialog.h"
#include "framegrabber.h"
#include "globalmanager.h"
#include "httpmanager.h"
#include "imageitem.h"
#include "imageswidget.h"
#include "loadingdialog.h"
#include "messagedialog.h"
#include "mpvwidget.h"
#include "previewwidget.h"
#include "registerdialog.h"
#include "registerguidedialog.h"
#include "screenmanager.h"
#include "titlebar.h"
#include "translatemanager.h"
#include "videoplaywidget.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDebug>
#include <QDesktopServices>
#include <QDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QSplitter>
#include <QStandardPaths>
#include <QTimer>
#include <QTranslator>
#include <QUrl>
#include <QVBoxLayout>
#include <QWindow>

namespace {
// Steps a capture waits for.
enum CaptureStep {
    StepNone = 0,
    StepSelect = 1,
    StepSingle = 2,
    StepAll = 3,
};
// A seek whose playback restart never comes must not stall a pass for ever.
constexpr int kRestartTimeoutMs = 5000;
} // namespace

MainWindow::MainWindow(QWidget* parent)
    : CFramelessWindow(parent)
    , m_translator(new QTranslator(this))
{
    setObjectName(QStringLiteral("main_window"));
    setAttribute(Qt::WA_StyledBackground, true);
    initialize();
}

MainWindow::~MainWindow() = default;

void MainWindow::initialize()
{
    const QSize minimum = AppConfig::rate(QSize(1000, 630));
    qDebug() << "initialize mini main_windows_size" << minimum;
    qDebug() << "initialize main_windows_size" << AppConfig::rate(QSize(1100, 741));
    setMinimumSize(minimum);

    changeLangByType(TranslateManager::instance()->getLangType());
    setWindowTitle(AppConfig::APP_NAME);
    setWindowIcon(QIcon(QStringLiteral(":/images/logo.svg")));

    m_messageDialog = new MessageDialog(this);
    m_messageDialog->setModal(true);

    initTitleBar();
    initVideoPlayWidget();
    initImagesWidget();
    initPreviewWidget();
    initCaptionWidget();
    initMenu();
    initTopBarMenu();
    initConfig();
    m_videoPlayWidget->initShortCut();

    m_loadingDialog = new LoadingDialog(this, Qt::Dialog | Qt::WindowCloseButtonHint);
    connect(m_loadingDialog, &QDialog::finished, this, [](int) {
        GlobalManager::instance()->emitEvent(AppConfig::STOP_AI_CAPTION, QString());
    });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(5, 5, 5, 5));
    layout->setSpacing(AppConfig::rate(5));
    layout->addWidget(m_titleBar);

    m_rightSplitter = new QSplitter(Qt::Vertical);
    m_rightSplitter->addWidget(m_imagesWidget);
    m_rightSplitter->addWidget(m_previewWidget);
    m_rightSplitter->setCollapsible(1, false);
    m_rightSplitter->setStretchFactor(0, 1);
    m_rightSplitter->setStretchFactor(1, 10);

    m_mainSplitter = new QSplitter(Qt::Horizontal, this);
    m_mainSplitter->addWidget(m_captionWidget);
    m_mainSplitter->addWidget(m_videoPlayWidget);
    m_mainSplitter->addWidget(m_rightSplitter);
    for (int i = 0; i < 3; ++i) {
        m_mainSplitter->setCollapsible(i, false);
    }
    m_mainSplitter->setStretchFactor(1, 3);
    m_mainSplitter->setStretchFactor(2, 2);
    m_videoPlayWidget->setMinimumWidth(AppConfig::rate(480));
    m_rightSplitter->setMinimumWidth(AppConfig::rate(460));
    layout->addWidget(m_mainSplitter, 1);

    for (QWidget* panel : QList<QWidget*>{m_captionWidget, m_imagesWidget, m_videoPlayWidget, m_previewWidget,
                                          m_titleBar}) {
        panel->installEventFilter(this);
    }

    showCaptionWidget(false);

    connect(GlobalManager::instance(), &GlobalManager::globalEvent, this, &MainWindow::globalEventHandle);
    connect(DownloadManager::instance(), &DownloadManager::downloadLastVersionStateChanged, this,
            &MainWindow::downloadLastVersionStatus);
    connect(HttpManager::instance(), &HttpManager::requestError, this, &MainWindow::httpRequestErrorHandle);

    GlobalManager* global = GlobalManager::instance();
    if (global->readSettings(AppConfig::FILE_SAVE_PATH, QString()).toString().isEmpty()) {
        global->saveSettings(AppConfig::FILE_SAVE_PATH, global->getWritePath(AppConfig::APP_NAME));
    }
    if (global->readSettings(AppConfig::OPEN_FILE_PATH, QString()).toString().isEmpty()) {
        global->saveSettings(AppConfig::OPEN_FILE_PATH,
                             QStandardPaths::writableLocation(QStandardPaths::MoviesLocation));
    }

    m_restartTimeout = new QTimer(this);
    m_restartTimeout->setSingleShot(true);
    connect(m_restartTimeout, &QTimer::timeout, this, [this]() {
        if (m_pendingStep == StepNone) {
            // The seek was never answered: end the pass instead of waiting for ever.
            qDebug() << "Error seekToPositionForCapture: no reply";
            m_captureQueue.clear();
            m_currentImageItem = nullptr;
            m_loadingDialog->hide();
            showMessage(tr("Capture failed"), tr("The player did not reach the requested moment."));
            return;
        }
        qDebug() << "capture: no playback restart after the seek, capturing anyway";
        m_restartSeen = true;
        tryCaptureStep();
    });
    connect(TranslateManager::instance(), &TranslateManager::notify, this, [this](int) { retranslate(); });
    retranslate();
}

void MainWindow::initTitleBar()
{
    m_titleBar = new TitleBar(this);
    setTitleBar(m_titleBar);
    m_titleBar->showButtonByRegister(GlobalManager::instance()->isRegister());
    connect(m_titleBar, &TitleBar::titleBarButtonClicked, this, &MainWindow::titleBarButtonClickedHandle);
}

void MainWindow::initVideoPlayWidget()
{
    m_videoPlayWidget = new VideoPlayWidget(this);
    connect(m_videoPlayWidget, &VideoPlayWidget::dragFileSignal, this, &MainWindow::openMediaFile);
    connect(m_videoPlayWidget, &VideoPlayWidget::captureSelectSignal, this, &MainWindow::captureSelectHandle);
    connect(m_videoPlayWidget, &VideoPlayWidget::captureEventSignal, this, &MainWindow::captureEventHandle);
    connect(m_videoPlayWidget, &VideoPlayWidget::captionEditSignal, this, &MainWindow::captionEditHandle);
    connect(m_videoPlayWidget, &VideoPlayWidget::playerTimePos, this, [this](double seconds) {
        m_captionWidget->changeCaptionPlayByTime(seconds);
    });
    MpvWidget* mpv = m_videoPlayWidget->getMpvWidget();
    connect(mpv, &MpvWidget::playbackRestarted, this, [this](MpvWidget::RestartKind kind) {
        if (kind == MpvWidget::RestartAfterCaptureSeek && m_pendingStep != StepNone) {
            m_restartSeen = true;
            tryCaptureStep();
        }
    });
    connect(mpv, &MpvWidget::loadFailed, this, [this](const QString& path, const QString& reason) {
        showMessage(tr("The video cannot be played"),
                    tr("%1 could not be opened: %2").arg(QFileInfo(path).fileName(), reason));
    });
}

void MainWindow::initImagesWidget()
{
    m_imagesWidget = new ImagesWidget(this);
    // Room for the header row and one row of thumbnails with their scroll bar.
    m_imagesWidget->setMinimumHeight(AppConfig::rate(150));
    connect(m_imagesWidget, &ImagesWidget::showRegisterGuide, this, [this]() {
        RegisterGuideDialog::showAfterExport(this, [this]() { m_imagesWidget->registerGuideClosedHandle(); });
    });
    connect(m_imagesWidget, &ImagesWidget::exportFinishedSignal, this,
            [this](const QStringList& files, const QStringList& errors) {
                Q_UNUSED(files)
                if (!errors.isEmpty()) {
                    showMessage(tr("Some pictures were not saved"), errors.join(QLatin1Char('\n')));
                }
            });
}

void MainWindow::initPreviewWidget()
{
    m_previewWidget = new PreviewWidget(nullptr);
    connect(m_previewWidget, &PreviewWidget::showRegisterGuide, this, [this]() {
        RegisterGuideDialog::showAfterExport(this, [this]() { m_previewWidget->registerGuideClosedHandle(); });
    });
    connect(m_previewWidget, &PreviewWidget::exportFinishedSignal, this,
            [this](const QStringList& files, const QStringList& errors) {
                Q_UNUSED(files)
                if (!errors.isEmpty()) {
                    showMessage(tr("The picture was not saved"), errors.join(QLatin1Char('\n')));
                }
            });
}

void MainWindow::initCaptionWidget()
{
    m_captionWidget = new CaptionWidget(this);
    connect(m_captionWidget, &CaptionWidget::loadLocalSubtitleSignal, this, &MainWindow::addLocalSubtitle);
    connect(m_captionWidget, &CaptionWidget::clearCaptionSignal, this, [this]() {
        GlobalManager::instance()->emitEvent(AppConfig::REMOVE_CAPTION, QString());
    });
    connect(m_captionWidget, &CaptionWidget::createCaptionSignal, this, [this]() {
        if (!m_videoPlayWidget->isLoadFile()) {
            showMessage(tr("No video"), tr("Open a video first, then create a caption at the current time."));
            return;
        }
        if (!m_videoPlayWidget->insertCaptionAtCurrentTime()) {
            showMessage(tr("No room for a caption"),
                        tr("A caption already covers the current time. Move to a moment without a caption."));
        }
    });
    connect(m_captionWidget, &CaptionWidget::captureSelectSignal, this, [this](int) {
        m_videoPlayWidget->getControlButton(VideoPlayWidget::ButtonCaptureSelected)->click();
    });
    connect(m_captionWidget, &CaptionWidget::autoCaptionSignal, this, &MainWindow::autoCaptionHandle);
    connect(m_captionWidget, &CaptionWidget::captionTextChangedSignal, this, &MainWindow::regenerateCaptions);
    connect(m_captionWidget, &CaptionWidget::showInDialog, this, [this]() { popupCaptionWidget(true); });
    connect(m_captionWidget, &CaptionWidget::closeInDialog, this, [this]() { popupCaptionWidget(false); });
}

void MainWindow::initMenu()
{
    m_menu = new QMenu(this);
    m_menu->setObjectName(QStringLiteral("main_menu"));
    auto addAction = [this](int type) {
        QAction* action = m_menu->addAction(QString());
        connect(action, &QAction::triggered, this, [this, type]() { menuTapByType(type); });
        m_menuActions.insert(type, action);
        return action;
    };
    addAction(MenuOpenVideo)->setShortcut(QKeySequence::Open);
    addAction(MenuAddSubtitle);
    addAction(MenuCaptionPanel)->setCheckable(true);
    m_menu->addSeparator();
    addAction(MenuOutputFolder);

    m_formatMenu = m_menu->addMenu(QString());
    m_formatGroup = new QActionGroup(this);
    for (const QString& format : {AppConfig::FORMAT_PNG, AppConfig::FORMAT_JPG, AppConfig::FORMAT_WEBP}) {
        QAction* action = m_formatMenu->addAction(format);
        action->setCheckable(true);
        action->setData(format);
        m_formatGroup->addAction(action);
        connect(action, &QAction::triggered, this, [format]() {
            GlobalManager::instance()->saveSettings(AppConfig::FILE_EXTENSION, format);
        });
    }

    m_languageMenu = m_menu->addMenu(QString());
    m_languageGroup = new QActionGroup(this);
    const QMap<int, QString> names = TranslateManager::instance()->getLangNameMap();
    for (auto it = names.constBegin(); it != names.constEnd(); ++it) {
        QAction* action = m_languageMenu->addAction(it.value());
        action->setCheckable(true);
        action->setData(it.key());
        m_languageGroup->addAction(action);
        const int type = it.key();
        connect(action, &QAction::triggered, this, [this, type]() { languageMenuTapByType(type); });
    }
    m_menu->addSeparator();
    addAction(MenuCheckUpdate);
    addAction(MenuRegister);
    addAction(MenuLogFolder);
    addAction(MenuAbout);
    m_menu->addSeparator();
    addAction(MenuQuit)->setShortcut(QKeySequence::Quit);
    connect(m_menu, &QMenu::aboutToShow, this, [this]() {
        const QString format
            = GlobalManager::instance()->readSettings(AppConfig::FILE_EXTENSION, AppConfig::FORMAT_JPG).toString();
        for (QAction* action : m_formatGroup->actions()) {
            action->setChecked(action->data().toString() == format);
        }
        for (QAction* action : m_languageGroup->actions()) {
            action->setChecked(action->data().toInt() == TranslateManager::instance()->getLangType());
        }
        m_menuActions.value(MenuCaptionPanel)->setChecked(m_captionWidget->isVisible());
        m_menuActions.value(MenuRegister)->setVisible(!GlobalManager::instance()->isRegister());
    });
    // The window-wide shortcuts of the menu work while it is closed.
    addActions({m_menuActions.value(MenuOpenVideo), m_menuActions.value(MenuQuit)});
}

void MainWindow::initTopBarMenu()
{
    m_titleBar->setMenu(m_menu);
}

void MainWindow::initConfig()
{
    GlobalManager* global = GlobalManager::instance();
    m_previewWidget->changeOutputDir(global->readSettings(AppConfig::FILE_SAVE_PATH, QString()).toString());
    m_previewWidget->changeFileExtension(
        global->readSettings(AppConfig::FILE_EXTENSION, AppConfig::FORMAT_JPG).toString());
}

QMap<int, QString> MainWindow::getMenuTextMap() const
{
    return {
        {MenuOpenVideo, tr("Open video...")},
        {MenuAddSubtitle, tr("Add local subtitle...")},
        {MenuCaptionPanel, tr("Caption panel")},
        {MenuOutputFolder, tr("Output folder...")},
        {MenuCheckUpdate, tr("Check for updates")},
        {MenuRegister, tr("Register...")},
        {MenuAbout, tr("About Glimmer")},
        {MenuLogFolder, tr("Open log folder")},
        {MenuQuit, tr("Quit")},
    };
}

void MainWindow::retranslate()
{
    const QMap<int, QString> texts = getMenuTextMap();
    for (auto it = m_menuActions.constBegin(); it != m_menuActions.constEnd(); ++it) {
        it.value()->setText(texts.value(it.key()));
    }
    m_formatMenu->setTitle(tr("Output format"));
    m_languageMenu->setTitle(tr("Language"));
    m_loadingDialog->setWindowTitle(AppConfig::APP_NAME);
    if (m_captionDialog) {
        m_captionDialog->setWindowTitle(tr("Captions"));
    }
}

void MainWindow::startUp(const QStringList& arguments)
{
    GlobalManager* global = GlobalManager::instance();
    if (!global->readSettings(AppConfig::FIRST_OPEN_APP, false).toBool()) {
        global->saveSettings(AppConfig::FIRST_OPEN_APP, true);
        global->openUrl(global->getHomePageUrl());
    }
    for (const QString& argument : arguments) {
        if (!argument.startsWith(QLatin1Char('-'))) {
            // "glimmer VIDEO" (or a desktop's "Open with") opens the file at once.
            const QString path = argument.startsWith(QStringLiteral("file:")) ? QUrl(argument).toLocalFile() : argument;
            if (!m_videoPlayWidget->openFile(path)) {
                showMessage(tr("The video cannot be opened"), tr("%1 does not exist or cannot be read.").arg(path));
            }
            break;
        }
    }
}

// ---------------------------------------------------------------- languages

void MainWindow::changeLangByType(int type)
{
    if (!m_translator->isEmpty()) {
        QApplication::removeTranslator(m_translator);
    }
    const QString file = TranslateManager::instance()->getLangFileMap().value(type);
    qDebug() << "changeLangByType" << file << type;
    if (m_translator->load(file)) {
        QApplication::installTranslator(m_translator);
    }
    TranslateManager::instance()->setLangType(static_cast<TranslateManager::LanguageType>(type));
    emit TranslateManager::instance()->notify(type);
}

void MainWindow::languageMenuTapByType(int type)
{
    changeLangByType(type);
    GlobalManager::instance()->saveSettings(AppConfig::APP_LANG, type);
}

// ---------------------------------------------------------------- menus and title bar

void MainWindow::menuTapByType(int type)
{
    GlobalManager* global = GlobalManager::instance();
    switch (type) {
    case MenuOpenVideo:
        m_videoPlayWidget->loadFile();
        break;
    case MenuAddSubtitle:
        addLocalSubtitle();
        break;
    case MenuCaptionPanel:
        showCaptionWidget(!m_captionWidget->isVisible());
        break;
    case MenuOutputFolder: {
        const QString current = global->readSettings(AppConfig::FILE_SAVE_PATH, QString()).toString();
        const QString dir = QFileDialog::getExistingDirectory(this, tr("Choose the output folder"), current);
        if (!dir.isEmpty()) {
            global->saveSettings(AppConfig::FILE_SAVE_PATH, dir);
        }
        break;
    }
    case MenuCheckUpdate: {
        m_updateAskedByUser = true;
        auto* dialog = new CheckUpdateDialog(this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->show();
        dialog->checkForUpdate();
        break;
    }
    case MenuRegister: {
        auto* dialog = new RegisterDialog(this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
        break;
    }
    case MenuAbout:
        if (!m_aboutDialog) {
            m_aboutDialog = new AboutDialog(this);
            m_aboutDialog->setAttribute(Qt::WA_DeleteOnClose);
        }
        m_aboutDialog->show();
        m_aboutDialog->raise();
        break;
    case MenuLogFolder:
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(global->getLogFilePath()).absolutePath()));
        break;
    case MenuQuit:
        close();
        break;
    default:
        break;
    }
}

void MainWindow::titleBarButtonClickedHandle(int type)
{
    switch (type) {
    case TitleBar::OpenVideo:
        m_videoPlayWidget->loadFile();
        break;
    case TitleBar::Caption:
        showCaptionWidget(!m_captionWidget->isVisible());
        break;
    case TitleBar::Register:
        menuTapByType(MenuRegister);
        break;
    case TitleBar::Minimize:
        showMinimized();
        break;
    case TitleBar::Maximize:
        toggleMaximized();
        break;
    case TitleBar::Close:
        close();
        break;
    default:
        break;
    }
}

void MainWindow::downloadLastVersionStatus(DownloadManager::DownloadState state, QString text, QByteArray data)
{
    // The silent check at start-up offers an update only when there is one;
    // a check from the menu has its own dialog.
    if (DownloadManager::tagOfStateText(text) != DownloadManager::TAG_START
        || state != DownloadManager::DownloadFinished) {
        return;
    }
    if (CheckUpdateDialog::offersUpdate(data, GlobalManager::instance()->getAppVersion())) {
        auto* dialog = new CheckUpdateDialog(this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->downloadLastVersionStatus(state, text, data);
        dialog->show();
    }
}

void MainWindow::showCaptionWidget(bool show)
{
    if (m_captionDialog && m_captionDialog->isVisible()) {
        // Popped out: the caption panel lives in its own window.
        m_captionDialog->raise();
        return;
    }
    m_captionWidget->setVisible(show);
    if (auto* button = m_titleBar->button(TitleBar::Caption)) {
        const QSignalBlocker blocker(button);
        button->setChecked(show);
    }
    if (!show) {
        setMinimumWidth(AppConfig::rate(1000));
        if (!isMaximized()) {
            resize(width() - m_captionWidget->width(), height());
        }
    } else {
        setMinimumWidth(AppConfig::rate(1000) + m_captionWidget->width());
    }
}

void MainWindow::popupCaptionWidget(bool popup)
{
    if (popup) {
        if (!m_captionDialog) {
            m_captionDialog = new QDialog(this, Qt::Window | Qt::WindowCloseButtonHint);
            m_captionDialog->setObjectName(QStringLiteral("caption_dialog"));
            m_captionDialog->setWindowTitle(tr("Captions"));
            auto* layout = new QVBoxLayout(m_captionDialog);
            layout->setContentsMargins(0, 0, 0, 0);
            connect(m_captionDialog, &QDialog::finished, this, [this](int) { popupCaptionWidget(false); });
        }
        const QSize size = m_captionWidget->size();
        m_captionWidget->setParent(m_captionDialog);
        m_captionDialog->layout()->addWidget(m_captionWidget);
        m_captionWidget->show();
        m_captionDialog->resize(size.width(), qMax(size.height(), AppConfig::rate(500)));
        m_captionDialog->show();
        setMinimumWidth(AppConfig::rate(1000));
    } else if (m_captionDialog && m_captionWidget->parentWidget() == m_captionDialog) {
        m_captionDialog->layout()->removeWidget(m_captionWidget);
        m_mainSplitter->insertWidget(0, m_captionWidget);
        m_mainSplitter->setCollapsible(0, false);
        m_captionDialog->hide();
        showCaptionWidget(true);
    }
}

// ---------------------------------------------------------------- events

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        m_captionWidget->resetEditStatus();
        m_captionWidget->resetSearchStatus();
        m_previewWidget->resetEditStatus();
    }
    return CFramelessWindow::eventFilter(watched, event);
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    qDebug() << "max or normal:" << (isMaximized() ? "true" : "false");
    m_titleBar->changeRestoreButtonStatue(isMaximized());
    CFramelessWindow::resizeEvent(event);
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange) {
        m_titleBar->changeRestoreButtonStatue(isMaximized());
    }
    CFramelessWindow::changeEvent(event);
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    qDebug() << "mainwindow key press" << event->key();
    CFramelessWindow::keyPressEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    quitAppFinishEvent();
    CFramelessWindow::closeEvent(event);
}

void MainWindow::quitAppFinishEvent()
{
    m_previewWidget->quitAppFinishEvent();
    m_imagesWidget->quitAppFinishEvent();
    if (m_captionDialog) {
        m_captionDialog->close();
    }
    m_captionWidget->close();
}

void MainWindow::globalEventHandle(QString eventName, QVariant value)
{
    CaptionManager* captions = CaptionManager::instance();
    if (eventName == AppConfig::CAPTURE_IMAGE) {
        m_imagesWidget->addImage(value);
    }
    if (eventName == AppConfig::UPDATE_CAPTURE_IMAGE) {
        m_imagesWidget->updateByPixmapList(value.value<QList<QPixmap>>());
    }
    if (eventName == AppConfig::SELECT_IMAGE_COMPLETE) {
        m_previewWidget->showImage();
        m_previewWidget->scrollToEnd();
        m_previewWidget->initScaleProperty();
    }
    if (eventName == AppConfig::TASK_ID) {
        const QByteArray body = value.toByteArray();
        const QJsonObject answer = QJsonDocument::fromJson(body).object();
        const QString state = answer.value(QStringLiteral("state")).toString();
        if (state == QStringLiteral("failed") || (!body.isEmpty() && answer.isEmpty())) {
            const QString message = answer.value(QStringLiteral("message")).toString();
            aiCaptionFailed(message.isEmpty() ? tr("The speech service gave an answer that cannot be read.")
                                              : message);
        } else {
            m_aiCaptionRunning = false;
            captions->createCaptions(body, true);
            if (captions->getCaptions().isEmpty()) {
                showMessage(tr("No speech found"),
                            tr("No words were recognised in this video's sound track. Check the caption "
                               "language, or add a subtitle file instead."));
            }
        }
    }
    if (eventName == AppConfig::TIME_POS) {
        const double seconds = value.toInt() / 1000.0;
        qDebug() << "字幕时间:" << seconds;
        m_videoPlayWidget->pause();
        m_videoPlayWidget->seekToPostion(seconds);
    }
    if (eventName == AppConfig::UPDATE_CAPTION) {
        m_videoPlayWidget->loadSubTitleFile(value.toString());
    }
    if (eventName == AppConfig::VIDEO_TO_AUDIO_START) {
        qDebug() << "video_to_audio_start";
    }
    if (eventName == AppConfig::VIDEO_TO_AUDIO_STOP) {
        const QString audio = captions->getAudioFilePath();
        if (QFileInfo(audio).size() <= 0) {
            aiCaptionFailed(tr("The sound track could not be extracted from the video. It may have no "
                               "audio, or ffmpeg is missing."));
        } else {
            Language::LanguageItem* item = captions->getCurrentLangItem();
            HttpManager::instance()->loadCaptions(audio, item ? item->code : QString());
        }
    }
    if (eventName == AppConfig::CHANGE_CAPTION) {
        m_editedCaption = value.canConvert<CaptionInfo*>() ? value.value<CaptionInfo*>() : nullptr;
    }
    if (eventName == AppConfig::UPDATE_CAPTION_NEW) {
        m_editedCaption = value.canConvert<CaptionInfo*>() ? value.value<CaptionInfo*>() : nullptr;
        captions->changeCaptionNew(m_editedCaption, false);
    }
    if (eventName == AppConfig::CREATE_CAPTION_COMPLETE) {
        if (!captions->getCaptions().isEmpty()) {
            m_captionWidget->createCaption(QByteArray());
            showCaptionWidget(true);
        }
        m_videoPlayWidget->loadSubTitleFile(value.toString());
        m_loadingDialog->hide();
    }
    if (eventName == AppConfig::LOAD_FILE_COMPLETE) {
        const QFileInfo file(value.toString());
        GlobalManager::instance()->setCurrentFile(file);
        const QString title = QStringLiteral("%1 - %2").arg(AppConfig::APP_NAME, file.fileName());
        setWindowTitle(title);
        m_titleBar->setTitle(title);
        if (captions->getCaptions().isEmpty()) {
            captions->createCaptions(QByteArrayLiteral("{\"state\":\"success\",\"utterances\":[]}"), false);
        }
    }
    if (eventName == AppConfig::STOP_AI_CAPTION) {
        GlobalManager::instance()->stopConvert();
        HttpManager::instance()->stopUploadFile();
        m_captureQueue.clear();
        m_aiCaptionRunning = false;
        // A cancelled re-capture stops before its next frame.
        if (m_currentImageItem && m_pendingStep == StepNone) {
            m_currentImageItem = nullptr;
            m_restartTimeout->stop();
        }
    }
    if (eventName == AppConfig::REMOVE_CAPTION) {
        m_videoPlayWidget->removeCaption(0);
        captions->clearCaptions();
        m_captionWidget->createCaption(QByteArray());
    }
    if (eventName == AppConfig::REGISTER_COMPLETE) {
        m_titleBar->showButtonByRegister(value.toInt() == 1);
    }
    if (eventName == AppConfig::SETTING_CHANGE) {
        GlobalManager* global = GlobalManager::instance();
        const QString key = value.toString();
        if (key == AppConfig::FILE_SAVE_PATH) {
            m_previewWidget->changeOutputDir(global->readSettings(AppConfig::FILE_SAVE_PATH, QString()).toString());
        }
        if (key == AppConfig::FILE_EXTENSION) {
            m_previewWidget->changeFileExtension(
                global->readSettings(AppConfig::FILE_EXTENSION, AppConfig::FORMAT_JPG).toString());
        }
    }
}

// ---------------------------------------------------------------- subtitles and media

void MainWindow::openMediaFile(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QStringLiteral("srt") || suffix == QStringLiteral("ass")) {
        loadCaption(path);
        return;
    }
    m_videoPlayWidget->loadFileByFileName(path);
}

void MainWindow::addLocalSubtitle()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open local subtitle"), QString(),
                                                      QStringLiteral("%1  (*.ass *.srt)").arg(tr("Subtitle Files")));
    loadCaption(path);
    m_captionWidget->updateSelectAllText();
}

void MainWindow::loadCaption(const QString& path)
{
    if (path.isEmpty()) {
        return;
    }
    showCaptionWidget(true);
    CaptionManager* captions = CaptionManager::instance();
    QString assPath = path;
    if (QFileInfo(path).suffix().toLower() == QStringLiteral("srt")) {
        assPath = GlobalManager::instance()->srtToAss(path);
    }
    const int result = assPath.isEmpty() ? 1 : captions->loadCaptionFile(assPath);
    m_captionWidget->createCaption(QByteArray());
    if (result != 0 || captions->getCaptions().isEmpty()) {
        QString reason = captions->lastError();
        if (assPath.isEmpty() && reason.isEmpty()) {
            reason = tr("The subtitle file could not be converted.");
        }
        showMessage(tr("No captions loaded"),
                    tr("%1 holds no captions that can be shown.").arg(QFileInfo(path).fileName())
                        + (reason.isEmpty() ? QString() : QStringLiteral("\n\n") + reason));
        if (assPath.isEmpty()) {
            return;
        }
    }
    m_videoPlayWidget->loadSubTitleFile(assPath);
}

void MainWindow::regenerateCaptions(CaptionInfo* info)
{
    CaptionManager* captions = CaptionManager::instance();
    if (captions->getCaptions().isEmpty()) {
        return;
    }
    CaptionInfo* target = info ? info : captions->getCaptions().constFirst();
    if (info) {
        // A text edit from the list: the re-capture follows the single-caption path.
        m_editedCaption = info;
        m_recaptureAllPending = false;
    }
    m_videoPlayWidget->pause();
    captions->changeCaptionNew(target, false);
    m_captionWidget->updateCaptionItem(info);
}

void MainWindow::showMessage(const QString& title, const QString& message)
{
    qDebug() << "message:" << title << message;
    m_messageDialog->showMessage(title, message);
}

// ---------------------------------------------------------------- automatic captions

void MainWindow::autoCaptionHandle(int languageKey)
{
    CaptionManager* captions = CaptionManager::instance();
    if (!m_videoPlayWidget->isLoadFile()) {
        showMessage(tr("No video"), tr("Open a video first, then generate its captions."));
        return;
    }
    if (m_aiCaptionRunning) {
        return;
    }
    captions->setCurrentLangItem(captions->getLangItemByKey(languageKey));
    m_aiCaptionRunning = true;
    m_loadingDialog->showWithText(tr("Generating captions..."));
    GlobalManager::instance()->videoToAudio(GlobalManager::instance()->getCurrentFile().absoluteFilePath());
}

void MainWindow::aiCaptionFailed(const QString& message)
{
    m_aiCaptionRunning = false;
    m_loadingDialog->hide();
    showMessage(tr("Automatic captions failed"), message);
}

void MainWindow::httpRequestErrorHandle(const QString& key, const QJsonObject& object, const QByteArray& data)
{
    Q_UNUSED(data)
    if (key != AppConfig::TASK_ID || !m_aiCaptionRunning) {
        return;
    }
    // The client words every failure for the user: the service's own answer
    // when it gave one, otherwise what went wrong on the way.
    const QString message = object.value(QStringLiteral("message")).toString();
    aiCaptionFailed(message.isEmpty() ? tr("The speech service could not be reached.") : message);
}

// ---------------------------------------------------------------- capture

void MainWindow::emitCapture(const QPixmap& pixmap)
{
    MpvWidget* mpv = m_videoPlayWidget->getMpvWidget();
    AppConfig::CaptureData data;
    data.pixmap = pixmap;
    data.time = mpv->getCurrentSecond();
    data.frame = mpv->getCurrentFrame();
    qDebug() << "capture one select image complete:" << data.time << data.frame;
    GlobalManager::instance()->emitEvent(AppConfig::CAPTURE_IMAGE, QVariant::fromValue(data));
}

void MainWindow::seekForCapture(double seconds)
{
    m_pendingStep = StepNone;
    m_waitElapsed = false;
    m_restartSeen = false;
    m_videoPlayWidget->pause();
    m_restartTimeout->start(2 * kRestartTimeoutMs);
    m_videoPlayWidget->getMpvWidget()->seekToPositionForCapture(seconds);
}

void MainWindow::armCaptureStep(int step)
{
    // After the seek's reply: 500 ms, and the frame of that seek on screen.
    m_pendingStep = step;
    m_waitElapsed = false;
    QTimer::singleShot(500, this, [this]() {
        m_waitElapsed = true;
        tryCaptureStep();
    });
    if (m_restartSeen) {
        m_restartTimeout->stop();
    } else {
        m_restartTimeout->start(kRestartTimeoutMs);
    }
}

void MainWindow::tryCaptureStep()
{
    if (m_pendingStep == StepNone || !m_waitElapsed || !m_restartSeen) {
        return;
    }
    m_restartTimeout->stop();
    const int step = m_pendingStep;
    m_pendingStep = StepNone;
    switch (step) {
    case StepSelect:
        captureSelectStep();
        break;
    case StepSingle:
        recaptureSingleStep();
        break;
    case StepAll:
        recaptureAllStep(m_recaptureItems);
        break;
    default:
        break;
    }
}

void MainWindow::captureSelectHandle(int type)
{
    if (type == 0) {
        m_captureQueue.clear();
        for (CaptionInfo* info : CaptionManager::instance()->getCaptions()) {
            if (info->isCheck) {
                m_captureQueue.append(info);
            }
        }
        if (m_captureQueue.isEmpty()) {
            return;
        }
        m_loadingDialog->showWithText(tr("Capturing images"));
        CaptionInfo* first = m_captureQueue.takeFirst();
        seekForCapture(FrameGrabber::captureSeconds(CaptionManager::parseAssTime(first->start)));
    } else if (type == 17) {
        armCaptureStep(StepSelect);
    }
}

void MainWindow::captureSelectStep()
{
    const QPixmap pixmap = m_videoPlayWidget->getMpvWidget()->takeSnapshot();
    if (pixmap.isNull()) {
        qDebug() << "capture select image failed.";
        m_loadingDialog->hide();
        showMessage(tr("Capture failed"), tr("The frame could not be captured from the player."));
        return;
    }
    emitCapture(pixmap);
    if (!m_captureQueue.isEmpty()) {
        CaptionInfo* next = m_captureQueue.takeFirst();
        seekForCapture(FrameGrabber::captureSeconds(CaptionManager::parseAssTime(next->start)));
        return;
    }
    m_videoPlayWidget->changeCaptureType(0);
    m_captionWidget->changeCaptureString(tr("Capture checked"));
    m_loadingDialog->hide();
    emit captureSelectFinished();
}

void MainWindow::captionEditHandle(CaptionInfo* edit, bool isAll)
{
    if (!m_videoPlayWidget->isLoadFile()) {
        return;
    }
    m_videoPlayWidget->pause();
    m_recaptureAllPending = isAll;
    m_editedCaption = isAll ? nullptr : edit;
    CaptionManager::instance()->changeCaptionNew(edit, isAll);
    m_captionWidget->updateCaptionItem(isAll ? nullptr : edit);
}

void MainWindow::captureEventHandle(int type, const QVariant& data)
{
    Q_UNUSED(data)
    MpvWidget* mpv = m_videoPlayWidget->getMpvWidget();
    if (type == 14) {
        const QList<ImageItem*> items = m_imagesWidget->items();
        qDebug() << "EVENT_CODE_LOAD_CAPTION_COMPLETE" << items.size();
        qDebug() << "caption_info:" << (m_editedCaption ? "true" : "false");
        if (!m_editedCaption) {
            if (!items.isEmpty() && m_recaptureAllPending) {
                m_loadingDialog->showWithText(tr("Applying current style"));
                m_recapturedPixmaps.clear();
                m_currentImageItem = items.constFirst();
                qDebug() << "seektoposition after load caption, seek index = 0";
                seekForCapture(m_currentImageItem->getCpatureTime());
                m_recaptureAllPending = false;
            }
        } else {
            const double now = mpv->getCurrentSecond();
            for (ImageItem* item : items) {
                if (qAbs(item->getCpatureTime() - now) <= 0.05) {
                    m_currentImageItem = item;
                    break;
                }
            }
            qDebug() << "m_current_image_item is nullptr:" << (m_currentImageItem ? "false" : "true");
            if (m_currentImageItem) {
                qDebug() << "capture time compare:" << m_currentImageItem->getCpatureTime() << now
                         << mpv->getCurrentFrame();
                if (m_currentImageItem->getCpatureTime() != now) {
                    seekForCapture(m_currentImageItem->getCpatureTime());
                } else {
                    // Already there: the frame on screen only needs the new subtitles.
                    m_restartSeen = true;
                    armCaptureStep(StepSingle);
                }
            }
        }
    } else if (type == 16) {
        if (m_currentImageItem) {
            m_recaptureItems = m_imagesWidget->items();
            armCaptureStep(m_editedCaption ? StepSingle : StepAll);
        }
    }
}

void MainWindow::recaptureSingleStep()
{
    if (!m_currentImageItem) {
        return;
    }
    qDebug() << "重新截图-单张:" << m_currentImageItem->getCpatureTime();
    const QPixmap pixmap = m_videoPlayWidget->getMpvWidget()->takeSnapshot();
    m_currentImageItem->changeImageByPixmap(pixmap);
    m_imagesWidget->updateImageShow();
    m_previewWidget->updateImageShow();
    m_currentImageItem = nullptr;
    emit recaptureFinished();
}

void MainWindow::recaptureAllStep(const QList<ImageItem*>& items)
{
    if (items.size() <= m_recapturedPixmaps.size()) {
        return;
    }
    MpvWidget* mpv = m_videoPlayWidget->getMpvWidget();
    qDebug() << "重新截图:" << m_recapturedPixmaps.size() << mpv->getCurrentSecond();
    const QPixmap pixmap = mpv->takeSnapshot();
    if (pixmap.isNull()) {
        m_loadingDialog->hide();
        return;
    }
    m_recapturedPixmaps.append(pixmap);
    if (m_currentImageItem) {
        m_currentImageItem->changeImageByPixmap(pixmap);
    }
    m_imagesWidget->updateImageShow();
    m_previewWidget->updateImageShow();
    const int i = m_recapturedPixmaps.size();
    if (i < items.size()) {
        m_currentImageItem = items.at(i);
        qDebug() << "seek index = " << i;
        seekForCapture(m_currentImageItem->getCpatureTime());
    } else {
        m_currentImageItem = nullptr;
        m_loadingDialog->hide();
        emit recaptureFinished();
    }
}
