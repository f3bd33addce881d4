#ifndef PROGRESSREPORTER_H
#define PROGRESSREPORTER_H

#include <QString>

#include <cstdio>

// Progress on standard error: a bar redrawn in place on a terminal, one line
// per step otherwise (logs and pipes), nothing when quiet. Notes (skipped
// captions and the like) are printed unless quiet; errors always.
class ProgressReporter
{
public:
    enum Mode { Bar, Lines, Quiet };

    explicit ProgressReporter(Mode mode, std::FILE* stream = stderr);
    // Bar on a terminal, lines elsewhere, or quiet.
    static Mode modeFor(std::FILE* stream, bool quiet);

    void start(int total, const QString& what);
    void step(const QString& detail);
    void note(const QString& text);
    void error(const QString& text);
    void done(const QString& text);

private:
    void clearBar();
    void drawBar();
    void print(const QString& line);

    Mode m_mode;
    std::FILE* m_stream;
    int m_total = 0;
    int m_done = 0;
    QString m_what;
    bool m_barShown = false;
};

#endif // PROGRESSREPORTER_H
