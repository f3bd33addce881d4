#ifndef SUBTITLEENCODING_H
#define SUBTITLEENCODING_H

#include <QByteArray>
#include <QString>

// Character set of subtitle files from the wild. Most are UTF-8; older ones
// come in a legacy code page (Latin-1, Windows-1252, GBK, Big5, ...), which
// ffmpeg refuses unless told, and which a plain UTF-8 read would mangle.
class SubtitleEncoding
{
public:
    // Charset name (iconv spelling, also known to QTextCodec) of bytes that are
    // neither UTF-8 nor marked by a Unicode byte-order mark; empty otherwise.
    // Undetectable legacy text is taken as Windows-1252.
    static QByteArray detectLegacy(const QByteArray& bytes);

    // Same for the start of a file; empty when it cannot be read.
    static QByteArray detectLegacyFile(const QString& path);

    // "UTF-32LE", "UTF-32BE", "UTF-16LE" or "UTF-16BE" for text in one of
    // those without a byte-order mark (told by where its zero bytes fall);
    // empty otherwise.
    static QByteArray detectWideUnicode(const QByteArray& bytes);

    // Text of the bytes: Unicode by BOM or by the pattern of its zero bytes,
    // else UTF-8 when valid, else the detected legacy charset. A leading BOM
    // is not part of the text.
    static QString decode(const QByteArray& bytes);

private:
    static bool hasUnicodeBom(const QByteArray& bytes);
    static bool isValidUtf8(const QByteArray& bytes);
};

#endif // SUBTITLEENCODING_H
