#include "store/PlistNesting.h"

#include <cstdint>
#include <vector>

namespace tarnic {

namespace {

constexpr std::string_view kMagic = "bplist00";
constexpr std::size_t kTrailerSize = 32;

// Object markers: the high four bits are the type, the low four a count (15: a count follows as
// an integer object).
constexpr unsigned kArray = 0xA;
constexpr unsigned kOrderedSet = 0xB;
constexpr unsigned kSet = 0xC;
constexpr unsigned kDict = 0xD;
constexpr unsigned kInteger = 0x1;

std::uint64_t bigEndian(std::string_view bytes, std::size_t at, std::size_t size) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < size; ++i) {
        value = (value << 8) | static_cast<unsigned char>(bytes[at + i]);
    }
    return value;
}

struct Pending {
    std::uint64_t object;
    int depth;
};

} // namespace

bool binaryPlistNestsWithin(std::string_view bytes, int maxDepth, std::size_t maxObjects) {
    if (!bytes.starts_with(kMagic) || bytes.size() < kMagic.size() + kTrailerSize) {
        return false;
    }
    const std::size_t trailer = bytes.size() - kTrailerSize;
    const auto offsetSize =
        static_cast<std::size_t>(static_cast<unsigned char>(bytes[trailer + 6]));
    const auto refSize = static_cast<std::size_t>(static_cast<unsigned char>(bytes[trailer + 7]));
    const std::uint64_t objects = bigEndian(bytes, trailer + 8, 8);
    const std::uint64_t top = bigEndian(bytes, trailer + 16, 8);
    const std::uint64_t table = bigEndian(bytes, trailer + 24, 8);
    if (offsetSize < 1 || offsetSize > 8 || refSize < 1 || refSize > 8 || top >= objects ||
        table < kMagic.size() || table > trailer || objects > (trailer - table) / offsetSize) {
        return false;
    }
    // Counted as they are met, so that the walk's own memory stays within the bound too.
    std::size_t reached = 1;
    std::vector<Pending> pending{{top, 1}};
    while (!pending.empty()) {
        const Pending next = pending.back();
        pending.pop_back();
        const std::uint64_t at = bigEndian(bytes, table + next.object * offsetSize, offsetSize);
        if (at < kMagic.size() || at >= table) {
            return false;
        }
        const auto marker = static_cast<unsigned char>(bytes[at]);
        const unsigned type = marker >> 4U;
        if (type != kArray && type != kOrderedSet && type != kSet && type != kDict) {
            continue;
        }
        if (next.depth > maxDepth) {
            return false;
        }
        std::uint64_t count = marker & 0xFU;
        std::uint64_t refs = at + 1;
        if (count == 0xF) {
            if (refs >= table || static_cast<unsigned char>(bytes[refs]) >> 4U != kInteger) {
                return false;
            }
            const std::size_t size = std::size_t{1} << (bytes[refs] & 0xF);
            if (size > 8 || refs + 1 + size > table) {
                return false;
            }
            count = bigEndian(bytes, refs + 1, size);
            refs += 1 + size;
        }
        const std::uint64_t perEntry = type == kDict ? 2 : 1;
        if (count > (table - refs) / refSize / perEntry) {
            return false;
        }
        for (std::uint64_t i = 0; i < count * perEntry; ++i) {
            const std::uint64_t object = bigEndian(bytes, refs + i * refSize, refSize);
            if (object >= objects || ++reached > maxObjects) {
                return false;
            }
            pending.push_back({object, next.depth + 1});
        }
    }
    return true;
}

} // namespace tarnic
