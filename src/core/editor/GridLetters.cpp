#include "core/editor/GridLetters.h"

#include <optional>

namespace tarnic {

namespace {

// The key codes of Q, W, E and R, by position.
constexpr std::array<int, 4> kGridPositions = {12, 13, 14, 15};

bool isLetterAtoZ(const std::string& name) {
    return name.size() == 1 && name[0] >= 'A' && name[0] <= 'Z';
}

} // namespace

GridLetters qwerLetters() {
    return {"Q", "W", "E", "R"};
}

GridLetters gridLettersOf(const KeyNames& names) {
    GridLetters letters = qwerLetters();
    for (std::size_t i = 0; i < kGridPositions.size(); ++i) {
        const std::optional<std::string> name = names.nameOf(kGridPositions[i]);
        if (name && isLetterAtoZ(*name)) {
            letters[i] = *name;
        }
    }
    return letters;
}

} // namespace tarnic
