#include "processthread.h"

#include "logcategories.h"

#include <QDeadlineTimer>
#include <QDebug>
#include <QMetaEnum>

namespace {
// How long the worker waits for the child before it looks for a stop request.
constexpr int kWaitSliceMs = 50;

// Text of a byte buffer up to its first NUL byte.
QString textUpToNul(const QByteArray& bytes)
{
    const int nul = bytes.indexOf('\0');
    return QString::fromLocal8Bit(nul < 0 ? bytes : bytes.left(nul));
}
} // namespace

ProcessThread::ProcessThread(QObject* parent)
    : QThread(parent)
    , m_process(new QProcess())
{
    // The process is driven from run(): it belongs to the worker thread, and its
    // handlers run there (directly) while run() waits, so every output and error
    // signal is queued to listeners before processStop.
    m_process->moveToThread(this);
    connect(m_process, &QProcess::readyReadStandardOutput, this,
            &ProcessThread::onReadyReadStandardOutput, Qt::DirectConnection);
    connect(m_process, &QProcess::readyReadStandardError, this,
            &ProcessThread::onReadyReadStandardError, Qt::DirectConnection);
    connect(m_process, &QProcess::errorOccurred, this, &ProcessThread::onErrorOccurred,
            Qt::DirectConnection);
}

ProcessThread::~ProcessThread()
{
    if (isRunning()) {
        m_stopRequested.storeRelease(1);
        wait();
    }
    delete m_process;
}

void ProcessThread::setCommand(const QString& program, const QStringList& arguments,
                               QIODevice::OpenMode mode)
{
    m_program = program;
    m_arguments = arguments;
    m_openMode = mode;
}

void ProcessThread::setProcessWorkingDirectory(const QString& dir)
{
    m_process->setWorkingDirectory(dir);
}

void ProcessThread::setWaitFinishTime(int ms)
{
    m_waitFinishTime = ms;
}

void ProcessThread::stopProcess()
{
    QThread::msleep(200);
    // The process belongs to the worker: it kills the child itself, within one
    // slice of its wait.
    m_stopRequested.storeRelease(1);
}

void ProcessThread::onReadyReadStandardOutput()
{
    const QString text = textUpToNul(m_process->readAllStandardOutput());
    qCDebug(lcCore) << "onReadyReadStandardOutput" << text;
    emit processOutput(text);
}

void ProcessThread::onReadyReadStandardError()
{
    const QString text = textUpToNul(m_process->readAllStandardError());
    qCDebug(lcCore) << "Process Error:" << text;
    emit processError(text);
}

void ProcessThread::onErrorOccurred(QProcess::ProcessError error)
{
    const QMetaEnum e = QMetaEnum::fromType<QProcess::ProcessError>();
    qCDebug(lcCore) << "Process errorOccurred:" << e.valueToKey(error);
}

void ProcessThread::run()
{
    m_processId = 0;
    m_stopRequested.storeRelease(0);
    m_process->start(m_program, m_arguments, m_openMode);
    qCDebug(lcCore) << "Rum command" << m_process->workingDirectory() << m_program << m_arguments;
    if (!m_process->waitForStarted(30000)) {
        qCDebug(lcCore).noquote() << tr("Failed to start process %1. exit code %2")
                                  .arg(QString::number(m_processId), QString::number(m_process->exitCode()));
        emit processFailed();
        return;
    }
    m_processId = m_process->processId();
    qCDebug(lcCore).noquote() << QStringLiteral("Process %1 has been started.").arg(m_processId);
    emit processStart();
    if (waitForEnd()) {
        qCDebug(lcCore).noquote() << QStringLiteral("Process %1 has been finish.").arg(m_processId);
        // Let the last output and error signals reach listeners first.
        QThread::msleep(1000);
        emit processStop();
        requestInterruption();
    }
}

bool ProcessThread::waitForEnd()
{
    QDeadlineTimer deadline(m_waitFinishTime);
    while (!deadline.hasExpired()) {
        if (m_stopRequested.loadAcquire()) {
            m_process->kill();
            return m_process->waitForFinished(5000);
        }
        const int slice = static_cast<int>(qMin<qint64>(kWaitSliceMs, qMax<qint64>(1, deadline.remainingTime())));
        if (m_process->waitForFinished(slice)) {
            return true;
        }
        if (m_process->state() == QProcess::NotRunning) {
            return true;
        }
    }
    return false;
}
