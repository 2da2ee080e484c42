#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTcpServer>

#include <chrono>
#include <functional>

class QTcpSocket;

namespace tarnic::test {

// A minimal HTTP/1.1 server on 127.0.0.1 in the test's own thread. It answers while the code
// under test blocks in a local event loop, since that loop still delivers socket events.
// Paths that were not given an answer get 404.
class LoopbackHttpServer : public QObject {
    Q_OBJECT

public:
    LoopbackHttpServer();
    ~LoopbackHttpServer() override;

    // Listens on a free port; false when no port could be had.
    bool listen();
    // Listens on this port (the one a program was built to ask); false when it is taken.
    bool listen(quint16 port);
    quint16 port() const { return server_.serverPort(); }
    // http://127.0.0.1:<port>
    QString baseUrl() const;

    void serve(const QString& path, const QByteArray& body, int status = 200);
    // Takes the request for `path` and keeps the connection open without a word until
    // `answerAfter` has passed, then answers with `body` (so that a client that waits too long
    // gets a late answer instead of hanging its test).
    void serveLate(const QString& path, std::chrono::milliseconds answerAfter,
                   const QByteArray& body, int status = 200);

    // Runs on every request, once its path is known and before anything is answered.
    void onRequest(std::function<void(const QString& path)> hook) { onRequest_ = std::move(hook); }

    // Request paths in the order they arrived.
    const QStringList& requestedPaths() const { return requestedPaths_; }
    // Connections that the client closed before the server had answered on them.
    int abandonedByClient() const { return abandonedByClient_; }

private:
    struct Answer {
        int status = 200;
        QByteArray body;
        std::chrono::milliseconds delay{0};
    };

    void accept();
    void readRequest(QTcpSocket* socket);
    void answer(QTcpSocket* socket, const Answer& answer);

    QTcpServer server_;
    QHash<QString, Answer> answers_;
    QHash<QTcpSocket*, QByteArray> pending_;
    QStringList requestedPaths_;
    std::function<void(const QString&)> onRequest_;
    // Sockets whose answer has been written.
    QHash<QTcpSocket*, bool> answered_;
    int abandonedByClient_ = 0;
};

// A port on 127.0.0.1 where nothing listens.
quint16 closedLoopbackPort();

} // namespace tarnic::test
