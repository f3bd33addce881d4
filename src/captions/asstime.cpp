#include "asstime.h"

#include <QStringView>

#include <limits>

QString AssTime::format(int ms)
{
    const int value = qMax(0, ms);
    return QString::number(value / 3600000) + QLatin1Char(':') + QString::number((value / 60000) % 60)
           + QLatin1Char(':') + QString::number((value / 1000) % 60) + QLatin1Char('.')
           + QString::number((value % 1000) / 10);
}

int AssTime::parse(const QString& text)
{
    // H:M:S[.F], where F is a count of hundredths whatever its length:
    // "0:0:5.3" is 5030 ms, "0:00:05.30" is 5300 ms.
    const QStringView view = QStringView(text).trimmed();
    qint64 parts[4] = {0, 0, 0, 0};
    int field = 0;
    int digits = 0;
    for (const QChar ch : view) {
        if (ch.isDigit() && ch.unicode() < 128) {
            parts[field] = parts[field] * 10 + (ch.unicode() - '0');
            if (++digits > 9) {
                return -1;
            }
        } else if (ch == QLatin1Char(':') && field < 2 && digits > 0) {
            ++field;
            digits = 0;
        } else if (ch == QLatin1Char('.') && field == 2 && digits > 0) {
            ++field;
            digits = 0;
        } else {
            return -1;
        }
    }
    if (field < 2 || digits == 0) {
        return -1;
    }
    const qint64 ms = ((parts[0] * 60 + parts[1]) * 60 + parts[2]) * 1000 + parts[3] * 10;
    return ms > std::numeric_limits<int>::max() ? -1 : static_cast<int>(ms);
}

QString AssTime::formatSrt(int ms)
{
    ms = qMax(0, ms);
    return QStringLiteral("%1:%2:%3,%4")
        .arg(ms / 3600000, 2, 10, QLatin1Char('0'))
        .arg(ms / 60000 % 60, 2, 10, QLatin1Char('0'))
        .arg(ms / 1000 % 60, 2, 10, QLatin1Char('0'))
        .arg(ms % 1000, 3, 10, QLatin1Char('0'));
}
