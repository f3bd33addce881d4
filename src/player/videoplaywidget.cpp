#include "videoplaywidget.h"

#include "appconfig.h"
#include "captioninfo.h"
#include "captionmanager.h"
#include "captionoverlay.h"
#include "captionstylebar.h"
#include "globalmanager.h"
#include "logcategories.h"
#include "mpvwidget.h"
#include "settings.h"

#include <QApplication>
#include <QComboBox>
#include <QProxyStyle>
#include <QDebug>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QShortcut>
#include <QSlider>
#include <QStyle>
#include <QStyleFactory>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

#include <cmath>

namespace {
const QString kIconPlay = QStringLiteral(":/images/videoplay/play.svg");
const QString kIconPause = QStringLiteral(":/images/videoplay/pause.svg");
const QString kIconSound = QStringLiteral(":/images/videoplay/sound.svg");
const QString kIconMute = QStringLiteral(":/images/videoplay/mute.svg");
const QString kZeroTime = QStringLiteral("00:00:00:00");
const char* const kButtonProperty = "button";
constexpr double kInsertDurationMs = 3000.0;

// A click on the seek bar goes to the pointer, as in every player.
class JumpToClickStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override
    {
        if (hint == QStyle::SH_Slider_AbsoluteSetButtons) {
            return Qt::LeftButton;
        }
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

QString twoDigits(int value)
{
    return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0'));
}
} // namespace

VideoPlayWidget::VideoPlayWidget(QWidget* parent)
    : BaseWidget(parent)
{
    setObjectName(QStringLiteral("video_play_widget"));
    setAttribute(Qt::WA_StyledBackground, true);
    setAcceptDrops(true);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(AppConfig::rate(4));

    m_logo = createLogo();
    layout->addWidget(m_logo, 1);

    m_videoPage = new QWidget(this);
    m_videoPage->setObjectName(QStringLiteral("video_page"));
    auto* videoLayout = new QGridLayout(m_videoPage);
    videoLayout->setContentsMargins(0, 0, 0, 0);
    m_mpv = new MpvWidget(m_videoPage);
    m_overlay = new CaptionOverlay(m_videoPage);
    // Same cell: the overlay, created last, lies on top of the video.
    videoLayout->addWidget(m_mpv, 0, 0);
    videoLayout->addWidget(m_overlay, 0, 0);
    m_overlay->raise();
    layout->addWidget(m_videoPage, 1);

    m_styleBar = new CaptionStyleBar(this);
    layout->addWidget(m_styleBar);
    layout->addWidget(createControls());

    connect(m_mpv, &MpvWidget::getMpvProperty, this, &VideoPlayWidget::mpvPropertyHandle);
    connect(m_mpv, &MpvWidget::mpvEvents, this, &VideoPlayWidget::mpvEventHandle, Qt::DirectConnection);
    connect(m_mpv, &MpvWidget::loadFailed, this, &VideoPlayWidget::loadFailedHandle);
    connect(m_mpv, &MpvWidget::endReached, this, [this](bool reached) {
        if (reached && m_mpv->getPlayStatus() == MpvWidget::Play) {
            m_mpv->setPlayerStatus(MpvWidget::Pause);
            setPlayIcon(false);
        }
    });

    connect(m_overlay, &CaptionOverlay::captionEditSignal, this, &VideoPlayWidget::captionEditSignal);
    connect(m_overlay, &CaptionOverlay::editStateChanged, this, &VideoPlayWidget::captionEditHandle);
    connect(m_overlay, &CaptionOverlay::positionDragged, m_styleBar, &CaptionStyleBar::setPosition);
    connect(m_styleBar, &CaptionStyleBar::captionEditSignal, this, &VideoPlayWidget::captionEditSignal);
    connect(m_styleBar, &CaptionStyleBar::captionCheckStateChangedSignal, this,
            &VideoPlayWidget::captionCheckStateChangedSignal);
    connect(m_styleBar, &CaptionStyleBar::insertCaptionSignal, this,
            [this]() { insertCaptionAtCurrentTime(); });
    connect(m_styleBar, &CaptionStyleBar::editTextSignal, this, [this]() {
        pause();
        m_overlay->startEditing();
    });

    changeLang();
    showLogo(true);
    initConfig();
    initShortCut();
}

QWidget* VideoPlayWidget::createLogo()
{
    auto* logo = new QWidget(this);
    logo->setObjectName(QStringLiteral("logo_widget"));
    auto* layout = new QVBoxLayout(logo);
    layout->addStretch(1);
    auto* image = new QLabel(logo);
    image->setObjectName(QStringLiteral("logo_image"));
    image->setAlignment(Qt::AlignCenter);
    image->setPixmap(QIcon(QStringLiteral(":/images/logo.svg")).pixmap(AppConfig::rate(QSize(96, 96))));
    layout->addWidget(image);
    m_logoText = new QLabel(logo);
    m_logoText->setObjectName(QStringLiteral("logo_text"));
    m_logoText->setAlignment(Qt::AlignCenter);
    m_logoText->setTextFormat(Qt::RichText);
    m_logoText->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(m_logoText, &QLabel::linkActivated, this, [this]() { loadFile(); });
    layout->addWidget(m_logoText);
    layout->addStretch(1);
    return logo;
}

QPushButton* VideoPlayWidget::createControlButton(int id, const QString& icon, const QString& styleProperty)
{
    auto* button = new QPushButton(this);
    button->setProperty(kButtonProperty, id);
    if (!icon.isEmpty()) {
        button->setIcon(QIcon(icon));
        button->setIconSize(AppConfig::rate(QSize(20, 20)));
        // Transport buttons show only their icon; the capture button gets a text too.
        button->setProperty("iconOnly", id != ButtonCapture);
    }
    if (!styleProperty.isEmpty()) {
        button->setProperty(styleProperty.toUtf8().constData(), true);
    }
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QPushButton::clicked, this, [this, button]() { playControlButtonClickHandle(button); });
    m_buttons.append(button);
    return button;
}

