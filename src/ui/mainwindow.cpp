#include "mainwindow.h"

#include "aboutdialog.h"
#include "appconfig.h"
#include "captioninfo.h"
#include "captionmanager.h"
#include "captionwidget.h"
#include "capturecontroller.h"
#include "playercapturesource.h"
#include "checkupdatedialog.h"
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
#include "settings.h"
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
    initCaptureController();

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
    connect(m_videoPlayWidget, &VideoPlayWidget::captionEditSignal, this, &MainWindow::captionEditHandle);
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
            = Settings::instance()->value(AppConfig::FILE_EXTENSION).toString();
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
    m_previewWidget->changeOutputDir(Settings::instance()->value(AppConfig::FILE_SAVE_PATH).toString());
    m_previewWidget->changeFileExtension(
        Settings::instance()->value(AppConfig::FILE_EXTENSION).toString());
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
        const QString current = Settings::instance()->value(AppConfig::FILE_SAVE_PATH).toString();
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
        m_captureController->setEditedCaption(value.canConvert<CaptionInfo*>() ? value.value<CaptionInfo*>()
                                                                               : nullptr);
    }
    if (eventName == AppConfig::UPDATE_CAPTION_NEW) {
        CaptionInfo* caption = value.canConvert<CaptionInfo*>() ? value.value<CaptionInfo*>() : nullptr;
        m_captureController->setEditedCaption(caption);
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
        m_captureController->cancel();
        m_aiCaptionRunning = false;
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
        m_captureController->captionEdited(info, false);
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

void MainWindow::initCaptureController()
{
    m_captureController
        = new CaptureController(new PlayerCaptureSource(m_videoPlayWidget), m_imagesWidget, this);
    CaptureController* capture = m_captureController;
    connect(m_videoPlayWidget, &VideoPlayWidget::captureNowRequested, capture, &CaptureController::captureNow);
    connect(m_videoPlayWidget, &VideoPlayWidget::captureCheckedRequested, capture,
            &CaptureController::startCaptureChecked);
    connect(capture, &CaptureController::busy, m_loadingDialog, &LoadingDialog::showWithText);
    connect(capture, &CaptureController::idle, m_loadingDialog, &QWidget::hide);
    connect(capture, &CaptureController::failed, this, &MainWindow::showMessage);
    connect(capture, &CaptureController::frameReplaced, m_previewWidget, &PreviewWidget::updateImageShow);
    connect(capture, &CaptureController::recaptureFinished, this, &MainWindow::recaptureFinished);
    connect(capture, &CaptureController::checkedPassFinished, this, [this](int skipped) {
        m_captionWidget->changeCaptureString(tr("Capture checked"));
        if (skipped > 0) {
            showMessage(tr("Some captions were not captured"),
                        tr("%n caption(s) start at or after the end of the video, or have no readable start "
                           "time, and were skipped.",
                           nullptr, skipped));
        }
        emit captureSelectFinished();
    });
}

void MainWindow::captionEditHandle(CaptionInfo* edit, bool isAll)
{
    if (!m_videoPlayWidget->isLoadFile()) {
        return;
    }
    m_captureController->captionEdited(edit, isAll);
    CaptionManager::instance()->changeCaptionNew(edit, isAll);
    m_captionWidget->updateCaptionItem(isAll ? nullptr : edit);
}
