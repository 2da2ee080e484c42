#include "store/PlistFormat.h"

#include "store/PlistNesting.h"
#include "store/PlistVariant.h"
#include "store/ReadableKeys.h"
#include "store/UserDefaults.h"

#include <QIODevice>

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>
#include <string_view>

namespace tarnic {

namespace {

// How deep the store's containers may nest. The program's own store nests three deep (the
// top-level dictionary, the "mainDic" array, a record's dictionary); the rest is room for a file
// edited by hand. A deeper one is no store of this program, and is read as no property list at
// all, before libplist, whose tree is built and freed by recursion, ever sees it.
constexpr int kDeepestStore = 16;

bool isBinaryPlist(std::string_view bytes) {
    return bytes.starts_with("bplist00");
}

bool nestsWithinBounds(std::string_view bytes) {
    if (isBinaryPlist(bytes)) {
        // Each object a walk can reach costs at least one byte of references, unless objects
        // that hold others are shared, which no writer of property lists does.
        return binaryPlistNestsWithin(bytes, kDeepestStore, bytes.size());
    }
    return xmlPlistNestsWithin(bytes, kDeepestStore);
}

struct PlistFree {
    void operator()(plist_t node) const { plist_free(node); }
};
using PlistPtr = std::unique_ptr<void, PlistFree>;

bool readPlist(QIODevice& device, QSettings::SettingsMap& map) {
    std::optional<QSettings::SettingsMap> read = settingsFromPlist(device.readAll());
    if (!read) {
        return false;
    }
    map = std::move(*read);
    return true;
}

bool writePlist(QIODevice& device, const QSettings::SettingsMap& map) {
    const QByteArray bytes = settingsToPlist(map);
    return !bytes.isEmpty() && device.write(bytes) == bytes.size();
}

} // namespace

QByteArray settingsToPlist(const QSettings::SettingsMap& map) {
    PlistPtr dict(plist_new_dict());
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        if (plist_t node = plistFromVariant(it.value())) {
            plist_dict_set_item(dict.get(), it.key().toUtf8().constData(), node);
        }
    }
    char* xml = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(dict.get(), &xml, &length);
    if (xml == nullptr) {
        return {};
    }
    QByteArray bytes(xml, static_cast<qsizetype>(length));
    plist_to_xml_free(xml);
    return bytes;
}

std::optional<QSettings::SettingsMap> settingsFromPlist(const QByteArray& bytes) {
    if (bytes.isEmpty() || bytes.size() > std::numeric_limits<std::uint32_t>::max()) {
        return std::nullopt;
    }
    const std::string_view text(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    if (!nestsWithinBounds(text)) {
        return std::nullopt;
    }
    plist_t parsed = nullptr;
    plist_from_memory(bytes.constData(), static_cast<std::uint32_t>(bytes.size()), &parsed);
    PlistPtr root(parsed);
    if (!root || plist_get_node_type(root.get()) != PLIST_DICT) {
        return std::nullopt;
    }
    // Only a binary list can hand libplist a key with a NUL inside: its XML reader refuses a NUL
    // written as a character reference and ends a key at a NUL byte. The check writes every key
    // out again, which is worth skipping for the program's own store, always XML.
    if (isBinaryPlist(text) && !keysAreReadable(root.get())) {
        return std::nullopt;
    }
    return variantFromPlist(root.get()).toMap();
}

QSettings::Format plistSettingsFormat() {
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("plist"), readPlist, writePlist);
    return format;
}

} // namespace tarnic
