#include "platform/fake/FakeKeyObserver.h"

#include "core/platform/AccessibilityTrust.h"

#include <functional>
#include <utility>

namespace tarnic {

FakeKeyObserver::FakeKeyObserver(const AccessibilityTrust* trust)
    : gate_([this] { return ownApplicationFrontmost_; },
            trust == nullptr ? std::function<bool()>{} : std::function<bool()>([trust] {
                return trust->isProcessTrusted();
            })) {}

void FakeKeyObserver::addKeyDownMonitor(Handler handler) {
    gate_.addKeyDownHandler(std::move(handler));
}

void FakeKeyObserver::addFlagsChangedMonitor(Handler handler) {
    gate_.addFlagsChangedHandler(std::move(handler));
}

bool FakeKeyObserver::pressKey(int keyCode) {
    return gate_.keyDown(keyCode);
}

bool FakeKeyObserver::changeModifier(int keyCode) {
    return gate_.flagsChanged(keyCode);
}

} // namespace tarnic
