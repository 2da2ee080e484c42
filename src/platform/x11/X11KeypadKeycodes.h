#pragma once

#include <array>
#include <memory>
#include <optional>

union _XEvent;

namespace tarnic::x11 {

class X11Connection;

// Six keycodes of the program's own, one for each keypad key the inventory slots tap (keypad 7,
// 8, 4, 5, 1 and 2), each given its keypad digit as its only keysym.
//
// Why not the keyboard's own keypad keys: their key type gives Shift together with Num Lock the
// cursor keysym (KP_Up), which a program run by Wine reads as an arrow key, and a player who
// holds Shift on his own keyboard cannot have it lifted by us. A keycode with a single keysym
// gets a one-level type: it is the keypad digit whatever the modifiers and Num Lock, and Num Lock
// never has to be touched.
//
// Which keycodes: only ones the keymap does not use (no keysym at any level, not in the modifier
// map), from the top of the range down, keycodes the key table names for a physical key last.
// Keycodes that hold something the keymap gave them are never changed.
//
// Leftovers: a process that was killed leaves its keycodes mapped. Every claim is recorded on
// the root window in the property _TARNIC_PRO_KEYPAD_KEYCODES (six CARDINALs in slot order, 0 for
// none). A keycode counts as ours, to reuse at start and to clear at the end, only when the
// property names it for a digit AND it still holds exactly that digit and no other keysym. The
// property alone could be stale (a new keymap may since have put a key there); the keysym alone
// could be a mapping the player made himself (xmodmap "keycode 250 = KP_7"), which we must not
// take away. Claims and releases are read-modify-write of the server's keymap and the property,
// made under a server grab so that two instances never interleave. Each claim, release or
// clearing of leftovers is one request to the server, however scattered the keycodes (see
// writeKeycodeMappings): every keymap change costs every client of the display a rebuild. Two
// instances on one display share the same keycodes; the first to end clears them and the other
// claims again at once.
//
// The keymap can change under us (setxkbmap, a new keyboard, XWayland reloading the compositor's
// keymap). The main connection listens for XKB's map and new-keyboard notifications and the core
// MappingNotify; they are read by the connection's event pump (whenever its socket has data and
// before the event loop sleeps) and before each tap, and any keycode that no longer holds its
// digit is given up and claimed again at once. The check before a tap reads only what the server
// has already sent: no round trip unless the keymap has changed.
//
// Wine takes in a mapping made after it started only once it has handled the server's
// notification (about 3 s measured), so the claim happens when the platform starts, long before
// the first tap, and is kept until the program ends. The destructor gives the keycodes back.
class X11KeypadKeycodes {
public:
    // Claims the keycodes at once. Needs the QCoreApplication to exist (the connection's event
    // pump).
    explicit X11KeypadKeycodes(std::shared_ptr<X11Connection> connection);
    // Gives back every keycode that still holds its digit.
    ~X11KeypadKeycodes();
    X11KeypadKeycodes(const X11KeypadKeycodes&) = delete;
    X11KeypadKeycodes& operator=(const X11KeypadKeycodes&) = delete;

    // The keycode of ours that types the keypad key with this macOS virtual key code, after
    // taking in any keymap change the server has announced; none for other keys, and none when
    // no keycode could be claimed for this one.
    std::optional<unsigned> keycodeFor(int macKeyCode);

    // Whether taps go out on this keycode now (no round trip).
    bool isOwn(unsigned xKeycode) const;

    // The claimed keycodes in slot order (keypad 7, 8, 4, 5, 1, 2); 0 where none.
    const std::array<unsigned, 6>& keycodes() const { return keycodes_; }

    // Reads the keymap notifications that have arrived and claims again what was lost.
    void takeInKeymapChanges();

private:
    void takeIn(_XEvent& event);
    void verify();
    void claim();
    void release();

    std::shared_ptr<X11Connection> connection_;
    std::array<unsigned, 6> keycodes_{};
    int xkbOpcode_ = -1;
    int xkbEventBase_ = -1;
    unsigned long propertyAtom_ = 0;
    bool fallbackReported_ = false;
    bool keymapChanged_ = false;
    int listener_ = 0;
};

} // namespace tarnic::x11
