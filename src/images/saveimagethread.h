#ifndef SAVEIMAGETHREAD_H
#define SAVEIMAGETHREAD_H

#include <QList>
#include <QMutex>
#include <QPixmap>
#include <QStringList>
#include <QThread>

// Writes a list of pictures into one folder off the GUI thread. Every write is
// checked: a picture that could not be written is reported by saveError and left
// out of the finished list, the others are kept.
class SaveImageThread : public QThread
{
    Q_OBJECT
public:
    explicit SaveImageThread(QObject* parent = nullptr);
    ~SaveImageThread() override;

    // Also takes the video's name, the format and the registration state as
    // they are now: the worker reads nothing else.
    // stitched: the pictures are composites, named VIDEO_stitch_N rather
    // than VIDEO_N, so they never pass for single frames.
    void setPixmapList(const QList<QPixmap>& pixmaps, const QString& dir, bool stitched = false);
    QString getDir() const;

signals:
    void saveStart();
    void saveProgress(int index, int total);
    // name: the file name the picture was meant to get; reason: why it failed.
    void saveError(QString name, QString reason);
    void saveFinished(QStringList paths);

protected:
    void run() override;

private:
    mutable QMutex m_mutex;
    QList<QPixmap> m_pixmapList;
    QString m_dir;
    QString m_baseName;
    QString m_extension;
    bool m_registered = false;
};

#endif // SAVEIMAGETHREAD_H
