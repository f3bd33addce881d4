#ifndef CAPTIONEDITOR_H
#define CAPTIONEDITOR_H

#include <QObject>

class CaptionInfo;
class CaptureController;
class CaptureSource;

// Applies the user's caption edits: rewrites the working subtitle file and
// lets the capture flows re-capture the frames the edit changes.
class CaptionEditor : public QObject
{
    Q_OBJECT
public:
    CaptionEditor(CaptureSource* player, CaptureController* capture, QObject* parent = nullptr);

    // A caption's text was changed in the list; null: a tick or show state changed.
    void textEdited(CaptionInfo* caption);
    // Text, size, position, border or shadow changed on the video (isAll: for every caption).
    void styleEdited(CaptionInfo* caption, bool isAll);

signals:
    // The list row of that caption (null: every row) shows stale values.
    void captionChanged(CaptionInfo* caption);

private:
    CaptureSource* m_player;
    CaptureController* m_capture;
};

#endif // CAPTIONEDITOR_H
