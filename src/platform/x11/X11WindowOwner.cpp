#include "platform/x11/X11WindowOwner.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace tarnic::x11 {

namespace {

// Deep enough for any toolkit's focus child; bounded whatever the tree.
constexpr int kMaxAncestors = 8;

std::optional<long> readProcessId(Display* display, Window window, Atom pidAtom) {
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long remaining = 0;
    unsigned char* data = nullptr;
    const int status = XGetWindowProperty(display, window, pidAtom, 0, 1, False, XA_CARDINAL, &type,
                                          &format, &count, &remaining, &data);
    std::optional<long> pid;
    if (status == Success && type == XA_CARDINAL && format == 32 && count == 1 && data != nullptr) {
        // Format 32 properties come back as an array of long, whatever the platform.
        pid = *reinterpret_cast<long*>(data);
    }
    if (data != nullptr) {
        XFree(data);
    }
    return pid;
}

std::optional<std::string> readClientMachine(Display* display, Window window) {
    XTextProperty text{};
    if (XGetWMClientMachine(display, window, &text) == 0) {
        return std::nullopt;
    }
    std::optional<std::string> machine;
    if (text.value != nullptr && text.format == 8) {
        machine = std::string(reinterpret_cast<const char*>(text.value), text.nitems);
    }
    if (text.value != nullptr) {
        XFree(text.value);
    }
    return machine;
}

std::optional<Window> parentBelowRoot(Display* display, Window window) {
    Window root = 0;
    Window parent = 0;
    Window* children = nullptr;
    unsigned int count = 0;
    if (XQueryTree(display, window, &root, &parent, &children, &count) == 0) {
        return std::nullopt;
    }
    if (children != nullptr) {
        XFree(children);
    }
    if (parent == 0 || parent == root) {
        return std::nullopt;
    }
    return parent;
}

} // namespace

WindowOwner readWindowOwner(_XDisplay* display, unsigned long window, unsigned long pidAtom) {
    WindowOwner owner;
    owner.processId = readProcessId(display, window, pidAtom);
    if (owner.processId) {
        owner.clientMachine = readClientMachine(display, window);
    }
    return owner;
}

WindowOwner readFocusOwner(_XDisplay* display, unsigned long pidAtom) {
    Window focus = 0;
    int revertTo = 0;
    XGetInputFocus(display, &focus, &revertTo);
    if (focus == None || focus == PointerRoot) {
        return {};
    }
    std::optional<Window> window = focus;
    for (int level = 0; window && level < kMaxAncestors; ++level) {
        WindowOwner owner = readWindowOwner(display, *window, pidAtom);
        if (owner.processId) {
            return owner;
        }
        window = parentBelowRoot(display, *window);
    }
    return {};
}

} // namespace tarnic::x11
