#include "captionstylebar.h"

#include "appconfig.h"
#include "captioninfo.h"
#include "captionmanager.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>

namespace {
constexpr int kCommitDelayMs = 300;
} // namespace

CaptionStyleBar::CaptionStyleBar(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("caption_style_bar"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(4, 2, 4, 2));
    layout->setSpacing(AppConfig::rate(4));

    m_sizeLabel = new QLabel(this);
    m_fontSize = addSpinBox(AppConfig::CAPTION_FONT_SIZE, 1, 200);
    m_xLabel = new QLabel(this);
    m_x = addSpinBox(AppConfig::CAPTION_X, 0, 384);
    m_yLabel = new QLabel(this);
    m_y = addSpinBox(AppConfig::CAPTION_Y, 0, 288);
    m_borderLabel = new QLabel(this);
    m_border = addSpinBox(AppConfig::CAPTION_BORDER, 0, 20);
    m_shadowLabel = new QLabel(this);
    m_shadow = addSpinBox(AppConfig::CAPTION_SHADOW, 0, 20);
    m_applyAll = new QCheckBox(this);
    m_applyAll->setObjectName(QStringLiteral("apply_all"));
    m_capture = new QCheckBox(this);
    m_capture->setObjectName(QStringLiteral("caption_capture"));
    // The two actions are icons named by their tooltips, so both rows fit the
    // player's narrowest width in every language.
    m_editText = new QPushButton(this);
    m_editText->setObjectName(QStringLiteral("caption_edit_text"));
    m_editText->setIcon(QIcon(QStringLiteral(":/images/videoplay/edit_text.svg")));
    m_editText->setIconSize(AppConfig::rate(QSize(16, 16)));
    m_editText->setProperty("iconOnly", true);
    m_insert = new QPushButton(this);
    m_insert->setObjectName(QStringLiteral("caption_insert"));
    m_insert->setIcon(QIcon(QStringLiteral(":/images/videoplay/add_caption.svg")));
    m_insert->setIconSize(AppConfig::rate(QSize(16, 16)));
    m_insert->setProperty("iconOnly", true);

    // The look and the actions on the first row, the position and the
    // switches on the second.
    auto* lookRow = new QHBoxLayout();
    auto* positionRow = new QHBoxLayout();
    for (QHBoxLayout* row : {lookRow, positionRow}) {
        row->setSpacing(AppConfig::rate(4));
        layout->addLayout(row);
    }
    auto addField = [](QHBoxLayout* row, QLabel* label, QSpinBox* box) {
        row->addWidget(label);
        row->addWidget(box);
        row->addSpacing(AppConfig::rate(6));
    };
    addField(lookRow, m_sizeLabel, m_fontSize);
    addField(lookRow, m_borderLabel, m_border);
    addField(lookRow, m_shadowLabel, m_shadow);
    lookRow->addStretch(1);
    lookRow->addWidget(m_editText);
    lookRow->addWidget(m_insert);
    addField(positionRow, m_xLabel, m_x);
    addField(positionRow, m_yLabel, m_y);
    positionRow->addWidget(m_applyAll);
    positionRow->addSpacing(AppConfig::rate(6));
    positionRow->addWidget(m_capture);
    positionRow->addStretch(1);

    m_commitTimer = new QTimer(this);
    m_commitTimer->setSingleShot(true);
    m_commitTimer->setInterval(kCommitDelayMs);
    connect(m_commitTimer, &QTimer::timeout, this, &CaptionStyleBar::commitPending);

    connect(m_capture, &QCheckBox::toggled, this, [this](bool checked) {
        if (!m_caption) {
            return;
        }
        m_caption->isCheck = checked;
        emit captionCheckStateChangedSignal(m_caption, checked ? Qt::Checked : Qt::Unchecked);
    });
    connect(m_insert, &QPushButton::clicked, this, [this]() {
        commitPending();
        emit insertCaptionSignal();
    });
    connect(m_editText, &QPushButton::clicked, this, [this]() {
        commitPending();
        emit editTextSignal();
    });

    changeLang();
    updateEnabled();

    // A change still waiting for its delay dies with the records it was made on.
    connect(CaptionManager::instance(), &CaptionManager::aboutToReplaceCaptions, this, [this]() {
        m_commitTimer->stop();
        m_pendingCaption = nullptr;
        m_caption = nullptr;
        loadValues();
        updateEnabled();
    });
}

QSpinBox* CaptionStyleBar::addSpinBox(const QString& objectName, int minimum, int maximum)
{
    auto* box = new QSpinBox(this);
    box->setObjectName(objectName);
    box->setRange(minimum, maximum);
    // Typed numbers count when confirmed, not at every digit.
    box->setKeyboardTracking(false);
    // Never narrower than the widest value: a squeezed box hides its digits.
    box->ensurePolished();
    box->setMinimumWidth(box->sizeHint().width());
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, [this]() { valueEdited(); });
    return box;
}

