#include "shell/RecordExtensionTrust.h"

#include <X11/Xlib.h>

#include <utility>

namespace tarnic {

RecordExtensionTrust::RecordExtensionTrust(std::string displayName)
    : displayName_(std::move(displayName)) {}

bool RecordExtensionTrust::isProcessTrusted() const {
    Display* display = XOpenDisplay(displayName_.empty() ? nullptr : displayName_.c_str());
    if (display == nullptr) {
        return false;
    }
    int opcode = 0;
    int firstEvent = 0;
    int firstError = 0;
    const bool offered = XQueryExtension(display, "RECORD", &opcode, &firstEvent, &firstError);
    XCloseDisplay(display);
    return offered;
}

} // namespace tarnic
