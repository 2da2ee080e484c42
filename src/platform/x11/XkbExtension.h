#pragma once

#include <optional>

struct _XDisplay;

namespace tarnic::x11 {

// What a client needs of XKB on its connection: the extension's request and event numbers.
struct XkbExtension {
    int opcode = 0;
    int eventBase = 0;
};

// XKB on `display`, after the version handshake every XKB client makes; nothing when the server
// has no XKB.
std::optional<XkbExtension> queryXkb(_XDisplay* display);

// Asks for the notifications of a changed keyboard mapping on the core keyboard (a new keyboard,
// a changed map). Selections add up: other bits selected on this connection stay as they are.
void selectKeymapNotifications(_XDisplay* display);

} // namespace tarnic::x11
