#ifndef CAPTIONINFO_H
#define CAPTIONINFO_H

#include "captionedit.h"
#include "captionstyle.h"

#include <QList>
#include <QMetaType>
#include <QPair>
#include <QString>

// One caption. CaptionManager owns every record; the panels share the same
// pointers and drop them when the manager announces a replacement.
class CaptionInfo
{
public:
    CaptionInfo();
    ~CaptionInfo();
    CaptionInfo(const CaptionInfo& other);
    CaptionInfo& operator=(const CaptionInfo& other);

    // Sets start and end as ASS text and reads their milliseconds once.
    void setTimes(const QString& startText, const QString& endText);
    // Same from milliseconds (the text is truncated to hundredths).
    void setTimesMs(int startMs, int endMs);
    // Start and end in milliseconds as a renderer reads the text; -1 when unreadable.
    int startMs() const { return m_startMs; }
    int endMs() const { return m_endMs; }

    // Records alive in the process (a reload must not leave old ones behind).
    static int liveCount();

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

private:
    int m_startMs = -1;
    int m_endMs = -1;
};

Q_DECLARE_METATYPE(CaptionInfo)
Q_DECLARE_METATYPE(CaptionInfo*)

#endif // CAPTIONINFO_H
