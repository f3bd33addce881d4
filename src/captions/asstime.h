#ifndef ASSTIME_H
#define ASSTIME_H

#include <QString>

// Caption times as ASS text, "H:M:S.hh": hours, minutes, seconds and
// hundredths, none zero-padded.
class AssTime
{
public:
    // Milliseconds to text, truncated to hundredths; negative times read as 0.
    static QString format(int ms);
    // Text to milliseconds; the digits after the point count hundredths
    // whatever their number, as renderers read them. -1 when unreadable.
    static int parse(const QString& text);
    // Milliseconds as an SRT time, "HH:MM:SS,mmm"; negative times read as 0.
    static QString formatSrt(int ms);
};

#endif // ASSTIME_H
