#pragma once

#include <utility>
#include <vector>

namespace tarnic::x11 {

// An X keysym (Xlib's KeySym), kept apart from Xlib's headers.
using Keysym = unsigned long;
inline constexpr Keysym kNoSymbol = 0;

// The server's core keyboard mapping as one request returns it: `keysymsPerKeycode` keysyms (the
// levels of every group) for each keycode from `minKeycode` to `maxKeycode`, row after row.
class KeymapRows {
public:
    // An empty keymap: no keycode is in it.
    KeymapRows() = default;
    KeymapRows(int minKeycode, int maxKeycode, int keysymsPerKeycode, std::vector<Keysym> keysyms);

    int minKeycode() const { return minKeycode_; }
    int maxKeycode() const { return maxKeycode_; }

    // No keysym at any level of any group. A keycode outside the keymap is not unused.
    bool unused(unsigned keycode) const;
    // This keysym and no other (the core mapping repeats a one-group key's keysym in the second
    // group's columns). A keycode outside the keymap holds nothing.
    bool holdsOnly(unsigned keycode, Keysym keysym) const;

private:
    // The row of this keycode, or an empty one when the keymap has none for it.
    std::pair<const Keysym*, const Keysym*> rowOf(unsigned keycode) const;

    int minKeycode_ = 0;
    int maxKeycode_ = -1;
    int keysymsPerKeycode_ = 0;
    std::vector<Keysym> keysyms_;
};

} // namespace tarnic::x11
