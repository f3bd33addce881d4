#include "appconfig.h"
#include "downloadmanager.h"
#include "globalmanager.h"
#include "localhttpserver.h"
#include "testsupport.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QtTest>

using State = DownloadManager::DownloadState;

class TestDownloadManager : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void versionFileRetriesThenFails();
    void outputHandling();
    void realDownloadWithProgressAndMd5();
    void failedDownloadReportsError();
    void toolLookupPrefersShippedTool();
};

void TestDownloadManager::initTestCase()
{
    TestSupport::isolate();
}

void TestDownloadManager::versionFileRetriesThenFails()
{
    const QString url = QStringLiteral("http://127.0.0.1:%1/glimmer/upgrade.json").arg(TestSupport::freePort());
    GlobalManager::instance()->saveSettings(AppConfig::VERSION_FILE_URL, url);

    DownloadManager* manager = DownloadManager::instance();
    QSignalSpy spy(manager, &DownloadManager::downloadLastVersionStateChanged);
    manager->downloadLastVersion(DownloadManager::TAG_START, 2);
    QTRY_VERIFY_WITH_TIMEOUT(!spy.isEmpty() && spy.last().at(0).value<State>() == DownloadManager::DownloadError,
                             10000);
    QVERIFY(!spy.wait(300)); // nothing may follow the final error

    int starts = 0;
    int errors = 0;
    for (const QList<QVariant>& call : spy) {
        const State state = call.at(0).value<State>();
        starts += state == DownloadManager::DownloadStart;
        errors += state == DownloadManager::DownloadError;
        QCOMPARE(call.at(1).toString(), url + QStringLiteral(",start"));
    }
    QCOMPARE((QList<int>{starts, errors, spy.count()}), (QList<int>{3, 1, 4}));
    QVERIFY(!spy.last().at(2).toByteArray().isEmpty()); // the reason travels with the error
}

void TestDownloadManager::outputHandling()
{
    DownloadManager* manager = DownloadManager::instance();
    QSignalSpy progress(manager, &DownloadManager::downloadProgress);
    QSignalSpy state(manager, &DownloadManager::downloadStateChanged);

    manager->toolOutputHandle(QStringLiteral("\n[#a1b2c3 0B/80MiB(0%) CN:0 DL:0B FileAlloc:#a1b2c3 12MiB/80MiB(15%)]\n"));
    manager->toolOutputHandle(QStringLiteral("Download Results:\ngid   |stat|avg speed  |path/URI\n"));
    QVERIFY(progress.isEmpty() && state.isEmpty());

    // One chunk with a notice line before the progress line.
    manager->toolOutputHandle(QStringLiteral("\n11/21 22:29:16 [NOTICE] Downloading 1 item(s)\n"
                                             "[#75964e 52MiB/200MiB(26%) CN:1 DL:16MiB ETA:8s]\n"));
    QCOMPARE(progress.count(), 1);
    const auto p = progress.at(0).at(0).value<DownloadManager::DownloadProgress>();
    QCOMPARE((QStringList{p.hash, p.completed, p.total, p.percent, p.connections, p.speed, p.eta}),
             (QStringList{"#75964e", "52MiB", "200MiB", "26%", "1", "16MiB", "8s"}));

    // Two progress lines in one chunk, the second without an ETA.
    manager->toolOutputHandle(QStringLiteral("[#75964e 60MiB/200MiB(30%) CN:1 DL:16MiB ETA:8s]\n"
                                             "[#75964e 199MiB/200MiB(99%) CN:1 DL:16MiB]\n"));
    QCOMPARE(progress.count(), 3);
    const auto second = progress.at(1).at(0).value<DownloadManager::DownloadProgress>();
    const auto third = progress.at(2).at(0).value<DownloadManager::DownloadProgress>();
    QCOMPARE((QStringList{second.percent, second.eta, third.completed, third.speed, third.eta}),
             (QStringList{"30%", "8s", "199MiB", "16MiB", QString()}));

    // A completion notice that names no file.
    manager->toolOutputHandle(QStringLiteral("11/21 22:29:16 [NOTICE] Download complete: \n"));
    QVERIFY(state.count() == 1 && state.at(0).at(0).value<State>() == DownloadManager::DownloadError);
    QVERIFY(state.at(0).at(1).toString().startsWith(QStringLiteral("File cann't find in local:")));
}

