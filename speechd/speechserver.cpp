#include "speechserver.h"

#include "httpfront.h"
#include "jsonreply.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <fstream>
#include <random>

namespace {

const char* const kJson = "application/json";
// Room for the multipart framing around the largest accepted file.
constexpr size_t kMultipartSlack = 64 * 1024;
// Result queries parked at the same time, beyond the workers.
constexpr size_t kMaxWaitingQueries = 64;

void answer(httplib::Response& res, int status, const std::string& body)
{
    res.status = status;
    res.set_content(body, kJson);
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
    case 408:
        return "The request took too long to arrive.";
    case 413:
        return "The upload is larger than the speech service accepts.";
    case 414:
    case 431:
        return "The request is too long.";
    case 503:
        return "The speech service has too many connections; try again in a moment.";
    default:
        return "The speech service could not answer the request (HTTP " + std::to_string(status) + ").";
    }
}

std::string lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

// The Host header must name the address the client connected to (or
// localhost on loopback) and this port: a page whose name was re-pointed at
// 127.0.0.1 sends its own name.
bool isOwnHost(const std::string& host, std::string localAddress, int port)
{
    std::string name = host;
    std::string portText;
    if (!name.empty() && name.front() == '[') {
        const size_t close = name.find(']');
        if (close == std::string::npos) {
            return false;
        }
        portText = name.substr(close + 1);
        name = name.substr(1, close - 1);
        if (!portText.empty()) {
            if (portText.front() != ':') {
                return false;
            }
            portText.erase(0, 1);
        }
    } else {
        const size_t colon = name.find(':');
        if (colon != std::string::npos) {
            portText = name.substr(colon + 1);
            name.erase(colon);
        }
    }
    if (portText.empty() ? port != 80 : portText != std::to_string(port)) {
        return false;
    }
    name = lower(name);
    if (localAddress.rfind("::ffff:", 0) == 0) {
        localAddress.erase(0, 7);
    }
    if (name == localAddress) {
        return true;
    }
    const bool loopback = localAddress == "::1" || localAddress.rfind("127.", 0) == 0;
    return loopback && name == "localhost";
}

bool sameSecret(const std::string& given, const std::string& expected)
{
    unsigned char difference = given.size() == expected.size() ? 0 : 1;
    for (size_t i = 0; i < given.size(); ++i) {
        difference |= static_cast<unsigned char>(given[i] ^ expected[i % std::max<size_t>(1, expected.size())]);
    }
    return difference == 0;
}

} // namespace

SpeechServer::SpeechServer(ServerOptions options, std::unique_ptr<Recognizer> recognizer, AudioDecoder decoder)
    : m_options(std::move(options))
    , m_recognizer(std::move(recognizer))
    , m_decoder(std::move(decoder))
{
    FrontOptions front;
    front.idleTimeout = std::chrono::seconds(m_options.idleTimeoutSeconds);
    front.requestTimeout = std::chrono::seconds(m_options.requestTimeoutSeconds);
    // Uploads in progress hold a worker each; the rest stay free for the others.
    front.workers = 2 * m_options.maxQueue + 4;
    front.maxWaiting = kMaxWaitingQueries;
    front.errorBody = [](int status) { return JsonReply::message(statusMessage(status)); };
    front.log = [this](const std::string& line) { log(line); };
    m_http = std::make_unique<HttpFront>(front);
    m_http->set_payload_max_length(m_options.maxUploadBytes + kMultipartSlack);
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
    m_http.reset(); // its threads run our handlers
    for (const auto& entry : m_tasks) {
        std::remove(entry.second->uploadPath.c_str());
        std::remove(entry.second->pcmPath.c_str());
    }
}

bool SpeechServer::bind()
{
    m_port = m_http->bind(m_options.host, m_options.port);
    return m_port > 0;
}

