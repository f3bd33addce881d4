#ifndef AUTOCAPTIONFLOW_H
#define AUTOCAPTIONFLOW_H

#include <QByteArray>
#include <QObject>
#include <QString>

// Automatic captions from the open video: make sure the speech engine knows
// the language, extract the sound track, upload it, turn the service's answer
// into the caption list. One request at a time.
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
    // The speech engine does not recognise the language (its shown name);
    // nothing was extracted and the busy state is over.
    void languageNeedsServer(QString languageName);

private:
    void fail(const QString& message);
    void requestErrorHandle(const QString& key, const QByteArray& body);

    bool m_running = false;
    quint64 m_attempt = 0; // bumped by cancel: a late answer about languages is dropped
};

#endif // AUTOCAPTIONFLOW_H
