#include "appconfig.h"
#include "globalmanager.h"
#include "licensemanager.h"
#include "localhttpserver.h"
#include "registerdialog.h"
#include "registerguidedialog.h"
#include "testsupport.h"

#include <QApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

namespace {
const QString kGoodKey = QStringLiteral("GLIM-7F3A-92C1-D4E8");
const QString kRevokedKey = QStringLiteral("GLIM-0000-REVO-KED0");

QList<QVariant> eventValues(const QSignalSpy& spy, const QString& name)
{
    QList<QVariant> values;
    for (const QList<QVariant>& call : spy) {
        if (call.at(0).toString() == name) {
            values.append(call.at(1));
        }
    }
    return values;
}
} // namespace

// A licence server that knows one good key; a revoked key passed registration
// once but is refused when checked again.
class TestLicense : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void keyAccepted();
    void keyRefused();
    void refusedKeyKeepsExistingRegistration();
    void refusalByHttpStatus();
    void serverUnreachable();
    void emptyKey();
    void restoreTrustsStoredKey();
    void restoreDropsRevokedKey();
    void restoreKeepsKeyOffline();
    void restoreWithoutKey();
    void registerDialogFlow();
    void guideShownOncePerRun();
    void guideLeadsToRegistration();
    void keyNeverLogged();

private:
    LocalHttpServer::Response answer(const LocalHttpServer::Request& request);
    void useServer(bool reachable);

    LocalHttpServer* m_server = nullptr;
    bool m_refuseByStatus = false;
};

LocalHttpServer::Response TestLicense::answer(const LocalHttpServer::Request& request)
{
    const QJsonObject body = QJsonDocument::fromJson(request.body).object();
    const QString key = body.value(QStringLiteral("key")).toString();
    const bool verify = request.path == QStringLiteral("/api/license/verify");
    const bool known = key == kGoodKey || (!verify && key == kRevokedKey);
    LocalHttpServer::Response response;
    QJsonObject reply;
    reply.insert(QStringLiteral("registered"), known);
    if (!known) {
        reply.insert(QStringLiteral("message"), QStringLiteral("Unknown licence key."));
        if (m_refuseByStatus) {
            response.status = 403;
            reply.remove(QStringLiteral("registered"));
        }
    }
    response.body = QJsonDocument(reply).toJson(QJsonDocument::Compact);
    return response;
}

void TestLicense::useServer(bool reachable)
{
    GlobalManager::instance()->saveSettings(
        AppConfig::LICENSE_SERVER_URL,
        reachable ? m_server->url(QString()) : QStringLiteral("http://127.0.0.1:%1").arg(LocalHttpServer::closedPort()));
}

void TestLicense::initTestCase()
{
    TestSupport::isolate();
    GlobalManager::instance()->initLog();
    m_server = new LocalHttpServer([this](const LocalHttpServer::Request& request) { return answer(request); });
    QVERIFY(m_server->listen());
}

void TestLicense::init()
{
    m_refuseByStatus = false;
    useServer(true);
    GlobalManager::instance()->saveSettings(AppConfig::APP_REGISTER, QString());
    GlobalManager::instance()->setRegister(false);
    GlobalManager::instance()->saveInAppSettings(AppConfig::SHOW_GUIDE_REGISTER_BY_EXPORT, QVariant());
}

void TestLicense::cleanupTestCase()
{
    delete m_server;
}

