#include "jsonreply.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

namespace JsonReply {

namespace {
std::string compact(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

QString text(const std::string& value)
{
    return QString::fromUtf8(value.data(), static_cast<int>(value.size()));
}
} // namespace

std::string taskId(const std::string& id)
{
    return compact(QJsonObject{{QStringLiteral("task_id"), text(id)}});
}

std::string success(const std::vector<Utterance>& utterances)
{
    QJsonArray array;
    for (const Utterance& utterance : utterances) {
        array.append(QJsonObject{{QStringLiteral("start_time"), static_cast<qint64>(utterance.startMs)},
                                 {QStringLiteral("end_time"), static_cast<qint64>(utterance.endMs)},
                                 {QStringLiteral("text"), text(utterance.text)}});
    }
    return compact(QJsonObject{{QStringLiteral("state"), QStringLiteral("success")},
                               {QStringLiteral("utterances"), array}});
}

std::string failed(const std::string& message)
{
    return compact(QJsonObject{{QStringLiteral("state"), QStringLiteral("failed")},
                               {QStringLiteral("message"), text(message)}});
}

std::string running(const std::string& message)
{
    return compact(QJsonObject{{QStringLiteral("state"), QStringLiteral("running")},
                               {QStringLiteral("message"), text(message)}});
}

std::string message(const std::string& value)
{
    return compact(QJsonObject{{QStringLiteral("message"), text(value)}});
}

std::string health(const std::string& backend, const std::vector<std::string>& languages)
{
    QJsonArray codes;
    for (const std::string& code : languages) {
        codes.append(text(code));
    }
    const bool englishOnly = languages.size() == 1 && languages.front() == "en";
    return compact(QJsonObject{{QStringLiteral("state"), QStringLiteral("ok")},
                               {QStringLiteral("backend"), text(backend)},
                               {QStringLiteral("english_only"), englishOnly},
                               {QStringLiteral("languages"), codes},
                               {QStringLiteral("any_language"), languages.empty()}});
}

} // namespace JsonReply
