#include "mpvwidget.h"

#include "appconfig.h"
#include "framegrabber.h"
#include "globalmanager.h"
#include "logcategories.h"
#include "screenmanager.h"

#include <QDebug>
#include <QMetaObject>
#include <QOpenGLContext>
#include <QTimer>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace {

// Builds an mpv_node tree from a QVariant and owns everything it allocates.
class NodeBuilder
{
public:
    explicit NodeBuilder(const QVariant& value) { set(&m_node, value); }
    ~NodeBuilder() { free(&m_node); }
    NodeBuilder(const NodeBuilder&) = delete;
    NodeBuilder& operator=(const NodeBuilder&) = delete;

    mpv_node* node() { return &m_node; }

private:
    static void set(mpv_node* dst, const QVariant& src)
    {
        switch (src.userType()) {
        case QMetaType::QString: {
            dst->format = MPV_FORMAT_STRING;
            dst->u.string = qstrdup(src.toString().toUtf8().constData());
            break;
        }
        case QMetaType::Bool:
            dst->format = MPV_FORMAT_FLAG;
            dst->u.flag = src.toBool() ? 1 : 0;
            break;
        case QMetaType::Int:
        case QMetaType::LongLong:
        case QMetaType::UInt:
        case QMetaType::ULongLong:
            dst->format = MPV_FORMAT_INT64;
            dst->u.int64 = src.toLongLong();
            break;
        case QMetaType::Double:
        case QMetaType::Float:
            dst->format = MPV_FORMAT_DOUBLE;
            dst->u.double_ = src.toDouble();
            break;
        case QMetaType::QVariantList:
        case QMetaType::QStringList: {
            const QVariantList list = src.toList();
            dst->format = MPV_FORMAT_NODE_ARRAY;
            dst->u.list = createList(list.size(), false);
            for (int i = 0; i < list.size(); ++i) {
                set(&dst->u.list->values[i], list.at(i));
            }
            break;
        }
        case QMetaType::QVariantMap: {
            const QVariantMap map = src.toMap();
            dst->format = MPV_FORMAT_NODE_MAP;
            dst->u.list = createList(map.size(), true);
            int i = 0;
            for (auto it = map.constBegin(); it != map.constEnd(); ++it, ++i) {
                dst->u.list->keys[i] = qstrdup(it.key().toUtf8().constData());
                set(&dst->u.list->values[i], it.value());
            }
            break;
        }
        default:
            dst->format = MPV_FORMAT_NONE;
            break;
        }
    }

    static mpv_node_list* createList(int size, bool withKeys)
    {
        auto* list = new mpv_node_list;
        list->num = size;
        list->values = new mpv_node[size > 0 ? size : 1]();
        list->keys = withKeys ? new char*[size > 0 ? size : 1]() : nullptr;
        return list;
    }

    static void free(mpv_node* node)
    {
        switch (node->format) {
        case MPV_FORMAT_STRING:
            delete[] node->u.string;
            break;
        case MPV_FORMAT_NODE_ARRAY:
        case MPV_FORMAT_NODE_MAP: {
            mpv_node_list* list = node->u.list;
            for (int i = 0; i < list->num; ++i) {
                if (list->keys) {
                    delete[] list->keys[i];
                }
                free(&list->values[i]);
            }
            delete[] list->keys;
            delete[] list->values;
            delete list;
            break;
        }
        default:
            break;
        }
        node->format = MPV_FORMAT_NONE;
    }

    mpv_node m_node{};
};

} // namespace

MpvWidget::MpvWidget(QWidget* parent)
    : QOpenGLWidget(parent)
{
    qRegisterMetaType<MpvWidget::RestartKind>("MpvWidget::RestartKind");
    mpv = mpv_create();
    if (!mpv) {
        throw std::runtime_error("could not create mpv context");
    }
    mpv_set_option_string(mpv, "terminal", "yes");
    mpv_set_option_string(mpv, "msg-level", "all=v");
    mpv_set_option_string(mpv, "sub-auto", "no");
    // mpv draws only through our render context and never opens a window of
    // its own; at the end of a file the last frame stays on screen.
    mpv_set_option_string(mpv, "vo", "libmpv");
    mpv_set_option_string(mpv, "keep-open", "yes");
    if (mpv_initialize(mpv) < 0) {
        mpv_terminate_destroy(mpv);
        mpv = nullptr;
        throw std::runtime_error("could not initialize mpv context");
    }
    NodeBuilder hwdec(QVariant(QStringLiteral("auto")));
    mpv_set_option(mpv, "hwdec", MPV_FORMAT_NODE, hwdec.node());
    mpv_observe_property(mpv, RequestObserveEof, "eof-reached", MPV_FORMAT_FLAG);
    // The poll reports these as last observed: a blocking read would wait for
    // the player's core, which is busy for hundreds of milliseconds while an
    // exact seek decodes.
    mpv_observe_property(mpv, RequestObserveDuration, "duration", MPV_FORMAT_DOUBLE);
    mpv_observe_property(mpv, RequestObserveTimePos, "time-pos", MPV_FORMAT_DOUBLE);
    mpv_set_wakeup_callback(mpv, wakeupCallback, this);
    initTimer();
}

