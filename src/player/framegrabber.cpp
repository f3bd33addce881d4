#include "framegrabber.h"

#include "logcategories.h"

#include <QDebug>
#include <QMetaObject>
#include <QTimer>

#include <cstring>
#include <stdexcept>

FrameGrabber::FrameGrabber(QObject* parent)
    : QObject(parent)
    , m_watchdog(new QTimer(this))
{
    qRegisterMetaType<FrameGrabber::Failure>("FrameGrabber::Failure");
    m_mpv = mpv_create();
    if (!m_mpv) {
        throw std::runtime_error("could not create mpv context");
    }
    // No video output, no sound, no window, no GPU: frames are decoded in
    // software and taken as raw screenshots at the video's own resolution.
    // Nor any of the player's scripts and overlays, which only cost time here.
    const char* const options[][2] = {
        {"terminal", "no"},         {"config", "no"},           {"sub-auto", "no"},
        {"vo", "null"},             {"ao", "null"},             {"aid", "no"},
        {"hwdec", "no"},            {"pause", "yes"},           {"keep-open", "yes"},
        {"osd-level", "0"},         {"idle", "yes"},            {"input-default-bindings", "no"},
        {"load-scripts", "no"},     {"ytdl", "no"},             {"osc", "no"},
        {"load-stats-overlay", "no"}, {"load-osd-console", "no"}, {"load-auto-profiles", "no"},
    };
    for (const auto& option : options) {
        mpv_set_option_string(m_mpv, option[0], option[1]);
    }
    if (mpv_initialize(m_mpv) < 0) {
        mpv_terminate_destroy(m_mpv);
        m_mpv = nullptr;
        throw std::runtime_error("could not initialize mpv context");
    }
    mpv_set_wakeup_callback(m_mpv, wakeup, this);
    m_watchdog->setSingleShot(true);
    connect(m_watchdog, &QTimer::timeout, this, [this]() {
        fail(TimedOut, QStringLiteral("The player did not answer within %1 s.").arg(m_timeoutMs / 1000));
    });
}

FrameGrabber::~FrameGrabber()
{
    if (m_mpv) {
        mpv_set_wakeup_callback(m_mpv, nullptr, nullptr);
        mpv_terminate_destroy(m_mpv);
        m_mpv = nullptr;
    }
}

double FrameGrabber::captureSeconds(int startMs)
{
    const float seconds = static_cast<float>(startMs) / 1000.0f;
    return static_cast<double>(seconds);
}

QByteArray FrameGrabber::seekArgument(double seconds)
{
    return QString(QStringLiteral("%1")).arg(seconds, 0, 'g', -1).toUtf8();
}

QImage FrameGrabber::imageFromScreenshot(const mpv_node& result, QByteArray* problem)
{
    if (result.format != MPV_FORMAT_NODE_MAP || !result.u.list) {
        if (problem) {
            *problem = "node.format != MPV_FORMAT_NODE_MAP";
        }
        return QImage();
    }
    int w = 0;
    int h = 0;
    int stride = 0;
    const mpv_byte_array* data = nullptr;
    const mpv_node_list* map = result.u.list;
    for (int i = 0; i < map->num; ++i) {
        const char* key = map->keys[i];
        const mpv_node& value = map->values[i];
        if (std::strcmp(key, "w") == 0) {
            w = static_cast<int>(value.u.int64);
        } else if (std::strcmp(key, "h") == 0) {
            h = static_cast<int>(value.u.int64);
        } else if (std::strcmp(key, "stride") == 0) {
            stride = static_cast<int>(value.u.int64);
        } else if (std::strcmp(key, "data") == 0 && value.format == MPV_FORMAT_BYTE_ARRAY) {
            data = value.u.ba;
        }
    }
    if (!data || !data->data) {
        if (problem) {
            *problem = "data == nullptr";
        }
        return QImage();
    }
    const int rowBytes = w * 4;
    const bool shortData = stride > 0 && data->size < static_cast<size_t>(stride) * static_cast<size_t>(h - 1) + rowBytes;
    if (w <= 0 || h <= 0 || std::abs(stride) < rowBytes || shortData) {
        if (problem) {
            *problem = QStringLiteral("bad geometry %1 %2 %3").arg(QString::number(w), QString::number(h), QString::number(stride)).toUtf8();
        }
        return QImage();
    }
    // mpv delivers bgr0; the rows are copied out (any stride sign) before
    // mpv's buffer is freed.
    QImage image(w, h, QImage::Format_RGB32);
    if (image.isNull()) {
        if (problem) {
            *problem = "out of memory";
        }
        return image;
    }
    const auto* first = static_cast<const uchar*>(data->data);
    for (int y = 0; y < h; ++y) {
        std::memcpy(image.scanLine(y), first + static_cast<qptrdiff>(y) * stride, static_cast<size_t>(rowBytes));
    }
    return image;
}

