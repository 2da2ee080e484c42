#pragma once

#include <string>
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

// Writes "Fatal error: <message>" and, when given, ": <detail>" to standard error, shows the same
// line through the fatal notice if one is set, then aborts.
[[noreturn]] void fatalError(std::string_view message, std::string_view detail = {});

// Shows the line of a fatal error to the player before the program ends; it runs on the thread
// that met the error and returns once the player has seen it. The window sets one while it is
// there (a program started from the desktop's menu has no terminal for standard error). Only the
// first fatal error is shown: one met while it is shown ends the program at once.
using FatalNotice = void (*)(const std::string& line);
void setFatalNotice(FatalNotice notice);

} // namespace tarnic
