#include "store/PlistFormat.h"

#include "store/PlistVariant.h"
#include "store/ReadableKeys.h"
#include "store/UserDefaults.h"

#include <QIODevice>

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>

namespace tarnic {

namespace {

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
    plist_t parsed = nullptr;
    plist_from_memory(bytes.constData(), static_cast<std::uint32_t>(bytes.size()), &parsed);
    PlistPtr root(parsed);
    if (!root || plist_get_node_type(root.get()) != PLIST_DICT || !keysAreReadable(root.get())) {
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
