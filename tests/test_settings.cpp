#include "appconfig.h"
#include "globalmanager.h"
#include "testsupport.h"

#include <QDir>
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
        QVERIFY(temp.endsWith(QStringLiteral("/Glimmer")));
        QVERIFY(QDir(temp).exists());

        const QString wanted = QDir::tempPath() + QStringLiteral("/a/b/c");
        QCOMPARE(g->getDirByCheck(wanted), wanted);
        QVERIFY(QDir(wanted).exists());
        // A folder that cannot be created falls back to the default export folder.
        QCOMPARE(g->getDirByCheck(QStringLiteral("/proc/nope/x")), write);
    }

    void formattingHelpers()
    {
        QCOMPARE(GlobalManager::formatSecondToTime(3725.9), QStringLiteral("01:02:05"));
        QCOMPARE(GlobalManager::formatSecondToTime(0.0), QStringLiteral("00:00:00"));
        QCOMPARE(GlobalManager::formatSecondToTime(86400.0 + 61.0), QStringLiteral("00:01:01"));
        QCOMPARE(GlobalManager::getFontSizeByTextAndWidth(QString(), 0), 40);
        const int narrow = GlobalManager::getFontSizeByTextAndWidth(QStringLiteral("Get the gleam"), 60);
        const int wide = GlobalManager::getFontSizeByTextAndWidth(QStringLiteral("Get the gleam"), 400);
        QVERIFY(narrow < wide);
        QVERIFY(narrow >= 1);
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
};

QTEST_MAIN(TestSettings)
#include "test_settings.moc"
