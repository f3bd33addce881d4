#include "appconfig.h"
#include "globalmanager.h"
#include "licensemanager.h"
#include "localhttpserver.h"
#include "registerdialog.h"
#include "registerguidedialog.h"
#include "testsupport.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

namespace {
const QString kGoodKey = QStringLiteral("GLIM-7F3A-92C1-D4E8");
const QString kRevokedKey = QStringLiteral("GLIM-0000-REVO-KED0");
} // namespace

using TestSupport::eventValues;

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
    void keyRefused_data();
    void keyRefused();
    void restore_data();
    void restore();
    void registerDialogFlow();
    void guideAfterExport();
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
        reachable ? m_server->url(QString()) : QStringLiteral("http://127.0.0.1:%1").arg(TestSupport::freePort()));
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
    // A blank key is refused at once, without a request.
    LicenseManager::instance()->registerKey(QStringLiteral("   "));
    QVERIFY(eventValues(bus, AppConfig::REGISTER_ERROR).size() == 1 && m_server->requests().isEmpty());
    bus.clear();

    LicenseManager::instance()->registerKey(QStringLiteral("  ") + kGoodKey + QStringLiteral("\n"));
    QVERIFY(LicenseManager::instance()->isBusy());
    QTRY_VERIFY_WITH_TIMEOUT(!eventValues(bus, AppConfig::REGISTER_COMPLETE).isEmpty(), 10000);

    QCOMPARE(eventValues(bus, AppConfig::REGISTER_COMPLETE), QList<QVariant>{1});
    QVERIFY(eventValues(bus, AppConfig::REGISTER_ERROR).isEmpty());
    QVERIFY(GlobalManager::instance()->isRegister() && !LicenseManager::instance()->isBusy());
    QCOMPARE(GlobalManager::instance()->readSettings(AppConfig::APP_REGISTER, QString()).toString(), kGoodKey);
    QCOMPARE(LicenseManager::instance()->maskedKey(), QStringLiteral("GLIM***********D4E8"));

    const LocalHttpServer::Request sent = m_server->requests().last();
    const QJsonObject body = QJsonDocument::fromJson(sent.body).object();
    QCOMPARE((QStringList{sent.method + ' ' + sent.path, body.value("key").toString(), body.value("product").toString(),
                          body.value("version").toString()}),
             (QStringList{"POST /api/license/register", kGoodKey, AppConfig::APP_NAME,
                          GlobalManager::instance()->getAppVersion()}));
}

void TestLicense::keyRefused_data()
{
    QTest::addColumn<bool>("byStatus");
    QTest::addColumn<bool>("reachable");
    QTest::addColumn<bool>("registeredBefore");
    QTest::addColumn<QString>("message"); // empty: any explanation
    QTest::newRow("refused") << false << true << false << "Unknown licence key.";
    QTest::newRow("refused by HTTP status") << true << true << false << "Unknown licence key.";
    QTest::newRow("server unreachable") << false << false << false << QString();
    QTest::newRow("refused, already registered") << false << true << true << "Unknown licence key.";
}

void TestLicense::keyRefused()
{
    QFETCH(bool, byStatus);
    QFETCH(bool, reachable);
    QFETCH(bool, registeredBefore);
    QFETCH(QString, message);
    m_refuseByStatus = byStatus;
    useServer(reachable);
    if (registeredBefore) {
        GlobalManager::instance()->saveSettings(AppConfig::APP_REGISTER, kGoodKey);
        GlobalManager::instance()->setRegister(true);
    }
    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    LicenseManager::instance()->registerKey(reachable ? QStringLiteral("GLIM-BAD0-BAD0-BAD0") : kGoodKey);
    QTRY_VERIFY_WITH_TIMEOUT(!eventValues(bus, AppConfig::REGISTER_ERROR).isEmpty(), 10000);

    const QList<QVariant> errors = eventValues(bus, AppConfig::REGISTER_ERROR);
    QCOMPARE(errors.size(), 1);
    QVERIFY(!errors.first().toString().isEmpty());
    if (!message.isEmpty()) {
        QCOMPARE(errors.first().toString(), message);
    }
    QVERIFY(!LicenseManager::instance()->isBusy());
    // A refused key never undoes an earlier registration.
    QCOMPARE(GlobalManager::instance()->isRegister(), registeredBefore);
    QCOMPARE(GlobalManager::instance()->readSettings(AppConfig::APP_REGISTER, QString()).toString(),
             registeredBefore ? kGoodKey : QString());
    if (registeredBefore) {
        QVERIFY(eventValues(bus, AppConfig::REGISTER_COMPLETE).isEmpty());
    } else if (reachable && !byStatus) {
        QCOMPARE(eventValues(bus, AppConfig::REGISTER_COMPLETE), QList<QVariant>{-1});
    }
}

void TestLicense::restore_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("reachable");
    QTest::addColumn<bool>("registeredAfter");
    QTest::addColumn<QList<QVariant>>("complete");
    QTest::newRow("stored key trusted") << kGoodKey << true << true << QList<QVariant>{1};
    // The background check drops a revoked key without reaching the registration dialogs.
    QTest::newRow("revoked key dropped") << kRevokedKey << true << false << QList<QVariant>{1, -1};
    QTest::newRow("offline keeps the key") << kGoodKey << false << true << QList<QVariant>{1};
    // A stale registered state without a key is corrected, with no request.
    QTest::newRow("no key") << QString() << true << false << QList<QVariant>{-1};
}

