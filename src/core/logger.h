#ifndef LOGGER_H
#define LOGGER_H

#include <QString>
#include <QtGlobal>

// One log file per run: every Qt message of every level becomes one line on
// standard output and in the file named after the moment the program started.
class Logger
{
public:
    // The log folder (application data + "/logs/"), created when missing;
    // empty when it cannot be created.
    static QString logDir();
    // Installs the message handler; returns the run's log file path.
    static QString init();
    static QString filePath();
    static QString formatLine(QtMsgType type, const QString& file, int line, const QString& function,
                              const QString& message);
};

#endif // LOGGER_H