QWidget* VideoPlayWidget::createControls()
{
    auto* controls = new QWidget(this);
    controls->setObjectName(QStringLiteral("play_controls"));
    auto* layout = new QVBoxLayout(controls);
    layout->setContentsMargins(AppConfig::rate(4, 0, 4, 4));
    layout->setSpacing(AppConfig::rate(2));

    auto* progressRow = new QHBoxLayout();
    m_currentTimeLabel = new QLabel(kZeroTime, controls);
    m_currentTimeLabel->setObjectName(QStringLiteral("current_time"));
    m_totalTimeLabel = new QLabel(kZeroTime, controls);
    m_totalTimeLabel->setObjectName(QStringLiteral("total_time"));
    m_progressSlider = new QSlider(Qt::Horizontal, controls);
    m_progressSlider->setObjectName(QStringLiteral("progress_slider"));
    m_progressSlider->setRange(0, 0);
    auto* jumpStyle = new JumpToClickStyle(QStyleFactory::create(QApplication::style()->objectName()));
    jumpStyle->setParent(m_progressSlider);
    m_progressSlider->setStyle(jumpStyle);
    progressRow->addWidget(m_currentTimeLabel);
    progressRow->addWidget(m_progressSlider, 1);
    progressRow->addWidget(m_totalTimeLabel);
    layout->addLayout(progressRow);

    connect(m_progressSlider, &QSlider::sliderPressed, this, [this]() { sliderDragging = true; });
    connect(m_progressSlider, &QSlider::sliderReleased, this, [this]() { sliderDragging = false; });
    connect(m_progressSlider, &QSlider::valueChanged, this, [this](int value) {
        qCDebug(lcPlayer) << "progress_slider value change:" << value << m_progressSlider->maximum();
        m_mpv->seekToPosition(value);
    });

    auto* buttonRow = new QHBoxLayout();
    buttonRow->setSpacing(AppConfig::rate(6));
    QPushButton* previous = createControlButton(ButtonPreviousFrame, QStringLiteral(":/images/videoplay/previous_frame.svg"),
                                                QStringLiteral("play-control"));
    QPushButton* next = createControlButton(ButtonNextFrame, QStringLiteral(":/images/videoplay/next_frame.svg"),
                                            QStringLiteral("play-control"));
    m_playButton = createControlButton(ButtonPlay, kIconPlay, QStringLiteral("play-play"));
    QPushButton* stopButton = createControlButton(ButtonStop, QStringLiteral(":/images/videoplay/stop.svg"),
                                                  QStringLiteral("play-stop"));
    QPushButton* capture = createControlButton(ButtonCapture, QStringLiteral(":/images/videoplay/capture.svg"),
                                               QString());
    capture->setObjectName(QStringLiteral("capture_button"));
    QPushButton* captureSelected = createControlButton(ButtonCaptureSelected, QString(), QString());
    captureSelected->setObjectName(QStringLiteral("capture_selected_button"));
    buttonRow->addWidget(previous);
    buttonRow->addWidget(m_playButton);
    buttonRow->addWidget(next);
    buttonRow->addWidget(stopButton);
    buttonRow->addStretch(1);
    // The capture buttons get a row of their own: next to the transport, speed
    // and sound controls they would not fit the player's narrowest width.
    auto* captureRow = new QHBoxLayout();
    captureRow->setSpacing(AppConfig::rate(6));
    captureRow->addWidget(capture);
    captureRow->addWidget(captureSelected);
    captureRow->addStretch(1);

    m_speedLabel = new QLabel(controls);
    m_speedLabel->setStyleSheet(QStringLiteral("QLabel{color:#636363};"));
    m_speedBox = new QComboBox(controls);
    m_speedBox->setObjectName(QStringLiteral("speed_combobox"));
    if (QStyle* style = QStyleFactory::create(QStringLiteral("Windows"))) {
        style->setParent(m_speedBox);
        m_speedBox->setStyle(style);
    }
    m_speedBox->setFixedWidth(AppConfig::rate(80));
    for (double speed : {1.0, 1.25, 1.5, 1.75, 2.0, 2.25, 2.5, 2.75, 3.0}) {
        m_speedBox->addItem(QStringLiteral("%1x").arg(speed, 0, 'f', 2), speed);
    }
    // The player starts at normal speed: show it.
    m_speedBox->setCurrentIndex(0);
    connect(m_speedBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this](int index) {
        if (index < 0) {
            return;
        }
        const double speed = m_speedBox->itemData(index).toDouble();
        qCDebug(lcPlayer) << "current mpv player speed:" << speed;
        m_mpv->setPlaySpeed(speed);
    });
    buttonRow->addWidget(m_speedLabel);
    buttonRow->addWidget(m_speedBox);

    m_soundButton = new QPushButton(controls);
    m_soundButton->setObjectName(QStringLiteral("sound_button"));
    m_soundButton->setIcon(QIcon(kIconSound));
    m_soundButton->setFocusPolicy(Qt::NoFocus);
    connect(m_soundButton, &QPushButton::clicked, this, [this]() { soundButtonClickHandle(m_soundButton); });
    m_soundSlider = new QSlider(Qt::Horizontal, controls);
    m_soundSlider->setObjectName(QStringLiteral("sound_slider"));
    m_soundSlider->setRange(0, 100);
    m_soundSlider->setFixedWidth(AppConfig::rate(80));
    connect(m_soundSlider, &QSlider::valueChanged, this, [this](int value) {
        qCDebug(lcPlayer) << "sound_slider value change:" << value;
        GlobalManager::instance()->saveSettings(AppConfig::PLAYER_VOLUME, value);
        m_mpv->setVolume(value);
    });
    buttonRow->addWidget(m_soundButton);
    buttonRow->addWidget(m_soundSlider);
    layout->addLayout(buttonRow);
    layout->addLayout(captureRow);
    return controls;
}

