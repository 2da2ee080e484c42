#include "store/StoredTypes.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

QVariant integer(qint64 value) {
    return QVariant::fromValue<qint64>(value);
}

std::string foundForList(const QVariant& value) {
    auto read = abilityListFromStored(value);
    const auto* wrong = std::get_if<WrongType>(&read);
    return wrong ? wrong->found : std::string("(accepted)");
}

std::string foundForModel(const QVariant& value) {
    auto read = inventoryModelFromStored(value);
    const auto* wrong = std::get_if<WrongType>(&read);
    return wrong ? wrong->found : std::string("(accepted)");
}

TEST(StoredTypes, NamesTypesInPropertyListWords) {
    EXPECT_EQ(storedTypeName(QStringLiteral("5")), "string");
    EXPECT_EQ(storedTypeName(integer(5)), "integer");
    EXPECT_EQ(storedTypeName(5), "integer");
    EXPECT_EQ(storedTypeName(5u), "integer");
    EXPECT_EQ(storedTypeName(5.0), "real");
    EXPECT_EQ(storedTypeName(true), "boolean");
    EXPECT_EQ(storedTypeName(QByteArray("x")), "data");
    EXPECT_EQ(storedTypeName(QVariantList{}), "array");
    EXPECT_EQ(storedTypeName(QVariantMap{}), "dictionary");
}

TEST(StoredTypes, AbilityListKeepsMissingAndEmptyKeysApart) {
    const AbilityRecord general{{"name", "Attack"}, {"def hotkey", "A"}, {"new hotkey", ""}};
    const AbilityRecord owned{{"name", "Holy Light"}, {"name parent", "Paladin"}};
    const AbilityRecord emptyParent{{"name", "Odd"}, {"name parent", ""}};
    const std::vector<AbilityRecord> list{general, owned, emptyParent, AbilityRecord{}};
    auto read = abilityListFromStored(abilityListToStored(list));
    ASSERT_TRUE(std::holds_alternative<std::vector<AbilityRecord>>(read));
    const auto& back = std::get<std::vector<AbilityRecord>>(read);
    EXPECT_EQ(back, list);
    EXPECT_FALSE(back[0].contains("name parent"));
    ASSERT_TRUE(back[2].contains("name parent"));
    EXPECT_EQ(back[2].at("name parent"), "");
}

TEST(StoredTypes, AbilityListKeepsTextBeyondAsciiAndManyKeysByteForByte) {
    // Keys in an order of their own beyond ASCII (a private-use character sorts before an emoji
    // in UTF-16 and after it in UTF-8), texts in several scripts and a long one.
    const AbilityRecord record{{"name", "Sort\u00e9e \u2714\ufe0e"},
                               {"\ue000 private", "\U0001F600"},
                               {"\U0001F600 emoji", "\u65e5\u672c\u8a9e"},
                               {"for edit", std::string(5000, 'x') + "\u00fc"}};
    AbilityRecord wide = record;
    for (int k = 0; k < 20; ++k) {
        wide.emplace("key " + std::to_string(k), "text " + std::to_string(k));
    }
    const std::vector<AbilityRecord> list{record, wide, record, wide};
    auto read = abilityListFromStored(abilityListToStored(list));
    ASSERT_TRUE(std::holds_alternative<std::vector<AbilityRecord>>(read));
    EXPECT_EQ(std::get<std::vector<AbilityRecord>>(read), list);
}

TEST(StoredTypes, AbilityListNamesWhatWasFoundInstead) {
    EXPECT_EQ(foundForList(QStringLiteral("list")), "string");
    EXPECT_EQ(foundForList(integer(1)), "integer");
    EXPECT_EQ(foundForList(QVariantMap{}), "dictionary");
    EXPECT_EQ(foundForList(QVariantList{integer(1), integer(2)}), "array containing integer");
    EXPECT_EQ(foundForList(QVariantList{QVariantMap{}, QVariantList{}}), "array containing array");
    EXPECT_EQ(foundForList(QVariantList{QVariantMap{{QStringLiteral("name"), integer(5)}}}),
              "array containing dictionary with integer value under \"name\"");
    EXPECT_EQ(foundForList(QVariantList{QVariantMap{{QStringLiteral("a"), QStringLiteral("x")},
                                                    {QStringLiteral("b"), true}}}),
              "array containing dictionary with boolean value under \"b\"");
    EXPECT_EQ(foundForList(QVariantList{}), "(accepted)");
}

