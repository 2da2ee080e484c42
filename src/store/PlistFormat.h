#pragma once

#include <QByteArray>
#include <QSettings>

#include <optional>

namespace tarnic {

// The XML property list of a settings map: a top-level dictionary holding the map's keys in key
// order, so that the same map always gives the same bytes. A key with a '/' (a QSettings group)
// stays one flat key of the top-level dictionary, slash and all; QSettings reaches such a key
// through its groups. (A hand-written key that QSettings would not produce, like "/a" or "a//b",
// is kept on rewrite but cannot be looked up.) Values that have no
// property-list form (invalid ones) are left out.
QByteArray settingsToPlist(const QSettings::SettingsMap& map);

// The settings map that a property list (XML or binary) holds; nullopt when the bytes are not a
// property list, its top level is not a dictionary, it nests deeper than any store of this program
// (16 levels of arrays and dictionaries), or a dictionary key in it cannot be read
// (ReadableKeys.h).
std::optional<QSettings::SettingsMap> settingsFromPlist(const QByteArray& bytes);

} // namespace tarnic
