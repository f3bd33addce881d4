#include "screenmanager.h"

#include "logcategories.h"

#include <QDebug>
#include <QGuiApplication>
#include <QScreen>
#include <QSysInfo>
#include <QWidget>

ScreenManager* ScreenManager::instance()
{
    static ScreenManager* s_instance = new ScreenManager();
    return s_instance;
}

ScreenManager::ScreenManager(QObject* parent)
    : QObject(parent)
{
}

bool ScreenManager::versionAtLeast11(const QString& productVersion)
{
    return productVersion >= QStringLiteral("11.0");
}

void ScreenManager::init(QScreen* screen)
{
    if (!screen) {
        // No screen under the pointer: the primary one is the best guess.
        screen = QGuiApplication::primaryScreen();
    }
    initWithDpi(screen ? screen->logicalDotsPerInch() : 96.0,
                screen ? screen->physicalDotsPerInch() : 96.0, screen ? screen->devicePixelRatio() : 1.0);
}

void ScreenManager::initWithDpi(double logicalDpi, double physicalDpi, double deviceRatio)
{
    const double r = logicalDpi / 96.0;
    m_currentRate = r;
    m_realRate = r;
    if (r < 1.0) {
        m_currentRate = 1.0;
    }
    m_lastRate = 1.0;

    const QString version = QSysInfo::productVersion();
    m_isMac11 = versionAtLeast11(version);
    qCDebug(lcCore) << "OS Version:" << version << (m_isMac11 ? "true" : "false");

    m_deviceRatio = deviceRatio;
    qCDebug(lcCore) << "screen init" << m_currentRate << m_lastRate << m_realRate;
    qCDebug(lcCore) << "screen dip" << logicalDpi << physicalDpi << m_deviceRatio;
}

void ScreenManager::updateRate(QScreen* screen)
{
    if (!screen) {
        return;
    }
    updateRateWithDpi(screen->logicalDotsPerInch());
}

void ScreenManager::updateRateWithDpi(double logicalDpi)
{
    // No lower bound here, unlike at start-up.
    m_lastRate = m_currentRate;
    m_currentRate = logicalDpi / 96.0;
}

int ScreenManager::rate(int value) const
{
    return static_cast<int>(value * m_currentRate);
}

QSize ScreenManager::rate(const QSize& size) const
{
    return QSize(rate(size.width()), rate(size.height()));
}

QMargins ScreenManager::rate(int left, int top, int right, int bottom) const
{
    return QMargins(rate(left), rate(top), rate(right), rate(bottom));
}

QMargins ScreenManager::rate(const QMargins& margins) const
{
    return rate(margins.left(), margins.top(), margins.right(), margins.bottom());
}

QRect ScreenManager::rate(const QRect& rect) const
{
    return QRect(rate(rect.x()), rate(rect.y()), rate(rect.width()), rate(rect.height()));
}

bool ScreenManager::isNumber(char c)
{
    return c >= '0' && c <= '9';
}

int ScreenManager::findPxStart(const QString& text, int from)
{
    // Walk back from the character before "px" over ASCII digits.
    int start = from;
    while (start - 1 >= 0) {
        const QChar c = text.at(start - 1);
        if (c.unicode() > 127 || !isNumber(static_cast<char>(c.unicode()))) {
            break;
        }
        --start;
    }
    return start;
}

void ScreenManager::styleDpiChange(QString& styleSheet) const
{
    scaleStyleSheet(styleSheet, m_currentRate);
}

void ScreenManager::scaleStyleSheet(QString& styleSheet, double rate)
{
    int p = 0;
    for (;;) {
        const int px = styleSheet.indexOf(QLatin1String("px"), p + 1);
        if (px < 0) {
            break;
        }
        const int start = findPxStart(styleSheet, px);
        if (start == 0 && px > 0) {
            // A digit run that reaches the very start of the text stays as it is.
            p = px;
            continue;
        }
        const QString digits = styleSheet.mid(start, px - start);
        const int value = digits.isEmpty() ? 0 : digits.toInt();
        const QString scaled = QString::number(static_cast<int>(value * rate));
        styleSheet.replace(start, px - start, scaled);
        p = start + 2 + scaled.length();
    }
}

void ScreenManager::updateWidgetInNewScreen(QWidget* widget)
{
    if (!widget || m_lastRate <= 0.0) {
        return;
    }
    const QRect g = widget->geometry();
    auto scale = [this](int v) { return static_cast<int>(v / m_lastRate * m_currentRate); };
    const QRect n(scale(g.x()), scale(g.y()), scale(g.width()), scale(g.height()));
    widget->setGeometry(n);
    widget->adjustSize();
    qCDebug(lcCore).noquote() << QStringLiteral("name=%1, x=%2, y=%3, width=%4, height=%5")
                              .arg(widget->objectName(), QString::number(g.x()), QString::number(g.y()),
                                   QString::number(g.width()), QString::number(g.height()));
    qCDebug(lcCore).noquote() << QStringLiteral("name=%1, x=%2, y=%3, width=%4, height=%5")
                              .arg(widget->objectName(), QString::number(n.x()), QString::number(n.y()),
                                   QString::number(n.width()), QString::number(n.height()));
}

void ScreenManager::updateWidgetChildrenInNewScreen(QWidget* widget)
{
    if (!widget) {
        return;
    }
    updateWidgetInNewScreen(widget);
    const auto children = widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children) {
        updateWidgetChildrenInNewScreen(child);
    }
}
