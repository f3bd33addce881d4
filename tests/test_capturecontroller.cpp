// The capture flows on a scripted player: which moments are sought, in what
// order, how long each capture waits, and what the strip and the bus get.
#include "appconfig.h"
#include "captioninfo.h"
#include "captionmanager.h"
#include "capturecontroller.h"
#include "capturesource.h"
#include "globalmanager.h"
#include "imageitem.h"
#include "imageswidget.h"
#include "testsupport.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

namespace {

// A player that answers seeks when told to, and hands out numbered frames.
class ScriptedPlayer : public CaptureSource
{
    Q_OBJECT
public:
    bool isLoaded() const override { return loaded; }
    void pause() override { ++pauses; }
    void seekForCapture(double seconds) override
    {
        seeks.append(seconds);
        position = seconds;
    }
    QPixmap snapshot() override
    {
        if (failSnapshots) {
            return QPixmap();
        }
        ++snapshots;
        return TestSupport::solidFrame(QColor::fromHsv((snapshots * 40) % 360, 255, 255), 64, 36);
    }
    double currentSecond() override { return position; }
    int currentFrame() override { return static_cast<int>(position * 25); }
    double duration() override { return length; }
    void setCaptureType(int type) override { captureType = type; }

    // The seek is answered and its frame shows.
    void arrive()
    {
        emit seekAnswered();
        emit frameReady();
    }

    QList<double> seeks;
    double position = 0.0;
    double length = 60.0;
    int pauses = 0;
    int snapshots = 0;
    int captureType = -1;
    bool failSnapshots = false;
    bool loaded = true;
};

// Captions "a", "b", ... of half a second, one a second from 1 s on.
void makeCaptions(int count)
{
    QList<std::tuple<int, int, QString>> items;
    for (int i = 1; i <= count; ++i) {
        items.append({i * 1000, i * 1000 + 500, QString(QChar('a' + i - 1))});
    }
    CaptionManager::instance()->createCaptions(TestSupport::utterances(items), false);
}

} // namespace

