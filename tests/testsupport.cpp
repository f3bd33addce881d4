#include "testsupport.h"

#include "confirmation.h"

#include <QApplication>
#include <QAbstractButton>
#include <QMessageBox>
#include <QTimer>

#include "appconfig.h"
#include "captioninfo.h"
#include "captionmanager.h"
#include "globalmanager.h"
#include "mainwindow.h"
#include "mpvwidget.h"
#include "videoplaywidget.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTest>
#include <QTime>
#include <QtGlobal>

#include <clocale>
#include <cstdio>
#include <cstdlib>

namespace TestSupport {

void isolate()
{
    if (qEnvironmentVariableIsEmpty("GLIMMER_TEST")) {
        std::fputs("Refusing to run outside ctest: HOME and XDG folders are not isolated.\n", stderr);
        std::exit(2);
    }
    QStandardPaths::setTestModeEnabled(true);
    std::setlocale(LC_NUMERIC, "C");
    AppConfig::initResources();
    CaptionManager::registerMetaTypes();
    QSettings(QSettings::UserScope, AppConfig::APP_NAME, QString()).clear();
}

QString makeWorkDir(const QString& name)
{
    const QString path = QDir::tempPath() + QStringLiteral("/glimmer-test-") + name;
    QDir(path).removeRecursively();
    QDir().mkpath(path);
    return path;
}

int run(const QString& program, const QStringList& arguments, int timeoutMs, QByteArray* output)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForStarted(10000)) {
        return -1;
    }
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished(2000);
        return -1;
    }
    const QByteArray out = process.readAll();
    if (output) {
        *output = out;
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        std::fprintf(stderr, "%s failed: %s\n", qPrintable(program), out.constData());
    }
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

int ffmpeg(const QStringList& arguments, int timeoutMs)
{
    QStringList args{QStringLiteral("-hide_banner"), QStringLiteral("-loglevel"), QStringLiteral("error"),
                     QStringLiteral("-y")};
    args += arguments;
    return run(QStringLiteral("ffmpeg"), args, timeoutMs);
}

bool makeVideo(const QString& path, double seconds, int width, int height, int fps, bool withAudio)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    const QString duration = QString::number(seconds);
    QStringList args{QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                     QStringLiteral("testsrc2=size=%1x%2:rate=%3:duration=%4")
                         .arg(width)
                         .arg(height)
                         .arg(fps)
                         .arg(duration)};
    if (withAudio) {
        args += {QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                 QStringLiteral("sine=frequency=440:duration=%1").arg(duration)};
    }
    args += {QStringLiteral("-c:v"), QStringLiteral("libx264"), QStringLiteral("-preset"),
             QStringLiteral("ultrafast"), QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p"),
             QStringLiteral("-g"), QString::number(fps)};
    if (withAudio) {
        args += {QStringLiteral("-c:a"), QStringLiteral("aac"), QStringLiteral("-shortest")};
    }
    args += path;
    return ffmpeg(args) == 0 && QFileInfo(path).size() > 0;
}

QByteArray utterances(const QList<std::tuple<int, int, QString>>& items)
{
    QJsonArray array;
    for (const auto& item : items) {
        array.append(QJsonObject{{QStringLiteral("start_time"), std::get<0>(item)},
                                 {QStringLiteral("end_time"), std::get<1>(item)},
                                 {QStringLiteral("text"), std::get<2>(item)}});
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("state"), QStringLiteral("success")},
                                     {QStringLiteral("utterances"), array}})
        .toJson(QJsonDocument::Compact);
}

QByteArray assFile(const QByteArray& events, const QByteArray& moreStyles)
{
    return "[Script Info]\nScriptType: v4.00+\n\n[V4+ Styles]\n"
           "Format: Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, OutlineColour, BackColour, Bold, Italic, "
           "Underline, StrikeOut, ScaleX, ScaleY, Spacing, Angle, BorderStyle, Outline, Shadow, Alignment, MarginL, "
           "MarginR, MarginV, Encoding\n"
           "Style: Default,Arial,20,&H00FFFFFF,&H000000FF,&H00000000,&H80000000,0,0,0,0,100,100,0,0,1,2,1,2,20,20,20,1\n"
           + moreStyles
           + "\n[Events]\nFormat: Layer, Start, End, Style, Name, MarginL, MarginR, MarginV, Effect, Text\n" + events;
}

