#ifndef CLIOPTIONS_H
#define CLIOPTIONS_H

#include <QList>
#include <QString>
#include <QStringList>

class QCommandLineParser;

// The command line of glimmer-cli, checked as far as it can be without
// opening any file.
class CliOptions
{
public:
    enum Action { Run, Help, Version, UsageError };
    enum Layout { Grid = 0, Vertical = 1, Horizontal = 2 };

    static CliOptions parse(const QStringList& arguments);
    static QString helpText();
    // "1-5,9" -> 1..5 and 9, ascending, each once; false with the reason otherwise.
    static bool parseCaptionList(const QString& text, QList<int>* numbers, QString* error);

    Action action = Run;
    QString error; // what is wrong with the command line

    QString video;
    QString subtitles;
    QList<int> captions; // 1-based; empty means all
    QString search;
    int layout = Vertical;
    int space = 0;
    bool autoBands = false;
    int columns = 2;
    int scale = 100;
    QString format; // "PNG", "JPG" or "WEBP"
    QString output;
    QString framesDir;
    bool force = false;
    bool quiet = false;

    // --transcribe: the video's speech to a caption file (-o) instead of pictures.
    bool transcribe = false;
    QString language = QStringLiteral("en-US"); // --language, a recognition language code

private:
    static CliOptions parseTranscribe(const QCommandLineParser& parser, CliOptions options);
};

#endif // CLIOPTIONS_H