void TestDownloadManager::realDownloadWithProgressAndMd5()
{
    // About three seconds of transfer, so the tool prints progress lines.
    QByteArray payload(3 * 1000 * 1000, Qt::Uninitialized);
    QRandomGenerator generator(42);
    generator.fillRange(reinterpret_cast<quint32*>(payload.data()), payload.size() / 4);
    LocalHttpServer server(LocalHttpServer::Response{200, payload, "application/octet-stream", 100 * 1000, 100});
    QVERIFY(server.listen());

    const QString dir = TestSupport::makeWorkDir(QStringLiteral("download"));
    DownloadManager* manager = DownloadManager::instance();
    QSignalSpy progress(manager, &DownloadManager::downloadProgress);
    QSignalSpy state(manager, &DownloadManager::downloadStateChanged);
    QSignalSpy md5(manager, &DownloadManager::downloadMd5);

    manager->download(server.url(QStringLiteral("/GlimmerSetup.bin")), dir);
    QVERIFY(manager->isDownloading());
    QVERIFY(state.count() == 1 && state.at(0).at(0).value<State>() == DownloadManager::DownloadStart);

    QTRY_VERIFY_WITH_TIMEOUT(state.count() >= 2, 60000);
    QCOMPARE(state.at(1).at(0).value<State>(), DownloadManager::DownloadFinished);
    const QString path = state.at(1).at(1).toString();
    QCOMPARE(QFileInfo(path).absoluteFilePath(), QDir(dir).absoluteFilePath(QStringLiteral("GlimmerSetup.bin")));
    QVERIFY(!manager->isDownloading());

    const QString expected = QString::fromLatin1(QCryptographicHash::hash(payload, QCryptographicHash::Md5).toHex());
    QVERIFY(md5.count() == 1 && md5.at(0).at(0).toString() == path);
    QCOMPARE(md5.at(0).at(1).toString(), expected);

    // Records come from the tool's own output.
    QVERIFY2(progress.count() >= 1, "the tool printed no progress line");
    const QRegularExpression percent(QStringLiteral("^\\d{1,3}%$"));
    for (const QList<QVariant>& call : progress) {
        const auto p = call.at(0).value<DownloadManager::DownloadProgress>();
        QVERIFY2(p.hash.startsWith(QLatin1Char('#')), qPrintable(p.hash));
        QCOMPARE(p.total, QStringLiteral("2.8MiB"));
        QVERIFY2(percent.match(p.percent).hasMatch(), qPrintable(p.percent));
        QCOMPARE(p.connections, QStringLiteral("1"));
        QVERIFY(!p.speed.isEmpty());
        QVERIFY(!p.eta.contains(QLatin1Char(']')));
    }
}

void TestDownloadManager::failedDownloadReportsError()
{
    LocalHttpServer server(LocalHttpServer::Response{404, "missing"});
    QVERIFY(server.listen());
    const QString dir = TestSupport::makeWorkDir(QStringLiteral("download-404"));
    DownloadManager* manager = DownloadManager::instance();
    QSignalSpy state(manager, &DownloadManager::downloadStateChanged);
    manager->download(server.url(QStringLiteral("/nothing.bin")), dir);
    QTRY_VERIFY_WITH_TIMEOUT(state.count() >= 2, 30000);
    QCOMPARE(state.at(1).at(0).value<State>(), DownloadManager::DownloadError);
    QVERIFY2(state.at(1).at(1).toString().contains(QStringLiteral("Resource not found")),
             qPrintable(state.at(1).at(1).toString()));
    QVERIFY(!manager->isDownloading());
    QVERIFY(!state.wait(200));
}

void TestDownloadManager::toolLookupPrefersShippedTool()
{
    const QString system = QStandardPaths::findExecutable(DownloadManager::FALLBACK_TOOL_NAME);
    QVERIFY(!system.isEmpty());
    DownloadManager* manager = DownloadManager::instance();
    QCOMPARE(manager->toolPath(), system);

    const QString shipped = QCoreApplication::applicationDirPath() + QLatin1Char('/') + DownloadManager::TOOL_NAME;
    QFile::remove(shipped);
    QVERIFY(QFile::link(system, shipped));
    const QString found = manager->toolPath();
    QFile::remove(shipped);
    QCOMPARE(found, shipped);
}

QTEST_GUILESS_MAIN(TestDownloadManager)
#include "test_downloadmanager.moc"
