#include "subtitlefile.h"

#include "logcategories.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

bool SubtitleFile::read(const QString& path, QByteArray* bytes, QString* error)
{
    const QString name = QFileInfo(path).fileName();
    auto fail = [&](const QString& text, const QString& detail) {
        qCDebug(lcCaptions).noquote() << "Failed to open the file" << path << detail;
        if (error) {
            *error = text;
        }
        return false;
    };

    // O_NONBLOCK: opening a named pipe must not wait for a writer. The type is
    // checked on the opened file, so a link swapped in between cannot slip past.
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        return fail(tr("The subtitle file \"%1\" could not be opened.").arg(name), QString::fromLocal8Bit(std::strerror(errno)));
    }
    struct stat info;
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        const bool folder = S_ISDIR(info.st_mode);
        ::close(fd);
        return folder ? fail(tr("\"%1\" is a folder, not a subtitle file.").arg(name), QStringLiteral("(a folder)"))
                      : fail(tr("\"%1\" is not an ordinary file (a device, pipe or socket): it cannot be read "
                                "as subtitles.")
                                 .arg(name),
                             QStringLiteral("(not a regular file)"));
    }
    const QString limit = QString::number(kMaxBytes / (1024 * 1024));
    const QString tooLarge
        = tr("\"%1\" is too large to be a subtitle file: subtitle files of up to %2 MB can be loaded.").arg(name, limit);
    if (info.st_size > kMaxBytes) {
        ::close(fd);
        return fail(tooLarge, QStringLiteral("(too large: %1)").arg(info.st_size));
    }
    QFile file;
    if (!file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        return fail(tr("The subtitle file \"%1\" could not be opened.").arg(name), file.errorString());
    }
    // The size may have changed since fstat (a growing file): read one byte past the bound to know.
    QByteArray data = file.read(kMaxBytes + 1);
    if (data.size() > kMaxBytes) {
        return fail(tooLarge, QStringLiteral("(grew past the limit)"));
    }
    if (file.error() != QFileDevice::NoError) {
        return fail(tr("The subtitle file \"%1\" could not be opened.").arg(name), file.errorString());
    }
    if (bytes) {
        *bytes = std::move(data);
    }
    return true;
}
