#ifndef ASSREADER_H
#define ASSREADER_H

#include <QList>
#include <QString>
#include <QStringList>

class CaptionInfo;
class CaptionStyle;

// Reads the text of an ASS file into caption records. Pure: it touches no
// shared state, so it may run on any thread.
class AssReader
{
public:
    // Appends every raw line to lines, every "Style:" line as a style record,
    // and every Dialogue line of the [Events] section that has all ten fields
    // as a caption record with its copy of the style of its name (the last one
    // of that name wins). The caller owns the new records.
    static void read(const QString& content, QList<CaptionStyle*>& styles, QList<CaptionInfo*>& captions,
                     QStringList& lines);
};

#endif // ASSREADER_H
