#include "saveimagethread.h"

#include "appconfig.h"
#include "globalmanager.h"
#include "logcategories.h"
#include "settings.h"

#include <QDebug>
#include <QFileInfo>
#include <QImage>
#include <QMutexLocker>

SaveImageThread::SaveImageThread(QObject* parent)
    : QThread(parent)
{
}

SaveImageThread::~SaveImageThread()
{
    // Pictures being written are finished rather than cut off half-way.
    wait();
}

void SaveImageThread::setPixmapList(const QList<QPixmap>& pixmaps, const QString& dir, bool stitched)
{
    // Everything the worker needs is read here, on the caller's thread: the
    // worker touches no shared state of the program.
    GlobalManager* manager = GlobalManager::instance();
    const QString base = manager->getCurrentFile().completeBaseName() + (stitched ? QStringLiteral("_stitch") : QString());
    const QString ext = Settings::instance()->value(AppConfig::FILE_EXTENSION, Settings::ExportWorker).toString();
    const bool registered = manager->isRegister();
    QMutexLocker locker(&m_mutex);
    m_pixmapList = pixmaps;
    m_dir = dir;
    m_baseName = base;
    m_extension = ext;
    m_registered = registered;
}

QString SaveImageThread::getDir() const
{
    QMutexLocker locker(&m_mutex);
    return m_dir;
}

void SaveImageThread::run()
{
    QList<QImage> images;
    QString dir;
    QString base;
    QString ext;
    bool registered = false;
    {
        QMutexLocker locker(&m_mutex);
        // Raster pixmaps hand out their image without copying; painting on a
        // QImage is safe on any thread, painting on a QPixmap is not everywhere.
        for (const QPixmap& pixmap : qAsConst(m_pixmapList)) {
            images.append(pixmap.isNull() ? QImage() : pixmap.toImage());
        }
        dir = m_dir;
        base = m_baseName;
        ext = m_extension;
        registered = m_registered;
    }
    const int total = images.size();

    emit saveStart();
    QStringList result;
    for (int i = 0; i < total; ++i) {
        QImage image = images.at(i);
        images[i] = QImage(); // at most one watermarked copy alive at a time
        if (image.isNull()) {
            continue;
        }
        const QString name = QStringLiteral("/%3_%1.%2").arg(QString::number(i + 1), ext.toLower(), base);
        if (!registered) {
            GlobalManager::changeImageWithWaterMark(image, AppConfig::APP_NAME);
        }
        QString error;
        const QString path = GlobalManager::instance()->saveImage(image, dir, name, QString(), &error);
        if (path.isEmpty()) {
            emit saveError(name.mid(1), error);
        } else {
            result.append(path);
        }
        emit saveProgress(i, total);
    }
    qCDebug(lcImages) << "SaveImageThread finished:" << result.size() << "of" << total;
    emit saveFinished(result);
}
