#include "mainwindow.h"

#include "appconfig.h"
#include "autocaptionflow.h"
#include "captiondock.h"
#include "captionfileflow.h"
#include "captionmanager.h"
#include "captionwidget.h"
#include "capturecontroller.h"
#include "checkupdatedialog.h"
#include "closeguard.h"
#include "globalmanager.h"
#include "httpmanager.h"
#include "imageswidget.h"
#include "loadingdialog.h"
#include "logcategories.h"
#include "mainmenu.h"
#include "messagedialog.h"
#include "mpvwidget.h"
#include "previewwidget.h"
#include "settings.h"
#include "titlebar.h"
#include "translatemanager.h"
#include "videoplaywidget.h"
#include "windowflows.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDebug>
#include <QFileInfo>
#include <QPushButton>
#include <QSplitter>
#include <QStandardPaths>
#include <QTranslator>
#include <QUrl>
#include <QVBoxLayout>

#include <utility>

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
    qCDebug(lcUi) << "initialize mini main_windows_size" << minimum;
    qCDebug(lcUi) << "initialize main_windows_size" << AppConfig::rate(QSize(1100, 741));
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
    m_flows = new WindowFlows({this, m_videoPlayWidget, m_imagesWidget, m_previewWidget, m_captionWidget,
                               m_loadingDialog, m_messageDialog});
    m_flows->addActions(m_menu);
    connect(m_flows, &WindowFlows::captureCheckedFinished, this, &MainWindow::captureSelectFinished);
    connect(m_flows, &WindowFlows::recaptureFinished, this, &MainWindow::recaptureFinished);

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

    m_captionDock = new CaptionDock(m_captionWidget, m_mainSplitter, this);
    connect(m_captionWidget, &CaptionWidget::showInDialog, m_captionDock, &CaptionDock::popOut);
    connect(m_captionWidget, &CaptionWidget::closeInDialog, m_captionDock, &CaptionDock::dockBack);
    connect(m_captionDock, &CaptionDock::docked, this, [this]() { showCaptionWidget(true); });
    connect(m_captionDock, &CaptionDock::shownChanged, this, [this](bool shown) {
        if (auto* button = m_titleBar->button(TitleBar::Caption)) {
            const QSignalBlocker blocker(button);
            button->setChecked(shown);
        }
    });

    for (QWidget* panel : QList<QWidget*>{m_captionWidget, m_imagesWidget, m_videoPlayWidget, m_previewWidget,
                                          m_titleBar}) {
        panel->installEventFilter(this);
    }

    showCaptionWidget(false);

    connect(GlobalManager::instance(), &GlobalManager::globalEvent, this, &MainWindow::globalEventHandle);
    connect(DownloadManager::instance(), &DownloadManager::downloadLastVersionStateChanged, this,
            &MainWindow::downloadLastVersionStatus);

    GlobalManager* global = GlobalManager::instance();
    if (Settings::instance()->value(AppConfig::FILE_SAVE_PATH).toString().isEmpty()) {
        global->saveSettings(AppConfig::FILE_SAVE_PATH, global->getWritePath(AppConfig::APP_NAME));
    }
    if (Settings::instance()->value(AppConfig::OPEN_FILE_PATH).toString().isEmpty()) {
        global->saveSettings(AppConfig::OPEN_FILE_PATH,
                             QStandardPaths::writableLocation(QStandardPaths::MoviesLocation));
    }

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
    connect(m_videoPlayWidget, &VideoPlayWidget::playerTimePos, this, [this](double seconds) {
        m_captionWidget->changeCaptionPlayByTime(seconds);
    });
    connect(m_videoPlayWidget->getMpvWidget(), &MpvWidget::loadFailed, this, [this](const QString& path, const QString& reason) {
        showMessage(tr("The video cannot be played"),
                    tr("%1 could not be opened: %2").arg(QFileInfo(path).fileName(), reason));
    });
}

void MainWindow::initImagesWidget()
{
    m_imagesWidget = new ImagesWidget(this);
    // Room for the header row and one row of thumbnails with their scroll bar.
    m_imagesWidget->setMinimumHeight(AppConfig::rate(150));
}

void MainWindow::initPreviewWidget()
{
    m_previewWidget = new PreviewWidget(nullptr);
}

void MainWindow::initCaptionWidget()
{
    m_captionWidget = new CaptionWidget(this);
    connect(m_captionWidget, &CaptionWidget::loadLocalSubtitleSignal, this, &MainWindow::addLocalSubtitle);
}

void MainWindow::initMenu()
{
    m_menu = new MainMenu(this);
    connect(m_menu, &MainMenu::menuTapped, this, &MainWindow::menuTapByType);
    connect(m_menu, &MainMenu::languageTapped, this, &MainWindow::languageMenuTapByType);
    connect(m_menu, &QMenu::aboutToShow, this,
            [this]() { m_menu->action(MainMenu::MenuCaptionPanel)->setChecked(m_captionWidget->isVisible()); });
    // Quit works while the menu is closed; Ctrl+O is the player panel's own.
    addAction(m_menu->action(MainMenu::MenuQuit));
}

void MainWindow::initTopBarMenu()
{
    m_titleBar->setMenu(m_menu);
}

void MainWindow::initConfig()
{
    m_previewWidget->changeOutputDir(Settings::instance()->value(AppConfig::FILE_SAVE_PATH).toString());
    m_previewWidget->changeFileExtension(
        Settings::instance()->value(AppConfig::FILE_EXTENSION).toString());
}

