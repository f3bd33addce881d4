#ifndef GLOBALMANAGER_H
#define GLOBALMANAGER_H

#include <QFileInfo>
#include <QImage>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QVariant>

class ImageItem;
class ProcessThread;

// Process-wide services: the event bus, both settings stores, paths, logging,
// the audio extraction runner and the file helpers shared by the panels.
class GlobalManager : public QObject
{
    Q_OBJECT
public:
    static GlobalManager* instance();

    // Event bus: synchronous delivery to every connected listener.
    void emitEvent(const QString& eventName, const QVariant& value);

    // Settings
    void saveSettings(const QString& key, const QVariant& value);
    QVariant readSettings(const QString& key, const QVariant& defaultValue = QVariant()) const;
    void saveInAppSettings(const QString& key, const QVariant& value);
    QVariant readInAppSettings(const QString& key, const QVariant& defaultValue = QVariant()) const;

    // Paths
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

    // Logging
    QString getLogDir() const;
    void initLog();
    QString getLogFilePath() const { return m_logFilePath; }
    static QString formatLogLine(QtMsgType type, const QString& file, int line,
                                 const QString& function, const QString& message);

    // Audio extraction and subtitle conversion
    void videoToAudio(const QString& videoPath);
    void stopConvert();
    bool isStopConvert() const { return m_isStopConvert; }
    ProcessThread* audioThread() const { return m_mp3Thread; }
    QString srtToAss(const QString& srtPath);
    QString getFfmpegPath() const;

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
    static bool isUsableDir(const QString& path);

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
    bool m_isStopConvert = false;
    ProcessThread* m_mp3Thread = nullptr;
    QMap<QString, QVariant> m_inAppSettings;
    QString m_logFilePath;
    QList<ImageItem*> m_selectedImages;
    bool m_isRegister = false;
};

#endif // GLOBALMANAGER_H
