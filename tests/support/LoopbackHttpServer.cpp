#include "support/LoopbackHttpServer.h"

#include <QHostAddress>
#include <QPointer>
#include <QTcpSocket>
#include <QTimer>

namespace tarnic::test {

LoopbackHttpServer::LoopbackHttpServer() {
    connect(&server_, &QTcpServer::newConnection, this, &LoopbackHttpServer::accept);
}

LoopbackHttpServer::~LoopbackHttpServer() {
    // Connections still open (a request held without an answer) go with the listening server;
    // what they report on the way out must not reach this half-destroyed object.
    for (QTcpSocket* socket : server_.findChildren<QTcpSocket*>()) {
        socket->disconnect(this);
    }
}

bool LoopbackHttpServer::listen() {
    return listen(0);
}

bool LoopbackHttpServer::listen(quint16 port) {
    return server_.listen(QHostAddress::LocalHost, port);
}

QString LoopbackHttpServer::baseUrl() const {
    return QStringLiteral("http://127.0.0.1:%1").arg(port());
}

void LoopbackHttpServer::serve(const QString& path, const QByteArray& body, int status) {
    answers_.insert(path, Answer{status, body, {}});
}

void LoopbackHttpServer::serveLate(const QString& path, std::chrono::milliseconds answerAfter,
                                   const QByteArray& body, int status) {
    answers_.insert(path, Answer{status, body, answerAfter});
}

void LoopbackHttpServer::accept() {
    while (QTcpSocket* socket = server_.nextPendingConnection()) {
        pending_.insert(socket, {});
        answered_.insert(socket, false);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { readRequest(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            if (!answered_.value(socket)) {
                ++abandonedByClient_;
            }
            pending_.remove(socket);
            answered_.remove(socket);
            socket->deleteLater();
        });
    }
}

void LoopbackHttpServer::readRequest(QTcpSocket* socket) {
    QByteArray& request = pending_[socket];
    request += socket->readAll();
    if (!request.contains("\r\n\r\n")) {
        return;
    }
    // "GET /path HTTP/1.1"
    const QList<QByteArray> requestLine = request.left(request.indexOf("\r\n")).split(' ');
    const QString path = requestLine.size() >= 2 ? QString::fromLatin1(requestLine[1]) : QString();
    requestedPaths_.append(path);
    request.clear();
    if (onRequest_) {
        onRequest_(path);
    }

    const Answer found = answers_.value(path, Answer{404, QByteArrayLiteral("Not Found"), {}});
    if (found.delay.count() > 0) {
        QTimer::singleShot(found.delay, this,
                           [this, guarded = QPointer<QTcpSocket>(socket), found] {
                               if (guarded && guarded->state() == QAbstractSocket::ConnectedState) {
                                   answer(guarded, found);
                               }
                           });
        return;
    }
    answer(socket, found);
}

void LoopbackHttpServer::answer(QTcpSocket* socket, const Answer& reply) {
    answered_[socket] = true;
    const QByteArray reason = reply.status == 200 ? "OK" : "Error";
    QByteArray head = "HTTP/1.1 " + QByteArray::number(reply.status) + ' ' + reason + "\r\n";
    head += "Content-Type: application/octet-stream\r\n";
    head += "Content-Length: " + QByteArray::number(reply.body.size()) + "\r\n";
    head += "Connection: close\r\n\r\n";
    socket->write(head);
    socket->write(reply.body);
    socket->disconnectFromHost();
}

quint16 closedLoopbackPort() {
    QTcpServer probe;
    if (!probe.listen(QHostAddress::LocalHost, 0)) {
        return 0;
    }
    const quint16 port = probe.serverPort();
    probe.close();
    return port;
}

} // namespace tarnic::test
