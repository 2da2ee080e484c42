#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tarnic::test {

// A block's text split the way the game reads it.
struct BlockSection {
    std::string id;                    // the text inside the square brackets
    std::vector<std::string> comments; // comment lines right before the header
    std::vector<std::string> lines;    // key=value lines after the header
};

struct ParsedBlock {
    bool opensWithEmptyLine = false;
    std::vector<BlockSection> sections;
    std::vector<std::string> strayLines; // lines that fit nowhere in the grammar
};

std::vector<std::string> splitLines(std::string_view text);
ParsedBlock parseBlock(std::string_view block);

// The key of a key=value line ("Tip", "Hotkey", ...), or "" for a line without "=".
std::string_view lineKey(std::string_view line);
bool isHotkeyKey(std::string_view key);
bool isTipKey(std::string_view key);

std::size_t countOf(std::string_view text, std::string_view what);

// One section of the game's default hotkey file.
struct GameSection {
    std::string comment; // the comment line right above the header, trailing blanks dropped
    std::vector<std::string> lines;
};

// The sections of the game's file, read from the copy kept with the tests.
const std::map<std::string, GameSection, std::less<>>& gameSections();

} // namespace tarnic::test
