#ifndef LOCALHTTPSERVER_H
#define LOCALHTTPSERVER_H

#include <QByteArray>
#include <QMap>
#include <QPointer>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <functional>
#include <memory>

// A tiny HTTP/1.1 server on 127.0.0.1 for tests: one answer per connection,
// optionally trickled out in chunks so that clients see a slow transfer.
class LocalHttpServer
{
public:
    struct Request {
        QByteArray method;
        QString path;
        QByteArray body;
        QByteArray head; // request line and headers
    };
    struct Response {
        int status = 200;
        QByteArray body;
        QByteArray contentType = "application/json";
        int chunkSize = 0;    // 0: all at once
        int chunkDelayMs = 0; // pause between chunks
    };
    using Handler = std::function<Response(const Request&)>;

    // A server that gives every request the same answer.
    explicit LocalHttpServer(const Response& answer)
        : LocalHttpServer([answer](const Request&) { return answer; })
    {
    }

    explicit LocalHttpServer(Handler handler)
        : m_handler(std::move(handler))
    {
        QObject::connect(&m_server, &QTcpServer::newConnection, [this]() {
            while (QTcpSocket* socket = m_server.nextPendingConnection()) {
                accept(socket);
            }
        });
    }

    bool listen() { return m_server.listen(QHostAddress::LocalHost, 0); }
    quint16 port() const { return m_server.serverPort(); }
    QString url(const QString& path) const
    {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(port()).arg(path);
    }
    QList<Request> requests() const { return m_requests; }

private:
    void accept(QTcpSocket* socket)
    {
        auto buffer = std::make_shared<QByteArray>();
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket, buffer]() {
            buffer->append(socket->readAll());
            const int headerEnd = buffer->indexOf("\r\n\r\n");
            if (headerEnd < 0) {
                return;
            }
            const QList<QByteArray> lines = buffer->left(headerEnd).split('\n');
            const QList<QByteArray> first = lines.value(0).trimmed().split(' ');
            int length = 0;
            for (const QByteArray& line : lines) {
                if (line.toLower().startsWith("content-length:")) {
                    length = line.mid(15).trimmed().toInt();
                }
            }
            if (buffer->size() < headerEnd + 4 + length) {
                return;
            }
            Request request{first.value(0), QString::fromLatin1(first.value(1)),
                            buffer->mid(headerEnd + 4, length), buffer->left(headerEnd)};
            buffer->clear();
            QObject::disconnect(socket, &QTcpSocket::readyRead, nullptr, nullptr);
            m_requests.append(request);
            respond(socket, m_handler(request));
        });
    }

    static void respond(QTcpSocket* socket, const Response& response)
    {
        QByteArray head = "HTTP/1.1 " + QByteArray::number(response.status)
                          + (response.status == 200 ? " OK" : " Error") + "\r\n";
        head += "Content-Type: " + response.contentType + "\r\n";
        head += "Content-Length: " + QByteArray::number(response.body.size()) + "\r\n";
        head += "Connection: close\r\n\r\n";
        socket->write(head);
        if (response.chunkSize <= 0) {
            socket->write(response.body);
            socket->disconnectFromHost();
            return;
        }
        auto offset = std::make_shared<int>(0);
        auto* timer = new QTimer(socket);
        timer->setInterval(response.chunkDelayMs);
        QObject::connect(timer, &QTimer::timeout, socket, [socket, timer, offset, response]() {
            if (socket->state() != QAbstractSocket::ConnectedState) {
                timer->stop();
                return;
            }
            socket->write(response.body.mid(*offset, response.chunkSize));
            *offset += response.chunkSize;
            if (*offset >= response.body.size()) {
                timer->stop();
                socket->disconnectFromHost();
            }
        });
        timer->start();
    }

    Handler m_handler;
    QTcpServer m_server;
    QList<Request> m_requests;
};

#endif // LOCALHTTPSERVER_H
