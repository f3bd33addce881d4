#include "audioextractor.h"

#include "filemanager.h"
#include "logcategories.h"
#include "processthread.h"

#include <QDebug>
#include <QFile>
#include <QStringList>

namespace {
// Hours of sound take longer than the runner's default limit to extract.
constexpr int kExtractionLimitMs = 60 * 60 * 1000;
// The ".mp3" name makes an MP3 whatever "-format" says, and at the encoder's
// default for 16 kHz mono (24 kbit/s) recognition lost a third of the words.
// 48 kbit/s was the smallest setting as good as lossless on read speech.
const QString kAudioBitrate = QStringLiteral("48k");
} // namespace

AudioExtractor::AudioExtractor(QObject* parent)
    : QObject(parent)
    , m_thread(new ProcessThread(this))
{
    connect(m_thread, &ProcessThread::processOutput, this, [](const QString& text) {
        qCDebug(lcCore) << "m_mp3_thread->processOutput" << text;
    });
    connect(m_thread, &ProcessThread::processStart, this, [this]() {
        qCDebug(lcCore) << "m_mp3_thread->processStart";
        emit started();
    });
    connect(m_thread, &ProcessThread::processStop, this, [this]() {
        qCDebug(lcCore) << "m_mp3_thread->processStop" << (m_stopRequested ? "true" : "false");
        if (!m_stopRequested) {
            emit finished();
        }
    });
    connect(m_thread, &ProcessThread::processError, this, [](const QString&) {
        qCDebug(lcCore) << "m_mp3_thread->processStop";
    });
    // ffmpeg that cannot be started at all ends the extraction too: the upload
    // step then finds no file and reports it, so the user is never left waiting.
    connect(m_thread, &ProcessThread::processFailed, this, [this]() {
        qCDebug(lcCore) << "m_mp3_thread->processFailed";
        if (!m_stopRequested) {
            emit finished();
        }
    });
}

void AudioExtractor::start(const QString& videoPath, const QString& outputPath)
{
    const QString program = FileManager::instance()->findTool(QStringLiteral("ffmpeg"));
    m_stopRequested = false;
    const QStringList arguments{QStringLiteral("-i"), videoPath, QStringLiteral("-vn"),
                                QStringLiteral("-ar"), QStringLiteral("16000"), QStringLiteral("-ac"),
                                QStringLiteral("1"), QStringLiteral("-format"), QStringLiteral("wav"),
                                QStringLiteral("-b:a"), kAudioBitrate, QStringLiteral("-y"), outputPath};
    // A file left by an earlier run must not pass for this run's result when ffmpeg fails.
    QFile::remove(outputPath);
    m_thread->setWaitFinishTime(kExtractionLimitMs);
    m_thread->setCommand(program, arguments, QIODevice::ReadWrite);
    m_thread->start(QThread::InheritPriority);
}

void AudioExtractor::stop()
{
    if (m_thread->isRunning()) {
        m_stopRequested = true;
        m_thread->stopProcess();
    }
}
