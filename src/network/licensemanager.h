#ifndef LICENSEMANAGER_H
#define LICENSEMANAGER_H

#include <QByteArray>
#include <QJsonObject>
#include <QObject>
#include <QString>

// Decides the "registered" state. A key is checked by the licence server; an
// accepted key is kept in the persistent settings and trusted at the next
// start, so a registered copy stays registered offline. At start-up the stored
// key is also checked again in the background: only an explicit refusal from
// the server (a revoked key) drops the registration, a network failure never.
//
// Licence server protocol (JSON over HTTP POST, base address a setting):
//   /api/license/register and /api/license/verify
//   request  {"key", "machine", "product", "version"}
//   answer   {"registered": true|false, "message": optional text}
// A refusal may also come as an HTTP error status with a "message".
class LicenseManager : public QObject
{
    Q_OBJECT
public:
    // Reply keys of the two requests (the last segment of their paths).
    inline static const QString KEY_VERIFY = QStringLiteral("verify");

    static LicenseManager* instance();

    QString licenseServerUrl() const;

    // Restores the state from the stored key; emits "regiseter_complete" with
    // the restored state and starts the background check.
    void restore();
    // The stored state alone, with no check over the network (a command that
    // ends before any answer could arrive).
    void restoreStored();

    // Sends the key to the server. The outcome arrives on the bus:
    // "regiseter_complete" 1 when accepted; "regiseter_error" with a text when
    // refused or when the server cannot be reached.
    void registerKey(const QString& key);
    bool isBusy() const { return m_busy; }

    // The stored key with its middle hidden, for display.
    QString maskedKey() const;
    static QString maskKey(const QString& key);

signals:
    // The background check at start-up has an answer (or gave up).
    void verifyFinished(bool registered);

private:
    explicit LicenseManager(QObject* parent = nullptr);
    QJsonObject requestBody(const QString& key) const;
    void requestFinishedHandle(QString key, const QJsonObject& object, const QByteArray& data);
    void requestErrorHandle(QString key, const QJsonObject& object, const QByteArray& data);
    void setRegistered(bool registered);

    bool m_busy = false;
    QString m_pendingKey;
};

#endif // LICENSEMANAGER_H
