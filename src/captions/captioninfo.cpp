#include "captioninfo.h"

CaptionInfo::~CaptionInfo()
{
    delete captionStyle;
    delete captionEdit;
}

CaptionInfo::CaptionInfo(const CaptionInfo& other)
{
    *this = other;
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
