#include "registerdialog.h"

#include "appconfig.h"
#include "globalmanager.h"
#include "licensemanager.h"
#include "translatemanager.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

RegisterDialog::RegisterDialog(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("register_dialog"));
    setMinimumWidth(AppConfig::rate(420));

    m_introLabel = new QLabel(this);
    QLabel* intro = m_introLabel;
    intro->setWordWrap(true);
    m_keyEdit = new QLineEdit(this);
    m_keyEdit->setObjectName(QStringLiteral("license_key_edit"));
    m_keyEdit->setClearButtonEnabled(true);
    m_statusLabel = new QLabel(this);
    m_statusLabel->setObjectName(QStringLiteral("register_status_label"));
    m_statusLabel->setWordWrap(true);
    m_registerButton = new QPushButton(this);
    m_registerButton->setDefault(true);
    m_closeButton = new QPushButton(this);
    // While the key is checked the focus falls on Cancel: Return must not
    // make it the default button and close the dialog before the answer.
    m_closeButton->setAutoDefault(false);
    m_registerButton->setAutoDefault(false);

    auto* buttons = new QHBoxLayout();
    buttons->addStretch();
    buttons->addWidget(m_closeButton);
    buttons->addWidget(m_registerButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(20, 20, 20, 20));
    layout->setSpacing(AppConfig::rate(10));
    layout->addWidget(intro);
    layout->addWidget(m_keyEdit);
    layout->addWidget(m_statusLabel);
    layout->addLayout(buttons);

    connect(m_registerButton, &QPushButton::clicked, this, &RegisterDialog::registerClickHandle);
    connect(m_keyEdit, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_registerButton->setEnabled(!m_waiting && !text.trimmed().isEmpty()); });
    connect(m_closeButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(GlobalManager::instance(), &GlobalManager::globalEvent, this, &RegisterDialog::globalEventHandle);

    m_registerButton->setEnabled(false);
    retranslate();
    if (GlobalManager::instance()->isRegister()) {
        showRegisteredState();
    }
    connect(TranslateManager::instance(), &TranslateManager::notify, this, &RegisterDialog::retranslate);
}

void RegisterDialog::retranslate()
{
    setWindowTitle(tr("Register %1").arg(AppConfig::APP_NAME));
    m_introLabel->setText(tr("Enter the licence key you received with your purchase. "
                             "Registered copies export pictures without a watermark."));
    m_keyEdit->setPlaceholderText(tr("Licence key"));
    m_registerButton->setText(tr("Register"));
    m_closeButton->setText(m_status == StatusRegistered ? tr("Close") : tr("Cancel"));
    if (m_status == StatusChecking) {
        m_statusLabel->setText(tr("Checking the licence key..."));
    } else if (m_status == StatusRegistered) {
        showRegisteredState();
    }
}

QString RegisterDialog::statusText() const
{
    return m_statusLabel->text();
}

void RegisterDialog::registerClickHandle()
{
    if (m_waiting || m_keyEdit->text().trimmed().isEmpty()) {
        return;
    }
    setWaiting(true);
    m_status = StatusChecking;
    m_statusLabel->setText(tr("Checking the licence key..."));
    LicenseManager::instance()->registerKey(m_keyEdit->text());
}

void RegisterDialog::setWaiting(bool waiting)
{
    m_waiting = waiting;
    m_keyEdit->setEnabled(!waiting);
    m_registerButton->setEnabled(!waiting && !m_keyEdit->text().trimmed().isEmpty());
}

void RegisterDialog::showRegisteredState()
{
    m_status = StatusRegistered;
    m_statusLabel->setText(tr("This copy is registered (%1). Thank you!")
                               .arg(LicenseManager::instance()->maskedKey()));
    m_closeButton->setText(tr("Close"));
}

void RegisterDialog::globalEventHandle(QString eventName, QVariant value)
{
    if (!m_waiting) {
        return;
    }
    if (eventName == AppConfig::REGISTER_COMPLETE && value.toInt() == 1) {
        setWaiting(false);
        m_keyEdit->clear();
        showRegisteredState();
    }
    if (eventName == AppConfig::REGISTER_ERROR) {
        setWaiting(false);
        // The licence server's own words; they stay as they came.
        m_status = StatusServer;
        m_statusLabel->setText(value.toString());
    }
}
