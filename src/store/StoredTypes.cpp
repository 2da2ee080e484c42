#include "store/StoredTypes.h"

#include "core/bindings/BindingArray.h"
#include "store/IntegerValue.h"
#include "store/RepeatedKeys.h"

#include <QAnyStringView>
#include <QStringEncoder>
#include <QStringList>
#include <QUtf8StringView>

#include <optional>
#include <string>
#include <vector>

namespace tarnic {

namespace {

bool isList(const QVariant& value) {
    const int type = value.typeId();
    return type == QMetaType::QVariantList || type == QMetaType::QStringList;
}

// UTF-8 straight into the string, without a QByteArray on the way.
std::string utf8Of(QStringView text) {
    QStringEncoder encoder(QStringEncoder::Utf8);
    std::string bytes(static_cast<std::size_t>(encoder.requiredSpace(text.size())), '\0');
    char* const end = encoder.appendToBuffer(bytes.data(), text);
    bytes.resize(static_cast<std::size_t>(end - bytes.data()));
    return bytes;
}

bool isDictionary(const QVariant& value) {
    const int type = value.typeId();
    return type == QMetaType::QVariantMap || type == QMetaType::QVariantHash;
}

// The same few keys come back in every record: each is turned into UTF-8 once.
using KeyBytes = RepeatedKeys<QString, std::string>;

std::optional<AbilityRecord> recordFromStored(const QVariant& value, KeyBytes& keys,
                                              WrongType& wrong) {
    if (!isDictionary(value)) {
        wrong.found = "array containing " + storedTypeName(value);
        return std::nullopt;
    }
    AbilityRecord record;
    const QVariantMap map = value.toMap();
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        if (it.value().typeId() != QMetaType::QString) {
            wrong.found = "array containing dictionary with " + storedTypeName(it.value()) +
                          " value under \"" + it.key().toStdString() + "\"";
            return std::nullopt;
        }
        // The map is in key order already, which the record keeps too for keys in ASCII: each
        // goes in at the end without a search.
        record.emplace_hint(record.end(), keys.of(it.key(), utf8Of),
                            utf8Of(*static_cast<const QString*>(it.value().constData())));
    }
    return record;
}

} // namespace

std::string storedTypeName(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return "nothing";
    case QMetaType::QString:
        return "string";
    case QMetaType::Bool:
        return "boolean";
    case QMetaType::Double:
    case QMetaType::Float:
        return "real";
    case QMetaType::QByteArray:
        return "data";
    case QMetaType::QDateTime:
    case QMetaType::QDate:
        return "date";
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return "array";
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        return "dictionary";
    default:
        if (integerValue(value) || value.typeId() == QMetaType::ULongLong ||
            value.typeId() == QMetaType::ULong) {
            return "integer";
        }
        return value.metaType().name();
    }
}

std::variant<std::vector<AbilityRecord>, WrongType> abilityListFromStored(const QVariant& value) {
    if (!isList(value)) {
        return WrongType{storedTypeName(value)};
    }
    const QVariantList items = value.toList();
    std::vector<AbilityRecord> list;
    list.reserve(static_cast<std::size_t>(items.size()));
    WrongType wrong;
    KeyBytes keys;
    for (const QVariant& item : items) {
        std::optional<AbilityRecord> record = recordFromStored(item, keys, wrong);
        if (!record) {
            return wrong;
        }
        list.push_back(std::move(*record));
    }
    return list;
}

QVariant abilityListToStored(const std::vector<AbilityRecord>& list) {
    QVariantList items;
    items.reserve(static_cast<qsizetype>(list.size()));
    for (const AbilityRecord& record : list) {
        QVariantMap map;
        for (const auto& [key, text] : record) {
            map.insert(map.cend(), QString::fromStdString(key), QString::fromStdString(text));
        }
        items.append(map);
    }
    return items;
}

std::variant<std::optional<SlotBinding>, WrongType>
inventoryModelFromStored(const QVariant& value) {
    if (!isList(value)) {
        return WrongType{storedTypeName(value)};
    }
    const QVariantList items = value.toList();
    std::vector<std::int64_t> model;
    model.reserve(static_cast<std::size_t>(items.size()));
    for (const QVariant& item : items) {
        const std::optional<std::int64_t> number = integerValue(item);
        if (!number) {
            std::string found = storedTypeName(item);
            if (found == "integer") {
                found += " beyond the 64-bit range";
            }
            return WrongType{"array containing " + found};
        }
        model.push_back(*number);
    }
    return bindingFromArray(model);
}

QVariant inventoryModelToStored(const SlotBinding& binding) {
    const std::vector<std::int64_t> model = arrayOf(binding);
    QVariantList items;
    items.reserve(static_cast<qsizetype>(model.size()));
    for (const std::int64_t number : model) {
        items.append(QVariant::fromValue<qint64>(number));
    }
    return items;
}

bool isStoredAbilityList(const QVariant& value, const std::vector<AbilityRecord>& list) {
    if (value.typeId() != QMetaType::QVariantList) {
        return false;
    }
    const QVariantList items = value.toList();
    if (static_cast<std::size_t>(items.size()) != list.size()) {
        return false;
    }
    auto same = [](const QString& stored, const std::string& kept) {
        return QAnyStringView::equal(stored, QUtf8StringView(kept));
    };
    for (std::size_t i = 0; i < list.size(); ++i) {
        const QVariant& item = items[static_cast<qsizetype>(i)];
        if (item.typeId() != QMetaType::QVariantMap) {
            return false;
        }
        const QVariantMap map = item.toMap();
        const AbilityRecord& record = list[i];
        if (static_cast<std::size_t>(map.size()) != record.size()) {
            return false;
        }
        // Both are sorted by key; a key outside ASCII might sort differently in the two, which
        // only makes this say "different", and the list is stored again.
        auto stored = map.cbegin();
        for (const auto& [key, text] : record) {
            if (stored.value().typeId() != QMetaType::QString || !same(stored.key(), key) ||
                !same(*static_cast<const QString*>(stored.value().constData()), text)) {
                return false;
            }
            ++stored;
        }
    }
    return true;
}

} // namespace tarnic
