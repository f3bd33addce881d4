#include "capturecontroller.h"

#include "appconfig.h"
#include "captioninfo.h"
#include "captionmanager.h"
#include "capturesource.h"
#include "framegrabber.h"
#include "globalmanager.h"
#include "imageitem.h"
#include "imageswidget.h"
#include "logcategories.h"

#include <QDebug>
#include <QTimer>

CaptureController::CaptureController(CaptureSource* source, ImagesWidget* strip, QObject* parent)
    : QObject(parent)
    , m_source(source)
    , m_strip(strip)
    , m_settleTimer(new QTimer(this))
    , m_frameTimeout(new QTimer(this))
{
    m_settleTimer->setSingleShot(true);
    m_settleTimer->setInterval(kSettleMs);
    connect(m_settleTimer, &QTimer::timeout, this, [this]() {
        m_settled = true;
        tryCapture();
    });
    m_frameTimeout->setSingleShot(true);
    connect(m_frameTimeout, &QTimer::timeout, this, [this]() {
        if (m_state == State::SeekSent) {
            // The seek was never answered: end the pass instead of waiting for ever.
            qCDebug(lcUi) << "Error seekToPositionForCapture: no reply";
            m_queue.clear();
            m_currentItem = nullptr;
            finishPass();
            emit failed(tr("Capture failed"), tr("The player did not reach the requested moment."));
            return;
        }
        qCDebug(lcUi) << "capture: no playback restart after the seek, capturing anyway";
        setState(State::FrameReady);
        tryCapture();
    });
    connect(source, &CaptureSource::seekAnswered, this, &CaptureController::seekAnswered);
    connect(source, &CaptureSource::frameReady, this, &CaptureController::frameReady);
    connect(source, &CaptureSource::subtitlesLoaded, this, &CaptureController::subtitlesLoaded);
    connect(source, &CaptureSource::snapshotTaken, this, &CaptureController::snapshotTaken);
    // Queued captions and the edited one are the manager's records: let go of
    // them before they are freed.
    connect(CaptionManager::instance(), &CaptionManager::aboutToReplaceCaptions, this, [this]() {
        m_queue.clear();
        m_editedCaption = nullptr;
    });
}

double CaptureController::seekSeconds(const CaptionInfo* caption)
{
    return FrameGrabber::captureSeconds(caption->startMs());
}

void CaptureController::setState(State state)
{
    if (m_state != state) {
        m_state = state;
        emit stateChanged(state);
    }
}

// ---------------------------------------------------------------- now

void CaptureController::captureNow()
{
    if (!m_source->isLoaded()) {
        emit failed(tr("Nothing to capture"), tr("Open a video first, then capture its frames."));
        return;
    }
    m_source->pause();
    const QPixmap pixmap = m_source->snapshot();
    if (pixmap.isNull()) {
        qCDebug(lcUi) << "capture failed.";
        return;
    }
    AppConfig::CaptureData data;
    data.pixmap = pixmap;
    data.time = m_source->currentSecond();
    data.frame = m_source->currentFrame();
    qCDebug(lcUi) << "capture complete:" << data.time << data.frame;
    GlobalManager::instance()->emitEvent(AppConfig::CAPTURE_IMAGE, QVariant::fromValue(data));
}

// ---------------------------------------------------------------- checked

void CaptureController::startCaptureChecked()
{
    m_queue.clear();
    m_skipped = 0;
    const double duration = m_source->duration();
    for (CaptionInfo* info : CaptionManager::instance()->getCaptions()) {
        if (!info->isCheck) {
            continue;
        }
        // A caption past the end would only give the last frame again, under
        // another caption's text; one without a readable start has no moment.
        if (info->startMs() < 0 || (duration > 0 && info->startMs() / 1000.0 >= duration)) {
            ++m_skipped;
            continue;
        }
        m_queue.append(info);
    }
    if (m_queue.isEmpty()) {
        if (m_skipped > 0) {
            const int skipped = m_skipped;
            m_skipped = 0;
            m_source->setCaptureType(0);
            emit checkedPassFinished(skipped);
        } else if (!m_source->isLoaded()) {
            emit failed(tr("Nothing to capture"), tr("Open a video first, then capture its frames."));
        } else {
            // The player keeps its capture-checked mode, as after any empty pass.
            emit failed(tr("No caption ticked"),
                        tr("Tick the captions whose moments you want in the caption list, then press "
                           "Capture checked again."));
        }
        return;
    }
    m_pass = Pass::Checked;
    showBusy(tr("Capturing images"));
    seekNextQueued();
}

