#include "platform/x11/KeymapRows.h"

#include <algorithm>
#include <utility>

namespace tarnic::x11 {

KeymapRows::KeymapRows(int minKeycode, int maxKeycode, int keysymsPerKeycode,
                       std::vector<Keysym> keysyms)
    : minKeycode_(minKeycode), maxKeycode_(maxKeycode), keysymsPerKeycode_(keysymsPerKeycode),
      keysyms_(std::move(keysyms)) {
    const long rows = static_cast<long>(maxKeycode_) - minKeycode_ + 1;
    if (keysymsPerKeycode_ <= 0 || rows <= 0 ||
        keysyms_.size() < static_cast<std::size_t>(rows * keysymsPerKeycode_)) {
        // A reply that does not cover its own range is read as no keymap at all.
        keysymsPerKeycode_ = 0;
        keysyms_.clear();
    }
}

bool KeymapRows::unused(unsigned keycode) const {
    const auto row = rowOf(keycode);
    return row.first != nullptr &&
           std::all_of(row.first, row.second, [](Keysym sym) { return sym == kNoSymbol; });
}

bool KeymapRows::holdsOnly(unsigned keycode, Keysym keysym) const {
    const auto row = rowOf(keycode);
    return row.first != nullptr &&
           std::any_of(row.first, row.second, [&](Keysym sym) { return sym == keysym; }) &&
           std::all_of(row.first, row.second,
                       [&](Keysym sym) { return sym == kNoSymbol || sym == keysym; });
}

std::pair<const Keysym*, const Keysym*> KeymapRows::rowOf(unsigned keycode) const {
    if (keysymsPerKeycode_ <= 0 || static_cast<long>(keycode) < minKeycode_ ||
        static_cast<long>(keycode) > maxKeycode_) {
        return {nullptr, nullptr};
    }
    const Keysym* first =
        keysyms_.data() + static_cast<std::size_t>(static_cast<long>(keycode) - minKeycode_) *
                              static_cast<std::size_t>(keysymsPerKeycode_);
    return {first, first + keysymsPerKeycode_};
}

} // namespace tarnic::x11
