#include "speechreply.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <cmath>
#include <limits>

namespace {
// Service times are integers; anything else reads as 0.
int jsonMs(const QJsonValue& value)
{
    if (!value.isDouble()) {
        return 0;
    }
    // The range first: converting a double out of an integer's range is undefined.
    const double ms = value.toDouble();
    if (!(ms >= std::numeric_limits<int>::min() && ms <= std::numeric_limits<int>::max()) || ms != std::trunc(ms)) {
        return 0;
    }
    return static_cast<int>(ms);
}
} // namespace

SpeechReply SpeechReply::parse(const QByteArray& body)
{
    SpeechReply reply;
    const QJsonDocument document = QJsonDocument::fromJson(body);
    const QJsonObject object = document.object();
    reply.m_isAnswer = !object.isEmpty();
    reply.m_state = object.value(QStringLiteral("state")).toString();
    reply.m_message = object.value(QStringLiteral("message")).toString();
    reply.m_taskId = object.value(QStringLiteral("task_id")).toString();
    const QJsonArray utterances = object.value(QStringLiteral("utterances")).toArray();
    reply.m_utterances.reserve(utterances.size());
    for (const QJsonValue& value : utterances) {
        const QJsonObject item = value.toObject();
        reply.m_utterances.append({jsonMs(item.value(QStringLiteral("start_time"))),
                                   jsonMs(item.value(QStringLiteral("end_time"))),
                                   item.value(QStringLiteral("text")).toString()});
    }
    return reply;
}

bool SpeechReply::isFailure(const QByteArray& body) const
{
    return m_state == QLatin1String("failed") || (!body.isEmpty() && !m_isAnswer);
}
