#pragma once

#include "core/platform/KeyLabels.h"

#include <QTimer>

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <vector>

union _XEvent;

namespace tarnic::x11 {

class X11Connection;

// The player's keyboard layout as XKB holds it: for each key position of the key table
// (X11KeyCodes), the keysym at shift level 0 of the group in use, read with XkbGetMap and
// XkbGetState. A group the key does not have is brought into range as XKB does for that key
// (wrapped, clamped or redirected).
//
// Read once here and again after each change the server announces on the main connection: XKB's
// new-keyboard and map notifications, the core MappingNotify, and XKB's state notification when
// the group changes (a layout switch with a group toggle such as Alt+Shift). The notifications are
// read by the connection's event pump on the event loop; the layout is read again (one round trip)
// kSettleTime after the first of them, once for all that came meanwhile, and the change monitors
// are told only when a keysym of a key position differs. Nothing here runs on the key path.
//
// Without XKB on the server no layout is known: every position answers none.
class X11KeyLabels : public KeyLabels {
public:
    // Needs the QCoreApplication (the connection's event pump).
    explicit X11KeyLabels(std::shared_ptr<X11Connection> connection);
    ~X11KeyLabels() override;
    X11KeyLabels(const X11KeyLabels&) = delete;
    X11KeyLabels& operator=(const X11KeyLabels&) = delete;

    std::optional<std::uint32_t> keysymAt(int macKeyCode) const override;
    void addChangeMonitor(Handler handler) override;

    static constexpr std::chrono::milliseconds kSettleTime{150};
    // How long a new reading waits for the key-path lock before it tries again a settle later.
    static constexpr std::chrono::milliseconds kLockPatience{200};

    // Reads the notifications that have arrived and, after a change, the layout again at once,
    // without waiting for kSettleTime.
    void takeInChanges();

private:
    void takeIn(_XEvent& event);
    // Reads the layout; true when a key position's keysym changed.
    bool reread();
    void rereadAndTell();
    // Starts the settle timer unless it runs, from whichever thread read the notifications.
    void settleSoon();

    std::shared_ptr<X11Connection> connection_;
    std::map<int, std::uint32_t> keysyms_;
    std::vector<Handler> handlers_;
    int xkbEventBase_ = -1;
    bool changed_ = false;
    int listener_ = 0;
    QTimer settle_;
};

} // namespace tarnic::x11
