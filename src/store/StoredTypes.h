#pragma once

#include "core/record/AbilityRecord.h"
#include "core/bindings/SlotBinding.h"

#include <QVariant>

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tarnic {

// Reading stored values as the types the program keeps, without touching any file: what the
// store holds comes in as a QVariant, with the types the property list gave it.

// What was found where another type was expected, in property-list words: "string", "integer",
// "array containing string", "array containing dictionary with integer value under \"name\"".
struct WrongType {
    std::string found;
};

// The property-list name of a value's type: "string", "integer", "real", "boolean", "data",
// "date", "array", "dictionary"; any other Qt type by its Qt type name.
std::string storedTypeName(const QVariant& value);

// An array of dictionaries whose values are all strings.
std::variant<std::vector<AbilityRecord>, WrongType> abilityListFromStored(const QVariant& value);
QVariant abilityListToStored(const std::vector<AbilityRecord>& list);
// Whether `value` is exactly abilityListToStored(list), found without building that: true only
// when it is a QVariantList of QVariantMaps of QStrings with the list's very keys and texts.
bool isStoredAbilityList(const QVariant& value, const std::vector<AbilityRecord>& list);

// An array of integers, of any length and range, read as a slot binding (see BindingArray): an
// empty array is no binding.
std::variant<std::optional<SlotBinding>, WrongType> inventoryModelFromStored(const QVariant& value);
QVariant inventoryModelToStored(const SlotBinding& binding);

} // namespace tarnic
