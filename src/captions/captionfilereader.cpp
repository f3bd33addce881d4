#include "captionfilereader.h"

#include "captioninfo.h"
#include "logcategories.h"
#include "subtitleencoding.h"
#include "subtitlefile.h"

#include <QDebug>
#include <QFileInfo>

CaptionFileContent::CaptionFileContent(CaptionFileContent&& other) noexcept
{
    *this = std::move(other);
}

CaptionFileContent& CaptionFileContent::operator=(CaptionFileContent&& other) noexcept
{
    if (this != &other) {
        qDeleteAll(styles);
        qDeleteAll(captions);
        path = std::move(other.path);
        readable = other.readable;
        cancelled = other.cancelled;
        error = std::move(other.error);
        styles = std::move(other.styles);
        captions = std::move(other.captions);
        lines = std::move(other.lines);
        other.styles.clear();
        other.captions.clear();
    }
    return *this;
}

CaptionFileContent::~CaptionFileContent()
{
    qDeleteAll(styles);
    qDeleteAll(captions);
}

CaptionFileContent CaptionFileReader::read(const QString& path)
{
    return read(path, AssReader::Control());
}

CaptionFileContent CaptionFileReader::read(const QString& path, const AssReader::Control& control)
{
    CaptionFileContent content;
    content.path = path;
    QByteArray bytes;
    if (!SubtitleFile::read(path, &bytes, &content.error)) {
        return content;
    }
    // Line ends (LF, CRLF, lone CR) and the character set are handled by the reader and the decoder.
    const QString text = SubtitleEncoding::decode(bytes);
    bytes.clear();
    switch (AssReader::read(text, content.styles, content.captions, content.lines, control)) {
    case AssReader::Done:
        content.readable = true;
        break;
    case AssReader::Cancelled:
        content.cancelled = true;
        break;
    case AssReader::TooManyEvents:
        qCDebug(lcCaptions).noquote() << "Failed to open the file" << path << "(more than" << control.maxEvents << "events)";
        content.error = tr("\"%1\" holds more than %2 captions. To keep memory in bounds, at most %2 captions "
                           "are loaded from one file: split it into parts.")
                            .arg(QFileInfo(path).fileName(), QString::number(control.maxEvents));
        break;
    }
    return content;
}
