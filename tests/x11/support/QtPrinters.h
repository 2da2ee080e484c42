#pragma once

#include <QString>

#include <ostream>

// Readable Qt strings in GoogleTest failure messages (found by argument-dependent lookup).
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
