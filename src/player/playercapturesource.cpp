#include "playercapturesource.h"

#include "mpvwidget.h"
#include "videoplaywidget.h"

PlayerCaptureSource::PlayerCaptureSource(VideoPlayWidget* panel)
    : CaptureSource(panel)
    , m_panel(panel)
{
    connect(panel, &VideoPlayWidget::subtitleTrackAdded, this, &CaptureSource::subtitlesLoaded);
    connect(panel, &VideoPlayWidget::captureSeekAnswered, this, &CaptureSource::seekAnswered);
    connect(panel->getMpvWidget(), &MpvWidget::snapshotTaken, this, &CaptureSource::snapshotTaken);
    connect(panel->getMpvWidget(), &MpvWidget::playbackRestarted, this, [this](MpvWidget::RestartKind kind) {
        if (kind == MpvWidget::RestartAfterCaptureSeek) {
            emit frameReady();
        }
    });
}

bool PlayerCaptureSource::isLoaded() const
{
    return m_panel->isLoadFile();
}

void PlayerCaptureSource::pause()
{
    m_panel->pause();
}

void PlayerCaptureSource::seekForCapture(double seconds)
{
    m_panel->getMpvWidget()->seekToPositionForCapture(seconds);
}

QPixmap PlayerCaptureSource::snapshot()
{
    return m_panel->getMpvWidget()->takeSnapshot();
}

void PlayerCaptureSource::requestSnapshot()
{
    if (!m_panel->getMpvWidget()->requestSnapshot()) {
        CaptureSource::requestSnapshot();
    }
}

double PlayerCaptureSource::currentSecond()
{
    return m_panel->getMpvWidget()->getCurrentSecond();
}

int PlayerCaptureSource::currentFrame()
{
    return m_panel->getMpvWidget()->getCurrentFrame();
}

double PlayerCaptureSource::duration()
{
    return m_panel->getMpvWidget()->getTotalSeconds();
}

void PlayerCaptureSource::setCaptureType(int type)
{
    m_panel->changeCaptureType(type);
}
