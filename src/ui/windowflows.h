#ifndef WINDOWFLOWS_H
#define WINDOWFLOWS_H

#include <QObject>
#include <QString>

class AutoCaptionFlow;
class CaptionEditor;
class CaptionFileFlow;
class CaptionSaveFlow;
class CloseGuard;
class CaptionWidget;
class CaptureController;
class ExportNotice;
class ImagesWidget;
class LoadingDialog;
class MainMenu;
class MessageDialog;
class PreviewWidget;
class UndoHistory;
class VideoPlayWidget;
class QWidget;

// The user's workflows that span several panels: capturing, editing captions,
// automatic captions and local subtitle files. Each flow is a class of its
// own; this one makes them and connects them to the panels and to the
// window's busy and message dialogs.
class WindowFlows : public QObject
{
    Q_OBJECT
public:
    struct Parts {
        QWidget* window;
        VideoPlayWidget* player;
        ImagesWidget* strip;
        PreviewWidget* preview;
        CaptionWidget* captions;
        LoadingDialog* loading;
        MessageDialog* messages;
    };

    explicit WindowFlows(const Parts& parts);

    CaptureController* capture() const { return m_capture; }
    AutoCaptionFlow* autoCaptions() const { return m_autoCaptions; }
    CaptionFileFlow* captionFiles() const { return m_captionFiles; }
    CaptionEditor* editor() const { return m_editor; }
    ExportNotice* exportNotice() const { return m_notice; }
    UndoHistory* history() const { return m_history; }
    CaptionSaveFlow* captionSaver() const { return m_saver; }
    CloseGuard* closeGuard() const { return m_closeGuard; }

    void showMessage(const QString& title, const QString& message);
    // Puts the flows' own actions into the menu and makes their shortcuts
    // work anywhere in the window.
    void addActions(MainMenu* menu);

signals:
    // Every ticked caption was captured.
    void captureCheckedFinished();
    // The frames were captured again after a style edit.
    void recaptureFinished();

private:
    void initCapture();
    void initAutoCaptions();
    // The chosen language needs a transcription server: says so and offers the Speech engine dialog.
    void offerSpeechEngine(const QString& language);
    void initCaptionFiles();
    void initExports();
    void initHistory();

    Parts m_parts;
    CaptureController* m_capture = nullptr;
    CaptionEditor* m_editor = nullptr;
    AutoCaptionFlow* m_autoCaptions = nullptr;
    CaptionFileFlow* m_captionFiles = nullptr;
    ExportNotice* m_notice = nullptr;
    UndoHistory* m_history = nullptr;
    CaptionSaveFlow* m_saver = nullptr;
    CloseGuard* m_closeGuard = nullptr;
};

#endif // WINDOWFLOWS_H
