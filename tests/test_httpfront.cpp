// The speech service's connection layer (HttpFront over httplib's request
// handling, WorkerPool) on a loopback port, with short deadlines.
#include "httpfront.h"

#include <QElapsedTimer>
#include <QHash>
#include <QTcpSocket>
#include <QTest>

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace {

using namespace std::chrono_literals;

// Status codes and bodies of the answers on one connection, until it closes or `count` arrived.
QStringList exchange(int port, const QByteArray& request, int count, int timeoutMs = 5000)
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(port));
    if (!socket.waitForConnected(timeoutMs)) {
        return {QStringLiteral("no connection")};
    }
    socket.write(request);
    QByteArray data;
    QStringList answers;
    QElapsedTimer clock;
    clock.start();
    while (answers.size() < count && clock.elapsed() < timeoutMs) {
        const int headEnd = data.indexOf("\r\n\r\n");
        const int at = data.toLower().indexOf("content-length:");
        if (headEnd > 0 && at > 0 && at < headEnd) {
            const int length = data.mid(at + 15, data.indexOf("\r\n", at) - at - 15).trimmed().toInt();
            if (data.size() >= headEnd + 4 + length) {
                answers << QString::fromLatin1(data.mid(9, 3) + ' ' + data.mid(headEnd + 4, length));
                data.remove(0, headEnd + 4 + length);
                continue;
            }
        }
        if (socket.state() != QAbstractSocket::ConnectedState && !socket.bytesAvailable()) {
            answers << QStringLiteral("closed");
            break;
        }
        socket.waitForReadyRead(50);
        data += socket.readAll();
    }
    return answers;
}

QByteArray get(const QByteArray& path, const QByteArray& extra = QByteArray())
{
    return "GET " + path + " HTTP/1.1\r\nHost: h\r\n" + extra + "\r\n";
}

} // namespace

class TestHttpFront : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<HttpFront> m_front;
    std::thread m_serving;
    int m_port = 0;
    std::mutex m_mutex;
    std::condition_variable m_released;
    bool m_release = false;

    void startFront(FrontOptions options)
    {
        options.errorBody = [](int status) { return "error " + std::to_string(status); };
        m_front = std::make_unique<HttpFront>(options);
        m_front->Get("/hello", [](const httplib::Request&, httplib::Response& res) { res.set_content("hi", "text/plain"); });
        m_front->Post("/echo", [](const httplib::Request& req, httplib::Response& res) {
            res.set_content(std::to_string(req.body.size()) + ":" + req.body, "text/plain");
        });
        // A long wait, parked off the workers, until released.
        m_front->Get("/wait", [this](const httplib::Request&, httplib::Response& res) {
            if (!m_front->beginWait()) {
                res.status = 503;
                res.set_content("full", "text/plain");
                return;
            }
            std::unique_lock<std::mutex> lock(m_mutex);
            m_released.wait_for(lock, 10s, [this] { return m_release; });
            m_front->endWait();
            res.set_content("released", "text/plain");
        });
        m_port = m_front->bind("127.0.0.1", 0);
        QVERIFY(m_port > 0);
        m_serving = std::thread([this] { m_front->serve(); });
    }

    void stopFront()
    {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_release = true;
        }
        m_released.notify_all();
        if (m_front) {
            m_front->shutdown();
        }
        if (m_serving.joinable()) {
            m_serving.join();
        }
        m_front.reset();
        m_release = false;
    }

