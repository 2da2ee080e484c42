#pragma once

#include "core/vocabulary/KeyNames.h"

#include <array>
#include <string>

namespace tarnic {

// The four letters the grid layout hands out, in run order: first, second, third and fourth
// ability of an owner.
using GridLetters = std::array<std::string, 4>;

// The grid as it always was: Q W E R.
GridLetters qwerLetters();

// The letters the player's layout prints at the positions of Q, W, E and R: A Z E R on AZERTY,
// Q W E R on QWERTZ and US. A position whose name is not one of the letters A to Z keeps its US
// letter: a hotkey in the game's file is one of those 26 letters, and nothing else can stand
// there. The four are always different letters, since no two keys share a name (KeyNames).
GridLetters gridLettersOf(const KeyNames& names);

} // namespace tarnic
