#include "sphinxrecognizer.h"

#include "captionsegmenter.h"

#include <pocketsphinx.h>

#include <cctype>
#include <cstdio>
#include <memory>

namespace {

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

void collectWords(ps_decoder_t* decoder, int frameRate, std::vector<Word>& words)
{
    for (ps_seg_t* it = ps_seg_iter(decoder); it; it = ps_seg_next(it)) {
        int startFrame = 0;
        int endFrame = 0;
        ps_seg_frames(it, &startFrame, &endFrame);
        Word word;
        word.text = ps_seg_word(it);
        word.startMs = static_cast<int64_t>(startFrame) * 1000 / frameRate;
        // The end frame is the word's last one, inclusive.
        word.endMs = static_cast<int64_t>(endFrame + 1) * 1000 / frameRate;
        words.push_back(word);
    }
}

} // namespace

SphinxRecognizer::SphinxRecognizer(std::string modelDir)
    : m_modelDir(std::move(modelDir))
{
}

std::string SphinxRecognizer::unsupportedReason(const std::string& language) const
{
    if (isEnglish(language)) {
        return std::string();
    }
    return "The local speech service has no model for the language \"" + language
           + "\"; it recognises English (en-US) only. Connect a transcription server "
             "to the service for other languages.";
}

bool SphinxRecognizer::recognizeWords(const RecognitionJob& job, std::vector<Word>& words,
                                      std::string& error)
{
    std::unique_ptr<cmd_ln_t, ConfigDeleter> config;
    if (m_modelDir.empty()) {
        config.reset(cmd_ln_init(nullptr, ps_args(), TRUE, "-logfn", "/dev/null", nullptr));
        if (config) {
            ps_default_search_args(config.get());
        }
    } else {
        const std::string hmm = m_modelDir + "/en-us";
        const std::string lm = m_modelDir + "/en-us.lm.bin";
        const std::string dict = m_modelDir + "/cmudict-en-us.dict";
        config.reset(cmd_ln_init(nullptr, ps_args(), TRUE, "-hmm", hmm.c_str(), "-lm", lm.c_str(),
                                 "-dict", dict.c_str(), "-logfn", "/dev/null", nullptr));
    }
    if (!config) {
        error = "The speech model could not be configured.";
        return false;
    }
    // ps_init takes its own reference to the configuration.
    std::unique_ptr<ps_decoder_t, DecoderDeleter> decoder(ps_init(config.get()));
    if (!decoder) {
        error = "The English speech model could not be loaded; is pocketsphinx-en-us installed?";
        return false;
    }
    const int frameRate = cmd_ln_int32_r(config.get(), "-frate");

    std::unique_ptr<FILE, FileCloser> input(std::fopen(job.pcmPath.c_str(), "rb"));
    if (!input) {
        // ffmpeg wrote nothing: an audio stream without samples.
        return true;
    }

    // Same chunking and utterance breaks as pocketsphinx_continuous.
    int16 buffer[2048];
    size_t count = 0;
    bool uttStarted = false;
    ps_start_utt(decoder.get());
    while ((count = std::fread(buffer, sizeof(int16), 2048, input.get())) > 0) {
        if (job.isCancelled()) {
            ps_end_utt(decoder.get());
            error = "The recognition was cancelled.";
            return false;
        }
        ps_process_raw(decoder.get(), buffer, count, FALSE, FALSE);
        const bool inSpeech = ps_get_in_speech(decoder.get());
        if (inSpeech && !uttStarted) {
            uttStarted = true;
        }
        if (!inSpeech && uttStarted) {
            ps_end_utt(decoder.get());
            collectWords(decoder.get(), frameRate, words);
            ps_start_utt(decoder.get());
            uttStarted = false;
        }
    }
    ps_end_utt(decoder.get());
    if (uttStarted && ps_get_hyp(decoder.get(), nullptr)) {
        collectWords(decoder.get(), frameRate, words);
    }
    return true;
}

bool SphinxRecognizer::recognize(const RecognitionJob& job, std::vector<Utterance>& utterances,
                                 std::string& error)
{
    std::vector<Word> words;
    if (!recognizeWords(job, words, error)) {
        return false;
    }
    utterances = CaptionSegmenter::segment(words);
    return true;
}
