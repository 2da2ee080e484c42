#pragma once

#include <QByteArray>

namespace tarnic::test {

// Property lists as the maker's server might hold them, made with libplist itself.
QByteArray xmlDictionary();      // a dictionary with a supported-version entry
QByteArray xmlEmptyDictionary(); // <dict/>
QByteArray binaryDictionary();   // bplist00 with a supported-version entry
QByteArray xmlArray();           // a top-level array
QByteArray binaryArray();
QByteArray xmlString(); // a top-level string
QByteArray garbage();   // an HTML error page, not a property list
// An XML dictionary padded with white space to exactly the given size.
QByteArray xmlDictionaryOfSize(qsizetype size);

} // namespace tarnic::test
