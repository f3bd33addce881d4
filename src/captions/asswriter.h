#ifndef ASSWRITER_H
#define ASSWRITER_H

#include <QString>

class CaptionEdit;
class CaptionInfo;
class CaptionStyle;
class QTextStream;

// The ASS text as the program writes it: header, style lines, event lines.
class AssWriter
{
public:
    // Arial 18, white on a half-transparent black, bottom centre.
    static QString defaultStyleLine();
    // A style record from a "Style: " line (a line without the prefix is split whole).
    static CaptionStyle* parseStyleLine(const QString& line);
    static QString formatStyleLine(const CaptionStyle& style);

    // [Script Info] up to the style Format line. No PlayResX/PlayResY on
    // purpose: positions are meant in the renderer's default 384x288 space.
    static void writeHeader(QTextStream& stream);
    // The empty line, "[Events]" and the event Format line.
    static void writeEventsHeader(QTextStream& stream);
    // A generated caption's event line.
    static QString eventLine(const CaptionInfo& info);
    // An edited caption's event line: the override block stands before the text.
    static QString editedEventLine(const CaptionInfo& info, const QString& text, const QString& override);
    // "{\fs..\bord..\shad..\pos(x,y)}" of an edit.
    static QString overrideBlock(const CaptionEdit& edit);
    // A caption's text as one event line can hold it (line breaks become \N).
    static QString eventText(const QString& text);
};

#endif // ASSWRITER_H
