// Loading local subtitle files into the caption list, SRT conversion with the
// real ffmpeg, and input from the wild: wrong encodings, odd line ends,
// truncated lines, binary junk, huge files, paths that are not files.
#include "appconfig.h"
#include "captioninfo.h"
#include "assreader.h"
#include "captionfilereader.h"
#include "captionmanager.h"
#include "globalmanager.h"
#include "testsupport.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTextCodec>
#include <QtTest>

#include <sys/stat.h>

namespace {
using TestSupport::assFile;
using TestSupport::captionTexts;

QString readText(const QString& path)
{
    return QString::fromUtf8(TestSupport::readFile(path));
}

const QString kFrench = QStringLiteral("Café crème, naïve façade à côté de l'hôtel.");
const QString kFrench2 = QStringLiteral("Garçon, où est la bière? Déjà très réussi, n'est-ce pas?");
const QString kChinese = QStringLiteral("你好，世界。今天天气很好，我们去公园散步吧。");
const QString kChinese2 = QStringLiteral("中文字幕测试，逗号和句号都要保留下来。");
const QString kTraditional = QStringLiteral("你好，世界。今天天氣很好，我們去公園散步吧。");
const QString kTraditional2 = QStringLiteral("中文字幕測試，逗號和句號都要保留下來。");

// An SRT of these lines, one every 2 s from 1 s on, each 1.5 s long.
QString srtText(const QStringList& lines)
{
    QList<std::tuple<int, int, QString>> captions;
    for (int i = 0; i < lines.size(); ++i) {
        captions.append({i * 2000 + 1000, i * 2000 + 2500, lines.at(i)});
    }
    return QString::fromUtf8(TestSupport::srt(captions));
}
} // namespace

