#include "globalmanager.h"
#include "logger.h"
#include "testsupport.h"

#include <QDateTime>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

class TestLogging : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { TestSupport::isolate(); }

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
        QVERIFY(path.contains(QStringLiteral("/logs/")));
        QVERIFY(path.endsWith(QStringLiteral(".log")));
        const QString stamp = path.section(QLatin1Char('/'), -1).chopped(4);
        const QDateTime started = QDateTime::fromString(stamp, QStringLiteral("yyyyMMddhhmmss"));
        QVERIFY(started.isValid());
        QVERIFY(qAbs(started.secsTo(before)) <= 2);

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
        QVERIFY(tail.at(0).contains(QStringLiteral("test_logging.cpp:")));
        QVERIFY(tail.at(0).contains(QStringLiteral("fileReceivesEveryLine")));
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
        QVERIFY(text.indexOf(QStringLiteral("run one")) >= 0);
        QVERIFY(text.indexOf(QStringLiteral("run one")) < text.indexOf(QStringLiteral("run two")));
    }
};

QTEST_MAIN(TestLogging)
#include "test_logging.moc"
