// Export of the stitched picture and of single frames: real files read back,
// collision-free names, fallbacks that lose nothing, failures that reach the
// user, and the reveal in the file manager over a private session bus.
#include "appconfig.h"
#include "captioninfo.h"
#include "captionmanager.h"
#include "globalmanager.h"
#include "imagecanvas.h"
#include "imageexporter.h"
#include "imageitem.h"
#include "imageswidget.h"
#include "previewwidget.h"
#include "propertyitem.h"
#include "saveimagethread.h"
#include "testsupport.h"

#include <QCheckBox>
#include <QLabel>
#include <QDBusConnection>
#include <QDesktopServices>
#include <QDir>
#include <QImageReader>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QtTest>

#include <sys/resource.h>

#include <cerrno>
#include <csignal>
#include <cstring>

// The file manager on the session bus, and the handler of file URLs.
class FakeFileManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")
public:
    QList<QStringList> calls;
    QList<QUrl> urls;
public slots:
    void ShowItems(const QStringList& uris, const QString&) { calls.append(uris); }
    void open(const QUrl& url) { urls.append(url); }
};

using TestSupport::capture;
using TestSupport::readFile;
using TestSupport::solidFrame;

class TestExport : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void compositePngIsRevealed();
    void singleFramesInFormat_data();
    void singleFramesInFormat();
    void scaleHalvesWidth();
    void unregisteredWatermarkAndGuideOnce();
    void nothingLostWhenNoFolderTakesFiles();
    void tooTallForWebpIsReported();
    void stitchTooLargeForFormatIsRefused_data();
    void stitchTooLargeForFormatIsRefused();
    void previewAndExportAfterManyCaptures();
    void watermarkOnTallPicture();
    void writeFailureHasReason();
    void revealFallsBackToFolderQuietly();
    void percentSignsStayAsWritten_data();
    void percentSignsStayAsWritten();

private:
    QStringList waitFinished(QSignalSpy& spy, QStringList* errors = nullptr);
    // Exports the ticked frames one by one, or the stitched picture; returns the files written.
    QStringList exportFrames(QStringList* errors = nullptr);
    QStringList exportStitch(QStringList* errors = nullptr);

    QProcess m_bus;
    FakeFileManager m_fileManager;
    QString m_work;
    QString m_out;
    ImagesWidget* m_strip = nullptr;
    PreviewWidget* m_preview = nullptr;
};

void TestExport::initTestCase()
{
    TestSupport::isolate();
    // A private session bus with a fake file manager, before anything opens the bus.
    m_bus.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                                QStringLiteral("--nopidfile"), QStringLiteral("--print-address")});
    QVERIFY(m_bus.waitForStarted(5000));
    QTRY_VERIFY(m_bus.canReadLine());
    const QByteArray address = m_bus.readLine().trimmed();
    QVERIFY(!address.isEmpty());
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    QDBusConnection bus = QDBusConnection::sessionBus();
    QVERIFY(bus.isConnected());
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/FileManager1"), &m_fileManager,
                               QDBusConnection::ExportAllSlots));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.FileManager1")));
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &m_fileManager, "open");

    m_work = TestSupport::makeWorkDir(QStringLiteral("export"));
    GlobalManager::instance()->setCurrentFile(QFileInfo(m_work + QStringLiteral("/videos/holiday.mov")));
}

void TestExport::cleanupTestCase()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    m_bus.terminate();
    m_bus.waitForFinished(5000);
}

void TestExport::init()
{
    static int round = 0;
    m_out = QStringLiteral("%1/out%2").arg(m_work).arg(++round);
    GlobalManager* manager = GlobalManager::instance();
    manager->saveSettings(AppConfig::FILE_SAVE_PATH, m_out);
    manager->saveSettings(AppConfig::FILE_EXTENSION, AppConfig::FORMAT_PNG);
    manager->setRegister(true);
    m_strip = new ImagesWidget();
    m_preview = new PreviewWidget();
    connect(manager, &GlobalManager::globalEvent, m_preview, [this](const QString& name, const QVariant&) {
        if (name == AppConfig::SELECT_IMAGE_COMPLETE) {
            m_preview->showImage();
        }
    });
    m_fileManager.calls.clear();
    m_fileManager.urls.clear();
}

void TestExport::cleanup()
{
    delete m_preview;
    delete m_strip;
    GlobalManager::instance()->selectedImages().clear();
}

