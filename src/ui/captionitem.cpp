#include "captionitem.h"

#include "appconfig.h"
#include "captioninfo.h"
#include "captionlabelwidget.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QVariant>
#include <QToolButton>
#include <QVBoxLayout>

CaptionItem::CaptionItem(CaptionInfo* info, QWidget* parent)
    : QWidget(parent)
    , m_info(info)
{
    setObjectName(QStringLiteral("caption_item"));
    setAttribute(Qt::WA_StyledBackground, true);

    m_check = new QCheckBox(this);
    m_index = new QLabel(this);
    m_index->setObjectName(QStringLiteral("index"));
    m_time = new QLabel(this);
    m_time->setObjectName(QStringLiteral("time"));
    m_label = new CaptionLabelWidget(this);
    m_showButton = new QToolButton(this);
    m_showButton->setObjectName(QStringLiteral("show"));
    m_showButton->setCheckable(true);
    m_showButton->setAutoRaise(true);
    m_showButton->setIcon(QIcon(QStringLiteral(":/images/caption/eye.svg")));

    auto* head = new QHBoxLayout();
    head->setContentsMargins(0, 0, 0, 0);
    head->setSpacing(AppConfig::rate(6));
    head->addWidget(m_check);
    head->addWidget(m_index);
    head->addWidget(m_time, 1);
    head->addWidget(m_showButton);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(6, 4, 6, 4));
    layout->setSpacing(AppConfig::rate(2));
    layout->addLayout(head);
    layout->addWidget(m_label);

    connect(m_check, &QCheckBox::stateChanged, this, [this](int state) {
        m_info->isCheck = state == Qt::Checked;
        emit captionCheckStateChangedSignal(m_info, state);
    });
    connect(m_showButton, &QToolButton::toggled, this, [this](bool hidden) {
        m_info->isShow = !hidden;
        updateTextStyle();
        emit captionChangedSignal(m_info, this);
    });
    connect(m_label, &CaptionLabelWidget::changeEidtSignal, this, [this](bool editing, const QString& text) {
        emit changeToEditSignal(editing, this);
        if (!editing && text != m_info->text) {
            m_info->text = text;
            if (m_info->captionEdit) {
                m_info->captionEdit->text = text;
            }
            emit captionChangedSignal(m_info, this);
        }
    });
    refresh();
}

void CaptionItem::refresh()
{
    m_index->setText(QString::number(m_info->index));
    m_time->setText(QStringLiteral("%1 → %2").arg(m_info->start, m_info->end));
    m_label->setText(m_info->text);
    setCheck(m_info->isCheck, false);
    setShowText(m_info->isShow, false);
    updateTextStyle();
}

void CaptionItem::setCheck(bool checked, bool notify)
{
    const QSignalBlocker blocker(notify ? nullptr : m_check);
    m_check->setChecked(checked);
}

void CaptionItem::setShowText(bool show, bool notify)
{
    const QSignalBlocker blocker(notify ? nullptr : m_showButton);
    m_showButton->setChecked(!show);
    m_showButton->setToolTip(show ? tr("Hide") : tr("Show"));
    if (!notify) {
        updateTextStyle();
    }
}

void CaptionItem::setSelect(bool selected)
{
    m_selected = selected;
    setProperty("selected", QVariant(selected));
    style()->unpolish(this);
    style()->polish(this);
}

void CaptionItem::changeToPlay(bool playing)
{
    m_playing = playing;
    updateTextStyle();
}

void CaptionItem::changeToEdit(bool editing)
{
    m_label->setEditing(editing);
}

bool CaptionItem::isEditing() const
{
    return m_label->isEditing();
}

void CaptionItem::updateTextStyle()
{
    QString style = m_playing ? QStringLiteral("color:#008cf1") : QStringLiteral("color:#000");
    if (!m_info->isShow) {
        // A hidden caption keeps its row; its text is written empty into the subtitles.
        style += QStringLiteral(";text-decoration:line-through");
    }
    m_label->setTextStyle(style);
}
