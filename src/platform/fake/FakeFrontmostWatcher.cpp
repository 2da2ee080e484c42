#include "platform/fake/FakeFrontmostWatcher.h"

#include "core/platform/NotifyAll.h"

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
    notifyAll(handlers_, identifier_);
}

void FakeFrontmostWatcher::announceUnread(std::optional<std::string> identifier) {
    unread_.push_back(std::move(identifier));
}

} // namespace tarnic
