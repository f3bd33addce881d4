#include "appconfig.h"
#include "globalmanager.h"
#include "mainwindow.h"
#include "testsupport.h"
#include "translatemanager.h"

#include <QFile>
#include <QSignalSpy>
#include <QTranslator>
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

    void tables()
    {
        TranslateManager* t = TranslateManager::instance();
        t->init();
        const QStringList shorts{"en", "de", "es", "fr", "it", "pt", "cn", "hk", "jp"};
        QCOMPARE(t->getLangFileMap().size(), 9);
        QCOMPARE(t->getLangNameMap().value(6), QStringLiteral("简体中文"));
        QCOMPARE(t->getLangNameMap().value(2), QStringLiteral("Español"));
        for (int i = 0; i < shorts.size(); ++i) {
            const auto type = static_cast<TranslateManager::LanguageType>(i);
            QCOMPARE(TranslateManager::getShortNameByType(type), shorts.at(i));
            const QString file = t->getLangFileMap().value(i);
            QCOMPARE(file, QStringLiteral(":/i18n/glimmer_%1.qm").arg(shorts.at(i)));
            QVERIFY2(QFile::exists(file), qPrintable(file));
            QTranslator translator;
            QVERIFY2(translator.load(file), qPrintable(file));
        }
        QCOMPARE(TranslateManager::getShortNameByType(static_cast<TranslateManager::LanguageType>(42)),
                 QStringLiteral("en"));
    }

    void storedChoiceIsUsedAtTheNextStart()
    {
        GlobalManager::instance()->saveSettings(AppConfig::APP_LANG, 1);
        TranslateManager::instance()->init();
        QCOMPARE(TranslateManager::instance()->getLangType(), TranslateManager::German);
        QCOMPARE(TranslateManager::instance()->getCurrentShortName(), QStringLiteral("de"));
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
    }
};

QTEST_MAIN(TestTranslateManager)
#include "test_translatemanager.moc"
