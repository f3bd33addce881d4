// The facade's own services: the two settings stores, the folders, the log.
#include "appconfig.h"
#include "globalmanager.h"
#include "logger.h"
#include "testsupport.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QtTest>

class TestSettings : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { TestSupport::isolate(); }

    void persistentStoreAnnouncesEveryWriteAndSurvivesTheRun()
    {
        GlobalManager* g = GlobalManager::instance();
        QSignalSpy spy(g, &GlobalManager::globalEvent);
        QCOMPARE(g->readSettings(AppConfig::PLAYER_VOLUME, 100).toInt(), 100);

        g->saveSettings(AppConfig::PLAYER_VOLUME, 35);
        g->saveSettings(AppConfig::PLAYER_VOLUME, 35);
        QCOMPARE(spy.count(), 2);
        for (const auto& args : spy) {
            QCOMPARE(args.at(0).toString(), AppConfig::SETTING_CHANGE);
            QCOMPARE(args.at(1).toString(), AppConfig::PLAYER_VOLUME);
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        // Another settings object (as a new run would make) sees the value on disk.
        QSettings fresh(QSettings::UserScope, AppConfig::APP_NAME, QString());
        fresh.sync();
        QCOMPARE(fresh.value(AppConfig::PLAYER_VOLUME).toInt(), 35);
        QVERIFY(fresh.fileName().startsWith(QDir::homePath()));
    }

    void inAppStoreIsSilentAndNullMeansDefault()
    {
        GlobalManager* g = GlobalManager::instance();
        QSignalSpy spy(g, &GlobalManager::globalEvent);
        const auto scale = [g]() { return g->readInAppSettings(AppConfig::PROPERTY_SCALE, "100").toString(); };
        QCOMPARE(scale(), QStringLiteral("100"));
        g->saveInAppSettings(AppConfig::PROPERTY_SCALE, QStringLiteral("50"));
        QCOMPARE(scale(), QStringLiteral("50"));
        g->saveInAppSettings(AppConfig::PROPERTY_SCALE, QVariant());
        QCOMPARE(scale(), QStringLiteral("100"));
        QCOMPARE(spy.count(), 0);
        // Never on disk.
        QVERIFY(!g->readSettings(AppConfig::PROPERTY_SCALE).isValid());
    }

    void pathsAreCreatedWhereExpected()
    {
        GlobalManager* g = GlobalManager::instance();
        const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
        QVERIFY(pictures.startsWith(QDir::homePath()));
        const QString write = g->getWritePath(AppConfig::APP_NAME);
        QCOMPARE(write, pictures + QStringLiteral("/Glimmer"));
        QVERIFY(QDir(write).exists());

        const QString temp = g->getTempPath(AppConfig::APP_NAME);
        QVERIFY(temp.endsWith(QStringLiteral("/Glimmer")) && QDir(temp).exists());

        const QString wanted = QDir::tempPath() + QStringLiteral("/a/b/c");
        QCOMPARE(g->getDirByCheck(wanted), wanted);
        QVERIFY(QDir(wanted).exists());
        // A folder that cannot be created falls back to the default export folder.
        QCOMPARE(g->getDirByCheck(QStringLiteral("/proc/nope/x")), write);
    }

    void formattingHelpers()
    {
        QCOMPARE((QStringList{GlobalManager::formatSecondToTime(3725.9), GlobalManager::formatSecondToTime(0.0),
                              GlobalManager::formatSecondToTime(86400.0 + 61.0)}),
                 (QStringList{"01:02:05", "00:00:00", "00:01:01"}));
        QCOMPARE(GlobalManager::getFontSizeByTextAndWidth(QString(), 0), 40);
        const int narrow = GlobalManager::getFontSizeByTextAndWidth(QStringLiteral("Get the gleam"), 60);
        const int wide = GlobalManager::getFontSizeByTextAndWidth(QStringLiteral("Get the gleam"), 400);
        QVERIFY(narrow < wide && narrow >= 1);
        QCOMPARE(GlobalManager::getFontSizeByTextAndWidth(QStringLiteral("W"), -5), 1);
    }

    void fileContentRoundTrip()
    {
        const QString path = TestSupport::makeWorkDir(QStringLiteral("settings")) + QStringLiteral("/t.txt");
        const QString text = QStringLiteral("Zeile 1 – ü\n第二行\n");
        QVERIFY(GlobalManager::writeFileContent(path, text));
        QCOMPARE(GlobalManager::readFileContent(path), text);
        QVERIFY(!GlobalManager::writeFileContent(QStringLiteral("/proc/nope/t.txt"), text));
        QCOMPARE(GlobalManager::readFileContent(QStringLiteral("/proc/nope/t.txt")), QString());
    }

    void lineFormat()
    {
        const QString line = Logger::formatLine(QtDebugMsg, "player", 12, "f", "ready");
        const QRegularExpression shape(
            QStringLiteral("^\\[\\d{4} \\d{2}-\\d{2} \\d{2}:\\d{2}:\\d{2}\\]Debug: ready \\(player:12, f\\)\\n$"));
        QVERIFY2(shape.match(line).hasMatch(), qPrintable(line));

        const QString bare = Logger::formatLine(QtWarningMsg, QString(), 0, QString(), "x");
        QVERIFY2(bare.endsWith(QStringLiteral("]Warning: x (:0, )\n")), qPrintable(bare));

        QVERIFY(Logger::formatLine(QtCriticalMsg, {}, 0, {}, {}).contains(QStringLiteral("]Critical: ")));
        QVERIFY(Logger::formatLine(QtInfoMsg, {}, 0, {}, {}).contains(QStringLiteral("]Info: ")));
        QVERIFY(Logger::formatLine(QtFatalMsg, {}, 0, {}, {}).contains(QStringLiteral("]Fatal: ")));

        // QString::arg must not re-expand %N found inside the message or the file name.
        const QString placeholders = Logger::formatLine(QtDebugMsg, "a%2b", 3, "g%1", "50% %d %s %1");
        QVERIFY2(placeholders.contains(QStringLiteral("]Debug: 50% %d %s %1 (a%2b:3, g%1)\n")),
                 qPrintable(placeholders));
    }

    void fileReceivesEveryLine()
    {
        GlobalManager* g = GlobalManager::instance();
        const QDateTime before = QDateTime::currentDateTime();
        g->initLog();
        const QString path = g->getLogFilePath();
        QVERIFY(path.contains(QStringLiteral("/logs/")) && path.endsWith(QStringLiteral(".log")));
        const QString stamp = path.section(QLatin1Char('/'), -1).chopped(4);
        const QDateTime started = QDateTime::fromString(stamp, QStringLiteral("yyyyMMddhhmmss"));
        QVERIFY(started.isValid() && qAbs(started.secsTo(before)) <= 2);

        qDebug() << "first line";
        qWarning("%s", "second line with %s and %d inside");
        qDebug().noquote() << QStringLiteral("unicode 字幕 ü");
        qInstallMessageHandler(nullptr);

        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QVERIFY(lines.size() >= 3);
        const QStringList tail = lines.mid(lines.size() - 3);
        QVERIFY2(tail.at(0).contains(QStringLiteral("]Debug: first line (")), qPrintable(tail.at(0)));
        QVERIFY(tail.at(0).contains(QStringLiteral("test_settings.cpp:")) && tail.at(0).contains("fileReceivesEveryLine"));
        QVERIFY2(tail.at(1).contains(QStringLiteral("]Warning: second line with %s and %d inside (")),
                 qPrintable(tail.at(1)));
        QVERIFY(tail.at(2).contains(QStringLiteral("]Debug: unicode 字幕 ü (")));
    }

    void secondStartInTheSameSecondAppends()
    {
        GlobalManager* g = GlobalManager::instance();
        g->initLog();
        const QString first = g->getLogFilePath();
        qDebug() << "run one";
        g->initLog();
        const QString second = g->getLogFilePath();
        qDebug() << "run two";
        qInstallMessageHandler(nullptr);
        if (first != second) {
            QSKIP("The clock moved to the next second between the two starts");
        }
        QFile file(second);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        const int one = text.indexOf(QStringLiteral("run one"));
        QVERIFY(one >= 0 && one < text.indexOf(QStringLiteral("run two")));
    }
};

QTEST_MAIN(TestSettings)
#include "test_settings.moc"
