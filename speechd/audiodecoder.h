#ifndef AUDIODECODER_H
#define AUDIODECODER_H

#include <atomic>
#include <string>

// Decodes the audio or video file a client uploaded into the raw PCM the
// recognisers read (signed 16-bit little-endian, 16 kHz, mono), with ffmpeg.
// Only the upload itself is read: container formats come from an allow-list
// (no playlists or other files that name further inputs) and no protocol but
// the local file is open to ffmpeg.
class AudioDecoder
{
public:
    explicit AudioDecoder(std::string ffmpegPath, int timeoutSeconds = 1800, int maxSeconds = 4 * 3600);

    // Returns false with a message for the user when no audio could be decoded;
    // detail then says more for the log (ffmpeg's own words, paths).
    bool decode(const std::string& input, const std::string& output, const std::atomic<bool>* cancelled,
                std::string& error, std::string& detail) const;

    const std::string& ffmpegPath() const { return m_ffmpeg; }

    static constexpr int kSampleRate = 16000;
    // ffmpeg's names of the demuxers uploads may use.
    static const char* const kAllowedFormats;

private:
    std::string m_ffmpeg;
    int m_timeoutSeconds;
    int m_maxSeconds;
};

#endif // AUDIODECODER_H
