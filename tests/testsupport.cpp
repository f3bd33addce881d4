#include "testsupport.h"

#include "appconfig.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QtGlobal>

#include <clocale>
#include <cstdio>
#include <cstdlib>

namespace TestSupport {

void isolate()
{
    if (qEnvironmentVariableIsEmpty("GLIMMER_TEST")) {
        std::fputs("Refusing to run outside ctest: HOME and XDG folders are not isolated.\n", stderr);
        std::exit(2);
    }
    QStandardPaths::setTestModeEnabled(true);
    std::setlocale(LC_NUMERIC, "C");
    AppConfig::initResources();
    AppConfig::registerMetaTypes();
    QSettings(QSettings::UserScope, AppConfig::APP_NAME, QString()).clear();
}

QString makeWorkDir(const QString& name)
{
    const QString path = QDir::tempPath() + QStringLiteral("/glimmer-test-") + name;
    QDir(path).removeRecursively();
    QDir().mkpath(path);
    return path;
}

int run(const QString& program, const QStringList& arguments, int timeoutMs, QByteArray* output)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForStarted(10000)) {
        return -1;
    }
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished(2000);
        return -1;
    }
    const QByteArray out = process.readAll();
    if (output) {
        *output = out;
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        std::fprintf(stderr, "%s failed: %s\n", qPrintable(program), out.constData());
    }
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

int ffmpeg(const QStringList& arguments, int timeoutMs)
{
    QStringList args{QStringLiteral("-hide_banner"), QStringLiteral("-loglevel"), QStringLiteral("error"),
                     QStringLiteral("-y")};
    args += arguments;
    return run(QStringLiteral("ffmpeg"), args, timeoutMs);
}

bool makeVideo(const QString& path, double seconds, int width, int height, int fps, bool withAudio)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    const QString duration = QString::number(seconds);
    QStringList args{QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                     QStringLiteral("testsrc2=size=%1x%2:rate=%3:duration=%4")
                         .arg(width)
                         .arg(height)
                         .arg(fps)
                         .arg(duration)};
    if (withAudio) {
        args += {QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                 QStringLiteral("sine=frequency=440:duration=%1").arg(duration)};
    }
    args += {QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-preset"),
             QStringLiteral("ultrafast"), QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p"),
             QStringLiteral("-g"), QString::number(fps)};
    if (withAudio) {
        args += {QStringLiteral("-c:a"), QStringLiteral("aac"), QStringLiteral("-shortest")};
    }
    args += path;
    return ffmpeg(args) == 0 && QFileInfo(path).size() > 0;
}

QByteArray utterances(const QList<std::tuple<int, int, QString>>& items)
{
    QJsonArray array;
    for (const auto& item : items) {
        array.append(QJsonObject{{QStringLiteral("start_time"), std::get<0>(item)},
                                 {QStringLiteral("end_time"), std::get<1>(item)},
                                 {QStringLiteral("text"), std::get<2>(item)}});
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("state"), QStringLiteral("success")},
                                     {QStringLiteral("utterances"), array}})
        .toJson(QJsonDocument::Compact);
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return false;
    }
    return file.write(bytes) == bytes.size();
}

} // namespace TestSupport
