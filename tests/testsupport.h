#ifndef TESTSUPPORT_H
#define TESTSUPPORT_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <tuple>

// Helpers shared by the test suites: isolation from the user's files and
// media generated with the real ffmpeg at test time.
namespace TestSupport {

// Test mode for QStandardPaths and an empty settings store. Aborts when the
// test would run against a real home folder (no isolated HOME from ctest).
void isolate();

// A fresh folder under the test's temporary folder.
QString makeWorkDir(const QString& name);

// Runs a program to its end; returns its exit code (-1 when it could not start).
int run(const QString& program, const QStringList& arguments, int timeoutMs = 120000,
        QByteArray* output = nullptr);

// ffmpeg with "-hide_banner -loglevel error -y" in front.
int ffmpeg(const QStringList& arguments, int timeoutMs = 120000);

// testsrc2 video with a sine audio track (unless withAudio is false), H.264.
bool makeVideo(const QString& path, double seconds, int width = 1280, int height = 720, int fps = 25,
               bool withAudio = true);

// A speech service answer with these (start ms, end ms, text) utterances.
QByteArray utterances(const QList<std::tuple<int, int, QString>>& items);

// Writes bytes to a file, creating the folder.
bool writeFile(const QString& path, const QByteArray& bytes);

} // namespace TestSupport

#endif // TESTSUPPORT_H