bool CaptureController::seekNextQueued()
{
    if (m_queue.isEmpty()) {
        return false;
    }
    seekTo(seekSeconds(m_queue.takeFirst()));
    return true;
}

void CaptureController::captureCheckedStep(const QPixmap& pixmap)
{
    if (pixmap.isNull()) {
        qCDebug(lcUi) << "capture select image failed.";
        finishPass();
        emit failed(tr("Capture failed"), tr("The frame could not be captured from the player."));
        return;
    }
    AppConfig::CaptureData data;
    data.pixmap = pixmap;
    data.time = m_source->currentSecond();
    data.frame = m_source->currentFrame();
    qCDebug(lcUi) << "capture one select image complete:" << data.time << data.frame;
    setState(State::Captured);
    GlobalManager::instance()->emitEvent(AppConfig::CAPTURE_IMAGE, QVariant::fromValue(data));
    if (seekNextQueued()) {
        return;
    }
    const int skipped = m_skipped;
    m_skipped = 0;
    m_source->setCaptureType(0);
    finishPass();
    emit checkedPassFinished(skipped);
}

// ---------------------------------------------------------------- again after an edit

void CaptureController::captionEdited(CaptionInfo* caption, bool isAll)
{
    m_source->pause();
    m_recaptureAllPending = isAll;
    m_editedCaption = isAll ? nullptr : caption;
}

void CaptureController::setEditedCaption(CaptionInfo* caption)
{
    m_editedCaption = caption;
}

void CaptureController::subtitlesLoaded()
{
    const QList<ImageItem*> items = m_strip ? m_strip->items() : QList<ImageItem*>();
    qCDebug(lcUi) << "EVENT_CODE_LOAD_CAPTION_COMPLETE" << items.size();
    qCDebug(lcUi) << "caption_info:" << (m_editedCaption ? "true" : "false");
    if (isBusy()) {
        return;
    }
    if (!m_editedCaption) {
        if (!items.isEmpty() && m_recaptureAllPending) {
            m_pass = Pass::RecaptureAll;
            showBusy(tr("Applying current style"));
            m_recapturedPixmaps.clear();
            m_currentItem = items.constFirst();
            qCDebug(lcUi) << "seektoposition after load caption, seek index = 0";
            seekTo(m_currentItem->getCpatureTime());
            m_recaptureAllPending = false;
        }
        return;
    }
    const double now = m_source->currentSecond();
    for (ImageItem* item : items) {
        if (qAbs(item->getCpatureTime() - now) <= 0.05) {
            m_currentItem = item;
            break;
        }
    }
    qCDebug(lcUi) << "m_current_image_item is nullptr:" << (m_currentItem ? "false" : "true");
    if (!m_currentItem) {
        return;
    }
    qCDebug(lcUi) << "capture time compare:" << m_currentItem->getCpatureTime() << now << m_source->currentFrame();
    m_pass = Pass::RecaptureSingle;
    showBusy(tr("Applying current style"));
    if (m_currentItem->getCpatureTime() != now) {
        seekTo(m_currentItem->getCpatureTime());
        return;
    }
    // Already there: the frame on screen only needs the new subtitles.
    setState(State::FrameReady);
    m_settled = false;
    m_settleTimer->start();
}

void CaptureController::recaptureSingleStep(const QPixmap& pixmap)
{
    if (!m_currentItem) {
        finishPass();
        return;
    }
    qCDebug(lcUi) << "重新截图-单张:" << m_currentItem->getCpatureTime();
    setState(State::Captured);
    ImageItem* item = m_currentItem;
    m_currentItem = nullptr;
    replaceFrame(item, pixmap);
    if (m_strip) {
        m_strip->updateImageShow();
    }
    emit frameReplaced(item);
    finishPass();
    emit recaptureFinished();
}

