#include "clioptions.h"

#include "appconfig.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace {
bool readInt(const QString& text, int* value)
{
    bool ok = false;
    *value = text.trimmed().toInt(&ok);
    return ok;
}

// "png", "JPG", "jpeg" -> the output format constant; empty when unknown.
QString formatFromName(const QString& name)
{
    const QString lower = name.toLower();
    if (lower == QLatin1String("png")) {
        return AppConfig::FORMAT_PNG;
    }
    if (lower == QLatin1String("jpg") || lower == QLatin1String("jpeg")) {
        return AppConfig::FORMAT_JPG;
    }
    if (lower == QLatin1String("webp")) {
        return AppConfig::FORMAT_WEBP;
    }
    return QString();
}
} // namespace

QString CliOptions::helpText()
{
    return QStringLiteral(
        "Usage: glimmer-cli VIDEO [--subtitles FILE] [--captions 1-5,9 | --search TEXT]\n"
        "                   [--layout vertical|horizontal|grid] [--space N | --bands auto] [--columns N]\n"
        "                   [--scale PERCENT] [--format png|jpg|webp] [-o OUT | --frames-dir DIR]\n"
        "                   [--force] [--quiet]\n"
        "       glimmer-cli VIDEO --transcribe [--language CODE] -o OUT.srt [--force] [--quiet]\n"
        "\n"
        "Takes the frame at the start of every chosen caption, with the caption burnt in,\n"
        "and stitches the frames into one picture (-o) or writes each as its own file\n"
        "(--frames-dir). Needs no display.\n"
        "\n"
        "  --subtitles FILE   ASS or SRT subtitles in any encoding (default: the video's\n"
        "                     own subtitle track)\n"
        "  --captions LIST    1-based caption numbers and ranges, such as 1-5,9 (default: all)\n"
        "  --search TEXT      the captions whose text contains TEXT (any letter case)\n"
        "  --layout KIND      vertical (default), horizontal or grid\n"
        "  --space N          pixels between frames (default 0); a negative space keeps only\n"
        "                     the bottom (vertical) or right-hand (horizontal) band of every\n"
        "                     frame after the first\n"
        "  --bands auto       keep of every frame after the first only the band its caption\n"
        "                     occupies (vertical and horizontal layouts)\n"
        "  --columns N        columns of the grid layout (default 2)\n"
        "  --scale PERCENT    size of the stitched picture (default 100)\n"
        "  --format FORMAT    png, jpg or webp (default: from OUT's suffix, else png)\n"
        "  -o, --output OUT   write the stitched picture to OUT\n"
        "  --frames-dir DIR   write every frame as DIR/<video name>_<n>.<format>\n"
        "  --transcribe       recognise the video's speech and write the captions to OUT\n"
        "                     (.srt or .ass, by its suffix), as Auto captions does\n"
        "  --language CODE    the language spoken: en-US (default), es-MX, fr-FR, zh-CN,\n"
        "                     yue, ko-KR, ja-JP or ru-RU; the speech engine must know it\n"
        "  --force            replace files that already exist\n"
        "  --quiet            print no progress\n"
        "  -h, --help         show this help and exit\n"
        "  --version          show the version and exit\n"
        "\n"
        "Exit status: 0 done, 1 failed (the reason on standard error), 2 wrong usage.\n");
}

bool CliOptions::parseCaptionList(const QString& text, QList<int>* numbers, QString* error)
{
    static const QRegularExpression item(QStringLiteral("^\\s*(\\d{1,9})\\s*(?:-\\s*(\\d{1,9})\\s*)?$"));
    numbers->clear();
    const QStringList parts = text.split(QLatin1Char(','));
    for (const QString& part : parts) {
        const QRegularExpressionMatch match = item.match(part);
        if (!match.hasMatch()) {
            *error = QStringLiteral("--captions: \"%1\" is not a caption number or range (such as 1-5,9)")
                         .arg(part.trimmed());
            return false;
        }
        const int first = match.captured(1).toInt();
        const int last = match.captured(2).isEmpty() ? first : match.captured(2).toInt();
        if (first < 1 || last < first) {
            *error = QStringLiteral("--captions: \"%1\" is not a range of captions counted from 1").arg(part.trimmed());
            return false;
        }
        if (last - first > 1000000) {
            *error = QStringLiteral("--captions: \"%1\" is too long a range").arg(part.trimmed());
            return false;
        }
        for (int n = first; n <= last; ++n) {
            numbers->append(n);
        }
    }
    std::sort(numbers->begin(), numbers->end());
    numbers->erase(std::unique(numbers->begin(), numbers->end()), numbers->end());
    return true;
}

