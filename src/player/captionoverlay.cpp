#include "captionoverlay.h"

#include "captioninfo.h"
#include "captionmanager.h"
#include "captionstylebar.h"

#include <QEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>

#include <cmath>

namespace {
// A script that states no play resolution is laid out in this space.
constexpr int kScriptWidth = 384;
constexpr int kScriptHeight = 288;
constexpr int kDefaultMarginV = 10;
constexpr int kPadding = 4;
constexpr int kDragThreshold = 3;
} // namespace

CaptionOverlay::CaptionOverlay(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("caption_overlay"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_NoSystemBackground);
    setMouseTracking(true);

    m_editor = new QLineEdit(this);
    m_editor->setObjectName(QStringLiteral("caption_editor"));
    m_editor->setAlignment(Qt::AlignCenter);
    m_editor->setStyleSheet(QStringLiteral(
        "QLineEdit{background:rgba(0,0,0,170);color:#ffffff;border:1px solid #008cf1;border-radius:3px;}"));
    m_editor->hide();
    m_editor->installEventFilter(this);
    connect(m_editor, &QLineEdit::returnPressed, this, [this]() { finishEditing(true); });

    connect(CaptionManager::instance(), &CaptionManager::aboutToReplaceCaptions, this, [this]() {
        if (isEditing()) {
            finishEditing(false);
        }
        m_dragging = false;
        m_caption = nullptr;
        update();
    });
}

CaptionInfo* CaptionOverlay::captionAtTime(double seconds)
{
    if (seconds < 0) {
        return nullptr;
    }
    const double ms = seconds * 1000.0;
    const QList<CaptionInfo*> captions = CaptionManager::instance()->getCaptions();
    for (CaptionInfo* info : captions) {
        if (!info) {
            continue;
        }
        const int start = info->startMs();
        const int end = info->endMs();
        if (start >= 0 && end >= 0 && start <= ms && ms <= end) {
            return info;
        }
    }
    return nullptr;
}

void CaptionOverlay::setCaption(CaptionInfo* info)
{
    if (info == m_caption) {
        update();
        return;
    }
    if (isEditing()) {
        finishEditing(true);
    }
    m_dragging = false;
    m_caption = info;
    update();
}

void CaptionOverlay::setVideoSize(const QSize& size)
{
    m_videoSize = size;
    placeEditor();
    update();
}

QRect CaptionOverlay::videoRect() const
{
    if (!m_videoSize.isValid() || m_videoSize.isEmpty()) {
        return rect();
    }
    // mpv letterboxes the video into the surface keeping its aspect ratio.
    const QSize fitted = m_videoSize.scaled(size(), Qt::KeepAspectRatio);
    return QRect(QPoint((width() - fitted.width()) / 2, (height() - fitted.height()) / 2), fitted);
}

QPoint CaptionOverlay::scriptToWidget(int x, int y) const
{
    const QRect video = videoRect();
    return QPoint(video.x() + qRound(x * video.width() / double(kScriptWidth)),
                  video.y() + qRound(y * video.height() / double(kScriptHeight)));
}

QPoint CaptionOverlay::widgetToScript(const QPoint& point) const
{
    const QRect video = videoRect();
    if (video.width() <= 0 || video.height() <= 0) {
        return QPoint(kScriptWidth / 2, kScriptHeight);
    }
    const int x = qRound((point.x() - video.x()) * double(kScriptWidth) / video.width());
    const int y = qRound((point.y() - video.y()) * double(kScriptHeight) / video.height());
    return QPoint(qBound(0, x, kScriptWidth), qBound(0, y, kScriptHeight));
}

QString CaptionOverlay::plainText(const QString& text)
{
    static const QRegularExpression overrideBlock(QStringLiteral("\\{[^}]*\\}"));
    QString plain = text;
    plain.remove(overrideBlock);
    plain.replace(QStringLiteral("\\N"), QStringLiteral("\n"));
    plain.replace(QStringLiteral("\\n"), QStringLiteral("\n"));
    return plain;
}

QRect CaptionOverlay::captionRect() const
{
    if (!m_caption) {
        return QRect();
    }
    int anchorX = kScriptWidth / 2;
    int anchorY = kScriptHeight - kDefaultMarginV;
    int fontSize = CaptionEdit().fontSize;
    // An edit record places the caption only once it has been written with
    // its override block; before that the style's bottom margin does.
    const CaptionEdit* edit = m_caption->captionEdit;
    const bool placedByEdit = edit
                              && (edit->isChange || !m_caption->editMarks.isEmpty()
                                  || m_caption->style == QLatin1String("StyleAll"));
    if (placedByEdit) {
        anchorX = edit->x;
        anchorY = edit->y;
        fontSize = edit->fontSize;
    } else if (const CaptionStyle* style = m_caption->captionStyle) {
        bool ok = false;
        const int marginV = style->marginV.toInt(&ok);
        if (ok) {
            anchorY = kScriptHeight - marginV;
        }
        const double size = style->fontsize.toDouble(&ok);
        if (ok && size > 0) {
            fontSize = qRound(size);
        }
    }
    const QRect video = videoRect();
    QFont font = this->font();
    font.setPixelSize(qMax(1, qRound(fontSize * video.height() / double(kScriptHeight))));
    const QFontMetrics metrics(font);
    const QStringList lines = plainText(m_caption->text).split(QLatin1Char('\n'));
    int textWidth = 0;
    for (const QString& line : lines) {
        textWidth = qMax(textWidth, metrics.horizontalAdvance(line));
    }
    textWidth = qMax(textWidth, metrics.averageCharWidth() * 4);
    const int textHeight = metrics.lineSpacing() * lines.size();
    // The anchor is the bottom centre of the caption (ASS alignment 2).
    const QPoint anchor = scriptToWidget(anchorX, anchorY);
    QRect box(anchor.x() - textWidth / 2, anchor.y() - textHeight, textWidth, textHeight);
    return box.adjusted(-kPadding, -kPadding, kPadding, kPadding);
}

