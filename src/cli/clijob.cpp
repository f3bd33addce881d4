#include "clijob.h"

#include "appconfig.h"
#include "bandfinder.h"
#include "captioninfo.h"
#include "captionmanager.h"
#include "captionsource.h"
#include "globalmanager.h"
#include "imagecomposer.h"
#include "picturewriter.h"
#include "progressreporter.h"

#include <QDir>
#include <QFileInfo>
#include <QRunnable>
#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <stdexcept>

namespace {
// More grabbers than this only add memory: decoding a seek is short.
constexpr int kMaxGrabbers = 4;
// PNG at zlib level 5 rather than 6: about a third less time for files some
// 3 % larger, the same pixels. Other formats keep their default quality.
constexpr int kPngQuality = 45;

int writeQuality(const QString& format)
{
    return format == AppConfig::FORMAT_PNG ? kPngQuality : -1;
}
} // namespace

CliJob::CliJob(const CliOptions& options, const QString& workDir, ProgressReporter* progress, QObject* parent)
    : QObject(parent)
    , m_options(options)
    , m_workDir(workDir)
    , m_progress(progress)
{
}

CliJob::~CliJob()
{
    QThreadPool::globalInstance()->waitForDone();
    releaseGrabbers();
}

void CliJob::releaseGrabbers()
{
    // The first player carries libav's log for the whole process; once it is
    // gone, the others would print straight to standard error. It goes last.
    while (!m_grabbers.isEmpty()) {
        delete m_grabbers.takeLast();
    }
}

void CliJob::fail(const QString& message, int exitCode)
{
    if (m_done) {
        return;
    }
    m_done = true;
    m_progress->error(message);
    emit finished(exitCode);
}

void CliJob::succeed(const QString& summary)
{
    m_done = true;
    m_progress->done(summary);
    emit finished(0);
}

void CliJob::start()
{
    const QFileInfo video(m_options.video);
    if (!video.isFile()) {
        fail(QStringLiteral("cannot read video %1: %2")
                 .arg(m_options.video, video.exists() ? QStringLiteral("it is not a file") : QStringLiteral("no such file")));
        return;
    }
    if (!checkOutput()) {
        return;
    }
    GlobalManager::instance()->setCurrentFile(video);

    // The players load the video while the subtitles are being prepared;
    // those beyond the number of captions are let go again.
    const int cores = qMax(1, QThread::idealThreadCount());
    const int most = qMin(cores, kMaxGrabbers);
    for (int i = 0; i < most; ++i) {
        if (!addGrabber(video.absoluteFilePath(), qMax(1, cores / most))) {
            return;
        }
    }
    QString error;
    const QString assPath = CaptionSource::load(video.absoluteFilePath(), m_options.subtitles, m_workDir, &error);
    if (assPath.isEmpty()) {
        fail(error);
        return;
    }
    if (!chooseShots()) {
        return;
    }
    while (m_grabbers.size() > m_chosen.size()) {
        delete m_grabbers.takeLast();
    }
    for (FrameGrabber* grabber : qAsConst(m_grabbers)) {
        grabber->setSubtitles(assPath);
    }
}

bool CliJob::addGrabber(const QString& video, int threads)
{
    FrameGrabber* grabber = nullptr;
    try {
        grabber = new FrameGrabber();
    } catch (const std::runtime_error& error) {
        fail(QStringLiteral("the video player could not be started: %1").arg(QString::fromLocal8Bit(error.what())));
        return false;
    }
    m_grabbers.append(grabber);
    grabber->setDecoderThreads(threads);
    connect(grabber, &FrameGrabber::ready, this, &CliJob::grabberReady);
    connect(grabber, &FrameGrabber::failed, this, &CliJob::grabberFailed);
    connect(grabber, &FrameGrabber::frameReady, this,
            [this](int tag, const QImage& image, const QImage& plain) { frameArrived(tag, image, plain); });
    grabber->open(video);
    return true;
}

