#include "app/AfterFirstPaint.h"

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

namespace tarnic::test {
namespace {

using namespace std::chrono_literals;

TEST(AfterFirstPaint, RunsOnceAfterTheFirstPaintNotBefore) {
    QWidget window;
    window.resize(200, 100);
    int runs = 0;
    bool paintedBeforeRun = false;
    bool painted = false;
    struct PaintSeen : QObject {
        bool* painted;
        explicit PaintSeen(bool* p) : painted(p) {}
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::Paint) {
                *painted = true;
            }
            return false;
        }
    } seen(&painted);
    window.installEventFilter(&seen);
    AfterFirstPaint after(window, 10s, [&] {
        ++runs;
        paintedBeforeRun = painted;
    });
    window.show();
    EXPECT_EQ(runs, 0);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_TRUE(QTest::qWaitFor([&] { return runs > 0; }, 5000));
    EXPECT_TRUE(paintedBeforeRun);
    window.update();
    QTest::qWait(50);
    EXPECT_EQ(runs, 1);
}

TEST(AfterFirstPaint, RunsAtTheLatestWithoutAPaint) {
    QWidget window;
    window.setAttribute(Qt::WA_DontShowOnScreen);
    int runs = 0;
    AfterFirstPaint after(window, 20ms, [&] { ++runs; });
    window.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return runs > 0; }, 5000));
    QTest::qWait(50);
    EXPECT_EQ(runs, 1);
}

TEST(AfterFirstPaint, DroppedOnceTheWindowHasClosed) {
    QWidget window;
    int runs = 0;
    AfterFirstPaint after(window, 20ms, [&] { ++runs; });
    window.show();
    window.close();
    QTest::qWait(100);
    EXPECT_EQ(runs, 0);
}

} // namespace
} // namespace tarnic::test
