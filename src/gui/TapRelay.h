#pragma once

#include "core/remapper/TapListener.h"

#include <QObject>

#include <atomic>
#include <cstdint>
#include <functional>

namespace tarnic {

// Carries the remapper's taps from the key path, whatever thread it runs on, to the thread this
// object lives on (the main thread), where `deliver` shows them. On the key path it only stores
// the tap in one atomic word and, unless an update is already on its way, posts one queued call:
// no lock, no wait, no widget. Taps that come faster than the event loop takes them are
// coalesced: the update shows the latest.
//
// The remapper must stop telling this object (setTapListener(nullptr), or the remapper gone)
// before it is destroyed.
class TapRelay : public QObject, public TapListener {
    Q_OBJECT
public:
    using Deliver = std::function<void(const SlotTap& tap)>;

    explicit TapRelay(Deliver deliver, QObject* parent = nullptr);

    void slotTapped(const SlotTap& tap) noexcept override;

    // Updates posted so far (for tests: taps coalesce into fewer updates).
    std::uint64_t postedCount() const { return posted_.load(std::memory_order_relaxed); }

private:
    void deliverLatest();

    Deliver deliver_;
    std::atomic<std::uint64_t> latest_{0};
    std::atomic<bool> queued_{false};
    std::atomic<std::uint64_t> posted_{0};
};

} // namespace tarnic
