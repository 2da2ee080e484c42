#include "platform/timer/GameDetectionTimer.h"

#include "core/remapper/RemapperSession.h"

namespace tarnic {

GameDetectionTimer::GameDetectionTimer(RemapperSession& session, QObject* parent,
                                       std::chrono::milliseconds interval)
    : QObject(parent), session_(session) {
    timer_.setInterval(interval);
    timer_.setSingleShot(false);
    // Coarse is plenty: nothing depends on the exact moment of a tick.
    timer_.setTimerType(Qt::CoarseTimer);
    connect(&timer_, &QTimer::timeout, this, &GameDetectionTimer::eventWithTimer);
    timer_.start();
}

void GameDetectionTimer::eventWithTimer() {
    if (const std::optional<bool> running = session_.eventWithTimer()) {
        emit gameLooked(*running);
    }
    emit ticked();
}

} // namespace tarnic
