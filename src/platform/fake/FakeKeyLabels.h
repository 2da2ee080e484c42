#pragma once

#include "core/platform/KeyLabels.h"

#include <cstddef>
#include <map>
#include <vector>

namespace tarnic {

// A keyboard layout as test code sets it: a keysym per key position (a macOS virtual key code),
// none anywhere at first. switchTo() is the player switching layouts: the new keysyms, then
// every change monitor is told. Records how often the layout was asked about.
class FakeKeyLabels : public KeyLabels {
public:
    std::optional<std::uint32_t> keysymAt(int macKeyCode) const override;
    void addChangeMonitor(Handler handler) override;

    // The layout from now on, unannounced.
    void setKeysyms(std::map<int, std::uint32_t> keysyms) { keysyms_ = std::move(keysyms); }
    // The layout changes and the monitors are told.
    void switchTo(std::map<int, std::uint32_t> keysyms);

    std::size_t changeMonitorCount() const { return handlers_.size(); }
    std::size_t lookupCount() const { return lookups_; }

private:
    std::map<int, std::uint32_t> keysyms_;
    std::vector<Handler> handlers_;
    mutable std::size_t lookups_ = 0;
};

} // namespace tarnic
