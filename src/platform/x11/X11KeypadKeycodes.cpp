#include "platform/x11/X11KeypadKeycodes.h"

#include "platform/x11/X11Connection.h"
#include "platform/x11/X11EventPump.h"
#include "core/remapper/SlotKeys.h"
#include "platform/x11/KeypadClaimPlanner.h"
#include "platform/x11/X11KeymapWriter.h"
#include "platform/x11/XkbExtension.h"

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/keysym.h>

#include <algorithm>
#include <cstdio>
#include <utility>
#include <vector>

namespace tarnic::x11 {

namespace {

constexpr char kPropertyName[] = "_TARNIC_PRO_KEYPAD_KEYCODES";

// The server's core keyboard mapping, read in one request.
KeymapRows readKeymap(Display* display) {
    int minKeycode = 0;
    int maxKeycode = 0;
    int keysymsPerKeycode = 0;
    XDisplayKeycodes(display, &minKeycode, &maxKeycode);
    KeySym* syms = XGetKeyboardMapping(display, static_cast<KeyCode>(minKeycode),
                                       maxKeycode - minKeycode + 1, &keysymsPerKeycode);
    if (syms == nullptr) {
        return {};
    }
    std::vector<Keysym> keysyms(syms, syms + static_cast<std::size_t>(maxKeycode - minKeycode + 1) *
                                                 static_cast<std::size_t>(keysymsPerKeycode));
    XFree(syms);
    return KeymapRows(minKeycode, maxKeycode, keysymsPerKeycode, std::move(keysyms));
}

std::vector<unsigned> modifierKeycodes(Display* display) {
    std::vector<unsigned> keycodes;
    XModifierKeymap* map = XGetModifierMapping(display);
    if (map != nullptr) {
        for (int i = 0; i < 8 * map->max_keypermod; ++i) {
            if (map->modifiermap[i] != 0) {
                keycodes.push_back(map->modifiermap[i]);
            }
        }
        XFreeModifiermap(map);
    }
    return keycodes;
}

SlotKeycodes readRecord(Display* display, Atom property) {
    SlotKeycodes recorded{};
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long remaining = 0;
    unsigned char* data = nullptr;
    if (XGetWindowProperty(display, DefaultRootWindow(display), property, 0, recorded.size(), False,
                           XA_CARDINAL, &type, &format, &count, &remaining, &data) == Success &&
        type == XA_CARDINAL && format == 32 && data != nullptr) {
        // Format 32 comes back as an array of long, whatever the platform.
        const auto* values = reinterpret_cast<const unsigned long*>(data);
        for (std::size_t i = 0; i < std::min<std::size_t>(count, recorded.size()); ++i) {
            recorded[i] = values[i] <= 255 ? static_cast<unsigned>(values[i]) : 0;
        }
    }
    if (data != nullptr) {
        XFree(data);
    }
    return recorded;
}

void writeRecord(Display* display, Atom property, const SlotKeycodes& keycodes) {
    const Window root = DefaultRootWindow(display);
    if (std::all_of(keycodes.begin(), keycodes.end(), [](unsigned k) { return k == 0; })) {
        XDeleteProperty(display, root, property);
        return;
    }
    std::array<long, 6> values{};
    std::copy(keycodes.begin(), keycodes.end(), values.begin());
    XChangeProperty(display, root, property, XA_CARDINAL, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(values.data()),
                    static_cast<int>(values.size()));
}

} // namespace

X11KeypadKeycodes::X11KeypadKeycodes(std::shared_ptr<X11Connection> connection)
    : connection_(std::move(connection)) {
    Display* display = connection_->display();
    propertyAtom_ = XInternAtom(display, kPropertyName, False);
    if (const std::optional<XkbExtension> xkb = queryXkb(display)) {
        xkbOpcode_ = xkb->opcode;
        xkbEventBase_ = xkb->eventBase;
        selectKeymapNotifications(display);
    }
    claim();

    X11EventPump& pump = connection_->eventPump();
    listener_ = pump.addListener([this](XEvent& event) { takeIn(event); },
                                 [this] {
                                     if (std::exchange(keymapChanged_, false)) {
                                         verify();
                                     }
                                 });
}

X11KeypadKeycodes::~X11KeypadKeycodes() {
    connection_->eventPump().removeListener(listener_);
    release();
}

std::optional<unsigned> X11KeypadKeycodes::keycodeFor(int macKeyCode) {
    std::optional<std::size_t> slotIndex;
    for (std::size_t i = 0; i < keycodes_.size() && !slotIndex; ++i) {
        if (keypadKeyOfSlot(static_cast<std::int64_t>(i) + 1) == macKeyCode) {
            slotIndex = i;
        }
    }
    if (!slotIndex) {
        return std::nullopt;
    }
    takeInKeymapChanges();
    const unsigned keycode = keycodes_[*slotIndex];
    if (keycode == 0) {
        return std::nullopt;
    }
    return keycode;
}

bool X11KeypadKeycodes::isOwn(unsigned xKeycode) const {
    return xKeycode != 0 &&
           std::find(keycodes_.begin(), keycodes_.end(), xKeycode) != keycodes_.end();
}

void X11KeypadKeycodes::takeInKeymapChanges() {
    // The pump's settled step verifies the keycodes when a notification was among the events.
    connection_->eventPump().readPending();
}

void X11KeypadKeycodes::takeIn(XEvent& event) {
    if (event.type == MappingNotify) {
        if (event.xmapping.request != MappingPointer) {
            XRefreshKeyboardMapping(&event.xmapping);
            keymapChanged_ = true;
        }
    } else if (xkbEventBase_ >= 0 && event.type == xkbEventBase_) {
        auto* xkb = reinterpret_cast<XkbEvent*>(&event);
        if (xkb->any.xkb_type == XkbMapNotify || xkb->any.xkb_type == XkbNewKeyboardNotify) {
            // Also takes in a new keycode range, which the keymap is read over.
            XkbRefreshKeyboardMapping(&xkb->map);
            keymapChanged_ = true;
        }
    }
}

void X11KeypadKeycodes::verify() {
    // A keycode taken or cleared by the new keymap carries no tap any more.
    keycodes_ = keycodesStillHeld(readKeymap(connection_->display()), keycodes_);
    if (std::any_of(keycodes_.begin(), keycodes_.end(), [](unsigned k) { return k == 0; })) {
        claim();
    }
}

void X11KeypadKeycodes::claim() {
    Display* display = connection_->display();
    XGrabServer(display);
    const SlotKeycodes recorded = readRecord(display, propertyAtom_);
    const KeypadClaimPlan plan =
        planKeypadClaim(readKeymap(display), keycodes_, recorded, modifierKeycodes(display));
    const std::vector<KeycodeMapping> changes = plan.mappingChanges();
    // The record first: a process killed in between leaves at most a record of keycodes that
    // do not hold their digit, which the next start ignores.
    if (plan.keycodes != recorded) {
        writeRecord(display, propertyAtom_, plan.keycodes);
    }
    writeKeycodeMappings(*connection_, xkbOpcode_, changes);
    XUngrabServer(display);
    keycodes_ = plan.keycodes;

    if (!changes.empty() && !connection_->syncSucceeded()) {
        // A mapping the server refused: keep only what it holds.
        keycodes_ = keycodesStillHeld(readKeymap(display), keycodes_);
    }
    XFlush(display);

    if (!fallbackReported_ &&
        std::any_of(keycodes_.begin(), keycodes_.end(), [](unsigned k) { return k == 0; })) {
        fallbackReported_ = true;
        std::fprintf(stderr, "Tarnic Pro: no unused keycode left for the keypad keys; inventory "
                             "taps use the keyboard's own keypad keys, with NumLock on for each "
                             "tap\n");
    }
}

void X11KeypadKeycodes::release() {
    if (std::all_of(keycodes_.begin(), keycodes_.end(), [](unsigned k) { return k == 0; })) {
        return;
    }
    Display* display = connection_->display();
    XGrabServer(display);
    const KeypadReleasePlan plan =
        planKeypadRelease(readKeymap(display), keycodes_, readRecord(display, propertyAtom_));
    std::vector<KeycodeMapping> cleared;
    for (const unsigned keycode : plan.cleared) {
        cleared.push_back({keycode, kNoSymbol});
    }
    writeRecord(display, propertyAtom_, plan.record);
    writeKeycodeMappings(*connection_, xkbOpcode_, cleared);
    XUngrabServer(display);
    XSync(display, False);
    keycodes_ = {};
}

} // namespace tarnic::x11
