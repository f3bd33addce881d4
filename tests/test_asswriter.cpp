// Every working file the program writes, read back by a real subtitle renderer:
// events, times, texts and style names must be what the caption list holds,
// and a rendered caption must land where its position tag puts it.
#include "appconfig.h"
#include "captionmanager.h"
#include "globalmanager.h"
#include "testsupport.h"

#include <QRect>
#include <QtTest>

extern "C" {
#include <ass/ass.h>
}

namespace {
void quietLibass(int, const char*, va_list, void*) {}
} // namespace

using TestSupport::utterances;

class TestAssWriter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        TestSupport::isolate();
        GlobalManager::instance()->setCurrentFile(QFileInfo(QStringLiteral("/videos/trip.mp4")));
        m = CaptionManager::instance();
        m->setCurrentLangItem(0);
        m_library = ass_library_init();
        QVERIFY(m_library);
        ass_set_message_cb(m_library, quietLibass, nullptr);
        m_renderer = ass_renderer_init(m_library);
        QVERIFY(m_renderer);
        ass_set_frame_size(m_renderer, 384, 288);
        ass_set_fonts(m_renderer, nullptr, "sans-serif", ASS_FONTPROVIDER_AUTODETECT, nullptr, 1);
    }

    void cleanupTestCase()
    {
        ass_renderer_done(m_renderer);
        ass_library_done(m_library);
    }

    void editOneAndRender()
    {
        // Unpadded hundredths ("0:0:1.3") must be read as the program reads them.
        m->createCaptions(utterances({{1030, 4000, "first"}, {5030, 8000, "second"}}), false);
        CaptionInfo* first = m->getCaptionDataByIndex(1);
        first->captionEdit->text = QStringLiteral("MMMM");
        first->captionEdit->x = 100;
        first->captionEdit->y = 150;
        first->captionEdit->fontSize = 30;
        m->changeCaptionNew(first, false);

        ASS_Track* track = readBack();
        QVERIFY(track);
        compareWithList(track, {QStringLiteral("{\\fs30\\bord1\\shad1\\pos(100,150)}"), QString()});
        // Bottom-centre alignment: the glyphs sit left-right around x and end just above y.
        const QRect box = renderBox(track, 2000);
        QVERIFY2(!box.isEmpty(), "nothing rendered");
        QVERIFY2(qAbs(box.center().x() - 100) <= 6, qPrintable(rectText(box)));
        QVERIFY2(box.bottom() <= 156 && box.bottom() >= 140, qPrintable(rectText(box)));
        QVERIFY2(box.height() >= 15 && box.height() <= 45, qPrintable(rectText(box)));
        QVERIFY2(box.width() >= 40, qPrintable(rectText(box)));

        // The unedited caption falls back on the style's bottom-centre placement.
        const QRect plain = renderBox(track, 6000);
        QVERIFY2(qAbs(plain.center().x() - 192) <= 6, qPrintable(rectText(plain)));
        QVERIFY2(plain.bottom() > 240, qPrintable(rectText(plain)));
        ass_free_track(track);
    }

    void editAll()
    {
        m->createCaptions(utterances({{1000, 2000, "a"}, {3000, 4000, "b"}, {3723450, 3724000, "c"}}), false);
        CaptionInfo* middle = m->getCaptionDataByIndex(2);
        middle->captionEdit->x = 192;
        middle->captionEdit->y = 40;
        middle->captionEdit->fontSize = 22;
        m->getCaptionDataByIndex(3)->isShow = false;
        m->changeCaptionNew(middle, true);

        ASS_Track* track = readBack();
        QVERIFY(track);
        const QString block = QStringLiteral("{\\fs22\\bord1\\shad1\\pos(192,40)}");
        compareWithList(track, {block, block, block});
        QCOMPARE(fileStyleCount(track), 1);
        const QRect box = renderBox(track, 1500);
        QVERIFY2(qAbs(box.center().x() - 192) <= 6 && box.bottom() <= 46, qPrintable(rectText(box)));
        // A hidden caption renders nothing.
        QVERIFY(renderBox(track, 3723500).isEmpty());
        ass_free_track(track);
    }

    void loadedFileAfterLineEdit()
    {
        const QString source = TestSupport::makeWorkDir(QStringLiteral("asswriter")) + QStringLiteral("/in.ass");
        const QByteArray file = TestSupport::assFile(
            "Dialogue: 0,0:00:01.00,0:00:02.50,Default,,0,0,0,,one, with comma\n"
            "Dialogue: 1,0:00:03.00,0:00:04.00,Top,Bob,0,0,0,,two\n",
            "Style: Top,Arial,16,&H00FFFFFF,&H000000FF,&H00000000,&H80000000,0,0,0,0,100,100,0,0,1,1,0,8,20,20,20,1\n");
        QVERIFY(TestSupport::writeFile(source, "\xEF\xBB\xBF" + QByteArray(file).replace("\n", "\r\n")));
        QCOMPARE(m->loadCaptionFile(source), 0);
        CaptionInfo* second = m->getCaptionDataByIndex(2);
        second->text = QStringLiteral("two, edited");
        m->changeCaption(second);

        ASS_Track* track = readBack();
        QVERIFY(track);
        compareWithList(track, {QString(), QString()});
        QCOMPARE(QString::fromUtf8(track->events[1].Name), QStringLiteral("Bob"));

        // The full rewrite of a loaded file keeps its styles and adds none.
        m->changeCaptionNew(m->getCaptionDataByIndex(1), false);
        ASS_Track* rewritten = readBack();
        QVERIFY(rewritten);
        compareWithList(rewritten, {QStringLiteral("{\\fs20\\bord2\\shad1\\pos(192,268)}"), QString()});
        QCOMPARE(fileStyleCount(rewritten), 2);

        // Saved as ASS: the same events, styles and override blocks.
        const QString saved = QFileInfo(source).absolutePath() + QStringLiteral("/saved.ass");
        QVERIFY2(m->saveCaptionFile(saved), qPrintable(m->lastError()));
        ASS_Track* reloaded = readBack(saved);
        QVERIFY(reloaded);
        compareWithList(reloaded, {QStringLiteral("{\\fs20\\bord2\\shad1\\pos(192,268)}"), QString()});
        QCOMPARE(fileStyleCount(reloaded), 2);
        ass_free_track(track);
        ass_free_track(rewritten);
        ass_free_track(reloaded);
    }