void TestLicense::restore()
{
    QFETCH(QString, stored);
    QFETCH(bool, reachable);
    QFETCH(bool, registeredAfter);
    QFETCH(QList<QVariant>, complete);
    useServer(reachable);
    GlobalManager::instance()->saveSettings(AppConfig::APP_REGISTER, stored);
    GlobalManager::instance()->setRegister(stored.isEmpty());
    QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
    QSignalSpy verified(LicenseManager::instance(), &LicenseManager::verifyFinished);
    const int before = m_server->requests().size();
    LicenseManager::instance()->restore();
    // A stored key counts at once, before any answer.
    QCOMPARE(GlobalManager::instance()->isRegister(), !stored.isEmpty());
    if (stored.isEmpty()) {
        QVERIFY(!QTest::qWaitFor([&] { return m_server->requests().size() != before; }, 300));
    } else {
        QVERIFY(verified.wait(10000));
        QCOMPARE(verified.first().first().toBool(), registeredAfter);
        if (reachable) {
            QCOMPARE(m_server->requests().last().path, QStringLiteral("/api/license/verify"));
        }
    }
    QCOMPARE(GlobalManager::instance()->isRegister(), registeredAfter);
    QCOMPARE(GlobalManager::instance()->readSettings(AppConfig::APP_REGISTER, QString()).toString(),
             registeredAfter ? stored : QString());
    QCOMPARE(eventValues(bus, AppConfig::REGISTER_COMPLETE), complete);
    QVERIFY(eventValues(bus, AppConfig::REGISTER_ERROR).isEmpty());
}

void TestLicense::registerDialogFlow()
{
    RegisterDialog dialog;
    dialog.show();
    QVERIFY(!dialog.registerButton()->isEnabled());

    QTest::keyClicks(dialog.keyEdit(), QStringLiteral("GLIM-BAD0-BAD0-BAD0"));
    QVERIFY(dialog.registerButton()->isEnabled());
    dialog.registerButton()->click();
    // Waiting for the answer, nothing can be typed or sent.
    QVERIFY(dialog.isWaiting() && !dialog.keyEdit()->isEnabled() && !dialog.registerButton()->isEnabled());
    QTRY_VERIFY_WITH_TIMEOUT(!dialog.isWaiting(), 10000);
    QCOMPARE(dialog.statusText(), QStringLiteral("Unknown licence key."));
    QVERIFY(dialog.keyEdit()->isEnabled() && dialog.registerButton()->isEnabled());

    dialog.keyEdit()->setText(kGoodKey);
    QTest::keyClick(dialog.keyEdit(), Qt::Key_Return);
    QVERIFY(dialog.isWaiting());
    QTRY_VERIFY_WITH_TIMEOUT(!dialog.isWaiting(), 10000);
    QVERIFY(GlobalManager::instance()->isRegister());
    QVERIFY2(dialog.statusText().contains(QStringLiteral("registered")), qPrintable(dialog.statusText()));
    QVERIFY(!dialog.statusText().contains(kGoodKey) && dialog.keyEdit()->text().isEmpty());
    QCOMPARE(dialog.closeButton()->text(), QStringLiteral("Close"));

    // Opened again when registered, it says so at once.
    RegisterDialog again;
    QVERIFY(again.statusText().contains(QStringLiteral("registered")));
}

void TestLicense::guideAfterExport()
{
    QWidget parent;
    parent.show();
    int continued = 0;
    const auto goOn = [&]() { ++continued; };
    QVERIFY(RegisterGuideDialog::showAfterExport(&parent, goOn));
    QCOMPARE(continued, 0); // the export waits for the guide
    QVERIFY(GlobalManager::instance()->readInAppSettings(AppConfig::SHOW_GUIDE_REGISTER_BY_EXPORT, false).toBool());
    auto* guide = parent.findChild<RegisterGuideDialog*>();
    QVERIFY(guide && guide->isVisible());
    guide->laterButton()->click();
    QCOMPARE(continued, 1);

    // Its register button opens the dialog; the export goes on once that closes.
    GlobalManager::instance()->saveInAppSettings(AppConfig::SHOW_GUIDE_REGISTER_BY_EXPORT, QVariant());
    QWidget other;
    other.show();
    QVERIFY(RegisterGuideDialog::showAfterExport(&other, goOn));
    guide = other.findChild<RegisterGuideDialog*>();
    QVERIFY(guide);
    guide->registerButton()->click();
    QVERIFY(!guide->isVisible());
    RegisterDialog* dialog = nullptr;
    QTRY_VERIFY((dialog = other.findChild<RegisterDialog*>()) && dialog->isVisible());
    QCOMPARE(continued, 1);
    dialog->keyEdit()->setText(kGoodKey);
    dialog->registerButton()->click();
    QTRY_VERIFY_WITH_TIMEOUT(GlobalManager::instance()->isRegister(), 10000);
    dialog->closeButton()->click();
    QCOMPARE(continued, 2);

    // A registered copy never sees it; the export goes on at once.
    GlobalManager::instance()->saveInAppSettings(AppConfig::SHOW_GUIDE_REGISTER_BY_EXPORT, QVariant());
    QVERIFY(!RegisterGuideDialog::showAfterExport(&parent, goOn));
    QCOMPARE(continued, 3);
}

void TestLicense::keyNeverLogged()
{
    // Runs last: every test above sent keys through the real client.
    const QString log = GlobalManager::readFileContent(GlobalManager::instance()->getLogFilePath());
    QVERIFY(log.contains(QStringLiteral("registration answer:")));
    QVERIFY(!log.contains(kGoodKey) && !log.contains(QStringLiteral("GLIM-BAD0")));
}

QTEST_MAIN(TestLicense)
#include "test_license.moc"
