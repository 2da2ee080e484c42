#include "Scenario.h"

#include <charconv>
#include <sstream>

namespace tarnic::test {

namespace {

std::string trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) {
        return {};
    }
    const auto last = text.find_last_not_of(" \t\r");
    return std::string(text.substr(first, last - first + 1));
}

std::string withoutComment(const std::string& line) {
    return trimmed(std::string_view(line).substr(0, line.find('#')));
}

bool parseInteger(std::string_view text, std::int64_t& value) {
    const char* end = text.data() + text.size();
    const auto [ptr, ec] = std::from_chars(text.data(), end, value);
    return ec == std::errc() && ptr == end && !text.empty();
}

std::vector<std::string> words(const std::string& line) {
    std::istringstream stream(line);
    std::vector<std::string> result;
    for (std::string word; stream >> word;) {
        result.push_back(word);
    }
    return result;
}

// "[a, b, c]" or "[]".
bool parseList(std::string text, std::vector<std::int64_t>& values) {
    if (text.size() < 2 || text.front() != '[' || text.back() != ']') {
        return false;
    }
    text = trimmed(std::string_view(text).substr(1, text.size() - 2));
    values.clear();
    if (text.empty()) {
        return true;
    }
    std::size_t start = 0;
    while (true) {
        const std::size_t comma = text.find(',', start);
        const std::string item = trimmed(std::string_view(text).substr(
            start, comma == std::string::npos ? std::string::npos : comma - start));
        std::int64_t value = 0;
        if (!parseInteger(item, value)) {
            return false;
        }
        values.push_back(value);
        if (comma == std::string::npos) {
            return true;
        }
        start = comma + 1;
    }
}

bool parseOnOff(const std::string& word, bool& on) {
    if (word == "on" || word == "off") {
        on = word == "on";
        return true;
    }
    return false;
}

// One event line (comment already removed, not empty). Returns an error text, empty on success.
std::string parseStep(const std::string& line, ScenarioStep& step) {
    using Kind = ScenarioStep::Kind;
    const std::vector<std::string> w = words(line);
    const std::string& verb = w.front();
    const auto oneNumber = [&](Kind kind) -> std::string {
        step.kind = kind;
        if (w.size() != 2 || !parseInteger(w[1], step.number)) {
            return "\"" + verb + "\" takes one integer";
        }
        return {};
    };
    const auto onOff = [&](Kind kind) -> std::string {
        step.kind = kind;
        if (w.size() != 2 || !parseOnOff(w[1], step.on)) {
            return "\"" + verb + "\" takes on or off";
        }
        return {};
    };
    const auto bare = [&](Kind kind) -> std::string {
        step.kind = kind;
        return w.size() == 1 ? std::string() : "\"" + verb + "\" takes nothing";
    };

    if (verb == "model") {
        step.kind = Kind::Model;
        const auto equals = line.find('=');
        if (w.size() < 3 || equals == std::string::npos ||
            !parseInteger(trimmed(std::string_view(line).substr(5, equals - 5)), step.number) ||
            step.number < 1 || step.number > 6 ||
            !parseList(trimmed(std::string_view(line).substr(equals + 1)), step.values)) {
            return "expected \"model N = [a, b, c]\" with N from 1 to 6";
        }
        return {};
    }
    if (verb == "down") {
        return oneNumber(Kind::Down);
    }
    if (verb == "flags") {
        return oneNumber(Kind::Flags);
    }
    if (verb == "slot") {
        return oneNumber(Kind::Slot);
    }
    if (verb == "front" || verb == "front-unread") {
        step.kind = verb == "front" ? Kind::Front : Kind::FrontUnread;
        if (w.size() != 2) {
            return "\"" + verb + "\" takes an identifier or none";
        }
        step.hasIdentifier = w[1] != "none";
        step.identifier = step.hasIdentifier ? w[1] : std::string();
        return {};
    }
    if (verb == "option") {
        step.kind = Kind::Option;
        if (w.size() != 3 || (w[1] != "game-in-front" && w[1] != "pause-in-chat") ||
            !parseOnOff(w[2], step.on)) {
            return "expected \"option game-in-front|pause-in-chat on|off\"";
        }
        step.identifier = w[1];
        return {};
    }
    if (verb == "own-window") {
        return onOff(Kind::OwnWindow);
    }
    if (verb == "trust") {
        return onOff(Kind::Trust);
    }
    if (verb == "tick") {
        return bare(Kind::Tick);
    }
    if (verb == "fail-next-down") {
        return bare(Kind::FailNextDown);
    }
    if (verb == "state") {
        return bare(Kind::State);
    }
    if (verb == "focus-state") {
        return bare(Kind::FocusState);
    }
    return "unknown event \"" + verb + "\"";
}

} // namespace

bool parseScenario(const std::string& text, Scenario& scenario, std::string& error) {
    scenario.steps.clear();
    scenario.expected.clear();
    std::istringstream stream(text);
    bool inTranscript = false;
    int lineNumber = 0;
    for (std::string raw; std::getline(stream, raw);) {
        ++lineNumber;
        const bool blank = trimmed(raw).empty();
        const std::string line = withoutComment(raw);
        if (!inTranscript) {
            if (blank && !scenario.steps.empty()) {
                inTranscript = true;
                continue;
            }
            if (line.empty()) {
                continue;
            }
            ScenarioStep step;
            step.line = lineNumber;
            const std::string problem = parseStep(line, step);
            if (!problem.empty()) {
                error = "line " + std::to_string(lineNumber) + ": " + problem;
                return false;
            }
            scenario.steps.push_back(std::move(step));
        } else if (!line.empty()) {
            // One space between words, so alignment in the file does not matter.
            std::string normal;
            for (const std::string& word : words(line)) {
                normal += (normal.empty() ? "" : " ") + word;
            }
            scenario.expected.push_back(normal);
        }
    }
    if (scenario.steps.empty()) {
        error = "no events";
        return false;
    }
    return true;
}

} // namespace tarnic::test
