#ifndef SPEECHSERVER_H
#define SPEECHSERVER_H

#include "audiodecoder.h"
#include "recognizer.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

class HttpFront;

namespace httplib {
struct Request;
}

struct ServerOptions {
    std::string host = "127.0.0.1";
    int port = 17861; // 0: any free port
    size_t maxUploadBytes = 512u * 1024u * 1024u;
    size_t maxQueue = 8;  // tasks waiting or running
    int jobs = 1;         // recognitions at the same time
    int queryTimeoutSeconds = 3600;
    int resultTtlSeconds = 600;
    int requestTimeoutSeconds = 300; // to receive one request, upload included
    int idleTimeoutSeconds = 5;      // an idle connection is closed after this
    std::string token;    // when set, requests must carry "Authorization: Bearer <token>"
    std::string workDir;  // temporary files; created and removed by the caller
    bool quiet = false;
};

// The HTTP front of the service: accepts uploads, queues them for the worker
// threads and answers result queries once the task has finished.
class SpeechServer
{
public:
    SpeechServer(ServerOptions options, std::unique_ptr<Recognizer> recognizer, AudioDecoder decoder);
    ~SpeechServer();

    // Binds the listening socket; false when the address is taken or invalid.
    bool bind();
    int port() const { return m_port; }
    // Serves until stop(); returns false when serving failed.
    bool run();
    // Safe from any thread.
    void stop();

private:
    enum class State { Queued, Running, Finished };
    struct Task {
        std::string id;
        std::string language;
        std::string uploadPath;
        std::string pcmPath;
        State state = State::Queued;
        std::string reply;
        std::atomic<bool> cancelled{false};
        std::chrono::steady_clock::time_point finishedAt;
    };
    using TaskPtr = std::shared_ptr<Task>;

    void setupRoutes();
    std::string refusal(const httplib::Request& req, int& status) const;
    void workerLoop();
    void process(const TaskPtr& task);
    void finishLocked(const TaskPtr& task, const std::string& reply);
    void purgeLocked();
    size_t maxResults() const;
    std::string newTaskId();
    void log(const std::string& line) const;

    ServerOptions m_options;
    std::unique_ptr<Recognizer> m_recognizer;
    AudioDecoder m_decoder;
    std::unique_ptr<HttpFront> m_http;
    int m_port = 0;

    std::mutex m_mutex;
    std::condition_variable m_workAvailable;
    std::condition_variable m_taskFinished;
    std::deque<TaskPtr> m_pending;
    std::map<std::string, TaskPtr> m_tasks;
    std::deque<TaskPtr> m_finished; // oldest first; bounded in number and age
    size_t m_running = 0;
    size_t m_uploading = 0;
    bool m_stopping = false;
    std::vector<std::thread> m_workers;
};

#endif // SPEECHSERVER_H
