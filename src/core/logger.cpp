#include "logger.h"

#include "logcategories.h"

#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTextCodec>
#include <QTextStream>

#include <cstdio>

namespace {
QString g_logFilePath;

void messageHandler(QtMsgType type, const QMessageLogContext& context, const QString& msg)
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QString line = Logger::formatLine(
        type, context.file ? QString::fromLocal8Bit(context.file) : QString(), context.line,
        context.function ? QString::fromLocal8Bit(context.function) : QString(), msg);
    const QByteArray bytes = line.toLocal8Bit();
    // Written as text: a per-cent sign in a message must never act as a format.
    std::fputs(bytes.constData(), stdout);
    std::fflush(stdout);

    QFile file(g_logFilePath);
    if (file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) {
        QTextStream stream(&file);
        stream.setCodec("UTF-8");
        stream << line;
        file.close();
    }
}
} // namespace

QString Logger::logDir()
{
    const QString dir = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
                        + QStringLiteral("/logs/");
    qCDebug(lcCore) << "getLogDir:" << dir;
    QDir d(dir);
    if (!d.exists() && !d.mkpath(dir)) {
        qCWarning(lcCore) << "Failed to create directory.";
        return QString();
    }
    return dir;
}

QString Logger::init()
{
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMddhhmmss"));
    g_logFilePath = logDir() + stamp + QStringLiteral(".log");
    qInstallMessageHandler(messageHandler);
    return g_logFilePath;
}

QString Logger::filePath()
{
    return g_logFilePath;
}

QString Logger::formatLine(QtMsgType type, const QString& file, int line, const QString& function,
                           const QString& message)
{
    QString level;
    switch (type) {
    case QtDebugMsg:
        level = QStringLiteral("Debug");
        break;
    case QtWarningMsg:
        level = QStringLiteral("Warning");
        break;
    case QtCriticalMsg:
        level = QStringLiteral("Critical");
        break;
    case QtFatalMsg:
        level = QStringLiteral("Fatal");
        break;
    case QtInfoMsg:
        level = QStringLiteral("Info");
        break;
    }
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyy MM-dd hh:mm:ss"));
    // Filled in one step: a message holding "%2" stays as written.
    return QStringLiteral("[%6]%5: %1 (%2:%3, %4)\n")
        .arg(message, file, QString::number(line), function, level, time);
}
