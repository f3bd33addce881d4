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

bool isWide(char32_t c)
{
    return (c >= 0x1100 && c <= 0x115F) || (c >= 0x2E80 && c <= 0xA4CF) || (c >= 0xAC00 && c <= 0xD7A3)
           || (c >= 0xF900 && c <= 0xFAFF) || (c >= 0xFE30 && c <= 0xFE4F) || (c >= 0xFF00 && c <= 0xFF60)
           || (c >= 0xFFE0 && c <= 0xFFE6) || (c >= 0x20000 && c <= 0x3FFFD);
}

// The code points of UTF-8 text with their byte offsets; a broken sequence reads as one narrow character.
struct CodePoint {
    char32_t value;
    size_t offset;
    size_t length;
};

std::vector<CodePoint> decode(const std::string& text)
{
    std::vector<CodePoint> points;
    for (size_t i = 0; i < text.size();) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const size_t length = byte < 0x80 ? 1 : (byte >> 5) == 0x6 ? 2 : (byte >> 4) == 0xE ? 3 : (byte >> 3) == 0x1E ? 4 : 1;
        char32_t value = length == 1 ? byte : byte & (0x3F >> (length - 1));
        size_t used = 1;
        for (; used < length && i + used < text.size(); ++used) {
            const auto next = static_cast<unsigned char>(text[i + used]);
            if ((next >> 6) != 0x2) {
                break;
            }
            value = (value << 6) | (next & 0x3F);
        }
        if (used != length) {
            value = byte;
            used = 1;
        }
        points.push_back({value, i, used});
        i += used;
    }
    return points;
}

// A piece of a caption: a word, or one character of a text written without spaces.
struct Token {
    std::string text;
    int64_t startMs = 0;
    int64_t endMs = 0;
    bool spaceBefore = true;
    int64_t pauseBonusMs = 0; // a cut after this token is worth this much pause (punctuation)
};

std::string join(const std::vector<Token>& tokens, size_t begin, size_t end)
{
    std::string text;
    for (size_t i = begin; i < end; ++i) {
        if (i > begin && tokens[i].spaceBefore) {
            text += ' ';
        }
        text += tokens[i].text;
    }
    return text;
}

// Break positions: byte offsets of the spaces, and of the starts of wide characters
// (text without spaces breaks between any two of those).
std::vector<size_t> breakPoints(const std::vector<CodePoint>& points)
{
    std::vector<size_t> breaks;
    for (size_t i = 1; i < points.size(); ++i) {
        if (points[i].value == ' ' || (isWide(points[i].value) && points[i - 1].value != ' ')
            || (isWide(points[i - 1].value) && points[i].value != ' ')) {
            breaks.push_back(points[i].offset);
        }
    }
    return breaks;
}

