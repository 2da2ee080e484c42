#include "support/XTestDriver.h"

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

#include <X11/Xutil.h>

#include <thread>

namespace tarnic::test {

XTestDriver::XTestDriver(const QString& display)
    : display_(XOpenDisplay(display.toLocal8Bit().constData())) {}

XTestDriver::~XTestDriver() {
    if (display_ != nullptr) {
        XCloseDisplay(display_);
    }
}

void XTestDriver::press(unsigned xKeycode) {
    XTestFakeKeyEvent(display_, xKeycode, True, CurrentTime);
    XSync(display_, False);
}

void XTestDriver::release(unsigned xKeycode) {
    XTestFakeKeyEvent(display_, xKeycode, False, CurrentTime);
    XSync(display_, False);
}

void XTestDriver::tap(unsigned xKeycode) {
    press(xKeycode);
    release(xKeycode);
}

namespace {

Window findWindowOfClass(Display* display, Window window, const QString& windowClass) {
    XClassHint hint{};
    if (XGetClassHint(display, window, &hint) != 0) {
        const bool match =
            hint.res_class != nullptr &&
            QString::fromLocal8Bit(hint.res_class).compare(windowClass, Qt::CaseInsensitive) == 0;
        XFree(hint.res_name);
        XFree(hint.res_class);
        XWindowAttributes attributes{};
        if (match && XGetWindowAttributes(display, window, &attributes) != 0 &&
            attributes.map_state == IsViewable) {
            return window;
        }
    }
    Window root = 0;
    Window parent = 0;
    Window* children = nullptr;
    unsigned count = 0;
    Window found = 0;
    if (XQueryTree(display, window, &root, &parent, &children, &count) != 0) {
        for (unsigned i = 0; i < count && found == 0; ++i) {
            found = findWindowOfClass(display, children[i], windowClass);
        }
        if (children != nullptr) {
            XFree(children);
        }
    }
    return found;
}

} // namespace

unsigned long XTestDriver::waitForWindowOfClass(const QString& windowClass,
                                                std::chrono::milliseconds timeout) {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        const Window found = findWindowOfClass(display_, DefaultRootWindow(display_), windowClass);
        if (found != 0 || std::chrono::steady_clock::now() >= deadline) {
            return found;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
}

unsigned long XTestDriver::inputFocus() {
    Window focus = 0;
    int revertTo = 0;
    XGetInputFocus(display_, &focus, &revertTo);
    return focus;
}

unsigned long XTestDriver::activeWindow() {
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long remaining = 0;
    unsigned char* data = nullptr;
    Window active = 0;
    if (XGetWindowProperty(display_, DefaultRootWindow(display_),
                           XInternAtom(display_, "_NET_ACTIVE_WINDOW", False), 0, 1, False,
                           XA_WINDOW, &type, &format, &count, &remaining, &data) == Success &&
        type == XA_WINDOW && format == 32 && count == 1 && data != nullptr) {
        active = static_cast<Window>(*reinterpret_cast<unsigned long*>(data));
    }
    if (data != nullptr) {
        XFree(data);
    }
    return active;
}

bool XTestDriver::focus(unsigned long window, std::chrono::milliseconds timeout) {
    const Window root = DefaultRootWindow(display_);
    const Atom supportingCheck = XInternAtom(display_, "_NET_SUPPORTING_WM_CHECK", True);
    bool windowManager = false;
    if (supportingCheck != None) {
        Atom type = 0;
        int format = 0;
        unsigned long count = 0;
        unsigned long remaining = 0;
        unsigned char* data = nullptr;
        windowManager = XGetWindowProperty(display_, root, supportingCheck, 0, 1, False, XA_WINDOW,
                                           &type, &format, &count, &remaining, &data) == Success &&
                        count == 1;
        if (data != nullptr) {
            XFree(data);
        }
    }
    if (windowManager) {
        XEvent event{};
        event.xclient.type = ClientMessage;
        event.xclient.window = window;
        event.xclient.message_type = XInternAtom(display_, "_NET_ACTIVE_WINDOW", False);
        event.xclient.format = 32;
        event.xclient.data.l[0] = 2; // from a pager: honoured at once
        event.xclient.data.l[1] = CurrentTime;
        XSendEvent(display_, root, False, SubstructureRedirectMask | SubstructureNotifyMask,
                   &event);
    } else {
        XRaiseWindow(display_, window);
        XSetInputFocus(display_, window, RevertToParent, CurrentTime);
    }
    XSync(display_, False);
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    // With a window manager, also until it names the window active: it does so a moment after
    // the focus moved, and a program that follows _NET_ACTIVE_WINDOW learns of it only then.
    while (inputFocus() != window || (windowManager && activeWindow() != window)) {
        if (std::chrono::steady_clock::now() >= deadline) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

bool XTestDriver::numLockOn() {
    const unsigned mask = XkbKeysymToModifiers(display_, XK_Num_Lock);
    XkbStateRec state{};
    XkbGetState(display_, XkbUseCoreKbd, &state);
    return (state.locked_mods & mask) != 0;
}

void XTestDriver::setNumLock(bool on) {
    const unsigned mask = XkbKeysymToModifiers(display_, XK_Num_Lock);
    XkbLockModifiers(display_, XkbUseCoreKbd, mask, on ? mask : 0);
    XSync(display_, False);
}

} // namespace tarnic::test
