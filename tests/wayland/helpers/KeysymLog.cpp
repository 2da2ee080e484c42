// An X client for the Wayland tier and the mapping benchmark: one window that logs, one line each,
// flushed at once:
//   ready <window id>
//   press <keycode> <keysym name>       the keysym as this client's keymap names it at level 0
//   release <keycode> <keysym name>
//   mapping <request> <first keycode> <count>   every MappingNotify (0 modifiers, 1 keyboard,
//                                               2 pointer); the keymap is refreshed after it
//   focus in | focus out
// It selects nothing but its own window's key, focus and structure events: MappingNotify comes
// to every client. Options: --title <title> (default "keysym log"), --class <WM_CLASS>.
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace {

const char* keysymName(XKeyEvent* event) {
    const KeySym keysym = XLookupKeysym(event, 0);
    const char* name = keysym == NoSymbol ? nullptr : XKeysymToString(keysym);
    return name != nullptr ? name : "NoSymbol";
}

} // namespace

int main(int argc, char** argv) {
    std::string title = "keysym log";
    std::string windowClass = "keysymlog";
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::strcmp(argv[i], "--title") == 0) {
            title = argv[i + 1];
        } else if (std::strcmp(argv[i], "--class") == 0) {
            windowClass = argv[i + 1];
        }
    }
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        std::fprintf(stderr, "keysym log: cannot open the display\n");
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
    // Xlib reads the keymap (and starts following its changes) at the first lookup; a client
    // that did so only at its first key could miss a change made in between. Programs read it
    // when they start, and so does this one.
    XKeyEvent probe{};
    probe.display = display;
    probe.keycode = 8;
    XLookupKeysym(&probe, 0);
    XMapRaised(display, window);

    for (;;) {
        XEvent event{};
        XNextEvent(display, &event);
        switch (event.type) {
        case MapNotify:
            std::printf("ready %lu\n", static_cast<unsigned long>(window));
            break;
        case KeyPress:
        case KeyRelease:
            std::printf("%s %u %s\n", event.type == KeyPress ? "press" : "release",
                        event.xkey.keycode, keysymName(&event.xkey));
            break;
        case MappingNotify:
            std::printf("mapping %d %d %d\n", event.xmapping.request, event.xmapping.first_keycode,
                        event.xmapping.count);
            XRefreshKeyboardMapping(&event.xmapping);
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
