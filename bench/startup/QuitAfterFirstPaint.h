#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QWidget>

namespace tarnic::bench {

// Ends the event loop once the watched widget's first paint has been handled: the quit is posted
// when the paint event arrives, so it comes after the paint and after the flush that puts the
// frame on the window, and the loop returns before its next round of timers, where the program
// does what it keeps for after its first frame.
class QuitAfterFirstPaint : public QObject {
public:
    explicit QuitAfterFirstPaint(QWidget& watched) { watched.installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!seen_ && event->type() == QEvent::Paint) {
            seen_ = true;
            watched->removeEventFilter(this);
            QCoreApplication::postEvent(QCoreApplication::instance(), new QEvent(QEvent::Quit));
        }
        return false;
    }

private:
    bool seen_ = false;
};

// Ends the event loop once the watched window has been told of a new application icon, the last
// of what the program does after its first frame.
class QuitAfterIcon : public QObject {
public:
    explicit QuitAfterIcon(QWidget& window) { window.installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ApplicationWindowIconChange) {
            watched->removeEventFilter(this);
            QCoreApplication::postEvent(QCoreApplication::instance(), new QEvent(QEvent::Quit));
        }
        return false;
    }
};

} // namespace tarnic::bench
