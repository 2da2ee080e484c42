#include "core/platform/KeyGate.h"

#include "core/platform/NotifyAll.h"

#include <utility>

namespace tarnic {

KeyGate::KeyGate(std::function<bool()> ownWindowActive, std::function<bool()> trusted)
    : ownWindowActive_(std::move(ownWindowActive)), trusted_(std::move(trusted)) {}

void KeyGate::addKeyDownHandler(Handler handler) {
    keyDownHandlers_.push_back(std::move(handler));
}

void KeyGate::addFlagsChangedHandler(Handler handler) {
    flagsChangedHandlers_.push_back(std::move(handler));
}

bool KeyGate::keyDown(int macKeyCode) {
    return deliver(keyDownHandlers_, macKeyCode);
}

bool KeyGate::flagsChanged(int macKeyCode) {
    return deliver(flagsChangedHandlers_, macKeyCode);
}

bool KeyGate::passes() const {
    const bool trusted = !trusted_ || trusted_();
    return trusted && !(ownWindowActive_ && ownWindowActive_());
}

bool KeyGate::deliver(const std::vector<Handler>& handlers, int macKeyCode) const {
    if (!passes()) {
        return false;
    }
    notifyAll(handlers, macKeyCode);
    return true;
}

} // namespace tarnic
