#include "exportnotice.h"

#include "appconfig.h"
#include "translatemanager.h"

#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QUrl>

ExportNotice::ExportNotice(QWidget* window)
    : QFrame(window)
    , m_label(new QLabel(this))
    , m_openButton(new QPushButton(this))
    , m_closeButton(new QPushButton(this))
{
    setObjectName(QStringLiteral("export_notice"));
    setAttribute(Qt::WA_StyledBackground, true);
    setStyleSheet(QStringLiteral("QFrame#export_notice{background:#1d2733;border-radius:6px;}"
                                 "QFrame#export_notice QLabel{color:#ffffff;}"));
    m_label->setWordWrap(true);
    m_label->setTextFormat(Qt::PlainText);
    m_closeButton->setText(QStringLiteral("×"));
    m_closeButton->setFlat(true);
    m_closeButton->setStyleSheet(
        QStringLiteral("QPushButton{color:#ffffff;background:transparent;border:none;font-size:16px;}"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(AppConfig::rate(12, 8, 8, 8));
    layout->setSpacing(AppConfig::rate(10));
    layout->addWidget(m_label, 1);
    layout->addWidget(m_openButton);
    layout->addWidget(m_closeButton);
    connect(m_openButton, &QPushButton::clicked, this,
            [this]() { QDesktopServices::openUrl(QUrl::fromLocalFile(m_folder)); });
    connect(m_closeButton, &QPushButton::clicked, this, &QWidget::hide);
    connect(TranslateManager::instance(), &TranslateManager::notify, this, &ExportNotice::retranslate);
    window->installEventFilter(this);
    retranslate();
    hide();
}

void ExportNotice::showExport(const QStringList& files, const QString& chosen)
{
    if (files.isEmpty()) {
        return;
    }
    m_folder = QFileInfo(files.first()).absolutePath();
    const QString where = QDir::toNativeSeparators(m_folder);
    QString text = tr("Saved %n picture(s) to %1", nullptr, files.size()).arg(where);
    if (!chosen.isEmpty() && QDir(chosen) != QDir(m_folder)) {
        text = tr("The output folder %1 cannot be written.").arg(QDir::toNativeSeparators(chosen))
               + QLatin1Char(' ') + text;
    }
    m_label->setText(text);
    place();
    show();
    raise();
}

QString ExportNotice::text() const
{
    return m_label->text();
}

void ExportNotice::retranslate()
{
    m_openButton->setText(tr("Open folder"));
    m_closeButton->setToolTip(tr("Close"));
}

void ExportNotice::place()
{
    QWidget* window = parentWidget();
    const int margin = AppConfig::rate(16);
    const int width = qMin(window->width() - 2 * margin, AppConfig::rate(720));
    const int height = qMax(sizeHint().height(), heightForWidth(width));
    setGeometry((window->width() - width) / 2, window->height() - height - margin, width, height);
}

bool ExportNotice::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible()) {
        place();
    }
    return QFrame::eventFilter(watched, event);
}
