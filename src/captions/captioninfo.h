#ifndef CAPTIONINFO_H
#define CAPTIONINFO_H

#include "captionedit.h"
#include "captionstyle.h"

#include <QList>
#include <QMetaType>
#include <QPair>
#include <QString>

// One caption. The manager and the panels share the same heap pointers.
class CaptionInfo
{
public:
    CaptionInfo() = default;
    ~CaptionInfo();
    CaptionInfo(const CaptionInfo& other);
    CaptionInfo& operator=(const CaptionInfo& other);

    int index = 0;
    QString type;
    QString layer;
    QString start;
    QString end;
    QString style;
    QString actor;
    QString marginL;
    QString marginR;
    QString marginV;
    QString effect;
    QString text;
    QString initialText;
    QString line;
    // (override block, text) pairs; only the first entry is used.
    QList<QPair<QString, QString>> editMarks;
    CaptionStyle* captionStyle = nullptr;
    CaptionEdit* captionEdit = nullptr;
    bool isInsert = false;
    // Copied to every caption when an edit is applied to all of them.
    bool isStyleChanged = false;
    bool isPositionChanged = false;
    bool isCheck = true;
    bool isShow = true;
};

Q_DECLARE_METATYPE(CaptionInfo)
Q_DECLARE_METATYPE(CaptionInfo*)

#endif // CAPTIONINFO_H