private slots:
    void init()
    {
        FrontOptions options;
        options.idleTimeout = 600ms;
        options.headerTimeout = 500ms;
        options.requestTimeout = 1500ms;
        options.workers = 2;
        options.maxWaiting = 3;
        options.maxConnections = 12;
        startFront(options);
    }

    void cleanup() { stopFront(); }

    // httplib's request handling reads exactly one request from our stream:
    // what follows on the connection is the next request's.
    void requestsShareAConnection_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::addColumn<QStringList>("answers");
        QTest::newRow("pipelined") << get("/hello") + get("/hello") + get("/nothing")
                                   << QStringList{"200 hi", "200 hi", "404 ", "closed"};
        QTest::newRow("a body of its length")
            << "POST /echo HTTP/1.1\r\nHost: h\r\nContent-Length: 5\r\n\r\nhello" + get("/hello")
            << QStringList{"200 5:hello", "200 hi"};
        QTest::newRow("a post without a length has no body")
            << "POST /echo HTTP/1.1\r\nHost: h\r\n\r\n" + get("/hello") << QStringList{"200 0:", "200 hi"};
        QTest::newRow("chunked") << "POST /echo HTTP/1.1\r\nHost: h\r\nTransfer-Encoding: chunked\r\n\r\n"
                                    "3\r\nabc\r\n2\r\nde\r\n0\r\n\r\n" + get("/hello")
                                 << QStringList{"200 5:abcde", "200 hi"};
        QTest::newRow("close asked for") << get("/hello", "Connection: close\r\n") + get("/hello")
                                         << QStringList{"200 hi", "closed"};
        QTest::newRow("headers too large") << "GET /hello HTTP/1.1\r\nX: " + QByteArray(20000, 'x')
                                           << QStringList{"431 error 431", "closed"};
    }

    void requestsShareAConnection()
    {
        QFETCH(QByteArray, request);
        QFETCH(QStringList, answers);
        QCOMPARE(exchange(m_port, request, answers.size()), answers);
    }

    void slowAndIdleClientsAreCutOff_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<int>("atLeastMs");
        QTest::newRow("idle: closed without a word") << QByteArray() << QStringList{"closed"} << 600;
        QTest::newRow("headers never end") << QByteArray("GET /hello HTTP/1.1\r\nHo") << QStringList{"408 error 408", "closed"}
                                           << 500;
        QTest::newRow("body never ends") << QByteArray("POST /echo HTTP/1.1\r\nHost: h\r\nContent-Length: 10\r\n\r\nabc")
                                         << QStringList{"400 ", "closed"} << 1500;
    }

    void slowAndIdleClientsAreCutOff()
    {
        QFETCH(QByteArray, request);
        QFETCH(QStringList, answers);
        QFETCH(int, atLeastMs);
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(exchange(m_port, request, answers.size()), answers);
        QVERIFY2(clock.elapsed() >= atLeastMs - 50 && clock.elapsed() < atLeastMs + 2500,
                 qPrintable(QString::number(clock.elapsed())));
    }

    void waitingRequestsLeaveTheWorkersFree()
    {
        // More waits than workers: each parks its thread and another takes its
        // place; one more than maxWaiting is turned away.
        QList<QTcpSocket*> waiting;
        QHash<QTcpSocket*, QByteArray> received;
        for (int i = 0; i < 4; ++i) {
            auto* socket = new QTcpSocket(this);
            connect(socket, &QTcpSocket::readyRead, this, [socket, &received]() { received[socket] += socket->readAll(); });
            socket->connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_port));
            QVERIFY(socket->waitForConnected(2000));
            socket->write(get("/wait"));
            waiting << socket;
        }
        const auto answered = [&](const QByteArray& tail) {
            return int(std::count_if(waiting.begin(), waiting.end(),
                                     [&](QTcpSocket* socket) { return received.value(socket).endsWith(tail); }));
        };
        QTRY_COMPARE(answered("full"), 1);
        QCOMPARE(exchange(m_port, get("/hello"), 1, 1000), QStringList{"200 hi"});
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_release = true;
        }
        m_released.notify_all();
        QTRY_COMPARE(answered("released"), 3);
        qDeleteAll(waiting);
    }

    void tooManyConnectionsAreRefused()
    {
        // Idle connections that stay: none is closed while they are counted.
        stopFront();
        FrontOptions options;
        options.idleTimeout = 30s;
        options.maxConnections = 4;
        startFront(options);
        QList<QTcpSocket*> open;
        for (int i = 0; i < 4; ++i) {
            auto* socket = new QTcpSocket(this);
            socket->connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_port));
            QVERIFY(socket->waitForConnected(2000));
            open << socket;
        }
        QTRY_COMPARE(exchange(m_port, get("/hello"), 2), (QStringList{"503 error 503", "closed"}));
        // Those already connected are served as usual.
        open.first()->write(get("/hello"));
        QByteArray answer;
        while (!answer.endsWith("hi") && open.first()->waitForReadyRead(5000)) {
            answer += open.first()->readAll();
        }
        QVERIFY2(answer.startsWith("HTTP/1.1 200"), answer.constData());
        qDeleteAll(open);
    }

    void shutdownEndsServingAtOnce()
    {
        QTcpSocket uploading;
        uploading.connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_port));
        QVERIFY(uploading.waitForConnected(2000));
        uploading.write("POST /echo HTTP/1.1\r\nHost: h\r\nContent-Length: 100\r\n\r\nabc");
        QVERIFY(uploading.waitForBytesWritten(2000));
        QElapsedTimer clock;
        clock.start();
        m_front->shutdown();
        m_serving.join();
        QVERIFY2(clock.elapsed() < 1000, qPrintable(QString::number(clock.elapsed())));
        QTRY_COMPARE(uploading.state(), QAbstractSocket::UnconnectedState);
    }
};

QTEST_GUILESS_MAIN(TestHttpFront)
#include "test_httpfront.moc"
