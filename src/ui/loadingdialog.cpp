#include "loadingdialog.h"

#include "appconfig.h"
#include "translatemanager.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

LoadingDialog::LoadingDialog(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    setObjectName(QStringLiteral("loading_dialog"));
    setModal(true);
    setWindowTitle(AppConfig::APP_NAME);
    m_text = new QLabel(this);
    m_text->setAlignment(Qt::AlignCenter);
    m_text->setWordWrap(true);
    m_busy = new QProgressBar(this);
    m_busy->setRange(0, 0);
    m_busy->setTextVisible(false);
    m_busy->setFixedHeight(AppConfig::rate(6));
    m_cancel = new QPushButton(this);
    m_cancel->setObjectName(QStringLiteral("cancel_button"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(24, 20, 24, 16));
    layout->setSpacing(AppConfig::rate(12));
    layout->addWidget(m_text);
    layout->addWidget(m_busy);
    layout->addWidget(m_cancel, 0, Qt::AlignCenter);
    setMinimumWidth(AppConfig::rate(320));
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(TranslateManager::instance(), &TranslateManager::notify, this, &LoadingDialog::changeLang);
    changeLang(0);
}

void LoadingDialog::setText(const QString& text)
{
    m_text->setText(text);
}

QString LoadingDialog::text() const
{
    return m_text->text();
}

void LoadingDialog::showWithText(const QString& text)
{
    setText(text);
    if (!isVisible()) {
        open();
    }
    raise();
}

void LoadingDialog::setProgress(int percent)
{
    if (percent < 0) {
        m_busy->setRange(0, 0);
        return;
    }
    m_busy->setRange(0, 100);
    m_busy->setValue(qBound(0, percent, 100));
}

int LoadingDialog::progress() const
{
    return m_busy->maximum() == 0 ? -1 : m_busy->value();
}

void LoadingDialog::hideAndReset()
{
    hide();
    setProgress(-1);
}

void LoadingDialog::changeLang(int type)
{
    Q_UNUSED(type)
    m_cancel->setText(tr("Cancel"));
}
