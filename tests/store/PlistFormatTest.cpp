#include "store/PlistFormat.h"
#include "store/StoreFolder.h"
#include "store/UserDefaults.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tarnic {
namespace {

// Equal value and equal type, all the way down: QVariant's own == would call 5 and 5.0 equal.
::testing::AssertionResult sameTyped(const QVariant& expected, const QVariant& actual,
                                     const QString& where = QStringLiteral("top")) {
    if (expected.typeId() != actual.typeId()) {
        return ::testing::AssertionFailure()
               << where.toStdString() << ": type " << expected.metaType().name() << " became "
               << actual.metaType().name();
    }
    if (expected.typeId() == QMetaType::QVariantList) {
        const QVariantList a = expected.toList();
        const QVariantList b = actual.toList();
        if (a.size() != b.size()) {
            return ::testing::AssertionFailure()
                   << where.toStdString() << ": array size " << a.size() << " became " << b.size();
        }
        for (qsizetype i = 0; i < a.size(); ++i) {
            auto result = sameTyped(a[i], b[i], where + QStringLiteral("[%1]").arg(i));
            if (!result) {
                return result;
            }
        }
        return ::testing::AssertionSuccess();
    }
    if (expected.typeId() == QMetaType::QVariantMap) {
        const QVariantMap a = expected.toMap();
        const QVariantMap b = actual.toMap();
        if (a.keys() != b.keys()) {
            return ::testing::AssertionFailure()
                   << where.toStdString() << ": keys " << a.keys().join(',').toStdString()
                   << " became " << b.keys().join(',').toStdString();
        }
        for (auto it = a.cbegin(); it != a.cend(); ++it) {
            auto result = sameTyped(it.value(), b.value(it.key()), where + '.' + it.key());
            if (!result) {
                return result;
            }
        }
        return ::testing::AssertionSuccess();
    }
    if (expected != actual) {
        return ::testing::AssertionFailure()
               << where.toStdString() << ": " << expected.toString().toStdString() << " became "
               << actual.toString().toStdString();
    }
    return ::testing::AssertionSuccess();
}

QSettings::SettingsMap everyType() {
    QVariantMap record;
    record.insert(QStringLiteral("name"), QStringLiteral("Holy Light"));
    record.insert(QStringLiteral("name parent"), QString());
    QSettings::SettingsMap map;
    map.insert(QStringLiteral("string"), QStringLiteral("a<b>&\"' \t é ✔︎ 中 \r\n x  "));
    map.insert(QStringLiteral("empty string"), QString());
    map.insert(QStringLiteral("digits"), QStringLiteral("5"));
    map.insert(QStringLiteral("integer"), QVariant::fromValue<qint64>(12));
    map.insert(QStringLiteral("negative"), QVariant::fromValue<qint64>(-1));
    map.insert(QStringLiteral("largest"),
               QVariant::fromValue<qint64>(std::numeric_limits<qint64>::max()));
    map.insert(QStringLiteral("smallest"),
               QVariant::fromValue<qint64>(std::numeric_limits<qint64>::min()));
    map.insert(QStringLiteral("true"), true);
    map.insert(QStringLiteral("false"), false);
    map.insert(QStringLiteral("real"), 0.1);
    map.insert(QStringLiteral("whole real"), 5.0);
    map.insert(QStringLiteral("tiny real"), -2.5e-300);
    map.insert(QStringLiteral("data"), QByteArray("\0\x01\xff<plist>", 10));
    map.insert(QStringLiteral("empty data"), QByteArray());
    // An XML property-list date holds whole seconds.
    map.insert(QStringLiteral("date"), QDateTime(QDate(2024, 2, 29), QTime(13, 14, 15), Qt::UTC));
    map.insert(QStringLiteral("old date"), QDateTime(QDate(1990, 6, 1), QTime(1, 2, 3), Qt::UTC));
    map.insert(QStringLiteral("array"),
               QVariantList{QVariant::fromValue<qint64>(3), QVariant::fromValue<qint64>(56),
                            QVariant::fromValue<qint64>(-1), QStringLiteral("x"),
                            QVariantList{true, 1.5}, QVariantList{}});
    map.insert(QStringLiteral("empty array"), QVariantList{});
    map.insert(QStringLiteral("dictionary"),
               QVariantMap{{QStringLiteral("inner"), QVariantList{record, QVariantMap{}}},
                           {QStringLiteral("n"), QVariant::fromValue<qint64>(7)}});
    map.insert(QStringLiteral("empty dictionary"), QVariantMap{});
    map.insert(QStringLiteral("group/key"), QStringLiteral("slash kept in the key"));
    map.insert(QStringLiteral("name parent"), QStringLiteral("key with a blank"));
    return map;
}

TEST(PlistFormat, RoundTripKeepsEveryValueAndType) {
    const QSettings::SettingsMap written = everyType();
    const std::optional<QSettings::SettingsMap> read = settingsFromPlist(settingsToPlist(written));
    ASSERT_TRUE(read.has_value());
    EXPECT_TRUE(sameTyped(written, *read));
}

TEST(PlistFormat, EveryIntegerWidthReadsBackAsInteger) {
    QSettings::SettingsMap map;
    map.insert(QStringLiteral("int"), int{-7});
    map.insert(QStringLiteral("uint"), 4000000000u);
    map.insert(QStringLiteral("long long"), QVariant::fromValue<long long>(1LL << 40));
    map.insert(QStringLiteral("unsigned long long"), QVariant::fromValue<qulonglong>(42));
    const std::optional<QSettings::SettingsMap> read = settingsFromPlist(settingsToPlist(map));
    ASSERT_TRUE(read.has_value());
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        const QVariant back = read->value(it.key());
        EXPECT_EQ(back.typeId(), QMetaType::LongLong) << it.key().toStdString();
        EXPECT_EQ(back.toLongLong(), it.value().toLongLong()) << it.key().toStdString();
    }
}

