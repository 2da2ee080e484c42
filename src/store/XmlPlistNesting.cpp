#include "store/PlistNesting.h"

#include <cctype>

namespace tarnic {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

// What ends a tag's name, as libplist reads it.
bool endsName(char c) {
    switch (c) {
    case ' ':
    case '\t':
    case '\r':
    case '\n':
    case '<':
    case '>':
    case '/':
        return true;
    default:
        return false;
    }
}

bool sameName(std::string_view name, std::string_view expected) {
    if (name.size() != expected.size()) {
        return false;
    }
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (std::tolower(static_cast<unsigned char>(name[i])) != expected[i]) {
            return false;
        }
    }
    return true;
}

// The text is read the way libplist's XML reader reads it, so that no part of it counts
// differently here and there: inside a tag, a processing instruction and a DOCTYPE a quoted
// string is passed over whole (">" and "</array>" in it mean nothing); comments and CDATA
// sections end at the first "-->" and "]]>"; the text between tags holds no tags.
class Lexer {
public:
    explicit Lexer(std::string_view text) : text_(text) {}

    // The first `stop` or `otherStop` at or after `from`, quoted strings passed over; kNone if
    // none.
    std::size_t findOutsideQuotes(std::size_t from, char stop, char otherStop) const {
        for (std::size_t at = from; at < text_.size(); ++at) {
            const char c = text_[at];
            if (c == '"') {
                at = text_.find('"', at + 1);
                if (at == kNone) {
                    return kNone;
                }
            } else if (c == stop || c == otherStop) {
                return at;
            }
        }
        return kNone;
    }
    // Where `marker` starts at or after `from`, quoted strings passed over; kNone if nowhere.
    std::size_t findMarkerOutsideQuotes(std::size_t from, std::string_view marker) const {
        for (std::size_t at = from; at < text_.size(); ++at) {
            if (text_.substr(at).starts_with(marker)) {
                return at;
            }
            if (text_[at] == '"') {
                at = text_.find('"', at + 1);
                if (at == kNone) {
                    return kNone;
                }
            }
        }
        return kNone;
    }
    // Just past the end of the special construct at `at` ("<?", "<!"); kNone if it never ends.
    std::size_t endOfSpecial(std::size_t at) const {
        const std::string_view rest = text_.substr(at);
        const auto past = [](std::size_t found, std::size_t length) {
            return found == kNone ? kNone : found + length;
        };
        if (rest.starts_with("<?")) {
            return past(findMarkerOutsideQuotes(at + 1, "?>"), 2);
        }
        if (rest.starts_with("<!--")) {
            return past(text_.find("-->", at + 4), 3);
        }
        if (rest.starts_with("<![CDATA[")) {
            return past(text_.find("]]>", at + 9), 3);
        }
        if (rest.starts_with("<!DOCTYPE")) {
            const std::size_t end = findOutsideQuotes(at + 9, '[', '>');
            if (end == kNone || text_[end] == '>') {
                return past(end, 1);
            }
            return past(findMarkerOutsideQuotes(end, "]>"), 2);
        }
        return at + 2; // no such construct: libplist refuses the list
    }

private:
    std::string_view text_;
};

} // namespace

bool xmlPlistNestsWithin(std::string_view text, int maxDepth) {
    const Lexer lexer(text);
    int depth = 0;
    std::size_t at = 0;
    while ((at = text.find('<', at)) != kNone) {
        if (at + 1 < text.size() && (text[at + 1] == '?' || text[at + 1] == '!')) {
            at = lexer.endOfSpecial(at);
            if (at == kNone) {
                break;
            }
            continue;
        }
        const bool closing = at + 1 < text.size() && text[at + 1] == '/';
        const std::size_t nameStart = at + (closing ? 2 : 1);
        std::size_t nameEnd = nameStart;
        while (nameEnd < text.size() && !endsName(text[nameEnd])) {
            ++nameEnd;
        }
        if (nameEnd == text.size()) {
            break;
        }
        const std::string_view name = text.substr(nameStart, nameEnd - nameStart);
        const std::size_t end = lexer.findOutsideQuotes(nameEnd, '<', '>');
        if (end == kNone) {
            break;
        }
        if (text[end] == '<') {
            // A tag without its '>': libplist stops there; read on from the '<'.
            at = end;
            continue;
        }
        if (sameName(name, "array") || sameName(name, "dict")) {
            if (!closing && text[end - 1] != '/') {
                if (++depth > maxDepth) {
                    return false;
                }
            } else if (closing && depth > 0) {
                --depth;
            }
        }
        at = end + 1;
    }
    return true;
}

} // namespace tarnic
