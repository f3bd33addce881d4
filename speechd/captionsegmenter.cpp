#include "captionsegmenter.h"

#include <algorithm>
#include <cstdlib>

namespace CaptionSegmenter {

bool isFiller(const std::string& token)
{
    if (token.empty()) {
        return true;
    }
    const char first = token.front();
    return first == '<' || first == '[' || first == '+';
}

std::string stripVariant(const std::string& token)
{
    // A trailing "(digits)" marks the dictionary's n-th pronunciation.
    if (token.size() < 4 || token.back() != ')') {
        return token;
    }
    const size_t open = token.rfind('(');
    if (open == std::string::npos || open == 0 || open + 2 > token.size() - 1) {
        return token;
    }
    for (size_t i = open + 1; i < token.size() - 1; ++i) {
        if (token[i] < '0' || token[i] > '9') {
            return token;
        }
    }
    return token.substr(0, open);
}

namespace {

size_t textLength(const std::vector<Word>& words, size_t begin, size_t end)
{
    size_t length = 0;
    for (size_t i = begin; i < end; ++i) {
        length += words[i].text.size() + (i > begin ? 1 : 0);
    }
    return length;
}

// Splits words[begin, end) until every piece fits the limits; each cut goes where
// the speaker paused longest, and among equal gaps nearest the middle.
void split(const std::vector<Word>& words, size_t begin, size_t end, const Limits& limits,
           std::vector<std::pair<size_t, size_t>>& pieces)
{
    const bool tooLong = words[end - 1].endMs - words[begin].startMs > limits.maxDurationMs
                         || textLength(words, begin, end) > limits.maxChars;
    if (end - begin < 2 || !tooLong) {
        pieces.emplace_back(begin, end);
        return;
    }
    size_t cut = begin + 1;
    int64_t bestGap = -1;
    int64_t bestDistance = 0;
    const int64_t middle = (words[begin].startMs + words[end - 1].endMs) / 2;
    for (size_t i = begin + 1; i < end; ++i) {
        const int64_t gap = words[i].startMs - words[i - 1].endMs;
        const int64_t distance = std::llabs(words[i].startMs - middle);
        if (gap > bestGap || (gap == bestGap && distance < bestDistance)) {
            bestGap = gap;
            bestDistance = distance;
            cut = i;
        }
    }
    split(words, begin, cut, limits, pieces);
    split(words, cut, end, limits, pieces);
}

} // namespace

std::vector<Utterance> segment(const std::vector<Word>& input, const Limits& limits)
{
    std::vector<Word> words;
    for (const Word& word : input) {
        if (isFiller(word.text)) {
            continue;
        }
        Word clean = word;
        clean.text = stripVariant(word.text);
        if (!clean.text.empty()) {
            words.push_back(clean);
        }
    }

    std::vector<std::pair<size_t, size_t>> pieces;
    size_t begin = 0;
    for (size_t i = 1; i <= words.size(); ++i) {
        if (i == words.size() || words[i].startMs - words[i - 1].endMs >= limits.pauseMs) {
            if (i > begin) {
                split(words, begin, i, limits, pieces);
            }
            begin = i;
        }
    }

    std::vector<Utterance> utterances;
    for (const auto& piece : pieces) {
        Utterance utterance;
        utterance.startMs = words[piece.first].startMs;
        utterance.endMs = words[piece.second - 1].endMs;
        for (size_t i = piece.first; i < piece.second; ++i) {
            if (i > piece.first) {
                utterance.text += ' ';
            }
            utterance.text += words[i].text;
        }
        utterances.push_back(utterance);
    }
    return utterances;
}

} // namespace CaptionSegmenter