bool CaptionOverlay::isEditing() const
{
    return m_editor->isVisible();
}

void CaptionOverlay::placeEditor()
{
    if (!m_caption) {
        return;
    }
    QRect box = captionRect();
    const int minWidth = qMin(width(), 240);
    if (box.width() < minWidth) {
        box.adjust(-(minWidth - box.width()) / 2, 0, (minWidth - box.width() + 1) / 2, 0);
    }
    box.setHeight(qMax(box.height(), m_editor->sizeHint().height()));
    // Keep the editor inside the surface even for captions placed at an edge.
    box.moveLeft(qBound(0, box.left(), qMax(0, width() - box.width())));
    box.moveTop(qBound(0, box.top(), qMax(0, height() - box.height())));
    m_editor->setGeometry(box);
    QFont font = m_editor->font();
    font.setPixelSize(qMax(12, qMin(box.height() - 2 * kPadding, 48)));
    m_editor->setFont(font);
}

void CaptionOverlay::startEditing()
{
    if (!m_caption) {
        return;
    }
    m_editor->setText(m_caption->text);
    placeEditor();
    m_editor->show();
    m_editor->raise();
    m_editor->setFocus(Qt::OtherFocusReason);
    m_editor->selectAll();
    update();
    emit editStateChanged(true, m_caption->text);
}

void CaptionOverlay::finishEditing(bool commit)
{
    if (!isEditing() || m_finishing) {
        return;
    }
    // Hiding the editor moves the focus away, which would finish it a second time.
    m_finishing = true;
    const QString text = m_editor->text();
    m_editor->hide();
    m_finishing = false;
    update();
    if (commit && m_caption && text != m_caption->text) {
        CaptionEdit* edit = CaptionStyleBar::ensureEdit(m_caption);
        edit->text = text;
        edit->isChange = true;
        emit captionEditSignal(m_caption, false);
    }
    emit editStateChanged(false, text);
}

void CaptionOverlay::clearEditorFocus()
{
    if (m_editor->hasFocus()) {
        m_editor->clearFocus();
    }
}

bool CaptionOverlay::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_editor) {
        if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            finishEditing(false);
            return true;
        }
        if (event->type() == QEvent::FocusOut) {
            finishEditing(true);
        }
    }
    return QWidget::eventFilter(watched, event);
}

void CaptionOverlay::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    if (!m_caption || isEditing() || !(m_hovered || m_dragging)) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRect box = captionRect();
    if (m_dragging) {
        box.translate(m_dragOffset);
    }
    painter.setPen(QPen(QColor(0x00, 0x8c, 0xf1), 1.5, Qt::DashLine));
    painter.setBrush(QColor(0, 140, 241, m_dragging ? 40 : 18));
    painter.drawRoundedRect(box, 3, 3);
}

void CaptionOverlay::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_caption && !isEditing() && captionRect().contains(event->pos())) {
        m_dragging = true;
        m_pressPos = event->pos();
        m_dragOffset = QPoint();
        event->accept();
        return;
    }
    if (isEditing() && !m_editor->geometry().contains(event->pos())) {
        finishEditing(true);
    }
    event->ignore();
}

void CaptionOverlay::mouseMoveEvent(QMouseEvent* event)
{
    if (m_dragging) {
        m_dragOffset = event->pos() - m_pressPos;
        update();
        event->accept();
        return;
    }
    const bool over = m_caption && captionRect().contains(event->pos());
    setCursor(over ? Qt::SizeAllCursor : Qt::ArrowCursor);
    event->ignore();
}

void CaptionOverlay::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_dragging) {
        event->ignore();
        return;
    }
    m_dragging = false;
    update();
    event->accept();
    if (!m_caption || m_dragOffset.manhattanLength() < kDragThreshold) {
        return;
    }
    const QRect box = captionRect().translated(m_dragOffset);
    const QPoint anchor = widgetToScript(QPoint(box.center().x(), box.bottom() - kPadding + 1));
    emit positionDragged(m_caption, anchor.x(), anchor.y());
}

void CaptionOverlay::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (m_caption && captionRect().contains(event->pos())) {
        m_dragging = false;
        startEditing();
        event->accept();
        return;
    }
    event->ignore();
}

void CaptionOverlay::enterEvent(QEvent* event)
{
    m_hovered = true;
    update();
    QWidget::enterEvent(event);
}

void CaptionOverlay::leaveEvent(QEvent* event)
{
    m_hovered = false;
    update();
    QWidget::leaveEvent(event);
}

void CaptionOverlay::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (isEditing()) {
        placeEditor();
    }
}
