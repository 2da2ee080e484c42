#include "support/KeymapWatcher.h"

#include "platform/x11/XkbExtension.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XInput2.h>

#include <cstring>

namespace tarnic::test {

KeymapWatcher::KeymapWatcher(const QString& display)
    : display_(XOpenDisplay(display.toLocal8Bit().constData())) {
    if (display_ == nullptr) {
        return;
    }
    if (const std::optional<x11::XkbExtension> xkb = x11::queryXkb(display_)) {
        xkbEventBase_ = xkb->eventBase;
        x11::selectKeymapNotifications(display_);
        XSync(display_, False);
    }
}

KeymapWatcher::~KeymapWatcher() {
    if (display_ != nullptr) {
        XCloseDisplay(display_);
    }
}

KeymapNotifications KeymapWatcher::take() {
    KeymapNotifications seen;
    XSync(display_, False);
    while (XPending(display_) > 0) {
        XEvent event{};
        XNextEvent(display_, &event);
        if (event.type == MappingNotify) {
            ++seen.coreMappingNotify;
        } else if (event.type == xkbEventBase_) {
            const auto* xkb = reinterpret_cast<const XkbEvent*>(&event);
            if (xkb->any.xkb_type == XkbMapNotify) {
                ++seen.xkbMapNotify;
            } else if (xkb->any.xkb_type == XkbNewKeyboardNotify) {
                ++seen.newKeyboardNotify;
            }
        }
    }
    return seen;
}

std::map<unsigned, std::vector<unsigned long>> KeymapWatcher::keys(int device) {
    std::map<unsigned, std::vector<unsigned long>> result;
    XkbDescPtr xkb = XkbGetMap(display_, XkbAllMapComponentsMask,
                               device < 0 ? XkbUseCoreKbd : static_cast<unsigned>(device));
    if (xkb == nullptr) {
        return result;
    }
    XkbGetControls(display_, XkbPerKeyRepeatMask, xkb);
    int perKeycode = 0;
    KeySym* core = XGetKeyboardMapping(display_, static_cast<KeyCode>(xkb->min_key_code),
                                       xkb->max_key_code - xkb->min_key_code + 1, &perKeycode);
    for (int keycode = xkb->min_key_code; keycode <= xkb->max_key_code; ++keycode) {
        std::vector<unsigned long>& key = result[static_cast<unsigned>(keycode)];
        if (core != nullptr) {
            const KeySym* row = core + (keycode - xkb->min_key_code) * perKeycode;
            key.assign(row, row + perKeycode);
        }
        const XkbSymMapRec& map = xkb->map->key_sym_map[keycode];
        key.insert(key.end(), std::begin(map.kt_index), std::end(map.kt_index));
        key.push_back(map.group_info);
        key.push_back(map.width);
        const KeySym* syms = XkbKeySymsPtr(xkb, keycode);
        key.insert(key.end(), syms, syms + XkbKeyNumSyms(xkb, keycode));
        if (XkbKeyHasActions(xkb, keycode)) {
            const XkbAction* actions = XkbKeyActionsPtr(xkb, keycode);
            for (int i = 0; i < XkbKeyNumActions(xkb, keycode); ++i) {
                unsigned char bytes[sizeof(XkbAction)];
                std::memcpy(bytes, &actions[i], sizeof(bytes));
                key.insert(key.end(), std::begin(bytes), std::end(bytes));
            }
        } else {
            key.push_back(0xacu); // marks "no actions at all"
        }
        key.push_back(xkb->server->behaviors[keycode].type);
        key.push_back(xkb->server->behaviors[keycode].data);
        key.push_back(xkb->server->c_explicit[keycode]);
        key.push_back(xkb->map->modmap[keycode]);
        key.push_back(xkb->server->vmodmap[keycode]);
        if (xkb->ctrls != nullptr) {
            key.push_back((xkb->ctrls->per_key_repeat[keycode / 8] >> (keycode % 8)) & 1u);
        }
    }
    if (core != nullptr) {
        XFree(core);
    }
    XkbFreeKeyboard(xkb, 0, True);
    return result;
}

std::vector<int> KeymapWatcher::attachedKeyboards() {
    std::vector<int> devices;
    int count = 0;
    XIDeviceInfo* info = XIQueryDevice(display_, XIAllDevices, &count);
    if (info == nullptr) {
        return devices;
    }
    int master = -1;
    for (int i = 0; i < count; ++i) {
        if (info[i].use == XIMasterKeyboard) {
            master = info[i].deviceid;
        }
    }
    for (int i = 0; i < count; ++i) {
        if (info[i].use == XISlaveKeyboard && info[i].attachment == master) {
            devices.push_back(info[i].deviceid);
        }
    }
    XIFreeDeviceInfo(info);
    return devices;
}

std::vector<unsigned long> KeymapWatcher::keyTypes() {
    std::vector<unsigned long> result;
    XkbDescPtr xkb = XkbGetMap(display_, XkbKeyTypesMask, XkbUseCoreKbd);
    if (xkb == nullptr) {
        return result;
    }
    for (int t = 0; t < xkb->map->num_types; ++t) {
        const XkbKeyTypeRec& type = xkb->map->types[t];
        result.insert(result.end(), {type.name, type.num_levels, type.mods.mask,
                                     type.mods.real_mods, type.mods.vmods, type.map_count});
        for (int e = 0; e < type.map_count; ++e) {
            result.insert(result.end(),
                          {static_cast<unsigned long>(type.map[e].active), type.map[e].level,
                           type.map[e].mods.mask, type.map[e].mods.vmods});
            if (type.preserve != nullptr) {
                result.insert(result.end(), {type.preserve[e].mask, type.preserve[e].vmods});
            }
        }
    }
    XkbFreeKeyboard(xkb, 0, True);
    return result;
}

std::vector<unsigned> KeymapWatcher::keycodesWithActions() {
    std::vector<unsigned> result;
    XkbDescPtr xkb = XkbGetMap(display_, XkbKeySymsMask | XkbKeyActionsMask, XkbUseCoreKbd);
    if (xkb == nullptr) {
        return result;
    }
    for (int keycode = xkb->min_key_code; keycode <= xkb->max_key_code; ++keycode) {
        if (!XkbKeyHasActions(xkb, keycode)) {
            continue;
        }
        const XkbAction* actions = XkbKeyActionsPtr(xkb, keycode);
        for (int i = 0; i < XkbKeyNumActions(xkb, keycode); ++i) {
            if (actions[i].type != XkbSA_NoAction) {
                result.push_back(static_cast<unsigned>(keycode));
                break;
            }
        }
    }
    XkbFreeKeyboard(xkb, 0, True);
    return result;
}

void KeymapWatcher::turnRepeatOffForEveryKey() {
    XkbDescPtr xkb = XkbAllocKeyboard();
    if (xkb == nullptr) {
        return;
    }
    xkb->device_spec = XkbUseCoreKbd;
    if (XkbGetControls(display_, XkbPerKeyRepeatMask, xkb) == Success && xkb->ctrls != nullptr) {
        std::memset(xkb->ctrls->per_key_repeat, 0, sizeof(xkb->ctrls->per_key_repeat));
        XkbSetControls(display_, XkbPerKeyRepeatMask, xkb);
    }
    XkbFreeKeyboard(xkb, 0, True);
    XSync(display_, False);
}

void KeymapWatcher::turnMouseKeysOn() {
    XkbChangeEnabledControls(display_, XkbUseCoreKbd, XkbMouseKeysMask, XkbMouseKeysMask);
    XSync(display_, False);
}

} // namespace tarnic::test
