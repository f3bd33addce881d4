#ifndef SUBTITLEFILE_H
#define SUBTITLEFILE_H

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

// Reads a subtitle file from the user's disk. Only regular files are read (a
// link is followed first), never more than kMaxBytes: a link to /dev/zero, a
// named pipe or a video picked by mistake is refused with a reason instead of
// blocking or filling memory. Any thread.
class SubtitleFile
{
    Q_DECLARE_TR_FUNCTIONS(SubtitleFile)
public:
    static constexpr qint64 kMaxBytes = 64 * 1024 * 1024;

    // The whole file into *bytes; false with a text for the user in *error.
    static bool read(const QString& path, QByteArray* bytes, QString* error);
};

#endif // SUBTITLEFILE_H
