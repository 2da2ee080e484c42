#pragma once

#include <QString>

#include <optional>

namespace tarnic::test {

// One key line of the key-log client: "press|release <keycode> <state> <server ms> <mono ns>".
struct KeyLogLine {
    bool press = false;
    unsigned keycode = 0;
    unsigned state = 0;
    unsigned long serverTime = 0;
    long long receivedNs = 0;

    static std::optional<KeyLogLine> parse(const QString& line);
    bool is(bool isPress, unsigned code) const { return press == isPress && keycode == code; }
};

} // namespace tarnic::test
