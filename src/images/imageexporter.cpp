#include "imageexporter.h"

#include "appconfig.h"
#include "globalmanager.h"
#include "logcategories.h"
#include "saveimagethread.h"
#include "settings.h"

#include <QDebug>
#include <QDir>
#include <QMetaMethod>
#include <QWidget>

ImageExporter::ImageExporter(QWidget* owner)
    : QObject(owner)
    , m_owner(owner)
    , m_thread(new SaveImageThread(this))
{
    connect(m_thread, &SaveImageThread::saveStart, this, &ImageExporter::exportStarted);
    connect(m_thread, &SaveImageThread::saveProgress, this, &ImageExporter::exportProgress);
    connect(m_thread, &SaveImageThread::saveError, this, [this](const QString& name, const QString& reason) {
        m_errors.append(QStringLiteral("%1: %2").arg(name, reason));
    });
    connect(m_thread, &SaveImageThread::saveFinished, this, &ImageExporter::saveFinishedHandle);
}

bool ImageExporter::start(const QList<QPixmap>& pixmaps, bool stitched)
{
    if (isRunning() || pixmaps.isEmpty()) {
        return false;
    }
    GlobalManager* manager = GlobalManager::instance();
    const QString folder = manager->getDirByCheck(
        Settings::instance()->value(AppConfig::FILE_SAVE_PATH).toString() + QStringLiteral("/tmp"));
    // saveFinished is queued from inside run(): the thread may still be on its
    // way out when the next export starts.
    m_thread->wait();
    m_busy = true;
    m_errors.clear();
    m_pending.clear();
    m_thread->setPixmapList(pixmaps, folder, stitched);
    m_thread->start(QThread::InheritPriority);
    return true;
}

bool ImageExporter::isRunning() const
{
    return m_busy;
}

void ImageExporter::saveFinishedHandle(const QStringList& paths)
{
    m_busy = false;
    emit writingFinished();
    GlobalManager* manager = GlobalManager::instance();
    manager->saveInAppSettings(AppConfig::EXPORT_FIRST_IN_APP, true);
    m_pending = paths;
    if (paths.isEmpty()) {
        // Nothing was written: no guide and nothing to reveal, only the reasons.
        moveAndReveal();
        return;
    }
    const bool guideShown = Settings::instance()->inAppValue(AppConfig::SHOW_GUIDE_REGISTER_BY_EXPORT).toBool();
    if (manager->isRegister() || guideShown) {
        moveAndReveal();
        return;
    }
    manager->saveInAppSettings(AppConfig::SHOW_GUIDE_REGISTER_BY_EXPORT, true);
    if (!isSignalConnected(QMetaMethod::fromSignal(&ImageExporter::showRegisterGuide))) {
        // No guide to show: the pictures must not wait for a dialog that never comes.
        moveAndReveal();
        return;
    }
    m_waitingForGuide = true;
    m_busy = true;
    emit showRegisterGuide();
}

void ImageExporter::registerGuideClosedHandle()
{
    if (!m_waitingForGuide) {
        return;
    }
    m_waitingForGuide = false;
    m_busy = false;
    moveAndReveal();
}

void ImageExporter::moveAndReveal()
{
    QStringList errors = m_errors;
    QStringList files;
    if (!m_pending.isEmpty()) {
        files = GlobalManager::instance()->selectOutPutFilesByTempList(m_pending, &errors);
    }
    m_pending.clear();
    m_errors.clear();
    // The pictures have left the temporary folder: do not leave it behind
    // empty (rmdir keeps a folder that still holds anything).
    const QString chosen = Settings::instance()->value(AppConfig::FILE_SAVE_PATH).toString();
    const QString temporary = m_thread->getDir();
    if (!chosen.isEmpty() && QDir(temporary) == QDir(chosen + QStringLiteral("/tmp"))) {
        QDir().rmdir(temporary);
    }
    if (!errors.isEmpty()) {
        qCWarning(lcImages) << "export failures:" << errors;
    }
    emit exportFinished(files, errors);
}

QString ImageExporter::summary(const QStringList& files, const QStringList& errors)
{
    if (errors.isEmpty()) {
        return QString();
    }
    return files.isEmpty() ? tr("No picture was exported.")
                           : tr("%n picture(s) were exported, but some failed.", nullptr, files.size());
}
