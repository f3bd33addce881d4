#include "progressreporter.h"

#include <unistd.h>

namespace {
constexpr int kBarWidth = 30;
const char* const kPrefix = "glimmer-cli: ";
} // namespace

ProgressReporter::ProgressReporter(Mode mode, std::FILE* stream)
    : m_mode(mode)
    , m_stream(stream)
{
}

ProgressReporter::Mode ProgressReporter::modeFor(std::FILE* stream, bool quiet)
{
    if (quiet) {
        return Quiet;
    }
    return isatty(fileno(stream)) ? Bar : Lines;
}

void ProgressReporter::print(const QString& line)
{
    std::fputs(line.toLocal8Bit().constData(), m_stream);
    std::fputc('\n', m_stream);
    std::fflush(m_stream);
}

void ProgressReporter::clearBar()
{
    if (m_barShown) {
        std::fputs("\r\033[K", m_stream);
        m_barShown = false;
    }
}

void ProgressReporter::drawBar()
{
    const int filled = m_total > 0 ? m_done * kBarWidth / m_total : kBarWidth;
    const QString bar = QStringLiteral("\r[%1%2] %3/%4 %5")
                            .arg(QString(filled, QLatin1Char('#')), QString(kBarWidth - filled, QLatin1Char('.')),
                                 QString::number(m_done), QString::number(m_total), m_what);
    std::fputs(bar.toLocal8Bit().constData(), m_stream);
    std::fputs("\033[K", m_stream);
    std::fflush(m_stream);
    m_barShown = true;
}

void ProgressReporter::start(int total, const QString& what)
{
    m_total = total;
    m_done = 0;
    m_what = what;
    if (m_mode == Bar) {
        drawBar();
    }
}

void ProgressReporter::step(const QString& detail)
{
    ++m_done;
    if (m_mode == Bar) {
        drawBar();
    } else if (m_mode == Lines) {
        print(QStringLiteral("%1/%2 %3").arg(QString::number(m_done), QString::number(m_total), detail));
    }
}

void ProgressReporter::note(const QString& text)
{
    if (m_mode == Quiet) {
        return;
    }
    clearBar();
    print(QString::fromLatin1(kPrefix) + text);
    if (m_mode == Bar && m_total > 0) {
        drawBar();
    }
}

void ProgressReporter::error(const QString& text)
{
    clearBar();
    print(QString::fromLatin1(kPrefix) + text);
}

void ProgressReporter::done(const QString& text)
{
    if (m_mode == Quiet) {
        return;
    }
    if (m_barShown) {
        std::fputc('\n', m_stream);
        m_barShown = false;
    }
    print(text);
}
