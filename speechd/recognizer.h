#ifndef RECOGNIZER_H
#define RECOGNIZER_H

#include <atomic>
#include <cstdint>
#include <string>
#include <vector>

// One recognised word with its time span in milliseconds.
struct Word {
    std::string text;
    int64_t startMs = 0;
    int64_t endMs = 0;
};

// One caption-sized piece of the transcript.
struct Utterance {
    int64_t startMs = 0;
    int64_t endMs = 0;
    std::string text;
};

// What a backend gets: the decoded audio and the language asked for.
struct RecognitionJob {
    std::string pcmPath; // raw signed 16-bit little-endian, 16 kHz, mono
    std::string language; // code as the app sends it, e.g. "en-US"
    const std::atomic<bool>* cancelled = nullptr;

    bool isCancelled() const { return cancelled && cancelled->load(); }
};

// A speech-recognition engine behind the service.
class Recognizer
{
public:
    virtual ~Recognizer() = default;

    virtual std::string name() const = 0;

    // The primary language subtags ("en") the engine recognises; empty when it
    // takes any language and the engine behind it decides.
    virtual std::vector<std::string> languages() const = 0;

    // Empty when the language can be recognised; otherwise the reason, worded for the user.
    virtual std::string unsupportedReason(const std::string& language) const = 0;

    // Fills utterances; returns false with a message for the user on failure.
    virtual bool recognize(const RecognitionJob& job, std::vector<Utterance>& utterances,
                           std::string& error)
        = 0;
};

#endif // RECOGNIZER_H