MpvWidget::~MpvWidget()
{
    // The base class destroys the GL context after this object is gone: its
    // signal must not call back into what is left of us.
    disconnect(contextDestroyed);
    freeRenderContext();
    if (mpv) {
        mpv_set_wakeup_callback(mpv, nullptr, nullptr);
        mpv_terminate_destroy(mpv);
        mpv = nullptr;
    }
}

void MpvWidget::freeRenderContext()
{
    if (!mpv_gl) {
        return;
    }
    // The render context owns GL objects: free it with our context current.
    makeCurrent();
    mpv_render_context_set_update_callback(mpv_gl, nullptr, nullptr);
    mpv_render_context_free(mpv_gl);
    mpv_gl = nullptr;
    doneCurrent();
}

void* MpvWidget::get_proc_address(void* ctx, const char* name)
{
    Q_UNUSED(ctx)
    QOpenGLContext* glctx = QOpenGLContext::currentContext();
    if (!glctx) {
        return nullptr;
    }
    return reinterpret_cast<void*>(glctx->getProcAddress(QByteArray(name)));
}

void MpvWidget::initializeGL()
{
    if (mpv_gl) {
        return;
    }
    mpv_opengl_init_params glInitParams{get_proc_address, nullptr};
    char apiType[] = MPV_RENDER_API_TYPE_OPENGL;
    mpv_render_param params[]{
        {MPV_RENDER_PARAM_API_TYPE, apiType},
        {MPV_RENDER_PARAM_OPENGL_INIT_PARAMS, &glInitParams},
        {MPV_RENDER_PARAM_X11_DISPLAY, nullptr},
        {MPV_RENDER_PARAM_WL_DISPLAY, nullptr},
        {MPV_RENDER_PARAM_INVALID, nullptr},
    };
    if (mpv_render_context_create(&mpv_gl, mpv, params) < 0) {
        mpv_gl = nullptr;
        throw std::runtime_error("failed to initialize mpv GL context");
    }
    mpv_render_context_set_update_callback(mpv_gl, on_update, this);
    // Moving the widget to another window recreates its GL context: the
    // render context must go with the old one.
    disconnect(contextDestroyed);
    contextDestroyed = connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &MpvWidget::freeRenderContext,
                               Qt::DirectConnection);
    if (loadPending) {
        loadPending = false;
        issueLoad();
    }
}

void MpvWidget::render()
{
    if (!mpv_gl) {
        return;
    }
    // The device ratio is truncated on purpose: a ratio of 1.5 renders 1:1.
    const int ratio = static_cast<int>(ScreenManager::instance()->getDeviceRatio());
    mpv_opengl_fbo fbo{static_cast<int>(defaultFramebufferObject()), width() * ratio, height() * ratio, 0};
    int flipY = 1;
    mpv_render_param params[]{
        {MPV_RENDER_PARAM_OPENGL_FBO, &fbo},
        {MPV_RENDER_PARAM_FLIP_Y, &flipY},
        {MPV_RENDER_PARAM_INVALID, nullptr},
    };
    mpv_render_context_render(mpv_gl, params);
}

void MpvWidget::paintGL()
{
    render();
}

void MpvWidget::on_update(void* ctx)
{
    QMetaObject::invokeMethod(static_cast<MpvWidget*>(ctx), "maybeUpdate");
}

void MpvWidget::maybeUpdate()
{
    // A minimised window gets no paint events, yet libmpv needs its frames consumed.
    if (window()->isMinimized()) {
        makeCurrent();
        render();
        context()->swapBuffers(context()->surface());
        doneCurrent();
    } else {
        update();
    }
}

