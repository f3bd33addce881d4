#ifndef MD5CALCULATOR_H
#define MD5CALCULATOR_H

#include <QString>
#include <QThread>

// Computes the MD5 digest of a file on its own thread, so that hashing a large
// installer never stalls the interface. Deletes itself when done.
class Md5Calculator : public QThread
{
    Q_OBJECT
public:
    explicit Md5Calculator(const QString& filePath, QObject* parent = nullptr);

    QString filePath() const { return m_filePath; }

    // Hex digest of a file read in blocks of 8192 bytes; empty when it cannot be opened.
    static QString md5OfFile(const QString& filePath);

signals:
    void md5Calculated(QString filePath, QString md5);
    void md5Error(QString filePath, QString text);

protected:
    void run() override;

private:
    QString m_filePath;
};

#endif // MD5CALCULATOR_H
