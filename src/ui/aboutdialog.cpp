#include "aboutdialog.h"

#include "appconfig.h"
#include "globalmanager.h"
#include "translatemanager.h"

#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

AboutDialog::AboutDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint)
{
    setObjectName(QStringLiteral("about_dialog"));
    auto* logo = new QLabel(this);
    logo->setPixmap(QIcon(QStringLiteral(":/images/logo.svg")).pixmap(AppConfig::rate(QSize(72, 72))));
    logo->setAlignment(Qt::AlignCenter);
    m_text = new QLabel(this);
    m_text->setAlignment(Qt::AlignCenter);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::RichText);
    m_text->setOpenExternalLinks(true);
    m_close = new QPushButton(this);
    QPushButton* close = m_close;
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(24, 20, 24, 16));
    layout->addWidget(logo);
    layout->addWidget(m_text);
    layout->addWidget(close, 0, Qt::AlignCenter);
    setMinimumWidth(AppConfig::rate(340));
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    connect(TranslateManager::instance(), &TranslateManager::notify, this, &AboutDialog::retranslate);
    retranslate();
}

void AboutDialog::retranslate()
{
    setWindowTitle(tr("About %1").arg(AppConfig::APP_NAME));
    m_text->setText(QStringLiteral("<h2>%1</h2><p>%2</p><p>%3</p><p><a href=\"%4\">%4</a></p>")
                        .arg(AppConfig::APP_NAME,
                             tr("Version %1").arg(GlobalManager::instance()->getAppVersion()),
                             tr("Turn the moments of a video into still pictures with their captions."),
                             GlobalManager::instance()->getHomePageUrl()));
    m_close->setText(tr("Close"));
}
