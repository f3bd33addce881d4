#include "speechserver.h"

#include "jsonreply.h"

#include <httplib.h>

#include <cstdio>
#include <fstream>
#include <random>

namespace {

const char* const kJson = "application/json";

void answer(httplib::Response& res, int status, const std::string& body)
{
    res.status = status;
    res.set_content(body, kJson);
}

// Reads and drops the rest of a request body, so the client gets to read the answer.
void drain(const httplib::Request& req, const httplib::ContentReader& reader)
{
    if (req.is_multipart_form_data()) {
        reader([](const httplib::MultipartFormData&) { return true; },
               [](const char*, size_t) { return true; });
    } else {
        reader([](const char*, size_t) { return true; });
    }
}

std::string statusMessage(int status)
{
    switch (status) {
    case 400:
        return "The request is malformed.";
    case 404:
        return "There is no such address on the speech service.";
    case 405:
        return "This address does not accept that method.";
    case 413:
        return "The upload is larger than the speech service accepts.";
    case 414:
    case 431:
        return "The request is too long.";
    default:
        return "The speech service could not answer the request (HTTP " + std::to_string(status) + ").";
    }
}

} // namespace

SpeechServer::SpeechServer(ServerOptions options, std::unique_ptr<Recognizer> recognizer, AudioDecoder decoder)
    : m_options(std::move(options))
    , m_recognizer(std::move(recognizer))
    , m_decoder(std::move(decoder))
    , m_http(std::make_unique<httplib::Server>())
{
    // Queries wait for their task, so the pool needs room beyond the queue.
    const size_t threads = m_options.maxQueue + 8;
    m_http->new_task_queue = [threads] { return new httplib::ThreadPool(threads); };
    m_http->set_payload_max_length(m_options.maxUploadBytes + 64 * 1024);
    m_http->set_read_timeout(60);
    m_http->set_write_timeout(60);
    setupRoutes();
    for (int i = 0; i < std::max(1, m_options.jobs); ++i) {
        m_workers.emplace_back(&SpeechServer::workerLoop, this);
    }
}

SpeechServer::~SpeechServer()
{
    stop();
    for (std::thread& worker : m_workers) {
        worker.join();
    }
    std::lock_guard<std::mutex> lock(m_mutex);
    for (const auto& entry : m_tasks) {
        std::remove(entry.second->uploadPath.c_str());
        std::remove(entry.second->pcmPath.c_str());
    }
}

bool SpeechServer::bind()
{
    if (m_options.port == 0) {
        m_port = m_http->bind_to_any_port(m_options.host);
        return m_port > 0;
    }
    m_port = m_options.port;
    return m_http->bind_to_port(m_options.host, m_options.port);
}

bool SpeechServer::run()
{
    return m_http->listen_after_bind();
}

void SpeechServer::stop()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_stopping = true;
        for (const auto& entry : m_tasks) {
            entry.second->cancelled = true;
        }
    }
    m_workAvailable.notify_all();
    m_taskFinished.notify_all();
    m_http->stop();
}

void SpeechServer::log(const std::string& line) const
{
    if (!m_options.quiet) {
        std::fprintf(stderr, "glimmer-speechd: %s\n", line.c_str());
    }
}

std::string SpeechServer::newTaskId()
{
    static thread_local std::mt19937_64 generator{std::random_device{}()};
    char text[33];
    std::snprintf(text, sizeof text, "%016llx%016llx", static_cast<unsigned long long>(generator()),
                  static_cast<unsigned long long>(generator()));
    return text;
}

