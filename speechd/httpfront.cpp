#include "httpfront.h"

#include <arpa/inet.h>
#include <netdb.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <climits>
#include <cstring>
#include <type_traits>

namespace {

using Clock = std::chrono::steady_clock;

// The one seam to httplib's server (0.11, pinned in the build): parse, route
// and answer one request read from a stream. A library whose seam changed
// fails here rather than at run time.
using ProcessRequest = bool (httplib::Server::*)(httplib::Stream&, bool, bool&,
                                                 const std::function<void(httplib::Request&)>&);
struct SeamCheck : httplib::Server {
    static_assert(std::is_same<decltype(&SeamCheck::process_request), ProcessRequest>::value,
                  "httplib::Server::process_request changed: check HttpFront against the new library");
};

// Request line and headers together; httplib's own limits are per line.
constexpr size_t kMaxHeaderBytes = 16 * 1024;
// How long a closing connection is read and dropped, so that the client gets
// to read the reply before the close.
constexpr std::chrono::milliseconds kLinger{2000};

int millisUntil(Clock::time_point when, Clock::time_point now)
{
    if (when <= now) {
        return 0;
    }
    const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(when - now).count() + 1;
    return static_cast<int>(std::min<long long>(ms, INT_MAX));
}

const char* reasonPhrase(int status)
{
    switch (status) {
    case 408:
        return "Request Timeout";
    case 431:
        return "Request Header Fields Too Large";
    case 503:
        return "Service Unavailable";
    default:
        return "Error";
    }
}

void addressOf(int fd, bool peer, std::string& ip, int& port)
{
    sockaddr_storage address{};
    socklen_t length = sizeof address;
    const int result = peer ? ::getpeername(fd, reinterpret_cast<sockaddr*>(&address), &length)
                            : ::getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length);
    ip.clear();
    port = -1;
    if (result != 0) {
        return;
    }
    char text[INET6_ADDRSTRLEN] = {};
    if (address.ss_family == AF_INET) {
        const auto* in = reinterpret_cast<const sockaddr_in*>(&address);
        ::inet_ntop(AF_INET, &in->sin_addr, text, sizeof text);
        port = ntohs(in->sin_port);
    } else if (address.ss_family == AF_INET6) {
        const auto* in6 = reinterpret_cast<const sockaddr_in6*>(&address);
        ::inet_ntop(AF_INET6, &in6->sin6_addr, text, sizeof text);
        port = ntohs(in6->sin6_port);
    }
    ip = text;
}

// A request without Content-Length or Transfer-Encoding has no body. httplib
// would read a POST like that up to the end of the connection, so the rule is
// spelled out for it in the header block.
void addEmptyLength(std::string& pending, size_t begin, size_t headerEnd)
{
    std::string head = pending.substr(begin, headerEnd - begin);
    std::transform(head.begin(), head.end(), head.begin(), [](unsigned char c) { return std::tolower(c); });
    if (head.find("\ncontent-length:") != std::string::npos || head.find("\ntransfer-encoding:") != std::string::npos) {
        return;
    }
    pending.insert(headerEnd + 2, "Content-Length: 0\r\n");
}

} // namespace

struct HttpFront::Connection {
    enum class State { Idle, Header, Busy, Lingering };

    explicit Connection(int socket)
        : fd(socket)
    {
    }
    size_t unread() const { return pending.size() - consumed; }
    void compact()
    {
        pending.erase(0, consumed);
        consumed = 0;
    }

    int fd;
    State state = State::Idle;
    std::string pending; // received and not parsed yet, from `consumed` on
    size_t consumed = 0;
    Clock::time_point deadline; // when the poll thread gives up on it
    Clock::time_point requestStart;
    size_t served = 0;
};

struct HttpFront::RequestState {
    Connection* connection = nullptr;
    Clock::time_point deadline;
    bool timedOut = false;
    bool closeAfterReply = false;
};

thread_local HttpFront::RequestState* HttpFront::s_current = nullptr;

// A request's reads: first what the poll thread has received, then the socket,
// never past the request's deadline and never more than httplib asks for, so
// that nothing of a following request is lost.
class HttpFront::ConnectionStream : public httplib::Stream
{
public:
    ConnectionStream(RequestState& state, std::chrono::milliseconds writeTimeout)
        : m_state(state)
        , m_connection(*state.connection)
        , m_writeTimeoutMs(static_cast<int>(writeTimeout.count()))
    {
    }

