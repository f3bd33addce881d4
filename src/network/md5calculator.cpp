#include "md5calculator.h"

#include <QCryptographicHash>
#include <QFile>

Md5Calculator::Md5Calculator(const QString& filePath, QObject* parent)
    : QThread(parent)
    , m_filePath(filePath)
{
    connect(this, &QThread::finished, this, &QObject::deleteLater);
}

QString Md5Calculator::md5OfFile(const QString& filePath)
{
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly)) {
        return QString();
    }
    QCryptographicHash hash(QCryptographicHash::Md5);
    while (!file.atEnd()) {
        const QByteArray block = file.read(8192);
        if (block.isEmpty()) {
            break;
        }
        hash.addData(block);
    }
    return QString::fromLatin1(hash.result().toHex());
}

void Md5Calculator::run()
{
    const QString md5 = md5OfFile(m_filePath);
    if (md5.isEmpty()) {
        emit md5Error(m_filePath, QStringLiteral("Failed to open file."));
    } else {
        emit md5Calculated(m_filePath, md5);
    }
}
