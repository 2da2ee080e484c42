// libFuzzer target: any bytes as the store file, read the way the program reads it (XML or
// binary property list, then the typed values of "mainDic" and "inventoryModel1".."6").
//
// The program ends on a stored value of the wrong type by design; here the same checks run
// through the functions that report the wrong type instead, so that only a real fault ends the
// run. What was read must also survive being written back: the store is rewritten whole at every
// change, and the keys the player never touched go through that rewrite. After the first rewrite
// (which may give a value its canonical form) a second must give the very same bytes.
#include "store/PlistFormat.h"
#include "store/StoredTypes.h"

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <variant>

namespace {

void check(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "store reader broke its promise: %s\n", what);
        std::abort();
    }
}

void readTypedValues(const QSettings::SettingsMap& map) {
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        check(!tarnic::storedTypeName(it.value()).empty(), "a value without a type name");
    }
    const QVariant mainDic = map.value(QStringLiteral("mainDic"));
    if (mainDic.isValid()) {
        auto list = tarnic::abilityListFromStored(mainDic);
        if (const auto* read = std::get_if<std::vector<tarnic::AbilityRecord>>(&list)) {
            // (isStoredAbilityList may say "different" for keys outside ASCII, by design: that
            // only costs a rewrite, so it is not checked here.)
            auto again = tarnic::abilityListFromStored(tarnic::abilityListToStored(*read));
            check(std::get_if<std::vector<tarnic::AbilityRecord>>(&again) != nullptr &&
                      std::get<std::vector<tarnic::AbilityRecord>>(again) == *read,
                  "a list does not survive being stored again");
        } else {
            check(!std::get<tarnic::WrongType>(list).found.empty(), "a wrong type without a name");
        }
    }
    for (int slot = 1; slot <= 6; ++slot) {
        const QVariant stored = map.value(QStringLiteral("inventoryModel") + QString::number(slot));
        if (!stored.isValid()) {
            continue;
        }
        auto model = tarnic::inventoryModelFromStored(stored);
        using Binding = std::optional<tarnic::SlotBinding>;
        if (const auto* read = std::get_if<Binding>(&model)) {
            // No binding (an empty array) is never stored again: the slot's key is removed.
            if (*read) {
                auto again =
                    tarnic::inventoryModelFromStored(tarnic::inventoryModelToStored(**read));
                check(std::get_if<Binding>(&again) != nullptr && std::get<Binding>(again) == *read,
                      "a slot binding does not survive being stored again");
            }
        } else {
            check(!std::get<tarnic::WrongType>(model).found.empty(), "a wrong type without a name");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // libFuzzer's own buffer, without the terminating NUL a copy would add, so that
    // AddressSanitizer sees a read past the end.
    const QByteArray bytes =
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const std::optional<QSettings::SettingsMap> map = tarnic::settingsFromPlist(bytes);
    if (!map) {
        return 0;
    }
    readTypedValues(*map);

    const QByteArray written = tarnic::settingsToPlist(*map);
    check(!written.isEmpty(), "a store read cannot be written");
    const std::optional<QSettings::SettingsMap> reread = tarnic::settingsFromPlist(written);
    check(reread.has_value(), "a store written cannot be read back");
    check(reread->keys() == map->keys(), "a rewrite lost or added keys");
    check(tarnic::settingsToPlist(*reread) == written, "a second rewrite changed the bytes");
    return 0;
}