QStringList TestExport::waitFinished(QSignalSpy& spy, QStringList* errors)
{
    if (spy.isEmpty() && !spy.wait(30000)) {
        return {QStringLiteral("<timeout>")};
    }
    const QList<QVariant> args = spy.takeFirst();
    if (errors) {
        *errors = args.at(1).toStringList();
    }
    return args.at(0).toStringList();
}

QStringList TestExport::exportFrames(QStringList* errors)
{
    QSignalSpy spy(m_strip, &ImagesWidget::exportFinishedSignal);
    m_strip->exportSelectedHandle(QString());
    return waitFinished(spy, errors);
}

QStringList TestExport::exportStitch(QStringList* errors)
{
    QSignalSpy spy(m_preview, &PreviewWidget::exportFinishedSignal);
    m_preview->exportButtonClickHandle();
    return waitFinished(spy, errors);
}

void TestExport::compositePngIsRevealed()
{
    m_strip->addImage(capture(solidFrame(Qt::red), 1 / 25.0, 1));
    m_strip->addImage(capture(solidFrame(Qt::blue), 2 / 25.0, 2));
    m_preview->setRadioType(PreviewWidget::Vertical);
    m_preview->propertyItem(PropertyItem::YSpace)->setText(QStringLiteral("-100"));
    m_preview->propertyItem(PropertyItem::Scale)->setText(QStringLiteral("100"));
    m_preview->showImage();
    const QImage composite = m_preview->getGroupPixmap().toImage();

    QSignalSpy spy(m_preview, &PreviewWidget::exportFinishedSignal);
    m_preview->exportButtonClickHandle();
    // Writing happens off the GUI thread: the handler returns before it is done.
    QVERIFY(spy.isEmpty());
    QStringList errors;
    const QStringList first = waitFinished(spy, &errors);
    QCOMPARE(errors, QStringList());
    // A composite is named apart from single frames.
    const QString expected = m_out + QStringLiteral("/holiday_stitch_1.png");
    QCOMPARE(first, QStringList{expected});
    QImageReader reader(expected);
    QCOMPARE(reader.format(), QByteArray("png"));
    const QImage written = reader.read();
    QCOMPARE(written.convertToFormat(QImage::Format_RGB32), composite.convertToFormat(QImage::Format_RGB32));
    // The temporary folder goes once it is empty.
    QVERIFY(!QFileInfo::exists(m_out + QStringLiteral("/tmp")));
    QTRY_COMPARE(m_fileManager.calls.size(), 1);
    QCOMPARE(m_fileManager.calls.first(), QStringList{QUrl::fromLocalFile(expected).toString(QUrl::FullyEncoded)});
}

void TestExport::singleFramesInFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("readerFormat");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("png") << AppConfig::FORMAT_PNG << QByteArray("png") << QStringLiteral("png");
    QTest::newRow("jpg") << AppConfig::FORMAT_JPG << QByteArray("jpeg") << QStringLiteral("jpg");
    QTest::newRow("webp") << AppConfig::FORMAT_WEBP << QByteArray("webp") << QStringLiteral("webp");
}

void TestExport::singleFramesInFormat()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, readerFormat);
    QFETCH(QString, suffix);
    GlobalManager::instance()->saveSettings(AppConfig::FILE_EXTENSION, format);
    m_strip->addImage(capture(solidFrame(Qt::red, 640, 360), 1 / 25.0, 1));
    m_strip->addImage(capture(solidFrame(Qt::green, 320, 200), 2 / 25.0, 2));
    m_strip->addImage(capture(solidFrame(Qt::blue, 100, 100), 3 / 25.0, 3));
    m_strip->items().at(1)->checkBox()->click(); // out of the selection

    QStringList errors;
    const QStringList files = exportFrames(&errors);
    QCOMPARE(errors, QStringList());
    QCOMPARE(files, (QStringList{QStringLiteral("%1/holiday_1.%2").arg(m_out, suffix),
                                 QStringLiteral("%1/holiday_2.%2").arg(m_out, suffix)}));
    for (int i : {0, 1}) {
        QImageReader reader(files.at(i));
        QCOMPARE(reader.format(), readerFormat);
        const QImage written = reader.read();
        QCOMPARE(written.size(), i == 0 ? QSize(640, 360) : QSize(100, 100));
        const QImage frame = solidFrame(i == 0 ? Qt::red : Qt::blue, written.width(), written.height()).toImage();
        QVERIFY(TestSupport::meanDifference(written, frame) < 8);
    }
}

