#ifndef CAPTIONEDIT_H
#define CAPTIONEDIT_H

#include <QColor>
#include <QMetaType>
#include <QString>

// Position, size, border, shadow and colours of a caption as edited in the
// player. x/y live in the 384x288 script space a renderer assumes when the
// script states no play resolution; 192,268 is its bottom-centre anchor.
class CaptionStyle;

class CaptionEdit
{
public:
    // A new record for a caption of that style: the defaults, with the style's
    // font size and outline, and the caption's text.
    static CaptionEdit* fromStyle(const CaptionStyle& style, const QString& text);

    int x = 192;
    int y = 268;
    int fontSize = 18;
    int border = 1;
    int shadow = 1;
    QColor fontColor = Qt::white;
    QColor borderColor = Qt::black;
    QColor shadowColor = Qt::black;
    bool isChange = false;
    QString text;
};

Q_DECLARE_METATYPE(CaptionEdit)

#endif // CAPTIONEDIT_H
