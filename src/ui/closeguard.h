#ifndef CLOSEGUARD_H
#define CLOSEGUARD_H

#include <QObject>
#include <QSet>
#include <QString>

class CaptionSaveFlow;
class ImagesWidget;
class QWidget;

// What a user's close would lose: caption edits not saved since the captions
// were loaded or saved, and strip frames that were never exported. Asks
// Save / Discard / Cancel before such a close.
class CloseGuard : public QObject
{
    Q_OBJECT
public:
    CloseGuard(QWidget* window, ImagesWidget* strip, CaptionSaveFlow* saver);

    bool hasUnsavedCaptions() const;
    int unexportedFrames() const;
    // True when the window may close: nothing to lose, or the user saved or
    // chose to discard.
    bool confirmClose();

public slots:
    // The captions as they are now count as saved (loaded, opened or written).
    void markCaptionsSaved();
    // The selected frames were written by an export.
    void markSelectionExported();

private:
    QWidget* m_window;
    ImagesWidget* m_strip;
    CaptionSaveFlow* m_saver;
    QString m_savedText;
    QSet<qint64> m_exported;
};

#endif // CLOSEGUARD_H
