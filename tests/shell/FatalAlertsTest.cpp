#include "shell/FatalAlerts.h"

#include "PrintingAlerts.h"
#include "core/fatal/Fatal.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMessageBox>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <cstdio>
#include <future>
#include <thread>

namespace tarnic::test {
namespace {

// Under the offscreen platform nobody sees a window: the program shows no alert of its own.
TEST(FatalAlerts, OffscreenShowsNoWindowToAnyone) {
    EXPECT_FALSE(FatalAlerts::displayShowsWindows());
}

using FatalAlertsDeathTest = ::testing::Test;

TEST_F(FatalAlertsDeathTest, TheAlertShowsTheLineThatStandardErrorGotFirst) {
    EXPECT_DEATH(
        {
            PrintingAlerts printing;
            const FatalAlerts alerts(&printing);
            fatalError(kIndexOutOfRange, "row -1 of 0");
        },
        "Fatal error: Index out of range: row -1 of 0\n"
        "alert on the GUI thread: Tarnic Pro has to close\\. / "
        "Fatal error: Index out of range: row -1 of 0\n$");
}

TEST_F(FatalAlertsDeathTest, WithoutAlertsOnlyStandardErrorGetsTheLine) {
    EXPECT_DEATH(
        {
            const FatalAlerts alerts;
            fatalError("Stored value of the wrong type", "offscreen");
        },
        "Fatal error: Stored value of the wrong type: offscreen\n$");
}

TEST_F(FatalAlertsDeathTest, AnErrorOnAThreadTheGuiThreadWaitsForIsShownOnTheGuiThread) {
    EXPECT_DEATH(
        {
            PrintingAlerts printing;
            const FatalAlerts alerts(&printing);
            auto reading = std::async(std::launch::async, [] {
                fatalError("Stored value of the wrong type", "on the reading thread");
                return 0;
            });
            FatalAlerts::take(reading);
        },
        "alert on the GUI thread: Tarnic Pro has to close\\. / "
        "Fatal error: Stored value of the wrong type: on the reading thread\n$");
}

TEST_F(FatalAlertsDeathTest, AnErrorOnAnotherThreadIsShownFromTheEventLoop) {
    EXPECT_DEATH(
        {
            PrintingAlerts printing;
            const FatalAlerts alerts(&printing);
            std::thread other([] { fatalError("Index out of range", "on another thread"); });
            QEventLoop loop;
            QTimer::singleShot(10000, &loop, &QEventLoop::quit);
            loop.exec();
            other.join();
        },
        "alert on the GUI thread: Tarnic Pro has to close\\. / "
        "Fatal error: Index out of range: on another thread\n$");
}

// Keeps the event loop turning for a while inside the alert, as a message box does, and tells
// whether the program's timers and queued calls ran meanwhile.
class TurningAlerts : public AlertPresenter {
public:
    bool* ran = nullptr;
    void run(const Alert& /*alert*/) override {
        QElapsedTimer turning;
        turning.start();
        while (turning.elapsed() < 300) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        std::fprintf(stderr, "ran while the alert was up: %s\n", *ran ? "yes" : "no");
        std::fflush(stderr);
    }
};

TEST_F(FatalAlertsDeathTest, NothingElseRunsWhileTheAlertIsUp) {
    EXPECT_DEATH(
        {
            bool ran = false;
            TurningAlerts turning;
            turning.ran = &ran;
            const FatalAlerts alerts(&turning);
            QTimer ticking;
            QObject::connect(&ticking, &QTimer::timeout, [&ran] { ran = true; });
            ticking.start(10);
            QMetaObject::invokeMethod(
                QCoreApplication::instance(), [&ran] { ran = true; }, Qt::QueuedConnection);
            fatalError("Index out of range", "while ticking");
        },
        "ran while the alert was up: no\n$");
}

// Finds the modal message box from a widget's timer (the alert lets widgets' events through),
// writes what it shows to standard error and presses its button. Bounded: 200 looks.
class BoxReader : public QWidget {
public:
    BoxReader() { startTimer(20); }

protected:
    void timerEvent(QTimerEvent* /*event*/) override {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) {
            if (++looks_ > 200) {
                std::fprintf(stderr, "no box\n");
                std::abort();
            }
            return;
        }
        std::fprintf(stderr, "box: %s / %s / icon %d / modal %d\n", qPrintable(box->text()),
                     qPrintable(box->informativeText()), static_cast<int>(box->icon()),
                     box->isModal() ? 1 : 0);
        std::fflush(stderr);
        box->buttons().first()->click();
    }

private:
    int looks_ = 0;
};

TEST_F(FatalAlertsDeathTest, TheProgramsMessageBoxShowsTheLineThenTheProgramEnds) {
    EXPECT_DEATH(
        {
            MessageBoxAlertPresenter boxes;
            const FatalAlerts alerts(&boxes);
            const BoxReader reader;
            fatalError("Stored value of the wrong type", "key \"mainDic\"");
        },
        "box: Tarnic Pro has to close\\. / Fatal error: Stored value of the wrong type: key "
        "\"mainDic\" / icon 3 / modal 1\n$");
}

} // namespace
} // namespace tarnic::test
