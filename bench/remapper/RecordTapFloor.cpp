// The floor a remapper's latency is judged against: the least a RECORD + XTest remapper can do,
// in plain Xlib. It records the key presses of all clients and, at each press of the trigger
// keycode, taps keypad 7 on a keycode of its own (a free keycode given the one keysym KP_7),
// press and release, flushed once. The keycode is given back when SIGTERM or SIGINT ends it.
//   bench_remapper_floor <trigger X keycode>
// Prints "ready <claimed keycode>" once the recording has begun.
#include <X11/Xlib.h>
#include <X11/Xproto.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/record.h>
#include <X11/keysym.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <poll.h>

namespace {

volatile std::sig_atomic_t gStop = 0;
Display* gControl = nullptr;
unsigned gTrigger = 0;
KeyCode gOwn = 0;
bool gStarted = false;

void onRecorded(XPointer, XRecordInterceptData* data) {
    if (data->category == XRecordStartOfData) {
        gStarted = true;
    } else if (data->category == XRecordFromServer && data->data != nullptr) {
        const auto* event = reinterpret_cast<const xEvent*>(data->data);
        if ((event->u.u.type & 0x7f) == KeyPress && event->u.u.detail == gTrigger) {
            XTestFakeKeyEvent(gControl, gOwn, True, CurrentTime);
            XTestFakeKeyEvent(gControl, gOwn, False, CurrentTime);
            XFlush(gControl);
        }
    }
    XRecordFreeData(data);
}

// The highest keycode without any keysym.
KeyCode freeKeycode(Display* display) {
    int min = 0;
    int max = 0;
    XDisplayKeycodes(display, &min, &max);
    int perKeycode = 0;
    KeySym* keysyms =
        XGetKeyboardMapping(display, static_cast<KeyCode>(min), max - min + 1, &perKeycode);
    KeyCode found = 0;
    for (int keycode = max; keycode >= min && found == 0; --keycode) {
        bool used = false;
        for (int i = 0; i < perKeycode; ++i) {
            used = used || keysyms[(keycode - min) * perKeycode + i] != NoSymbol;
        }
        found = used ? 0 : static_cast<KeyCode>(keycode);
    }
    XFree(keysyms);
    return found;
}

} // namespace

int main(int argc, char** argv) {
    gTrigger = argc > 1 ? static_cast<unsigned>(std::atoi(argv[1])) : 0;
    gControl = XOpenDisplay(nullptr);
    Display* data = XOpenDisplay(nullptr);
    int major = 0;
    int minor = 0;
    int ignored = 0;
    if (gTrigger == 0 || gControl == nullptr || data == nullptr ||
        !XTestQueryExtension(gControl, &ignored, &ignored, &major, &minor) ||
        !XRecordQueryVersion(gControl, &major, &minor) || (gOwn = freeKeycode(gControl)) == 0) {
        std::fprintf(stderr, "usage: bench_remapper_floor <trigger keycode>, on an X server with "
                             "RECORD, XTEST and a free keycode\n");
        return 1;
    }
    KeySym keypad7 = XK_KP_7;
    XChangeKeyboardMapping(gControl, gOwn, 1, &keypad7, 1);

    XRecordRange* range = XRecordAllocRange();
    range->device_events.first = KeyPress;
    range->device_events.last = KeyPress;
    XRecordClientSpec clients = XRecordAllClients;
    const XRecordContext context = XRecordCreateContext(gControl, 0, &clients, 1, &range, 1);
    XFree(range);
    XSync(gControl, False);
    XRecordEnableContextAsync(data, context, onRecorded, nullptr);
    XFlush(data);

    struct sigaction stop {};
    stop.sa_handler = [](int) { gStop = 1; };
    sigaction(SIGTERM, &stop, nullptr); // no SA_RESTART: poll() returns at once
    sigaction(SIGINT, &stop, nullptr);
    bool announced = false;
    while (!gStop) {
        // Xlib may have read the start-of-data reply already, while flushing.
        if (gStarted && !announced) {
            std::printf("ready %u\n", gOwn);
            std::fflush(stdout);
            announced = true;
        }
        pollfd descriptor{ConnectionNumber(data), POLLIN, 0};
        if (poll(&descriptor, 1, -1) > 0) {
            XRecordProcessReplies(data);
        }
    }

    XRecordDisableContext(gControl, context);
    XRecordFreeContext(gControl, context);
    KeySym nothing = NoSymbol;
    XChangeKeyboardMapping(gControl, gOwn, 1, &nothing, 1);
    XSync(gControl, False);
    XCloseDisplay(data);
    XCloseDisplay(gControl);
    return 0;
}
