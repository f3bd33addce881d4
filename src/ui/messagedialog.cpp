#include "messagedialog.h"

#include "appconfig.h"
#include "translatemanager.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

MessageDialog::MessageDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint)
{
    setObjectName(QStringLiteral("message_dialog"));
    setModal(true);
    setWindowTitle(AppConfig::APP_NAME);
    m_title = new QLabel(this);
    m_title->setObjectName(QStringLiteral("message_title"));
    QFont font = m_title->font();
    font.setBold(true);
    m_title->setFont(font);
    m_title->setWordWrap(true);
    m_message = new QLabel(this);
    m_message->setObjectName(QStringLiteral("message_text"));
    m_message->setWordWrap(true);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_ok = new QPushButton(tr("OK"), this);
    m_ok->setDefault(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(20, 16, 20, 16));
    layout->setSpacing(AppConfig::rate(10));
    layout->addWidget(m_title);
    layout->addWidget(m_message, 1);
    layout->addWidget(m_ok, 0, Qt::AlignRight);
    setMinimumWidth(AppConfig::rate(360));
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    // The message itself was translated when it was raised; the button follows the language.
    connect(TranslateManager::instance(), &TranslateManager::notify, m_ok, [this]() { m_ok->setText(tr("OK")); });
}

void MessageDialog::showMessage(const QString& title, const QString& message)
{
    m_ok->setText(tr("OK"));
    m_title->setText(title);
    m_message->setText(message);
    adjustSize();
    open();
    raise();
    activateWindow();
}

QString MessageDialog::title() const
{
    return m_title->text();
}

QString MessageDialog::message() const
{
    return m_message->text();
}
