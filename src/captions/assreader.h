#ifndef ASSREADER_H
#define ASSREADER_H

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

class CaptionInfo;
class CaptionStyle;

// Reads the text of an ASS file into caption records. Pure: it touches no
// shared state, so it may run on any thread.
class AssReader
{
public:
    // Each caption record costs about a kilobyte: this bounds a load to a few
    // hundred megabytes.
    static constexpr int kMaxEvents = 250000;

    enum Outcome { Done, TooManyEvents, Cancelled };

    // progress(percent of the text read) is called now and then; returning
    // false stops the read.
    struct Control
    {
        int maxEvents = kMaxEvents;
        std::function<bool(int percent)> progress;
    };

    // Appends every raw line to lines, every "Style:" line as a style record,
    // and every Dialogue line of the [Events] section that has all ten fields
    // as a caption record with its copy of the style of its name (the last one
    // of that name wins). The caller owns the new records. Past maxEvents
    // captions, or when stopped, nothing is added and the outcome says why.
    static Outcome read(const QString& content, QList<CaptionStyle*>& styles, QList<CaptionInfo*>& captions,
                        QStringList& lines, const Control& control);
    static Outcome read(const QString& content, QList<CaptionStyle*>& styles, QList<CaptionInfo*>& captions,
                        QStringList& lines);
};

#endif // ASSREADER_H
