#ifndef SUBTITLECONVERTER_H
#define SUBTITLECONVERTER_H

#include <QCoreApplication>
#include <QString>

// Turns an SRT file into an ASS file with ffmpeg and gives it the program's own
// header and default style.
class SubtitleConverter
{
    Q_DECLARE_TR_FUNCTIONS(SubtitleConverter)
public:
    // The converted file's path ("<temp>/Glimmer/<base>.ass"), or empty. *error
    // receives a text for the user whenever the conversion went wrong, also
    // when ffmpeg failed but left a file of that name behind.
    static QString srtToAss(const QString& srtPath, QString* error = nullptr);
    // Where srtToAss writes the conversion of srtPath.
    static QString outputPath(const QString& srtPath);
};

#endif // SUBTITLECONVERTER_H
