#include "BenchmarkExit.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTableView>
#include <QWidget>

#include <cstdio>
#include <ctime>

namespace tarnic {

namespace {

class FirstPaint : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool result = QObject::eventFilter(watched, event);
        if (event->type() == QEvent::Paint && !done_) {
            done_ = true;
            // Printed after this paint has been handled: the rows are drawn.
            QMetaObject::invokeMethod(
                this,
                [] {
                    timespec now{};
                    clock_gettime(CLOCK_MONOTONIC, &now);
                    std::printf("shown %lld\n",
                                static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec);
                    std::fflush(stdout);
                    QCoreApplication::quit();
                },
                Qt::QueuedConnection);
        }
        return result;
    }

private:
    bool done_ = false;
};

} // namespace

void exitWhenShownForBenchmark(QWidget& window) {
    if (qEnvironmentVariableIsEmpty("TARNIC_BENCH_EXIT_WHEN_SHOWN")) {
        return;
    }
    if (auto* table = window.findChild<QTableView*>()) {
        table->viewport()->installEventFilter(new FirstPaint(table->viewport()));
    }
}

} // namespace tarnic
