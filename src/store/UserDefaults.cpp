#include "store/UserDefaults.h"

#include "core/fatal/Fatal.h"
#include "store/SettingsWrite.h"
#include "store/StoredTypes.h"

#include <string>
#include <string_view>
#include <variant>

namespace tarnic {

namespace {

const QString kMainDic = QStringLiteral("mainDic");

QString inventoryModelKey(int slot) {
    return QStringLiteral("inventoryModel") + QString::number(slot);
}

// Stored values are trusted: one of the wrong type means the file was edited by hand or by
// something else, and guessing what was meant could overwrite the player's data.
[[noreturn]] void wrongType(const QSettings& settings, const QString& key,
                            std::string_view expected, const std::string& found) {
    const std::string detail = "key \"" + key.toStdString() + "\" in \"" +
                               settings.fileName().toStdString() + "\": expected " +
                               std::string(expected) + ", found " + found;
    fatalError("Stored value of the wrong type", detail);
}

} // namespace

UserDefaults::UserDefaults(QSettings& settings) : settings_(settings) {}

std::optional<std::vector<AbilityRecord>> UserDefaults::mainDic() const {
    const QVariant stored = settings_.value(kMainDic);
    if (!stored.isValid()) {
        return std::nullopt;
    }
    auto read = abilityListFromStored(stored);
    if (const auto* wrong = std::get_if<WrongType>(&read)) {
        wrongType(settings_, kMainDic, "array of dictionaries of strings", wrong->found);
    }
    return std::get<std::vector<AbilityRecord>>(std::move(read));
}

bool UserDefaults::hasMainDic() const {
    return settings_.contains(kMainDic);
}

bool UserDefaults::fileIsCurrent() const {
    return settingsWritten(settings_);
}

bool UserDefaults::setMainDic(const std::vector<AbilityRecord>& list) {
    settings_.setValue(kMainDic, abilityListToStored(list));
    return writeSettings(settings_);
}

bool UserDefaults::setMainDicIfChanged(const std::vector<AbilityRecord>& list) {
    if (settingsWritten(settings_) && isStoredAbilityList(settings_.value(kMainDic), list)) {
        return true;
    }
    return setMainDic(list);
}

std::optional<SlotBinding> UserDefaults::inventoryModel(int slot) const {
    const QString key = inventoryModelKey(slot);
    const QVariant stored = settings_.value(key);
    if (!stored.isValid()) {
        return std::nullopt;
    }
    auto read = inventoryModelFromStored(stored);
    if (const auto* wrong = std::get_if<WrongType>(&read)) {
        wrongType(settings_, key, "array of integers", wrong->found);
    }
    return std::get<std::optional<SlotBinding>>(read);
}

bool UserDefaults::setInventoryModel(int slot, const SlotBinding& binding) {
    settings_.setValue(inventoryModelKey(slot), inventoryModelToStored(binding));
    return writeSettings(settings_);
}

bool UserDefaults::removeInventoryModel(int slot) {
    // Removing a key that is not there writes nothing.
    if (!settings_.contains(inventoryModelKey(slot))) {
        return settingsWritten(settings_);
    }
    settings_.remove(inventoryModelKey(slot));
    return writeSettings(settings_);
}

} // namespace tarnic
