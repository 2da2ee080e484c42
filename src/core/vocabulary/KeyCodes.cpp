#include "core/vocabulary/KeyCodes.h"

#include <utility>

namespace tarnic {

namespace {
// U+FE0E VARIATION SELECTOR-15 asks for the text form of the left and right arrows; the up and
// down triangles have none.
constexpr char kTextStyle[] = "\xEF\xB8\x8E";
} // namespace

const std::map<int, std::string>& key_codes() {
    static const std::map<int, std::string> table = {
        {53, "ESC"},
        {122, "F1"},
        {120, "F2"},
        {99, "F3"},
        {118, "F4"},
        {96, "F5"},
        {97, "F6"},
        {98, "F7"},
        {100, "F8"},
        {101, "F9"},
        {109, "F10"},
        {103, "F11"},
        {111, "F12"},
        {50, "~"},
        {10, "\xC2\xA7"}, // §, the ISO section key
        {18, "1"},
        {19, "2"},
        {20, "3"},
        {21, "4"},
        {23, "5"},
        {22, "6"},
        {26, "7"},
        {28, "8"},
        {25, "9"},
        {29, "0"},
        {27, "-"},
        {24, "+"},
        {51, "del"},
        {48, "tab"},
        {12, "Q"},
        {13, "W"},
        {14, "E"},
        {15, "R"},
        {17, "T"},
        {16, "Y"},
        {32, "U"},
        {34, "I"},
        {31, "O"},
        {35, "P"},
        {33, "["},
        {30, "]"},
        {42, "|"},
        {57, "caps"},
        {0, "A"},
        {1, "S"},
        {2, "D"},
        {3, "F"},
        {5, "G"},
        {4, "H"},
        {38, "J"},
        {40, "K"},
        {37, "L"},
        {41, ":"},
        {39, "'"},
        {36, "enter"},
        {56, "\xE2\x87\xA7"}, // ⇧, the left Shift
        {6, "Z"},
        {7, "X"},
        {8, "C"},
        {9, "V"},
        {11, "B"},
        {45, "N"},
        {46, "M"},
        {43, "<"},
        {47, ">"},
        {44, "?"},
        {49, "Space"},
        {123, std::string("\xE2\x97\x80") + kTextStyle}, // ◀︎
        {124, std::string("\xE2\x96\xB6") + kTextStyle}, // ▶︎
        {126, "\xE2\x96\xB2"},                           // ▲
        {125, "\xE2\x96\xBC"},                           // ▼
    };
    return table;
}

const std::map<int, std::string>& key_codes_flag() {
    static const std::map<int, std::string> table = {
        {56, "\xE2\x87\xA7"},                                     // ⇧ Shift
        {63, "Fn"},           {59, "CTRL"}, {58, "\xE2\x8C\xA5"}, // ⌥ Option
        {55, "\xE2\x8C\x98"},                                     // ⌘ Command
    };
    return table;
}

std::optional<std::string> labelOfCode(int code) {
    const auto& table = key_codes();
    const auto it = table.find(code);
    if (it == table.end()) {
        return std::nullopt;
    }
    return it->second;
}

std::optional<int> codeOfLabel(std::string_view label) {
    for (const auto& [code, name] : key_codes()) {
        if (name == label) {
            return code;
        }
    }
    return std::nullopt;
}

} // namespace tarnic
