#include "asstext.h"

QString AssText::readable(const QString& text)
{
    QString out;
    out.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == QLatin1Char('{')) {
            const int close = text.indexOf(QLatin1Char('}'), i + 1);
            // An unclosed brace is shown as it stands, as renderers do.
            if (close >= 0) {
                i = close;
                continue;
            }
        } else if (c == QLatin1Char('\\') && i + 1 < text.size()) {
            const QChar next = text.at(i + 1);
            if (next == QLatin1Char('N') || next == QLatin1Char('n')) {
                out.append(QLatin1Char('\n'));
                ++i;
                continue;
            }
            if (next == QLatin1Char('h')) {
                out.append(QChar(0x00A0));
                ++i;
                continue;
            }
        }
        out.append(c);
    }
    return out;
}