std::string trimSpaces(const std::string& text)
{
    const size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) {
        return std::string();
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Lines of the text, each at most lineWidth wide where it can be, as few as the greedy fill gives.
std::vector<std::string> greedyLines(const std::string& text, int lineWidth)
{
    const std::vector<CodePoint> points = decode(text);
    std::vector<size_t> breaks = breakPoints(points);
    breaks.push_back(text.size());
    std::vector<std::string> lines;
    size_t lineStart = 0;
    size_t lastFit = 0;
    for (size_t at : breaks) {
        if (width(trimSpaces(text.substr(lineStart, at - lineStart))) <= lineWidth) {
            lastFit = at;
            continue;
        }
        const size_t cut = lastFit > lineStart ? lastFit : at;
        lines.push_back(trimSpaces(text.substr(lineStart, cut - lineStart)));
        lineStart = cut;
        lastFit = at > cut && width(trimSpaces(text.substr(cut, at - cut))) <= lineWidth ? at : cut;
    }
    if (lineStart < text.size()) {
        lines.push_back(trimSpaces(text.substr(lineStart)));
    }
    return lines;
}

// The two-line layout with the most even lines, both within the width; empty when there is none.
std::vector<std::string> evenTwoLines(const std::string& text, int lineWidth)
{
    std::vector<std::string> best;
    int bestWidest = lineWidth + 1;
    for (size_t at : breakPoints(decode(text))) {
        const std::string first = trimSpaces(text.substr(0, at));
        const std::string second = trimSpaces(text.substr(at));
        const int widest = std::max(width(first), width(second));
        if (widest < bestWidest && !first.empty() && !second.empty()) {
            bestWidest = widest;
            best = {first, second};
        }
    }
    return best;
}

std::vector<std::string> layout(const std::string& text, const Limits& limits)
{
    if (width(text) <= limits.lineWidth || limits.maxLines < 2) {
        return {text};
    }
    const std::vector<std::string> two = evenTwoLines(text, limits.lineWidth);
    return two.empty() ? greedyLines(text, limits.lineWidth) : two;
}

bool fitsScreen(const std::vector<Token>& tokens, size_t begin, size_t end, const Limits& limits)
{
    if (tokens[end - 1].endMs - tokens[begin].startMs > limits.maxDurationMs) {
        return false;
    }
    const std::vector<std::string> lines = layout(join(tokens, begin, end), limits);
    if (static_cast<int>(lines.size()) > std::max(1, limits.maxLines)) {
        return false;
    }
    return std::all_of(lines.begin(), lines.end(),
                       [&limits](const std::string& line) { return width(line) <= limits.lineWidth; });
}

// Splits tokens[begin, end) until every piece fits the screen and the time limit.
// A cut goes where the speaker paused longest, traded against even pieces.
void split(const std::vector<Token>& tokens, size_t begin, size_t end, const Limits& limits,
           std::vector<std::pair<size_t, size_t>>& pieces)
{
    if (end - begin < 2 || fitsScreen(tokens, begin, end, limits)) {
        pieces.emplace_back(begin, end);
        return;
    }
    const double total = static_cast<double>(width(join(tokens, begin, end)));
    size_t cut = begin + 1;
    double bestScore = -1e18;
    for (size_t i = begin + 1; i < end; ++i) {
        const double left = width(join(tokens, begin, i));
        const double imbalance = std::abs(left - (total - left)) / std::max(1.0, total);
        const double pause = static_cast<double>(tokens[i].startMs - tokens[i - 1].endMs + tokens[i - 1].pauseBonusMs);
        const double score = pause - 400.0 * imbalance;
        if (score > bestScore) {
            bestScore = score;
            cut = i;
        }
    }
    split(tokens, begin, cut, limits, pieces);
    split(tokens, cut, end, limits, pieces);
}

// Captions from tokens cut into sentences at the given ends (exclusive indexes, ascending).
std::vector<Utterance> captions(const std::vector<Token>& tokens, const std::vector<size_t>& sentenceEnds,
                                const Limits& limits)
{
    std::vector<std::pair<size_t, size_t>> pieces;
    size_t begin = 0;
    for (size_t end : sentenceEnds) {
        if (end > begin) {
            split(tokens, begin, end, limits, pieces);
        }
        begin = end;
    }
    std::vector<Utterance> result;
    for (const auto& piece : pieces) {
        Utterance caption;
        caption.startMs = tokens[piece.first].startMs;
        caption.endMs = std::max(tokens[piece.second - 1].endMs, caption.startMs);
        std::string text;
        for (const std::string& line : layout(join(tokens, piece.first, piece.second), limits)) {
            text += (text.empty() ? "" : "\n") + line;
        }
        caption.text = text;
        result.push_back(caption);
    }
    // Long enough to be read, never past the next caption's start nor the longest time.
    for (size_t i = 0; i < result.size(); ++i) {
        Utterance& caption = result[i];
        int64_t end = std::min(std::max(caption.endMs, caption.startMs + limits.minDurationMs),
                               caption.startMs + limits.maxDurationMs);
        if (i + 1 < result.size()) {
            end = std::min(end, result[i + 1].startMs);
        }
        caption.endMs = std::max(end, caption.startMs);
    }
    return result;
}

std::string capitalized(std::string word)
{
    if (!word.empty() && word[0] >= 'a' && word[0] <= 'z') {
        word[0] = static_cast<char>(word[0] - 'a' + 'A');
    }
    return word;
}

bool isPronounI(const std::string& word)
{
    return word == "i" || word == "i'm" || word == "i'll" || word == "i've" || word == "i'd";
}

int64_t punctuationBonus(const std::string& word)
{
    const auto endsWith = [&word](const char* tail) {
        const std::string end(tail);
        return word.size() >= end.size() && word.compare(word.size() - end.size(), end.size(), end) == 0;
    };
    for (const char* stop : {".", "?", "!", "\u3002", "\uff1f", "\uff01"}) {
        if (endsWith(stop)) {
            return 600;
        }
    }
    for (const char* pause : {",", ";", ":", "\uff0c", "\u3001"}) {
        if (endsWith(pause)) {
            return 250;
        }
    }
    return 0;
}

} // namespace

