#ifndef DOWNLOADMANAGER_H
#define DOWNLOADMANAGER_H

#include <QByteArray>
#include <QMetaType>
#include <QObject>
#include <QPointer>
#include <QString>

#include "processthread.h"

class QNetworkAccessManager;

// Fetches the published version file and downloads installers by driving the
// external download tool, whose console output becomes progress records.
class DownloadManager : public QObject
{
    Q_OBJECT
public:
    enum DownloadState {
        DownloadStart = 0,
        Downloading = 1, // reserved for in-progress reports
        DownloadError = 2,
        DownloadFinished = 3
    };
    Q_ENUM(DownloadState)

    // One progress line of the download tool, fields as the tool prints them.
    struct DownloadProgress {
        QString hash;
        QString completed;
        QString total;
        QString percent;
        QString connections;
        QString speed;
        QString eta;
    };

    // Tags of version-file requests: the silent check at start-up and the one
    // the user asks for from the menu.
    inline static const QString TAG_START = QStringLiteral("start");
    inline static const QString TAG_MENU = QStringLiteral("menu");

    // Name under which the download tool is shipped next to the executable.
    inline static const QString TOOL_NAME = QStringLiteral("mendkit-dl.exe");
    inline static const QString FALLBACK_TOOL_NAME = QStringLiteral("aria2c");

    static DownloadManager* instance();

    // Address of the version file: a setting, so it can point at a mirror.
    QString versionFileUrl() const;
    // Where the last good version file is kept between runs.
    static QString versionFileCachePath();

    // The tool shipped with the program, else the system's aria2c.
    QString toolPath() const;

    void downloadLastVersion(QString tag, int retry);
    void download(QString url, QString dir);
    bool isDownloading() const { return m_downloading; }

    QString getAutoStorage() const;
    // Placeholder kept on purpose: callers must not rely on it.
    bool checkSpaceEnough(QString path) const;

    // Fills progress from a progress line; false when the text is not one
    // (the file-allocation phase included).
    static bool parseProgress(const QString& text, DownloadProgress& progress);
    // Tag of a state text "url,tag".
    static QString tagOfStateText(const QString& text);

public slots:
    // Handling of the tool's output, one chunk at a time.
    void toolOutputHandle(QString text);
    void toolErrorHandle(QString text);

signals:
    void downloadLastVersionStateChanged(DownloadManager::DownloadState state, QString text, QByteArray data);
    void downloadStateChanged(DownloadManager::DownloadState state, QString text);
    void downloadProgress(DownloadManager::DownloadProgress progress);
    void downloadConfigStateChanged(DownloadManager::DownloadState state, QString text);
    // The digest of a completed download, just before DownloadFinished.
    void downloadMd5(QString filePath, QString md5);

private:
    explicit DownloadManager(QObject* parent = nullptr);
    void toolStoppedHandle();
    void failDownload(const QString& text);

    QNetworkAccessManager* m_network = nullptr;
    QPointer<ProcessThread> m_process; // runner of the current download
    bool m_downloading = false;
    bool m_completeSeen = false;
    QString m_lastToolError;
};

Q_DECLARE_METATYPE(DownloadManager::DownloadProgress)

#endif // DOWNLOADMANAGER_H
