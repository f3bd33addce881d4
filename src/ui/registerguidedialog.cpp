#include "registerguidedialog.h"

#include "appconfig.h"
#include "globalmanager.h"
#include "registerdialog.h"
#include "settings.h"
#include "translatemanager.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

RegisterGuideDialog::RegisterGuideDialog(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("register_guide_dialog"));
    setMinimumWidth(AppConfig::rate(420));

    m_title = new QLabel(this);
    QLabel* title = m_title;
    title->setObjectName(QStringLiteral("guide_title_label"));
    m_text = new QLabel(this);
    QLabel* text = m_text;
    text->setWordWrap(true);
    m_laterButton = new QPushButton(this);
    m_registerButton = new QPushButton(this);
    m_registerButton->setDefault(true);

    auto* buttons = new QHBoxLayout();
    buttons->addStretch();
    buttons->addWidget(m_laterButton);
    buttons->addWidget(m_registerButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(20, 20, 20, 20));
    layout->setSpacing(AppConfig::rate(10));
    layout->addWidget(title);
    layout->addWidget(text);
    layout->addLayout(buttons);

    connect(m_laterButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_registerButton, &QPushButton::clicked, this, [this]() {
        // The registration dialog takes the guide's place; the guide counts as
        // closed once that dialog is.
        auto* dialog = new RegisterDialog(parentWidget());
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        connect(dialog, &QDialog::finished, this, &QDialog::accept);
        hide();
        dialog->open();
    });
    connect(TranslateManager::instance(), &TranslateManager::notify, this, &RegisterGuideDialog::retranslate);
    retranslate();
}

void RegisterGuideDialog::retranslate()
{
    setWindowTitle(tr("Export complete"));
    m_title->setText(tr("Your pictures were exported with a watermark"));
    m_text->setText(tr("This copy of %1 is not registered, so every exported picture carries "
                       "the \"%1\" watermark. Register with your licence key to export clean "
                       "pictures from now on.")
                        .arg(AppConfig::APP_NAME));
    m_laterButton->setText(tr("Later"));
    m_registerButton->setText(tr("Register now"));
}

bool RegisterGuideDialog::showAfterExport(QWidget* parent, const std::function<void()>& then)
{
    GlobalManager* global = GlobalManager::instance();
    if (global->isRegister()
        || Settings::instance()->inAppValue(AppConfig::SHOW_GUIDE_REGISTER_BY_EXPORT).toBool()) {
        if (then) {
            then();
        }
        return false;
    }
    global->saveInAppSettings(AppConfig::SHOW_GUIDE_REGISTER_BY_EXPORT, true);
    auto* guide = new RegisterGuideDialog(parent);
    guide->setAttribute(Qt::WA_DeleteOnClose);
    connect(guide, &QDialog::finished, guide, [then]() {
        if (then) {
            then();
        }
    });
    guide->open();
    return true;
}
