#ifndef SPEECHREPLY_H
#define SPEECHREPLY_H

#include <QByteArray>
#include <QList>
#include <QString>

// An answer of the speech service, read in one place: the state, the message
// of a failure, and the recognised captions.
class SpeechReply
{
public:
    struct Utterance {
        int startMs = 0;
        int endMs = 0;
        QString text;
    };

    static SpeechReply parse(const QByteArray& body);

    // The body is a JSON object with at least one member.
    bool isAnswer() const { return m_isAnswer; }
    // "success", "failed", "running" or whatever the service said; may be empty.
    QString state() const { return m_state; }
    QString message() const { return m_message; }
    // The "task_id" of a submission's answer.
    QString taskId() const { return m_taskId; }
    // The "utterances" array; times that are missing, not integers or out of
    // the range of int read as 0.
    const QList<Utterance>& utterances() const { return m_utterances; }
    // The service said it failed, or sent something that is not an answer.
    bool isFailure(const QByteArray& body) const;

private:
    bool m_isAnswer = false;
    QString m_state;
    QString m_message;
    QString m_taskId;
    QList<Utterance> m_utterances;
};

#endif // SPEECHREPLY_H