void SpeechServer::setupRoutes()
{
    httplib::Server& http = *m_http;

    http.Get("/api/speech/health", [this](const httplib::Request&, httplib::Response& res) {
        answer(res, 200, JsonReply::health(m_recognizer->name(), !m_recognizer->unsupportedReason("fr-FR").empty()));
    });

    http.Post("/api/speech/submit", [this](const httplib::Request& req, httplib::Response& res,
                                           const httplib::ContentReader& reader) {
        const std::string language = req.get_param_value("language");
        if (req.get_header_value<uint64_t>("Content-Length") > m_options.maxUploadBytes + 64 * 1024) {
            // Not read: the point of the limit is not to take the bytes in.
            res.set_header("Connection", "close");
            answer(res, 413, JsonReply::message(statusMessage(413)));
            return;
        }
        if (!req.is_multipart_form_data()) {
            drain(req, reader);
            answer(res, 400, JsonReply::message("The upload must be multipart/form-data with one part named \"file\"."));
            return;
        }
        if (language.empty()) {
            drain(req, reader);
            answer(res, 400, JsonReply::message("The language parameter is missing."));
            return;
        }
        bool full = false;
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            purgeLocked();
            full = m_stopping || m_busy + m_pending.size() >= m_options.maxQueue;
            if (!full) {
                ++m_busy; // the slot is held while the upload arrives
            }
        }
        if (full) {
            drain(req, reader);
            answer(res, 503, JsonReply::message("The speech service is busy with other recognitions; try again in a moment."));
            return;
        }

        auto task = std::make_shared<Task>();
        task->id = newTaskId();
        task->language = language;
        task->uploadPath = m_options.workDir + "/" + task->id + ".upload";
        task->pcmPath = m_options.workDir + "/" + task->id + ".pcm";

        std::ofstream out;
        bool haveFile = false;
        bool inFile = false;
        bool tooBig = false;
        bool writeFailed = false;
        size_t received = 0;
        const bool ok = reader(
            [&](const httplib::MultipartFormData& part) {
                inFile = part.name == "file" && !haveFile;
                if (inFile) {
                    haveFile = true;
                    out.open(task->uploadPath, std::ios::binary | std::ios::trunc);
                    writeFailed = !out;
                }
                return !writeFailed;
            },
            [&](const char* data, size_t length) {
                if (!inFile) {
                    return true;
                }
                received += length;
                if (received > m_options.maxUploadBytes) {
                    tooBig = true;
                    return false;
                }
                out.write(data, static_cast<std::streamsize>(length));
                writeFailed = !out;
                return !writeFailed;
            });
        out.close();

        int status = 200;
        std::string body;
        if (tooBig) {
            status = 413;
            body = JsonReply::message(statusMessage(413));
        } else if (writeFailed) {
            status = 507;
            body = JsonReply::message("The speech service could not store the upload.");
        } else if (!ok) {
            status = 400;
            body = JsonReply::message("The multipart upload is malformed.");
        } else if (!haveFile) {
            status = 400;
            body = JsonReply::message("The upload has no part named \"file\".");
        } else if (received == 0) {
            status = 400;
            body = JsonReply::message("The uploaded file is empty.");
        }

        std::lock_guard<std::mutex> lock(m_mutex);
        --m_busy;
        if (status != 200) {
            std::remove(task->uploadPath.c_str());
            if (tooBig) {
                res.set_header("Connection", "close");
            }
            answer(res, status, body);
            return;
        }
        m_tasks[task->id] = task;
        const std::string reason = m_recognizer->unsupportedReason(language);
        if (!reason.empty()) {
            std::remove(task->uploadPath.c_str());
            task->state = State::Finished;
            task->reply = JsonReply::failed(reason);
            task->finishedAt = std::chrono::steady_clock::now();
        } else {
            m_pending.push_back(task);
            m_workAvailable.notify_one();
        }
        log("task " + task->id + " (" + language + ", " + std::to_string(received) + " bytes) accepted");
        answer(res, 200, JsonReply::taskId(task->id));
    });

    http.Get("/api/speech/query", [this](const httplib::Request& req, httplib::Response& res) {
        const std::string id = req.get_param_value("task_id");
        std::unique_lock<std::mutex> lock(m_mutex);
        const auto it = m_tasks.find(id);
        if (it == m_tasks.end()) {
            answer(res, 404, JsonReply::failed("The speech service knows no task \"" + id + "\"."));
            return;
        }
        const TaskPtr task = it->second;
        // The client asks once, so the answer waits for the result.
        const bool done = m_taskFinished.wait_for(lock, std::chrono::seconds(m_options.queryTimeoutSeconds), [&] {
            return task->state == State::Finished || m_stopping;
        });
        if (done && task->state == State::Finished) {
            answer(res, 200, task->reply);
        } else if (m_stopping) {
            answer(res, 503, JsonReply::failed("The speech service is shutting down."));
        } else {
            answer(res, 200, JsonReply::running("The recognition is still running; it takes longer than the service waits for."));
        }
    });

    http.Post("/api/speech/cancel", [this](const httplib::Request& req, httplib::Response& res) {
        const std::string id = req.get_param_value("task_id");
        std::lock_guard<std::mutex> lock(m_mutex);
        const auto it = m_tasks.find(id);
        if (it == m_tasks.end()) {
            answer(res, 404, JsonReply::failed("The speech service knows no task \"" + id + "\"."));
            return;
        }
        const TaskPtr task = it->second;
        task->cancelled = true;
        if (task->state == State::Queued) {
            for (auto pending = m_pending.begin(); pending != m_pending.end(); ++pending) {
                if (*pending == task) {
                    m_pending.erase(pending);
                    break;
                }
            }
            std::remove(task->uploadPath.c_str());
            task->state = State::Finished;
            task->reply = JsonReply::failed("The recognition was cancelled.");
            task->finishedAt = std::chrono::steady_clock::now();
            m_taskFinished.notify_all();
        }
        answer(res, 200, JsonReply::message("cancelled"));
    });

    // Whatever goes wrong, the client gets JSON.
    http.set_error_handler([](const httplib::Request&, httplib::Response& res) {
        if (res.body.empty() || res.get_header_value("Content-Type") != kJson) {
            res.set_content(JsonReply::message(statusMessage(res.status)), kJson);
        }
    });
    http.set_exception_handler([](const httplib::Request&, httplib::Response& res, std::exception_ptr error) {
        std::string what = "unknown error";
        try {
            std::rethrow_exception(error);
        } catch (const std::exception& e) {
            what = e.what();
        } catch (...) {
        }
        answer(res, 500, JsonReply::message("The speech service failed: " + what));
    });
    http.set_logger([this](const httplib::Request& req, const httplib::Response& res) {
        log(req.method + " " + req.path + " -> " + std::to_string(res.status));
    });
}

