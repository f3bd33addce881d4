#ifndef AUDIODECODER_H
#define AUDIODECODER_H

#include <atomic>
#include <string>

// Decodes whatever audio or video file a client uploaded into the raw PCM the
// recognisers read (signed 16-bit little-endian, 16 kHz, mono), with ffmpeg.
class AudioDecoder
{
public:
    explicit AudioDecoder(std::string ffmpegPath, int timeoutSeconds = 1800);

    // Returns false with a message for the user when no audio could be decoded.
    bool decode(const std::string& input, const std::string& output, const std::atomic<bool>* cancelled,
                std::string& error) const;

    const std::string& ffmpegPath() const { return m_ffmpeg; }

    static constexpr int kSampleRate = 16000;

private:
    std::string m_ffmpeg;
    int m_timeoutSeconds;
};

#endif // AUDIODECODER_H
