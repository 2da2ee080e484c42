#pragma once

#include "core/platform/FrontmostWatcher.h"

#include <cstddef>
#include <vector>

namespace tarnic {

// The frontmost application's announcements as test code makes them. announce() is a change the
// program has read at once; announceUnread() is one that has arrived but waits to be taken in,
// as when a key is pressed the instant after a window change. Handlers are told only of real
// changes, as the real watcher does. None at first.
class FakeFrontmostWatcher : public FrontmostWatcher {
public:
    std::optional<std::string> frontmostIdentifier() const override { return identifier_; }
    void addChangeMonitor(Handler handler) override;
    void takeInChanges() override;

    void announce(std::optional<std::string> identifier);
    void announceUnread(std::optional<std::string> identifier);

    std::size_t changeMonitorCount() const { return handlers_.size(); }
    // How often the key path asked for the changes that had arrived.
    std::size_t takeInCount() const { return takeInCount_; }

private:
    std::optional<std::string> identifier_;
    std::vector<std::optional<std::string>> unread_;
    std::vector<Handler> handlers_;
    std::size_t takeInCount_ = 0;
};

} // namespace tarnic