void MpvWidget::wakeupCallback(void* ctx)
{
    auto* widget = static_cast<MpvWidget*>(ctx);
    QMetaObject::invokeMethod(widget, "handleWakeupCallback", Qt::QueuedConnection);
    emit widget->mpvLaunchEvent();
}

void MpvWidget::handleWakeupCallback()
{
    while (mpv) {
        mpv_event* event = mpv_wait_event(mpv, 0);
        if (event->event_id == MPV_EVENT_NONE) {
            break;
        }
        mpvEventHandle(event);
    }
}

int MpvWidget::roundHalfAwayFromZero(double value)
{
    return value >= 0 ? static_cast<int>(std::floor(value + 0.5)) : -static_cast<int>(std::floor(-value + 0.5));
}

int MpvWidget::pollInterval() const
{
    return timer->interval();
}

void MpvWidget::mpvEventHandle(mpv_event* event)
{
    switch (event->event_id) {
    case MPV_EVENT_FILE_LOADED: {
        if (!hasVideoTrack()) {
            // Sound alone (or a cover picture) has no frames to capture.
            runCommand({QStringLiteral("stop")});
            failLoad(tr("the file has no video, only sound"));
            break;
        }
        const double seconds = getTotalSeconds();
        const int frames = getTotalFrame();
        frameInSecond = roundHalfAwayFromZero(frames / seconds);
        qCDebug(lcPlayer) << "File load complete:" << "Total time:" << seconds << "Total frame:" << frames
                 << "Frame in second:" << frameInSecond;
        GlobalManager::instance()->emitEvent(AppConfig::LOAD_FILE_COMPLETE, QVariant(filePath));
        // A meaningless rate (failed reads) still gives a sane interval.
        const int divisor = frameInSecond + 2;
        timer->setInterval(divisor > 0 ? 1000 / divisor : 1000);
        timer->start();
        break;
    }
    case MPV_EVENT_PLAYBACK_RESTART: {
        RestartKind kind = RestartAfterSeek;
        if (loadRestartPending) {
            loadRestartPending = false;
            kind = RestartAfterLoad;
        } else if (captureSeekPending && captureSeekReplied) {
            captureSeekPending = false;
            captureSeekReplied = false;
            kind = RestartAfterCaptureSeek;
        }
        emit playbackRestarted(kind);
        break;
    }
    case MPV_EVENT_COMMAND_REPLY:
        if (event->reply_userdata == RequestCaptureSeek) {
            if (event->error < 0) {
                captureSeekPending = false;
            } else {
                captureSeekReplied = true;
            }
        } else if (event->reply_userdata == RequestSnapshot) {
            QPixmap pixmap;
            if (event->error < 0) {
                emit error(QStringLiteral("Cannot take snapshot"));
                qCDebug(lcPlayer) << "Cannot take snapshot:" << mpv_error_string(event->error);
            } else {
                pixmap = pixmapFromScreenshot(static_cast<mpv_event_command*>(event->data)->result);
            }
            emit snapshotTaken(pixmap);
        } else if (event->reply_userdata == RequestLoadFile) {
            ++loadsAnswered;
            if (event->error < 0 && loadActive && loadsAnswered == loadsIssued) {
                failLoad(QString::fromUtf8(mpv_error_string(event->error)));
            }
        }
        break;
    case MPV_EVENT_END_FILE: {
        const auto* endFile = static_cast<mpv_event_end_file*>(event->data);
        // Events arrive in order: while a newer load is still unanswered, an
        // error ends the file it replaced, not the current one.
        if (endFile && endFile->reason == MPV_END_FILE_REASON_ERROR && loadActive
            && loadsAnswered == loadsIssued) {
            failLoad(QString::fromUtf8(mpv_error_string(endFile->error)));
        }
        break;
    }
    case MPV_EVENT_PROPERTY_CHANGE:
        if (event->reply_userdata == RequestObserveDuration || event->reply_userdata == RequestObserveTimePos) {
            const auto* property = static_cast<mpv_event_property*>(event->data);
            const double value = property->format == MPV_FORMAT_DOUBLE ? *static_cast<double*>(property->data) : -1.0;
            (event->reply_userdata == RequestObserveDuration ? observedDuration : observedTimePos) = value;
        }
        if (event->reply_userdata == RequestObserveEof) {
            const auto* property = static_cast<mpv_event_property*>(event->data);
            const bool reached = property->format == MPV_FORMAT_FLAG && *static_cast<int*>(property->data) != 0;
            if (reached != eofReached) {
                eofReached = reached;
                emit endReached(reached);
            }
        }
        break;
    default:
        break;
    }
    emit mpvEvents(event);
}