CliOptions CliOptions::parseTranscribe(const QCommandLineParser& parser, CliOptions options)
{
    options.transcribe = true;
    for (const QString& name : {QStringLiteral("subtitles"), QStringLiteral("captions"), QStringLiteral("search"),
                                QStringLiteral("layout"), QStringLiteral("space"), QStringLiteral("bands"),
                                QStringLiteral("columns"), QStringLiteral("scale"), QStringLiteral("format"),
                                QStringLiteral("frames-dir")}) {
        if (parser.isSet(name)) {
            options.action = UsageError;
            options.error = QStringLiteral("--%1 makes pictures; --transcribe writes captions").arg(name);
            return options;
        }
    }
    if (parser.values(QStringLiteral("language")).size() > 1) {
        options.action = UsageError;
        options.error = QStringLiteral("--language is given more than once");
        return options;
    }
    if (parser.isSet(QStringLiteral("language"))) {
        options.language = parser.value(QStringLiteral("language")).trimmed();
    }
    options.output = parser.value(QStringLiteral("output"));
    const QString suffix = QFileInfo(options.output).suffix().toLower();
    if (options.output.isEmpty()) {
        options.action = UsageError;
        options.error = QStringLiteral("--transcribe needs -o OUT.srt (or .ass)");
    } else if (suffix != QLatin1String("srt") && suffix != QLatin1String("ass")) {
        options.action = UsageError;
        options.error = QStringLiteral("cannot write captions as \"%1\": use a .srt or .ass file").arg(options.output);
    }
    return options;
}

