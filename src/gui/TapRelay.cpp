#include "gui/TapRelay.h"

#include <algorithm>
#include <limits>

namespace tarnic {

namespace {

// One word holds a whole tap, so that it is written and read at once: the slot in the low byte
// (1 to 6, the only slots that tap), the modifier in the next 16 bits and the key code in the high
// 32. Key and modifier codes are key codes the observer reported, which fit; the modifier is only
// shown as there or not, which clamping keeps.
std::uint64_t pack(const SlotTap& tap) {
    const auto slot = static_cast<std::uint64_t>(std::clamp<std::int64_t>(tap.slot, 0, 255));
    const auto modifier = static_cast<std::uint16_t>(static_cast<std::int16_t>(
        std::clamp<std::int64_t>(tap.modifier, std::numeric_limits<std::int16_t>::min(),
                                 std::numeric_limits<std::int16_t>::max())));
    const auto key = static_cast<std::uint32_t>(static_cast<std::int32_t>(
        std::clamp<std::int64_t>(tap.keyCode, std::numeric_limits<std::int32_t>::min(),
                                 std::numeric_limits<std::int32_t>::max())));
    return slot | (std::uint64_t{modifier} << 8) | (std::uint64_t{key} << 32);
}

SlotTap unpack(std::uint64_t word) {
    SlotTap tap;
    tap.slot = static_cast<std::int64_t>(word & 0xff);
    tap.modifier = static_cast<std::int16_t>(static_cast<std::uint16_t>((word >> 8) & 0xffff));
    tap.keyCode = static_cast<std::int32_t>(static_cast<std::uint32_t>(word >> 32));
    return tap;
}

} // namespace

TapRelay::TapRelay(Deliver deliver, QObject* parent)
    : QObject(parent), deliver_(std::move(deliver)) {}

void TapRelay::slotTapped(const SlotTap& tap) noexcept {
    latest_.store(pack(tap), std::memory_order_release);
    if (!queued_.exchange(true, std::memory_order_acq_rel)) {
        posted_.fetch_add(1, std::memory_order_relaxed);
        // Posting is thread-safe; the call runs on this object's thread.
        QMetaObject::invokeMethod(this, &TapRelay::deliverLatest, Qt::QueuedConnection);
    }
}

void TapRelay::deliverLatest() {
    // Cleared before the read: a tap stored after this point posts an update of its own. An
    // exchange, not a store: reading the flag the key path set makes its tap visible here.
    queued_.exchange(false, std::memory_order_acq_rel);
    const SlotTap tap = unpack(latest_.load(std::memory_order_acquire));
    if (deliver_) {
        deliver_(tap);
    }
}

} // namespace tarnic
