#include "appconfig.h"
#include "screenmanager.h"
#include "testsupport.h"

#include <QWidget>
#include <QtTest>

class TestScreenManager : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { TestSupport::isolate(); }

    void styleSheetScaling_data()
    {
        QTest::addColumn<double>("rate");
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("expected");

        const char* sheet = "QWidget{border: 1px solid; width: 15px; margin: -4px;}";
        QTest::newRow("1.0 unchanged") << 1.0 << sheet << sheet;
        QTest::newRow("1.5 truncates") << 1.5 << sheet << "QWidget{border: 1px solid; width: 22px; margin: -6px;}";
        QTest::newRow("2.0 doubles") << 2.0 << sheet << "QWidget{border: 2px solid; width: 30px; margin: -8px;}";
        QTest::newRow("bare px gets a zero") << 2.0 << "a{top: px;}" << "a{top: 0px;}";
        QTest::newRow("bare px at 1.0") << 1.0 << "a{top: px; left: 3px}" << "a{top: 0px; left: 3px}";
        QTest::newRow("only fraction digits scale") << 2.0 << "a{w: 1.5px}" << "a{w: 1.10px}";
        QTest::newRow("digits at the very start stay") << 2.0 << "12px; b: 3px" << "12px; b: 6px";
        QTest::newRow("several in a row") << 1.5 << "p{padding: 2px 4px 10px 0px}" << "p{padding: 3px 6px 15px 0px}";
        QTest::newRow("case-sensitive PX") << 2.0 << "a{w: 5PX; h: 5px}" << "a{w: 5PX; h: 10px}";
        QTest::newRow("no px") << 2.0 << "font-size: 11pt;" << "font-size: 11pt;";
    }

    void styleSheetScaling()
    {
        QFETCH(double, rate);
        QFETCH(QString, input);
        QFETCH(QString, expected);
        ScreenManager::scaleStyleSheet(input, rate);
        QCOMPARE(input, expected);
    }

    void startUpClampsButUpdateDoesNot()
    {
        ScreenManager* screens = ScreenManager::instance();
        screens->initWithDpi(72.0, 72.0, 1.0);
        QCOMPARE((QList<double>{screens->getCurrentRate(), screens->getRealRate(), screens->getLastRate()}),
                 (QList<double>{1.0, 0.75, 1.0}));

        screens->updateRateWithDpi(72.0);
        QCOMPARE((QList<double>{screens->getCurrentRate(), screens->getLastRate()}), (QList<double>{0.75, 1.0}));

        screens->initWithDpi(144.0, 144.0, 2.0);
        QCOMPARE((QList<double>{screens->getCurrentRate(), screens->getDeviceRatio()}), (QList<double>{1.5, 2.0}));
        QCOMPARE(AppConfig::rate(15), 22);
        QCOMPARE(AppConfig::rate(QSize(1100, 741)), QSize(1650, 1111));
        QCOMPARE(AppConfig::rate(QRect(1, 3, 5, 7)), QRect(1, 4, 7, 10));
        QCOMPARE(AppConfig::rate(2, 4, 6, 8), QMargins(3, 6, 9, 12));

        QString sheet = QStringLiteral("b{border: 1px}");
        screens->styleDpiChange(sheet);
        QCOMPARE(sheet, QStringLiteral("b{border: 1px}"));
        screens->initWithDpi(96.0, 96.0, 1.0);
    }

    void versionComparedAsText()
    {
        for (const char* version : {"11.0", "12.6", "9.6"}) {
            QVERIFY2(ScreenManager::versionAtLeast11(version), version);
        }
        QVERIFY(!ScreenManager::versionAtLeast11("10.15"));
    }

    void widgetsFollowANewScreen()
    {
        ScreenManager* screens = ScreenManager::instance();
        screens->initWithDpi(96.0, 96.0, 1.0);
        QWidget parent;
        parent.setGeometry(10, 20, 300, 200);
        auto* child = new QWidget(&parent);
        child->setGeometry(4, 6, 100, 50);
        child->setMinimumSize(100, 50);
        screens->updateRateWithDpi(192.0);
        screens->updateWidgetChildrenInNewScreen(&parent);
        QCOMPARE(child->geometry().topLeft(), QPoint(8, 12));
        QCOMPARE(parent.geometry().topLeft(), QPoint(20, 40));
        screens->initWithDpi(96.0, 96.0, 1.0);
    }
};

QTEST_MAIN(TestScreenManager)
#include "test_screenmanager.moc"
