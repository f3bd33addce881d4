#include "apppaths.h"

#include "appconfig.h"
#include "logcategories.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>

QString AppPaths::writePath(const QString& name)
{
    const QString path = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)
                         + QLatin1Char('/') + name;
    QDir().mkpath(path);
    return path;
}

QString AppPaths::dirPath()
{
    return QCoreApplication::applicationDirPath();
}

QString AppPaths::tempPath(const QString& name)
{
    const QStringList locations = QStandardPaths::standardLocations(QStandardPaths::TempLocation);
    if (locations.isEmpty()) {
        qCWarning(lcCore) << "Unable to retrieve temporary directory path.";
    }
    const QString base = locations.isEmpty() ? QString() : locations.first();
    const QString path = base + QLatin1Char('/') + name;
    qCDebug(lcCore) << "Temporary directory path:" << path;
    QDir().mkpath(path);
    return path;
}

QString AppPaths::dirByCheck(const QString& path)
{
    // A folder that exists but refuses writes would lose the export: fall back as well.
    if (isUsableDir(path)) {
        return path;
    }
    return writePath(AppConfig::APP_NAME);
}

bool AppPaths::isUsableDir(const QString& path)
{
    if (path.isEmpty()) {
        return false;
    }
    if (!QDir(path).exists() && !QDir().mkpath(path)) {
        return false;
    }
    return QFileInfo(path).isWritable();
}
