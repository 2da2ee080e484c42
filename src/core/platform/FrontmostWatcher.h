#pragma once

#include <functional>
#include <optional>
#include <string>

namespace tarnic {

// Follows which application is frontmost as the desktop announces each change, and keeps the
// last answer, so that asking costs nothing: the key-down path reads it at every key press.
// Identifiers are those of FrontmostApplication (the game's is war3ID). Handlers run on the main
// thread, one at a time, and stay installed for the life of the process.
class FrontmostWatcher {
public:
    using Handler = std::function<void(const std::optional<std::string>& identifier)>;

    virtual ~FrontmostWatcher() = default;

    // The frontmost application as last announced; none when no application is frontmost, it
    // has no identifier, or the desktop does not say (no window manager naming its active
    // window).
    virtual std::optional<std::string> frontmostIdentifier() const = 0;
    // Called with the new identifier at every change of frontmostIdentifier().
    virtual void addChangeMonitor(Handler handler) = 0;
    // Takes in the announcements that have already arrived but not been handled yet, calling
    // the handlers for any change. Without such an announcement it costs nothing (no request to
    // the display server), so the key-down path may call it before a decision: a key pressed
    // just after a window change is then judged by the new window.
    virtual void takeInChanges() = 0;
};

} // namespace tarnic
