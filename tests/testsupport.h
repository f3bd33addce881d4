#ifndef TESTSUPPORT_H
#define TESTSUPPORT_H

#include "appconfig.h"
#include "mpvwidget.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QPixmap>
#include <QRect>
#include <QSignalSpy>
#include <QString>
#include <QStringList>

#include <memory>
#include <tuple>

class MainWindow;
class VideoPlayWidget;

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

// An ASS file: script header, a Default style (Arial 20, outline 2, shadow 1,
// bottom centre) and moreStyles, the event format line, then the events.
QByteArray assFile(const QByteArray& events, const QByteArray& moreStyles = QByteArray());

// An SRT file of these (start ms, end ms, text) captions.
QByteArray srt(const QList<std::tuple<int, int, QString>>& captions);

// The texts of the caption list, in order.
QStringList captionTexts();

// A main window shown at the start-up size with the application's style, without sound.
MainWindow* showMainWindow();

// A player panel of this size, shown without sound, that records libmpv's restarts.
class PlayerPanel
{
public:
    explicit PlayerPanel(const QSize& size = QSize(900, 640));
    virtual ~PlayerPanel();
    MpvWidget* mpv() const;
    // Opens a video and waits until it plays (then pauses it when asked).
    bool open(const QString& path, bool paused = false);
    bool waitFor(MpvWidget::RestartKind kind, int timeoutMs = 10000);
    // An exact seek and its restart.
    bool seekForCapture(double seconds);

    std::unique_ptr<VideoPlayWidget> widget;
    bool shown = false;
    QList<MpvWidget::RestartKind> restarts;
};

// Opens a video in the window; true once it is the current file.
bool openVideo(MainWindow* window, const QString& path);

// Writes bytes to a file, creating the folder.
bool writeFile(const QString& path, const QByteArray& bytes);

// The whole file, or nothing when it cannot be read.
QByteArray readFile(const QString& path);

// A frame of one colour, and a capture record around a frame.
QPixmap solidFrame(const QColor& color, int width = 320, int height = 180);
AppConfig::CaptureData capture(const QPixmap& pixmap, double time, int frame);

// Mean absolute difference per channel over an area (the whole image when
// the area is null); huge when the sizes differ.
double meanDifference(const QImage& a, const QImage& b, const QRect& area = QRect());

// Bounding box of the pixels whose channels differ by more than threshold in sum.
QRect changedBox(const QImage& a, const QImage& b, int threshold = 24);

// Values of the bus events with this name that a spy on GlobalManager::globalEvent saw.
QList<QVariant> eventValues(const QSignalSpy& spy, const QString& name);
bool hasEvent(const QSignalSpy& spy, const QString& name);

// Points HOME, the XDG folders and TMPDIR into root, for a program that must
// not touch the real user's settings, logs or pictures; call before the application object.
void isolateEnvironment(const QString& root);

// Runs the layout requests (and what they post in turn) that are waiting.
void settleLayouts();

// A loopback port on which nothing listens.
quint16 freePort();

// A recording of read speech shipped with the recogniser's test data.
QString librivox(const QString& part);

// Speech as the app uploads it: the recordings joined and written with the
// audio extraction's own arguments (an MP3 despite "-format wav").
bool makeSpeechMp3(const QStringList& wavs, const QString& output);

// Answers the next confirmation with the button whose text starts with
// answer, once it shows; the question it asked lands in question.
void answerConfirmation(const QString& answer, QString* question = nullptr);

} // namespace TestSupport

#endif // TESTSUPPORT_H
