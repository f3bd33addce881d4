#include "outputfiles.h"

#include "logcategories.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

QString OutputFiles::freeName(const QString& dir, const QString& stem, const QString& ext)
{
    QString target = dir + QLatin1Char('/') + stem + QLatin1Char('.') + ext;
    int n = 1;
    while (QFileInfo::exists(target)) {
        target = dir + QLatin1Char('/') + stem + QLatin1Char('(') + QString::number(n) + QStringLiteral(").")
                 + ext;
        ++n;
    }
    return target;
}

QStringList OutputFiles::moveInto(const QStringList& tempPaths, const QString& dest, const QString& fallback,
                                  QStringList* errors)
{
    auto moveTo = [](const QString& temp, const QString& dir) -> QString {
        const QFileInfo info(temp);
        if (QDir(info.absolutePath()) == QDir(dir)) {
            // Already written into the output folder under a free name.
            return info.absoluteFilePath();
        }
        const QString target = freeName(dir, info.completeBaseName(), info.suffix());
        // A rename within one file system, a copy and remove across them.
        return QFile::rename(temp, target) ? target : QString();
    };

    QStringList collected;
    for (const QString& temp : tempPaths) {
        if (!QFileInfo::exists(temp)) {
            qCWarning(lcCore) << "selectOutPutFilesByTempList: missing" << temp;
            if (errors) {
                errors->append(tr("%1: the file has vanished before it could be moved to the "
                                  "output folder.")
                                   .arg(QFileInfo(temp).fileName()));
            }
            continue;
        }
        QString target = moveTo(temp, dest);
        if (target.isEmpty() && dest != fallback) {
            target = moveTo(temp, fallback);
        }
        if (target.isEmpty()) {
            qCWarning(lcCore) << "selectOutPutFilesByTempList: move failed" << temp << dest;
            if (errors) {
                errors->append(tr("%1 could not be moved to the output folder %2; it was kept at %3.")
                                   .arg(QFileInfo(temp).fileName(), QDir::toNativeSeparators(dest),
                                        QDir::toNativeSeparators(temp)));
            }
            collected.append(temp);
            continue;
        }
        collected.append(target);
    }
    return collected;
}
