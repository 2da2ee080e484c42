#pragma once

#include "platform/x11/KeypadClaimPlanner.h"

#include <vector>

namespace tarnic::x11 {

class X11Connection;

// Carries out keycode mappings (a lone keysym on a keycode, or an empty keycode) on the server.
//
// Every change of the keyboard mapping makes every client of the display rebuild its keymap (a
// toolkit rebuilds the whole of it for each notification), so all the mappings go out in ONE
// request, however far apart the keycodes are: an XKB SetMap of the key syms component over the
// span from the lowest keycode to the highest, in which every other key is sent back exactly as
// the server holds it (types, groups, width, keysyms). Nothing else is sent, and the server is not
// asked to recompute key actions: actions, behaviours, explicit components, the modifier maps and
// the per-key repeat of every key stay as they are. Our keycodes thus get no key action (a plain
// key, so a tap stays a keypad digit even with MouseKeys on).
//
// The server applies it to the core keyboard and to every keyboard attached to it, as it does a
// core request; they normally share one keymap (setxkbmap gives it to them all). One that held
// other keys than the core keyboard inside the span would get the core keyboard's there.
//
// Without XKB on the server, or if it refuses the request (it checks every keyboard before it
// changes any), core requests do it, one per run of consecutive keycodes.
//
// Reads the map and writes it back: call it under a server grab. `xkbOpcode` is the XKB
// extension's major opcode, negative when the server has none.
void writeKeycodeMappings(X11Connection& connection, int xkbOpcode,
                          const std::vector<KeycodeMapping>& mappings);

} // namespace tarnic::x11
