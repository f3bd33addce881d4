#include "captionlabelwidget.h"

#include "asstext.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStackedLayout>

CaptionLabelWidget::CaptionLabelWidget(QWidget* parent)
    : QWidget(parent)
    , m_stack(new QStackedLayout(this))
    , m_label(new QLabel(this))
    , m_editor(new QLineEdit(this))
{
    m_label->setObjectName(QStringLiteral("show_text"));
    m_label->setWordWrap(true);
    m_label->setTextFormat(Qt::PlainText);
    m_editor->setObjectName(QStringLiteral("edit_text"));
    m_editor->installEventFilter(this);
    m_stack->setContentsMargins(0, 0, 0, 0);
    m_stack->addWidget(m_label);
    m_stack->addWidget(m_editor);
    connect(m_editor, &QLineEdit::returnPressed, this, [this]() { finishEditing(true); });
}

void CaptionLabelWidget::setText(const QString& text)
{
    // The row reads like the picture; the editor keeps the file's own text.
    m_text = text;
    m_label->setText(AssText::readable(text));
    if (!m_editing) {
        m_editor->setText(text);
    }
}

QString CaptionLabelWidget::text() const
{
    return m_text;
}

void CaptionLabelWidget::setTextStyle(const QString& style)
{
    m_label->setStyleSheet(style);
}

void CaptionLabelWidget::setEditing(bool editing)
{
    if (editing == m_editing) {
        return;
    }
    if (editing) {
        m_editing = true;
        m_editor->setText(m_text);
        m_stack->setCurrentWidget(m_editor);
        m_editor->setFocus();
        m_editor->selectAll();
        emit changeEidtSignal(true, m_text);
    } else {
        finishEditing(true);
    }
}

void CaptionLabelWidget::finishEditing(bool accept)
{
    if (!m_editing) {
        return;
    }
    m_editing = false;
    if (accept) {
        m_text = m_editor->text();
        m_label->setText(AssText::readable(m_text));
    }
    m_stack->setCurrentWidget(m_label);
    emit changeEidtSignal(false, m_text);
}

void CaptionLabelWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    QWidget::mouseDoubleClickEvent(event);
    setEditing(true);
}

bool CaptionLabelWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_editor) {
        if (event->type() == QEvent::KeyPress
            && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            finishEditing(false);
            return true;
        }
        if (event->type() == QEvent::FocusOut) {
            finishEditing(true);
        }
    }
    return QWidget::eventFilter(watched, event);
}
