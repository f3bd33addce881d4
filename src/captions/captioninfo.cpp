#include "captioninfo.h"

#include "asstime.h"

#include <atomic>

namespace {
std::atomic<int> g_liveRecords{0};
} // namespace

CaptionInfo::CaptionInfo()
{
    ++g_liveRecords;
}

CaptionInfo::~CaptionInfo()
{
    delete captionStyle;
    delete captionEdit;
    --g_liveRecords;
}

CaptionInfo::CaptionInfo(const CaptionInfo& other)
{
    ++g_liveRecords;
    *this = other;
}

int CaptionInfo::liveCount()
{
    return g_liveRecords.load();
}

void CaptionInfo::setTimes(const QString& startText, const QString& endText)
{
    start = startText;
    end = endText;
    m_startMs = AssTime::parse(startText);
    m_endMs = AssTime::parse(endText);
}

void CaptionInfo::setTimesMs(int startMs, int endMs)
{
    setTimes(AssTime::format(startMs), AssTime::format(endMs));
}

CaptionInfo& CaptionInfo::operator=(const CaptionInfo& other)
{
    if (this == &other) {
        return *this;
    }
    index = other.index;
    type = other.type;
    layer = other.layer;
    start = other.start;
    end = other.end;
    m_startMs = other.m_startMs;
    m_endMs = other.m_endMs;
    style = other.style;
    actor = other.actor;
    marginL = other.marginL;
    marginR = other.marginR;
    marginV = other.marginV;
    effect = other.effect;
    text = other.text;
    initialText = other.initialText;
    line = other.line;
    editMarks = other.editMarks;
    // The style and edit records are owned: copy them deeply.
    delete captionStyle;
    captionStyle = other.captionStyle ? new CaptionStyle(*other.captionStyle) : nullptr;
    delete captionEdit;
    captionEdit = other.captionEdit ? new CaptionEdit(*other.captionEdit) : nullptr;
    isInsert = other.isInsert;
    isStyleChanged = other.isStyleChanged;
    isPositionChanged = other.isPositionChanged;
    isCheck = other.isCheck;
    isShow = other.isShow;
    return *this;
}