void FrameGrabber::setDecoderThreads(int threads)
{
    if (m_mpv) {
        mpv_set_property_string(m_mpv, "vd-lavc-threads", QByteArray::number(qMax(0, threads)).constData());
    }
}

void FrameGrabber::wakeup(void* ctx)
{
    QMetaObject::invokeMethod(static_cast<FrameGrabber*>(ctx), "drainEvents", Qt::QueuedConnection);
}

void FrameGrabber::drainEvents()
{
    while (m_mpv) {
        mpv_event* event = mpv_wait_event(m_mpv, 0);
        if (event->event_id == MPV_EVENT_NONE) {
            break;
        }
        handleEvent(event);
    }
}

void FrameGrabber::arm()
{
    m_watchdog->start(m_timeoutMs);
}

void FrameGrabber::fail(Failure failure, const QString& detail)
{
    if (m_state == Broken) {
        return;
    }
    m_state = Broken;
    m_watchdog->stop();
    qCWarning(lcPlayer) << "FrameGrabber failed:" << failure << detail << m_videoPath;
    emit failed(failure, detail);
}

void FrameGrabber::open(const QString& videoPath)
{
    if (!m_mpv || m_state != Idle) {
        return;
    }
    m_videoPath = videoPath;
    m_state = Loading;
    const QByteArray path = videoPath.toUtf8();
    const char* args[] = {"loadfile", path.constData(), nullptr};
    arm();
    if (mpv_command_async(m_mpv, RequestLoad, args) < 0) {
        fail(LoadFailed, QStringLiteral("The player refused the file."));
    }
}

void FrameGrabber::setSubtitles(const QString& path)
{
    m_wantedSubtitles = path;
    if (m_state == Loaded) {
        addPendingSubtitles();
    }
}

bool FrameGrabber::isReady() const
{
    return m_state == Loaded && !m_subAddPending && m_addedSubtitles == m_wantedSubtitles;
}

void FrameGrabber::addPendingSubtitles()
{
    if (m_subAddPending || m_wantedSubtitles == m_addedSubtitles || m_wantedSubtitles.isEmpty()) {
        return;
    }
    const QByteArray path = m_wantedSubtitles.toUtf8();
    const char* args[] = {"sub-add", path.constData(), "select", nullptr};
    m_subAddPending = true;
    arm();
    if (mpv_command_async(m_mpv, RequestSubAdd, args) < 0) {
        m_subAddPending = false;
        fail(SubtitlesFailed, QStringLiteral("The player refused the subtitle file."));
    }
}

void FrameGrabber::grab(int tag, double seconds, bool withPlain)
{
    if (!isReady()) {
        qCWarning(lcPlayer) << "FrameGrabber::grab while busy or not loaded";
        return;
    }
    m_tag = tag;
    m_withPlain = withPlain;
    m_seekReplied = false;
    m_state = Seeking;
    const QByteArray text = seekArgument(seconds);
    const char* args[] = {"seek", text.constData(), "absolute+exact", nullptr};
    arm();
    if (mpv_command_async(m_mpv, RequestSeek, args) < 0) {
        fail(GrabFailed, QStringLiteral("The player refused to seek to %1 s.").arg(QString::fromUtf8(text)));
    }
}

void FrameGrabber::shoot()
{
    m_state = Shooting;
    m_image = QImage();
    m_plain = QImage();
    m_shotsPending = m_withPlain ? 2 : 1;
    const char* burnt[] = {"screenshot-raw", "subtitles", nullptr};
    const char* plain[] = {"screenshot-raw", "video", nullptr};
    arm();
    if (mpv_command_async(m_mpv, RequestShot, burnt) < 0
        || (m_withPlain && mpv_command_async(m_mpv, RequestPlainShot, plain) < 0)) {
        fail(GrabFailed, QStringLiteral("The player could not take the frame."));
    }
}

void FrameGrabber::finishShot()
{
    m_watchdog->stop();
    const QImage image = m_image;
    const QImage plain = m_plain;
    const int tag = m_tag;
    m_image = QImage();
    m_plain = QImage();
    m_tag = -1;
    m_state = Loaded;
    // A receiver may start the next grab from here.
    emit frameReady(tag, image, plain);
}

