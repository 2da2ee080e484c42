#include "shell/PlistSamples.h"

#include <plist/plist.h>

namespace tarnic::test {
namespace {

plist_t versionDictionary() {
    plist_t dict = plist_new_dict();
    plist_dict_set_item(dict, "supported", plist_new_string("1.0"));
    plist_dict_set_item(dict, "current", plist_new_bool(1));
    return dict;
}

plist_t stringArray() {
    plist_t array = plist_new_array();
    plist_array_append_item(array, plist_new_string("1.0"));
    return array;
}

QByteArray toXml(plist_t root) {
    char* xml = nullptr;
    uint32_t length = 0;
    plist_to_xml(root, &xml, &length);
    QByteArray bytes(xml, static_cast<qsizetype>(length));
    plist_to_xml_free(xml);
    plist_free(root);
    return bytes;
}

QByteArray toBinary(plist_t root) {
    char* bin = nullptr;
    uint32_t length = 0;
    plist_to_bin(root, &bin, &length);
    QByteArray bytes(bin, static_cast<qsizetype>(length));
    plist_to_bin_free(bin);
    plist_free(root);
    return bytes;
}

} // namespace

QByteArray xmlDictionary() {
    return toXml(versionDictionary());
}
QByteArray xmlEmptyDictionary() {
    return toXml(plist_new_dict());
}
QByteArray binaryDictionary() {
    return toBinary(versionDictionary());
}
QByteArray xmlArray() {
    return toXml(stringArray());
}
QByteArray binaryArray() {
    return toBinary(stringArray());
}
QByteArray xmlString() {
    return toXml(plist_new_string("1.0"));
}

QByteArray garbage() {
    return QByteArrayLiteral("<html><body><h1>Service Unavailable</h1></body></html>\n");
}

QByteArray xmlDictionaryOfSize(qsizetype size) {
    QByteArray xml = xmlDictionary();
    const qsizetype at = xml.lastIndexOf("</plist>");
    xml.insert(at, QByteArray(size - xml.size(), ' '));
    return xml;
}

} // namespace tarnic::test
