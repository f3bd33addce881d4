#ifndef CAPTIONSAVEFLOW_H
#define CAPTIONSAVEFLOW_H

#include <QObject>
#include <QString>

class QAction;
class QWidget;

// Saving the captions as SRT or ASS: "Save captions" writes to the file
// chosen last for this video (or asks where, the first time), "Save captions
// as..." always asks. Only the file dialog may overwrite a file, after its
// own question.
class CaptionSaveFlow : public QObject
{
    Q_OBJECT
public:
    explicit CaptionSaveFlow(QWidget* window);

    QAction* saveAction() const { return m_save; }
    QAction* saveAsAction() const { return m_saveAs; }
    // Where the dialog starts: after automatic captions
    // "<video base name>.<language code>.srt" next to the video.
    QString defaultPath() const;
    void retranslate();

public slots:
    bool save();
    bool saveAs();
    // Another video or caption set: the next save asks again.
    void forgetTarget() { m_target.clear(); }

signals:
    void failed(QString title, QString message);
    void saved(QString path);

private:
    bool write(const QString& path);

    QWidget* m_window;
    QAction* m_save;
    QAction* m_saveAs;
    QString m_target;
};

#endif // CAPTIONSAVEFLOW_H