bool CliJob::checkOutput()
{
    if (!m_options.output.isEmpty()) {
        const QFileInfo out(m_options.output);
        const QFileInfo folder(out.absolutePath());
        if (out.isDir()) {
            fail(QStringLiteral("cannot write %1: it is a folder").arg(m_options.output));
        } else if (!folder.isDir()) {
            fail(QStringLiteral("cannot write %1: the folder %2 does not exist").arg(m_options.output, out.path()));
        } else if (!folder.isWritable()) {
            fail(QStringLiteral("cannot write %1: the folder %2 is not writable").arg(m_options.output, out.path()));
        } else if (out.exists() && !m_options.force) {
            fail(QStringLiteral("%1 already exists: add --force to replace it").arg(m_options.output));
        } else {
            return true;
        }
        return false;
    }
    const QFileInfo folder(m_options.framesDir);
    if (folder.exists() && !folder.isDir()) {
        fail(QStringLiteral("cannot write into %1: it is not a folder").arg(m_options.framesDir));
        return false;
    }
    if (!QDir().mkpath(m_options.framesDir)) {
        fail(QStringLiteral("cannot create the folder %1").arg(m_options.framesDir));
        return false;
    }
    if (!QFileInfo(m_options.framesDir).isWritable()) {
        fail(QStringLiteral("cannot write into %1: the folder is not writable").arg(m_options.framesDir));
        return false;
    }
    return true;
}

bool CliJob::chooseShots()
{
    QString error;
    const QList<CaptionInfo*> captions = CaptionManager::instance()->getCaptions();
    const QList<CaptionInfo*> chosen = CaptionSource::select(captions, m_options.captions, m_options.search, &error);
    if (chosen.isEmpty()) {
        fail(error);
        return false;
    }
    for (CaptionInfo* info : chosen) {
        Shot shot;
        shot.number = captions.indexOf(info) + 1;
        shot.start = info->start;
        shot.startMs = info->startMs();
        shot.seconds = FrameGrabber::captureSeconds(info->startMs());
        m_chosen.append(shot);
    }
    return true;
}

void CliJob::grabberReady()
{
    if (m_done || m_chosen.isEmpty()) {
        return;
    }
    // Capturing starts with the first player ready; the others join as they load.
    if (!m_capturing) {
        beginCapture();
    } else {
        dispatch();
    }
}

void CliJob::grabberFailed(FrameGrabber::Failure failure, const QString& detail)
{
    const QString name = QFileInfo(m_options.video).fileName();
    switch (failure) {
    case FrameGrabber::LoadFailed:
        fail(QStringLiteral("cannot read video %1: %2").arg(name, detail));
        break;
    case FrameGrabber::NoVideo:
        fail(QStringLiteral("%1 has no video stream").arg(name));
        break;
    case FrameGrabber::SubtitlesFailed:
        fail(QStringLiteral("the player could not load the subtitles: %1").arg(detail));
        break;
    default:
        fail(QStringLiteral("a frame of %1 could not be taken: %2").arg(name, detail));
        break;
    }
}

void CliJob::beginCapture()
{
    const auto ready = std::find_if(m_grabbers.cbegin(), m_grabbers.cend(),
                                    [](const FrameGrabber* grabber) { return grabber->isReady(); });
    if (ready == m_grabbers.cend()) {
        return;
    }
    m_capturing = true;
    const double duration = (*ready)->duration();
    for (const Shot& shot : qAsConst(m_chosen)) {
        // As the window's capture: past the end there would only be the last
        // frame again, under another caption's text.
        if (shot.startMs < 0) {
            m_progress->note(QStringLiteral("caption %1 has no readable start time (%2): skipped")
                                 .arg(QString::number(shot.number), shot.start));
        } else if (duration > 0.0 && shot.startMs / 1000.0 >= duration) {
            m_progress->note(QStringLiteral("caption %1 starts at %2, at or after the end of the video (%3 s): skipped")
                                 .arg(QString::number(shot.number), shot.start,
                                      QString::number(duration, 'f', 2)));
        } else {
            m_shots.append(shot);
        }
    }
    if (m_shots.isEmpty()) {
        fail(QStringLiteral("no chosen caption starts before the end of the video (%1 s)").arg(duration, 0, 'f', 2));
        return;
    }
    if (!m_options.framesDir.isEmpty() && !m_options.force) {
        for (int i = 0; i < m_shots.size(); ++i) {
            if (QFileInfo::exists(framePath(i))) {
                fail(QStringLiteral("%1 already exists: add --force to replace it").arg(framePath(i)));
                return;
            }
        }
    }
    m_progress->start(m_shots.size(), QStringLiteral("frames"));
    dispatch();
}

