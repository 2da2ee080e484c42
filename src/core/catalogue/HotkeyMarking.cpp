#include "core/catalogue/HotkeyMarking.h"

#include "core/record/AbilityRecord.h"

#include <array>

namespace tarnic::catalogue {

namespace {

constexpr std::array<std::string_view, 3> kHotkeyKeys = {"Hotkey=", "Unhotkey=", "Researchhotkey="};

// The key with its equals sign when the line is a hotkey line, otherwise empty.
std::string_view hotkeyKeyOf(std::string_view line) {
    for (std::string_view key : kHotkeyKeys) {
        if (line.starts_with(key)) {
            return key;
        }
    }
    return {};
}

} // namespace

std::string markHotkeyValues(std::string_view block) {
    std::string out;
    out.reserve(block.size() + 16);
    std::size_t from = 0;
    while (true) {
        const std::size_t end = block.find('\n', from);
        const std::string_view line =
            block.substr(from, end == std::string_view::npos ? std::string_view::npos : end - from);
        const std::string_view key = hotkeyKeyOf(line);
        if (key.empty()) {
            out.append(line);
        } else {
            out.append(key);
            out.append(mark);
        }
        if (end == std::string_view::npos) {
            return out;
        }
        out.push_back('\n');
        from = end + 1;
    }
}

} // namespace tarnic::catalogue
