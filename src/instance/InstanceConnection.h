#pragma once

#include "instance/UniqueFd.h"

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

namespace tarnic {

// One connection the first copy has taken from a later start: reads its one-line request from
// the event loop, answers it, and then closes and deletes itself. A request that is not ours, one
// too long to be ours, or a client that says nothing for a while, is closed without activating
// anything.
class InstanceConnection : public QObject {
    Q_OBJECT

public:
    // `socket` is a connected, non-blocking stream socket.
    InstanceConnection(UniqueFd socket, QObject* parent);
    InstanceConnection(const InstanceConnection&) = delete;
    InstanceConnection& operator=(const InstanceConnection&) = delete;

signals:
    // The client asked this copy to come to the front. It is answered once the connected slots
    // have returned.
    void activationRequested();

private:
    void readAvailable();
    void answer(const QByteArray& line);
    void finish();

    UniqueFd socket_;
    QSocketNotifier readable_;
    QTimer quiet_;
    QByteArray request_;
};

} // namespace tarnic
