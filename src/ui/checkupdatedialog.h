#ifndef CHECKUPDATEDIALOG_H
#define CHECKUPDATEDIALOG_H

#include "downloadmanager.h"

#include <QByteArray>
#include <QDialog>
#include <QJsonArray>
#include <QString>

class QLabel;
class QPushButton;
class QStackedWidget;
class QTimer;

// Tells the user whether a newer version is published: a checking layer with a
// dotted animation, an "already latest" layer and an update layer with the
// version's details and change list.
class CheckUpdateDialog : public QDialog
{
    Q_OBJECT
public:
    enum Layer { CheckingLayer = 0, LatestLayer = 1, UpdateLayer = 2 };

    explicit CheckUpdateDialog(QWidget* parent = nullptr);

    // Starts a check of its own and follows only that check's answers. The
    // menu's check reports failures; the start-up check stays silent.
    void checkForUpdate(const QString& tag = DownloadManager::TAG_MENU, int retry = 2);

    // The running version compared against; the program's own by default.
    void setRunningVersion(const QString& version) { m_runningVersion = version; }
    QString runningVersion() const { return m_runningVersion; }

    // Fills the details from a version file body; does not switch layers.
    void updateInfo(const QByteArray& body);

    // True when the running version is equal to or newer than the published one.
    static bool isLatestVersion(const QString& running, const QString& latest);
    // Whether a version file body offers something newer than running.
    static bool offersUpdate(const QByteArray& body, const QString& running);
    // The silent check at start-up: a dialog only when a newer version is
    // published (a check from the menu has its own dialog).
    static void offerAtStartUp(QWidget* parent, DownloadManager::DownloadState state, const QString& text,
                               const QByteArray& data);
    // Rich text of the change list: every entry followed by a line break.
    static QString changeListHtml(const QJsonArray& changes);

    Layer currentLayer() const;
    bool isLatest() const { return m_isLatest; }
    QString version() const { return m_version; }
    QString url() const { return m_url; }
    QString checkingText() const;
    QString changeText() const;
    QString versionText() const;
    QString sizeText() const;
    QString dateText() const;
    QPushButton* updateNowButton() const { return m_updateNowButton; }
    QPushButton* laterButton() const { return m_laterButton; }
    QPushButton* retryButton() const { return m_retryButton; }

public slots:
    void downloadLastVersionStatus(DownloadManager::DownloadState state, QString text, QByteArray data);
    void updateTimer();

private:
    void initUi();
    void showCheckingLayer();
    void showResultLayer();
    void showCheckError(const QString& error);
    void retranslate();
    void updateDetailTexts();
    QString checkErrorText() const;
    QString checkingDotsText() const;

    QStackedWidget* m_stack = nullptr;
    QLabel* m_checkingLabel = nullptr;
    QPushButton* m_retryButton = nullptr;
    QPushButton* m_closeButton = nullptr;
    QLabel* m_latestLabel = nullptr;
    QPushButton* m_okButton = nullptr;
    QLabel* m_updateTitle = nullptr;
    QLabel* m_versionLabel = nullptr;
    QLabel* m_dateLabel = nullptr;
    QLabel* m_sizeLabel = nullptr;
    QLabel* m_changeLabel = nullptr;
    QPushButton* m_laterButton = nullptr;
    QPushButton* m_updateNowButton = nullptr;
    QTimer* m_checkTimer = nullptr;

    QString m_runningVersion;
    QString m_tag;
    int m_retry = 2;
    QString m_version;
    QString m_size;
    QString m_date;
    QJsonArray m_change;
    QString m_url;
    bool m_isLatest = false;
    // What the details show: sample values until a version file was read.
    QString m_shownVersion = QStringLiteral("2.3.0");
    QString m_shownDate = QStringLiteral("2023.10.12");
    QString m_shownSize = QStringLiteral("50MB");
    QString m_checkError;
    bool m_showingError = false;
    int m_dotCount = 0;
};

#endif // CHECKUPDATEDIALOG_H
