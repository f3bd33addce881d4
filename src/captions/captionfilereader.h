#ifndef CAPTIONFILEREADER_H
#define CAPTIONFILEREADER_H

#include "assreader.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

class CaptionInfo;
class CaptionStyle;

// What reading one ASS file gave: the records (owned here until handed to
// CaptionManager::finishLoad, freed otherwise) or why there are none.
struct CaptionFileContent
{
    CaptionFileContent() = default;
    CaptionFileContent(CaptionFileContent&& other) noexcept;
    CaptionFileContent& operator=(CaptionFileContent&& other) noexcept;
    CaptionFileContent(const CaptionFileContent&) = delete;
    CaptionFileContent& operator=(const CaptionFileContent&) = delete;
    ~CaptionFileContent();

    QString path;
    bool readable = false;
    bool cancelled = false;
    QString error; // for the user, when not readable
    QList<CaptionStyle*> styles;
    QList<CaptionInfo*> captions;
    QStringList lines;
};

// Reads an ASS file (regular files only, bounded in size and in events) into
// caption records. Pure: it may run on any thread.
class CaptionFileReader
{
    Q_DECLARE_TR_FUNCTIONS(CaptionFileReader)
public:
    static CaptionFileContent read(const QString& path, const AssReader::Control& control);
    static CaptionFileContent read(const QString& path);
};

#endif // CAPTIONFILEREADER_H
