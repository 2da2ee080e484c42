#pragma once

#include <QByteArray>

namespace tarnic {

// Whether the bytes are a property list (XML or binary) whose top level is a dictionary. What
// the dictionary holds does not matter: an empty one is accepted too.
bool isVersionSupportDictionary(const QByteArray& data);

} // namespace tarnic
