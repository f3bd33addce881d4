#include "openairecognizer.h"

#include "audiodecoder.h"

#include <httplib.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include <cctype>
#include <chrono>
#include <cmath>
#include <fstream>
#include <sstream>

namespace {

const char* const kEndpoint = "/v1/audio/transcriptions";

void putLe(std::string& out, uint32_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i) {
        out.push_back(static_cast<char>((value >> (8 * i)) & 0xff));
    }
}

// A canonical 44-byte WAV header in front of the raw samples.
std::string wavFromPcm(const std::string& pcm)
{
    const uint32_t rate = AudioDecoder::kSampleRate;
    std::string wav;
    wav.reserve(pcm.size() + 44);
    wav += "RIFF";
    putLe(wav, static_cast<uint32_t>(36 + pcm.size()), 4);
    wav += "WAVEfmt ";
    putLe(wav, 16, 4);
    putLe(wav, 1, 2);        // PCM
    putLe(wav, 1, 2);        // mono
    putLe(wav, rate, 4);
    putLe(wav, rate * 2, 4); // bytes per second
    putLe(wav, 2, 2);        // block align
    putLe(wav, 16, 2);       // bits per sample
    wav += "data";
    putLe(wav, static_cast<uint32_t>(pcm.size()), 4);
    wav += pcm;
    return wav;
}

std::string trimmed(const QString& text)
{
    return text.trimmed().toStdString();
}

} // namespace

OpenAiRecognizer::OpenAiRecognizer(const std::string& url, std::string model, std::string apiKey,
                                   int timeoutSeconds)
    : m_model(std::move(model))
    , m_apiKey(std::move(apiKey))
    , m_timeoutSeconds(timeoutSeconds)
{
    const QUrl parsed(QString::fromStdString(url));
    const QString scheme = parsed.scheme().toLower();
    if (!parsed.isValid() || parsed.host().isEmpty() || (scheme != "http" && scheme != "https")) {
        return;
    }
    const int port = parsed.port(scheme == "https" ? 443 : 80);
    m_origin = scheme.toStdString() + "://" + parsed.host().toStdString() + ":" + std::to_string(port);
    std::string path = parsed.path().toStdString();
    while (!path.empty() && path.back() == '/') {
        path.pop_back();
    }
    const std::string endpoint = kEndpoint;
    if (path.size() < endpoint.size() || path.compare(path.size() - endpoint.size(), endpoint.size(), endpoint) != 0) {
        path += endpoint;
    }
    m_path = path;
}

std::string OpenAiRecognizer::unsupportedReason(const std::string& language) const
{
    // The server decides; an unknown language comes back as its error.
    if (languageParameter(language).empty()) {
        return "The language code \"" + language + "\" is not valid.";
    }
    return std::string();
}

std::string OpenAiRecognizer::languageParameter(const std::string& code)
{
    std::string primary;
    for (char c : code) {
        if (c == '-' || c == '_') {
            break;
        }
        if (!std::isalpha(static_cast<unsigned char>(c))) {
            return std::string();
        }
        primary.push_back(static_cast<char>(std::tolower(static_cast<unsigned char>(c))));
    }
    return primary.size() >= 2 && primary.size() <= 3 ? primary : std::string();
}

bool OpenAiRecognizer::parseSegments(const std::string& body, std::vector<Utterance>& utterances,
                                     std::string& error)
{
    QJsonParseError parseError{};
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(body), &parseError);
    if (!document.isObject()) {
        error = "The transcription server answered with something other than JSON.";
        return false;
    }
    const QJsonObject object = document.object();
    const QJsonValue segments = object.value(QStringLiteral("segments"));
    if (!segments.isArray()) {
        const QString text = object.value(QStringLiteral("text")).toString().trimmed();
        if (text.isEmpty() && object.contains(QStringLiteral("text"))) {
            return true; // nothing was said
        }
        error = "The transcription server's answer has no timed segments; "
                "it must support response_format=verbose_json.";
        return false;
    }
    for (const QJsonValue& value : segments.toArray()) {
        const QJsonObject segment = value.toObject();
        const std::string text = trimmed(segment.value(QStringLiteral("text")).toString());
        const double start = segment.value(QStringLiteral("start")).toDouble(-1);
        const double end = segment.value(QStringLiteral("end")).toDouble(-1);
        if (text.empty() || start < 0 || end < start) {
            continue;
        }
        Utterance utterance;
        utterance.startMs = std::llround(start * 1000.0);
        utterance.endMs = std::llround(end * 1000.0);
        utterance.text = text;
        utterances.push_back(utterance);
    }
    return true;
}