void FrameGrabber::fileLoaded()
{
    m_fileLoaded = true;
    mpv_get_property(m_mpv, "duration", MPV_FORMAT_DOUBLE, &m_duration);
    // A video stream, not just a cover picture of a sound file.
    bool hasVideo = false;
    mpv_node tracks{};
    if (mpv_get_property(m_mpv, "track-list", MPV_FORMAT_NODE, &tracks) >= 0) {
        if (tracks.format == MPV_FORMAT_NODE_ARRAY) {
            for (int i = 0; i < tracks.u.list->num; ++i) {
                const mpv_node& track = tracks.u.list->values[i];
                if (track.format != MPV_FORMAT_NODE_MAP) {
                    continue;
                }
                bool video = false;
                bool picture = false;
                for (int k = 0; k < track.u.list->num; ++k) {
                    const char* key = track.u.list->keys[k];
                    const mpv_node& value = track.u.list->values[k];
                    if (std::strcmp(key, "type") == 0 && value.format == MPV_FORMAT_STRING) {
                        video = std::strcmp(value.u.string, "video") == 0;
                    } else if (std::strcmp(key, "albumart") == 0 && value.format == MPV_FORMAT_FLAG) {
                        picture = value.u.flag != 0;
                    }
                }
                hasVideo = hasVideo || (video && !picture);
            }
        }
        mpv_free_node_contents(&tracks);
    }
    if (!hasVideo) {
        fail(NoVideo, QStringLiteral("The file has no video stream."));
    }
}

void FrameGrabber::handleEvent(mpv_event* event)
{
    if (m_state == Broken) {
        return;
    }
    switch (event->event_id) {
    case MPV_EVENT_COMMAND_REPLY: {
        const QString reason = QString::fromUtf8(mpv_error_string(event->error));
        switch (event->reply_userdata) {
        case RequestLoad:
            if (event->error < 0) {
                fail(LoadFailed, reason);
            }
            break;
        case RequestSubAdd:
            m_subAddPending = false;
            if (event->error < 0) {
                fail(SubtitlesFailed, reason);
                break;
            }
            m_addedSubtitles = m_wantedSubtitles;
            if (isReady()) {
                m_watchdog->stop();
                emit ready();
            }
            break;
        case RequestSeek:
            if (event->error < 0) {
                fail(GrabFailed, reason);
            } else {
                m_seekReplied = true;
            }
            break;
        case RequestShot:
        case RequestPlainShot: {
            if (m_state != Shooting) {
                break;
            }
            QByteArray problem;
            const auto* command = static_cast<const mpv_event_command*>(event->data);
            QImage image;
            if (event->error >= 0 && command) {
                image = imageFromScreenshot(command->result, &problem);
            } else {
                problem = reason.toUtf8();
            }
            if (image.isNull()) {
                fail(GrabFailed, QStringLiteral("The player could not take the frame (%1).").arg(QString::fromUtf8(problem)));
                break;
            }
            (event->reply_userdata == RequestShot ? m_image : m_plain) = image;
            if (--m_shotsPending == 0) {
                finishShot();
            }
            break;
        }
        default:
            break;
        }
        break;
    }
    case MPV_EVENT_FILE_LOADED:
        if (m_state == Loading) {
            fileLoaded();
        }
        break;
    case MPV_EVENT_PLAYBACK_RESTART:
        // The first restart belongs to the load; later ones to our seeks, and
        // only once the seek has been answered is its frame the one shown.
        if (m_state == Loading && m_fileLoaded) {
            m_state = Loaded;
            if (m_wantedSubtitles != m_addedSubtitles) {
                addPendingSubtitles();
            } else {
                m_watchdog->stop();
                emit ready();
            }
        } else if (m_state == Seeking && m_seekReplied) {
            shoot();
        }
        break;
    case MPV_EVENT_END_FILE: {
        const auto* end = static_cast<const mpv_event_end_file*>(event->data);
        if (end && end->reason == MPV_END_FILE_REASON_ERROR) {
            // Sound is switched off here: nothing to play means no video stream.
            if (m_state == Loading && end->error == MPV_ERROR_NOTHING_TO_PLAY) {
                fail(NoVideo, QStringLiteral("The file has no video stream."));
            } else {
                fail(m_state == Loading ? LoadFailed : GrabFailed, QString::fromUtf8(mpv_error_string(end->error)));
            }
        }
        break;
    }
    default:
        break;
    }
}