class TestSubtitleLoading : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        TestSupport::isolate();
        GlobalManager::instance()->setCurrentFile(QFileInfo(QStringLiteral("/videos/film.mkv")));
        m = CaptionManager::instance();
        m_dir = TestSupport::makeWorkDir(QStringLiteral("subtitleloading"));
    }

    void fieldsStylesAndIndices()
    {
        // No path and nothing loaded before: nothing to fall back on.
        QCOMPARE(m->loadCaptionFile(QString()), -1);
        QVERIFY(!m->lastError().isEmpty());

        const QString path = m_dir + QStringLiteral("/fields.ass");
        QVERIFY(TestSupport::writeFile(
            path, assFile("Dialogue: 0,0:00:01.00,0:00:02.00,Default,,0,0,0,,nine commas\n"
                          "Dialogue: 0,0:00:02.00,0:00:03.00,Default,,0,0,0,eight commas\n"
                          "Comment: 0,0:00:02.00,0:00:03.00,Default,,0,0,0,,a comment\n"
                          "  Dialogue: 2 , 0:0:5.3 ,0:00:06.00, Big ,Ann, 1,2,3, fx,Hello, world, again  \n"
                          "Dialogue: 0,0:00:07.00,0:00:08.00,Nowhere,,0,0,0,,{\\i1}unknown style\n",
                          "Style: Big,Arial,40,&H00FFFFFF,&H000000FF,&H00000000,&H80000000,0,0,0,0,100,100,0,0,1,3,1,"
                          "2,20,20,20,1\n"
                          "Style: Big,Arial,44.5,&H00FFFFFF,&H000000FF,&H00000000,&H80000000,0,0,0,0,100,100,0,0,1,"
                          "4,1,2,20,20,20,1\n"
                          "Style:Tight,Arial,10\n")
                      .replace("ScriptType: v4.00+", "Dialogue: 0,0:00:00.00,0:00:01.00,Default,,0,0,0,,before events")));
        QCOMPARE(m->loadCaptionFile(path), 0);
        QVERIFY(m->lastError().isEmpty());
        QCOMPARE(m->getAssFilePath(), path);
        QCOMPARE(captionTexts(),
                 QStringList({QStringLiteral("nine commas"), QStringLiteral("Hello, world, again"),
                              QStringLiteral("{\\i1}unknown style")}));
        QVERIFY(m->getStyles().size() == 4 && m->getStyles().at(3)->name == QStringLiteral("Style:Tight"));

        const CaptionInfo* big = m->getCaptionDataByIndex(2);
        QCOMPARE(big->index, 2);
        QCOMPARE((QStringList{big->type, big->layer, big->start, big->end, big->style, big->actor, big->marginL,
                              big->marginV, big->effect, big->initialText}),
                 (QStringList{"Dialogue", "2", "0:0:5.3", "0:00:06.00", "Big", "Ann", "1", "3", "fx", big->text}));
        QCOMPARE(big->line, QStringLiteral("Dialogue: 2 , 0:0:5.3 ,0:00:06.00, Big ,Ann, 1,2,3, fx,Hello, world, again"));
        // The later of two styles with one name wins; its numbers seed the edit record.
        QCOMPARE(big->captionStyle->fontsize, QStringLiteral("44.5"));
        const CaptionEdit* edit = big->captionEdit;
        QCOMPARE((QList<int>{edit->fontSize, edit->border, edit->x, edit->y}), (QList<int>{44, 4, 192, 268}));
        QCOMPARE(edit->text, big->text);
        QVERIFY(big->captionStyle != m->getStyles().at(2));

        const CaptionInfo* orphan = m->getCaptionDataByIndex(3);
        QVERIFY(orphan->captionStyle && orphan->captionStyle->name.isEmpty());
        QCOMPARE(orphan->captionEdit->fontSize, 18);

        // Every raw line is kept, untrimmed.
        QVERIFY(m->getFileLines().contains(
            QStringLiteral("  Dialogue: 2 , 0:0:5.3 ,0:00:06.00, Big ,Ann, 1,2,3, fx,Hello, world, again  ")));
        QCOMPARE(m->getFileLines().last(),
                 QStringLiteral("Dialogue: 0,0:00:07.00,0:00:08.00,Nowhere,,0,0,0,,{\\i1}unknown style"));
    }

    void lineEndsAndByteOrderMark_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray events = "Dialogue: 0,0:00:01.00,0:00:02.00,Default,,0,0,0,,first\n"
                                  "Dialogue: 0,0:00:03.00,0:00:04.00,Default,,0,0,0,,second";
        const QByteArray lf = assFile(events);
        QTest::newRow("lf") << lf;
        QTest::newRow("bom crlf") << QByteArray("\xEF\xBB\xBF") + QByteArray(lf).replace("\n", "\r\n");
        QTest::newRow("lone cr") << QByteArray(lf).replace("\n", "\r");
        QTest::newRow("utf-16 bom") << QByteArray("\xFF\xFE")
                                           + QByteArray(reinterpret_cast<const char*>(QString::fromUtf8(lf).utf16()),
                                                        lf.size() * 2);
    }

    void lineEndsAndByteOrderMark()
    {
        QFETCH(QByteArray, bytes);
        const QString path = m_dir + QStringLiteral("/lineends.ass");
        QVERIFY(TestSupport::writeFile(path, bytes));
        QCOMPARE(m->loadCaptionFile(path), 0);
        QCOMPARE(captionTexts(), QStringList({QStringLiteral("first"), QStringLiteral("second")}));
        QVERIFY(m->getFileLines().first() == QStringLiteral("[Script Info]")
                && m->getFileLines().size() == assFile("a\nb").count('\n') + 1);
        QCOMPARE(m->getStyles().size(), 1);
    }

    void filesWithoutCaptions_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("no [Events]") << "noevents.ass"
                                     << assFile("Dialogue: 0,0:00:01.00,0:00:02.00,Default,,0,0,0,,orphan\n")
                                            .replace("[Events]", "[Fonts]");
        QTest::newRow("empty") << "empty.ass" << QByteArray();
        QByteArray junk(2 * 1024 * 1024, '\0');
        QRandomGenerator generator(1234);
        for (int i = 0; i < junk.size(); i += 2) {
            junk[i] = static_cast<char>(generator.bounded(256));
        }
        // A dialogue-looking fragment buried in junk, without any [Events] line.
        junk.insert(1000, "\nDialogue: 0,0:00:01.00,0:00:02.00,Default,,0,0,0,,junk\n");
        QTest::newRow("binary") << "video.ass" << junk;
    }

    void filesWithoutCaptions()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        const QString path = m_dir + QLatin1Char('/') + name;
        QVERIFY(TestSupport::writeFile(path, bytes));
        QCOMPARE(m->loadCaptionFile(path), 0);
        QVERIFY(m->getCaptions().isEmpty());
        // The user is told which file gave nothing.
        QVERIFY2(m->lastError().contains(name), qPrintable(m->lastError()));
    }

    void pathsThatAreNotFiles()
    {
        const QString good = m_dir + QStringLiteral("/good.ass");
        QVERIFY(TestSupport::writeFile(good, assFile("Dialogue: 0,0:00:01.00,0:00:02.00,Default,,0,0,0,,kept\n")));
        QCOMPARE(m->loadCaptionFile(good), 0);
        QCOMPARE(m->getCaptions().size(), 1);

        QCOMPARE(m->loadCaptionFile(m_dir + QStringLiteral("/missing.ass")), 1);
        QVERIFY(m->getCaptions().isEmpty() && m->lastError().contains(QStringLiteral("missing.ass")));
        // The last good file stays the one to fall back on.
        QCOMPARE(m->getAssFilePath(), good);

        QCOMPARE(m->loadCaptionFile(m_dir), 1);
        QVERIFY(m->getCaptions().isEmpty() && !m->lastError().isEmpty());

        QCOMPARE(m->loadCaptionFile(QString()), 0);
        QCOMPARE(captionTexts(), QStringList({QStringLiteral("kept")}));
        QVERIFY(m->lastError().isEmpty());
    }

    void hundredThousandEvents()
    {
        QByteArray events;
        events.reserve(100000 * 80);
        for (int i = 0; i < 100000; ++i) {
            const QByteArray time = CaptionManager::formatAssTime(i * 100).toLatin1();
            events += "Dialogue: 0," + time + "," + time + ",Default,,0,0,0,,line " + QByteArray::number(i)
                      + ", with a comma\n";
        }
        const QString path = m_dir + QStringLiteral("/huge.ass");
        QVERIFY(TestSupport::writeFile(path, assFile(events)));
        QCOMPARE(m->loadCaptionFile(path), 0);
        const CaptionInfo* last = m->getCaptions().last();
        QCOMPARE((QVariantList{m->getCaptions().size(), last->index, last->text, last->start}),
                 (QVariantList{100000, 100000, "line 99999, with a comma", CaptionManager::formatAssTime(9999900)}));
    }

    void srtConversion()
    {
        // An upper-case suffix is an SRT all the same.
        const QString srt = m_dir + QStringLiteral("/Movie Night.SRT");
        QVERIFY(TestSupport::writeFile(
            srt, QStringLiteral("\uFEFF1\r\n00:00:01,000 --> 00:00:02,500\r\n{\\an8}Up top, with a comma\r\n\r\n"
                                "2\r\n00:00:03,000 --> 00:00:04,000\r\n%1\r\n\r\n"
                                "3\r\n00:00:05,000 --> 00:00:06,000\r\nfirst line\r\nsecond line\r\n\r\n"
                                "4\r\n00:00:07,000 --> 00:00:08,000\r\n{\\an1}Это русский, текст\r\n")
                     .arg(kChinese)
                     .toUtf8()));
        const QString ass = GlobalManager::instance()->srtToAss(srt);
        QCOMPARE(ass, GlobalManager::instance()->getTempPath(AppConfig::APP_NAME) + QStringLiteral("/Movie Night.ass"));
        QVERIFY(m->lastError().isEmpty());

        const QString content = readText(ass);
        QVERIFY2(content.startsWith(QStringLiteral(
                     "[Script Info]\n; Script generated by Glimmer\nTitle: Your Subtitle Title\nScriptType: v4.00+\n"
                     "WrapStyle: 0\n\n[V4+ Styles]\nFormat: Name, Fontname, Fontsize, PrimaryColour, "
                     "SecondaryColour, OutlineColour, BackColour, Bold, Italic, Underline, StrikeOut, ScaleX, "
                     "ScaleY, Spacing, Angle, BorderStyle, Outline, Shadow, Alignment, MarginL, MarginR, "
                     "MarginV, Encoding\nStyle: Default,Arial,20,&H00FFFFFF,&H000000FF,&H00000000,&H80000000,"
                     "-1,0,0,0,100,100,0,0,1,2,3,2,20,20,20,1\n\n[Events]")),
                 qPrintable(content.left(600)));
        QVERIFY(!content.contains(QStringLiteral("PlayResX")) && !content.contains(QStringLiteral("{\\an")));
        QCOMPARE(content.count(QStringLiteral("[V4+ Styles]")), 1);

        QCOMPARE(m->loadCaptionFile(ass), 0);
        QCOMPARE(captionTexts(),
                 QStringList({QStringLiteral("Up top, with a comma"), kChinese, QStringLiteral("first line\\Nsecond line"),
                              QStringLiteral("Это русский, текст")}));
        const CaptionInfo* first = m->getCaptionDataByIndex(1);
        QCOMPARE((QList<int>{CaptionManager::parseAssTime(first->start), CaptionManager::parseAssTime(first->end),
                             first->captionEdit->fontSize, first->captionEdit->border}),
                 (QList<int>{1000, 2500, 20, 2}));
        QVERIFY(m->lastError().isEmpty());
    }

    void legacyEncodedSrt_data()
    {
        QTest::addColumn<QByteArray>("codec");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("latin-1") << QByteArray("ISO-8859-1") << QStringList({kFrench, kFrench2});
        QTest::newRow("windows-1252") << QByteArray("windows-1252")
                                      << QStringList({QStringLiteral("“Quoted” – price 5 €, naïve café"), kFrench2});
        QTest::newRow("gbk") << QByteArray("GBK") << QStringList({kChinese, kChinese2});
        QTest::newRow("big5") << QByteArray("Big5") << QStringList({kTraditional, kTraditional2});
    }

    void legacyEncodedSrt()
    {
        QFETCH(QByteArray, codec);
        QFETCH(QStringList, lines);
        const QString srt = m_dir + QStringLiteral("/legacy-%1.srt").arg(QString::fromLatin1(codec));
        QVERIFY(TestSupport::writeFile(srt, QTextCodec::codecForName(codec)->fromUnicode(srtText(lines))));
        const QString ass = GlobalManager::instance()->srtToAss(srt);
        QVERIFY(!ass.isEmpty());
        QVERIFY2(m->lastError().isEmpty(), qPrintable(m->lastError()));
        QCOMPARE(m->loadCaptionFile(ass), 0);
        QCOMPARE(captionTexts(), lines);
    }

    void ffmpegMissing()
    {
        const QString good = m_dir + QStringLiteral("/before.ass");
        QVERIFY(TestSupport::writeFile(good, assFile("Dialogue: 0,0:00:01.00,0:00:02.00,Default,,0,0,0,,before\n")));
        QCOMPARE(m->loadCaptionFile(good), 0);

        const QString srt = m_dir + QStringLiteral("/nofmpeg.srt");
        QVERIFY(TestSupport::writeFile(srt, srtText({QStringLiteral("never converted")}).toUtf8()));
        const QByteArray savedPath = qgetenv("PATH");
        const QString emptyDir = TestSupport::makeWorkDir(QStringLiteral("emptybin"));
        qputenv("PATH", emptyDir.toLocal8Bit());
        const QString ass = GlobalManager::instance()->srtToAss(srt);
        qputenv("PATH", savedPath);
        QVERIFY(ass.isEmpty());
        QVERIFY(m->lastError().contains(QStringLiteral("ffmpeg")));

        // The main window then loads with the empty result: the previous file
        // comes back and the conversion's message survives for the user.
        QCOMPARE(m->loadCaptionFile(ass), 0);
        QCOMPARE(captionTexts(), QStringList({QStringLiteral("before")}));
        QVERIFY(m->lastError().contains(QStringLiteral("ffmpeg")));

        // A fresh load of another file starts without the old message.
        QCOMPARE(m->loadCaptionFile(good), 0);
        QVERIFY(m->lastError().isEmpty());
    }

    void ffmpegRejectsInput()
    {
        const QString srt = m_dir + QStringLiteral("/notasubtitle.srt");
        QVERIFY(TestSupport::writeFile(srt, "this is not a subtitle file at all\n"));
        const QString ass = GlobalManager::instance()->srtToAss(srt);
        const int result = m->loadCaptionFile(ass);
        QVERIFY(result == 0 || result == 1);
        QVERIFY(m->lastError().contains(QStringLiteral("notasubtitle.srt")));

        QVERIFY(GlobalManager::instance()->srtToAss(m_dir + QStringLiteral("/absent.srt")).isEmpty());
        QVERIFY(m->lastError().contains(QStringLiteral("absent.srt")));
    }

    void specialFilesAreRefused_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QString>("reason");
        for (const QString& suffix : {QStringLiteral("ass"), QStringLiteral("srt")}) {
            QTest::newRow(qPrintable(QStringLiteral("fifo ") + suffix)) << "fifo" << suffix << "not an ordinary file";
            QTest::newRow(qPrintable(QStringLiteral("/dev/zero ") + suffix)) << "zero" << suffix << "not an ordinary file";
            QTest::newRow(qPrintable(QStringLiteral("65 MB ") + suffix)) << "large" << suffix << "up to 64 MB";
            QTest::newRow(qPrintable(QStringLiteral("link to a file ") + suffix)) << "link" << suffix << "";
        }
    }

    void specialFilesAreRefused()
    {
        // Neither blocks nor reads without end; the user learns why.
        QFETCH(QString, kind);
        QFETCH(QString, suffix);
        QFETCH(QString, reason);
        const QString path = m_dir + QStringLiteral("/special-%1.%2").arg(kind, suffix);
        QFile::remove(path);
        if (kind == QLatin1String("fifo")) {
            QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        } else if (kind == QLatin1String("zero")) {
            QVERIFY(QFile::link(QStringLiteral("/dev/zero"), path));
        } else if (kind == QLatin1String("large")) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            QVERIFY(file.resize(65 * 1024 * 1024)); // sparse: no real disk space
        } else {
            const QString target = m_dir + QStringLiteral("/target.") + suffix;
            QVERIFY(TestSupport::writeFile(
                target, suffix == QLatin1String("srt") ? srtText({QStringLiteral("through a link")}).toUtf8()
                                                       : assFile("Dialogue: 0,0:00:01.00,0:00:02.00,Default,,0,0,0,,"
                                                                 "through a link\n")));
            QVERIFY(QFile::link(target, path));
        }
        QString ass = path;
        if (suffix == QLatin1String("srt")) {
            ass = GlobalManager::instance()->srtToAss(path);
            QCOMPARE(ass.isEmpty(), !reason.isEmpty());
        }
        if (!ass.isEmpty()) {
            QCOMPARE(m->loadCaptionFile(ass), reason.isEmpty() ? 0 : 1);
        }
        if (reason.isEmpty()) {
            QCOMPARE(captionTexts(), QStringList{QStringLiteral("through a link")});
            QVERIFY2(m->lastError().isEmpty(), qPrintable(m->lastError()));
        } else {
            QVERIFY2(m->lastError().contains(QFileInfo(path).fileName()) && m->lastError().contains(reason),
                     qPrintable(m->lastError()));
        }
    }

    void eventLimitAndCancel()
    {
        const QString path = m_dir + QStringLiteral("/four.ass");
        QByteArray events;
        for (int i = 1; i <= 4; ++i) {
            events += "Dialogue: 0,0:00:0" + QByteArray::number(i) + ".00,0:00:05.00,Default,,0,0,0,,line\n";
        }
        QVERIFY(TestSupport::writeFile(path, assFile(events)));
        const int live = CaptionInfo::liveCount();
        AssReader::Control control;
        control.maxEvents = 3;
        {
            // One past the limit: refused, the reason names the file and the limit, nothing is kept.
            const CaptionFileContent content = CaptionFileReader::read(path, control);
            QVERIFY(!content.readable);
            QVERIFY2(content.error.contains(QStringLiteral("four.ass")) && content.error.contains(QStringLiteral(" 3 ")),
                     qPrintable(content.error));
            QVERIFY(content.captions.isEmpty() && content.styles.isEmpty() && content.lines.isEmpty());
            QCOMPARE(CaptionInfo::liveCount(), live);
        }
        control.maxEvents = 4;
        QCOMPARE(CaptionFileReader::read(path, control).captions.size(), 4);
        QCOMPARE(CaptionInfo::liveCount(), live);

        // Stopped from the progress report: no records either.
        control.progress = [](int) { return false; };
        const CaptionFileContent stopped = CaptionFileReader::read(path, control);
        QVERIFY(stopped.cancelled && !stopped.readable && stopped.captions.isEmpty());
        QCOMPARE(CaptionInfo::liveCount(), live);
    }

    void wideUnicodeAndNulInSrt_data()
    {
        QTest::addColumn<QByteArray>("codec");
        QTest::addColumn<QByteArray>("prefix");
        QTest::newRow("utf-16le bom") << QByteArray("UTF-16LE") << QByteArray("\xFF\xFE");
        QTest::newRow("utf-16be bom") << QByteArray("UTF-16BE") << QByteArray("\xFE\xFF");
        QTest::newRow("utf-16le") << QByteArray("UTF-16LE") << QByteArray();
        QTest::newRow("utf-16be") << QByteArray("UTF-16BE") << QByteArray();
        QTest::newRow("utf-32le bom") << QByteArray("UTF-32LE") << QByteArray("\xFF\xFE\0\0", 4);
        QTest::newRow("utf-32be") << QByteArray("UTF-32BE") << QByteArray();
        QTest::newRow("utf-8 with a nul") << QByteArray("UTF-8") << QByteArray();
    }

    void wideUnicodeAndNulInSrt()
    {
        QFETCH(QByteArray, codec);
        QFETCH(QByteArray, prefix);
        const QStringList lines{kChinese, QStringLiteral("plain"), kChinese2};
        QString text = srtText(lines);
        if (codec == "UTF-8") {
            text.insert(text.indexOf(QStringLiteral("plain")) + 2, QChar(QChar::Null)); // ffmpeg stops at a NUL
        }
        QTextCodec* textCodec = QTextCodec::codecForName(codec);
        QVERIFY(textCodec);
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        const QByteArray bytes = prefix + textCodec->fromUnicode(text.constData(), text.size(), &state);
        const QString srt = m_dir + QStringLiteral("/wide.srt");
        QVERIFY(TestSupport::writeFile(srt, bytes));
        const QString ass = GlobalManager::instance()->srtToAss(srt);
        QVERIFY2(m->lastError().isEmpty(), qPrintable(m->lastError()));
        QCOMPARE(m->loadCaptionFile(ass), 0);
        QCOMPARE(captionTexts(), (QStringList{kChinese, codec == "UTF-8" ? QStringLiteral("plain") : lines.at(1), kChinese2}));
    }

private:
    CaptionManager* m = nullptr;
    QString m_dir;
};

QTEST_GUILESS_MAIN(TestSubtitleLoading)
#include "test_subtitleloading.moc"
