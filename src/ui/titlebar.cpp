#include "titlebar.h"

#include "appconfig.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

TitleBar::TitleBar(QWidget* parent)
    : BaseWidget(parent)
{
    setObjectName(QStringLiteral("title_bar"));
    setAttribute(Qt::WA_StyledBackground, true);
    setFixedHeight(AppConfig::rate(40));

    m_logo = new QLabel(this);
    m_logo->setPixmap(QIcon(QStringLiteral(":/images/logo.svg")).pixmap(AppConfig::rate(QSize(24, 24))));
    m_title = new QLabel(AppConfig::APP_NAME, this);
    m_title->setObjectName(QStringLiteral("title_label"));
    m_title->setTextFormat(Qt::PlainText);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(10, 0, 4, 0));
    layout->setSpacing(AppConfig::rate(6));
    layout->addWidget(m_logo);
    layout->addWidget(m_title, 1);

    QToolButton* open = addButton(OpenVideo, QStringLiteral(":/images/titlebar/open.svg"), QStringLiteral("open_video"));
    open->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QToolButton* caption = addButton(Caption, QStringLiteral(":/images/titlebar/caption.svg"), QStringLiteral("caption_button"));
    caption->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    caption->setCheckable(true);
    QToolButton* reg = addButton(Register, QStringLiteral(":/images/titlebar/key.svg"), QStringLiteral("register_button"));
    reg->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QToolButton* menu = addButton(Menu, QStringLiteral(":/images/titlebar/menu.svg"), QStringLiteral("menu_button"));
    menu->setPopupMode(QToolButton::InstantPopup);
    addButton(Minimize, QStringLiteral(":/images/titlebar/minimize.svg"), QStringLiteral("min_button"));
    addButton(Maximize, QStringLiteral(":/images/titlebar/maximize.svg"), QStringLiteral("max_button"));
    addButton(Close, QStringLiteral(":/images/titlebar/close.svg"), QStringLiteral("close_button"));
    for (int type : {OpenVideo, Caption, Register, Menu}) {
        layout->addWidget(m_buttons.value(type));
    }
    layout->addSpacing(AppConfig::rate(8));
    for (int type : {Minimize, Maximize, Close}) {
        layout->addWidget(m_buttons.value(type));
    }
    retranslate();
}

QToolButton* TitleBar::addButton(ButtonType type, const QString& icon, const QString& objectName)
{
    auto* button = new QToolButton(this);
    button->setObjectName(objectName);
    button->setIcon(QIcon(icon));
    button->setIconSize(AppConfig::rate(QSize(18, 18)));
    button->setAutoRaise(true);
    button->setCursor(Qt::PointingHandCursor);
    button->setProperty("button", static_cast<int>(type));
    if (type != Menu) {
        connect(button, &QToolButton::clicked, this, [this, type]() { emit titleBarButtonClicked(type); });
    }
    m_buttons.insert(type, button);
    return button;
}

QAbstractButton* TitleBar::button(ButtonType type) const
{
    return m_buttons.value(type);
}

void TitleBar::setTitle(const QString& title)
{
    m_title->setText(title);
}

QString TitleBar::title() const
{
    return m_title->text();
}

void TitleBar::setMenu(QMenu* menu)
{
    m_buttons.value(Menu)->setMenu(menu);
}

void TitleBar::changeRestoreButtonStatue(bool maximized)
{
    m_maximized = maximized;
    m_buttons.value(Maximize)->setIcon(QIcon(maximized ? QStringLiteral(":/images/titlebar/restore.svg")
                                                       : QStringLiteral(":/images/titlebar/maximize.svg")));
    retranslate();
}

void TitleBar::showButtonByRegister(bool registered)
{
    m_buttons.value(Register)->setVisible(!registered);
}

void TitleBar::changeLang(int type)
{
    Q_UNUSED(type)
    retranslate();
}

void TitleBar::retranslate()
{
    m_buttons.value(OpenVideo)->setText(tr("Open video"));
    m_buttons.value(OpenVideo)->setToolTip(tr("Open a video [Ctrl+O]"));
    m_buttons.value(Caption)->setText(tr("Captions"));
    m_buttons.value(Caption)->setToolTip(tr("Show or hide the caption list"));
    m_buttons.value(Register)->setText(tr("Register"));
    m_buttons.value(Register)->setToolTip(tr("Enter a licence key to remove the watermark"));
    m_buttons.value(Menu)->setToolTip(tr("Menu"));
    m_buttons.value(Minimize)->setToolTip(tr("Minimize"));
    m_buttons.value(Maximize)->setToolTip(m_maximized ? tr("Restore") : tr("Maximize"));
    m_buttons.value(Close)->setToolTip(tr("Close"));
}
