#pragma once

#include <QVariant>

#include <plist/plist.h>

namespace tarnic {

// One value between Qt and libplist. Property lists have one integer type: every Qt integer is
// written as <integer> and read back as qint64. Strings, booleans, reals, data, dates, arrays and
// dictionaries keep their types; dates keep
// whole seconds, as the XML date form has no fraction.

// A new node the caller owns, or nullptr for a value that has no property-list form (an invalid
// QVariant, or a type that does not even convert to a string). Other Qt types are written by
// their string form, and so is an unsigned value above the qint64 range, which an <integer>
// cannot hold. Inside an array or a dictionary, a value without a form is left out.
plist_t plistFromVariant(const QVariant& value);

// The value of a node: QString, qint64, bool, double, QByteArray, QDateTime (UTC), QVariantList
// or QVariantMap.
QVariant variantFromPlist(plist_t node);

} // namespace tarnic
