// Loading a 20,000-event ASS file into the caption list and writing it back,
// side by side with the subtitle renderer parsing the same file.
// Target: our load within 2x of the renderer's parse.
#include "captionmanager.h"
#include "globalmanager.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

extern "C" {
#include <ass/ass.h>
}

namespace {
constexpr int kEvents = 20000;
constexpr int kRounds = 15;

void discardMessages(QtMsgType, const QMessageLogContext&, const QString&) {}
void quietLibass(int, const char*, va_list, void*) {}

QByteArray makeScript()
{
    QByteArray script
        = "[Script Info]\nScriptType: v4.00+\nWrapStyle: 0\n\n[V4+ Styles]\n"
          "Format: Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, OutlineColour, BackColour, Bold, "
          "Italic, Underline, StrikeOut, ScaleX, ScaleY, Spacing, Angle, BorderStyle, Outline, Shadow, Alignment, "
          "MarginL, MarginR, MarginV, Encoding\n"
          "Style: Default,Arial,20,&H00FFFFFF,&H000000FF,&H00000000,&H80000000,-1,0,0,0,100,100,0,0,1,2,3,2,20,20,"
          "20,1\n"
          "Style: Top,Arial,16,&H00FFFFFF,&H000000FF,&H00000000,&H80000000,0,0,0,0,100,100,0,0,1,1,0,8,20,20,20,1\n"
          "Style: Sign,Arial,24,&H0000FFFF,&H000000FF,&H00000000,&H80000000,0,0,0,0,100,100,0,0,1,2,1,5,20,20,20,1\n"
          "\n[Events]\nFormat: Layer, Start, End, Style, Name, MarginL, MarginR, MarginV, Effect, Text\n";
    static const char* const styles[] = {"Default", "Default", "Top", "Sign"};
    static const char* const texts[] = {
        "Well, I never thought we would get this far, did you?",
        "{\\i1}Somewhere{\\i0} beyond the hills, the river turns north.",
        "这是一条中文字幕，用来测试多字节文本。",
        "Line one\\Nline two, with a comma",
    };
    for (int i = 0; i < kEvents; ++i) {
        const int start = i * 1500;
        script += "Dialogue: 0," + CaptionManager::formatAssTime(start).toLatin1() + ","
                  + CaptionManager::formatAssTime(start + 1400).toLatin1() + "," + styles[i % 4] + ",,0,0,0,,"
                  + texts[i % 4] + " #" + QByteArray::number(i) + "\n";
    }
    return script;
}

double medianMs(const std::function<void()>& before, const std::function<void()>& work,
                const std::function<void()>& after)
{
    std::vector<double> times;
    for (int round = 0; round < kRounds + 1; ++round) {
        before();
        QElapsedTimer timer;
        timer.start();
        work();
        const double ms = timer.nsecsElapsed() / 1e6;
        after();
        if (round > 0) { // the first round only warms caches
            times.push_back(ms);
        }
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}
} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir work;
    if (!work.isValid()) {
        std::fprintf(stderr, "no temporary folder\n");
        return 1;
    }
    // Working files go to a throw-away folder, never to the user's.
    qputenv("TMPDIR", work.path().toLocal8Bit());
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication app(argc, argv);
    qInstallMessageHandler(discardMessages);

    const QString path = work.path() + QStringLiteral("/bench.ass");
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(makeScript()) < 0) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
            return 1;
        }
    }
    GlobalManager::instance()->setCurrentFile(QFileInfo(work.path() + QStringLiteral("/video.mp4")));
    CaptionManager* manager = CaptionManager::instance();
    manager->setCurrentLangItem(7);

    ASS_Library* library = ass_library_init();
    ass_set_message_cb(library, quietLibass, nullptr);
    QByteArray nativePath = QFile::encodeName(path);

    ASS_Track* track = nullptr;
    const double libassMs = medianMs([] {}, [&] { track = ass_read_file(library, nativePath.data(), nullptr); },
                                     [&] {
                                         if (!track || track->n_events != kEvents) {
                                             std::fprintf(stderr, "libass read %d events\n", track ? track->n_events : -1);
                                         }
                                         ass_free_track(track);
                                     });

    auto freeCaptions = [manager] {
        const QList<CaptionInfo*> captions = manager->getCaptions();
        manager->clearCaptions();
        qDeleteAll(captions);
    };
    const double loadMs = medianMs(freeCaptions, [&] { manager->loadCaptionFile(path); }, [&] {
        if (manager->getCaptions().size() != kEvents) {
            std::fprintf(stderr, "loaded %d captions\n", int(manager->getCaptions().size()));
        }
    });

    CaptionInfo* first = manager->getCaptions().first();
    first->captionEdit->text = QStringLiteral("Edited, and written back");
    const double writeMs = medianMs([] {}, [&] { manager->changeCaptionNew(first, false); }, [] {});

    const QString written = manager->getTempAssFilePath();
    QByteArray writtenPath = QFile::encodeName(written);
    ASS_Track* check = ass_read_file(library, writtenPath.data(), nullptr);
    const int writtenEvents = check ? check->n_events : -1;
    if (check) {
        ass_free_track(check);
    }
    ass_library_done(library);
    freeCaptions();

    std::printf("events: %d (written file read back by libass: %d)\n", kEvents, writtenEvents);
    std::printf("libass ass_read_file:        %8.2f ms (median of %d)\n", libassMs, kRounds);
    std::printf("loadCaptionFile:             %8.2f ms\n", loadMs);
    std::printf("changeCaptionNew (write):    %8.2f ms\n", writeMs);
    std::printf("load ratio ours/libass: %.2f (target <= 2.00)\n", loadMs / libassMs);
    std::printf("write ratio ours/libass parse: %.2f\n", writeMs / libassMs);
    return writtenEvents == kEvents ? 0 : 1;
}
