#pragma once

#include "instance/UniqueFd.h"

#include <QObject>
#include <QString>

#include <memory>
#include <sys/types.h>

class QSocketNotifier;

namespace tarnic {

// The first copy's ear for later starts: a Unix-domain stream socket listening at a path, whose
// connections are taken from the event loop and each answered by an InstanceConnection.
class InstanceServer : public QObject {
    Q_OBJECT

public:
    explicit InstanceServer(QObject* parent = nullptr);
    ~InstanceServer() override;
    InstanceServer(const InstanceServer&) = delete;
    InstanceServer& operator=(const InstanceServer&) = delete;

    // Removes the socket file a copy that was killed left at `path`. Only for the holder of the
    // lock: no running copy listens there then.
    static void removeStale(const QString& path);

    // Creates the socket file at `path` and listens on it; false, with errorString() saying why,
    // when it cannot (a file in the way, no permission, a path too long for a socket).
    bool listen(const QString& path);
    // Stops taking connections and removes the socket file, if it is still the one this server
    // made. Connections already taken are still answered.
    void close();
    bool isListening() const { return socket_.valid(); }
    const QString& errorString() const { return error_; }

signals:
    // A later start asked this copy to come to the front; it is answered once the connected slots
    // have returned.
    void activationRequested();

private:
    void acceptPending();

    UniqueFd socket_;
    std::unique_ptr<QSocketNotifier> incoming_;
    QString path_;
    dev_t device_ = 0;
    ino_t inode_ = 0;
    QString error_;
};

} // namespace tarnic
