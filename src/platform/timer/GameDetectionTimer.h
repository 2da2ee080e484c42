#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>

namespace tarnic {

class RemapperSession;

// The remapper's repeating game-detection tick: every 2 seconds, the first 2 seconds after it
// starts, it lets the session look at the frontmost application. It runs on the thread that
// created it (the main thread) until it is destroyed. Tests give it a shorter interval so that
// they need not wait for real seconds.
class GameDetectionTimer : public QObject {
    Q_OBJECT

public:
    static constexpr int kIntervalMs = 2000;

    // Starts at once. `session` must outlive the timer.
    explicit GameDetectionTimer(
        RemapperSession& session, QObject* parent = nullptr,
        std::chrono::milliseconds interval = std::chrono::milliseconds(kIntervalMs));

    const QTimer& timer() const { return timer_; }

signals:
    // After each tick, once the session has been told.
    void ticked();
    // After each tick that the session took, with whether the game was found.
    void gameLooked(bool running);

private:
    void eventWithTimer();

    RemapperSession& session_;
    QTimer timer_;
};

} // namespace tarnic