void MpvWidget::initTimer()
{
    timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [this]() {
        if (playStatus == Stop) {
            return;
        }
        emit getMpvProperty(AppConfig::MPV_DURATION, observedDuration);
        emit getMpvProperty(AppConfig::MPV_TIME_POS, observedTimePos);
    });
}

int MpvWidget::runCommand(const QVariantList& args)
{
    if (!mpv) {
        return MPV_ERROR_UNINITIALIZED;
    }
    NodeBuilder node{QVariant(args)};
    return mpv_command_node(mpv, node.node(), nullptr);
}

void MpvWidget::loadFile(const QString& path)
{
    filePath = path;
    qCDebug(lcPlayer) << "loadFile" << path;
    playStatus = Play;
    eofReached = false;
    if (!mpv_gl) {
        // mpv's video output needs the render context when it opens.
        loadPending = true;
        return;
    }
    issueLoad();
}

void MpvWidget::issueLoad()
{
    if (!mpv) {
        return;
    }
    const QByteArray path = filePath.toUtf8();
    const char* args[] = {"loadfile", path.constData(), nullptr};
    loadRestartPending = true;
    loadActive = true;
    ++loadsIssued;
    captureSeekPending = false;
    captureSeekReplied = false;
    mpv_command_async(mpv, RequestLoadFile, args);
}

void MpvWidget::play()
{
    if (playStatus == Stop) {
        loadFile(filePath);
        return;
    }
    if (eofReached) {
        // At the end a press of play starts over, as players do.
        const char* args[] = {"seek", "0", "absolute", nullptr};
        mpv_command_async(mpv, RequestTimePos, args);
    }
    if (runCommand({QStringLiteral("set"), QStringLiteral("pause"), QStringLiteral("no")}) < 0) {
        qCDebug(lcPlayer) << "Error resuming video";
    }
    playStatus = Play;
}

void MpvWidget::resumePlay()
{
    if (runCommand({QStringLiteral("set"), QStringLiteral("pause"), QStringLiteral("no")}) < 0) {
        qCDebug(lcPlayer) << "Error resuming video";
    }
}

void MpvWidget::pause()
{
    if (runCommand({QStringLiteral("set"), QStringLiteral("pause"), QStringLiteral("yes")}) < 0) {
        qCDebug(lcPlayer) << "Error pausing video";
    }
    playStatus = Pause;
    if (!filePath.isEmpty()) {
        qCDebug(lcPlayer) << "video pause" << getTotalSeconds() << getCurrentSecond() << getCurrentPlayPercent();
    } else {
        qCDebug(lcPlayer) << "video pause";
    }
}

void MpvWidget::stop()
{
    if (runCommand({QStringLiteral("stop")}) < 0) {
        qCDebug(lcPlayer) << "Error stopping video";
    }
    loadPending = false;
    loadRestartPending = false;
    loadActive = false;
    filePath.clear();
    playStatus = Stop;
}

void MpvWidget::failLoad(const QString& reason)
{
    qCWarning(lcPlayer) << "file could not be played:" << filePath << reason;
    const QString failed = filePath;
    loadActive = false;
    loadRestartPending = false;
    playStatus = Stop;
    filePath.clear();
    emit loadFailed(failed, reason);
}

void MpvWidget::seekToNextFrame()
{
    if (runCommand({QStringLiteral("frame_step")}) < 0) {
        qCDebug(lcPlayer) << "Error seeking to next frame";
    }
    playStatus = Pause;
}

void MpvWidget::seekToPreviousFrame()
{
    if (runCommand({QStringLiteral("frame-back-step")}) < 0) {
        qCDebug(lcPlayer) << "Error seeking to previous frame";
    }
    playStatus = Pause;
}

void MpvWidget::seekToPosition(double seconds)
{
    if (!mpv) {
        return;
    }
    mpv_set_property_async(mpv, RequestTimePos, "time-pos", MPV_FORMAT_DOUBLE, &seconds);
}

void MpvWidget::seekToPercent(double percent)
{
    if (!mpv) {
        return;
    }
    mpv_set_property_async(mpv, RequestPercentPos, "percent-pos", MPV_FORMAT_DOUBLE, &percent);
}

