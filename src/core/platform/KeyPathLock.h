#pragma once

#include <memory>
#include <mutex>

namespace tarnic {

// The key path (observing a key, deciding, tapping) runs on a thread of its own, so that a tap
// never waits for the window's event loop. Everything that path reads or changes (the bindings,
// the options, what the remapper knows of the window in front, the platform's view of the
// keymap and of our own windows) is guarded by this one lock: the key thread holds it while it
// handles a key, and any other thread takes it before it touches that state.
//
// Recursive, because a key's handling may take in window events whose handlers reach the
// remapper again. Timed, so that a thread that only wants to take in events early can give up
// while a key is being handled, instead of waiting on a key thread that is itself waiting (for
// the player to read a fatal error, say).
using KeyPathLock = std::recursive_timed_mutex;

inline std::shared_ptr<KeyPathLock> makeKeyPathLock() {
    return std::make_shared<KeyPathLock>();
}

} // namespace tarnic
