#include "autocaptionflow.h"

#include "appconfig.h"
#include "captionmanager.h"
#include "globalmanager.h"
#include "httpmanager.h"
#include "speechreply.h"
#include "speechservice.h"

#include <QFileInfo>
#include <QJsonObject>

AutoCaptionFlow::AutoCaptionFlow(QObject* parent)
    : QObject(parent)
{
    connect(HttpManager::instance(), &HttpManager::requestError, this,
            [this](const QString& key, const QJsonObject&, const QByteArray& body) {
                requestErrorHandle(key, body);
            });
    connect(HttpManager::instance(), &HttpManager::submitFailed, this, [this](const QString& reason) {
        if (m_running) {
            fail(reason);
        }
    });
    // A video open is the first step to its captions: learn the engine's
    // languages now, so that the language box can mark those it lacks.
    connect(GlobalManager::instance(), &GlobalManager::globalEvent, this, [](const QString& name, const QVariant&) {
        if (name == AppConfig::LOAD_FILE_COMPLETE && !SpeechService::instance()->languagesKnown()) {
            SpeechService::instance()->fetchLanguages(HttpManager::instance()->speechBaseUrl(),
                                                      [](bool, const QString&) {});
        }
    });
}

bool AutoCaptionFlow::start(int languageKey, const QString& videoPath)
{
    if (m_running) {
        return false;
    }
    CaptionManager* captions = CaptionManager::instance();
    Language::LanguageItem* language = captions->getLangItemByKey(languageKey);
    captions->setCurrentLangItem(language);
    m_running = true;
    emit busy(tr("Generating captions..."));
    // The engine's languages first: a language it lacks is refused before any extraction.
    const quint64 attempt = ++m_attempt;
    const QString code = language ? language->code : QString();
    const QString name = language ? CaptionManager::tr(language->name.toUtf8().constData()) : QString();
    SpeechService* service = SpeechService::instance();
    service->fetchLanguages(HttpManager::instance()->speechBaseUrl(),
                            [this, attempt, code, name, videoPath, service](bool ok, const QString& message) {
                                if (attempt != m_attempt || !m_running) {
                                    return;
                                }
                                if (!ok) {
                                    fail(message);
                                } else if (!service->recognises(code)) {
                                    m_running = false;
                                    emit languageNeedsServer(name);
                                } else {
                                    GlobalManager::instance()->videoToAudio(videoPath);
                                }
                            });
    return true;
}

void AutoCaptionFlow::audioExtracted()
{
    CaptionManager* captions = CaptionManager::instance();
    const QString audio = captions->getAudioFilePath();
    if (QFileInfo(audio).size() <= 0) {
        fail(tr("The sound track could not be extracted from the video. It may have no audio, or ffmpeg is "
                "missing."));
        return;
    }
    Language::LanguageItem* item = captions->getCurrentLangItem();
    HttpManager::instance()->loadCaptions(audio, item ? item->code : QString());
}

void AutoCaptionFlow::answerArrived(const QByteArray& body)
{
    const SpeechReply reply = SpeechReply::parse(body);
    if (reply.isFailure(body)) {
        fail(reply.message().isEmpty() ? tr("The speech service gave an answer that cannot be read.")
                                       : reply.message());
        return;
    }
    m_running = false;
    CaptionManager* captions = CaptionManager::instance();
    captions->createCaptions(body, true);
    if (captions->getCaptions().isEmpty()) {
        emit failed(tr("No speech found"), tr("No words were recognised in this video's sound track. Check the "
                                              "caption language, or add a subtitle file instead."));
    }
}

void AutoCaptionFlow::cancel()
{
    ++m_attempt;
    m_running = false;
}

void AutoCaptionFlow::requestErrorHandle(const QString& key, const QByteArray& body)
{
    if (key != AppConfig::TASK_ID || !m_running) {
        return;
    }
    // The service's own answer when it gave one, otherwise a plain word.
    const QString message = SpeechReply::parse(body).message();
    fail(message.isEmpty() ? tr("The speech service could not be reached.") : message);
}

void AutoCaptionFlow::fail(const QString& message)
{
    m_running = false;
    emit failed(tr("Automatic captions failed"), message);
}
