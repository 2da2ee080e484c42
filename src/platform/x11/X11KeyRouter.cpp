#include "platform/x11/X11KeyRouter.h"

#include "core/platform/NotifyAll.h"
#include "platform/x11/X11KeyCodes.h"

#include <optional>

namespace tarnic::x11 {

X11KeyRouter::X11KeyRouter(std::function<bool()> ownWindowActive,
                           std::function<bool(unsigned xKeycode)> ownTap)
    : ownWindowActive_(std::move(ownWindowActive)), ownTap_(std::move(ownTap)) {}

void X11KeyRouter::addKeyDownHandler(Handler handler) {
    keyDownHandlers_.push_back(std::move(handler));
}

void X11KeyRouter::addFlagsChangedHandler(Handler handler) {
    flagsChangedHandlers_.push_back(std::move(handler));
}

void X11KeyRouter::keyPressed(unsigned xKeycode) {
    const std::optional<int> macKeyCode = macKeyCodeOfXKeycode(xKeycode);
    if (!macKeyCode || ownTap(xKeycode) || ownWindowActive()) {
        return;
    }
    notify(isModifierXKeycode(xKeycode) ? flagsChangedHandlers_ : keyDownHandlers_, *macKeyCode);
}

void X11KeyRouter::keyReleased(unsigned xKeycode) {
    if (!isModifierXKeycode(xKeycode) || ownTap(xKeycode) || ownWindowActive()) {
        return;
    }
    if (const std::optional<int> macKeyCode = macKeyCodeOfXKeycode(xKeycode)) {
        notify(flagsChangedHandlers_, *macKeyCode);
    }
}

void X11KeyRouter::notify(const std::vector<Handler>& handlers, int macKeyCode) {
    notifyAll(handlers, macKeyCode);
}

bool X11KeyRouter::ownWindowActive() const {
    return ownWindowActive_ && ownWindowActive_();
}

bool X11KeyRouter::ownTap(unsigned xKeycode) const {
    return ownTap_ && ownTap_(xKeycode);
}

} // namespace tarnic::x11
