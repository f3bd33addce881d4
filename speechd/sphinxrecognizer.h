#ifndef SPHINXRECOGNIZER_H
#define SPHINXRECOGNIZER_H

#include "recognizer.h"

#include <string>

// The built-in engine: pocketsphinx with its US English model. The audio is cut
// into utterances by the decoder's own voice-activity detection, exactly as the
// pocketsphinx_continuous tool does, so both give the same words and times.
class SphinxRecognizer : public Recognizer
{
public:
    // An empty folder means the model pocketsphinx was built to find.
    explicit SphinxRecognizer(std::string modelDir = std::string());

    std::string name() const override { return "pocketsphinx"; }
    std::string unsupportedReason(const std::string& language) const override;
    bool recognize(const RecognitionJob& job, std::vector<Utterance>& utterances,
                   std::string& error) override;

    // Recognition without segmentation: every token the decoder reports, fillers included.
    bool recognizeWords(const RecognitionJob& job, std::vector<Word>& words, std::string& error);

private:
    std::string m_modelDir;
};

#endif // SPHINXRECOGNIZER_H
