#pragma once

#include "core/platform/KeyObserver.h"

#include <functional>
#include <vector>

namespace tarnic {

// Decides which observed keys reach the handlers, and hands them on. Every key observer, whatever
// it observes with, sends its keys through one of these, so the rules hold on every platform:
// - nothing is reported while the program may not watch other applications (`trusted` false);
// - nothing is reported while a window of this program is the active one: those keys are the
//   player typing into the program itself (a slot key typed into the file dialog's name field
//   must not tap).
// Both questions are asked at each key, on the key path: they must not wait for anything.
class KeyGate {
public:
    using Handler = KeyObserver::Handler;

    // An empty `ownWindowActive` means no window of ours is ever active; an empty `trusted`
    // means the program is always trusted.
    explicit KeyGate(std::function<bool()> ownWindowActive, std::function<bool()> trusted = {});

    void addKeyDownHandler(Handler handler);
    void addFlagsChangedHandler(Handler handler);

    std::size_t keyDownHandlerCount() const { return keyDownHandlers_.size(); }
    std::size_t flagsChangedHandlerCount() const { return flagsChangedHandlers_.size(); }

    // A non-modifier key went down. Returns whether the handlers were told.
    bool keyDown(int macKeyCode);
    // A modifier key went down or up. Returns whether the handlers were told.
    bool flagsChanged(int macKeyCode);

    // Whether a key observed now would be reported.
    bool passes() const;

private:
    bool deliver(const std::vector<Handler>& handlers, int macKeyCode) const;

    std::function<bool()> ownWindowActive_;
    std::function<bool()> trusted_;
    std::vector<Handler> keyDownHandlers_;
    std::vector<Handler> flagsChangedHandlers_;
};

} // namespace tarnic