CliOptions CliOptions::parse(const QStringList& arguments)
{
    CliOptions options;
    auto usage = [&options](const QString& text) {
        options.action = UsageError;
        options.error = text;
        return options;
    };

    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption subtitles(QStringLiteral("subtitles"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption captions(QStringLiteral("captions"), QString(), QStringLiteral("LIST"));
    const QCommandLineOption search(QStringLiteral("search"), QString(), QStringLiteral("TEXT"));
    const QCommandLineOption layout(QStringLiteral("layout"), QString(), QStringLiteral("KIND"));
    const QCommandLineOption space(QStringLiteral("space"), QString(), QStringLiteral("N"));
    const QCommandLineOption bands(QStringLiteral("bands"), QString(), QStringLiteral("auto"));
    const QCommandLineOption columns(QStringLiteral("columns"), QString(), QStringLiteral("N"));
    const QCommandLineOption scale(QStringLiteral("scale"), QString(), QStringLiteral("PERCENT"));
    const QCommandLineOption format(QStringLiteral("format"), QString(), QStringLiteral("FORMAT"));
    const QCommandLineOption output(QStringList{QStringLiteral("o"), QStringLiteral("output")}, QString(),
                                    QStringLiteral("OUT"));
    const QCommandLineOption framesDir(QStringLiteral("frames-dir"), QString(), QStringLiteral("DIR"));
    const QCommandLineOption force(QStringLiteral("force"));
    const QCommandLineOption quiet(QStringLiteral("quiet"));
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption version(QStringLiteral("version"));
    const QCommandLineOption transcribe(QStringLiteral("transcribe"));
    const QCommandLineOption language(QStringLiteral("language"), QString(), QStringLiteral("CODE"));
    parser.addOptions({subtitles, captions, search, layout, space, bands, columns, scale, format, output, framesDir,
                       force, quiet, help, version, transcribe, language});
    if (!parser.parse(arguments)) {
        return usage(parser.errorText());
    }
    if (parser.isSet(help)) {
        options.action = Help;
        return options;
    }
    if (parser.isSet(version)) {
        options.action = Version;
        return options;
    }
    // An option given twice is a mistake rather than a choice.
    for (const QCommandLineOption& option : {subtitles, captions, search, layout, space, bands, columns, scale,
                                             format, output, framesDir}) {
        if (parser.values(option).size() > 1) {
            return usage(QStringLiteral("--%1 is given more than once").arg(option.names().constLast()));
        }
    }

    const QStringList positional = parser.positionalArguments();
    if (positional.isEmpty()) {
        return usage(QStringLiteral("no video given"));
    }
    if (positional.size() > 1) {
        return usage(QStringLiteral("one video at a time: also got \"%1\"").arg(positional.at(1)));
    }
    options.video = positional.first();
    options.subtitles = parser.value(subtitles);
    options.force = parser.isSet(force);
    options.quiet = parser.isSet(quiet);

    if (parser.isSet(transcribe)) {
        return parseTranscribe(parser, options);
    }
    if (parser.isSet(language)) {
        return usage(QStringLiteral("--language goes with --transcribe"));
    }

    if (parser.isSet(captions) && parser.isSet(search)) {
        return usage(QStringLiteral("--captions and --search cannot be combined"));
    }
    if (parser.isSet(captions) && !parseCaptionList(parser.value(captions), &options.captions, &options.error)) {
        return usage(options.error);
    }
    if (parser.isSet(search)) {
        options.search = parser.value(search);
        if (options.search.trimmed().isEmpty()) {
            return usage(QStringLiteral("--search needs a text"));
        }
    }

    if (parser.isSet(layout)) {
        const QString kind = parser.value(layout).toLower();
        if (kind == QLatin1String("vertical")) {
            options.layout = Vertical;
        } else if (kind == QLatin1String("horizontal")) {
            options.layout = Horizontal;
        } else if (kind == QLatin1String("grid")) {
            options.layout = Grid;
        } else {
            return usage(QStringLiteral("--layout must be vertical, horizontal or grid, not \"%1\"")
                             .arg(parser.value(layout)));
        }
    }
    if (parser.isSet(space) && parser.isSet(bands)) {
        return usage(QStringLiteral("--space and --bands cannot be combined"));
    }
    if (parser.isSet(space) && !readInt(parser.value(space), &options.space)) {
        return usage(QStringLiteral("--space must be a whole number of pixels, not \"%1\"").arg(parser.value(space)));
    }
    if (parser.isSet(bands)) {
        if (parser.value(bands).toLower() != QLatin1String("auto")) {
            return usage(QStringLiteral("--bands takes only \"auto\", not \"%1\"").arg(parser.value(bands)));
        }
        if (options.layout == Grid) {
            return usage(QStringLiteral("--bands auto needs --layout vertical or horizontal"));
        }
        options.autoBands = true;
    }
    if (parser.isSet(columns)) {
        if (options.layout != Grid) {
            return usage(QStringLiteral("--columns applies to --layout grid only"));
        }
        if (!readInt(parser.value(columns), &options.columns) || options.columns < 1) {
            return usage(QStringLiteral("--columns must be a whole number from 1, not \"%1\"")
                             .arg(parser.value(columns)));
        }
    }
    if (parser.isSet(scale) && (!readInt(parser.value(scale), &options.scale) || options.scale < 1)) {
        return usage(QStringLiteral("--scale must be a whole percentage from 1, not \"%1\"").arg(parser.value(scale)));
    }

    if (parser.isSet(output) == parser.isSet(framesDir)) {
        return usage(parser.isSet(output) ? QStringLiteral("-o and --frames-dir cannot be combined")
                                          : QStringLiteral("say where to write: -o OUT or --frames-dir DIR"));
    }
    options.output = parser.value(output);
    options.framesDir = parser.value(framesDir);
    if (parser.isSet(output) && options.output.isEmpty()) {
        return usage(QStringLiteral("-o needs a file name"));
    }
    if (parser.isSet(framesDir) && options.framesDir.isEmpty()) {
        return usage(QStringLiteral("--frames-dir needs a folder"));
    }
    if (parser.isSet(framesDir)) {
        for (const QCommandLineOption& option : {layout, space, bands, columns, scale}) {
            if (parser.isSet(option)) {
                return usage(QStringLiteral("--%1 shapes the stitched picture (-o); --frames-dir writes whole frames")
                                 .arg(option.names().constLast()));
            }
        }
    }

    if (parser.isSet(format)) {
        options.format = formatFromName(parser.value(format));
        if (options.format.isEmpty()) {
            return usage(QStringLiteral("--format must be png, jpg or webp, not \"%1\"").arg(parser.value(format)));
        }
    } else if (!options.output.isEmpty() && !QFileInfo(options.output).suffix().isEmpty()) {
        options.format = formatFromName(QFileInfo(options.output).suffix());
        if (options.format.isEmpty()) {
            return usage(QStringLiteral("cannot tell the format of \"%1\" from its suffix: add --format png, jpg or webp")
                             .arg(options.output));
        }
    } else {
        options.format = AppConfig::FORMAT_PNG;
    }
    return options;
}