void CaptionStyleBar::changeLang()
{
    m_sizeLabel->setText(tr("Size"));
    m_xLabel->setText(tr("X"));
    m_yLabel->setText(tr("Y"));
    m_borderLabel->setText(tr("Border"));
    m_shadowLabel->setText(tr("Shadow"));
    m_applyAll->setText(tr("Apply to all"));
    m_applyAll->setToolTip(tr("Apply size, position and border to every caption"));
    m_capture->setText(tr("Capture"));
    m_capture->setToolTip(tr("Include this caption in \"Capture selected\""));
    m_editText->setAccessibleName(tr("Edit text"));
    m_editText->setToolTip(tr("Edit the caption on the video (or double-click it)"));
    m_insert->setAccessibleName(tr("Add caption"));
    m_insert->setToolTip(tr("Add a caption at the current position"));
}

CaptionEdit CaptionStyleBar::currentValues(const CaptionInfo* info)
{
    if (!info) {
        return CaptionEdit();
    }
    if (info->captionEdit) {
        return *info->captionEdit;
    }
    CaptionEdit values;
    values.text = info->text;
    if (const CaptionStyle* style = info->captionStyle) {
        bool ok = false;
        const double size = style->fontsize.toDouble(&ok);
        if (ok && size > 0) {
            values.fontSize = qRound(size);
        }
        const double outline = style->outline.toDouble(&ok);
        if (ok && outline >= 0) {
            values.border = qRound(outline);
        }
        const double shadow = style->shadow.toDouble(&ok);
        if (ok && shadow >= 0) {
            values.shadow = qRound(shadow);
        }
    }
    return values;
}

CaptionEdit* CaptionStyleBar::ensureEdit(CaptionInfo* info)
{
    if (!info) {
        return nullptr;
    }
    if (!info->captionEdit) {
        info->captionEdit = new CaptionEdit(currentValues(info));
    }
    return info->captionEdit;
}

void CaptionStyleBar::setCaption(CaptionInfo* info)
{
    if (info != m_caption) {
        // A change waiting for its delay belongs to the caption it was made on.
        commitPending();
        m_caption = info;
        loadValues();
        updateEnabled();
        return;
    }
    // Same caption: refresh from the record unless the user is in the middle of a change.
    const bool typing = m_fontSize->hasFocus() || m_x->hasFocus() || m_y->hasFocus() || m_border->hasFocus()
                        || m_shadow->hasFocus();
    if (!hasPendingEdit() && !typing) {
        loadValues();
    }
}

void CaptionStyleBar::loadValues()
{
    const CaptionEdit values = currentValues(m_caption);
    const QList<QWidget*> boxes{m_fontSize, m_x, m_y, m_border, m_shadow, m_capture};
    for (QWidget* box : boxes) {
        box->blockSignals(true);
    }
    m_fontSize->setValue(values.fontSize);
    m_x->setValue(values.x);
    m_y->setValue(values.y);
    m_border->setValue(values.border);
    m_shadow->setValue(values.shadow);
    m_capture->setChecked(m_caption && m_caption->isCheck);
    for (QWidget* box : boxes) {
        box->blockSignals(false);
    }
}

void CaptionStyleBar::updateEnabled()
{
    const bool hasCaption = m_caption != nullptr;
    for (QWidget* widget : QList<QWidget*>{m_fontSize, m_x, m_y, m_border, m_shadow, m_applyAll, m_capture,
                                           m_editText}) {
        widget->setEnabled(hasCaption);
    }
    m_insert->setEnabled(m_insertEnabled);
}

void CaptionStyleBar::setInsertEnabled(bool enabled)
{
    m_insertEnabled = enabled;
    updateEnabled();
}

bool CaptionStyleBar::isApplyToAll() const
{
    return m_applyAll->isChecked();
}

bool CaptionStyleBar::hasPendingEdit() const
{
    return m_pendingCaption != nullptr;
}

void CaptionStyleBar::valueEdited()
{
    if (!m_caption) {
        return;
    }
    m_pendingCaption = m_caption;
    m_commitTimer->start();
}

void CaptionStyleBar::setPosition(CaptionInfo* info, int x, int y)
{
    if (!info || info != m_caption) {
        return;
    }
    m_x->blockSignals(true);
    m_y->blockSignals(true);
    m_x->setValue(x);
    m_y->setValue(y);
    m_x->blockSignals(false);
    m_y->blockSignals(false);
    m_pendingCaption = m_caption;
    commitPending();
}

void CaptionStyleBar::commitPending()
{
    m_commitTimer->stop();
    CaptionInfo* info = m_pendingCaption;
    m_pendingCaption = nullptr;
    // The caption may have been dropped from the store while the change waited.
    if (!info || info != m_caption || !CaptionManager::instance()->getCaptions().contains(info)) {
        return;
    }
    CaptionEdit* edit = ensureEdit(info);
    const bool styleChanged = edit->fontSize != m_fontSize->value() || edit->border != m_border->value()
                              || edit->shadow != m_shadow->value();
    const bool positionChanged = edit->x != m_x->value() || edit->y != m_y->value();
    edit->fontSize = m_fontSize->value();
    edit->x = m_x->value();
    edit->y = m_y->value();
    edit->border = m_border->value();
    edit->shadow = m_shadow->value();
    edit->text = info->text;
    edit->isChange = true;
    info->isStyleChanged = info->isStyleChanged || styleChanged;
    info->isPositionChanged = info->isPositionChanged || positionChanged;
    emit captionEditSignal(info, isApplyToAll());
}
