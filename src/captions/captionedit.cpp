#include "captionedit.h"

#include "captionstyle.h"

namespace {
// Style numbers may be written as decimals ("20.5"); a missing or garbled one
// keeps the default rather than giving an invisible caption.
int styleNumber(const QString& text, int fallback)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (!ok || value < 0 || value > 10000) {
        return fallback;
    }
    return static_cast<int>(value);
}
} // namespace

CaptionEdit* CaptionEdit::fromStyle(const CaptionStyle& style, const QString& text)
{
    auto* edit = new CaptionEdit;
    const CaptionEdit defaults;
    edit->fontSize = styleNumber(style.fontsize, defaults.fontSize);
    edit->border = styleNumber(style.outline, defaults.border);
    edit->x = 192;
    edit->y = 268;
    edit->text = text;
    return edit;
}