void TestExport::scaleHalvesWidth()
{
    m_strip->addImage(capture(solidFrame(Qt::red, 1000, 400), 1 / 25.0, 1));
    m_preview->propertyItem(PropertyItem::Scale)->setText(QStringLiteral("50"));
    m_preview->initScaleProperty();
    QCOMPARE(m_preview->propertyItem(PropertyItem::Width)->getText(), QStringLiteral("500"));
    QCOMPARE(m_preview->propertyItem(PropertyItem::Height)->getText(), QStringLiteral("200"));
    const QStringList files = exportStitch();
    QCOMPARE(files.size(), 1);
    QCOMPARE(QImageReader(files.first()).size(), QSize(500, 200));

    // Scale 0 writes nothing and says so.
    m_preview->propertyItem(PropertyItem::Scale)->setText(QStringLiteral("0"));
    QStringList errors;
    QCOMPARE(exportStitch(&errors), QStringList());
    QCOMPARE(errors.size(), 1);
    QCOMPARE(QDir(m_out).entryList(QDir::Files).size(), 1);
}

void TestExport::unregisteredWatermarkAndGuideOnce()
{
    GlobalManager* manager = GlobalManager::instance();
    manager->setRegister(false);
    manager->saveInAppSettings(AppConfig::SHOW_GUIDE_REGISTER_BY_EXPORT, false);
    m_strip->addImage(capture(solidFrame(QColor(20, 20, 20), 640, 360), 1 / 25.0, 1));
    m_preview->showImage();

    QSignalSpy guide(m_preview, &PreviewWidget::showRegisterGuide);
    QSignalSpy spy(m_preview, &PreviewWidget::exportFinishedSignal);
    m_preview->exportButtonClickHandle();
    QVERIFY(guide.wait(30000));
    // The files wait in the temporary folder until the guide is closed.
    QCOMPARE(spy.count(), 0);
    QCOMPARE(QDir(m_out + QStringLiteral("/tmp")).entryList(QDir::Files),
             QStringList{QStringLiteral("holiday_stitch_1.png")});
    m_preview->registerGuideClosedHandle();
    const QStringList files = waitFinished(spy);
    QCOMPARE(files, QStringList{m_out + QStringLiteral("/holiday_stitch_1.png")});
    QVERIFY(manager->readInAppSettings(AppConfig::SHOW_GUIDE_REGISTER_BY_EXPORT, false).toBool());

    // Text is stamped into the dark frame.
    const QImage plain = solidFrame(QColor(20, 20, 20), 640, 360).toImage();
    const QRect mark = TestSupport::changedBox(plain, QImage(files.first()), 240);
    QVERIFY2(mark.width() > 100 && mark.height() > 5,
             qPrintable(QStringLiteral("%1x%2").arg(mark.width()).arg(mark.height())));

    m_preview->exportButtonClickHandle();
    QCOMPARE(waitFinished(spy).size(), 1);
    QCOMPARE(guide.count(), 1);
}

void TestExport::nothingLostWhenNoFolderTakesFiles()
{
    GlobalManager* manager = GlobalManager::instance();
    const QString temp = m_work + QStringLiteral("/loose");
    QVERIFY(TestSupport::writeFile(temp + QStringLiteral("/holiday_1.png"), "one"));
    QVERIFY(TestSupport::writeFile(temp + QStringLiteral("/holiday_2.png"), "two"));
    // Neither the chosen folder nor the default one can take files.
    QVERIFY(TestSupport::writeFile(m_work + QStringLiteral("/a-file"), "not a folder"));
    manager->saveSettings(AppConfig::FILE_SAVE_PATH, m_work + QStringLiteral("/a-file/sub"));
    const QString fallback = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) + "/Glimmer";
    QVERIFY(QDir(fallback).removeRecursively());
    QVERIFY(TestSupport::writeFile(fallback, "blocks the default folder"));

    QStringList errors;
    const QStringList kept = manager->selectOutPutFilesByTempList(
        {temp + QStringLiteral("/holiday_1.png"), temp + QStringLiteral("/holiday_2.png")}, &errors);
    QVERIFY(QFile::remove(fallback));
    QCOMPARE(kept, (QStringList{temp + QStringLiteral("/holiday_1.png"), temp + QStringLiteral("/holiday_2.png")}));
    QCOMPARE(errors.size(), 2);
    QVERIFY2(errors.first().contains(QStringLiteral("holiday_1.png")), qPrintable(errors.first()));
    QCOMPARE(readFile(temp + QStringLiteral("/holiday_2.png")), QByteArray("two"));
}

