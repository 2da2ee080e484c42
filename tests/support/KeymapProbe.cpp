#include "support/KeymapProbe.h"

#include "platform/x11/XkbExtension.h"

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace tarnic::test {

KeymapProbe::KeymapProbe(const QString& display)
    : display_(XOpenDisplay(display.toLocal8Bit().constData())) {
    if (display_ == nullptr) {
        return;
    }
    if (const std::optional<x11::XkbExtension> xkb = x11::queryXkb(display_)) {
        xkbEventBase_ = xkb->eventBase;
    }
}

KeymapProbe::~KeymapProbe() {
    if (display_ != nullptr) {
        XCloseDisplay(display_);
    }
}

std::map<unsigned, std::vector<unsigned long>> KeymapProbe::keysyms() {
    std::map<unsigned, std::vector<unsigned long>> result;
    XkbDescPtr desc = XkbGetMap(display_, XkbKeySymsMask | XkbKeyTypesMask, XkbUseCoreKbd);
    if (desc == nullptr) {
        return result;
    }
    for (int keycode = desc->min_key_code; keycode <= desc->max_key_code; ++keycode) {
        std::vector<unsigned long>& syms = result[static_cast<unsigned>(keycode)];
        const int count = XkbKeyNumSyms(desc, keycode);
        const KeySym* first = XkbKeySymsPtr(desc, keycode);
        for (int i = 0; i < count; ++i) {
            syms.push_back(first[i]);
        }
    }
    XkbFreeKeyboard(desc, 0, True);
    return result;
}

std::vector<unsigned long> KeymapProbe::keysymsOf(unsigned keycode) {
    const auto all = keysyms();
    const auto it = all.find(keycode);
    return it == all.end() ? std::vector<unsigned long>{} : it->second;
}

std::vector<unsigned> KeymapProbe::unusedKeycodes() {
    std::vector<unsigned> keycodes;
    for (const auto& [keycode, syms] : keysyms()) {
        if (syms.empty()) {
            keycodes.push_back(keycode);
        }
    }
    return keycodes;
}

std::vector<unsigned> KeymapProbe::keycodesWithOnly(unsigned long keysym) {
    std::vector<unsigned> keycodes;
    for (const auto& [keycode, syms] : keysyms()) {
        if (syms == std::vector<unsigned long>{keysym}) {
            keycodes.push_back(keycode);
        }
    }
    return keycodes;
}

void KeymapProbe::setKeysyms(unsigned keycode, const std::vector<unsigned long>& keysyms) {
    std::vector<KeySym> syms(keysyms.begin(), keysyms.end());
    if (syms.empty()) {
        syms.push_back(NoSymbol);
    }
    XChangeKeyboardMapping(display_, static_cast<int>(keycode), static_cast<int>(syms.size()),
                           syms.data(), 1);
    XSync(display_, False);
}

std::vector<unsigned> KeymapProbe::recordedKeycodes() {
    std::vector<unsigned> keycodes;
    const Atom property = XInternAtom(display_, "_TARNIC_PRO_KEYPAD_KEYCODES", True);
    if (property == None) {
        return keycodes;
    }
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long remaining = 0;
    unsigned char* data = nullptr;
    if (XGetWindowProperty(display_, DefaultRootWindow(display_), property, 0, 64, False,
                           AnyPropertyType, &type, &format, &count, &remaining, &data) == Success &&
        type == XA_CARDINAL && format == 32 && data != nullptr) {
        const auto* values = reinterpret_cast<const unsigned long*>(data);
        keycodes.assign(values, values + count);
    }
    if (data != nullptr) {
        XFree(data);
    }
    return keycodes;
}

void KeymapProbe::setRecordedKeycodes(const std::vector<unsigned>& keycodes) {
    const Atom property = XInternAtom(display_, "_TARNIC_PRO_KEYPAD_KEYCODES", False);
    std::vector<long> values(keycodes.begin(), keycodes.end());
    XChangeProperty(display_, DefaultRootWindow(display_), property, XA_CARDINAL, 32,
                    PropModeReplace, reinterpret_cast<const unsigned char*>(values.data()),
                    static_cast<int>(values.size()));
    XSync(display_, False);
}

void KeymapProbe::watchLockedModifiers() {
    XkbSelectEventDetails(display_, XkbUseCoreKbd, XkbStateNotify, XkbAllStateComponentsMask,
                          XkbModifierLockMask);
    XSync(display_, False);
}

int KeymapProbe::lockedModifierChanges() {
    XSync(display_, False);
    while (XPending(display_) > 0) {
        XEvent event{};
        XNextEvent(display_, &event);
        if (xkbEventBase_ >= 0 && event.type == xkbEventBase_) {
            const auto* xkb = reinterpret_cast<const XkbEvent*>(&event);
            if (xkb->any.xkb_type == XkbStateNotify &&
                (xkb->state.changed & XkbModifierLockMask) != 0) {
                ++lockChanges_;
            }
        }
    }
    return lockChanges_;
}

} // namespace tarnic::test
