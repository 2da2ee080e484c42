// A plain X client for the tests and the benchmark: one window that logs every key event it gets,
// one line each, flushed at once:
//   ready <window id>
//   press <keycode> <state> <server time ms> <CLOCK_MONOTONIC ns at receipt>
//   release <keycode> <state> <server time ms> <CLOCK_MONOTONIC ns at receipt>
//   focus in | focus out
// Options: --class <WM_CLASS class and name> (default "keylog"), --title <title>.
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <time.h>

namespace {

long long monotonicNanoseconds() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec;
}

} // namespace

int main(int argc, char** argv) {
    std::string windowClass = "keylog";
    std::string title = "key log";
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::strcmp(argv[i], "--class") == 0) {
            windowClass = argv[i + 1];
        } else if (std::strcmp(argv[i], "--title") == 0) {
            title = argv[i + 1];
        }
    }
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        std::fprintf(stderr, "keylog: cannot open display\n");
        return 1;
    }
    const Window window = XCreateSimpleWindow(display, DefaultRootWindow(display), 10, 10, 300, 200,
                                              0, 0, WhitePixel(display, 0));
    XClassHint hint{};
    hint.res_name = windowClass.data();
    hint.res_class = windowClass.data();
    XSetClassHint(display, window, &hint);
    XStoreName(display, window, title.c_str());
    XSelectInput(display, window,
                 KeyPressMask | KeyReleaseMask | FocusChangeMask | StructureNotifyMask);
    XMapRaised(display, window);

    for (;;) {
        XEvent event{};
        XNextEvent(display, &event);
        const long long receivedAt = monotonicNanoseconds();
        switch (event.type) {
        case MapNotify:
            std::printf("ready %lu\n", static_cast<unsigned long>(window));
            break;
        case KeyPress:
        case KeyRelease:
            std::printf("%s %u %u %lu %lld\n", event.type == KeyPress ? "press" : "release",
                        event.xkey.keycode, event.xkey.state, event.xkey.time, receivedAt);
            break;
        case FocusIn:
            std::printf("focus in\n");
            break;
        case FocusOut:
            std::printf("focus out\n");
            break;
        default:
            break;
        }
        std::fflush(stdout);
    }
}
