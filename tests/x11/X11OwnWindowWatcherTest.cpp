// Which window counts as this process's own, against a real X server: with openbox, which names
// the active window, and without a window manager, where only the input focus tells. The windows
// are plain Xlib windows made on a connection of their own, so nothing about them is Qt's; they
// say who made them through _NET_WM_PID and WM_CLIENT_MACHINE, as any toolkit's windows do.
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11OwnWindowWatcher.h"
#include "support/ProcessUntil.h"
#include "support/XTestDriver.h"
#include "support/XvfbSession.h"

#include <gtest/gtest.h>

#include <climits>
#include <optional>
#include <string>
#include <thread>
#include <unistd.h>

// Last: Xlib's macros (None, Bool) break the headers above.
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace tarnic {
namespace {

using namespace std::chrono_literals;
using test::processUntil;
using test::XTestDriver;
using test::XvfbSession;

std::string hostName() {
    char name[HOST_NAME_MAX + 1] = {};
    gethostname(name, sizeof name - 1);
    return name;
}

// With a window manager (true) or without one (false).
class X11OwnWindowWatcherTest : public ::testing::TestWithParam<bool> {
protected:
    void SetUp() override {
        ASSERT_TRUE(server.ok()) << server.error().toStdString();
        ASSERT_TRUE(driver.ok());
        windows = XOpenDisplay(server.display().toLocal8Bit().constData());
        ASSERT_NE(windows, nullptr);
        connection = x11::X11Connection::open(server.display().toLocal8Bit().constData());
        ASSERT_NE(connection, nullptr);
    }

    void TearDown() override {
        watcher.reset();
        connection.reset();
        if (windows != nullptr) {
            XCloseDisplay(windows);
        }
    }

    // A mapped top-level window that names this process id and machine (either may be left out).
    Window makeWindow(std::optional<long> pid, std::optional<std::string> machine,
                      Window parent = 0) {
        const Window window =
            XCreateSimpleWindow(windows, parent != 0 ? parent : DefaultRootWindow(windows), 0, 0,
                                parent != 0 ? 50 : 200, parent != 0 ? 50 : 100, 0, 0, 0);
        if (pid) {
            const long value = *pid;
            XChangeProperty(windows, window, XInternAtom(windows, "_NET_WM_PID", False),
                            XA_CARDINAL, 32, PropModeReplace,
                            reinterpret_cast<const unsigned char*>(&value), 1);
        }
        if (machine) {
            char* text = machine->data();
            XTextProperty property{};
            XStringListToTextProperty(&text, 1, &property);
            XSetWMClientMachine(windows, window, &property);
            XFree(property.value);
        }
        XMapWindow(windows, window);
        XSync(windows, False);
        const auto deadline = std::chrono::steady_clock::now() + 5s;
        XWindowAttributes attributes{};
        while (XGetWindowAttributes(windows, window, &attributes) != 0 &&
               attributes.map_state != IsViewable && std::chrono::steady_clock::now() < deadline) {
            std::this_thread::sleep_for(10ms);
        }
        EXPECT_EQ(attributes.map_state, IsViewable);
        return window;
    }

    void startWatching() { watcher = std::make_unique<x11::X11OwnWindowWatcher>(connection); }

    // Focuses the window as a player would, then asks the watcher as the key path does.
    bool ownAfterFocusing(Window window) {
        EXPECT_TRUE(driver.focus(window, 5s));
        return watcher->ownWindowActive();
    }

    XvfbSession server{GetParam()};
    XTestDriver driver{server.display()};
    Display* windows = nullptr;
    std::shared_ptr<x11::X11Connection> connection;
    std::unique_ptr<x11::X11OwnWindowWatcher> watcher;
    const long ourPid = static_cast<long>(getpid());
    const std::string ourHost = hostName();
};

TEST_P(X11OwnWindowWatcherTest, OurProcessesWindowIsOursAndAnotherProcessesIsNot) {
    // One window there before the watcher starts, one made after.
    const Window theirs = makeWindow(static_cast<long>(getppid()), ourHost);
    startWatching();
    const Window ours = makeWindow(ourPid, ourHost);

    EXPECT_TRUE(ownAfterFocusing(ours));
    EXPECT_FALSE(ownAfterFocusing(theirs));
    EXPECT_TRUE(ownAfterFocusing(ours));
    EXPECT_FALSE(ownAfterFocusing(theirs));
}

TEST_P(X11OwnWindowWatcherTest, TheAnswerAtStartIsTheWindowInFrontThen) {
    const Window ours = makeWindow(ourPid, ourHost);
    ASSERT_TRUE(driver.focus(ours, 5s));
    startWatching();
    EXPECT_TRUE(watcher->ownWindowActive());
}

TEST_P(X11OwnWindowWatcherTest, OurProcessIdFromAnotherMachineOrWithoutOneIsNotOurs) {
    startWatching();
    const Window ours = makeWindow(ourPid, ourHost);
    const Window remote = makeWindow(ourPid, ourHost + "-elsewhere");
    const Window noMachine = makeWindow(ourPid, std::nullopt);
    const Window silent = makeWindow(std::nullopt, std::nullopt);

    EXPECT_TRUE(ownAfterFocusing(ours));
    EXPECT_FALSE(ownAfterFocusing(remote));
    EXPECT_TRUE(ownAfterFocusing(ours));
    EXPECT_FALSE(ownAfterFocusing(noMachine));
    EXPECT_TRUE(ownAfterFocusing(ours));
    EXPECT_FALSE(ownAfterFocusing(silent));
}

TEST_P(X11OwnWindowWatcherTest, AskingSendsTheServerNoRequest) {
    startWatching();
    const Window ours = makeWindow(ourPid, ourHost);
    const Window theirs = makeWindow(static_cast<long>(getppid()), ourHost);
    ASSERT_TRUE(driver.focus(theirs, 5s));
    ASSERT_TRUE(driver.focus(ours, 5s));
    // Once the change has been taken in, as the event loop does between keys.
    ASSERT_TRUE(processUntil([&] { return watcher->ownWindowActive(); }, 5s));
    Display* display = connection->display();
    const unsigned long before = NextRequest(display);
    for (int key = 0; key < 100; ++key) {
        EXPECT_TRUE(watcher->ownWindowActive());
    }
    EXPECT_EQ(NextRequest(display), before);
}

TEST_P(X11OwnWindowWatcherTest, WindowsGoneAndNoWindowActiveAreNotOurs) {
    startWatching();
    const Window ours = makeWindow(ourPid, ourHost);
    ASSERT_TRUE(ownAfterFocusing(ours));
    XDestroyWindow(windows, ours);
    XSync(windows, False);
    EXPECT_TRUE(processUntil([&] { return !watcher->ownWindowActive(); }, 5s));
}

INSTANTIATE_TEST_SUITE_P(X11OwnWindowWatcher, X11OwnWindowWatcherTest,
                         ::testing::Values(true, false),
                         [](const ::testing::TestParamInfo<bool>& info) {
                             return std::string(info.param ? "WithOpenbox"
                                                           : "WithoutAWindowManager");
                         });

// Without a window manager a toolkit may put the focus on a child of its top-level window.
class X11OwnWindowWatcherFocusTest : public X11OwnWindowWatcherTest {};

TEST_P(X11OwnWindowWatcherFocusTest, TheFocusOnAChildOfOurWindowIsOurs) {
    startWatching();
    const Window ours = makeWindow(ourPid, ourHost);
    const Window child = makeWindow(std::nullopt, std::nullopt, ours);
    const Window theirs = makeWindow(static_cast<long>(getppid()), ourHost);
    const Window theirChild = makeWindow(std::nullopt, std::nullopt, theirs);
    EXPECT_TRUE(ownAfterFocusing(child));
    EXPECT_FALSE(ownAfterFocusing(theirChild));
    EXPECT_TRUE(ownAfterFocusing(child));
}

TEST_P(X11OwnWindowWatcherFocusTest, FocusFollowingThePointerIsNotOurs) {
    startWatching();
    const Window ours = makeWindow(ourPid, ourHost);
    ASSERT_TRUE(ownAfterFocusing(ours));
    XSetInputFocus(windows, PointerRoot, RevertToPointerRoot, CurrentTime);
    XSync(windows, False);
    EXPECT_TRUE(processUntil([&] { return !watcher->ownWindowActive(); }, 5s));
}

INSTANTIATE_TEST_SUITE_P(X11OwnWindowWatcher, X11OwnWindowWatcherFocusTest,
                         ::testing::Values(false), [](const ::testing::TestParamInfo<bool>&) {
                             return std::string("WithoutAWindowManager");
                         });

} // namespace
} // namespace tarnic
