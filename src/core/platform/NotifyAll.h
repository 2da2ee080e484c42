#pragma once

#include <cstddef>

namespace tarnic {

// Calls every handler in `handlers` (a vector of std::function or the like) with `args`.
//
// By index and by copy: a handler may install another one while it runs, which can move the
// vector's elements; each handler is copied before it is called, and one installed meanwhile is
// called too. An empty handler is skipped.
template <class Handlers, class... Args> void notifyAll(const Handlers& handlers, Args&&... args) {
    for (std::size_t i = 0; i < handlers.size(); ++i) {
        const auto handler = handlers[i];
        if (handler) {
            handler(args...);
        }
    }
}

// The same for handlers held in a member of each element: notifyAllOf(listeners,
// &Listener::onEvent, event) calls every listener's onEvent.
template <class Listeners, class Member, class... Args>
void notifyAllOf(const Listeners& listeners, Member member, Args&&... args) {
    for (std::size_t i = 0; i < listeners.size(); ++i) {
        const auto handler = listeners[i].*member;
        if (handler) {
            handler(args...);
        }
    }
}

} // namespace tarnic