QMap<int, QString> MainWindow::getMenuTextMap() const
{
    return MainMenu::texts();
}

void MainWindow::retranslate()
{
    m_menu->retranslate();
    m_loadingDialog->setWindowTitle(AppConfig::APP_NAME);
    m_captionDock->retranslate();
}

void MainWindow::startUp(const QStringList& arguments)
{
    GlobalManager* global = GlobalManager::instance();
    if (!Settings::instance()->value(AppConfig::FIRST_OPEN_APP).toBool()) {
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
    qCDebug(lcUi) << "changeLangByType" << file << type;
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
    switch (type) {
    case MainMenu::MenuOpenVideo:
        m_videoPlayWidget->loadFile();
        break;
    case MainMenu::MenuAddSubtitle:
        addLocalSubtitle();
        break;
    case MainMenu::MenuCaptionPanel:
        showCaptionWidget(!m_captionWidget->isVisible());
        break;
    case MainMenu::MenuQuit:
        m_userClose = true;
        close();
        break;
    default:
        // Dialogs of their own: output folder, updates, registration, About, logs.
        m_menu->openDialog(type);
        break;
    }
}

void MainWindow::titleBarButtonClickedHandle(int type)
{
    switch (type) {
    case TitleBar::OpenVideo:
        menuTapByType(MainMenu::MenuOpenVideo);
        break;
    case TitleBar::Caption:
        menuTapByType(MainMenu::MenuCaptionPanel);
        break;
    case TitleBar::Register:
        menuTapByType(MainMenu::MenuRegister);
        break;
    case TitleBar::Minimize:
        showMinimized();
        break;
    case TitleBar::Maximize:
        toggleMaximized();
        break;
    case TitleBar::Close:
        menuTapByType(MainMenu::MenuQuit);
        break;
    default:
        break;
    }
}

void MainWindow::downloadLastVersionStatus(DownloadManager::DownloadState state, QString text, QByteArray data)
{
    CheckUpdateDialog::offerAtStartUp(this, state, text, data);
}

void MainWindow::showCaptionWidget(bool show)
{
    m_captionDock->setShown(show);
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
    qCDebug(lcUi) << "max or normal:" << (isMaximized() ? "true" : "false");
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
    qCDebug(lcUi) << "mainwindow key press" << event->key();
    CFramelessWindow::keyPressEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    const bool asked = std::exchange(m_userClose, false) || event->spontaneous();
    if (asked && !m_flows->closeGuard()->confirmClose()) {
        event->ignore();
        return;
    }
    quitAppFinishEvent();
    CFramelessWindow::closeEvent(event);
}

void MainWindow::quitAppFinishEvent()
{
    m_previewWidget->quitAppFinishEvent();
    m_imagesWidget->quitAppFinishEvent();
    m_captionDock->close();
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
        m_flows->autoCaptions()->answerArrived(value.toByteArray());
    }
    if (eventName == AppConfig::TIME_POS) {
        const double seconds = value.toInt() / 1000.0;
        qCDebug(lcUi) << "字幕时间:" << seconds;
        m_videoPlayWidget->pause();
        m_videoPlayWidget->seekToPostion(seconds);
    }
    if (eventName == AppConfig::UPDATE_CAPTION) {
        m_videoPlayWidget->loadSubTitleFile(value.toString());
    }
    if (eventName == AppConfig::VIDEO_TO_AUDIO_START) {
        qCDebug(lcUi) << "video_to_audio_start";
    }
    if (eventName == AppConfig::VIDEO_TO_AUDIO_STOP) {
        m_flows->autoCaptions()->audioExtracted();
    }
    if (eventName == AppConfig::CHANGE_CAPTION) {
        m_flows->capture()->setEditedCaption(value.canConvert<CaptionInfo*>() ? value.value<CaptionInfo*>()
                                                                               : nullptr);
    }
    if (eventName == AppConfig::UPDATE_CAPTION_NEW) {
        CaptionInfo* caption = value.canConvert<CaptionInfo*>() ? value.value<CaptionInfo*>() : nullptr;
        m_flows->capture()->setEditedCaption(caption);
        captions->changeCaptionNew(caption, false);
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
        m_flows->capture()->cancel();
        m_flows->autoCaptions()->cancel();
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
        const QString key = value.toString();
        if (key == AppConfig::FILE_SAVE_PATH) {
            m_previewWidget->changeOutputDir(Settings::instance()->value(AppConfig::FILE_SAVE_PATH).toString());
        }
        if (key == AppConfig::FILE_EXTENSION) {
            m_previewWidget->changeFileExtension(
                Settings::instance()->value(AppConfig::FILE_EXTENSION).toString());
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
    loadCaption(m_flows->captionFiles()->chooseFile());
    m_captionWidget->updateSelectAllText();
}

void MainWindow::loadCaption(const QString& path)
{
    if (path.isEmpty()) {
        return;
    }
    showCaptionWidget(true);
    m_flows->captionFiles()->load(path);
}

CaptureController* MainWindow::captureController() const
{
    return m_flows->capture();
}

void MainWindow::showMessage(const QString& title, const QString& message)
{
    m_flows->showMessage(title, message);
}

// ---------------------------------------------------------------- automatic captions

// ---------------------------------------------------------------- capture

