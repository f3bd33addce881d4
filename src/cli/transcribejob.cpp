#include "transcribejob.h"

#include "appconfig.h"
#include "captionmanager.h"
#include "globalmanager.h"
#include "httpmanager.h"
#include "progressreporter.h"
#include "speechreply.h"
#include "speechservice.h"

#include <QFileInfo>
#include <QJsonObject>

TranscribeJob::TranscribeJob(const CliOptions& options, ProgressReporter* progress, QObject* parent)
    : QObject(parent)
    , m_options(options)
    , m_progress(progress)
{
}

void TranscribeJob::fail(const QString& message, int exitCode)
{
    if (m_done) {
        return;
    }
    m_done = true;
    if (m_uploading) {
        HttpManager::instance()->stopUploadFile();
    }
    GlobalManager::instance()->stopConvert();
    m_progress->error(message);
    emit finished(exitCode);
}

void TranscribeJob::start()
{
    CaptionManager* captions = CaptionManager::instance();
    QStringList codes;
    for (const Language::LanguageItem* item : captions->getLangItems()) {
        codes << item->code;
        if (item->code.compare(m_options.language, Qt::CaseInsensitive) == 0) {
            m_code = item->code;
            m_languageName = item->name;
            captions->setCurrentLangItem(item->key); // for this run only
        }
    }
    if (m_code.isEmpty()) {
        fail(QStringLiteral("--language must be one of %1, not \"%2\"").arg(codes.join(QStringLiteral(", ")),
                                                                            m_options.language),
             2);
        return;
    }
    const QFileInfo video(m_options.video);
    const QFileInfo out(m_options.output);
    if (!video.isFile()) {
        fail(QStringLiteral("cannot read video %1: %2")
                 .arg(m_options.video, video.exists() ? QStringLiteral("it is not a file") : QStringLiteral("no such file")));
        return;
    }
    if (out.exists() && (!out.isFile() || !m_options.force)) {
        fail(out.isFile() ? QStringLiteral("%1 already exists: add --force to replace it").arg(m_options.output)
                          : QStringLiteral("cannot write %1: it is not a regular file").arg(m_options.output));
        return;
    }
    GlobalManager::instance()->setCurrentFile(video);
    m_progress->start(3, QStringLiteral("transcribing"));

    // The language is checked before anything is extracted.
    SpeechService* service = SpeechService::instance();
    service->fetchLanguages(HttpManager::instance()->speechBaseUrl(), [this, service](bool ok, const QString& message) {
        if (m_done) {
            return;
        }
        if (!ok) {
            fail(message);
        } else if (!service->recognises(m_code)) {
            fail(QStringLiteral("the speech engine does not recognise %1 (the built-in one knows English only); "
                                "connect a transcription server in glimmer's Speech engine dialog or with "
                                "GLIMMER_SPEECHD_OPENAI_URL")
                     .arg(m_code));
        } else {
            extract();
        }
    });
}

void TranscribeJob::extract()
{
    m_progress->step(QStringLiteral("extracting the sound track"));
    connect(GlobalManager::instance(), &GlobalManager::globalEvent, this, [this](const QString& name, const QVariant&) {
        if (name == AppConfig::VIDEO_TO_AUDIO_STOP && !m_done && !m_uploading) {
            upload();
        }
    });
    GlobalManager::instance()->videoToAudio(QFileInfo(m_options.video).absoluteFilePath());
}

void TranscribeJob::upload()
{
    m_uploading = true;
    m_progress->step(QStringLiteral("recognising speech"));
    HttpManager* http = HttpManager::instance();
    connect(http, &HttpManager::submitFailed, this, [this](const QString& reason) { fail(reason); });
    connect(http, &HttpManager::requestError, this, [this](const QString& key, const QJsonObject&, const QByteArray& body) {
        if (key == AppConfig::TASK_ID) {
            const QString message = SpeechReply::parse(body).message();
            fail(message.isEmpty() ? QStringLiteral("the speech service could not be reached") : message);
        }
    });
    connect(http, &HttpManager::requestFinished, this,
            [this](const QString& key, const QJsonObject&, const QByteArray& body) {
                if (key == AppConfig::TASK_ID) {
                    answered(body);
                }
            });
    http->loadCaptions(CaptionManager::instance()->getAudioFilePath(), m_code);
}

void TranscribeJob::answered(const QByteArray& body)
{
    if (m_done) {
        return;
    }
    m_uploading = false;
    const SpeechReply reply = SpeechReply::parse(body);
    if (reply.isFailure(body)) {
        fail(reply.message().isEmpty() ? QStringLiteral("the speech service gave an answer that cannot be read")
                                       : reply.message());
        return;
    }
    m_progress->step(QStringLiteral("writing %1").arg(m_options.output));
    CaptionManager* captions = CaptionManager::instance();
    captions->createCaptions(body, false);
    if (!captions->saveCaptionFile(m_options.output)) {
        fail(captions->lastError());
        return;
    }
    m_done = true;
    const int count = captions->getCaptions().size();
    if (count == 0) {
        m_progress->note(QStringLiteral("no words were recognised in the sound track"));
    }
    m_progress->done(QStringLiteral("wrote %1 caption%2 to %3").arg(count).arg(count == 1 ? "" : "s").arg(m_options.output));
    emit finished(0);
}
