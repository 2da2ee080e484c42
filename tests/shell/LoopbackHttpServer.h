#pragma once

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTcpServer>

class QTcpSocket;

namespace tarnic::test {

// A minimal HTTP/1.1 server on 127.0.0.1 in the test's own thread. It answers while the code
// under test blocks in a local event loop, since that loop still delivers socket events.
// Paths that were not given an answer get 404.
class LoopbackHttpServer : public QObject {
    Q_OBJECT

public:
    LoopbackHttpServer();

    // Listens on a free port; false when no port could be had.
    bool listen();
    quint16 port() const { return server_.serverPort(); }
    // http://127.0.0.1:<port>
    QString baseUrl() const;

    void serve(const QString& path, const QByteArray& body, int status = 200);

    // Request paths in the order they arrived.
    const QStringList& requestedPaths() const { return requestedPaths_; }

private:
    struct Answer {
        int status = 200;
        QByteArray body;
    };

    void accept();
    void readRequest(QTcpSocket* socket);

    QTcpServer server_;
    QHash<QString, Answer> answers_;
    QHash<QTcpSocket*, QByteArray> pending_;
    QStringList requestedPaths_;
};

// A port on 127.0.0.1 where nothing listens.
quint16 closedLoopbackPort();

} // namespace tarnic::test
