#include "platform/x11/XkbExtension.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>

namespace tarnic::x11 {

std::optional<XkbExtension> queryXkb(Display* display) {
    XkbExtension xkb;
    int errorBase = 0;
    int major = XkbMajorVersion;
    int minor = XkbMinorVersion;
    if (!XkbQueryExtension(display, &xkb.opcode, &xkb.eventBase, &errorBase, &major, &minor)) {
        return std::nullopt;
    }
    return xkb;
}

void selectKeymapNotifications(Display* display) {
    const unsigned long maps = XkbNewKeyboardNotifyMask | XkbMapNotifyMask;
    XkbSelectEvents(display, XkbUseCoreKbd, maps, maps);
}

} // namespace tarnic::x11
