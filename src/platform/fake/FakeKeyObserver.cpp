#include "platform/fake/FakeKeyObserver.h"

#include "core/platform/NotifyAll.h"
#include "platform/fake/FakeAccessibilityTrust.h"

#include <utility>

namespace tarnic {

FakeKeyObserver::FakeKeyObserver(const FakeAccessibilityTrust* trust) : trust_(trust) {}

void FakeKeyObserver::addKeyDownMonitor(Handler handler) {
    keyDownHandlers_.push_back(std::move(handler));
}

void FakeKeyObserver::addFlagsChangedMonitor(Handler handler) {
    flagsChangedHandlers_.push_back(std::move(handler));
}

bool FakeKeyObserver::pressKey(int keyCode) {
    return deliver(keyDownHandlers_, keyCode);
}

bool FakeKeyObserver::changeModifier(int keyCode) {
    return deliver(flagsChangedHandlers_, keyCode);
}

bool FakeKeyObserver::reporting() const {
    const bool trusted = trust_ == nullptr || trust_->isProcessTrusted();
    return trusted && !ownApplicationFrontmost_;
}

bool FakeKeyObserver::deliver(const std::vector<Handler>& handlers, int keyCode) const {
    if (!reporting()) {
        return false;
    }
    notifyAll(handlers, keyCode);
    return true;
}

} // namespace tarnic