void TestLicense::keyAccepted()
{
    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    LicenseManager::instance()->registerKey(QStringLiteral("  ") + kGoodKey + QStringLiteral("\n"));
    QVERIFY(LicenseManager::instance()->isBusy());
    QTRY_VERIFY_WITH_TIMEOUT(!eventValues(bus, AppConfig::REGISTER_COMPLETE).isEmpty(), 10000);

    QCOMPARE(eventValues(bus, AppConfig::REGISTER_COMPLETE), QList<QVariant>{1});
    QVERIFY(eventValues(bus, AppConfig::REGISTER_ERROR).isEmpty());
    QVERIFY(GlobalManager::instance()->isRegister());
    QVERIFY(!LicenseManager::instance()->isBusy());
    QCOMPARE(GlobalManager::instance()->readSettings(AppConfig::APP_REGISTER, QString()).toString(), kGoodKey);
    QCOMPARE(LicenseManager::instance()->maskedKey(), QStringLiteral("GLIM***********D4E8"));

    const LocalHttpServer::Request sent = m_server->requests().last();
    QCOMPARE(sent.method, QByteArray("POST"));
    QCOMPARE(sent.path, QStringLiteral("/api/license/register"));
    const QJsonObject body = QJsonDocument::fromJson(sent.body).object();
    QCOMPARE(body.value(QStringLiteral("key")).toString(), kGoodKey);
    QCOMPARE(body.value(QStringLiteral("product")).toString(), AppConfig::APP_NAME);
    QCOMPARE(body.value(QStringLiteral("version")).toString(), GlobalManager::instance()->getAppVersion());
}

void TestLicense::keyRefused()
{
    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    LicenseManager::instance()->registerKey(QStringLiteral("GLIM-BAD0-BAD0-BAD0"));
    QTRY_VERIFY_WITH_TIMEOUT(!eventValues(bus, AppConfig::REGISTER_ERROR).isEmpty(), 10000);

    QCOMPARE(eventValues(bus, AppConfig::REGISTER_ERROR), QList<QVariant>{QStringLiteral("Unknown licence key.")});
    QCOMPARE(eventValues(bus, AppConfig::REGISTER_COMPLETE), QList<QVariant>{-1});
    QVERIFY(!GlobalManager::instance()->isRegister());
    QVERIFY(GlobalManager::instance()->readSettings(AppConfig::APP_REGISTER, QString()).toString().isEmpty());
    QVERIFY(!LicenseManager::instance()->isBusy());
}

void TestLicense::refusedKeyKeepsExistingRegistration()
{
    GlobalManager::instance()->saveSettings(AppConfig::APP_REGISTER, kGoodKey);
    GlobalManager::instance()->setRegister(true);
    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    LicenseManager::instance()->registerKey(QStringLiteral("GLIM-BAD0-BAD0-BAD0"));
    QTRY_VERIFY_WITH_TIMEOUT(!eventValues(bus, AppConfig::REGISTER_ERROR).isEmpty(), 10000);
    QVERIFY(eventValues(bus, AppConfig::REGISTER_COMPLETE).isEmpty());
    QVERIFY(GlobalManager::instance()->isRegister());
    QCOMPARE(GlobalManager::instance()->readSettings(AppConfig::APP_REGISTER, QString()).toString(), kGoodKey);
}

void TestLicense::refusalByHttpStatus()
{
    m_refuseByStatus = true;
    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    LicenseManager::instance()->registerKey(QStringLiteral("GLIM-BAD0-BAD0-BAD0"));
    QTRY_VERIFY_WITH_TIMEOUT(!eventValues(bus, AppConfig::REGISTER_ERROR).isEmpty(), 10000);
    QCOMPARE(eventValues(bus, AppConfig::REGISTER_ERROR), QList<QVariant>{QStringLiteral("Unknown licence key.")});
    QVERIFY(!GlobalManager::instance()->isRegister());
    QVERIFY(!LicenseManager::instance()->isBusy());
}

void TestLicense::serverUnreachable()
{
    useServer(false);
    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    LicenseManager::instance()->registerKey(kGoodKey);
    QTRY_VERIFY_WITH_TIMEOUT(!eventValues(bus, AppConfig::REGISTER_ERROR).isEmpty(), 10000);
    QCOMPARE(eventValues(bus, AppConfig::REGISTER_ERROR).size(), 1);
    QVERIFY(!eventValues(bus, AppConfig::REGISTER_ERROR).first().toString().isEmpty());
    QVERIFY(!GlobalManager::instance()->isRegister());
    QVERIFY(!LicenseManager::instance()->isBusy());
}

