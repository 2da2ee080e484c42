#pragma once

#include <string_view>

namespace tarnic {

// Stored values and the catalogue are trusted. When one breaks that trust the program stops at
// once with a message on standard error instead of guessing: a guess could overwrite the
// player's data with something he never chose.
inline constexpr std::string_view kNilUnwrap =
    "Unexpectedly found nil while unwrapping an Optional value";
inline constexpr std::string_view kNilImplicitUnwrap =
    "Unexpectedly found nil while implicitly unwrapping an Optional value";
inline constexpr std::string_view kIndexOutOfRange = "Index out of range";

// Writes "Fatal error: <message>" and, when given, ": <detail>" to standard error, then aborts.
[[noreturn]] void fatalError(std::string_view message, std::string_view detail = {});

} // namespace tarnic
