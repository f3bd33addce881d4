#ifndef CAPTIONSEGMENTER_H
#define CAPTIONSEGMENTER_H

#include "recognizer.h"

#include <string>
#include <vector>

// Turns a word stream into captions a viewer can read: a new caption at every
// pause, and long stretches of speech cut at their widest gaps.
namespace CaptionSegmenter {

struct Limits {
    int64_t pauseMs = 500;      // a gap at least this long always ends a caption
    int64_t maxDurationMs = 5000;
    size_t maxChars = 80;
};

// Filler tokens ("<s>", "<sil>", "[NOISE]", "+BREATH+") carry no text for a caption.
bool isFiller(const std::string& token);

// "read(2)" -> "read": drops the alternative-pronunciation suffix.
std::string stripVariant(const std::string& token);

std::vector<Utterance> segment(const std::vector<Word>& words, const Limits& limits = Limits());

} // namespace CaptionSegmenter

#endif // CAPTIONSEGMENTER_H