TEST(PlistFormat, WritesAReadableXmlPropertyList) {
    QSettings::SettingsMap map;
    map.insert(QStringLiteral("mainDic"),
               QVariantList{QVariantMap{{QStringLiteral("name"), QStringLiteral("Attack")}}});
    map.insert(QStringLiteral("inventoryModel3"),
               QVariantList{QVariant::fromValue<qint64>(3), QVariant::fromValue<qint64>(0),
                            QVariant::fromValue<qint64>(12)});
    const QString xml = QString::fromUtf8(settingsToPlist(map));
    EXPECT_TRUE(xml.startsWith(QStringLiteral("<?xml"))) << xml.toStdString();
    EXPECT_TRUE(xml.contains(QStringLiteral("<plist"))) << xml.toStdString();
    EXPECT_TRUE(xml.contains(QStringLiteral("<key>mainDic</key>"))) << xml.toStdString();
    EXPECT_TRUE(xml.contains(QStringLiteral("<string>Attack</string>"))) << xml.toStdString();
    EXPECT_TRUE(xml.contains(QStringLiteral("<integer>12</integer>"))) << xml.toStdString();
    // Keys in order, so the file reads the same way every time.
    EXPECT_LT(xml.indexOf(QStringLiteral("<key>inventoryModel3</key>")),
              xml.indexOf(QStringLiteral("<key>mainDic</key>")));
}

TEST(PlistFormat, SameMapGivesSameBytes) {
    const QByteArray first = settingsToPlist(everyType());
    const QByteArray second = settingsToPlist(everyType());
    EXPECT_FALSE(first.isEmpty());
    EXPECT_EQ(first, second);
    // And reading then writing again changes nothing either.
    const std::optional<QSettings::SettingsMap> read = settingsFromPlist(first);
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(settingsToPlist(*read), first);
}

TEST(PlistFormat, HashKeysAreWrittenInOrder) {
    QVariantHash hash;
    for (const char* key : {"zeta", "alpha", "mu", "beta", "omega", "kappa"}) {
        hash.insert(QString::fromLatin1(key), QString::fromLatin1(key));
    }
    QSettings::SettingsMap map;
    map.insert(QStringLiteral("hash"), hash);
    const QString xml = QString::fromUtf8(settingsToPlist(map));
    EXPECT_LT(xml.indexOf(QStringLiteral("<key>alpha</key>")),
              xml.indexOf(QStringLiteral("<key>beta</key>")));
    EXPECT_LT(xml.indexOf(QStringLiteral("<key>omega</key>")),
              xml.indexOf(QStringLiteral("<key>zeta</key>")));
    const std::optional<QSettings::SettingsMap> read = settingsFromPlist(xml.toUtf8());
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->value(QStringLiteral("hash")).toMap().size(), 6);
}

TEST(PlistFormat, KeysOutOfOrderAndManyDistinctKeysReadBackExactly) {
    // Written by hand, out of order: each key still lands in its place, and keys beyond those
    // that dictionaries share read back whole.
    QString dicts;
    QVariantList expected;
    for (int d = 0; d < 3; ++d) {
        QVariantMap map;
        QString xml = QStringLiteral("<dict>");
        for (int k = 40; k >= 0; --k) {
            const QString key = QStringLiteral("k%1-\u00e9%2").arg(k).arg(d * (k % 2));
            xml += QStringLiteral("<key>%1</key><string>v%2</string>").arg(key).arg(k);
            map.insert(key, QStringLiteral("v%1").arg(k));
        }
        dicts += xml + QStringLiteral("</dict>");
        expected.append(map);
    }
    const std::optional<QSettings::SettingsMap> read = settingsFromPlist(
        plistXml("<dict><key>list</key><array>" + dicts.toUtf8() + "</array></dict>"));
    ASSERT_TRUE(read.has_value());
    EXPECT_TRUE(sameTyped(expected, read->value(QStringLiteral("list"))));
}