void CaptureController::recaptureAllStep(const QPixmap& pixmap)
{
    const QList<ImageItem*> items = m_recaptureItems;
    if (items.size() <= m_recapturedPixmaps.size()) {
        finishPass();
        return;
    }
    qCDebug(lcUi) << "重新截图:" << m_recapturedPixmaps.size() << m_source->currentSecond();
    if (pixmap.isNull()) {
        finishPass();
        return;
    }
    setState(State::Captured);
    m_recapturedPixmaps.append(pixmap);
    if (ImageItem* item = m_currentItem) {
        replaceFrame(item, pixmap);
        if (m_strip) {
            m_strip->updateImageShow();
        }
        emit frameReplaced(item);
    }
    const int i = m_recapturedPixmaps.size();
    if (i < items.size() && items.at(i)) {
        m_currentItem = items.at(i);
        qCDebug(lcUi) << "seek index = " << i;
        seekTo(m_currentItem->getCpatureTime());
        return;
    }
    m_currentItem = nullptr;
    m_recapturedPixmaps.clear();
    finishPass();
    emit recaptureFinished();
}

// ---------------------------------------------------------------- seek, wait, capture

void CaptureController::seekTo(double seconds)
{
    m_settled = false;
    m_settleTimer->stop();
    setState(State::SeekSent);
    m_source->pause();
    m_frameTimeout->start(2 * m_frameTimeoutMs);
    m_source->seekForCapture(seconds);
}

void CaptureController::seekAnswered()
{
    if (m_state != State::SeekSent) {
        return;
    }
    if (m_pass == Pass::RecaptureAll || m_pass == Pass::RecaptureSingle) {
        if (!m_currentItem) {
            // Cancelled while the seek was under way.
            finishPass();
            return;
        }
        m_recaptureItems = m_strip ? m_strip->items() : QList<ImageItem*>();
    }
    setState(State::SeekAnswered);
    m_settleTimer->start();
    m_frameTimeout->start(m_frameTimeoutMs);
}

void CaptureController::frameReady()
{
    if (m_state != State::SeekAnswered) {
        return;
    }
    setState(State::FrameReady);
    tryCapture();
}

void CaptureController::tryCapture()
{
    if (m_state != State::FrameReady || !m_settled || m_shooting) {
        return;
    }
    m_frameTimeout->stop();
    if (m_pass == Pass::None) {
        setState(State::Idle);
        return;
    }
    // A blocking snapshot would stall the window (and libmpv's own drawing,
    // which waits for it) for the whole render of a full-size frame.
    m_shooting = true;
    m_source->requestSnapshot();
}

void CaptureController::snapshotTaken(const QPixmap& pixmap)
{
    if (!m_shooting) {
        return; // not ours: a capture of the frame on screen, or a pass that ended
    }
    m_shooting = false;
    switch (m_pass) {
    case Pass::Checked:
        captureCheckedStep(pixmap);
        break;
    case Pass::RecaptureSingle:
        recaptureSingleStep(pixmap);
        break;
    case Pass::RecaptureAll:
        recaptureAllStep(pixmap);
        break;
    case Pass::None:
        setState(State::Idle);
        break;
    }
}

void CaptureController::cancel()
{
    m_queue.clear();
    // A re-capture stops before its next frame.
    if (m_currentItem && m_state == State::SeekSent) {
        m_currentItem = nullptr;
    }
}

void CaptureController::forgetEdit()
{
    m_editedCaption = nullptr;
    m_recaptureAllPending = false;
}

void CaptureController::replaceFrame(ImageItem* item, const QPixmap& pixmap)
{
    m_replacedItems.append(item);
    m_replacedBefore.append(item->getPixmap());
    item->changeImageByPixmap(pixmap);
}

void CaptureController::showBusy(const QString& text)
{
    m_busyShown = true;
    emit busy(text);
}

void CaptureController::finishPass()
{
    m_shooting = false;
    m_settleTimer->stop();
    m_frameTimeout->stop();
    m_pass = Pass::None;
    m_recaptureItems.clear();
    setState(State::Idle);
    if (m_busyShown) {
        m_busyShown = false;
        emit idle();
    }
    if (!m_replacedItems.isEmpty()) {
        QList<ImageItem*> items;
        QList<QPixmap> before;
        for (int i = 0; i < m_replacedItems.size(); ++i) {
            if (m_replacedItems.at(i)) {
                items.append(m_replacedItems.at(i));
                before.append(m_replacedBefore.at(i));
            }
        }
        m_replacedItems.clear();
        m_replacedBefore.clear();
        emit framesRecaptured(items, before);
    }
}
