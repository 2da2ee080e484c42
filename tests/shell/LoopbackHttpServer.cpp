#include "shell/LoopbackHttpServer.h"

#include <QHostAddress>
#include <QTcpSocket>

namespace tarnic::test {

LoopbackHttpServer::LoopbackHttpServer() {
    connect(&server_, &QTcpServer::newConnection, this, &LoopbackHttpServer::accept);
}

bool LoopbackHttpServer::listen() {
    return server_.listen(QHostAddress::LocalHost, 0);
}

QString LoopbackHttpServer::baseUrl() const {
    return QStringLiteral("http://127.0.0.1:%1").arg(port());
}

void LoopbackHttpServer::serve(const QString& path, const QByteArray& body, int status) {
    answers_.insert(path, Answer{status, body});
}

void LoopbackHttpServer::accept() {
    while (QTcpSocket* socket = server_.nextPendingConnection()) {
        pending_.insert(socket, {});
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { readRequest(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            pending_.remove(socket);
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

    const Answer answer = answers_.value(path, Answer{404, QByteArrayLiteral("Not Found")});
    const QByteArray reason = answer.status == 200 ? "OK" : "Error";
    QByteArray head = "HTTP/1.1 " + QByteArray::number(answer.status) + ' ' + reason + "\r\n";
    head += "Content-Type: application/octet-stream\r\n";
    head += "Content-Length: " + QByteArray::number(answer.body.size()) + "\r\n";
    head += "Connection: close\r\n\r\n";
    socket->write(head);
    socket->write(answer.body);
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
