#include "appconfig.h"
#include "globalmanager.h"
#include "mainwindow.h"
#include "testsupport.h"
#include "translatemanager.h"

#include <QSignalSpy>
#include <QtTest>

class TestTranslateManager : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { TestSupport::isolate(); }

    void startUpChoice_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<int>("stored");
        QTest::addColumn<int>("expected");
        QTest::newRow("de_DE") << "de_DE" << -1 << int(TranslateManager::German);
        QTest::newRow("en_US") << "en_US" << -1 << int(TranslateManager::English);
        QTest::newRow("pt_BR") << "pt_BR" << -1 << int(TranslateManager::Portuguese);
        // Country parts are capitals: no Chinese or Japanese match by locale.
        QTest::newRow("zh_CN") << "zh_CN" << -1 << int(TranslateManager::English);
        QTest::newRow("zh_HK") << "zh_HK" << -1 << int(TranslateManager::English);
        QTest::newRow("ja_JP") << "ja_JP" << -1 << int(TranslateManager::English);
        QTest::newRow("stored wins") << "de_DE" << 8 << int(TranslateManager::Japanese);
        QTest::newRow("stored zero") << "fr_FR" << 0 << int(TranslateManager::English);
        QTest::newRow("C locale") << "C" << -1 << int(TranslateManager::English);
    }

    void startUpChoice()
    {
        QFETCH(QString, locale);
        QFETCH(int, stored);
        QFETCH(int, expected);
        QCOMPARE(TranslateManager::chooseLangType(locale, stored), expected);
    }

    void menuSwitchInstallsNotifiesAndPersists()
    {
        GlobalManager::instance()->saveSettings(AppConfig::APP_LANG, -1);
        TranslateManager::instance()->init();
        MainWindow window;
        QSignalSpy notify(TranslateManager::instance(), &TranslateManager::notify);
        QSignalSpy bus(GlobalManager::instance(), &GlobalManager::globalEvent);
        window.languageMenuTapByType(TranslateManager::Japanese);
        QCOMPARE(notify.count(), 1);
        QCOMPARE(notify.at(0).at(0).toInt(), int(TranslateManager::Japanese));
        QVERIFY(!window.translator()->isEmpty());
        QCOMPARE(window.translator()->language(), QStringLiteral("ja_JP"));
        QCOMPARE(TranslateManager::instance()->getLangType(), TranslateManager::Japanese);
        QCOMPARE(GlobalManager::instance()->readSettings(AppConfig::APP_LANG, -1).toInt(),
                 int(TranslateManager::Japanese));
        QCOMPARE(bus.count(), 1);
        QCOMPARE(bus.at(0).at(1).toString(), AppConfig::APP_LANG);

        // The next start follows the menu whatever the system locale.
        TranslateManager::instance()->init();
        QCOMPARE(TranslateManager::instance()->getLangType(), TranslateManager::Japanese);
        QCOMPARE(TranslateManager::instance()->getCurrentShortName(), QStringLiteral("jp"));
    }
};

QTEST_MAIN(TestTranslateManager)
#include "test_translatemanager.moc"
