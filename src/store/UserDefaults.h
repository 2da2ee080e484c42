#pragma once

#include "core/record/AbilityRecord.h"
#include "core/bindings/SlotBinding.h"

#include <QSettings>

#include <memory>
#include <optional>
#include <vector>

namespace tarnic {

// The XML property-list format for QSettings, registered on first use. The file is a plain
// property list a player can read in a text editor, and keeps the value types (string, integer,
// array, dictionary) exactly across a round trip.
QSettings::Format plistSettingsFormat();

// The application's store: "$XDG_CONFIG_HOME/Tarnic/Tarnic Pro.plist" ("~/.config/Tarnic/Tarnic
// Pro.plist" when XDG_CONFIG_HOME is unset), the very file that
// QSettings(plistSettingsFormat(), QSettings::UserScope, "Tarnic", "Tarnic Pro") uses. Read
// afresh from the environment at every call.
QString userDefaultsPath();

// The application's store, on userDefaultsPath() alone (no organization-wide or system-wide
// fallback files). A store file that cannot be parsed at all is copied aside first (and said so
// on standard error), then the store starts empty, so the next write cannot destroy what was
// there. A path that names no regular file (a named pipe, a socket, a device, a folder) is moved
// aside the same way without ever being opened; if it cannot be moved, the store lives in memory
// only and keeps nothing.
std::unique_ptr<QSettings> openUserDefaults();

// The path an unreadable store file was set aside under when openUserDefaults opened `settings`;
// empty when nothing was set aside.
QString storeSetAsideAs(const QSettings& settings);

// Typed access to the keys the program stores: "mainDic" and "inventoryModel1".."6".
// A value of the wrong type is a fatal error naming the key, the type expected and the type found.
// Every change is written to the file at once; each setter says whether the file now holds it
// (false when the folder cannot be written or the disk is full; see writeSettings).
class UserDefaults {
public:
    explicit UserDefaults(QSettings& settings);

    std::optional<std::vector<AbilityRecord>> mainDic() const;
    // Whether the store holds a list at all (of whatever type).
    bool hasMainDic() const;
    // Whether the file holds everything set so far: false after a write that failed, until one
    // works.
    bool fileIsCurrent() const;
    bool setMainDic(const std::vector<AbilityRecord>& list);
    // setMainDic, unless the store holds exactly this list already: the program stores the list
    // it shows at every start, most often the very list it has just read, and a rewrite that
    // changes nothing still costs two flushes to disk. A list the file may lack (an earlier write
    // failed) is written.
    bool setMainDicIfChanged(const std::vector<AbilityRecord>& list);

    // slot is 1 to 6. No binding: the key is missing, or holds an empty array.
    std::optional<SlotBinding> inventoryModel(int slot) const;
    bool setInventoryModel(int slot, const SlotBinding& binding);
    bool removeInventoryModel(int slot);

private:
    QSettings& settings_;
};

} // namespace tarnic
