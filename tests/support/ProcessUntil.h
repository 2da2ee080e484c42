#pragma once

#include <QEventLoop>
#include <QObject>
#include <QTimer>

#include <chrono>

namespace tarnic::test {

// Runs the event loop until `done` holds or the time is up; true if it holds.
template <typename Predicate> bool processUntil(Predicate done, std::chrono::milliseconds timeout) {
    if (done()) {
        return true;
    }
    QEventLoop loop;
    QTimer check;
    QObject::connect(&check, &QTimer::timeout, [&] {
        if (done()) {
            loop.quit();
        }
    });
    check.start(2);
    QTimer::singleShot(timeout, &loop, &QEventLoop::quit);
    loop.exec();
    return done();
}

} // namespace tarnic::test
