#include "store/PlistVariant.h"

#include "store/IntegerValue.h"
#include "store/RepeatedKeys.h"

#include <QDateTime>
#include <QStringList>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

namespace tarnic {

namespace {

// Property-list dates count seconds from 2001-01-01 00:00:00 UTC.
qint64 referenceDateMSecs() {
    return QDateTime(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
}

plist_t stringNode(const QString& text) {
    return plist_new_string(text.toUtf8().constData());
}

plist_t integerNode(qint64 value) {
    // libplist keeps every integer in 64 unsigned bits and writes them as signed decimals.
    return plist_new_uint(static_cast<std::uint64_t>(value));
}

plist_t dateNode(const QDateTime& when) {
    const qint64 msecs = when.toMSecsSinceEpoch() - referenceDateMSecs();
    // Floor division, so that a date before 2001 keeps a non-negative microsecond part.
    qint64 seconds = msecs / 1000;
    qint64 rest = msecs % 1000;
    if (rest < 0) {
        seconds -= 1;
        rest += 1000;
    }
    if (seconds < std::numeric_limits<std::int32_t>::min() ||
        seconds > std::numeric_limits<std::int32_t>::max()) {
        // Outside what libplist can hold as a date (1933 to 2069): keep it readable as text.
        return stringNode(when.toString(Qt::ISODateWithMs));
    }
    return plist_new_date(static_cast<std::int32_t>(seconds),
                          static_cast<std::int32_t>(rest * 1000));
}

plist_t arrayNode(const QVariantList& list) {
    plist_t array = plist_new_array();
    for (const QVariant& item : list) {
        if (plist_t node = plistFromVariant(item)) {
            plist_array_append_item(array, node);
        }
    }
    return array;
}

plist_t dictNode(const QVariantMap& map) {
    plist_t dict = plist_new_dict();
    // In key order, as the map keeps them, so that the bytes are stable.
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        if (plist_t node = plistFromVariant(it.value())) {
            plist_dict_set_item(dict, it.key().toUtf8().constData(), node);
        }
    }
    return dict;
}

plist_t dictNode(const QVariantHash& hash) {
    plist_t dict = plist_new_dict();
    // A hash has no order: its keys are sorted here so that the bytes are stable.
    QStringList keys = hash.keys();
    std::sort(keys.begin(), keys.end());
    for (const QString& key : keys) {
        if (plist_t node = plistFromVariant(hash.value(key))) {
            plist_dict_set_item(dict, key.toUtf8().constData(), node);
        }
    }
    return dict;
}

using KeyTexts = RepeatedKeys<std::string, QString>;

QVariant variantOf(plist_t node, KeyTexts& keys);

QVariant listFromArray(plist_t array, KeyTexts& keys) {
    QVariantList list;
    const std::uint32_t size = plist_array_get_size(array);
    list.reserve(static_cast<qsizetype>(size));
    for (std::uint32_t i = 0; i < size; ++i) {
        list.append(variantOf(plist_array_get_item(array, i), keys));
    }
    return list;
}

QVariant mapFromDict(plist_t dict, KeyTexts& keys) {
    QVariantMap map;
    plist_dict_iter it = nullptr;
    plist_dict_new_iter(dict, &it);
    if (it == nullptr) {
        return map;
    }
    for (;;) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(dict, it, &key, &value);
        if (key == nullptr) {
            break;
        }
        const QString text = keys.of(std::string_view(key), [](std::string_view bytes) {
            return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
        });
        std::free(key);
        // Written in key order, most often: each key then goes in at the end without a search
        // (a hint that is wrong only costs the search).
        map.insert(map.cend(), text, variantOf(value, keys));
    }
    std::free(it);
    return map;
}

} // namespace

plist_t plistFromVariant(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return nullptr;
    case QMetaType::Bool:
        return plist_new_bool(value.toBool() ? 1 : 0);
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::Short:
    case QMetaType::SChar:
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
    case QMetaType::UShort:
    case QMetaType::UChar:
        if (const std::optional<std::int64_t> integer = integerValue(value)) {
            return integerNode(*integer);
        }
        // Above the signed range an <integer> cannot hold it.
        return stringNode(QString::number(value.toULongLong()));
    case QMetaType::Double:
    case QMetaType::Float:
        return plist_new_real(value.toDouble());
    case QMetaType::QString:
        return stringNode(value.toString());
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        return plist_new_data(bytes.constData(), static_cast<std::uint64_t>(bytes.size()));
    }
    case QMetaType::QDateTime:
        return dateNode(value.toDateTime());
    case QMetaType::QDate:
        return dateNode(value.toDate().startOfDay(Qt::UTC));
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
    case QMetaType::QByteArrayList:
        return arrayNode(value.toList());
    case QMetaType::QVariantMap:
        return dictNode(value.toMap());
    case QMetaType::QVariantHash:
        return dictNode(value.toHash());
    default:
        if (value.canConvert<QString>()) {
            return stringNode(value.toString());
        }
        return nullptr;
    }
}

namespace {

QVariant variantOf(plist_t node, KeyTexts& keys) {
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        std::uint8_t flag = 0;
        plist_get_bool_val(node, &flag);
        return QVariant(flag != 0);
    }
    case PLIST_UINT: {
        std::uint64_t bits = 0;
        plist_get_uint_val(node, &bits);
        return QVariant(static_cast<qint64>(bits));
    }
    case PLIST_UID: {
        std::uint64_t uid = 0;
        plist_get_uid_val(node, &uid);
        return QVariant(static_cast<qint64>(uid));
    }
    case PLIST_REAL: {
        double real = 0;
        plist_get_real_val(node, &real);
        return QVariant(real);
    }
    case PLIST_STRING:
    case PLIST_KEY: {
        std::uint64_t length = 0;
        const char* text = plist_get_string_ptr(node, &length);
        return QVariant(QString::fromUtf8(text, static_cast<qsizetype>(length)));
    }
    case PLIST_DATA: {
        std::uint64_t length = 0;
        const char* bytes = plist_get_data_ptr(node, &length);
        return QVariant(QByteArray(bytes, static_cast<qsizetype>(length)));
    }
    case PLIST_DATE: {
        std::int32_t seconds = 0;
        std::int32_t microseconds = 0;
        plist_get_date_val(node, &seconds, &microseconds);
        const qint64 msecs = referenceDateMSecs() + qint64{seconds} * 1000 + microseconds / 1000;
        return QVariant(QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC));
    }
    case PLIST_ARRAY:
        return listFromArray(node, keys);
    case PLIST_DICT:
        return mapFromDict(node, keys);
    case PLIST_NONE:
        break;
    }
    return {};
}

} // namespace

QVariant variantFromPlist(plist_t node) {
    KeyTexts keys;
    return variantOf(node, keys);
}

} // namespace tarnic
