#include "app/AfterFirstPaint.h"

#include <QEvent>

#include <utility>

namespace tarnic {

AfterFirstPaint::AfterFirstPaint(QWidget& painted, std::chrono::milliseconds latest,
                                 std::function<void()> work)
    : painted_(&painted), work_(std::move(work)) {
    painted.installEventFilter(this);
    latest_.setSingleShot(true);
    latest_.setInterval(latest);
    connect(&latest_, &QTimer::timeout, this, &AfterFirstPaint::run);
    latest_.start();
}

bool AfterFirstPaint::eventFilter(QObject* watched, QEvent* event) {
    if (watched == painted_ && event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        // The paint goes on, and the frame reaches the screen, first.
        latest_.start(0);
    }
    return QObject::eventFilter(watched, event);
}

void AfterFirstPaint::run() {
    latest_.stop();
    if (painted_ != nullptr) {
        painted_->removeEventFilter(this);
    }
    std::function<void()> work = std::exchange(work_, nullptr);
    if (work && painted_ != nullptr && painted_->window()->isVisible()) {
        work();
    }
}

} // namespace tarnic