void MpvWidget::seekToPositionForCapture(double seconds)
{
    if (!mpv) {
        qCDebug(lcPlayer) << "Error seekToPositionForCapture";
        return;
    }
    const QByteArray text = FrameGrabber::seekArgument(seconds);
    const char* args[] = {"seek", text.constData(), "absolute+exact", nullptr};
    // Completion is the reply with this id; the frame itself is ready at the
    // playback restart that follows it.
    captureSeekReplied = false;
    if (mpv_command_async(mpv, RequestCaptureSeek, args) < 0) {
        captureSeekPending = false;
        qCDebug(lcPlayer) << "Error seekToPositionForCapture";
        return;
    }
    captureSeekPending = true;
}

void MpvWidget::setVolume(int volume)
{
    if (!mpv) {
        return;
    }
    int64_t value = volume;
    mpv_set_property_async(mpv, RequestVolume, "volume", MPV_FORMAT_INT64, &value);
}

void MpvWidget::setMute(bool mute)
{
    if (!mpv) {
        return;
    }
    const char* value = mute ? "yes" : "no";
    mpv_set_property_async(mpv, RequestMute, "mute", MPV_FORMAT_STRING, &value);
}

void MpvWidget::setPlaySpeed(double speed)
{
    if (!mpv) {
        return;
    }
    mpv_set_property_async(mpv, RequestSpeed, "speed", MPV_FORMAT_DOUBLE, &speed);
}

void MpvWidget::subTitleAdd(const QString& path)
{
    if (!mpv) {
        return;
    }
    const QByteArray utf8 = path.toUtf8();
    const char* args[] = {"sub-add", utf8.constData(), "select", nullptr};
    const int result = mpv_command_async(mpv, RequestSubAdd, args);
    qCDebug(lcPlayer) << "sub-add" << path << result;
}

void MpvWidget::subTitleRemove(int id)
{
    if (!mpv) {
        return;
    }
    const QByteArray text = QByteArray::number(id);
    const char* args[] = {"sub-remove", text.constData(), nullptr};
    const int result = mpv_command_async(mpv, RequestSubRemove, args);
    qCDebug(lcPlayer) << "sub-remove" << text << result;
}

bool MpvWidget::setOption(const QString& name, const QString& value)
{
    if (!mpv) {
        return false;
    }
    return mpv_set_property_string(mpv, name.toUtf8().constData(), value.toUtf8().constData()) >= 0;
}

QList<int> MpvWidget::externalSubtitleTracks() const
{
    QList<int> ids;
    if (!mpv) {
        return ids;
    }
    int64_t count = 0;
    if (mpv_get_property(mpv, "track-list/count", MPV_FORMAT_INT64, &count) < 0) {
        return ids;
    }
    for (int64_t i = 0; i < count; ++i) {
        const QByteArray prefix = "track-list/" + QByteArray::number(static_cast<qlonglong>(i)) + "/";
        char* type = mpv_get_property_string(mpv, (prefix + "type").constData());
        int external = 0;
        int64_t id = 0;
        mpv_get_property(mpv, (prefix + "external").constData(), MPV_FORMAT_FLAG, &external);
        mpv_get_property(mpv, (prefix + "id").constData(), MPV_FORMAT_INT64, &id);
        if (type && std::strcmp(type, "sub") == 0 && external) {
            ids.append(static_cast<int>(id));
        }
        mpv_free(type);
    }
    return ids;
}

bool MpvWidget::hasVideoTrack() const
{
    int64_t count = 0;
    if (!mpv || mpv_get_property(mpv, "track-list/count", MPV_FORMAT_INT64, &count) < 0) {
        return false;
    }
    bool found = false;
    for (int64_t i = 0; i < count && !found; ++i) {
        const QByteArray prefix = "track-list/" + QByteArray::number(static_cast<qlonglong>(i)) + "/";
        char* type = mpv_get_property_string(mpv, (prefix + "type").constData());
        int albumArt = 0;
        mpv_get_property(mpv, (prefix + "albumart").constData(), MPV_FORMAT_FLAG, &albumArt);
        found = type && std::strcmp(type, "video") == 0 && !albumArt;
        mpv_free(type);
    }
    return found;
}

double MpvWidget::getTotalSeconds()
{
    if (!mpv || mpv_get_property(mpv, "duration", MPV_FORMAT_DOUBLE, &totalSeconds) < 0) {
        std::fputs("Error getting video duration\n", stderr);
        return -1.0;
    }
    return totalSeconds;
}

