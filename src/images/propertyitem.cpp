#include "propertyitem.h"

#include "appconfig.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpressionValidator>

PropertyItem::PropertyItem(int type, const QString& title, const QString& unit, QWidget* parent)
    : QWidget(parent)
    , m_type(type)
    , m_titleLabel(new QLabel(title, this))
    , m_lineEdit(new QLineEdit(this))
    , m_unitLabel(new QLabel(unit, this))
{
    setObjectName(QStringLiteral("property_item"));
    // Spaces may be negative (they crop the stitched frames); the rest never are.
    const bool signedValue = type == XSpace || type == YSpace;
    m_lineEdit->setValidator(new QRegularExpressionValidator(
        QRegularExpression(signedValue ? QStringLiteral("-?\\d{0,5}") : QStringLiteral("\\d{0,6}")), this));
    // Room for the longest value the field takes, with its padding and frame.
    const int textWidth = m_lineEdit->fontMetrics().horizontalAdvance(signedValue ? QStringLiteral("-99999")
                                                                                  : QStringLiteral("999999"));
    m_lineEdit->setFixedWidth(qMax(AppConfig::rate(56), textWidth + AppConfig::rate(24)));
    m_lineEdit->setAlignment(Qt::AlignRight);
    m_unitLabel->setVisible(!unit.isEmpty());

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(AppConfig::rate(4));
    layout->addWidget(m_titleLabel);
    layout->addWidget(m_lineEdit);
    layout->addWidget(m_unitLabel);

    connect(m_lineEdit, &QLineEdit::textEdited, this,
            [this](const QString& text) { emit valueChangedSignal(m_type, text); });
    connect(m_lineEdit, &QLineEdit::editingFinished, this, [this]() { emit editFinishedSignal(m_type); });
}

QString PropertyItem::getText() const
{
    return m_lineEdit->text();
}

int PropertyItem::getValue() const
{
    bool ok = false;
    const int value = m_lineEdit->text().toInt(&ok, 10);
    return ok ? value : 0;
}

void PropertyItem::setText(const QString& text)
{
    m_lineEdit->setText(text);
}

void PropertyItem::setTitle(const QString& title)
{
    m_titleLabel->setText(title);
}
