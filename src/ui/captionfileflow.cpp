#include "captionfileflow.h"

#include "captionmanager.h"
#include "globalmanager.h"

#include <QFileDialog>
#include <QFileInfo>

CaptionFileFlow::CaptionFileFlow(QWidget* window)
    : QObject(window)
    , m_window(window)
{
}

QString CaptionFileFlow::chooseFile()
{
    return QFileDialog::getOpenFileName(m_window, tr("Open local subtitle"), QString(),
                                        QStringLiteral("%1  (*.ass *.srt)").arg(tr("Subtitle Files")));
}

void CaptionFileFlow::load(const QString& path)
{
    CaptionManager* captions = CaptionManager::instance();
    QString assPath = path;
    if (QFileInfo(path).suffix().toLower() == QStringLiteral("srt")) {
        assPath = GlobalManager::instance()->srtToAss(path);
    }
    const int result = assPath.isEmpty() ? 1 : captions->loadCaptionFile(assPath);
    QString problem;
    if (result != 0 || captions->getCaptions().isEmpty()) {
        QString reason = captions->lastError();
        if (assPath.isEmpty() && reason.isEmpty()) {
            reason = tr("The subtitle file could not be converted.");
        }
        problem = tr("%1 holds no captions that can be shown.").arg(QFileInfo(path).fileName())
                  + (reason.isEmpty() ? QString() : QStringLiteral("\n\n") + reason);
    }
    emit finished(assPath, problem);
}