    bool is_readable() const override
    {
        pollfd entry{m_connection.fd, POLLIN, 0};
        return m_connection.unread() > 0 || ::poll(&entry, 1, 0) > 0;
    }

    bool is_writable() const override
    {
        pollfd entry{m_connection.fd, POLLOUT, 0};
        return ::poll(&entry, 1, m_writeTimeoutMs) > 0;
    }

    ssize_t read(char* ptr, size_t size) override
    {
        if (m_connection.unread() > 0) {
            const size_t count = std::min(size, m_connection.unread());
            std::memcpy(ptr, m_connection.pending.data() + m_connection.consumed, count);
            m_connection.consumed += count;
            return static_cast<ssize_t>(count);
        }
        for (;;) {
            const auto now = Clock::now();
            if (now >= m_state.deadline) {
                m_state.timedOut = true;
                return -1;
            }
            pollfd entry{m_connection.fd, POLLIN, 0};
            const int ready = ::poll(&entry, 1, millisUntil(m_state.deadline, now));
            if (ready < 0 && errno != EINTR) {
                return -1;
            }
            if (ready <= 0) {
                continue;
            }
            const ssize_t count = ::recv(m_connection.fd, ptr, size, 0);
            if (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR)) {
                continue;
            }
            return count;
        }
    }

    ssize_t write(const char* ptr, size_t size) override
    {
        for (;;) {
            const ssize_t count = ::send(m_connection.fd, ptr, size, MSG_NOSIGNAL);
            if (count >= 0) {
                return count;
            }
            if (errno == EINTR) {
                continue;
            }
            if (errno != EAGAIN && errno != EWOULDBLOCK) {
                return -1;
            }
            pollfd entry{m_connection.fd, POLLOUT, 0};
            if (::poll(&entry, 1, m_writeTimeoutMs) <= 0) {
                return -1;
            }
        }
    }

    void get_remote_ip_and_port(std::string& ip, int& port) const override
    {
        addressOf(m_connection.fd, true, ip, port);
    }
    void get_local_ip_and_port(std::string& ip, int& port) const override
    {
        addressOf(m_connection.fd, false, ip, port);
    }
    socket_t socket() const override { return m_connection.fd; }

private:
    RequestState& m_state;
    Connection& m_connection;
    int m_writeTimeoutMs;
};

HttpFront::HttpFront(FrontOptions options)
    : m_options(std::move(options))
    , m_pool(m_options.workers, m_options.maxWaiting)
    , m_wakeFd(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
{
    set_post_routing_handler([](const httplib::Request&, httplib::Response& res) {
        // After an error the rest of the request may be unread: the connection
        // closes. One Connection header, whoever asked for the close.
        if (res.status < 400 && res.get_header_value("Connection") != "close") {
            return;
        }
        if (s_current) {
            s_current->closeAfterReply = true;
        }
        res.headers.erase("Connection");
        res.headers.erase("Keep-Alive");
        res.set_header("Connection", "close");
    });
}

HttpFront::~HttpFront()
{
    shutdown();
    m_pool.shutdown();
    if (m_listenFd >= 0) {
        ::close(m_listenFd);
    }
    if (m_wakeFd >= 0) {
        ::close(m_wakeFd);
    }
}

int HttpFront::bind(const std::string& host, int port)
{
    addrinfo hints{};
    hints.ai_family = AF_UNSPEC;
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = AI_PASSIVE | AI_NUMERICSERV;
    addrinfo* found = nullptr;
    if (m_listenFd >= 0 || ::getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found) != 0) {
        return -1;
    }
    for (addrinfo* at = found; at && m_listenFd < 0; at = at->ai_next) {
        const int fd = ::socket(at->ai_family, at->ai_socktype | SOCK_NONBLOCK | SOCK_CLOEXEC, at->ai_protocol);
        if (fd < 0) {
            continue;
        }
        // Not SO_REUSEPORT: it would let another process of the user bind the
        // same port and take part of the connections.
        int yes = 1;
        ::setsockopt(fd, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
        if (::bind(fd, at->ai_addr, at->ai_addrlen) == 0 && ::listen(fd, SOMAXCONN) == 0) {
            m_listenFd = fd;
        } else {
            ::close(fd);
        }
    }
    ::freeaddrinfo(found);
    if (m_listenFd < 0) {
        return -1;
    }
    std::string ip;
    int bound = -1;
    addressOf(m_listenFd, false, ip, bound);
    return bound;
}

bool HttpFront::serve()
{
    if (m_listenFd < 0) {
        return false;
    }
    pollLoop();
    ::close(m_listenFd);
    m_listenFd = -1;
    m_pool.shutdown();
    return true;
}

void HttpFront::shutdown()
{
    m_stopping = true;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        for (int fd : m_busy) {
            ::shutdown(fd, SHUT_RD); // a read in progress ends at once
        }
    }
    wake();
}