void CliJob::dispatch()
{
    if (m_done) {
        return;
    }
    // Frames waiting for their turn or for their file count against the
    // backlog, so that memory stays at a few frames whatever the speed.
    const int backlog = m_grabbers.size() + QThreadPool::globalInstance()->maxThreadCount();
    for (FrameGrabber* grabber : qAsConst(m_grabbers)) {
        if (m_nextShot >= m_shots.size() || m_waiting.size() + m_writesRunning >= backlog) {
            return;
        }
        if (grabber->isReady()) {
            const int index = m_nextShot++;
            grabber->grab(index, m_shots.at(index).seconds, m_options.autoBands && index > 0);
        }
    }
}

void CliJob::frameArrived(int tag, const QImage& image, const QImage& plain)
{
    if (m_done) {
        return;
    }
    m_waiting.insert(tag, Frame{image, plain});
    while (!m_done && m_waiting.contains(m_nextFrame)) {
        const Frame frame = m_waiting.take(m_nextFrame);
        useFrame(m_nextFrame, frame);
        ++m_nextFrame;
    }
    dispatch();
    maybeFinish();
}

void CliJob::useFrame(int index, const Frame& frame)
{
    const Shot& shot = m_shots.at(index);
    m_progress->step(QStringLiteral("caption %1 at %2").arg(QString::number(shot.number), shot.start));
    if (!m_options.framesDir.isEmpty()) {
        writeFrame(index, frame.image);
        return;
    }
    if (!m_options.autoBands) {
        if (index == 0 && !startCanvas(frame.image.size())) {
            return;
        }
        m_composer->place(index, frame.image);
        return;
    }
    if (index == 0) {
        m_bands.append(frame.image);
        return;
    }
    const bool vertical = m_options.layout == CliOptions::Vertical;
    const QRect band = BandFinder::captionBand(frame.image, frame.plain, vertical,
                                               BandFinder::marginFor(frame.image.size()));
    if (band.isNull()) {
        m_progress->note(QStringLiteral("caption %1 shows nothing in its frame: the frame is kept whole")
                             .arg(shot.number));
        m_bands.append(frame.image);
    } else {
        m_bands.append(frame.image.copy(band));
    }
}

bool CliJob::startCanvas(const QSize& firstSize)
{
    const int layout = m_options.layout;
    const int space = m_options.space;
    const int length = layout == CliOptions::Horizontal ? firstSize.width() : firstSize.height();
    if (layout != CliOptions::Grid && m_shots.size() > 1 && space <= -length) {
        fail(QStringLiteral("--space %1 leaves nothing of the frames after the first: they are %2 pixels %3")
                 .arg(QString::number(space), QString::number(length),
                      layout == CliOptions::Horizontal ? QStringLiteral("wide") : QStringLiteral("tall")),
             2);
        return false;
    }
    const int xSpace = layout == CliOptions::Vertical ? 0 : space;
    const int ySpace = layout == CliOptions::Horizontal ? 0 : space;
    m_composer = std::make_unique<ImageComposer>(layout, xSpace, ySpace, m_options.columns, m_shots.size(), firstSize);
    const QSize size = m_composer->canvasSize();
    const QString problem = PictureWriter::formatProblem(m_options.format, scaledSize(size));
    if (!problem.isEmpty()) {
        fail(problem);
        return false;
    }
    if (!m_composer->begin()) {
        fail(QStringLiteral("the stitched picture would be %1x%2 pixels, more than this machine can hold")
                 .arg(QString::number(size.width()), QString::number(size.height())));
        return false;
    }
    return true;
}