class TestCaptureController : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TestSupport::isolate(); }

    void init()
    {
        m_player = new ScriptedPlayer;
        m_strip = new ImagesWidget;
        m_controller = new CaptureController(m_player, m_strip);
        m_controller->setFrameTimeout(300);
        CaptionManager::instance()->clearCaptions();
    }

    void cleanup()
    {
        delete m_controller;
        delete m_strip;
        delete m_player;
    }

    void seekTimeIsTheSinglePrecisionQuotient()
    {
        CaptionInfo caption;
        caption.setTimes(QStringLiteral("0:0:1.23"), QStringLiteral("0:0:2.0"));
        const double seconds = CaptureController::seekSeconds(&caption);
        QVERIFY(seconds == 1.2300000190734863);
        QVERIFY(seconds != 1.23);
    }

    void checkedPassTakesTickedCaptionsInOrderAndSkipsTheUnreachable()
    {
        CaptionManager* captions = CaptionManager::instance();
        captions->createCaptions(TestSupport::utterances({{1000, 1500, "one"}, {2000, 2500, "unticked"},
                                                          {3000, 3500, "two"}, {61000, 62000, "past the end"},
                                                          {60000, 60500, "at the end"}}),
                                 false);
        captions->getCaptions().at(1)->isCheck = false;
        m_player->length = 60.0;
        m_controller->setFrameTimeout(CaptureController::kFrameTimeoutMs);
        QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
        QSignalSpy busy(m_controller, &CaptureController::busy);
        QSignalSpy finished(m_controller, &CaptureController::checkedPassFinished);
        QList<CaptureController::State> states;
        connect(m_controller, &CaptureController::stateChanged, this,
                [&states](CaptureController::State state) { states.append(state); });

        m_controller->startCaptureChecked();
        QCOMPARE(busy.count(), 1);
        QCOMPARE(m_player->seeks, QList<double>({1.0}));
        // Nothing is taken before the seek is answered, however long it takes,
        // and a snapshot the pass did not ask for is no frame.
        emit m_player->snapshotTaken(TestSupport::solidFrame(Qt::red, 64, 36));
        QVERIFY(!bus.wait(CaptureController::kSettleMs + 100));
        QCOMPARE(m_player->snapshots, 0);

        for (int i = 0; i < 2; ++i) {
            QElapsedTimer sinceAnswer;
            sinceAnswer.start();
            m_player->arrive();
            QTRY_COMPARE(m_player->snapshots, i + 1);
            QVERIFY2(sinceAnswer.elapsed() >= CaptureController::kSettleMs - 5, "captured before the settle time");
        }
        QTRY_COMPARE(finished.count(), 1);
        QVERIFY(finished.first().first().toInt() == 2 && m_player->captureType == 0);
        QCOMPARE(m_player->seeks, QList<double>({1.0, 3.0}));
        const QList<QVariant> frames = TestSupport::eventValues(bus, AppConfig::CAPTURE_IMAGE);
        QCOMPARE(frames.size(), 2);
        QCOMPARE(frames.at(1).value<AppConfig::CaptureData>().time, 3.0);
        QCOMPARE(states.mid(0, 5),
                 QList<CaptureController::State>({CaptureController::State::SeekSent,
                                                  CaptureController::State::SeekAnswered,
                                                  CaptureController::State::FrameReady,
                                                  CaptureController::State::Captured,
                                                  CaptureController::State::SeekSent}));
        QCOMPARE(states.last(), CaptureController::State::Idle);
    }

    void pressesThatCannotActSayWhy_data()
    {
        QTest::addColumn<bool>("loaded");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<QString>("title");
        QTest::newRow("capture, no video") << false << false << QStringLiteral("Nothing to capture");
        QTest::newRow("capture checked, no video") << false << true << QStringLiteral("Nothing to capture");
        QTest::newRow("capture checked, none ticked") << true << true << QStringLiteral("No caption ticked");
    }

    void pressesThatCannotActSayWhy()
    {
        QFETCH(bool, loaded);
        QFETCH(bool, checked);
        QFETCH(QString, title);
        makeCaptions(1);
        CaptionManager::instance()->getCaptions().first()->isCheck = false;
        m_player->loaded = loaded;
        QSignalSpy failed(m_controller, &CaptureController::failed);
        QSignalSpy busy(m_controller, &CaptureController::busy);
        checked ? m_controller->startCaptureChecked() : m_controller->captureNow();
        QVERIFY(failed.count() == 1 && failed.first().first().toString() == title);
        // Nothing started: no busy state, no capture type, no snapshot.
        QCOMPARE((QList<int>{busy.count(), m_player->snapshots, m_player->captureType}), (QList<int>{0, 0, -1}));
    }

    void frameThatNeverShowsAndSeekNeverAnswered()
    {
        makeCaptions(2);
        QSignalSpy failed(m_controller, &CaptureController::failed);
        QSignalSpy idle(m_controller, &CaptureController::idle);
        m_controller->startCaptureChecked();
        // Answered, but no frame: captured anyway once the wait runs out.
        emit m_player->seekAnswered();
        QTRY_COMPARE(m_player->snapshots, 1);
        // Never answered: the pass ends with a message instead of waiting for ever.
        QVERIFY(failed.wait(2000));
        QCOMPARE(idle.count(), 1);
        QVERIFY(!m_controller->isBusy());
    }

    void failedSnapshotEndsThePassAndKeepsTheRest()
    {
        makeCaptions(2);
        m_player->failSnapshots = true;
        QSignalSpy failed(m_controller, &CaptureController::failed);
        m_controller->startCaptureChecked();
        m_player->arrive();
        QVERIFY(failed.wait(2000));
        QCOMPARE(m_controller->queue().size(), 1);
        QCOMPARE(m_player->captureType, -1);
    }

    void cancelStopsBeforeTheNextSeek()
    {
        makeCaptions(3);
        QSignalSpy finished(m_controller, &CaptureController::checkedPassFinished);
        m_controller->startCaptureChecked();
        m_controller->cancel();
        m_player->arrive();
        QVERIFY(finished.wait(2000));
        QCOMPARE(m_player->seeks.size(), 1);
        QCOMPARE(m_player->snapshots, 1);
    }

    void applyToAllRecapturesEveryFrameInPlace()
    {
        for (double time : {4.0, 2.0}) {
            m_strip->addImage(TestSupport::capture(TestSupport::solidFrame(Qt::gray, 64, 36), time, int(time * 25)));
        }
        QSignalSpy busy(m_controller, &CaptureController::busy);
        QSignalSpy done(m_controller, &CaptureController::recaptureFinished);
        m_controller->captionEdited(nullptr, true);
        QVERIFY(m_controller->isRecaptureAllPending());
        emit m_player->subtitlesLoaded();
        QCOMPARE(busy.count(), 1);
        QVERIFY(!m_controller->isRecaptureAllPending());
        for (int i = 0; i < 2; ++i) {
            QTRY_COMPARE(m_player->seeks.size(), i + 1);
            m_player->arrive();
        }
        QVERIFY(done.wait(3000));
        // Strip order, each at its own time; the frames keep their place and time.
        QCOMPARE(m_player->seeks, QList<double>({4.0, 2.0}));
        QCOMPARE(m_strip->items().at(1)->getCpatureTime(), 2.0);
        QVERIFY(m_strip->items().at(0)->getPixmap().toImage().pixel(0, 0) != QColor(Qt::gray).rgb());
    }

    void singleEditRecapturesTheFrameAtThePosition_data()
    {
        QTest::addColumn<double>("position");
        QTest::addColumn<int>("seeks");
        QTest::addColumn<int>("snapshots");
        QTest::newRow("exactly there: no seek") << 2.0 << 0 << 1;
        QTest::newRow("0.04 s away: sought") << 2.04 << 1 << 1;
        QTest::newRow("0.06 s away: left alone") << 2.06 << 0 << 0;
    }

    void singleEditRecapturesTheFrameAtThePosition()
    {
        QFETCH(double, position);
        QFETCH(int, seeks);
        QFETCH(int, snapshots);
        CaptionManager::instance()->createCaptions(TestSupport::utterances({{2000, 3000, "a"}}), false);
        m_strip->addImage(TestSupport::capture(TestSupport::solidFrame(Qt::gray, 64, 36), 2.0, 50));
        m_player->position = position;
        QSignalSpy done(m_controller, &CaptureController::recaptureFinished);
        m_controller->captionEdited(CaptionManager::instance()->getCaptions().first(), false);
        emit m_player->subtitlesLoaded();
        if (seeks > 0) {
            m_player->arrive();
        }
        if (snapshots > 0) {
            QVERIFY(done.wait(2000));
        } else {
            QVERIFY(!m_controller->isBusy());
        }
        QCOMPARE(m_player->seeks.size(), seeks);
        QCOMPARE(m_player->snapshots, snapshots);
    }

    void recordsGoneBeforeTheyAreFreed()
    {
        CaptionManager* captions = CaptionManager::instance();
        makeCaptions(2);
        m_controller->startCaptureChecked();
        m_controller->setEditedCaption(captions->getCaptions().first());
        QCOMPARE(m_controller->queue().size(), 1);
        captions->clearCaptions();
        QVERIFY(m_controller->queue().isEmpty() && !m_controller->editedCaption());
    }

private:
    ScriptedPlayer* m_player = nullptr;
    ImagesWidget* m_strip = nullptr;
    CaptureController* m_controller = nullptr;
};

QTEST_MAIN(TestCaptureController)
#include "test_capturecontroller.moc"
