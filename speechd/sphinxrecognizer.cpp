#include "sphinxrecognizer.h"

#include <err.h>
#include <pocketsphinx.h>

#include <algorithm>
#include <atomic>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <memory>
#include <mutex>
#include <thread>

namespace {

constexpr int kSampleRate = 16000;
constexpr size_t kFrameSamples = kSampleRate / 100; // 10 ms
// A decoder loads its model in about 0.3 s: shorter audio is not worth splitting.
constexpr size_t kMinPieceFrames = 15 * 100;
// Long audio is cut into pieces of about this length, handed to the decoders in turn.
constexpr size_t kTargetPieceFrames = 120 * 100;
// Each piece after the first starts this early: the decoder's noise and
// cepstral estimates settle on audio it then throws away.
constexpr size_t kLeadInSamples = 2 * kSampleRate;
// Samples handed to the decoder at a time, as pocketsphinx_continuous does.
constexpr size_t kChunkSamples = 2048;

bool isEnglish(const std::string& language)
{
    if (language.size() < 2) {
        return false;
    }
    const bool en = std::tolower(static_cast<unsigned char>(language[0])) == 'e'
                    && std::tolower(static_cast<unsigned char>(language[1])) == 'n';
    return en && (language.size() == 2 || language[2] == '-' || language[2] == '_');
}

struct ConfigDeleter {
    void operator()(cmd_ln_t* config) const { cmd_ln_free_r(config); }
};
struct DecoderDeleter {
    void operator()(ps_decoder_t* decoder) const { ps_free(decoder); }
};
struct FileCloser {
    void operator()(FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<FILE, FileCloser>;

struct Decoder {
    std::unique_ptr<cmd_ln_t, ConfigDeleter> config;
    std::unique_ptr<ps_decoder_t, DecoderDeleter> decoder;
    int frameRate = 100;
};

bool makeDecoder(const SphinxRecognizer::Options& options, Decoder& out, std::string& error)
{
    std::vector<std::pair<std::string, std::string>> args = SphinxRecognizer::tunedArgs();
    if (!options.modelDir.empty()) {
        args.emplace_back("-hmm", options.modelDir + "/en-us");
        args.emplace_back("-lm", options.modelDir + "/en-us.lm.bin");
        args.emplace_back("-dict", options.modelDir + "/cmudict-en-us.dict");
    }
    args.insert(args.end(), options.decoderArgs.begin(), options.decoderArgs.end());
    // The library's log is one global file: "-logfn" would make every new
    // decoder close the file the others are writing to (a crash or a hang
    // when two recognise at once). It is switched off once, for all of them.
    static std::once_flag quiet;
    std::call_once(quiet, [] { err_set_logfp(nullptr); });
    std::vector<char*> argv;
    for (auto& arg : args) {
        argv.push_back(&arg.first[0]);
        argv.push_back(&arg.second[0]);
    }
    out.config.reset(cmd_ln_parse_r(nullptr, ps_args(), static_cast<int32>(argv.size()), argv.data(), FALSE));
    if (!out.config) {
        error = "The speech model could not be configured.";
        return false;
    }
    if (options.modelDir.empty()) {
        ps_default_search_args(out.config.get());
    }
    // ps_init takes its own reference to the configuration.
    out.decoder.reset(ps_init(out.config.get()));
    if (!out.decoder) {
        error = "The English speech model could not be loaded; is pocketsphinx-en-us installed?";
        return false;
    }
    out.frameRate = cmd_ln_int32_r(out.config.get(), "-frate");
    return true;
}

// Words of the utterance just ended, at offsetMs on the audio's clock.
void collectWords(const Decoder& decoder, int64_t offsetMs, int64_t keepFromMs, std::vector<Word>& words)
{
    for (ps_seg_t* it = ps_seg_iter(decoder.decoder.get()); it; it = ps_seg_next(it)) {
        const char* text = ps_seg_word(it);
        if (!text || CaptionSegmenter::isFiller(text)) {
            continue;
        }
        int startFrame = 0;
        int endFrame = 0;
        ps_seg_frames(it, &startFrame, &endFrame);
        Word word;
        word.text = CaptionSegmenter::stripVariant(text);
        word.startMs = offsetMs + static_cast<int64_t>(startFrame) * 1000 / decoder.frameRate;
        // The end frame is the word's last one, inclusive.
        word.endMs = offsetMs + static_cast<int64_t>(endFrame + 1) * 1000 / decoder.frameRate;
        if (word.startMs >= keepFromMs) {
            words.push_back(word);
        }
    }
}

// Recognises samples [begin, end) of the file, starting to listen a little
// earlier; keeps the words that start at or after `begin`.
bool decodePiece(Decoder& decoder, FILE* input, size_t begin, size_t end, const RecognitionJob& job,
                 std::vector<Word>& words)
{
    const size_t from = begin > kLeadInSamples ? begin - kLeadInSamples : 0;
    if (std::fseek(input, static_cast<long>(from * sizeof(int16)), SEEK_SET) != 0) {
        return true; // nothing there
    }
    const int64_t offsetMs = static_cast<int64_t>(from) * 1000 / kSampleRate;
    const int64_t keepFromMs = begin == 0 ? 0 : static_cast<int64_t>(begin) * 1000 / kSampleRate;
    ps_decoder_t* ps = decoder.decoder.get();
    ps_start_stream(ps);
    ps_start_utt(ps);
    bool uttStarted = false;
    int16 buffer[kChunkSamples];
    for (size_t at = from; at < end;) {
        if (job.isCancelled()) {
            ps_end_utt(ps);
            return false;
        }
        const size_t want = std::min(kChunkSamples, end - at);
        const size_t count = std::fread(buffer, sizeof(int16), want, input);
        if (count == 0) {
            break;
        }
        at += count;
        ps_process_raw(ps, buffer, count, FALSE, FALSE);
        const bool inSpeech = ps_get_in_speech(ps);
        if (inSpeech && !uttStarted) {
            uttStarted = true;
        }
        if (!inSpeech && uttStarted) {
            ps_end_utt(ps);
            collectWords(decoder, offsetMs, keepFromMs, words);
            ps_start_utt(ps);
            uttStarted = false;
        }
    }
    ps_end_utt(ps);
    if (uttStarted && ps_get_hyp(ps, nullptr)) {
        collectWords(decoder, offsetMs, keepFromMs, words);
    }
    return true;
}

// Energy of every 10 ms frame of the file, in dB.
std::vector<float> frameEnergies(FILE* input)
{
    std::vector<float> energies;
    int16 frame[kFrameSamples];
    size_t count = 0;
    while ((count = std::fread(frame, sizeof(int16), kFrameSamples, input)) > 0) {
        double sum = 0;
        for (size_t i = 0; i < count; ++i) {
            sum += static_cast<double>(frame[i]) * frame[i];
        }
        energies.push_back(static_cast<float>(10.0 * std::log10(sum / static_cast<double>(count) + 1.0)));
    }
    return energies;
}

} // namespace

SphinxRecognizer::SphinxRecognizer()
    : SphinxRecognizer(Options())
{
}

SphinxRecognizer::SphinxRecognizer(Options options)
    : m_options(std::move(options))
{
}

std::vector<std::pair<std::string, std::string>> SphinxRecognizer::tunedArgs()
{
    // Measured on pocketsphinx-testdata's read speech (bench_speech): the
    // decoder's noise removal cost 4 to 5 points of word error rate on both
    // the recordings and the extracted MP3; a longer wait before an utterance
    // ends (0.8 s, not 0.5 s) keeps phrases whole for the language model and
    // never did worse. A heavier or lighter language weight (5.5, 8, 10), wider
    // beams and a higher voice threshold did worse or no better.
    return {{"-vad_postspeech", "80"}, {"-remove_noise", "no"}};
}

std::string SphinxRecognizer::unsupportedReason(const std::string& language) const
{
    if (isEnglish(language)) {
        return std::string();
    }
    return "The built-in speech engine recognises English (en-US) only, not \"" + language
           + "\". Choose a transcription server in Speech engine for other languages.";
}

std::vector<SphinxRecognizer::Piece> SphinxRecognizer::cutAtSilences(const std::vector<float>& energies, int count)
{
    const size_t frames = energies.size();
    if (count <= 1 || frames < 2) {
        return {Piece{0, frames}};
    }
    // Quiet: within 10 dB of the noise floor (the 10th percentile of the frames).
    std::vector<float> sorted = energies;
    std::nth_element(sorted.begin(), sorted.begin() + static_cast<long>(frames / 10), sorted.end());
    const float quiet = sorted[frames / 10] + 10.0f;
    std::vector<size_t> cuts;
    const size_t span = frames / static_cast<size_t>(count);
    for (int k = 1; k < count; ++k) {
        const size_t target = span * static_cast<size_t>(k);
        const size_t low = std::max(cuts.empty() ? 1 : cuts.back() + 1, target - span / 3);
        const size_t high = std::min(frames - 1, target + span / 3);
        size_t best = target;
        size_t bestRun = 0;
        float quietest = 1e30f;
        size_t run = 0;
        for (size_t i = low; i <= high; ++i) {
            run = energies[i] < quiet ? run + 1 : 0;
            // The middle of the longest quiet stretch; else the quietest frame.
            if (run > bestRun) {
                bestRun = run;
                best = i - run / 2;
            } else if (bestRun == 0 && energies[i] < quietest) {
                quietest = energies[i];
                best = i;
            }
        }
        if (best > (cuts.empty() ? 0 : cuts.back()) && best < frames) {
            cuts.push_back(best);
        }
    }
    std::vector<Piece> pieces;
    size_t begin = 0;
    for (size_t cut : cuts) {
        pieces.push_back(Piece{begin, cut});
        begin = cut;
    }
    pieces.push_back(Piece{begin, frames});
    return pieces;
}

bool SphinxRecognizer::recognizeWords(const RecognitionJob& job, std::vector<Word>& words, std::string& error)
{
    File probe(std::fopen(job.pcmPath.c_str(), "rb"));
    if (!probe) {
        return true; // ffmpeg wrote nothing: an audio stream without samples
    }
    const std::vector<float> energies = frameEnergies(probe.get());
    probe.reset();
    const size_t frames = energies.size();

    const int cores = std::max(1u, std::thread::hardware_concurrency());
    const int decoders = std::max(1, std::min<int>(m_options.decoders > 0 ? m_options.decoders : cores,
                                                   static_cast<int>(frames / kMinPieceFrames)));
    const int pieceCount = std::max(decoders, static_cast<int>((frames + kTargetPieceFrames - 1) / kTargetPieceFrames));
    const std::vector<Piece> pieces = cutAtSilences(energies, decoders > 1 ? pieceCount : 1);

    std::mutex mutex;
    std::atomic<size_t> next{0};
    std::vector<std::vector<Word>> results(pieces.size());
    std::string failure;
    bool cancelled = false;
    const auto work = [&]() {
        Decoder decoder;
        std::string problem;
        File input(std::fopen(job.pcmPath.c_str(), "rb"));
        if (!makeDecoder(m_options, decoder, problem) || !input) {
            std::lock_guard<std::mutex> lock(mutex);
            failure = problem.empty() ? "The decoded audio could not be read." : problem;
            return;
        }
        for (size_t i = next++; i < pieces.size(); i = next++) {
            {
                std::lock_guard<std::mutex> lock(mutex);
                if (!failure.empty() || cancelled) {
                    return;
                }
            }
            if (!decodePiece(decoder, input.get(), pieces[i].begin * kFrameSamples, pieces[i].end * kFrameSamples,
                             job, results[i])) {
                std::lock_guard<std::mutex> lock(mutex);
                cancelled = true;
                return;
            }
        }
    };
    std::vector<std::thread> threads;
    for (int i = 1; i < decoders; ++i) {
        threads.emplace_back(work);
    }
    work();
    for (std::thread& thread : threads) {
        thread.join();
    }
    if (cancelled || job.isCancelled()) {
        error = "The recognition was cancelled.";
        return false;
    }
    if (!failure.empty()) {
        error = failure;
        return false;
    }
    for (const std::vector<Word>& piece : results) {
        words.insert(words.end(), piece.begin(), piece.end());
    }
    return true;
}

bool SphinxRecognizer::recognize(const RecognitionJob& job, std::vector<Utterance>& utterances, std::string& error)
{
    std::vector<Word> words;
    if (!recognizeWords(job, words, error)) {
        return false;
    }
    utterances = CaptionSegmenter::segment(words, m_options.limits);
    return true;
}
