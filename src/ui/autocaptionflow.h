#ifndef AUTOCAPTIONFLOW_H
#define AUTOCAPTIONFLOW_H

#include <QByteArray>
#include <QObject>
#include <QString>

class QByteArray;

// Automatic captions from the open video: extract the sound track, upload it,
// turn the service's answer into the caption list. One request at a time.
class AutoCaptionFlow : public QObject
{
    Q_OBJECT
public:
    explicit AutoCaptionFlow(QObject* parent = nullptr);

    bool isRunning() const { return m_running; }
    // Starts with the recognition language of that key; false when one is running.
    bool start(int languageKey, const QString& videoPath);
    // The extraction ended by itself: upload what it made.
    void audioExtracted();
    // The service's answer arrived.
    void answerArrived(const QByteArray& body);
    // The user cancelled: no message follows.
    void cancel();

signals:
    void busy(QString text);
    // The request ended without captions; the busy state is over.
    void failed(QString title, QString message);

private:
    void fail(const QString& message);
    void requestErrorHandle(const QString& key, const QByteArray& body);

    bool m_running = false;
};

#endif // AUTOCAPTIONFLOW_H
