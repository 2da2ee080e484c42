#include "platform/fake/FakeKeyLabels.h"

#include <utility>

namespace tarnic {

std::optional<std::uint32_t> FakeKeyLabels::keysymAt(int macKeyCode) const {
    ++lookups_;
    const auto it = keysyms_.find(macKeyCode);
    if (it == keysyms_.end()) {
        return std::nullopt;
    }
    return it->second;
}

void FakeKeyLabels::addChangeMonitor(Handler handler) {
    handlers_.push_back(std::move(handler));
}

void FakeKeyLabels::switchTo(std::map<int, std::uint32_t> keysyms) {
    keysyms_ = std::move(keysyms);
    // By index and by copy: a handler may install another one while it runs.
    for (std::size_t i = 0; i < handlers_.size(); ++i) {
        const Handler handler = handlers_[i];
        handler();
    }
}

} // namespace tarnic
