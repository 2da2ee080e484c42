#include "support/KeyLogLine.h"

#include <QStringList>

namespace tarnic::test {

std::optional<KeyLogLine> KeyLogLine::parse(const QString& line) {
    const QStringList parts = line.split(' ');
    if (parts.size() != 5 || (parts[0] != "press" && parts[0] != "release")) {
        return std::nullopt;
    }
    KeyLogLine key;
    key.press = parts[0] == "press";
    key.keycode = parts[1].toUInt();
    key.state = parts[2].toUInt();
    key.serverTime = parts[3].toULong();
    key.receivedNs = parts[4].toLongLong();
    return key;
}

} // namespace tarnic::test