TEST(PlistFormat, StringDigitsStayAStringAndIntegersStayIntegers) {
    const std::optional<QSettings::SettingsMap> read = settingsFromPlist(
        plistXml("<dict><key>s</key><string>5</string><key>i</key><integer>5</integer>"
                 "<key>r</key><real>5</real><key>b</key><false/></dict>"));
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->value(QStringLiteral("s")).typeId(), QMetaType::QString);
    EXPECT_EQ(read->value(QStringLiteral("s")).toString(), QStringLiteral("5"));
    EXPECT_EQ(read->value(QStringLiteral("i")).typeId(), QMetaType::LongLong);
    EXPECT_EQ(read->value(QStringLiteral("i")).toLongLong(), 5);
    EXPECT_EQ(read->value(QStringLiteral("r")).typeId(), QMetaType::Double);
    EXPECT_EQ(read->value(QStringLiteral("b")).typeId(), QMetaType::Bool);
}

TEST(PlistFormat, InvalidValuesAreLeftOut) {
    QSettings::SettingsMap map;
    map.insert(QStringLiteral("nothing"), QVariant());
    map.insert(QStringLiteral("list"), QVariantList{QVariant(), QStringLiteral("kept")});
    const std::optional<QSettings::SettingsMap> read = settingsFromPlist(settingsToPlist(map));
    ASSERT_TRUE(read.has_value());
    EXPECT_FALSE(read->contains(QStringLiteral("nothing")));
    EXPECT_EQ(read->value(QStringLiteral("list")).toList(), QVariantList{QStringLiteral("kept")});
}

TEST(PlistFormat, WhatIsNotAPropertyListDictionaryReadsAsNothing) {
    EXPECT_FALSE(settingsFromPlist(QByteArray()).has_value());
    EXPECT_FALSE(settingsFromPlist(QByteArray("x")).has_value());
    EXPECT_FALSE(settingsFromPlist(QByteArray("\x00\x01\x02garbage\xff\xfe", 12)).has_value());
    EXPECT_FALSE(settingsFromPlist(QByteArray("mainDic = (1, 2);")).has_value());
    EXPECT_FALSE(settingsFromPlist(plistXml("<array><integer>1</integer></array>")).has_value());
    EXPECT_FALSE(settingsFromPlist(plistXml("<string>dict</string>")).has_value());
    EXPECT_TRUE(settingsFromPlist(plistXml("<dict/>")).has_value());
    EXPECT_TRUE(settingsFromPlist(plistXml("<dict/>"))->isEmpty());
}

// libplist asserts, ending the process, when asked for a key holding a NUL byte; a binary
// property list can hold one. Such a list reads as no list at all, so the store is set aside.
TEST(PlistFormat, ABinaryKeyHoldingANulByteReadsAsNothing) {
    const std::optional<QSettings::SettingsMap> plain =
        settingsFromPlist(binaryPlistWithKey(QStringLiteral("a-b")));
    ASSERT_TRUE(plain.has_value());
    EXPECT_EQ(plain->value(QStringLiteral("a-b")), QVariant(QStringLiteral("x")));

    EXPECT_FALSE(settingsFromPlist(binaryPlistWithKey(QString::fromLatin1("a\0b", 3))).has_value());
    EXPECT_FALSE(settingsFromPlist(binaryPlistWithKey(QString(QChar(0)))).has_value());
}

// Only binary lists are checked key by key for a NUL: an XML list cannot bring one in. A NUL
// written as a character reference makes no list at all, and a NUL byte ends the key.
TEST(PlistFormat, AnXmlKeyCannotHoldANulByte) {
    EXPECT_FALSE(settingsFromPlist(plistXml("<dict><key>a&#0;b</key><string>x</string></dict>"))
                     .has_value());
    EXPECT_FALSE(settingsFromPlist(plistXml("<dict><key>a&#x0;b</key><string>x</string></dict>"))
                     .has_value());
    QByteArray withNul = plistXml("<dict><key>a-b</key><string>x</string></dict>");
    withNul[withNul.indexOf("a-b") + 1] = '\0';
    const std::optional<QSettings::SettingsMap> read = settingsFromPlist(withNul);
    ASSERT_TRUE(read.has_value());
    ASSERT_EQ(read->size(), 1);
    EXPECT_FALSE(read->firstKey().contains(QChar(0)));
    EXPECT_EQ(read->firstKey(), QStringLiteral("a"));
}

} // namespace
} // namespace tarnic
