#include "subtitleencoding.h"

#include <QFile>
#include <QTextCodec>

#include <uchardet/uchardet.h>

namespace {
// Enough text for the detector; subtitles repeat their character mix.
constexpr qint64 kSampleSize = 4 * 1024 * 1024;

QByteArray runDetector(const QByteArray& bytes)
{
    uchardet_t detector = uchardet_new();
    if (!detector) {
        return QByteArray();
    }
    const int length = static_cast<int>(qMin<qint64>(bytes.size(), kSampleSize));
    QByteArray charset;
    if (uchardet_handle_data(detector, bytes.constData(), static_cast<size_t>(length)) == 0) {
        uchardet_data_end(detector);
        charset = QByteArray(uchardet_get_charset(detector)).toUpper();
    }
    uchardet_delete(detector);
    return charset;
}
} // namespace

bool SubtitleEncoding::hasUnicodeBom(const QByteArray& bytes)
{
    return bytes.startsWith("\xEF\xBB\xBF") || bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF");
}

bool SubtitleEncoding::isValidUtf8(const QByteArray& bytes)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForMib(106)->toUnicode(bytes.constData(), bytes.size(), &state);
    // A sequence cut at the end of a sample is pending, not invalid.
    return state.invalidChars == 0;
}

QByteArray SubtitleEncoding::detectWideUnicode(const QByteArray& bytes)
{
    // Text never holds NUL characters, but the wide forms put a zero byte into
    // (nearly) every unit of Latin text, and subtitles always carry Latin
    // digits and arrows. Count the zeros at each place of a 4-byte unit.
    const int length = static_cast<int>(qMin<qint64>(bytes.size(), 64 * 1024)) & ~3;
    if (length < 8) {
        return QByteArray();
    }
    qint64 zeros[4] = {0, 0, 0, 0};
    for (int i = 0; i < length; ++i) {
        zeros[i % 4] += bytes.at(i) == '\0' ? 1 : 0;
    }
    const qint64 units = length / 4;
    const qint64 total = zeros[0] + zeros[1] + zeros[2] + zeros[3];
    if (total * 10 < length) {
        return QByteArray();
    }
    // UTF-32 outside the astral planes: the high half of every unit is zero.
    if (zeros[2] * 20 >= units * 19 && zeros[3] * 20 >= units * 19) {
        return "UTF-32LE";
    }
    if (zeros[0] * 20 >= units * 19 && zeros[1] * 20 >= units * 19) {
        return "UTF-32BE";
    }
    const qint64 odd = zeros[1] + zeros[3];
    const qint64 even = zeros[0] + zeros[2];
    if (odd * 10 >= total * 9) {
        return "UTF-16LE";
    }
    if (even * 10 >= total * 9) {
        return "UTF-16BE";
    }
    return QByteArray();
}

QByteArray SubtitleEncoding::detectLegacy(const QByteArray& bytes)
{
    if (bytes.isEmpty() || hasUnicodeBom(bytes) || !detectWideUnicode(bytes).isEmpty() || isValidUtf8(bytes)) {
        return QByteArray();
    }
    QByteArray charset = runDetector(bytes);
    // Windows-1252 only adds printable characters where Latin-1 has C1 controls.
    if (charset.isEmpty() || charset == "ASCII" || charset == "UTF-8" || charset == "ISO-8859-1"
        || !QTextCodec::codecForName(charset)) {
        charset = "WINDOWS-1252";
    }
    return charset;
}

QByteArray SubtitleEncoding::detectLegacyFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return QByteArray();
    }
    return detectLegacy(file.read(kSampleSize));
}

QString SubtitleEncoding::decode(const QByteArray& bytes)
{
    QTextCodec* codec = QTextCodec::codecForUtfText(bytes, nullptr);
    if (!codec) {
        const QByteArray wide = detectWideUnicode(bytes);
        codec = wide.isEmpty() ? nullptr : QTextCodec::codecForName(wide);
    }
    if (!codec) {
        QTextCodec::ConverterState state;
        QString text = QTextCodec::codecForMib(106)->toUnicode(bytes.constData(), bytes.size(), &state);
        if (state.invalidChars == 0) {
            return text;
        }
        codec = QTextCodec::codecForName(detectLegacy(bytes));
        if (!codec) {
            return text;
        }
    }
    QString text = codec->toUnicode(bytes);
    if (text.startsWith(QChar(0xFEFF))) {
        text.remove(0, 1);
    }
    return text;
}
