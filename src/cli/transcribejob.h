#ifndef TRANSCRIBEJOB_H
#define TRANSCRIBEJOB_H

#include "clioptions.h"

#include <QByteArray>
#include <QObject>
#include <QString>

class ProgressReporter;

// glimmer-cli --transcribe: the window's Auto captions without a window. The
// speech engine is asked for the language first, then the sound track is
// extracted and recognised by the same service, and the captions are written
// to the output file in the format its suffix names.
class TranscribeJob : public QObject
{
    Q_OBJECT
public:
    TranscribeJob(const CliOptions& options, ProgressReporter* progress, QObject* parent = nullptr);

    void start();

signals:
    void finished(int exitCode);

private:
    void fail(const QString& message, int exitCode = 1);
    void extract();
    void upload();
    void answered(const QByteArray& body);

    CliOptions m_options;
    ProgressReporter* m_progress;
    QString m_code;
    QString m_languageName;
    bool m_done = false;
    bool m_uploading = false;
};

#endif // TRANSCRIBEJOB_H
