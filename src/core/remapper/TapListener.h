#pragma once

#include <cstdint>

namespace tarnic {

// One tap the remapper made: the slot it tapped and the binding's key and modifier that matched.
struct SlotTap {
    std::int64_t slot = 0;
    std::int64_t modifier = 0; // 56 Shift, 0 none
    std::int64_t keyCode = -1;

    bool operator==(const SlotTap&) const = default;
};

// Told of every tap, after the keypad key has gone out. It is called on the key path, which may
// run on a thread of its own: an implementation only keeps the facts and hands them on, never
// blocks, never throws, and never touches a widget.
class TapListener {
public:
    virtual ~TapListener() = default;
    virtual void slotTapped(const SlotTap& tap) noexcept = 0;
};

} // namespace tarnic
