#ifndef SPHINXRECOGNIZER_H
#define SPHINXRECOGNIZER_H

#include "captionsegmenter.h"
#include "recognizer.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

// The built-in engine: pocketsphinx with its US English model. Long audio is
// cut at silences into pieces that decoders on several threads recognise side
// by side (a decoder holds its own copy of the model, about 110 MB).
class SphinxRecognizer : public Recognizer
{
public:
    struct Options {
        std::string modelDir; // empty: the model pocketsphinx was built to find
        int decoders = 0;     // 0: one per processor core
        // Extra decoder settings ("-lw", "8"), after the tuned defaults.
        std::vector<std::pair<std::string, std::string>> decoderArgs;
        CaptionSegmenter::Limits limits;
    };

    // A stretch of the audio, in samples.
    struct Piece {
        size_t begin = 0;
        size_t end = 0;
    };

    SphinxRecognizer();
    explicit SphinxRecognizer(Options options);

    std::string name() const override { return "pocketsphinx"; }
    std::vector<std::string> languages() const override { return {"en"}; }
    std::string unsupportedReason(const std::string& language) const override;
    bool recognize(const RecognitionJob& job, std::vector<Utterance>& utterances, std::string& error) override;

    // Recognition without segmentation: every word with its time, fillers dropped.
    bool recognizeWords(const RecognitionJob& job, std::vector<Word>& words, std::string& error);

    // Where to cut audio of that many 10 ms frames of the given energies (dB) into
    // about `count` pieces: in the middle of the longest quiet stretch near each
    // even cut. Returns the pieces in frames, covering everything.
    static std::vector<Piece> cutAtSilences(const std::vector<float>& frameEnergies, int count);

    // The settings every decoder starts from, tuned on read speech.
    static std::vector<std::pair<std::string, std::string>> tunedArgs();

private:
    Options m_options;
};

#endif // SPHINXRECOGNIZER_H
