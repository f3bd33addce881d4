#include "appconfig.h"
#include "checkupdatedialog.h"
#include "downloadmanager.h"
#include "globalmanager.h"
#include "localhttpserver.h"
#include "testsupport.h"

#include <QDesktopServices>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

namespace {
QByteArray versionFile(const QString& version)
{
    return QString::fromLatin1(R"({"win":{"version":"%1","size":"61MB","date":"2024.05.06",)"
                               R"("change":["Faster export","Fixed captions"],)"
                               R"("url":"https://download.glimmer-app.org/glimmer/GlimmerSetup-%1.exe"}})")
        .arg(version)
        .toUtf8();
}
} // namespace

class TestCheckUpdateDialog : public QObject
{
    Q_OBJECT
public slots:
    // Stands in for the browser.
    void openUrlHandle(const QUrl& url) { m_openedUrls.append(url); }

private slots:
    void initTestCase();
    void cleanupTestCase();
    void versionComparison_data();
    void versionComparison();
    void newerVersionOffered();
    void menuCheckFailureExplained();
    void startCheckFailureSilent();

private:
    QList<QUrl> m_openedUrls;
    QByteArray m_body;
    LocalHttpServer* m_server = nullptr;
};

void TestCheckUpdateDialog::initTestCase()
{
    TestSupport::isolate();
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "openUrlHandle");
    m_server = new LocalHttpServer([this](const LocalHttpServer::Request&) {
        LocalHttpServer::Response response;
        response.body = m_body;
        return response;
    });
    QVERIFY(m_server->listen());
    GlobalManager::instance()->saveSettings(AppConfig::VERSION_FILE_URL,
                                            m_server->url(QStringLiteral("/glimmer/upgrade.json")));
}

void TestCheckUpdateDialog::cleanupTestCase()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    delete m_server;
}

void TestCheckUpdateDialog::versionComparison_data()
{
    QTest::addColumn<QString>("running");
    QTest::addColumn<QString>("latest");
    QTest::addColumn<bool>("isLatest");
    QTest::newRow("equal") << "1.2.0" << "1.2.0" << true;
    QTest::newRow("numeric segments") << "1.2.0" << "1.10.0" << false;
    QTest::newRow("running newer") << "1.10.0" << "1.9.9" << true;
    QTest::newRow("shorter counts as older") << "1.2" << "1.2.0" << false;
    QTest::newRow("patch newer") << "2.1.0" << "2.1.1" << false;
    QTest::newRow("nothing published") << "2.1.0" << "" << true;
}

void TestCheckUpdateDialog::versionComparison()
{
    QFETCH(QString, running);
    QFETCH(QString, latest);
    QFETCH(bool, isLatest);
    QCOMPARE(CheckUpdateDialog::isLatestVersion(running, latest), isLatest);
    QCOMPARE(CheckUpdateDialog::offersUpdate(versionFile(latest), running), !isLatest && !latest.isEmpty());
}

void TestCheckUpdateDialog::newerVersionOffered()
{
    m_body = versionFile(QStringLiteral("1.2.0"));
    m_openedUrls.clear();
    CheckUpdateDialog dialog;
    dialog.setRunningVersion(QStringLiteral("1.2.0"));
    dialog.show();
    dialog.checkForUpdate(DownloadManager::TAG_MENU, 0);
    QCOMPARE(dialog.currentLayer(), CheckUpdateDialog::CheckingLayer);
    QTRY_COMPARE_WITH_TIMEOUT(dialog.currentLayer(), CheckUpdateDialog::LatestLayer, 10000);
    QVERIFY(dialog.isLatest() && dialog.version() == QStringLiteral("1.2.0"));

    m_body = versionFile(QStringLiteral("1.10.0"));
    dialog.checkForUpdate(DownloadManager::TAG_MENU, 0);
    QTRY_COMPARE_WITH_TIMEOUT(dialog.currentLayer(), CheckUpdateDialog::UpdateLayer, 10000);
    QVERIFY(!dialog.isLatest());
    QCOMPARE((QStringList{dialog.versionText(), dialog.sizeText(), dialog.dateText(), dialog.changeText()}),
             (QStringList{"Version: 1.10.0", "Size: 61MB", "Release date: 2024.05.06",
                          "<p style='line-height:20px'>Faster export<br>Fixed captions<br></p>"}));

    QSignalSpy finished(&dialog, &QDialog::finished);
    dialog.updateNowButton()->click();
    QCOMPARE(m_openedUrls, QList<QUrl>{QUrl("https://download.glimmer-app.org/glimmer/GlimmerSetup-1.10.0.exe")});
    QVERIFY(finished.count() == 1 && !dialog.isVisible());

    // The answer was saved; a new dialog starts from it.
    CheckUpdateDialog later;
    QVERIFY(later.versionText() == QStringLiteral("Version: 1.10.0")
            && later.currentLayer() == CheckUpdateDialog::CheckingLayer);
}

