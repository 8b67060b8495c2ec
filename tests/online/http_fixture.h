#pragma once

// A small HTTP server on 127.0.0.1 with a random port, run by the test's own
// event loop: it serves one body, answers 404, or sends part of a body and then
// never finishes.

#include <QByteArray>
#include <QList>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

namespace zafro::test {

class HttpFixture : public QObject {
public:
    enum class Mode { Serve, NotFound, NeverFinish };

    HttpFixture()
    {
        server_.listen(QHostAddress::LocalHost, 0);
        connect(&server_, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = server_.nextPendingConnection()) {
                sockets_ << socket;
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { answer(socket); });
            }
        });
    }

    QString url(const QString &path = QStringLiteral("/doc.xml")) const
    {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(server_.serverPort()).arg(path);
    }

    Mode mode = Mode::Serve;
    QByteArray body;
    int requests = 0;

private:
    void answer(QTcpSocket *socket)
    {
        QByteArray &seen = pending_[socket];
        seen += socket->readAll();
        if (!seen.contains("\r\n\r\n"))
            return;
        seen.clear();
        ++requests;
        if (mode == Mode::NotFound) {
            socket->write("HTTP/1.1 404 Not Found\r\nContent-Length: 9\r\nConnection: close\r\n\r\n"
                          "not found");
        } else {
            // A body that never finishes promises more than it sends.
            const int length = body.size() + (mode == Mode::NeverFinish ? 1000 : 0);
            socket->write("HTTP/1.1 200 OK\r\nContent-Type: text/xml\r\nContent-Length: " +
                          QByteArray::number(length) + "\r\nConnection: close\r\n\r\n" + body);
        }
        socket->flush();
        if (mode != Mode::NeverFinish)
            socket->disconnectFromHost();
    }

    QTcpServer server_;
    QList<QPointer<QTcpSocket>> sockets_;
    QHash<QTcpSocket *, QByteArray> pending_;
};

} // namespace zafro::test
