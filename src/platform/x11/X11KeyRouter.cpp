#include "platform/x11/X11KeyRouter.h"

#include "platform/x11/X11KeyCodes.h"

#include <optional>
#include <utility>

namespace tarnic::x11 {

X11KeyRouter::X11KeyRouter(std::function<bool()> ownWindowActive,
                           std::function<bool(unsigned xKeycode)> ownTap)
    : ownTap_(std::move(ownTap)), gate_(std::move(ownWindowActive)) {}

void X11KeyRouter::addKeyDownHandler(Handler handler) {
    gate_.addKeyDownHandler(std::move(handler));
}

void X11KeyRouter::addFlagsChangedHandler(Handler handler) {
    gate_.addFlagsChangedHandler(std::move(handler));
}

void X11KeyRouter::keyPressed(unsigned xKeycode) {
    const std::optional<int> macKeyCode = macKeyCodeOfXKeycode(xKeycode);
    if (!macKeyCode || ownTap(xKeycode)) {
        return;
    }
    if (isModifierXKeycode(xKeycode)) {
        gate_.flagsChanged(*macKeyCode);
    } else {
        gate_.keyDown(*macKeyCode);
    }
}

void X11KeyRouter::keyReleased(unsigned xKeycode) {
    if (!isModifierXKeycode(xKeycode) || ownTap(xKeycode)) {
        return;
    }
    if (const std::optional<int> macKeyCode = macKeyCodeOfXKeycode(xKeycode)) {
        gate_.flagsChanged(*macKeyCode);
    }
}

bool X11KeyRouter::ownTap(unsigned xKeycode) const {
    return ownTap_ && ownTap_(xKeycode);
}

} // namespace tarnic::x11
