#include "core/catalogue/BlockParsing.h"

#include <fstream>
#include <sstream>

namespace tarnic::test {

std::vector<std::string> splitLines(std::string_view text) {
    std::vector<std::string> lines;
    std::size_t from = 0;
    while (true) {
        const std::size_t end = text.find('\n', from);
        if (end == std::string_view::npos) {
            lines.emplace_back(text.substr(from));
            return lines;
        }
        lines.emplace_back(text.substr(from, end - from));
        from = end + 1;
    }
}

std::string_view lineKey(std::string_view line) {
    const std::size_t eq = line.find('=');
    return eq == std::string_view::npos ? std::string_view{} : line.substr(0, eq);
}

bool isHotkeyKey(std::string_view key) {
    return key == "Hotkey" || key == "Unhotkey" || key == "Researchhotkey";
}

bool isTipKey(std::string_view key) {
    return key == "Tip" || key == "Untip" || key == "Researchtip";
}

static bool isHeader(std::string_view line) {
    return line.size() > 2 && line.front() == '[' && line.back() == ']';
}

ParsedBlock parseBlock(std::string_view block) {
    ParsedBlock parsed;
    std::vector<std::string> lines = splitLines(block);
    std::size_t i = 0;
    if (!lines.empty() && lines[0].empty()) {
        parsed.opensWithEmptyLine = true;
        i = 1;
    }
    std::vector<std::string> pendingComments;
    for (; i < lines.size(); ++i) {
        const std::string& line = lines[i];
        if (line.starts_with("//")) {
            pendingComments.push_back(line);
        } else if (isHeader(line)) {
            parsed.sections.push_back({line.substr(1, line.size() - 2), pendingComments, {}});
            pendingComments.clear();
        } else if (!parsed.sections.empty() && pendingComments.empty() && !lineKey(line).empty()) {
            parsed.sections.back().lines.push_back(line);
        } else {
            parsed.strayLines.push_back(line);
        }
    }
    for (const std::string& comment : pendingComments) {
        parsed.strayLines.push_back(comment);
    }
    return parsed;
}

std::size_t countOf(std::string_view text, std::string_view what) {
    std::size_t count = 0;
    for (std::size_t at = text.find(what); at != std::string_view::npos;
         at = text.find(what, at + what.size())) {
        ++count;
    }
    return count;
}

static std::string rtrim(std::string text) {
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) {
        text.pop_back();
    }
    return text;
}

static std::map<std::string, GameSection, std::less<>> readGameSections() {
    std::ifstream in(TARNIC_GAME_KEYS_FILE, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    std::string text = bytes.str();
    if (text.starts_with("\xEF\xBB\xBF")) {
        text.erase(0, 3);
    }
    std::string lf;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!(text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')) {
            lf += text[i];
        }
    }
    const std::vector<std::string> lines = splitLines(lf);
    std::map<std::string, GameSection, std::less<>> sections;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string header = rtrim(lines[i]);
        if (!isHeader(header)) {
            continue;
        }
        GameSection section;
        if (i > 0 && lines[i - 1].starts_with("//")) {
            section.comment = rtrim(lines[i - 1]);
        }
        for (std::size_t j = i + 1; j < lines.size() && !rtrim(lines[j]).empty() &&
                                    !lines[j].starts_with("//") && !lines[j].starts_with("[");
             ++j) {
            section.lines.push_back(lines[j]);
        }
        sections.emplace(header.substr(1, header.size() - 2), std::move(section));
    }
    return sections;
}

const std::map<std::string, GameSection, std::less<>>& gameSections() {
    static const auto sections = readGameSections();
    return sections;
}

} // namespace tarnic::test