bool HttpFront::beginWait()
{
    return m_pool.park();
}

void HttpFront::endWait()
{
    m_pool.unpark();
}

bool HttpFront::requestTimedOut()
{
    return s_current && s_current->timedOut;
}

bool HttpFront::clientGone()
{
    if (!s_current) {
        return false;
    }
    pollfd entry{s_current->connection->fd, POLLRDHUP, 0};
    return ::poll(&entry, 1, 0) > 0 && (entry.revents & (POLLRDHUP | POLLHUP | POLLERR));
}

void HttpFront::wake()
{
    const uint64_t one = 1;
    if (::write(m_wakeFd, &one, sizeof one) < 0) {
        // Already signalled: the counter is full.
    }
}

// Takes every connection waiting on the listening socket.
void HttpFront::accept(std::vector<ConnectionPtr>& connections)
{
    for (;;) {
        const int sock = ::accept4(m_listenFd, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC); // not into ffmpeg
        if (sock < 0) {
            return; // none left (or a client that gave up meanwhile)
        }
        if (m_open >= m_options.maxConnections) {
            const std::string body = m_options.errorBody ? m_options.errorBody(503) : std::string();
            const std::string reply = "HTTP/1.1 503 Service Unavailable\r\nContent-Type: application/json\r\n"
                                      "Content-Length: "
                                      + std::to_string(body.size()) + "\r\nConnection: close\r\n\r\n" + body;
            ::send(sock, reply.data(), reply.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
            if (m_options.log) {
                m_options.log("too many connections; one refused");
            }
            ::close(sock);
            continue;
        }
        ++m_open;
        auto connection = std::make_shared<Connection>(sock);
        connection->deadline = Clock::now() + m_options.idleTimeout;
        connections.push_back(connection);
    }
}

void HttpFront::handOver(const ConnectionPtr& connection)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_handedOver.push_back(connection);
    }
    wake();
}

void HttpFront::pollLoop()
{
    std::vector<ConnectionPtr> connections;
    std::vector<pollfd> entries;
    for (;;) {
        std::vector<ConnectionPtr> arrived;
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            arrived.swap(m_handedOver);
        }
        // Once handed to a worker, a connection is the worker's alone.
        for (const ConnectionPtr& connection : arrived) {
            // Back from a request with the start of the next one already read?
            if (!startIfComplete(connection)) {
                connections.push_back(connection);
            }
        }
        if (m_stopping) {
            for (const ConnectionPtr& connection : connections) {
                closeConnection(connection);
            }
            return;
        }
        auto now = Clock::now();
        auto next = now + std::chrono::hours(1);
        entries.assign({pollfd{m_wakeFd, POLLIN, 0}, pollfd{m_listenFd, POLLIN, 0}});
        for (const ConnectionPtr& connection : connections) {
            entries.push_back(pollfd{connection->fd, POLLIN, 0});
            next = std::min(next, connection->deadline);
        }
        const int ready = ::poll(entries.data(), entries.size(), millisUntil(next, now));
        if (ready < 0 && errno != EINTR) {
            continue;
        }
        if (entries[0].revents) {
            uint64_t count = 0;
            while (::read(m_wakeFd, &count, sizeof count) > 0) {
            }
        }
        now = Clock::now();
        std::vector<ConnectionPtr> kept;
        for (size_t i = 0; i < connections.size(); ++i) {
            const ConnectionPtr& connection = connections[i];
            if (entries[i + 2].revents && receive(connection)) {
                continue; // with a worker now
            }
            if (connection->fd >= 0 && now >= connection->deadline) {
                if (connection->state == Connection::State::Header) {
                    replyAndLinger(connection, 408);
                } else {
                    closeConnection(connection); // idle, or done lingering
                }
            }
            if (connection->fd >= 0) {
                kept.push_back(connection);
            }
        }
        if (entries[1].revents) {
            accept(kept);
        }
        connections.swap(kept);
    }
}

