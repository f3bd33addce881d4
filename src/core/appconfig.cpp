#include "appconfig.h"

#include "screenmanager.h"

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

void initResources()
{
    initGlimmerResources();
}

} // namespace AppConfig

#include "captionedit.h"
#include "captioninfo.h"

namespace AppConfig {

void registerMetaTypes()
{
    qRegisterMetaType<CaptionInfo>("CaptionInfo");
    qRegisterMetaType<CaptionEdit>("CaptionEdit");
    qRegisterMetaType<AppConfig::CaptureData>("AppConfig::CaptureData");
    qRegisterMetaType<QList<QString>>("QList<QString>&");
    qRegisterMetaType<CaptionInfo*>("CaptionInfo *");
}

} // namespace AppConfig
