#ifndef CAPTIONSTYLE_H
#define CAPTIONSTYLE_H

#include <QMetaType>
#include <QString>
#include <QStringList>

// One ASS "Style:" line: the 23 fields of the [V4+ Styles] Format line, trimmed,
// plus the raw comma-separated parts as they were split.
class CaptionStyle
{
public:
    QString name;
    QString fontname;
    QString fontsize;
    QString primaryColour;
    QString secondaryColour;
    QString outlineColour;
    QString backColour;
    QString bold;
    QString italic;
    QString underline;
    QString strikeOut;
    QString scaleX;
    QString scaleY;
    QString spacing;
    QString angle;
    QString borderStyle;
    QString outline;
    QString shadow;
    QString alignment;
    QString marginL;
    QString marginR;
    QString marginV;
    QString encoding;
    QStringList fields;
};

#endif // CAPTIONSTYLE_H
