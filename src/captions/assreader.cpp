#include "assreader.h"

#include "asswriter.h"
#include "captioninfo.h"

#include <QHash>
#include <QStringView>

AssReader::Outcome AssReader::read(const QString& content, QList<CaptionStyle*>& styles,
                                   QList<CaptionInfo*>& captions, QStringList& lines)
{
    return read(content, styles, captions, lines, Control());
}

AssReader::Outcome AssReader::read(const QString& content, QList<CaptionStyle*>& styles,
                                   QList<CaptionInfo*>& captions, QStringList& lines, const Control& control)
{
    const int firstStyle = styles.size();
    const int firstCaption = captions.size();
    const int firstLine = lines.size();
    auto undo = [&](Outcome outcome) {
        qDeleteAll(styles.begin() + firstStyle, styles.end());
        styles.erase(styles.begin() + firstStyle, styles.end());
        qDeleteAll(captions.begin() + firstCaption, captions.end());
        captions.erase(captions.begin() + firstCaption, captions.end());
        lines.erase(lines.begin() + firstLine, lines.end());
        return outcome;
    };

    static const QString stylePrefix = QStringLiteral("Style:");
    static const QString eventsSection = QStringLiteral("[Events]");
    static const QString dialoguePrefix = QStringLiteral("Dialogue:");

    // Last style of a name wins, as when searching the list from its end.
    QHash<QString, const CaptionStyle*> stylesByName;
    bool inEvents = false;
    int counter = 0;
    const QChar* data = content.constData();
    const int size = content.size();
    int pos = 0;
    int nextReport = 0;
    while (pos < size) {
        if (control.progress && pos >= nextReport) {
            if (!control.progress(static_cast<int>(qint64(pos) * 100 / size))) {
                return undo(Cancelled);
            }
            nextReport = pos + qMax(size / 100, 64 * 1024);
        }
        // Line ends may be LF, CRLF or a lone CR.
        int end = pos;
        while (end < size && data[end] != QLatin1Char('\n') && data[end] != QLatin1Char('\r')) {
            ++end;
        }
        const QString raw = content.mid(pos, end - pos);
        pos = end;
        if (pos < size) {
            pos += (data[pos] == QLatin1Char('\r') && pos + 1 < size && data[pos + 1] == QLatin1Char('\n')) ? 2 : 1;
        }
        lines.append(raw);

        const QString line = raw.trimmed();
        if (line.startsWith(stylePrefix)) {
            CaptionStyle* style = AssWriter::parseStyleLine(line);
            styles.append(style);
            stylesByName.insert(style->name, style);
            continue;
        }
        if (line.startsWith(eventsSection)) {
            inEvents = true;
            continue;
        }
        if (!inEvents || !line.startsWith(dialoguePrefix)) {
            continue;
        }

        const int colon = dialoguePrefix.size() - 1;
        int commas[9];
        int found = 0;
        for (int i = colon + 1; i < line.size() && found < 9; ++i) {
            if (line.at(i) == QLatin1Char(',')) {
                commas[found++] = i;
            }
        }
        if (found < 9) {
            continue;
        }
        auto field = [&line, &commas, colon](int n) {
            const int from = n == 0 ? colon + 1 : commas[n - 1] + 1;
            return QStringView(line).mid(from, commas[n] - from).trimmed().toString();
        };

        if (counter >= control.maxEvents) {
            return undo(TooManyEvents);
        }
        auto* info = new CaptionInfo;
        info->index = ++counter;
        info->type = line.left(colon);
        info->layer = field(0);
        info->setTimes(field(1), field(2));
        info->style = field(3);
        info->actor = field(4);
        info->marginL = field(5);
        info->marginR = field(6);
        info->marginV = field(7);
        info->effect = field(8);
        info->text = line.mid(commas[8] + 1);
        info->initialText = info->text;
        info->line = line;
        const CaptionStyle* style = stylesByName.value(info->style, nullptr);
        info->captionStyle = style ? new CaptionStyle(*style) : new CaptionStyle;
        info->captionEdit = CaptionEdit::fromStyle(*info->captionStyle, info->text);
        captions.append(info);
    }
    return Done;
}
