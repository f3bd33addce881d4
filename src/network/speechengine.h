#ifndef SPEECHENGINE_H
#define SPEECHENGINE_H

#include <QString>

class QProcessEnvironment;

// The engine the bundled speech service recognises with: its built-in
// recogniser (offline, English) or a transcription server that speaks the
// OpenAI-compatible API. Chosen in the Speech engine dialog and kept in the
// settings; the service's own environment variables win when they are set.
class SpeechEngine
{
public:
    enum Kind { BuiltIn, Server };

    Kind kind = BuiltIn;
    QString url;   // the server's address (base or full endpoint)
    QString model;
    QString key;   // sent as "Authorization: Bearer <key>" when set

    // What the settings hold.
    static SpeechEngine stored();
    void store() const;
    // What the service runs with: the environment's server when
    // GLIMMER_SPEECHD_OPENAI_URL is set, the stored choice otherwise.
    static SpeechEngine effective();
    static bool environmentOverrides();

    // The service's environment for this engine (what the environment already sets stays).
    void applyTo(QProcessEnvironment& environment) const;
    // "http(s)://host[:port]": the server as messages name it; empty when the address is not usable.
    QString serverName() const;

    bool operator==(const SpeechEngine& other) const;
    bool operator!=(const SpeechEngine& other) const { return !(*this == other); }
};

#endif // SPEECHENGINE_H