void TestExport::tooTallForWebpIsReported()
{
    GlobalManager::instance()->saveSettings(AppConfig::FILE_EXTENSION, AppConfig::FORMAT_WEBP);
    m_strip->addImage(capture(solidFrame(Qt::red), 1 / 25.0, 1));
    m_strip->addImage(capture(solidFrame(Qt::green, 320, 17000), 2 / 25.0, 2));
    m_strip->addImage(capture(solidFrame(Qt::blue), 3 / 25.0, 3));

    QStringList errors;
    const QStringList files = exportFrames(&errors);
    // What could be written is kept; the failure names its picture and the way out.
    QCOMPARE(files, (QStringList{m_out + QStringLiteral("/holiday_1.webp"), m_out + QStringLiteral("/holiday_3.webp")}));
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors.first().startsWith(QStringLiteral("holiday_2.webp:")), qPrintable(errors.first()));
    QVERIFY(errors.first().contains(QStringLiteral("too tall")) && errors.first().contains(QStringLiteral("PNG")));
    QVERIFY(!QFileInfo::exists(m_out + QStringLiteral("/holiday_2.webp")));
}

void TestExport::stitchTooLargeForFormatIsRefused_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("ySpace");
    QTest::addColumn<int>("height");
    QTest::addColumn<QString>("limit");
    QTest::newRow("WEBP") << AppConfig::FORMAT_WEBP << "8000" << 16540 << "16383";
    QTest::newRow("JPG") << AppConfig::FORMAT_JPG << "33000" << 66540 << "65500";
}

void TestExport::stitchTooLargeForFormatIsRefused()
{
    // Refused at once, before anything is composed or written, naming the limit and PNG.
    QFETCH(QString, format);
    QFETCH(QString, ySpace);
    QFETCH(int, height);
    QFETCH(QString, limit);
    GlobalManager::instance()->saveSettings(AppConfig::FILE_EXTENSION, format);
    for (int i = 0; i < 3; ++i) {
        m_strip->addImage(capture(solidFrame(Qt::red), i / 25.0, i));
    }
    m_preview->setRadioType(PreviewWidget::Vertical);
    m_preview->propertyItem(PropertyItem::YSpace)->setText(ySpace);
    m_preview->propertyItem(PropertyItem::Scale)->setText(QStringLiteral("100"));
    m_preview->showImage();
    QCOMPARE(m_preview->compositeSize(), QSize(320, height));
    QSignalSpy spy(m_preview, &PreviewWidget::exportFinishedSignal);
    m_preview->exportButtonClickHandle();
    QVERIFY(spy.size() == 1 && spy.first().at(0).toStringList() == QStringList());
    const QStringList errors = spy.first().at(1).toStringList();
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors.first().contains(QStringLiteral("too tall")) && errors.first().contains(limit)
                 && errors.first().contains(QStringLiteral("PNG")),
             qPrintable(errors.first()));
    QVERIFY(!QFileInfo::exists(m_out) && !m_preview->exporter()->isRunning());
}