bool SpeechServer::run()
{
    return m_http->serve();
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
    m_http->shutdown();
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

size_t SpeechServer::maxResults() const
{
    return std::max<size_t>(16, 4 * m_options.maxQueue);
}

// Why a request is refused before it is routed, with its status; empty when it may pass.
std::string SpeechServer::refusal(const httplib::Request& req, int& status) const
{
    status = 403;
    if (req.has_header("Origin")) {
        return "The speech service does not answer requests from web pages.";
    }
    if (!isOwnHost(req.get_header_value("Host"), req.local_addr, m_port)) {
        return "The speech service answers only requests addressed to its own address.";
    }
    if (!m_options.token.empty()) {
        const std::string authorization = req.get_header_value("Authorization");
        if (lower(authorization.substr(0, 7)) != "bearer "
            || !sameSecret(authorization.substr(std::min<size_t>(7, authorization.size())), m_options.token)) {
            status = 401;
            return "The speech service needs its access token.";
        }
    }
    return std::string();
}

void SpeechServer::setupRoutes()
{
    HttpFront& http = *m_http;

    http.set_pre_routing_handler([this](const httplib::Request& req, httplib::Response& res) {
        int status = 0;
        const std::string reason = refusal(req, status);
        if (reason.empty()) {
            return httplib::Server::HandlerResponse::Unhandled;
        }
        if (status == 401) {
            res.set_header("WWW-Authenticate", "Bearer");
        }
        answer(res, status, JsonReply::message(reason));
        return httplib::Server::HandlerResponse::Handled;
    });

    http.Get("/api/speech/health", [this](const httplib::Request&, httplib::Response& res) {
        answer(res, 200, JsonReply::health(m_recognizer->name(), m_recognizer->languages()));
    });

    // Refusals answer before the body is read; the connection then closes.
    http.Post("/api/speech/submit", [this](const httplib::Request& req, httplib::Response& res,
                                           const httplib::ContentReader& reader) {
        const std::string language = req.get_param_value("language");
        if (req.get_header_value<uint64_t>("Content-Length") > m_options.maxUploadBytes + kMultipartSlack) {
            answer(res, 413, JsonReply::message(statusMessage(413)));
            return;
        }
        if (!req.is_multipart_form_data()) {
            answer(res, 400, JsonReply::message("The upload must be multipart/form-data with one part named \"file\"."));
            return;
        }
        if (language.empty()) {
            answer(res, 400, JsonReply::message("The language parameter is missing."));
            return;
        }
        // Nothing is kept of a refused submission.
        const std::string unsupported = m_recognizer->unsupportedReason(language);
        if (!unsupported.empty()) {
            answer(res, 422, JsonReply::failed(unsupported));
            return;
        }
        const size_t maxUploads = 2 * m_options.maxQueue;
        bool full = false;
        bool stopping = false;
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            purgeLocked();
            stopping = m_stopping;
            full = m_pending.size() + m_running >= m_options.maxQueue || m_uploading >= maxUploads;
            if (!full && !stopping) {
                ++m_uploading;
            }
        }
        if (stopping) {
            answer(res, 503, JsonReply::message("The speech service is shutting down."));
            return;
        }
        if (full) {
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
        } else if (HttpFront::requestTimedOut()) {
            status = 408;
            body = JsonReply::message("The upload took too long to arrive.");
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
        --m_uploading;
        if (status == 200 && m_stopping) {
            status = 503;
            body = JsonReply::message("The speech service is shutting down.");
        } else if (status == 200 && m_pending.size() + m_running >= m_options.maxQueue) {
            status = 503; // others came first while this one arrived
            body = JsonReply::message("The speech service is busy with other recognitions; try again in a moment.");
        }
        if (status != 200) {
            std::remove(task->uploadPath.c_str());
            answer(res, status, body);
            return;
        }
        m_tasks[task->id] = task;
        m_pending.push_back(task);
        m_workAvailable.notify_one();
        log("task " + task->id + " (" + language + ", " + std::to_string(received) + " bytes) accepted");
        answer(res, 200, JsonReply::taskId(task->id));
    });

    http.Get("/api/speech/query", [this](const httplib::Request& req, httplib::Response& res) {
        const std::string id = req.get_param_value("task_id");
        std::unique_lock<std::mutex> lock(m_mutex);
        const auto it = m_tasks.find(id);
        if (it == m_tasks.end()) {
            answer(res, 404, JsonReply::failed("The speech service knows no task \"" + id.substr(0, 64) + "\"."));
            return;
        }
        const TaskPtr task = it->second;
        // The client asks once, so the answer waits for the result, on a
        // parked thread, for as long as the client is there.
        if (task->state != State::Finished && !m_stopping) {
            if (!m_http->beginWait()) {
                answer(res, 503, JsonReply::failed("Too many clients wait for results; try again in a moment."));
                return;
            }
            const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(m_options.queryTimeoutSeconds);
            while (task->state != State::Finished && !m_stopping && std::chrono::steady_clock::now() < deadline
                   && !HttpFront::clientGone()) {
                m_taskFinished.wait_until(lock, std::min(deadline, std::chrono::steady_clock::now() + std::chrono::seconds(1)));
            }
            m_http->endWait();
        }
        if (task->state == State::Finished) {
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
            answer(res, 404, JsonReply::failed("The speech service knows no task \"" + id.substr(0, 64) + "\"."));
            return;
        }
        const TaskPtr task = it->second;
        task->cancelled = true;
        if (task->state == State::Queued) {
            m_pending.erase(std::remove(m_pending.begin(), m_pending.end(), task), m_pending.end());
            std::remove(task->uploadPath.c_str());
            finishLocked(task, JsonReply::failed("The recognition was cancelled."));
        }
        answer(res, 200, JsonReply::message("cancelled"));
    });

    // Whatever goes wrong, the client gets JSON, and no more than it needs.
    http.set_error_handler([](const httplib::Request&, httplib::Response& res) {
        if (res.body.empty() || res.get_header_value("Content-Type") != kJson) {
            res.set_content(JsonReply::message(statusMessage(res.status)), kJson);
        }
    });
    http.set_exception_handler([this](const httplib::Request&, httplib::Response& res, std::exception_ptr error) {
        std::string what = "unknown error";
        try {
            std::rethrow_exception(error);
        } catch (const std::exception& e) {
            what = e.what();
        } catch (...) {
        }
        log("request failed: " + what);
        answer(res, 500, JsonReply::message("The speech service failed to answer the request."));
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
            ++m_running;
        }
        process(task);
    }
}

void SpeechServer::process(const TaskPtr& task)
{
    std::string error;
    std::string detail;
    std::vector<Utterance> utterances;
    const bool decoded = m_decoder.decode(task->uploadPath, task->pcmPath, &task->cancelled, error, detail);
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
    log("task " + task->id
        + (ok ? " done, " + std::to_string(utterances.size()) + " utterances"
              : " failed: " + error + (detail.empty() ? std::string() : " (" + detail + ")")));
    std::lock_guard<std::mutex> lock(m_mutex);
    --m_running;
    finishLocked(task, ok ? JsonReply::success(utterances) : JsonReply::failed(error));
}

void SpeechServer::finishLocked(const TaskPtr& task, const std::string& reply)
{
    task->reply = reply;
    task->state = State::Finished;
    task->finishedAt = std::chrono::steady_clock::now();
    m_finished.push_back(task);
    purgeLocked();
    m_taskFinished.notify_all();
}

// Finished results are kept for a while for their query, but not too many.
void SpeechServer::purgeLocked()
{
    const auto expired = std::chrono::steady_clock::now() - std::chrono::seconds(m_options.resultTtlSeconds);
    while (!m_finished.empty() && (m_finished.size() > maxResults() || m_finished.front()->finishedAt < expired)) {
        m_tasks.erase(m_finished.front()->id);
        m_finished.pop_front();
    }
}
