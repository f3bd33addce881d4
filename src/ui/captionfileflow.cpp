#include "captionfileflow.h"

#include "captionfilereader.h"
#include "captionmanager.h"
#include "subtitleconverter.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QThread>

#include <atomic>

struct CaptionFileFlow::Job
{
    QString path;
    bool isSrt = false;
    std::atomic<bool> stop{false};
    // Written by the worker, read on the GUI thread after it has finished.
    QString assPath;
    QString conversionError;
    int sourceCues = -1;
    CaptionFileContent content;
};

CaptionFileFlow::CaptionFileFlow(QWidget* window)
    : QObject(window)
    , m_window(window)
{
}

CaptionFileFlow::~CaptionFileFlow()
{
    stopThread();
}

QString CaptionFileFlow::chooseFile()
{
    return QFileDialog::getOpenFileName(m_window, tr("Open local subtitle"), QString(),
                                        QStringLiteral("%1  (*.ass *.srt)").arg(tr("Subtitle Files")));
}

void CaptionFileFlow::stopThread()
{
    if (!m_thread) {
        return;
    }
    m_job->stop = true;
    m_thread->disconnect(this);
    m_thread->wait();
    delete m_thread;
    m_thread = nullptr;
    m_job.reset();
}

void CaptionFileFlow::cancel()
{
    if (m_job) {
        m_job->stop = true;
    }
}

void CaptionFileFlow::load(const QString& path)
{
    stopThread();
    auto job = std::make_shared<Job>();
    job->path = path;
    job->isSrt = QFileInfo(path).suffix().toLower() == QStringLiteral("srt");
    const QString name = QFileInfo(path).fileName();
    const QString readingText = tr("Reading the captions of %1…").arg(name);
    QPointer<CaptionFileFlow> self(this);
    auto report = [self](const QString& text, int percent) {
        QMetaObject::invokeMethod(
            self, [self, text, percent]() {
                if (self) {
                    emit self->progress(text, percent);
                }
            },
            Qt::QueuedConnection);
    };

    m_job = job;
    m_thread = QThread::create([job, readingText, report]() {
        job->assPath = job->path;
        if (job->isSrt) {
            job->assPath = SubtitleConverter::srtToAss(job->path, &job->conversionError, &job->sourceCues,
                                                       [job]() { return job->stop.load(); });
        }
        if (job->stop || job->assPath.isEmpty()) {
            return;
        }
        AssReader::Control control;
        int shown = -1;
        control.progress = [job, readingText, report, &shown](int percent) {
            if (percent / 5 != shown) {
                shown = percent / 5;
                report(readingText, percent);
            }
            return !job->stop.load();
        };
        job->content = CaptionFileReader::read(job->assPath, control);
    });
    connect(m_thread, &QThread::finished, this, [this, job]() { jobDone(job); });
    emit progress(job->isSrt ? tr("Converting %1…").arg(name) : readingText, -1);
    m_thread->start();
}

void CaptionFileFlow::jobDone(const std::shared_ptr<Job>& job)
{
    m_thread->wait();
    delete m_thread;
    m_thread = nullptr;
    m_job.reset();
    if (job->stop || job->content.cancelled) {
        emit cancelled();
        return;
    }

    CaptionManager* captions = CaptionManager::instance();
    if (job->isSrt) {
        // The message belongs to the converted file, so that loading it keeps it.
        captions->setLastError(job->conversionError, SubtitleConverter::outputPath(job->path));
    }
    const QString assPath = job->assPath;
    const int result = assPath.isEmpty() ? 1 : captions->finishLoad(assPath, std::move(job->content));
    const QString name = QFileInfo(job->path).fileName();
    const int read = captions->getCaptions().size();
    if (result != 0 || read == 0) {
        QString reason = captions->lastError();
        if (assPath.isEmpty() && reason.isEmpty()) {
            reason = tr("The subtitle file could not be converted.");
        }
        emit finished(assPath, tr("No captions loaded"),
                      tr("%1 holds no captions that can be shown.").arg(name)
                          + (reason.isEmpty() ? QString() : QStringLiteral("\n\n") + reason));
        return;
    }
    if (job->isSrt && job->sourceCues > read) {
        emit finished(assPath, tr("Some captions were not loaded"),
                      tr("%1 of the %2 captions in %3 could not be read; the other %4 were loaded.")
                          .arg(QString::number(job->sourceCues - read), QString::number(job->sourceCues), name,
                               QString::number(read)));
        return;
    }
    emit finished(assPath, QString(), QString());
}
