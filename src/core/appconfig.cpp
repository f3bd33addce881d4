#include "appconfig.h"

#include "screenmanager.h"

#include <QFile>
#include <QList>
#include <QString>

static void initGlimmerResources()
{
    Q_INIT_RESOURCE(resources);
    Q_INIT_RESOURCE(i18n);
}

namespace AppConfig {

int rate(int value)
{
    return ScreenManager::instance()->rate(value);
}

QSize rate(const QSize& size)
{
    return ScreenManager::instance()->rate(size);
}

QMargins rate(int left, int top, int right, int bottom)
{
    return ScreenManager::instance()->rate(left, top, right, bottom);
}

QMargins rate(const QMargins& margins)
{
    return ScreenManager::instance()->rate(margins);
}

QRect rate(const QRect& rect)
{
    return ScreenManager::instance()->rate(rect);
}

QString loadApplicationStyleSheet()
{
    QFile file(QStringLiteral(":/qss/application.qss"));
    QString styleSheet;
    if (file.open(QIODevice::ReadOnly)) {
        const QByteArray bytes = file.readAll();
        const int nul = bytes.indexOf('\0');
        styleSheet = QString::fromUtf8(nul < 0 ? bytes : bytes.left(nul));
    }
    styleSheet.replace(QStringLiteral("8pt"), QStringLiteral("11pt"));
    styleSheet.replace(QStringLiteral("padding-top: 3px;"), QStringLiteral("padding-top: 2px;"));
    styleSheet.replace(QStringLiteral("padding-bottom: 3px;"), QStringLiteral("padding-bottom: 2px;"));
    ScreenManager::instance()->styleDpiChange(styleSheet);
    return styleSheet;
}

void initResources()
{
    initGlimmerResources();
}

} // namespace AppConfig

namespace AppConfig {

void registerMetaTypes()
{
    qRegisterMetaType<AppConfig::CaptureData>("AppConfig::CaptureData");
    qRegisterMetaType<QList<QString>>("QList<QString>&");
}

} // namespace AppConfig
