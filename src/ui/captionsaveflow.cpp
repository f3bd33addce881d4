#include "captionsaveflow.h"

#include "appconfig.h"
#include "captionmanager.h"
#include "globalmanager.h"
#include "translatemanager.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

CaptionSaveFlow::CaptionSaveFlow(QWidget* window)
    : QObject(window)
    , m_window(window)
    , m_save(new QAction(this))
    , m_saveAs(new QAction(this))
{
    m_save->setShortcut(QKeySequence::Save);
    m_saveAs->setShortcut(QKeySequence::SaveAs);
    connect(m_save, &QAction::triggered, this, &CaptionSaveFlow::save);
    connect(m_saveAs, &QAction::triggered, this, &CaptionSaveFlow::saveAs);
    connect(TranslateManager::instance(), &TranslateManager::notify, this, &CaptionSaveFlow::retranslate);
    connect(GlobalManager::instance(), &GlobalManager::globalEvent, this, [this](const QString& name) {
        if (name == AppConfig::LOAD_FILE_COMPLETE) {
            forgetTarget();
        }
    });
    retranslate();
}

void CaptionSaveFlow::retranslate()
{
    m_save->setText(tr("Save captions"));
    m_saveAs->setText(tr("Save captions as..."));
}

QString CaptionSaveFlow::defaultPath() const
{
    const QFileInfo video = GlobalManager::instance()->getCurrentFile();
    const QString dir = video.fileName().isEmpty() ? QDir::homePath() : video.absolutePath();
    const QString base = video.fileName().isEmpty() ? tr("captions") : video.completeBaseName();
    const Language::LanguageItem* language = CaptionManager::instance()->getCurrentLangItem();
    // Captions made by the speech service are named after their language.
    const bool generated = !CaptionManager::instance()->getCaptions().isEmpty()
                           && CaptionManager::instance()->getCaptions().constFirst()->type.isEmpty()
                           && language;
    return QStringLiteral("%1/%2%3.srt").arg(dir, base, generated ? QLatin1Char('.') + language->code : QString());
}

bool CaptionSaveFlow::save()
{
    return m_target.isEmpty() ? saveAs() : write(m_target);
}

bool CaptionSaveFlow::saveAs()
{
    QFileDialog dialog(m_window, tr("Save captions"), m_target.isEmpty() ? defaultPath() : m_target);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    const QString srt = tr("SubRip subtitles (*.srt)");
    const QString ass = tr("ASS subtitles (*.ass)");
    dialog.setNameFilters({srt, ass});
    const bool isAss = QFileInfo(dialog.selectedFiles().value(0)).suffix().toLower() == QLatin1String("ass");
    dialog.selectNameFilter(isAss ? ass : srt);
    dialog.setDefaultSuffix(isAss ? QStringLiteral("ass") : QStringLiteral("srt"));
    // A name typed without a suffix gets the chosen format's, before the
    // dialog asks about overwriting it.
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog, ass](const QString& filter) {
        dialog.setDefaultSuffix(filter == ass ? QStringLiteral("ass") : QStringLiteral("srt"));
    });
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return false;
    }
    return write(dialog.selectedFiles().constFirst());
}

bool CaptionSaveFlow::write(const QString& path)
{
    CaptionManager* captions = CaptionManager::instance();
    if (!captions->saveCaptionFile(path)) {
        emit failed(tr("The captions were not saved"), captions->lastError());
        return false;
    }
    m_target = path;
    emit saved(path);
    return true;
}