void TestCheckUpdateDialog::menuCheckFailureExplained()
{
    const QString saved = GlobalManager::instance()->readSettings(AppConfig::VERSION_FILE_URL).toString();
    GlobalManager::instance()->saveSettings(
        AppConfig::VERSION_FILE_URL,
        QStringLiteral("http://127.0.0.1:%1/glimmer/upgrade.json").arg(TestSupport::freePort()));
    CheckUpdateDialog dialog;
    dialog.show();
    dialog.checkForUpdate(DownloadManager::TAG_MENU, 1);
    QTRY_VERIFY_WITH_TIMEOUT(dialog.checkingText().startsWith(QStringLiteral("Could not check for updates")), 10000);
    QVERIFY2(dialog.checkingText().contains(QStringLiteral("refused")), qPrintable(dialog.checkingText()));
    QVERIFY(dialog.currentLayer() == CheckUpdateDialog::CheckingLayer && dialog.retryButton()->isVisible());
    // The animation has stopped: the explanation stays.
    const QString text = dialog.checkingText();
    QVERIFY(!QTest::qWaitFor([&] { return dialog.checkingText() != text; }, 1200));

    // Trying again: an answer that is no version file is explained too, then a good one reaches a result.
    GlobalManager::instance()->saveSettings(AppConfig::VERSION_FILE_URL, saved);
    m_body = QByteArray("<html>captive portal</html>");
    dialog.retryButton()->click();
    QCOMPARE(dialog.checkingText(), QStringLiteral("Check for update"));
    QTRY_VERIFY_WITH_TIMEOUT(dialog.checkingText().contains(QStringLiteral("could not be read")), 10000);
    QCOMPARE(dialog.currentLayer(), CheckUpdateDialog::CheckingLayer);
    m_body = versionFile(QStringLiteral("2.1.0"));
    dialog.retryButton()->click();
    QTRY_COMPARE_WITH_TIMEOUT(dialog.currentLayer(), CheckUpdateDialog::LatestLayer, 10000);
}

void TestCheckUpdateDialog::startCheckFailureSilent()
{
    // The start-up check's answers reach a dialog fed by the main window.
    CheckUpdateDialog dialog;
    dialog.downloadLastVersionStatus(DownloadManager::DownloadError,
                                     QStringLiteral("https://x.invalid/glimmer/upgrade.json,start"),
                                     QByteArray("Host not found"));
    QCOMPARE(dialog.currentLayer(), CheckUpdateDialog::CheckingLayer);
    QCOMPARE(dialog.checkingText(), QStringLiteral("Check for update"));

    // A dialog that follows its own menu check ignores the start-up answers.
    m_body = versionFile(QStringLiteral("9.0.0"));
    CheckUpdateDialog menu;
    menu.checkForUpdate(DownloadManager::TAG_MENU, 0);
    menu.downloadLastVersionStatus(DownloadManager::DownloadFinished,
                                   QStringLiteral("https://x.invalid/glimmer/upgrade.json,start"),
                                   versionFile(QStringLiteral("1.0.0")));
    QTRY_COMPARE_WITH_TIMEOUT(menu.currentLayer(), CheckUpdateDialog::UpdateLayer, 10000);
    QCOMPARE(menu.version(), QStringLiteral("9.0.0"));
}

QTEST_MAIN(TestCheckUpdateDialog)
#include "test_checkupdatedialog.moc"
