#ifndef OPENAIRECOGNIZER_H
#define OPENAIRECOGNIZER_H

#include "recognizer.h"

#include <httplib.h>

#include <string>

// Forwards the audio to a server with the OpenAI-style transcription endpoint
// (POST /v1/audio/transcriptions, verbose JSON with timed segments), such as a
// local whisper server, and takes its segments as the captions.
class OpenAiRecognizer : public Recognizer
{
public:
    // url: the server's base address, or the full endpoint address.
    OpenAiRecognizer(const std::string& url, std::string model, std::string apiKey, int timeoutSeconds = 3600);

    std::string name() const override { return "openai:" + m_origin + m_path; }
    std::vector<std::string> languages() const override { return {}; }
    std::string unsupportedReason(const std::string& language) const override;
    bool recognize(const RecognitionJob& job, std::vector<Utterance>& utterances,
                   std::string& error) override;

    bool isValid() const { return !m_origin.empty(); }

    // "en-US" -> "en": these servers take ISO 639-1 codes.
    static std::string languageParameter(const std::string& code);
    // Utterances from a verbose_json body; false with a message when it has none.
    static bool parseSegments(const std::string& body, std::vector<Utterance>& utterances,
                              std::string& error);

    // The one sentence a failure reaches the user as, naming the server: a
    // transport error (status 0; timedOutAfterSeconds when the wait ran out)
    // or the server's refusal with its own message.
    static std::string failureMessage(const std::string& server, int status, const std::string& body,
                                      httplib::Error transportError, int timedOutAfterSeconds);

private:
    std::string m_origin; // scheme://host:port
    std::string m_path;   // endpoint path
    std::string m_model;
    std::string m_apiKey;
    int m_timeoutSeconds;
};

#endif // OPENAIRECOGNIZER_H