void SpeechServer::workerLoop()
{
    for (;;) {
        TaskPtr task;
        {
            std::unique_lock<std::mutex> lock(m_mutex);
            m_workAvailable.wait(lock, [this] { return m_stopping || !m_pending.empty(); });
            if (m_stopping) {
                return;
            }
            task = m_pending.front();
            m_pending.pop_front();
            task->state = State::Running;
            ++m_busy;
        }
        process(task);
    }
}

void SpeechServer::process(const TaskPtr& task)
{
    std::string error;
    std::vector<Utterance> utterances;
    const bool decoded = m_decoder.decode(task->uploadPath, task->pcmPath, &task->cancelled, error);
    std::remove(task->uploadPath.c_str());
    bool ok = false;
    if (decoded) {
        RecognitionJob job;
        job.pcmPath = task->pcmPath;
        job.language = task->language;
        job.cancelled = &task->cancelled;
        ok = m_recognizer->recognize(job, utterances, error);
    }
    std::remove(task->pcmPath.c_str());
    log("task " + task->id + (ok ? " done, " + std::to_string(utterances.size()) + " utterances" : " failed: " + error));
    finish(task, ok ? JsonReply::success(utterances) : JsonReply::failed(error));
}

void SpeechServer::finish(const TaskPtr& task, const std::string& reply)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        --m_busy;
        task->reply = reply;
        task->state = State::Finished;
        task->finishedAt = std::chrono::steady_clock::now();
    }
    m_taskFinished.notify_all();
}

void SpeechServer::purgeLocked()
{
    const auto now = std::chrono::steady_clock::now();
    const auto ttl = std::chrono::seconds(m_options.resultTtlSeconds);
    for (auto it = m_tasks.begin(); it != m_tasks.end();) {
        const TaskPtr& task = it->second;
        if (task->state == State::Finished && now - task->finishedAt > ttl) {
            it = m_tasks.erase(it);
        } else {
            ++it;
        }
    }
}