std::string OpenAiRecognizer::failureMessage(const std::string& server, int status, const std::string& body,
                                             httplib::Error transportError, int timedOutAfterSeconds)
{
    const std::string who = "The transcription server at " + server;
    if (status == 0) {
        if (timedOutAfterSeconds > 0) {
            return who + " did not answer within " + std::to_string(timedOutAfterSeconds) + " seconds.";
        }
        switch (transportError) {
        case httplib::Error::Connection:
        case httplib::Error::ConnectionTimeout:
            return who + " could not be reached; is it running, and is the address right?";
        case httplib::Error::SSLConnection:
        case httplib::Error::SSLServerVerification:
        case httplib::Error::SSLLoadingCerts:
            return who + " could not be reached securely (its certificate was not accepted).";
        default:
            return who + " could not be reached (" + httplib::to_string(transportError) + ").";
        }
    }
    // OpenAI-style errors: {"error": {"message": ...}}
    const QJsonObject object = QJsonDocument::fromJson(QByteArray::fromStdString(body)).object();
    std::string detail = trimmed(object.value(QStringLiteral("error")).toObject().value(QStringLiteral("message")).toString());
    if (detail.empty()) {
        detail = trimmed(object.value(QStringLiteral("message")).toString());
    }
    while (!detail.empty() && (detail.back() == '.' || detail.back() == ' ')) {
        detail.pop_back();
    }
    std::string reason;
    if (status == 401 || status == 403) {
        reason = " refused the key (HTTP " + std::to_string(status) + ")";
    } else {
        reason = " refused the audio (HTTP " + std::to_string(status) + ")";
    }
    return who + reason + (detail.empty() ? std::string() : ": " + detail) + ".";
}

bool OpenAiRecognizer::recognize(const RecognitionJob& job, std::vector<Utterance>& utterances,
                                 std::string& error)
{
    std::ifstream input(job.pcmPath, std::ios::binary);
    std::ostringstream pcm;
    if (input) {
        pcm << input.rdbuf();
    }
    if (job.isCancelled()) {
        error = "The recognition was cancelled.";
        return false;
    }

    httplib::Client client(m_origin);
    client.set_connection_timeout(10);
    client.set_read_timeout(m_timeoutSeconds);
    client.set_write_timeout(m_timeoutSeconds);
    httplib::Headers headers;
    if (!m_apiKey.empty()) {
        headers.emplace("Authorization", "Bearer " + m_apiKey);
    }
    const httplib::MultipartFormDataItems items{
        {"file", wavFromPcm(pcm.str()), "audio.wav", "audio/wav"},
        {"model", m_model, "", ""},
        {"response_format", "verbose_json", "", ""},
        {"language", languageParameter(job.language), "", ""},
    };
    const auto started = std::chrono::steady_clock::now();
    const httplib::Result result = client.Post(m_path, headers, items);
    if (!result) {
        const auto waited = std::chrono::steady_clock::now() - started;
        error = failureMessage(m_origin, 0, std::string(), result.error(),
                               waited >= std::chrono::seconds(m_timeoutSeconds) ? m_timeoutSeconds : 0);
        return false;
    }
    if (result->status != 200) {
        error = failureMessage(m_origin, result->status, result->body, httplib::Error::Success, 0);
        return false;
    }
    if (!parseSegments(result->body, utterances, error)) {
        error = "The transcription server at " + m_origin + " gave an answer that cannot be used: " + error;
        return false;
    }
    return true;
}
