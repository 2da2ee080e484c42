#include "core/import/HotkeyFile.h"

namespace tarnic {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool isHeader(std::string_view line) {
    return line.size() >= 2 && line.front() == '[' && line.back() == ']';
}

} // namespace

std::string_view trimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) {
        return {};
    }
    const std::size_t last = text.find_last_not_of(" \t");
    return text.substr(first, last - first + 1);
}

std::vector<HotkeyFileSection> readHotkeyFile(std::string_view text) {
    if (text.starts_with(kByteOrderMark)) {
        text.remove_prefix(kByteOrderMark.size());
    }
    std::vector<HotkeyFileSection> sections;
    std::vector<std::string> comments;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        line = trimBlanks(line);
        if (line.empty()) {
            continue;
        }
        if (line.starts_with("//")) {
            comments.emplace_back(line);
        } else if (isHeader(line)) {
            sections.push_back({std::string(line.substr(1, line.size() - 2)), {}, {}});
            sections.back().comments.swap(comments);
        } else {
            comments.clear();
            if (!sections.empty()) {
                sections.back().lines.emplace_back(line);
            }
        }
    }
    return sections;
}

} // namespace tarnic