void VideoPlayWidget::changeLang(int type)
{
    Q_UNUSED(type)
    m_logoText->setText(tr("Drop your video here! Or,<br><a style=\"color: #008cf1;\" href=\"clicked\">Click here to "
                           "import video.</a>"));
    m_buttons.at(ButtonPreviousFrame)->setToolTip(tr("Backward [Left]"));
    m_buttons.at(ButtonNextFrame)->setToolTip(tr("Forward [Right]"));
    m_buttons.at(ButtonPlay)->setToolTip(tr("Play [Space]"));
    m_buttons.at(ButtonStop)->setToolTip(tr("Stop [Ctrl+/]"));
    m_buttons.at(ButtonCapture)->setToolTip(tr("Capture [Ctrl+Alt+S]"));
    m_buttons.at(ButtonCapture)->setText(tr("Capture"));
    m_buttons.at(ButtonCaptureSelected)->setText(tr("Capture selected"));
    m_speedLabel->setText(tr("Speed"));
    m_styleBar->changeLang();
}

void VideoPlayWidget::initShortCut()
{
    if (!m_shortcuts.isEmpty()) {
        return;
    }
    struct Binding {
        QKeySequence keys;
        const char* word;
        int button;
    };
    const QList<Binding> bindings{
        {QKeySequence(Qt::Key_Left), "left tap", ButtonPreviousFrame},
        {QKeySequence(Qt::Key_Right), "right tap", ButtonNextFrame},
        {QKeySequence(Qt::Key_Space), "space tap", ButtonPlay},
        {QKeySequence(Qt::CTRL | Qt::Key_Slash), "stop tap", ButtonStop},
        {QKeySequence(QStringLiteral("ctrl+alt+s")), "capture tap", ButtonCapture},
    };
    for (const Binding& binding : bindings) {
        auto* shortcut = new QShortcut(binding.keys, this, nullptr, nullptr, Qt::WindowShortcut);
        const QByteArray word = binding.word;
        const int id = binding.button;
        connect(shortcut, &QShortcut::activated, this, [this, word, id]() {
            qCDebug(lcPlayer) << word.constData();
            m_buttons.at(id)->click();
        });
        m_shortcuts.append(shortcut);
    }
    auto* open = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_O), this, nullptr, nullptr, Qt::WindowShortcut);
    connect(open, &QShortcut::activated, this, [this]() {
        qCDebug(lcPlayer) << "capture tap";
        loadFile();
    });
    m_shortcuts.append(open);
}

