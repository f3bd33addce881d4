#include "licensemanager.h"

#include "appconfig.h"
#include "globalmanager.h"
#include "httpmanager.h"
#include "logcategories.h"
#include "settings.h"

#include <QDebug>
#include <QSysInfo>

namespace {
const QString kRegisterPath = QStringLiteral("/api/license/register");
const QString kVerifyPath = QStringLiteral("/api/license/verify");
const QString kRegistered = QStringLiteral("registered");
const QString kMessage = QStringLiteral("message");
} // namespace

LicenseManager* LicenseManager::instance()
{
    static LicenseManager* s_instance = new LicenseManager();
    return s_instance;
}

LicenseManager::LicenseManager(QObject* parent)
    : QObject(parent)
{
    // GlobalManager connects to the HTTP client first and turns a failed
    // "register" request into "regiseter_error"; here only the answers are read.
    GlobalManager::instance();
    connect(HttpManager::instance(), &HttpManager::requestFinished, this,
            &LicenseManager::requestFinishedHandle);
    connect(HttpManager::instance(), &HttpManager::requestError, this,
            &LicenseManager::requestErrorHandle);
}

QString LicenseManager::licenseServerUrl() const
{
    QString base = Settings::instance()->value(AppConfig::LICENSE_SERVER_URL)
                       .toString();
    while (base.endsWith(QLatin1Char('/'))) {
        base.chop(1);
    }
    return base;
}

QJsonObject LicenseManager::requestBody(const QString& key) const
{
    QJsonObject body;
    body.insert(QStringLiteral("key"), key);
    body.insert(QStringLiteral("machine"), QString::fromLatin1(QSysInfo::machineUniqueId()));
    body.insert(QStringLiteral("product"), AppConfig::APP_NAME);
    body.insert(QStringLiteral("version"), GlobalManager::instance()->getAppVersion());
    return body;
}

void LicenseManager::restore()
{
    restoreStored();
    const QString stored = Settings::instance()->value(AppConfig::APP_REGISTER).toString();
    if (!stored.isEmpty()) {
        HttpManager::instance()->post(licenseServerUrl() + kVerifyPath, requestBody(stored), 0);
    }
}

void LicenseManager::restoreStored()
{
    const QString stored = Settings::instance()->value(AppConfig::APP_REGISTER).toString();
    setRegistered(!stored.isEmpty());
    qCDebug(lcNetwork) << "licence restored:" << (stored.isEmpty() ? "false" : "true");
}

void LicenseManager::registerKey(const QString& key)
{
    const QString trimmed = key.trimmed();
    if (trimmed.isEmpty()) {
        GlobalManager::instance()->emitEvent(AppConfig::REGISTER_ERROR, tr("Please enter a licence key."));
        return;
    }
    if (m_busy) {
        qCDebug(lcNetwork) << "registration already in progress";
        return;
    }
    m_busy = true;
    m_pendingKey = trimmed;
    qCDebug(lcNetwork) << "registration sent to" << licenseServerUrl();
    HttpManager::instance()->post(licenseServerUrl() + kRegisterPath, requestBody(trimmed), 0);
}

void LicenseManager::requestFinishedHandle(QString key, const QJsonObject& object, const QByteArray& data)
{
    Q_UNUSED(data)
    const QJsonValue registered = object.value(kRegistered);
    if (key == KEY_VERIFY) {
        // Only a clear "no" revokes; an unreadable answer keeps the stored state.
        if (registered.isBool() && !registered.toBool()) {
            qCDebug(lcNetwork) << "licence verify: refused";
            GlobalManager::instance()->saveSettings(AppConfig::APP_REGISTER, QString());
            setRegistered(false);
        }
        emit verifyFinished(GlobalManager::instance()->isRegister());
        return;
    }
    if (key != AppConfig::KEY_REGISTER || !m_busy) {
        return;
    }
    m_busy = false;
    const QString pending = m_pendingKey;
    m_pendingKey.clear();

    if (!registered.isBool()) {
        qCDebug(lcNetwork) << "registration answer unreadable";
        GlobalManager::instance()->emitEvent(AppConfig::REGISTER_ERROR,
                                             tr("The licence server sent an answer that could not be read."));
        return;
    }
    qCDebug(lcNetwork) << "registration answer:" << (registered.toBool() ? "accepted" : "refused");
    if (registered.toBool()) {
        GlobalManager::instance()->saveSettings(AppConfig::APP_REGISTER, pending);
        setRegistered(true);
        return;
    }
    QString message = object.value(kMessage).toString();
    if (message.isEmpty()) {
        message = tr("This licence key was not accepted.");
    }
    // A refused new key does not undo a registration that is already valid.
    if (!GlobalManager::instance()->isRegister()) {
        setRegistered(false);
    }
    GlobalManager::instance()->emitEvent(AppConfig::REGISTER_ERROR, message);
}

void LicenseManager::requestErrorHandle(QString key, const QJsonObject& object, const QByteArray& data)
{
    Q_UNUSED(object)
    Q_UNUSED(data)
    if (key == KEY_VERIFY) {
        // Offline or server trouble: keep trusting the stored key.
        emit verifyFinished(GlobalManager::instance()->isRegister());
    } else if (key == AppConfig::KEY_REGISTER) {
        m_busy = false;
        m_pendingKey.clear();
    }
}

void LicenseManager::setRegistered(bool registered)
{
    GlobalManager::instance()->setRegister(registered);
    GlobalManager::instance()->emitEvent(AppConfig::REGISTER_COMPLETE, registered ? 1 : -1);
}

QString LicenseManager::maskedKey() const
{
    return maskKey(Settings::instance()->value(AppConfig::APP_REGISTER).toString());
}

QString LicenseManager::maskKey(const QString& key)
{
    if (key.size() <= 8) {
        return QString(key.size(), QLatin1Char('*'));
    }
    return key.left(4) + QString(key.size() - 8, QLatin1Char('*')) + key.right(4);
}