int width(const std::string& text)
{
    int columns = 0;
    for (const CodePoint& point : decode(text)) {
        columns += isWide(point.value) ? 2 : 1;
    }
    return columns;
}

std::string breakLines(const std::string& text, const Limits& limits)
{
    std::string joined;
    for (const std::string& line : layout(text, limits)) {
        joined += (joined.empty() ? "" : "\n") + line;
    }
    return joined;
}

std::vector<Utterance> segment(const std::vector<Word>& input, const Limits& limits)
{
    std::vector<Token> tokens;
    for (const Word& word : input) {
        const std::string text = isFiller(word.text) ? std::string() : stripVariant(word.text);
        if (!text.empty()) {
            tokens.push_back({text, word.startMs, word.endMs, true, 0});
        }
    }
    std::vector<size_t> sentenceEnds;
    for (size_t i = 1; i <= tokens.size(); ++i) {
        if (i == tokens.size() || tokens[i].startMs - tokens[i - 1].endMs >= limits.sentencePauseMs) {
            sentenceEnds.push_back(i);
        }
    }
    size_t sentenceStart = 0;
    for (size_t end : sentenceEnds) {
        for (size_t i = sentenceStart; i < end; ++i) {
            Token& token = tokens[i];
            if (i == sentenceStart || isPronounI(token.text)) {
                token.text = capitalized(token.text);
            }
        }
        tokens[end - 1].text += '.';
        sentenceStart = end;
    }
    return captions(tokens, sentenceEnds, limits);
}

std::vector<Utterance> fit(const std::vector<Utterance>& segments, const Limits& limits)
{
    std::vector<Token> tokens;
    std::vector<size_t> ends;
    for (const Utterance& segment : segments) {
        // Words, or the characters of text written without spaces, with the
        // segment's time shared out by their width.
        std::vector<Token> pieces;
        std::string word;
        bool wordSpace = true;    // the word being built follows a space
        bool pendingSpace = true; // a space came since the last piece
        const auto flush = [&pieces, &word, &wordSpace]() {
            if (!word.empty()) {
                pieces.push_back({word, 0, 0, wordSpace, punctuationBonus(word)});
                word.clear();
            }
        };
        for (const CodePoint& point : decode(segment.text)) {
            const std::string character = segment.text.substr(point.offset, point.length);
            if (point.value == ' ' || point.value == '\n' || point.value == '\t') {
                flush();
                pendingSpace = true;
            } else if (isWide(point.value)) {
                flush();
                pieces.push_back({character, 0, 0, pendingSpace, punctuationBonus(character)});
                pendingSpace = false;
            } else {
                if (word.empty()) {
                    wordSpace = pendingSpace;
                    pendingSpace = false;
                }
                word += character;
            }
        }
        flush();
        if (pieces.empty()) {
            continue;
        }
        const int64_t span = std::max<int64_t>(0, segment.endMs - segment.startMs);
        int64_t total = 0;
        for (const Token& piece : pieces) {
            total += width(piece.text);
        }
        int64_t done = 0;
        for (Token& piece : pieces) {
            piece.startMs = segment.startMs + span * done / std::max<int64_t>(1, total);
            done += width(piece.text);
            piece.endMs = segment.startMs + span * done / std::max<int64_t>(1, total);
            tokens.push_back(piece);
        }
        tokens[tokens.size() - pieces.size()].spaceBefore = true;
        ends.push_back(tokens.size());
    }
    return captions(tokens, ends, limits);
}

} // namespace CaptionSegmenter