private:
    ASS_Track* readBack(const QString& file = QString())
    {
        QByteArray path = QFile::encodeName(file.isEmpty() ? m->getTempAssFilePath() : file);
        return ass_read_file(m_library, path.data(), nullptr);
    }

    // The renderer keeps a built-in fallback style in front of the file's own.
    static int fileStyleCount(ASS_Track* track) { return track->n_styles - 1; }

    // Events in list order, times read the way the program reads them, texts
    // with the override block each caption should carry, resolvable styles.
    void compareWithList(ASS_Track* track, const QStringList& overrides)
    {
        const QList<CaptionInfo*> captions = m->getCaptions();
        QCOMPARE(track->n_events, captions.size());
        for (int i = 0; i < captions.size(); ++i) {
            const CaptionInfo* info = captions.at(i);
            const ASS_Event& event = track->events[i];
            QCOMPARE(event.Start, static_cast<long long>(CaptionManager::parseAssTime(info->start)));
            QCOMPARE(event.Start + event.Duration, static_cast<long long>(CaptionManager::parseAssTime(info->end)));
            const QString text = overrides.value(i) + (info->isShow ? info->text : QString());
            QCOMPARE(QString::fromUtf8(event.Text), text);
            QVERIFY(event.Style >= 1 && event.Style < track->n_styles);
            QCOMPARE(QString::fromUtf8(track->styles[event.Style].Name), info->style);
        }
    }

    QRect renderBox(ASS_Track* track, long long timeMs)
    {
        int changed = 0;
        QRect box;
        for (ASS_Image* image = ass_render_frame(m_renderer, track, timeMs, &changed); image;
             image = image->next) {
            for (int y = 0; y < image->h; ++y) {
                for (int x = 0; x < image->w; ++x) {
                    if (image->bitmap[y * image->stride + x] > 64) {
                        box |= QRect(image->dst_x + x, image->dst_y + y, 1, 1);
                    }
                }
            }
        }
        return box;
    }

    static QString rectText(const QRect& r)
    {
        return QStringLiteral("box %1,%2 %3x%4").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
    }

    CaptionManager* m = nullptr;
    ASS_Library* m_library = nullptr;
    ASS_Renderer* m_renderer = nullptr;
};

QTEST_GUILESS_MAIN(TestAssWriter)
#include "test_asswriter.moc"
