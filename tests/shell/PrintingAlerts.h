#pragma once

#include "shell/AlertPresenter.h"

#include <QCoreApplication>
#include <QThread>

#include <cstdio>

namespace tarnic::test {

// Writes each alert to standard error, with the thread it was shown on, and dismisses it at once:
// a death test's parent reads what the dying child showed there.
class PrintingAlerts : public AlertPresenter {
public:
    void run(const Alert& alert) override {
        const bool gui = QThread::currentThread() == QCoreApplication::instance()->thread();
        std::fprintf(stderr, "alert on the %s thread: %s / %s\n", gui ? "GUI" : "other",
                     qPrintable(alert.text), qPrintable(alert.informativeText));
        std::fflush(stderr);
    }
};

} // namespace tarnic::test