void TestLicense::emptyKey()
{
    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    const int before = m_server->requests().size();
    LicenseManager::instance()->registerKey(QStringLiteral("   "));
    QCOMPARE(eventValues(bus, AppConfig::REGISTER_ERROR).size(), 1);
    QVERIFY(!LicenseManager::instance()->isBusy());
    QCOMPARE(m_server->requests().size(), before);
}

void TestLicense::restoreTrustsStoredKey()
{
    GlobalManager::instance()->saveSettings(AppConfig::APP_REGISTER, kGoodKey);
    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    QSignalSpy verified(LicenseManager::instance(), &LicenseManager::verifyFinished);
    LicenseManager::instance()->restore();
    // Registered at once, before any answer.
    QVERIFY(GlobalManager::instance()->isRegister());
    QCOMPARE(eventValues(bus, AppConfig::REGISTER_COMPLETE), QList<QVariant>{1});
    QVERIFY(verified.wait(10000));
    QCOMPARE(verified.first().first().toBool(), true);
    QCOMPARE(m_server->requests().last().path, QStringLiteral("/api/license/verify"));
    QVERIFY(GlobalManager::instance()->isRegister());
}

void TestLicense::restoreDropsRevokedKey()
{
    GlobalManager::instance()->saveSettings(AppConfig::APP_REGISTER, kRevokedKey);
    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    QSignalSpy verified(LicenseManager::instance(), &LicenseManager::verifyFinished);
    LicenseManager::instance()->restore();
    QVERIFY(verified.wait(10000));
    QCOMPARE(verified.first().first().toBool(), false);
    QVERIFY(!GlobalManager::instance()->isRegister());
    QVERIFY(GlobalManager::instance()->readSettings(AppConfig::APP_REGISTER, QString()).toString().isEmpty());
    QCOMPARE(eventValues(bus, AppConfig::REGISTER_COMPLETE), (QList<QVariant>{1, -1}));
    // The background check never reaches the registration dialogs.
    QVERIFY(eventValues(bus, AppConfig::REGISTER_ERROR).isEmpty());
}

void TestLicense::restoreKeepsKeyOffline()
{
    useServer(false);
    GlobalManager::instance()->saveSettings(AppConfig::APP_REGISTER, kGoodKey);
    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    QSignalSpy verified(LicenseManager::instance(), &LicenseManager::verifyFinished);
    LicenseManager::instance()->restore();
    QVERIFY(verified.wait(10000));
    QVERIFY(GlobalManager::instance()->isRegister());
    QCOMPARE(GlobalManager::instance()->readSettings(AppConfig::APP_REGISTER, QString()).toString(), kGoodKey);
    QVERIFY(eventValues(bus, AppConfig::REGISTER_ERROR).isEmpty());
}

void TestLicense::restoreWithoutKey()
{
    GlobalManager::instance()->setRegister(true); // a stale state is corrected
    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    const int before = m_server->requests().size();
    LicenseManager::instance()->restore();
    QVERIFY(!GlobalManager::instance()->isRegister());
    QCOMPARE(eventValues(bus, AppConfig::REGISTER_COMPLETE), QList<QVariant>{-1});
    QTest::qWait(100);
    QCOMPARE(m_server->requests().size(), before);
}

