// The speech service's answers as the service writes them (JsonReply) and as
// the app reads them (SpeechReply).
#include "jsonreply.h"
#include "speechreply.h"

#include <QTest>


class TestSpeechReply : public QObject
{
    Q_OBJECT

private slots:
    void serviceAnswersReadBack_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("expected"); // state|message|task|utterances
        QTest::addColumn<bool>("failure");
        const auto bytes = [](const std::string& text) { return QByteArray::fromStdString(text); };
        QTest::newRow("success") << bytes(JsonReply::success({{0, 1500, "Hello.\nSecond line"}, {1600, 2600, "Ünïcödé"}}))
                                 << "success|||0-1500 Hello.\nSecond line;1600-2600 Ünïcödé;" << false;
        QTest::newRow("failed") << bytes(JsonReply::failed("The server at x said \"no\".")) << "failed|The server at x said \"no\".||"
                                << true;
        QTest::newRow("running") << bytes(JsonReply::running("later")) << "running|later||" << false;
        QTest::newRow("task id") << bytes(JsonReply::taskId("0af3")) << "||0af3|" << false;
        QTest::newRow("message only") << bytes(JsonReply::message("too large")) << "|too large||" << false;
        // Times the service never sends read as 0, out-of-range ones included.
        QTest::newRow("odd times") << QByteArray(R"({"state":"success","utterances":[{"start_time":1e300,"end_time":-1e300,"text":"a"},
            {"start_time":1.5,"end_time":"12"},{"start_time":2147483647,"end_time":2147483648,"text":"b"}]})")
                                   << "success|||0-0 a;0-0 ;2147483647-0 b;" << false;
        QTest::newRow("not json") << QByteArray("<html>busy</html>") << "|||" << true;
        QTest::newRow("empty body") << QByteArray() << "|||" << false;
    }

    void serviceAnswersReadBack()
    {
        QFETCH(QByteArray, body);
        QFETCH(QString, expected);
        QFETCH(bool, failure);
        const SpeechReply reply = SpeechReply::parse(body);
        QString utterances;
        for (const SpeechReply::Utterance& utterance : reply.utterances()) {
            utterances += QStringLiteral("%1-%2 %3;").arg(utterance.startMs).arg(utterance.endMs).arg(utterance.text);
        }
        QCOMPARE(QStringList({reply.state(), reply.message(), reply.taskId(), utterances}).join(QLatin1Char('|')), expected);
        QCOMPARE(reply.isFailure(body), failure);
    }

    void healthNamesTheLanguages()
    {
        QCOMPARE(QByteArray::fromStdString(JsonReply::health("pocketsphinx", {"en"})),
                 QByteArray(R"({"any_language":false,"backend":"pocketsphinx","english_only":true,"languages":["en"],"state":"ok"})"));
        QCOMPARE(QByteArray::fromStdString(JsonReply::health("openai:x", {})),
                 QByteArray(R"({"any_language":true,"backend":"openai:x","english_only":false,"languages":[],"state":"ok"})"));
    }
};

QTEST_GUILESS_MAIN(TestSpeechReply)
#include "test_speechreply.moc"
