#pragma once

#include <QString>

#include <array>
#include <map>
#include <vector>

struct _XDisplay;

namespace tarnic::test {

// The keypad keysyms of the inventory slots, in slot order (keypad 7, 8, 4, 5, 1, 2), as X
// numbers them; written out here so the tests check the backend rather than repeat it.
inline constexpr std::array<unsigned long, 6> kSlotKeypadKeysyms = {0xffb7, 0xffb8, 0xffb4,
                                                                    0xffb5, 0xffb1, 0xffb2};

// The test's own view of the server's keyboard mapping, on a connection of its own.
class KeymapProbe {
public:
    explicit KeymapProbe(const QString& display);
    ~KeymapProbe();
    KeymapProbe(const KeymapProbe&) = delete;
    KeymapProbe& operator=(const KeymapProbe&) = delete;

    bool ok() const { return display_ != nullptr; }

    // Every keycode's keysyms as XKB holds them: every level of every group, in order, NoSymbol
    // where a level is empty; a keycode without any group has an empty list.
    std::map<unsigned, std::vector<unsigned long>> keysyms();
    std::vector<unsigned long> keysymsOf(unsigned keycode);
    // Keycodes with no keysym at all.
    std::vector<unsigned> unusedKeycodes();
    // Keycodes whose only keysym is `keysym` (exactly one keysym).
    std::vector<unsigned> keycodesWithOnly(unsigned long keysym);

    // Gives the keycode exactly these keysyms (one level, core request); none clears it.
    void setKeysyms(unsigned keycode, const std::vector<unsigned long>& keysyms);

    // The backend's record of its keycodes on the root window, in slot order; empty when there
    // is none.
    std::vector<unsigned> recordedKeycodes();
    // Writes that record, as a run killed while holding these keycodes leaves it.
    void setRecordedKeycodes(const std::vector<unsigned>& keycodes);

    // From now on, counts every change of the locked modifiers (Num Lock, Caps Lock) on the
    // server, whoever makes it.
    void watchLockedModifiers();
    // The changes counted so far (waits until the server has sent them).
    int lockedModifierChanges();

private:
    _XDisplay* display_;
    int xkbEventBase_ = -1;
    int lockChanges_ = 0;
};

} // namespace tarnic::test
