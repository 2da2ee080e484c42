#pragma once

#include <functional>

namespace tarnic {

// Watches the keys that go to other applications. It only reports: the application the key is
// meant for still gets it. Key codes are macOS virtual key codes, as everywhere in the program.
// Handlers run one at a time, in the order the keys were pressed, under the platform's key-path
// lock; they may run on a thread of the observer's own, never on the window's. They stay
// installed for the life of the process; install them before the first key can arrive.
class KeyObserver {
public:
    using Handler = std::function<void(int keyCode)>;

    virtual ~KeyObserver() = default;

    // Every key press of a non-modifier key in another application (auto-repeat included).
    virtual void addKeyDownMonitor(Handler handler) = 0;
    // Every press and every release of a modifier key in another application.
    virtual void addFlagsChangedMonitor(Handler handler) = 0;
};

} // namespace tarnic
