#ifndef SUBTITLECONVERTER_H
#define SUBTITLECONVERTER_H

#include <QCoreApplication>
#include <QString>

#include <functional>

// Turns an SRT file into an ASS file with ffmpeg and gives it the program's own
// header and default style.
class SubtitleConverter
{
    Q_DECLARE_TR_FUNCTIONS(SubtitleConverter)
public:
    // The converted file's path ("<temp>/Glimmer/<base>.ass"), or empty. *error
    // receives a text for the user whenever the conversion went wrong, also
    // when ffmpeg failed but left a file of that name behind.
    // The SRT is read as SubtitleFile reads (regular files only, bounded) and
    // handed to ffmpeg as UTF-8 whatever its encoding. *sourceCues receives the
    // number of timed cues in the SRT, to compare with the events read back.
    // stop() is asked now and then; returning true kills ffmpeg.
    static QString srtToAss(const QString& srtPath, QString* error = nullptr, int* sourceCues = nullptr,
                            const std::function<bool()>& stop = std::function<bool()>());
    // Where srtToAss writes the conversion of srtPath.
    static QString outputPath(const QString& srtPath);
    // Cues of SRT text: timing lines ("00:00:01,000 --> 00:00:02,000") with text
    // on the next line (ffmpeg skips a cue without text).
    static int countCues(const QString& text);
};

#endif // SUBTITLECONVERTER_H
