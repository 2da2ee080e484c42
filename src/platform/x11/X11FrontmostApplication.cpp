#include "platform/x11/X11FrontmostApplication.h"

#include "platform/x11/WindowClassIdentifier.h"
#include "platform/x11/X11Connection.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace tarnic::x11 {

std::optional<unsigned long> readActiveWindow(_XDisplay* display, unsigned long activeWindowAtom) {
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long remaining = 0;
    unsigned char* data = nullptr;
    const int status =
        XGetWindowProperty(display, DefaultRootWindow(display), activeWindowAtom, 0, 1, False,
                           XA_WINDOW, &type, &format, &count, &remaining, &data);
    std::optional<Window> window;
    if (status == Success && type == XA_WINDOW && format == 32 && count == 1 && data != nullptr) {
        // Format 32 properties come back as an array of long, whatever the platform.
        const Window value = static_cast<Window>(*reinterpret_cast<unsigned long*>(data));
        if (value != 0) {
            window = value;
        }
    }
    if (data != nullptr) {
        XFree(data);
    }
    return window;
}

std::optional<std::string> readFrontmostIdentifier(_XDisplay* display,
                                                   unsigned long activeWindowAtom) {
    const std::optional<Window> window = readActiveWindow(display, activeWindowAtom);
    if (!window) {
        return std::nullopt;
    }
    // The window may be gone by now; the request then fails and there is no class.
    XClassHint hint{};
    if (XGetClassHint(display, *window, &hint) == 0) {
        return std::nullopt;
    }
    std::optional<std::string> identifier;
    if (hint.res_class != nullptr && hint.res_class[0] != '\0') {
        identifier = identifierOfWindowClass(hint.res_class);
    }
    if (hint.res_name != nullptr) {
        XFree(hint.res_name);
    }
    if (hint.res_class != nullptr) {
        XFree(hint.res_class);
    }
    return identifier;
}

X11FrontmostApplication::X11FrontmostApplication(std::shared_ptr<X11Connection> connection)
    : connection_(std::move(connection)) {
    activeWindowAtom_ = XInternAtom(connection_->display(), "_NET_ACTIVE_WINDOW", False);
}

std::optional<std::string> X11FrontmostApplication::bundleIdentifier() const {
    return readFrontmostIdentifier(connection_->display(), activeWindowAtom_);
}

} // namespace tarnic::x11
