#pragma once

#include <QString>

#include <map>
#include <vector>

struct _XDisplay;

namespace tarnic::test {

// The keymap changes another client of the display is told of.
struct KeymapNotifications {
    int xkbMapNotify = 0;
    int newKeyboardNotify = 0;
    int coreMappingNotify = 0;
    bool operator==(const KeymapNotifications&) const = default;
};

// A client of its own that watches the keyboard mapping as any other program on the display would
// (selecting XKB's map notifications on the core keyboard, as toolkits do), and reads the whole of
// it for comparison.
class KeymapWatcher {
public:
    explicit KeymapWatcher(const QString& display);
    ~KeymapWatcher();
    KeymapWatcher(const KeymapWatcher&) = delete;
    KeymapWatcher& operator=(const KeymapWatcher&) = delete;

    bool ok() const { return display_ != nullptr && xkbEventBase_ >= 0; }

    // The notifications received since the last call (after a round trip: everything the server
    // has sent by now).
    KeymapNotifications take();

    // Every keycode as the server holds it, as numbers: the core mapping's row, then XKB's key
    // types, group information, width and keysyms, the key actions (raw bytes), the behaviour,
    // the explicit components, the real and virtual modifier maps and the per-key repeat.
    // `device` is an input device id; by default the core keyboard.
    std::map<unsigned, std::vector<unsigned long>> keys(int device = -1);
    // The ids of the keyboards attached to the core keyboard (XTest's, the server's own).
    std::vector<int> attachedKeyboards();
    // The key type definitions: levels, modifiers, map entries and preserve, type after type.
    std::vector<unsigned long> keyTypes();
    // Keycodes that have at least one key action that is not "no action".
    std::vector<unsigned> keycodesWithActions();

    // Turns the per-key repeat off for every key: a state that recomputing the keys from the
    // compatibility map would undo.
    void turnRepeatOffForEveryKey();
    // Turns MouseKeys on: keys whose action moves the pointer do that instead of typing.
    void turnMouseKeysOn();

private:
    _XDisplay* display_;
    int xkbEventBase_ = -1;
};

} // namespace tarnic::test