TEST(StoredTypes, AStoredListIsRecognisedOnlyWhenItIsExactlyTheList) {
    const AbilityRecord general{{"name", "Attack"}, {"def hotkey", "A"}, {"new hotkey", ""}};
    const AbilityRecord owned{{"name", "Holy Light"}, {"name parent", "Paladin"}};
    const AbilityRecord accented{{"name", "Bénédiction"}, {"zèle", "Ω"}};
    const std::vector<AbilityRecord> list{general, owned, accented, AbilityRecord{}};
    const QVariant stored = abilityListToStored(list);
    EXPECT_TRUE(isStoredAbilityList(stored, list));
    EXPECT_TRUE(isStoredAbilityList(QVariantList{}, {}));

    auto changed = list;
    changed[1]["name parent"] = "Paladine";
    EXPECT_FALSE(isStoredAbilityList(stored, changed));
    changed = list;
    changed[0].erase("new hotkey");
    EXPECT_FALSE(isStoredAbilityList(stored, changed));
    changed = list;
    changed[0]["new hotkey "] = "";
    EXPECT_FALSE(isStoredAbilityList(stored, changed));
    changed = list;
    changed.pop_back();
    EXPECT_FALSE(isStoredAbilityList(stored, changed));

    // The same texts in other types are not what the list would store.
    QVariantList items = stored.toList();
    QVariantMap first = items[0].toMap();
    first[QStringLiteral("def hotkey")] = QByteArray("A");
    items[0] = first;
    EXPECT_FALSE(isStoredAbilityList(items, list));
    EXPECT_FALSE(isStoredAbilityList(QStringList{}, {}));
    EXPECT_FALSE(isStoredAbilityList(QVariant(), {}));
    QVariantList hashed = stored.toList();
    hashed[3] = QVariantHash{};
    EXPECT_FALSE(isStoredAbilityList(hashed, list));
}

using StoredBinding = std::optional<SlotBinding>;

TEST(StoredTypes, InventoryModelIsAnyArrayOfIntegers) {
    const SlotBinding binding{3, 0, 12};
    const QVariant stored = inventoryModelToStored(binding);
    EXPECT_EQ(stored, (QVariantList{integer(3), integer(0), integer(12)}));
    auto read = inventoryModelFromStored(stored);
    ASSERT_TRUE(std::holds_alternative<StoredBinding>(read));
    EXPECT_EQ(std::get<StoredBinding>(read), binding);
    // Length and range are not checked here: a longer array binds by its first three values.
    auto odd = inventoryModelFromStored(
        QVariantList{integer(5), integer(56), integer(999), integer(-7), 4});
    ASSERT_TRUE(std::holds_alternative<StoredBinding>(odd));
    EXPECT_EQ(std::get<StoredBinding>(odd), (SlotBinding{5, 56, 999}));
    auto empty = inventoryModelFromStored(QVariantList{});
    ASSERT_TRUE(std::holds_alternative<StoredBinding>(empty));
    EXPECT_FALSE(std::get<StoredBinding>(empty).has_value());
}

TEST(StoredTypes, ABindingCutShortKeepsWhatItHasAndIsStoredAsShortAgain) {
    auto read = inventoryModelFromStored(QVariantList{integer(2), integer(56)});
    ASSERT_TRUE(std::holds_alternative<StoredBinding>(read));
    const StoredBinding binding = std::get<StoredBinding>(read);
    ASSERT_TRUE(binding.has_value());
    EXPECT_TRUE(binding->isCutShort());
    EXPECT_EQ(binding->held, 2u);
    EXPECT_EQ(binding->slot, 2);
    EXPECT_EQ(binding->modifier, 56);
    EXPECT_EQ(inventoryModelToStored(*binding), (QVariantList{integer(2), integer(56)}));
}

TEST(StoredTypes, InventoryModelNamesWhatWasFoundInstead) {
    EXPECT_EQ(foundForModel(QStringLiteral("5")), "string");
    EXPECT_EQ(foundForModel(integer(5)), "integer");
    EXPECT_EQ(foundForModel(QVariantList{QStringLiteral("3"), QStringLiteral("0")}),
              "array containing string");
    EXPECT_EQ(foundForModel(QVariantList{integer(3), 2.5}), "array containing real");
    EXPECT_EQ(foundForModel(QVariantList{integer(3), true}), "array containing boolean");
    EXPECT_EQ(foundForModel(QVariantList{QVariant::fromValue<qulonglong>(~0ULL)}),
              "array containing integer beyond the 64-bit range");
}

} // namespace
} // namespace tarnic
