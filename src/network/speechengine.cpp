#include "speechengine.h"

#include "appconfig.h"
#include "settings.h"

#include <QProcessEnvironment>
#include <QUrl>

namespace {
const char* const kUrlVariable = "GLIMMER_SPEECHD_OPENAI_URL";
const char* const kModelVariable = "GLIMMER_SPEECHD_OPENAI_MODEL";
const char* const kKeyVariable = "GLIMMER_SPEECHD_OPENAI_KEY";
} // namespace

SpeechEngine SpeechEngine::stored()
{
    Settings* settings = Settings::instance();
    SpeechEngine engine;
    engine.kind = settings->value(AppConfig::SPEECH_ENGINE).toString() == AppConfig::SPEECH_ENGINE_SERVER ? Server
                                                                                                          : BuiltIn;
    engine.url = settings->value(AppConfig::SPEECH_ENGINE_URL).toString().trimmed();
    engine.model = settings->value(AppConfig::SPEECH_ENGINE_MODEL).toString().trimmed();
    engine.key = settings->value(AppConfig::SPEECH_ENGINE_KEY).toString().trimmed();
    return engine;
}

void SpeechEngine::store() const
{
    Settings* settings = Settings::instance();
    settings->setValue(AppConfig::SPEECH_ENGINE,
                       kind == Server ? AppConfig::SPEECH_ENGINE_SERVER : AppConfig::SPEECH_ENGINE_BUILTIN);
    settings->setValue(AppConfig::SPEECH_ENGINE_URL, url.trimmed());
    settings->setValue(AppConfig::SPEECH_ENGINE_MODEL, model.trimmed());
    settings->setValue(AppConfig::SPEECH_ENGINE_KEY, key.trimmed());
}

bool SpeechEngine::environmentOverrides()
{
    return !qEnvironmentVariable(kUrlVariable).isEmpty();
}

SpeechEngine SpeechEngine::effective()
{
    if (!environmentOverrides()) {
        return stored();
    }
    SpeechEngine engine;
    engine.kind = Server;
    engine.url = qEnvironmentVariable(kUrlVariable);
    engine.model = qEnvironmentVariable(kModelVariable);
    engine.key = qEnvironmentVariable(kKeyVariable);
    return engine;
}

void SpeechEngine::applyTo(QProcessEnvironment& environment) const
{
    if (environment.contains(QLatin1String(kUrlVariable)) && !environment.value(QLatin1String(kUrlVariable)).isEmpty()) {
        return; // the user's own choice for the service
    }
    environment.remove(QLatin1String(kUrlVariable));
    if (kind != Server || url.isEmpty()) {
        return;
    }
    environment.insert(QLatin1String(kUrlVariable), url);
    if (!model.isEmpty()) {
        environment.insert(QLatin1String(kModelVariable), model);
    }
    // The key goes in the environment, where other users' programs cannot read it.
    if (!key.isEmpty()) {
        environment.insert(QLatin1String(kKeyVariable), key);
    }
}

QString SpeechEngine::serverName() const
{
    const QUrl parsed = QUrl::fromUserInput(url);
    if (!parsed.isValid() || parsed.host().isEmpty()) {
        return QString();
    }
    return parsed.adjusted(QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment | QUrl::RemoveUserInfo)
        .toString();
}

bool SpeechEngine::operator==(const SpeechEngine& other) const
{
    return kind == other.kind && url == other.url && model == other.model && key == other.key;
}
