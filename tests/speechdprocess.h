#ifndef SPEECHDPROCESS_H
#define SPEECHDPROCESS_H

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTest>

// The real glimmer-speechd on a free loopback port, for the speech tests.
class SpeechdProcess
{
public:
    static QString program() { return QStringLiteral(GLIMMER_BINARY_DIR "/glimmer-speechd"); }

    ~SpeechdProcess() { stop(); }

    // tmpDir: the service's TMPDIR, so that tests can watch its temporary files;
    // token: the access token it requires.
    bool start(const QStringList& extraArguments = QStringList(), const QString& tmpDir = QString(),
               const QString& token = QString())
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("GLIMMER_SPEECHD_OPENAI_URL"));
        environment.remove(QStringLiteral("GLIMMER_SPEECHD_TOKEN"));
        if (!token.isEmpty()) {
            environment.insert(QStringLiteral("GLIMMER_SPEECHD_TOKEN"), token);
        }
        if (!tmpDir.isEmpty()) {
            QDir().mkpath(tmpDir);
            environment.insert(QStringLiteral("TMPDIR"), tmpDir);
        }
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::SeparateChannels);
        m_process.start(program(), QStringList{QStringLiteral("--port"), QStringLiteral("0"), QStringLiteral("--quiet")}
                                       + extraArguments);
        if (!m_process.waitForStarted(10000)) {
            return false;
        }
        const QRegularExpression pattern(QStringLiteral("listening on (http://[^ ]+:(\\d+))"));
        QByteArray output;
        for (int i = 0; i < 100 && !output.contains('\n'); ++i) {
            m_process.waitForReadyRead(100);
            output += m_process.readAllStandardOutput();
        }
        const QRegularExpressionMatch match = pattern.match(QString::fromUtf8(output));
        if (!match.hasMatch()) {
            qWarning("speechd did not start: %s %s", output.constData(), m_process.readAllStandardError().constData());
            return false;
        }
        m_url = match.captured(1);
        m_port = match.captured(2).toInt();
        return true;
    }

    void stop()
    {
        if (m_process.state() != QProcess::NotRunning) {
            m_process.terminate();
            if (!m_process.waitForFinished(10000)) {
                m_process.kill();
                m_process.waitForFinished(2000);
            }
        }
    }

    QString url() const { return m_url; }
    int port() const { return m_port; }
    QProcess& process() { return m_process; }

private:
    QProcess m_process;
    QString m_url;
    int m_port = 0;
};

#endif // SPEECHDPROCESS_H
