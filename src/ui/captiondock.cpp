#include "captiondock.h"

#include "appconfig.h"

#include <QDialog>
#include <QSplitter>
#include <QVBoxLayout>

CaptionDock::CaptionDock(QWidget* panel, QSplitter* splitter, QWidget* window)
    : QObject(window)
    , m_panel(panel)
    , m_splitter(splitter)
    , m_window(window)
{
}

bool CaptionDock::isPoppedOut() const
{
    return m_dialog && m_panel->parentWidget() == m_dialog;
}

void CaptionDock::popOut()
{
    if (!m_dialog) {
        m_dialog = new QDialog(m_window, Qt::Window | Qt::WindowCloseButtonHint);
        m_dialog->setObjectName(QStringLiteral("caption_dialog"));
        auto* layout = new QVBoxLayout(m_dialog);
        layout->setContentsMargins(0, 0, 0, 0);
        connect(m_dialog, &QDialog::finished, this, &CaptionDock::dockBack);
        retranslate();
    }
    const QSize size = m_panel->size();
    m_panel->setParent(m_dialog);
    m_dialog->layout()->addWidget(m_panel);
    m_panel->show();
    m_dialog->resize(size.width(), qMax(size.height(), AppConfig::rate(500)));
    m_dialog->show();
    m_window->setMinimumWidth(AppConfig::rate(1000));
}

void CaptionDock::dockBack()
{
    if (!isPoppedOut()) {
        return;
    }
    m_dialog->layout()->removeWidget(m_panel);
    m_splitter->insertWidget(0, m_panel);
    m_splitter->setCollapsible(0, false);
    m_dialog->hide();
    emit docked();
}

void CaptionDock::setShown(bool shown)
{
    if (raiseIfPoppedOut()) {
        return;
    }
    const bool wasShown = m_panel->isVisibleTo(m_window);
    const int before = m_window->width();
    m_panel->setVisible(shown);
    emit shownChanged(shown);
    if (!shown) {
        m_window->setMinimumWidth(AppConfig::rate(1000));
        if (wasShown && !m_window->isMaximized()) {
            // Give back what showing took, not the panel's current width:
            // the splitter shares space, and the difference would pile up.
            const int shrink = m_grownBy >= 0 ? m_grownBy : m_panel->width();
            m_window->resize(m_window->width() - shrink, m_window->height());
        }
        m_grownBy = -1;
    } else {
        // A panel never shown has no width yet: its minimum is what it needs.
        const int panelWidth = qMax(m_panel->minimumSizeHint().width(), m_panel->minimumWidth());
        m_window->setMinimumWidth(AppConfig::rate(1000) + panelWidth);
        if (!wasShown) {
            m_grownBy = m_window->isMaximized() ? 0 : m_window->width() - before;
        }
    }
}

bool CaptionDock::raiseIfPoppedOut()
{
    if (!m_dialog || !m_dialog->isVisible()) {
        return false;
    }
    m_dialog->raise();
    return true;
}

void CaptionDock::close()
{
    if (m_dialog) {
        m_dialog->close();
    }
}

void CaptionDock::retranslate()
{
    if (m_dialog) {
        m_dialog->setWindowTitle(tr("Captions"));
    }
}
