#ifndef HTTPFRONT_H
#define HTTPFRONT_H

#include "workerpool.h"

#include <httplib.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

struct FrontOptions {
    std::chrono::milliseconds idleTimeout{5000};     // between requests
    std::chrono::milliseconds headerTimeout{10000};  // request line and headers
    std::chrono::milliseconds requestTimeout{300000}; // the whole request, body included
    std::chrono::milliseconds writeTimeout{30000};
    size_t workers = 16;       // threads for requests whose headers have arrived
    size_t maxWaiting = 64;    // parked long waits on top of those
    size_t maxConnections = 256;
    size_t maxRequestsPerConnection = 100;
    // The body of the replies the front sends itself (408, 431, 503).
    std::function<std::string(int status)> errorBody;
    std::function<void(const std::string&)> log;
};

// httplib's request parsing and routing under a connection layer of our own.
// httplib's server loop (0.11) bounds each read, not a request, and gives a
// thread to every connection from accept on, so slow or idle clients could
// hold all of them. Here the listening socket and every connection belong to
// this class: one poll thread accepts and holds connections while they are
// idle or still sending their headers, a worker runs a request once its
// headers are complete, every request has a deadline for its headers and for
// its whole body, and a reply of 400 or more closes the connection (after a
// short lingering read, so that the client gets to read the reply).
// Of httplib's server only the routing table and process_request(), which
// parses, routes and answers one request read from our stream, are used.
class HttpFront : public httplib::Server
{
public:
    explicit HttpFront(FrontOptions options);
    ~HttpFront() override;

    // Listens on host:port (0: any free port); the port, or -1 when the
    // address is taken or invalid.
    int bind(const std::string& host, int port);
    // Serves on the bound socket until shutdown(); false when serving failed.
    bool serve();
    // Safe from any thread, also before serve(): closes idle connections at
    // once and ends the reads of requests in progress.
    void shutdown();

    // For a route handler, about its own request.
    // A long wait that should not take a worker; false when too many wait already.
    bool beginWait();
    void endWait();
    static bool requestTimedOut();
    static bool clientGone();

private:
    struct Connection;
    using ConnectionPtr = std::shared_ptr<Connection>;
    class ConnectionStream;
    struct RequestState;

    void pollLoop();
    void accept(std::vector<ConnectionPtr>& connections);
    void handOver(const ConnectionPtr& connection);
    bool receive(const ConnectionPtr& connection);
    bool startIfComplete(const ConnectionPtr& connection);
    void serve(const ConnectionPtr& connection);
    void replyAndLinger(const ConnectionPtr& connection, int status);
    void linger(const ConnectionPtr& connection);
    void closeConnection(const ConnectionPtr& connection);
    void wake();

    static thread_local RequestState* s_current; // the request this worker runs

    FrontOptions m_options;
    WorkerPool m_pool;
    std::atomic<bool> m_stopping{false};
    std::atomic<size_t> m_open{0};
    int m_wakeFd = -1;
    int m_listenFd = -1;

    std::mutex m_mutex;
    std::vector<ConnectionPtr> m_handedOver; // to the poll thread
    std::set<int> m_busy;                     // sockets of requests in progress
};

#endif // HTTPFRONT_H
