#ifndef CAPTIONSEGMENTER_H
#define CAPTIONSEGMENTER_H

#include "recognizer.h"

#include <string>
#include <vector>

// Turns recognised speech into captions a viewer can read, by the usual
// subtitle conventions: at most two lines of 42 characters, on screen between
// one and seven seconds, cut at pauses and never inside a word, and no caption
// running into the next.
namespace CaptionSegmenter {

struct Limits {
    // A pause at least this long ends a sentence (and a caption). Read speech
    // pauses 0.1-0.5 s inside a sentence and longer after it.
    int64_t sentencePauseMs = 600;
    int64_t minDurationMs = 1000;
    int64_t maxDurationMs = 7000;
    int lineWidth = 42; // characters; a wide (CJK) character counts as two
    int maxLines = 2;
};

// Filler tokens ("<s>", "<sil>", "[NOISE]", "+BREATH+") carry no text for a caption.
bool isFiller(const std::string& token);

// "read(2)" -> "read": drops the alternative-pronunciation suffix.
std::string stripVariant(const std::string& token);

// Columns the UTF-8 text takes: one for most characters, two for wide ones.
int width(const std::string& text);

// The text in at most maxLines lines of lineWidth, joined with "\n", broken at
// spaces where the lines come out most even; as it is when it fits one line or
// cannot be broken within the limits.
std::string breakLines(const std::string& text, const Limits& limits = Limits());

// Captions from a recogniser's lower-case words: sentences end at long pauses
// and get a capital and a full stop, "i" becomes "I".
std::vector<Utterance> segment(const std::vector<Word>& words, const Limits& limits = Limits());

// Captions from timed segments that already carry their own case and
// punctuation (a transcription server's): long ones are split at spaces with
// times shared out by length, and every caption is laid out and timed as above.
std::vector<Utterance> fit(const std::vector<Utterance>& segments, const Limits& limits = Limits());

} // namespace CaptionSegmenter

#endif // CAPTIONSEGMENTER_H