QByteArray srt(const QList<std::tuple<int, int, QString>>& captions)
{
    const auto time = [](int ms) { return QTime(0, 0).addMSecs(ms).toString(QStringLiteral("hh:mm:ss,zzz")); };
    QString text;
    int number = 0;
    for (const auto& caption : captions) {
        text += QStringLiteral("%1\n%2 --> %3\n%4\n\n")
                    .arg(++number)
                    .arg(time(std::get<0>(caption)), time(std::get<1>(caption)), std::get<2>(caption));
    }
    return text.toUtf8();
}

QStringList captionTexts()
{
    QStringList texts;
    for (const CaptionInfo* info : CaptionManager::instance()->getCaptions()) {
        texts << info->text;
    }
    return texts;
}

MainWindow* showMainWindow()
{
    qApp->setStyleSheet(AppConfig::loadApplicationStyleSheet());
    auto* window = new MainWindow();
    window->show();
    window->resize(AppConfig::rate(QSize(1100, 741)));
    window->videoPlayWidget()->getMpvWidget()->setOption(QStringLiteral("ao"), QStringLiteral("null"));
    if (!QTest::qWaitForWindowExposed(window)) {
        std::fputs("The main window was never shown.\n", stderr);
    }
    return window;
}

PlayerPanel::PlayerPanel(const QSize& size)
    : widget(new VideoPlayWidget())
{
    mpv()->setOption(QStringLiteral("ao"), QStringLiteral("null"));
    widget->resize(size);
    widget->show();
    shown = QTest::qWaitForWindowExposed(widget.get());
    QObject::connect(mpv(), &MpvWidget::playbackRestarted, widget.get(),
                     [this](MpvWidget::RestartKind kind) { restarts.append(kind); });
}

PlayerPanel::~PlayerPanel() = default;

MpvWidget* PlayerPanel::mpv() const
{
    return widget->getMpvWidget();
}

bool PlayerPanel::open(const QString& path, bool paused)
{
    restarts.clear();
    if (!shown || !widget->openFile(path) || !waitFor(MpvWidget::RestartAfterLoad, 20000)) {
        return false;
    }
    if (paused) {
        widget->pause();
    }
    return true;
}

bool PlayerPanel::waitFor(MpvWidget::RestartKind kind, int timeoutMs)
{
    return QTest::qWaitFor([&] { return restarts.contains(kind); }, timeoutMs);
}

bool PlayerPanel::seekForCapture(double seconds)
{
    restarts.clear();
    mpv()->seekToPositionForCapture(seconds);
    return waitFor(MpvWidget::RestartAfterCaptureSeek);
}

bool openVideo(MainWindow* window, const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    return window->videoPlayWidget()->openFile(path) && QTest::qWaitFor([&name]() {
               return GlobalManager::instance()->getCurrentFile().fileName() == name;
           }, 20000);
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return false;
    }
    return file.write(bytes) == bytes.size();
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QPixmap solidFrame(const QColor& color, int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(color);
    return QPixmap::fromImage(std::move(image));
}

AppConfig::CaptureData capture(const QPixmap& pixmap, double time, int frame)
{
    AppConfig::CaptureData data;
    data.pixmap = pixmap;
    data.time = time;
    data.frame = frame;
    return data;
}

static int channelDifference(QRgb p, QRgb q)
{
    return qAbs(qRed(p) - qRed(q)) + qAbs(qGreen(p) - qGreen(q)) + qAbs(qBlue(p) - qBlue(q));
}

