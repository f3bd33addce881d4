#ifndef GLOBALMANAGER_H
#define GLOBALMANAGER_H

#include <QFileInfo>
#include <QImage>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QVariant>

class AudioExtractor;
class ImageItem;
class ProcessThread;

// The program's facade for application-wide services. It owns the event bus
// and the current media file; everything else is a thin call into a focused
// class: Settings, AppPaths, Logger, AudioExtractor, PictureWriter, OutputFiles,
// FileReveal, and (caption layer) SubtitleConverter.
class GlobalManager : public QObject
{
    Q_OBJECT
public:
    static GlobalManager* instance();

    // Event bus: synchronous delivery to every connected listener.
    void emitEvent(const QString& eventName, const QVariant& value);

    // Settings (Settings)
    void saveSettings(const QString& key, const QVariant& value);
    QVariant readSettings(const QString& key, const QVariant& defaultValue = QVariant()) const;
    void saveInAppSettings(const QString& key, const QVariant& value);
    QVariant readInAppSettings(const QString& key, const QVariant& defaultValue = QVariant()) const;

    // Paths (AppPaths)
    QString getWritePath(const QString& name) const;
    QString getDirPath() const;
    QString getTempPath(const QString& name) const;
    QString getDirByCheck(const QString& path) const;
    QString getAppVersion() const { return m_appVersion; }
    QString getHomePageUrl() const;

    // Current media file
    void setCurrentFile(const QFileInfo& file) { m_currentFile = file; }
    QFileInfo getCurrentFile() const { return m_currentFile; }

    // Helpers
    static QString formatSecondToTime(double seconds);
    static int getFontSizeByTextAndWidth(const QString& text, int width);
    static QString readFileContent(const QString& path);
    static bool writeFileContent(const QString& path, const QString& content);
    void openUrl(const QString& url);

    // Logging (Logger)
    QString getLogDir() const;
    void initLog();
    QString getLogFilePath() const { return m_logFilePath; }

    // Audio extraction (AudioExtractor) and subtitle conversion. These two are
    // defined in the caption layer (captions/captionfacade.cpp): they work on
    // the caption store's working files.
    void videoToAudio(const QString& videoPath);
    QString srtToAss(const QString& srtPath);
    void stopConvert();
    bool isStopConvert() const;
    ProcessThread* audioThread() const;

    // Captured image selection, rebuilt by the image strip
    QList<ImageItem*>& selectedImages() { return m_selectedImages; }

    // Export helpers. saveImage returns the path written, or an empty string with
    // the reason in *error; selectOutPutFilesByTempList lists in *errors every
    // picture it could not move (the picture then stays where it was).
    QString saveImage(const QPixmap& pixmap, const QString& dir, const QString& name,
                      const QString& ext, QString* error = nullptr);
    QString saveImage(const QImage& image, const QString& dir, const QString& name,
                      const QString& ext, QString* error = nullptr);
    static void changePixmapWithWaterMark(QPixmap& pixmap, const QString& text);
    static void changeImageWithWaterMark(QImage& image, const QString& text);
    QStringList selectOutPutFilesByTempList(const QStringList& tempPaths,
                                            QStringList* errors = nullptr);
    void openFilesBySelect(const QStringList& paths);

    // Licensing state
    bool isRegister() const { return m_isRegister; }
    void setRegister(bool registered) { m_isRegister = registered; }

signals:
    void globalEvent(QString eventName, QVariant value);

public slots:
    void httpRequestFinished(QString key, const QJsonObject& object, const QByteArray& data);
    void httpRequestError(QString key, const QJsonObject& object, const QByteArray& data);

private:
    explicit GlobalManager(QObject* parent = nullptr);

    QString m_appVersion;
    QFileInfo m_currentFile;
    AudioExtractor* m_audio = nullptr;
    QString m_logFilePath;
    QList<ImageItem*> m_selectedImages;
    bool m_isRegister = false;
};

#endif // GLOBALMANAGER_H
