#include "platform/fake/FakeFrontmostWatcher.h"

#include <utility>

namespace tarnic {

void FakeFrontmostWatcher::addChangeMonitor(Handler handler) {
    handlers_.push_back(std::move(handler));
}

void FakeFrontmostWatcher::takeInChanges() {
    ++takeInCount_;
    std::vector<std::optional<std::string>> arrived;
    arrived.swap(unread_);
    for (std::optional<std::string>& identifier : arrived) {
        announce(std::move(identifier));
    }
}

void FakeFrontmostWatcher::announce(std::optional<std::string> identifier) {
    if (identifier == identifier_) {
        return;
    }
    identifier_ = std::move(identifier);
    // By index and by copy: a handler may install another one while it runs.
    for (std::size_t i = 0; i < handlers_.size(); ++i) {
        const Handler handler = handlers_[i];
        handler(identifier_);
    }
}

void FakeFrontmostWatcher::announceUnread(std::optional<std::string> identifier) {
    unread_.push_back(std::move(identifier));
}

} // namespace tarnic
