#ifndef CAPTIONSNAPSHOT_H
#define CAPTIONSNAPSHOT_H

#include "captioninfo.h"
#include "captionstyle.h"

#include <QByteArray>
#include <QList>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

// The captions of the open video as they stood at one moment: the records,
// the styles and lines of the loaded file, and the subtitle text the player
// showed. Copies share their strings with the originals, so a snapshot costs
// little more than the records themselves.
class CaptionSnapshot
{
public:
    using Ptr = QSharedPointer<const CaptionSnapshot>;

    // The manager's current state; shownFile is the subtitle file the player shows.
    static Ptr take(const QString& shownFile);

    // Makes it the manager's state again: the working file gets the shown
    // subtitles and "update_caption" reloads them in the player. The tick
    // of each caption is kept as the user left it.
    void restore() const;

    int count() const { return m_captions.size(); }
    const QList<CaptionInfo>& captions() const { return m_captions; }
    QByteArray shownText() const { return m_shownText; }

private:
    QList<CaptionInfo> m_captions;
    QList<CaptionStyle> m_styles;
    QStringList m_fileLines;
    QString m_assFilePath;
    QByteArray m_shownText;
    QString m_allOverride;
};

#endif // CAPTIONSNAPSHOT_H