double meanDifference(const QImage& a, const QImage& b, const QRect& area)
{
    const QImage x = a.convertToFormat(QImage::Format_RGB32);
    const QImage y = b.convertToFormat(QImage::Format_RGB32);
    const QRect r = area.isNull() ? x.rect() : area;
    if (x.size() != y.size() || r.isEmpty()) {
        return 1e9;
    }
    qint64 sum = 0;
    for (int row = r.top(); row <= r.bottom(); ++row) {
        const auto* p = reinterpret_cast<const QRgb*>(x.constScanLine(row));
        const auto* q = reinterpret_cast<const QRgb*>(y.constScanLine(row));
        for (int col = r.left(); col <= r.right(); ++col) {
            sum += channelDifference(p[col], q[col]);
        }
    }
    return double(sum) / (3.0 * r.width() * r.height());
}

QRect changedBox(const QImage& a, const QImage& b, int threshold)
{
    const QImage x = a.convertToFormat(QImage::Format_RGB32);
    const QImage y = b.convertToFormat(QImage::Format_RGB32);
    QRect box;
    for (int row = 0; row < qMin(x.height(), y.height()); ++row) {
        const auto* p = reinterpret_cast<const QRgb*>(x.constScanLine(row));
        const auto* q = reinterpret_cast<const QRgb*>(y.constScanLine(row));
        for (int col = 0; col < qMin(x.width(), y.width()); ++col) {
            if (channelDifference(p[col], q[col]) > threshold) {
                box |= QRect(col, row, 1, 1);
            }
        }
    }
    return box;
}

QList<QVariant> eventValues(const QSignalSpy& spy, const QString& name)
{
    QList<QVariant> values;
    for (const QList<QVariant>& call : spy) {
        if (call.at(0).toString() == name) {
            values.append(call.at(1));
        }
    }
    return values;
}

bool hasEvent(const QSignalSpy& spy, const QString& name)
{
    return !eventValues(spy, name).isEmpty();
}

quint16 freePort()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost, 0);
    return probe.serverPort();
}

QString librivox(const QString& part)
{
    return QStringLiteral("/usr/share/pocketsphinx/test/data/librivox/sense_and_sensibility_01_austen_64kb-%1.wav")
        .arg(part);
}

bool makeSpeechMp3(const QStringList& wavs, const QString& output)
{
    QStringList args;
    QString filter;
    for (int i = 0; i < wavs.size(); ++i) {
        args << QStringLiteral("-i") << wavs.at(i);
        filter += QStringLiteral("[%1:a]").arg(i);
    }
    filter += QStringLiteral("concat=n=%1:v=0:a=1").arg(wavs.size());
    args << QStringLiteral("-filter_complex") << filter << QStringLiteral("-vn") << QStringLiteral("-ar")
         << QStringLiteral("16000") << QStringLiteral("-ac") << QStringLiteral("1") << QStringLiteral("-format")
         << QStringLiteral("wav") << output;
    return ffmpeg(args) == 0;
}

void settleLayouts()
{
    // A layout pass can post further requests (nested layouts, resized parents).
    for (int pass = 0; pass < 4; ++pass) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        QCoreApplication::processEvents();
    }
}

// Answers the next confirmation with the button whose text starts with answer;
// the question it asked lands in question.
void answerConfirmation(const QString& answer, QString* question)
{
    auto* poll = new QTimer;
    QObject::connect(poll, &QTimer::timeout, [poll, answer, question]() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* box = qobject_cast<QMessageBox*>(widget);
            if (!box || !box->isVisible() || box->objectName() != QLatin1String(Confirmation::kObjectName)) {
                continue;
            }
            poll->deleteLater();
            poll->stop();
            if (question) {
                *question = box->text();
            }
            for (QAbstractButton* button : box->buttons()) {
                if (button->text().startsWith(answer)) {
                    button->click();
                }
            }
            return;
        }
    });
    poll->start(20);
}

void isolateEnvironment(const QString& root)
{
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        qputenv(name, root.toUtf8() + '/' + name);
    }
    qputenv("TMPDIR", root.toUtf8());
    qputenv("GLIMMER_TEST", "1");
    QDir().mkpath(root + QStringLiteral("/HOME"));
    QDir().mkpath(root + QStringLiteral("/XDG_CONFIG_HOME"));
}

} // namespace TestSupport
