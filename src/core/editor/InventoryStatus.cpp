#include "core/editor/InventoryStatus.h"

namespace tarnic {

std::string inventoryStatusText(bool trusted, UntrustedReason reason) {
    if (trusted) {
        return "Inventory keys active";
    }
    switch (reason) {
    case UntrustedReason::NoDisplayServer:
        return "Inventory keys off: no X server to watch your keys on. Start Tarnic Pro in the "
               "desktop session the game runs in (X11, or Wayland with XWayland).";
    case UntrustedReason::NoKeyRecording:
        return "Inventory keys off: the X server has no RECORD extension, so Tarnic Pro cannot "
               "see your key presses.";
    case UntrustedReason::RecordingRefused:
    case UntrustedReason::Trusted:
        // Trusted with isProcessTrusted() false would be a platform's mistake; say what is known.
        break;
    }
    return "Inventory keys off: the X server would not let Tarnic Pro watch your key presses "
           "(RECORD).";
}

} // namespace tarnic
