#include "filemanager.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

FileManager* FileManager::instance()
{
    static FileManager* s_instance = new FileManager();
    return s_instance;
}

FileManager::FileManager(QObject* parent)
    : QObject(parent)
{
}

QString FileManager::findTool(const QString& name) const
{
#ifdef Q_OS_WIN
    const QString fileName = name + QStringLiteral(".exe");
#else
    const QString fileName = name;
#endif
    const QString local = QCoreApplication::applicationDirPath() + QLatin1Char('/') + fileName;
    const QFileInfo info(local);
    if (info.isFile() && info.isExecutable()) {
        return local;
    }
    const QString onPath = QStandardPaths::findExecutable(name);
    return onPath.isEmpty() ? local : onPath;
}