double MpvWidget::getCurrentSecond()
{
    if (!mpv || mpv_get_property(mpv, "time-pos", MPV_FORMAT_DOUBLE, &currentSecond) < 0) {
        std::fputs("Error getting current time\n", stderr);
        return -1.0;
    }
    return currentSecond;
}

double MpvWidget::getCurrentPlayPercent()
{
    double percent = 0.0;
    if (!mpv || mpv_get_property(mpv, "percent-pos", MPV_FORMAT_DOUBLE, &percent) < 0) {
        std::fputs("Error getting playback percentage\n", stderr);
        return -1.0;
    }
    return percent;
}

int MpvWidget::getTotalFrame()
{
    int64_t value = 0;
    if (!mpv || mpv_get_property(mpv, "estimated-frame-count", MPV_FORMAT_INT64, &value) < 0) {
        std::fputs("Error getting total frame\n", stderr);
        return -1;
    }
    totalFrame = static_cast<int>(value);
    return totalFrame;
}

int MpvWidget::getCurrentFrame()
{
    int64_t value = 0;
    if (!mpv || mpv_get_property(mpv, "estimated-frame-number", MPV_FORMAT_INT64, &value) < 0) {
        std::fputs("Error getting current frame\n", stderr);
        return -1;
    }
    currentFrame = static_cast<int>(value);
    return currentFrame;
}

bool MpvWidget::isMute()
{
    int flag = 0;
    if (!mpv || mpv_get_property(mpv, "mute", MPV_FORMAT_FLAG, &flag) < 0) {
        return false;
    }
    return flag == 1;
}

int MpvWidget::getNowFrameInSecond()
{
    getCurrentSecond();
    const int frame = getCurrentFrame();
    if (frameInSecond <= 0) {
        return 0;
    }
    return frame % frameInSecond;
}

QPair<int, int> MpvWidget::getMpvPlayerSize()
{
    int64_t w = 0;
    int64_t h = 0;
    if (mpv && mpv_get_property(mpv, "width", MPV_FORMAT_INT64, &w) >= 0
        && mpv_get_property(mpv, "height", MPV_FORMAT_INT64, &h) >= 0) {
        videoSize = qMakePair(static_cast<qint32>(w), static_cast<qint32>(h));
        qCDebug(lcPlayer) << "Video Size: " << videoSize.first << "x" << videoSize.second;
    } else {
        qCDebug(lcPlayer) << "Failed to get video size";
    }
    return videoSize;
}

QPixmap MpvWidget::takeSnapshot(const QString& path)
{
    Q_UNUSED(path)
    if (!mpv) {
        return QPixmap();
    }
    NodeBuilder args{QVariant(QVariantList{QStringLiteral("screenshot-raw"), QStringLiteral("subtitles")})};
    mpv_node result{};
    if (mpv_command_node(mpv, args.node(), &result) < 0) {
        emit error(QStringLiteral("Cannot take snapshot"));
        qCDebug(lcPlayer) << "Cannot take snapshot: mpv_command_node run failed.";
        return QPixmap();
    }
    const QPixmap pixmap = pixmapFromScreenshot(result);
    mpv_free_node_contents(&result);
    return pixmap;
}

bool MpvWidget::requestSnapshot()
{
    if (!mpv) {
        return false;
    }
    NodeBuilder args{QVariant(QVariantList{QStringLiteral("screenshot-raw"), QStringLiteral("subtitles")})};
    if (mpv_command_node_async(mpv, RequestSnapshot, args.node()) < 0) {
        emit error(QStringLiteral("Cannot take snapshot"));
        qCDebug(lcPlayer) << "Cannot take snapshot: mpv_command_node_async run failed.";
        return false;
    }
    return true;
}

QPixmap MpvWidget::pixmapFromScreenshot(const mpv_node& result)
{
    if (result.format != MPV_FORMAT_NODE_MAP) {
        emit error(QStringLiteral("Cannot take snapshot"));
        qCDebug(lcPlayer) << "Cannot take snapshot:node.format != MPV_FORMAT_NODE_MAP";
        return QPixmap();
    }
    QByteArray problem;
    QImage image = FrameGrabber::imageFromScreenshot(result, &problem);
    if (image.isNull()) {
        qCDebug(lcPlayer).noquote().nospace() << "Cannot take snapshot:" << problem;
        return QPixmap();
    }
    // Moved, not copied: a full-HD frame is 8 MB.
    return QPixmap::fromImage(std::move(image));
}