void TestLicense::registerDialogFlow()
{
    RegisterDialog dialog;
    dialog.show();
    QVERIFY(!dialog.registerButton()->isEnabled());

    QTest::keyClicks(dialog.keyEdit(), QStringLiteral("GLIM-BAD0-BAD0-BAD0"));
    QVERIFY(dialog.registerButton()->isEnabled());
    dialog.registerButton()->click();
    QVERIFY(dialog.isWaiting());
    QVERIFY(!dialog.keyEdit()->isEnabled());
    QVERIFY(!dialog.registerButton()->isEnabled());
    QTRY_VERIFY_WITH_TIMEOUT(!dialog.isWaiting(), 10000);
    QCOMPARE(dialog.statusText(), QStringLiteral("Unknown licence key."));
    QVERIFY(dialog.keyEdit()->isEnabled());
    QVERIFY(dialog.registerButton()->isEnabled());

    dialog.keyEdit()->setText(kGoodKey);
    QTest::keyClick(dialog.keyEdit(), Qt::Key_Return);
    QVERIFY(dialog.isWaiting());
    QTRY_VERIFY_WITH_TIMEOUT(!dialog.isWaiting(), 10000);
    QVERIFY(GlobalManager::instance()->isRegister());
    QVERIFY2(dialog.statusText().contains(QStringLiteral("registered")), qPrintable(dialog.statusText()));
    QVERIFY(!dialog.statusText().contains(kGoodKey));
    QVERIFY(dialog.keyEdit()->text().isEmpty());
    QCOMPARE(dialog.closeButton()->text(), QStringLiteral("Close"));

    // Opened again when registered, it says so at once.
    RegisterDialog again;
    QVERIFY(again.statusText().contains(QStringLiteral("registered")));
}

void TestLicense::guideShownOncePerRun()
{
    QWidget parent;
    parent.show();
    int continued = 0;
    QVERIFY(RegisterGuideDialog::showAfterExport(&parent, [&]() { ++continued; }));
    QCOMPARE(continued, 0); // the export waits for the guide
    QVERIFY(GlobalManager::instance()->readInAppSettings(AppConfig::SHOW_GUIDE_REGISTER_BY_EXPORT, false).toBool());
    auto* guide = parent.findChild<RegisterGuideDialog*>();
    QVERIFY(guide);
    QVERIFY(guide->isVisible());
    guide->laterButton()->click();
    QCOMPARE(continued, 1);

    // Second export of the run: no guide, the export goes on at once.
    QVERIFY(!RegisterGuideDialog::showAfterExport(&parent, [&]() { ++continued; }));
    QCOMPARE(continued, 2);

    // A registered copy never sees it.
    GlobalManager::instance()->saveInAppSettings(AppConfig::SHOW_GUIDE_REGISTER_BY_EXPORT, QVariant());
    GlobalManager::instance()->setRegister(true);
    QVERIFY(!RegisterGuideDialog::showAfterExport(&parent, [&]() { ++continued; }));
    QCOMPARE(continued, 3);
}

void TestLicense::guideLeadsToRegistration()
{
    QWidget parent;
    parent.show();
    int continued = 0;
    QVERIFY(RegisterGuideDialog::showAfterExport(&parent, [&]() { ++continued; }));
    auto* guide = parent.findChild<RegisterGuideDialog*>();
    QVERIFY(guide);
    guide->registerButton()->click();
    QVERIFY(!guide->isVisible());
    RegisterDialog* dialog = nullptr;
    QTRY_VERIFY((dialog = parent.findChild<RegisterDialog*>()) && dialog->isVisible());
    QCOMPARE(continued, 0);

    dialog->keyEdit()->setText(kGoodKey);
    dialog->registerButton()->click();
    QTRY_VERIFY_WITH_TIMEOUT(GlobalManager::instance()->isRegister(), 10000);
    dialog->closeButton()->click();
    QCOMPARE(continued, 1);
}

void TestLicense::keyNeverLogged()
{
    // Runs last: every test above sent keys through the real client.
    const QString log = GlobalManager::readFileContent(GlobalManager::instance()->getLogFilePath());
    QVERIFY(log.contains(QStringLiteral("registration answer:")));
    QVERIFY(!log.contains(kGoodKey));
    QVERIFY(!log.contains(QStringLiteral("GLIM-BAD0")));
}

QTEST_MAIN(TestLicense)
#include "test_license.moc"