void VideoPlayWidget::initConfig()
{
    if (Settings::instance()->value(AppConfig::PLAYER_MUTE).toBool()) {
        soundButtonClickHandle(m_soundButton);
    }
    const int volume = Settings::instance()->value(AppConfig::PLAYER_VOLUME).toInt();
    if (m_soundSlider->value() == volume) {
        m_mpv->setVolume(volume);
    } else {
        m_soundSlider->setValue(volume);
    }
}

void VideoPlayWidget::setPlayIcon(bool playing)
{
    m_playButton->setIcon(QIcon(playing ? kIconPause : kIconPlay));
}

void VideoPlayWidget::play()
{
    m_mpv->play();
    setPlayIcon(true);
}

void VideoPlayWidget::pause()
{
    m_mpv->pause();
    setPlayIcon(false);
}

void VideoPlayWidget::stop()
{
    m_mpv->stop();
}

void VideoPlayWidget::seekToPostion(double seconds)
{
    m_mpv->seekToPosition(seconds);
}

bool VideoPlayWidget::isLoadFile() const
{
    return !m_mpv->getFilePath().isEmpty();
}

void VideoPlayWidget::showLogo(bool show)
{
    m_logo->setVisible(show);
    m_videoPage->setVisible(!show);
}

bool VideoPlayWidget::isLogoShown() const
{
    return !m_logo->isHidden();
}

void VideoPlayWidget::resetTimeDisplay()
{
    m_currentTimeLabel->setText(kZeroTime);
    m_totalTimeLabel->setText(kZeroTime);
    const QSignalBlocker blocker(m_progressSlider);
    m_progressSlider->setRange(0, 0);
    currentTime = 0.0;
}

QString VideoPlayWidget::currentTimeText() const
{
    return m_currentTimeLabel->text();
}

QString VideoPlayWidget::totalTimeText() const
{
    return m_totalTimeLabel->text();
}

void VideoPlayWidget::playControlButtonClickHandle(QObject* widget)
{
    if (!widget) {
        return;
    }
    const int id = widget->property(kButtonProperty).toInt();
    m_overlay->clearEditorFocus();
    qCDebug(lcPlayer) << "playControlButtonClickHandle:" << id;
    switch (id) {
    case ButtonPreviousFrame:
        if (m_mpv->getPlayStatus() != MpvWidget::Stop) {
            pause();
            m_mpv->seekToPreviousFrame();
        }
        break;
    case ButtonNextFrame:
        if (m_mpv->getPlayStatus() != MpvWidget::Stop) {
            pause();
            m_mpv->seekToNextFrame();
        }
        break;
    case ButtonPlay:
        if (!isLoadFile()) {
            loadFile();
        } else if (m_mpv->getPlayStatus() == MpvWidget::Play) {
            pause();
        } else {
            play();
        }
        break;
    case ButtonStop:
        pause();
        m_mpv->stop();
        showLogo(true);
        resetTimeDisplay();
        refreshCaption(-1);
        m_styleBar->setInsertEnabled(false);
        break;
    case ButtonCapture:
        emit captureNowRequested();
        break;
    case ButtonCaptureSelected:
        pause();
        captureType = 1;
        emit captureSelectSignal(0);
        emit captureCheckedRequested();
        break;
    default:
        break;
    }
    emit buttonClicked(id);
}

