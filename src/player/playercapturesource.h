#ifndef PLAYERCAPTURESOURCE_H
#define PLAYERCAPTURESOURCE_H

#include "capturesource.h"

class VideoPlayWidget;

// The player panel as a capture source (a child of the panel).
class PlayerCaptureSource : public CaptureSource
{
    Q_OBJECT
public:
    explicit PlayerCaptureSource(VideoPlayWidget* panel);

    bool isLoaded() const override;
    void pause() override;
    void seekForCapture(double seconds) override;
    QPixmap snapshot() override;
    void requestSnapshot() override;
    double currentSecond() override;
    int currentFrame() override;
    double duration() override;
    void setCaptureType(int type) override;

private:
    VideoPlayWidget* m_panel;
};

#endif // PLAYERCAPTURESOURCE_H