// True when the connection went to a worker with a complete request.
bool HttpFront::receive(const ConnectionPtr& connection)
{
    char buffer[8192];
    if (connection->state == Connection::State::Lingering) {
        for (;;) {
            const ssize_t count = ::recv(connection->fd, buffer, sizeof buffer, 0);
            if (count > 0) {
                continue;
            }
            if (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR)) {
                return false;
            }
            closeConnection(connection);
            return false;
        }
    }
    connection->compact();
    const size_t room = kMaxHeaderBytes + 1 - std::min(connection->pending.size(), kMaxHeaderBytes + 1);
    const ssize_t count = ::recv(connection->fd, buffer, std::min(room, sizeof buffer), 0);
    if (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR)) {
        return false;
    }
    if (count <= 0) {
        closeConnection(connection); // closed by the client, or broken
        return false;
    }
    connection->pending.append(buffer, static_cast<size_t>(count));
    return startIfComplete(connection);
}

// Starts the clock of a request at its first byte and hands it to a worker once
// its headers are complete.
bool HttpFront::startIfComplete(const ConnectionPtr& connection)
{
    if (connection->state == Connection::State::Idle && connection->unread() > 0) {
        connection->state = Connection::State::Header;
        connection->requestStart = Clock::now();
        connection->deadline = connection->requestStart + std::min(m_options.headerTimeout, m_options.requestTimeout);
    }
    if (connection->state != Connection::State::Header) {
        return false;
    }
    const size_t end = connection->pending.find("\r\n\r\n", connection->consumed);
    if (end == std::string::npos) {
        if (connection->unread() > kMaxHeaderBytes) {
            replyAndLinger(connection, 431);
        }
        return false;
    }
    addEmptyLength(connection->pending, connection->consumed, end);
    connection->state = Connection::State::Busy;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_busy.insert(connection->fd);
    }
    m_pool.post([this, connection] { serve(connection); });
    return true;
}

void HttpFront::serve(const ConnectionPtr& connection)
{
    bool written = false;
    bool closeAfter = true;
    if (!m_stopping) {
        RequestState state;
        state.connection = connection.get();
        state.deadline = connection->requestStart + m_options.requestTimeout;
        ConnectionStream stream(state, m_options.writeTimeout);
        const bool last = ++connection->served >= m_options.maxRequestsPerConnection;
        bool closedByClient = false;
        s_current = &state;
        written = process_request(stream, last, closedByClient, nullptr);
        s_current = nullptr;
        closeAfter = last || closedByClient || state.closeAfterReply;
    }
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_busy.erase(connection->fd);
    }
    if (!written || m_stopping) {
        closeConnection(connection);
        return;
    }
    if (closeAfter) {
        linger(connection);
    } else {
        connection->state = Connection::State::Idle;
        connection->deadline = Clock::now() + m_options.idleTimeout;
    }
    handOver(connection);
}

void HttpFront::replyAndLinger(const ConnectionPtr& connection, int status)
{
    const std::string body = m_options.errorBody ? m_options.errorBody(status) : std::string();
    const std::string reply = "HTTP/1.1 " + std::to_string(status) + " " + reasonPhrase(status)
                              + "\r\nContent-Type: application/json\r\nContent-Length: " + std::to_string(body.size())
                              + "\r\nConnection: close\r\n\r\n" + body;
    // Small enough for the socket's buffer; a client that does not read loses it.
    ::send(connection->fd, reply.data(), reply.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (m_options.log) {
        m_options.log("connection closed with " + std::to_string(status));
    }
    linger(connection);
}

void HttpFront::linger(const ConnectionPtr& connection)
{
    ::shutdown(connection->fd, SHUT_WR);
    connection->state = Connection::State::Lingering;
    connection->deadline = Clock::now() + kLinger;
    connection->pending.clear();
    connection->consumed = 0;
}

void HttpFront::closeConnection(const ConnectionPtr& connection)
{
    if (connection->fd >= 0) {
        ::close(connection->fd);
        connection->fd = -1;
        --m_open;
    }
}