QSize CliJob::scaledSize(const QSize& size) const
{
    // The export's own arithmetic: the width in single precision, the height in proportion.
    const int width = static_cast<int>(static_cast<float>(size.width() * m_options.scale) / 100.0f);
    if (width == size.width() || size.isEmpty()) {
        return size;
    }
    return QSize(width, qRound(qreal(width) / size.width() * size.height()));
}

QString CliJob::framePath(int index) const
{
    // The export's naming of single frames: <video>_<n>.<format>.
    return QStringLiteral("%1/%2_%3.%4")
        .arg(m_options.framesDir, QFileInfo(m_options.video).completeBaseName(), QString::number(index + 1),
             m_options.format.toLower());
}

void CliJob::writeFrame(int index, const QImage& image)
{
    const QString path = framePath(index);
    const QString format = m_options.format;
    const bool registered = GlobalManager::instance()->isRegister();
    QImage frame = image;
    ++m_writesRunning;
    QThreadPool::globalInstance()->start(QRunnable::create([this, frame, path, format, registered]() mutable {
        // A single frame is stamped where it is written, as the export worker does.
        if (!registered) {
            PictureWriter::paintWatermark(frame, AppConfig::APP_NAME);
        }
        QString error;
        PictureWriter::write(frame, path, format, &error, writeQuality(format));
        frame = QImage();
        QMetaObject::invokeMethod(this, [this, path, error]() { frameWritten(path, error); }, Qt::QueuedConnection);
    }));
}

void CliJob::frameWritten(const QString& path, const QString& error)
{
    --m_writesRunning;
    if (!error.isEmpty()) {
        fail(QStringLiteral("cannot write %1: %2").arg(path, error));
        return;
    }
    ++m_written;
    dispatch();
    maybeFinish();
}

void CliJob::maybeFinish()
{
    if (m_done || m_finishing || m_nextFrame < m_shots.size() || m_writesRunning > 0) {
        return;
    }
    if (!m_options.framesDir.isEmpty()) {
        succeed(QStringLiteral("wrote %1 frame(s) to %2").arg(QString::number(m_written), m_options.framesDir));
        return;
    }
    // Out of the grabber's own call, so that it may be released.
    m_finishing = true;
    QMetaObject::invokeMethod(this, &CliJob::finishPicture, Qt::QueuedConnection);
}

void CliJob::finishPicture()
{
    // The grabbers have done their part; their memory goes before the picture is encoded.
    releaseGrabbers();

    QImage composite = m_composer ? m_composer->finish() : ImageComposer::stack(m_bands, m_options.layout);
    m_composer.reset();
    m_bands.clear();
    if (composite.isNull()) {
        fail(QStringLiteral("the stitched picture is too large to hold in memory"));
        return;
    }
    const QString problem = PictureWriter::formatProblem(m_options.format, scaledSize(composite.size()));
    if (!problem.isEmpty()) {
        fail(problem);
        return;
    }
    // As the window exports a composite: stamped at full size when unregistered,
    // scaled, then stamped once more where it is written.
    GlobalManager* manager = GlobalManager::instance();
    if (!manager->isRegister()) {
        PictureWriter::paintWatermark(composite, AppConfig::APP_NAME);
    }
    const int width = static_cast<int>(static_cast<float>(composite.width() * m_options.scale) / 100.0f);
    QImage picture = width == composite.width() ? composite : ImageComposer::scaledToWidth(composite, width);
    composite = QImage();
    if (picture.isNull()) {
        fail(QStringLiteral("--scale %1 leaves no picture").arg(m_options.scale));
        return;
    }
    if (!manager->isRegister()) {
        PictureWriter::paintWatermark(picture, AppConfig::APP_NAME);
    }
    QString error;
    if (!PictureWriter::write(picture, m_options.output, m_options.format, &error, writeQuality(m_options.format))) {
        fail(QStringLiteral("cannot write %1: %2").arg(m_options.output, error));
        return;
    }
    succeed(QStringLiteral("wrote %1 (%2x%3)")
                .arg(m_options.output, QString::number(picture.width()), QString::number(picture.height())));
}