void TestExport::previewAndExportAfterManyCaptures()
{
    // A pass of many captures arriving back to back, as the window wires the
    // preview. The stitch is past what a painter can address.
    connect(GlobalManager::instance(), &GlobalManager::globalEvent, m_preview, [this](const QString& name) {
        if (name == AppConfig::SELECT_IMAGE_COMPLETE) {
            m_preview->scrollToEnd();
            m_preview->initScaleProperty();
        }
    });
    m_preview->resize(600, 500);
    m_preview->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_preview));
    m_preview->setRadioType(PreviewWidget::Vertical);
    m_preview->propertyItem(PropertyItem::YSpace)->setText(QStringLiteral("0"));
    m_preview->propertyItem(PropertyItem::Scale)->setText(QStringLiteral("100"));
    const int count = 100;
    auto color = [](int i) { return QColor::fromHsv(i * 37 % 360, 255, 100 + i % 3 * 70); };
    for (int i = 0; i < count; ++i) {
        m_strip->addImage(capture(solidFrame(color(i), 640, 360), i / 25.0, i));
    }
    // The size is current at once; the picture within the refresh interval.
    QCOMPARE(m_preview->sizeLabel()->text(), QStringLiteral("640x36000"));
    QCOMPARE(m_preview->propertyItem(PropertyItem::Height)->getText(), QStringLiteral("36000"));
    ImageCanvas* canvas = m_preview->canvas();
    auto bandColor = [canvas](int frame, int frameHeight) {
        const QImage shown = canvas->pixmap().toImage();
        const double f = double(shown.height()) / canvas->pictureSize().height();
        return shown.pixelColor(shown.width() / 2, int((frame * frameHeight + frameHeight / 2) * f));
    };
    auto near = [](const QColor& a, const QColor& b) {
        return qAbs(a.red() - b.red()) + qAbs(a.green() - b.green()) + qAbs(a.blue() - b.blue()) < 12;
    };
    QTRY_VERIFY(near(bandColor(count - 1, 360), color(count - 1)));
    QCOMPARE(canvas->pictureSize(), QSize(640, 36000));
    // Drawn for the screen from reduced copies, no full-size canvas kept.
    QVERIFY(canvas->pixmap().height() <= canvas->viewport()->height());
    QVERIFY(m_preview->groupPixmap().isNull());
    for (int i : {0, 37, 98}) {
        QVERIFY2(near(bandColor(i, 360), color(i)), qPrintable(QString::number(i)));
    }

    // It ends on the current selection: the last frame unticked.
    m_strip->items().last()->checkBox()->click();
    QCOMPARE(m_preview->compositeSize(), QSize(640, 35640));
    QTRY_COMPARE(canvas->pictureSize(), QSize(640, 35640));
    QTRY_VERIFY(near(bandColor(count - 2, 360), color(count - 2)));

    // 100 % shows, and the export writes, the full-size picture (every pixel of
    // such a stitch is checked by test_composition::tallCanvasIsExact).
    m_preview->changeZoomHandle(ImageCanvas::Actual);
    QCOMPARE(canvas->pixmap().size(), QSize(640, 35640));
    const QImage written(exportStitch().value(0));
    QCOMPARE(written.size(), QSize(640, 35640));
    QCOMPARE(written.pixel(634, (count - 2) * 360 + 356), color(count - 2).rgb());
    m_preview->changeZoomHandle(ImageCanvas::Fit);
    QVERIFY(m_preview->groupPixmap().isNull());
}

void TestExport::watermarkOnTallPicture()
{
    // Past the painter's 32767 rows the mark still lands in the middle, pixel
    // for pixel as on a picture of the same width whose height differs by an
    // even number of rows. (The very first mark of a run draws its glyphs
    // before they are cached, a shade apart: one goes first.)
    QImage small(640, 1000, QImage::Format_RGB32);
    small.fill(QColor(40, 40, 40));
    QImage first = small.copy();
    GlobalManager::changeImageWithWaterMark(first, AppConfig::APP_NAME);
    QImage tall(640, 70000, QImage::Format_RGB32);
    tall.fill(QColor(40, 40, 40));
    const QImage plain = tall;
    GlobalManager::changeImageWithWaterMark(small, AppConfig::APP_NAME);
    GlobalManager::changeImageWithWaterMark(tall, AppConfig::APP_NAME);
    const QRect mark = TestSupport::changedBox(plain.copy(0, 0, 640, 1000), small);
    QVERIFY(mark.width() > 300);
    QCOMPARE(TestSupport::changedBox(plain, tall), mark.translated(0, 34500));
    QVERIFY(tall.copy(0, 34500, 640, 1000) == small);
}

void TestExport::writeFailureHasReason()
{
    QString error;
    const QString path = GlobalManager::instance()->saveImage(solidFrame(Qt::red).toImage(),
                                                              m_work + QStringLiteral("/vanished/folder"),
                                                              QStringLiteral("/x.png"), QString(), &error);
    QVERIFY(path.isEmpty() && !error.isEmpty());
    QVERIFY2(!error.contains(QStringLiteral("Unknown error")), qPrintable(error));
    QVERIFY(!QFileInfo::exists(m_work + QStringLiteral("/vanished")));

    // A write the system stops half-way (a full disk; here a file size limit)
    // names the system's reason and the folder.
    const QString limited = m_work + QStringLiteral("/limited");
    QVERIFY(QDir().mkpath(limited));
    QImage noise(400, 400, QImage::Format_RGB32);
    QRandomGenerator(42).fillRange(reinterpret_cast<quint32*>(noise.bits()), int(noise.sizeInBytes() / 4));
    rlimit old{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &old), 0);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = old;
    small.rlim_cur = 64 * 1024;
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    const QString refused = GlobalManager::instance()->saveImage(noise, limited, QStringLiteral("/big.png"), QString(),
                                                                 &error);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &old), 0);
    QVERIFY(refused.isEmpty());
    QVERIFY2(error.contains(QString::fromLocal8Bit(std::strerror(EFBIG))), qPrintable(error));
    QVERIFY2(error.contains(limited), qPrintable(error));
    QCOMPARE(QDir(limited).entryList(QDir::Files | QDir::Hidden), QStringList());
}

