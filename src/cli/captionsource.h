#ifndef CAPTIONSOURCE_H
#define CAPTIONSOURCE_H

#include <QList>
#include <QString>

class CaptionInfo;

// Brings captions into the caption store the way the window does (SRT through
// the same conversion, then the same reader) and picks the ones to capture.
class CaptionSource
{
public:
    // Loads `subtitles`, or the video's own subtitle track when it is empty.
    // Returns the ASS file the player is to render; empty with the reason in *error.
    static QString load(const QString& video, const QString& subtitles, const QString& workDir, QString* error);

    // The video's first subtitle stream written by ffmpeg into workDir, as SRT
    // (text tracks, converted like a user's SRT) or ASS (styled tracks).
    static QString extractTrack(const QString& video, const QString& workDir, QString* error);

    // The captions with these 1-based numbers, or whose shown text contains
    // `search` in any letter case, or all; empty with the reason in *error.
    static QList<CaptionInfo*> select(const QList<CaptionInfo*>& captions, const QList<int>& numbers,
                                      const QString& search, QString* error);
};

#endif // CAPTIONSOURCE_H