void VideoPlayWidget::soundButtonClickHandle(QObject* widget)
{
    Q_UNUSED(widget)
    const bool muted = m_mpv->isMute();
    m_mpv->setMute(!muted);
    m_soundButton->setIcon(QIcon(muted ? kIconSound : kIconMute));
    m_soundButton->setProperty("muted", !muted);
    m_soundSlider->setEnabled(muted);
    GlobalManager::instance()->saveSettings(AppConfig::PLAYER_MUTE, !muted);
}

void VideoPlayWidget::loadFile()
{
    GlobalManager* global = GlobalManager::instance();
    const QString start = Settings::instance()->value(AppConfig::OPEN_FILE_PATH).toString();
    const QString filter = QStringLiteral("%1  (*.mp4 *.avi *.mkv *.wmv *.mov *.flv *.webm)").arg(tr("Video Files"));
    const QString name = QFileDialog::getOpenFileName(this, tr("Open Video"), start, filter);
    // A cancelled dialog leaves the player and the remembered folder as they were.
    if (!name.isEmpty()) {
        loadFileByFileName(name);
        global->saveSettings(AppConfig::OPEN_FILE_PATH, name);
    }
    QTimer::singleShot(100, this, []() {});
}

void VideoPlayWidget::loadFileByFileName(const QString& name)
{
    m_mpv->loadFile(name);
    showLogo(false);
    CaptionManager::instance()->setVideoFilePath(name);
    m_styleBar->setInsertEnabled(true);
}

bool VideoPlayWidget::openFile(const QString& path)
{
    const QFileInfo info(path);
    if (path.isEmpty() || !info.isFile() || !info.isReadable()) {
        qCWarning(lcPlayer) << "openFile: not a readable file:" << path;
        return false;
    }
    loadFileByFileName(info.absoluteFilePath());
    GlobalManager::instance()->saveSettings(AppConfig::OPEN_FILE_PATH, info.absoluteFilePath());
    return true;
}

void VideoPlayWidget::loadFailedHandle(const QString& path, const QString& reason)
{
    qCWarning(lcPlayer) << "video could not be played:" << path << reason;
    setPlayIcon(false);
    showLogo(true);
    resetTimeDisplay();
    refreshCaption(-1);
    m_styleBar->setInsertEnabled(false);
}

void VideoPlayWidget::loadSubTitleFile(const QString& path)
{
    if (path.isEmpty()) {
        return;
    }
    m_mpv->subTitleAdd(path);
    // The captions may have changed with the file: show the right one now.
    refreshCaption(currentTime);
}

void VideoPlayWidget::removeCaption(int id)
{
    const QList<int> ids = id > 0 ? QList<int>{id} : m_mpv->externalSubtitleTracks();
    for (int track : ids) {
        m_mpv->subTitleRemove(track);
    }
    refreshCaption(-1);
}

void VideoPlayWidget::refreshCaption(double seconds)
{
    CaptionInfo* info = isLoadFile() ? CaptionOverlay::captionAtTime(seconds) : nullptr;
    m_overlay->setCaption(info);
    m_styleBar->setCaption(info);
}

CaptionInfo* VideoPlayWidget::insertCaptionAtCurrentTime()
{
    if (!isLoadFile()) {
        return nullptr;
    }
    pause();
    CaptionInfo* info = CaptionManager::instance()->insertCaptionInfo(currentTime, kInsertDurationMs);
    if (!info) {
        // The position lies inside a caption already: say so rather than
        // open that one for typing, which would overwrite it.
        qCDebug(lcPlayer) << "insert caption: none at" << currentTime;
        refreshCaption(currentTime);
        emit captionInsertRefused();
        return nullptr;
    }
    info->text = tr("New caption");
    info->isInsert = true;
    CaptionEdit* edit = CaptionStyleBar::ensureEdit(info);
    edit->text = info->text;
    edit->isChange = true;
    emit captionEditSignal(info, false);
    m_overlay->setCaption(info);
    m_styleBar->setCaption(info);
    m_overlay->startEditing();
    return info;
}

