#include "autocaptionflow.h"

#include "appconfig.h"
#include "captionmanager.h"
#include "globalmanager.h"
#include "httpmanager.h"
#include "speechreply.h"

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
}

bool AutoCaptionFlow::start(int languageKey, const QString& videoPath)
{
    if (m_running) {
        return false;
    }
    CaptionManager* captions = CaptionManager::instance();
    captions->setCurrentLangItem(captions->getLangItemByKey(languageKey));
    m_running = true;
    emit busy(tr("Generating captions..."));
    GlobalManager::instance()->videoToAudio(videoPath);
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
