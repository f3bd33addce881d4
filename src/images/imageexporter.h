#ifndef IMAGEEXPORTER_H
#define IMAGEEXPORTER_H

#include <QList>
#include <QObject>
#include <QPixmap>
#include <QPointer>
#include <QStringList>

class QWidget;
class SaveImageThread;

// The export flow shared by the preview and the list view: writes the pictures
// on a SaveImageThread into a temporary folder under the output folder, then
// (after the registration guide, once per run, for an unregistered copy) moves
// them into the output folder and reveals them. Every failure is reported in
// exportFinished(), for one message that names the pictures and the reasons.
class ImageExporter : public QObject
{
    Q_OBJECT
public:
    explicit ImageExporter(QWidget* owner);

    // Starts writing; false when an export is still running or nothing is to be written.
    // stitched: one composite picture rather than single frames.
    bool start(const QList<QPixmap>& pixmaps, bool stitched = false);
    bool isRunning() const;
    SaveImageThread* saveThread() const { return m_thread; }
    // The headline of a finished export's failures; empty when nothing failed.
    static QString summary(const QStringList& files, const QStringList& errors);

signals:
    void exportStarted();
    void exportProgress(int index, int total);
    // The writing ended; the buttons may be enabled again.
    void writingFinished();
    // An unregistered copy's first export in this run: show the registration
    // guide, then call registerGuideClosedHandle() when it is closed.
    void showRegisterGuide();
    // files: the pictures now in the output folder; errors: one text per failure.
    void exportFinished(QStringList files, QStringList errors);

public slots:
    void registerGuideClosedHandle();

private:
    void saveFinishedHandle(const QStringList& paths);
    void moveAndReveal();

    QWidget* m_owner;
    SaveImageThread* m_thread;
    QStringList m_errors;
    QStringList m_pending;
    bool m_waitingForGuide = false;
    bool m_busy = false;
};

#endif // IMAGEEXPORTER_H