void VideoPlayWidget::mpvPropertyHandle(QString commond, double value)
{
    if (value < 0) {
        return;
    }
    if (commond == AppConfig::MPV_DURATION) {
        // Frames within a second run from 0 to the rate less one: the
        // duration's own frame field is that of its part second.
        const int fps = m_mpv->getFrameInSecond();
        const int frames = fps > 0 ? qBound(0, qRound((value - std::floor(value)) * fps), fps - 1) : 0;
        m_totalTimeLabel->setText(GlobalManager::formatSecondToTime(value) + QLatin1Char(':') + twoDigits(frames));
    } else if (commond == AppConfig::MPV_TIME_POS) {
        m_currentTimeLabel->setText(GlobalManager::formatSecondToTime(value) + QLatin1Char(':')
                                    + twoDigits(m_mpv->getNowFrameInSecond()));
        if (!sliderDragging) {
            const QSignalBlocker blocker(m_progressSlider);
            m_progressSlider->setValue(static_cast<int>(value));
        }
        // The caption model keeps the position in milliseconds.
        CaptionManager::instance()->setCurrentTime(value * 1000.0);
        currentTime = value;
        refreshCaption(value);
        emit playerTimePos(value);
    }
}

void VideoPlayWidget::mpvEventHandle(mpv_event* event)
{
    if (sender() != m_mpv || !event) {
        return;
    }
    switch (event->event_id) {
    case MPV_EVENT_FILE_LOADED: {
        const double total = m_mpv->getTotalSeconds();
        {
            const QSignalBlocker blocker(m_progressSlider);
            m_progressSlider->setMaximum(total > 0 ? static_cast<int>(total) : 0);
        }
        const QPair<int, int> size = m_mpv->getMpvPlayerSize();
        m_overlay->setVideoSize(QSize(size.first, size.second));
        const QString assPath = CaptionManager::instance()->getAssFilePath();
        if (!assPath.isEmpty()) {
            m_mpv->subTitleAdd(assPath);
        }
        play();
        break;
    }
    case MPV_EVENT_COMMAND_REPLY:
        if (event->error < 0) {
            qCDebug(lcPlayer) << "mpv reply" << event->reply_userdata << "failed:" << mpv_error_string(event->error);
        }
        switch (event->reply_userdata) {
        case MpvWidget::RequestSubAdd:
            qCDebug(lcPlayer) << "Caption load complete";
            emit captureEventSignal(MpvWidget::RequestSubAdd, 0);
            emit subtitleTrackAdded();
            break;
        case MpvWidget::RequestSubRemove:
            qCDebug(lcPlayer) << "Caption remove complete";
            emit captureEventSignal(MpvWidget::RequestSubRemove, 0);
            break;
        case MpvWidget::RequestCaptureSeek:
            qCDebug(lcPlayer) << "seek complete：" << m_mpv->reportedSecond();
            if (captureType == 0) {
                emit captureEventSignal(MpvWidget::RequestCaptureSeek, 0);
            } else {
                emit captureSelectSignal(17);
            }
            emit captureSeekAnswered();
            break;
        default:
            break;
        }
        break;
    default:
        break;
    }
}

void VideoPlayWidget::captionEditHandle(bool editing, QString text)
{
    Q_UNUSED(editing)
    Q_UNUSED(text)
    m_mpv->pause();
    setPlayIcon(false);
}

void VideoPlayWidget::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls()) {
        event->acceptProposedAction();
    }
}

void VideoPlayWidget::dropEvent(QDropEvent* event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() != 1) {
        return;
    }
    const QString path = urls.first().toLocalFile();
    qCDebug(lcPlayer) << "Dropped file path: " << path;
    emit dragFileSignal(path);
}

void VideoPlayWidget::resizeEvent(QResizeEvent* event)
{
    BaseWidget::resizeEvent(event);
    qCDebug(lcPlayer) << "video_play_widget resizeEvent" << width() << height();
}
