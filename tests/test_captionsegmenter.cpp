// The speech service's captions as a viewer reads them: sentence case, full
// stops at long pauses, two lines of 42 characters, 1 to 7 seconds on screen.
#include "captionsegmenter.h"

#include <QStringList>
#include <QTest>

namespace {

// "word:start-end word:start-end ..." in milliseconds.
std::vector<Word> wordsOf(const QString& spec)
{
    std::vector<Word> words;
    for (const QString& item : spec.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const int colon = item.lastIndexOf(QLatin1Char(':'));
        const QStringList times = item.mid(colon + 1).split(QLatin1Char('-'));
        words.push_back({item.left(colon).toStdString(), times.value(0).toLongLong(), times.value(1).toLongLong()});
    }
    return words;
}

// n words of the given length, 300 ms each, back to back from `from`.
QString run(int n, qint64 from, const QString& word = QStringLiteral("word"))
{
    QStringList items;
    for (int i = 0; i < n; ++i) {
        items << QStringLiteral("%1:%2-%3").arg(word).arg(from + i * 300).arg(from + i * 300 + 280);
    }
    return items.join(QLatin1Char(' '));
}

// "start-end text" per caption, lines joined with "|", captions with " / ".
QString shown(const std::vector<Utterance>& captions)
{
    QStringList out;
    for (const Utterance& caption : captions) {
        out << QStringLiteral("%1-%2 %3").arg(caption.startMs).arg(caption.endMs)
                   .arg(QString::fromStdString(caption.text).replace(QLatin1Char('\n'), QLatin1Char('|')));
    }
    return out.join(QStringLiteral(" / "));
}

} // namespace

class TestCaptionSegmenter : public QObject
{
    Q_OBJECT

private:
    // What every caption must keep to, whatever the input.
    static void checkConventions(const std::vector<Utterance>& captions)
    {
        const CaptionSegmenter::Limits limits;
        for (size_t i = 0; i < captions.size(); ++i) {
            const Utterance& caption = captions[i];
            const QStringList lines = QString::fromStdString(caption.text).split(QLatin1Char('\n'));
            QVERIFY2(lines.size() <= limits.maxLines, caption.text.c_str());
            for (const QString& line : lines) {
                QVERIFY2(CaptionSegmenter::width(line.toStdString()) <= limits.lineWidth, qPrintable(line));
                QVERIFY2(line == line.trimmed() && !line.isEmpty(), caption.text.c_str());
            }
            QVERIFY(caption.endMs - caption.startMs <= limits.maxDurationMs);
            const bool last = i + 1 == captions.size();
            QVERIFY(last || caption.endMs <= captions[i + 1].startMs);
            QVERIFY(caption.endMs - caption.startMs >= limits.minDurationMs
                    || (!last && caption.endMs == captions[i + 1].startMs));
        }
    }

private slots:
    void wordsBecomeReadableCaptions_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QString>("expected");
        QTest::newRow("sentence case and I") << "i:0-200 think:250-600 i'm:650-900 right:950-1300"
                                             << "0-1300 I think I'm right.";
        QTest::newRow("long pause ends a sentence") << "yes:0-400 we:1100-1300 can:1350-1700"
                                                    << "0-1000 Yes. / 1100-2100 We can.";
        QTest::newRow("short pause does not") << "yes:0-400 we:850-1050 can:1100-1500" << "0-1500 Yes we can.";
        QTest::newRow("fillers and variants") << "<s>:0-100 read(2):100-500 [NOISE]:500-700 it:700-1200 </s>:1200-1300"
                                              << "100-1200 Read it.";
        QTest::newRow("short caption stops at the next") << "go:0-300 on:900-1200" << "0-900 Go. / 900-1900 On.";
        QTest::newRow("two balanced lines")
            << "the:0-100 quick:150-400 brown:450-700 fox:750-1000 jumps:1050-1300 over:1350-1600 the:1650-1700 "
               "lazy:1750-2000 dog:2050-2300 again:2350-2600"
            << "0-2600 The quick brown fox jumps|over the lazy dog again.";
        QTest::newRow("nothing said") << "<sil>:0-900" << "";
    }

    void wordsBecomeReadableCaptions()
    {
        QFETCH(QString, words);
        QFETCH(QString, expected);
        const std::vector<Utterance> captions = CaptionSegmenter::segment(wordsOf(words));
        QCOMPARE(shown(captions), expected);
        checkConventions(captions);
    }

    void longSpeechIsCutWithinTheLimits_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<int>("captions");
        // 30 words of 4 letters: 149 characters in 9 seconds, without a pause.
        QTest::newRow("too many characters and too long") << run(30, 0) << 2;
        // 40 short words in 12 s fit two lines per 7 s, not one caption.
        QTest::newRow("too long on screen") << run(40, 0, QStringLiteral("a")) << 2;
        // A pause in the middle is where the cut goes.
        QTest::newRow("cut at the pause") << run(10, 0) + " " + run(10, 3200) << 2;
    }

    void longSpeechIsCutWithinTheLimits()
    {
        QFETCH(QString, words);
        QFETCH(int, captions);
        const std::vector<Utterance> result = CaptionSegmenter::segment(wordsOf(words));
        QCOMPARE(int(result.size()), captions);
        checkConventions(result);
        // Every word kept, in order, never split; one capital and one full stop.
        QStringList all;
        for (const Utterance& caption : result) {
            all << QString::fromStdString(caption.text).replace(QLatin1Char('\n'), QLatin1Char(' '));
        }
        const QString text = all.join(QLatin1Char(' '));
        QCOMPARE(text.count(QLatin1Char('.')), 1);
        QVERIFY(text.at(0).isUpper() && text.endsWith(QLatin1Char('.')));
        QCOMPARE(text.toLower().remove(QLatin1Char('.')).split(QLatin1Char(' ')).size(), int(wordsOf(words).size()));
        if (words.contains(QStringLiteral(":3200"))) {
            QCOMPARE(result[1].startMs, qint64(3200));
        }
    }

    void serverSegmentsAreLaidOut_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("endMs");
        QTest::addColumn<QString>("expected");
        QTest::newRow("fits as it is") << "Hello there." << qint64(500) << "0-1000 Hello there.";
        QTest::newRow("split after the full stop")
            << "This first sentence is rather long, really. And here comes a second one to read now." << qint64(8400)
            << "0-4504 This first sentence is|rather long, really. / 4504-8400 And here comes a second one to read now.";
        QTest::newRow("wide characters count twice")
            << QStringLiteral("一二三四五六七八九十一二三四五六七八九十一二三四五六七八九十") << qint64(3000)
            << QStringLiteral("0-3000 一二三四五六七八九十一二三四五|六七八九十一二三四五六七八九十");
    }

    void serverSegmentsAreLaidOut()
    {
        QFETCH(QString, text);
        QFETCH(qint64, endMs);
        QFETCH(QString, expected);
        const std::vector<Utterance> captions = CaptionSegmenter::fit({{0, endMs, text.toStdString()}});
        QCOMPARE(shown(captions), expected);
        checkConventions(captions);
    }
};

QTEST_GUILESS_MAIN(TestCaptionSegmenter)
#include "test_captionsegmenter.moc"
