#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QMetaObject>
#include <QObject>
#include <QWidget>

namespace tarnic::bench {

// Ends the event loop once the watched widget's first paint has been handled: the quit is queued
// when the paint event arrives, so it runs after the paint and after the flush that puts the
// painted pixels on the window.
class QuitAfterFirstPaint : public QObject {
public:
    explicit QuitAfterFirstPaint(QWidget& watched) { watched.installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!seen_ && event->type() == QEvent::Paint) {
            seen_ = true;
            watched->removeEventFilter(this);
            QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit,
                                      Qt::QueuedConnection);
        }
        return false;
    }

private:
    bool seen_ = false;
};

} // namespace tarnic::bench
