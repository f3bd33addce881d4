#ifndef VIDEOPLAYWIDGET_H
#define VIDEOPLAYWIDGET_H

#include "basewidget.h"

#include <QList>
#include <QVariant>

#include <mpv/client.h>

class CaptionInfo;
class CaptionOverlay;
class CaptionStyleBar;
class MpvWidget;
class QComboBox;
class QLabel;
class QPushButton;
class QShortcut;
class QSlider;

// The player panel: video surface with its caption overlay, the empty-state
// logo and drop area, progress slider and time labels, transport and capture
// buttons, sound and speed controls, and the caption style toolbar.
class VideoPlayWidget : public BaseWidget
{
    Q_OBJECT
public:
    // Ids carried in each control button's "button" property.
    enum ButtonId {
        ButtonPreviousFrame = 0,
        ButtonNextFrame = 1,
        ButtonPlay = 2,
        ButtonStop = 3,
        ButtonCapture = 4,
        ButtonCaptureSelected = 5,
    };

    explicit VideoPlayWidget(QWidget* parent = nullptr);

    MpvWidget* getMpvWidget() const { return m_mpv; }
    CaptionOverlay* getCaptionOverlay() const { return m_overlay; }
    CaptionStyleBar* getCaptionStyleBar() const { return m_styleBar; }
    QPushButton* getControlButton(int id) const { return m_buttons.value(id); }

    void initShortCut();
    void initConfig();

    void play();
    void pause();
    void stop();
    void seekToPostion(double seconds);
    bool isLoadFile() const;
    void showLogo(bool show);
    bool isLogoShown() const;

    // Open dialog, then loadFileByFileName.
    void loadFile();
    void loadFileByFileName(const QString& name);
    // A video named from outside (command line): checked, then loaded; false
    // when the file does not exist or cannot be read.
    bool openFile(const QString& path);

    void loadSubTitleFile(const QString& path);
    // Removes subtitle track id from the player; 0 removes every subtitle
    // track loaded from a file.
    void removeCaption(int id);

    void changeCaptureType(int type) { captureType = type; }
    int getCaptureType() const { return captureType; }
    double getCurrentTime() const { return currentTime; }

    // Adds a caption of 3 s at the current position and opens it for editing.
    CaptionInfo* insertCaptionAtCurrentTime();

    QString currentTimeText() const;
    QString totalTimeText() const;
    QSlider* progressSlider() const { return m_progressSlider; }
    QSlider* soundSlider() const { return m_soundSlider; }
    QPushButton* soundButton() const { return m_soundButton; }
    QComboBox* speedComboBox() const { return m_speedBox; }

public slots:
    void playControlButtonClickHandle(QObject* widget);
    void soundButtonClickHandle(QObject* widget);
    void mpvPropertyHandle(QString commond, double value);
    void mpvEventHandle(mpv_event* event);
    void captionEditHandle(bool editing, QString text);
    void changeLang(int type = 0) override;

signals:
    void dragFileSignal(QString filePath);
    void captureEventSignal(int type, QVariant data);
    void captionEditSignal(CaptionInfo* edit, bool isAll);
    void playerTimePos(double time);
    void captureSelectSignal(int type);
    void captionCheckStateChangedSignal(CaptionInfo* event, int state);
    // The same happenings by name, for the capture flows: libmpv's reply
    // numbers stay inside the panel.
    void captureNowRequested();
    void captureCheckedRequested();
    void captureSeekAnswered();
    void subtitleTrackAdded();
    // A caption could not be created: the position lies inside one already.
    void captionInsertRefused();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* createLogo();
    QWidget* createControls();
    QPushButton* createControlButton(int id, const QString& icon, const QString& styleProperty);
    void setPlayIcon(bool playing);
    void refreshCaption(double seconds);
    void loadFailedHandle(const QString& path, const QString& reason);
    void resetTimeDisplay();

    MpvWidget* m_mpv = nullptr;
    CaptionOverlay* m_overlay = nullptr;
    CaptionStyleBar* m_styleBar = nullptr;
    QWidget* m_logo = nullptr;
    QLabel* m_logoText = nullptr;
    QWidget* m_videoPage = nullptr;
    QLabel* m_currentTimeLabel = nullptr;
    QLabel* m_totalTimeLabel = nullptr;
    QSlider* m_progressSlider = nullptr;
    QPushButton* m_playButton = nullptr;
    QPushButton* m_soundButton = nullptr;
    QSlider* m_soundSlider = nullptr;
    QLabel* m_speedLabel = nullptr;
    QComboBox* m_speedBox = nullptr;
    QList<QPushButton*> m_buttons;
    QList<QShortcut*> m_shortcuts;
    bool sliderDragging = false;
    double currentTime = 0.0;
    int captureType = 0;
};

#endif // VIDEOPLAYWIDGET_H
