#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace tarnic::catalogue {

// One ability as the tables write it. The tables are constant data, so they are ready before
// any code runs and the catalogue can be built from them at any time.
struct AbilityEntry {
    std::string_view name = {};
    // None for the general commands and Repair, which have no owner.
    std::optional<std::string_view> parent = std::nullopt;
    std::string_view defHotkey = {};
    std::string_view defaultText = {};
    // The template when it is not simply the default text with its hotkey values marked.
    std::optional<std::string_view> forEdit = std::nullopt;
};

// The tables in catalogue order.
std::span<const AbilityEntry> generalCommandEntries();
std::span<const AbilityEntry> humanEntries();
std::span<const AbilityEntry> orcEntries();
std::span<const AbilityEntry> nightElfEntries();
std::span<const AbilityEntry> undeadEntries();
std::span<const AbilityEntry> neutralHeroEntries();
std::span<const AbilityEntry> tinkerAlchemistFirelordEntries();
std::span<const AbilityEntry> goblinUnitEntries();

} // namespace tarnic::catalogue
