#ifndef JSONREPLY_H
#define JSONREPLY_H

#include "recognizer.h"

#include <string>
#include <vector>

// The JSON bodies the service answers with. Every answer is one of these.
namespace JsonReply {

std::string taskId(const std::string& id);
std::string success(const std::vector<Utterance>& utterances);
std::string failed(const std::string& message);
std::string running(const std::string& message);
std::string message(const std::string& text);
// languages: the primary subtags the engine recognises; empty for any.
std::string health(const std::string& backend, const std::vector<std::string>& languages);

} // namespace JsonReply

#endif // JSONREPLY_H
