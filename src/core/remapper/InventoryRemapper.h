#pragma once

#include "core/platform/FrontmostApplication.h"
#include "core/platform/KeyPoster.h"

#include <array>
#include <cstdint>
#include <vector>

namespace tarnic {

// An inventory binding: empty (slot unbound) or [slot 1..6, modifier code (56 Shift, 0 none),
// trigger key code (-1 none)].
using InventoryModel = std::vector<std::int64_t>;

// Decides, for every key pressed in another application, which inventory slots it stands for,
// and taps each slot's keypad key through the poster. Plain logic: the observer feeds it, the
// poster types for it.
class InventoryRemapper {
public:
    using Models = std::array<InventoryModel, 6>;

    // `inventoryModels` are inventoryModel1 .. inventoryModel6, owned by the editor's controller
    // and read afresh on every key press, so an edit takes effect on the next press.
    InventoryRemapper(const Models& inventoryModels, KeyPoster& poster);

    // Key code of the most recent modifier change, and a parity bit flipped by every change.
    std::int64_t flagHold = -1;
    bool isFlag = false;
    // Whether the game is the frontmost application; refreshed by the timer, read by nobody.
    bool isWarRun = false;

    void keyDown(int keyCode);      // the key-down handler
    void flagsChanged(int keyCode); // the modifier-change handler
    void action(const InventoryModel& model, int keyPrss);
    void eventWithTimer(const FrontmostApplication& frontmost);

    // Any slot other than 1 to 6 posts nothing. The slot is the stored value itself, never
    // narrowed: a value edited outside the program must not alias a real slot.
    void inventoryPress(std::int64_t slot);
    void keyboardKeyDown(std::uint16_t key);
    void keyboardKeyUp(std::uint16_t key);

private:
    const Models& inventoryModels_;
    KeyPoster& poster_;
};

} // namespace tarnic