void TestExport::revealFallsBackToFolderQuietly()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    QVERIFY(bus.unregisterService(QStringLiteral("org.freedesktop.FileManager1")));
    const QString file = m_work + QStringLiteral("/reveal me/holiday_1.png");
    QVERIFY(TestSupport::writeFile(file, "x"));
    GlobalManager::instance()->openFilesBySelect({file});
    QTRY_COMPARE(m_fileManager.urls.size(), 1);
    QCOMPARE(m_fileManager.urls.first(), QUrl::fromLocalFile(QFileInfo(file).absolutePath()));
    QCOMPARE(m_fileManager.calls.size(), 0);
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.FileManager1")));
}

void TestExport::percentSignsStayAsWritten_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("%1..%9") << QStringLiteral("Up 5%1 today %2%3%4%5%6%7%8%9");
    QTest::newRow("%%") << QStringLiteral("100%% sure %%1");
    QTest::newRow("%L1") << QStringLiteral("%L1 and %L2");
    QTest::newRow("url-encoded") << QStringLiteral("Talk%2C%20part%201");
}

void TestExport::percentSignsStayAsWritten()
{
    // Text and names holding placeholders reach the caption file and the
    // exported file names exactly as written.
    QFETCH(QString, text);
    GlobalManager* manager = GlobalManager::instance();
    CaptionManager* captions = CaptionManager::instance();
    const QFileInfo holiday = manager->getCurrentFile();
    manager->setCurrentFile(QFileInfo(m_work + QStringLiteral("/videos/") + text + QStringLiteral(".mp4")));
    auto restore = qScopeGuard([&] { manager->setCurrentFile(holiday); });

    QVERIFY(captions->createCaptions(TestSupport::utterances({{1000, 2000, text}, {3000, 4000, QStringLiteral("b")}}),
                                     true));
    const QString ass = captions->getTempAssFilePath();
    QVERIFY2(QFileInfo(ass).fileName().startsWith(text + QLatin1Char('-')), qPrintable(ass));
    QVERIFY2(QFileInfo(captions->getCaptionPath()).fileName().startsWith(text + QLatin1Char('-')),
             qPrintable(captions->getCaptionPath()));
    QVERIFY(readFile(captions->getCaptionPath()).contains(text.toUtf8()));
    QVERIFY2(readFile(ass).contains(QStringLiteral("Dialogue: 0,0:0:1.0,0:0:2.0,Default,,0,0,0,,%1\n").arg(text).toUtf8()),
             readFile(ass).constData());

    // An edit of one caption, then the same style applied to all.
    CaptionInfo* first = captions->getCaptionDataByIndex(1);
    first->captionEdit->text = text + QStringLiteral(" %3");
    first->captionEdit->fontSize = 24;
    captions->changeCaptionNew(first, false);
    QVERIFY2(readFile(ass).contains(("Dialogue: 0,0:0:1.0,0:0:2.0,Default,,0,0,0,,{\\fs24\\bord1\\shad1\\pos(192,268)}"
                                     + text + QStringLiteral(" %3\n")).toUtf8()),
             readFile(ass).constData());
    captions->changeCaptionNew(first, true);
    QVERIFY2(readFile(ass).contains(("Dialogue: 0,0:0:1.0,0:0:2.0,StyleAll,,0,0,0,,{\\fs24\\bord1\\shad1\\pos(192,268)}"
                                     + text + QStringLiteral(" %3\n")).toUtf8()),
             readFile(ass).constData());
    captions->clearCaptions();

    // Exported twice: the second file takes the next free name.
    m_strip->addImage(capture(solidFrame(Qt::red), 1 / 25.0, 1));
    QCOMPARE(exportFrames(), QStringList{m_out + QLatin1Char('/') + text + QStringLiteral("_1.png")});
    QCOMPARE(exportFrames(), QStringList{m_out + QLatin1Char('/') + text + QStringLiteral("_1(1).png")});
}

QTEST_MAIN(TestExport)
#include "test_export.moc"
