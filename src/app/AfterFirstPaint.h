#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <functional>

namespace tarnic {

// Runs a piece of work once, after a widget's first paint, so that what the first frame does not
// need stays off the way to it: on a zero timer, that is once the event loop has handled what
// came with the paint (the rest of the frame, input). A window that opens behind others gets no
// paint until it is uncovered, so the work also runs after `latest` if no paint came by then. The
// work is for the window: if the window has closed by then (the application is ending), it is
// dropped.
class AfterFirstPaint : public QObject {
public:
    AfterFirstPaint(QWidget& painted, std::chrono::milliseconds latest, std::function<void()> work);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void run();

    QPointer<QWidget> painted_;
    QTimer latest_;
    std::function<void()> work_;
};

} // namespace tarnic
