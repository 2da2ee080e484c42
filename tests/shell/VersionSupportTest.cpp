#include "shell/VersionSupport.h"

#include "shell/PlistSamples.h"

#include <QFile>

#include <gtest/gtest.h>

namespace tarnic {
namespace {

TEST(VersionSupport, XmlDictionaryIsAccepted) {
    EXPECT_TRUE(isVersionSupportDictionary(test::xmlDictionary()));
}

TEST(VersionSupport, EmptyXmlDictionaryIsAccepted) {
    EXPECT_TRUE(isVersionSupportDictionary(test::xmlEmptyDictionary()));
}

TEST(VersionSupport, BinaryDictionaryIsAccepted) {
    const QByteArray binary = test::binaryDictionary();
    ASSERT_TRUE(binary.startsWith("bplist00"));
    EXPECT_TRUE(isVersionSupportDictionary(binary));
}

TEST(VersionSupport, HandWrittenXmlDictionaryIsAccepted) {
    const QByteArray xml = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
	<key>supported</key>
	<string>1.0</string>
</dict>
</plist>
)";
    EXPECT_TRUE(isVersionSupportDictionary(xml));
}

TEST(VersionSupport, XmlArrayIsRejected) {
    EXPECT_FALSE(isVersionSupportDictionary(test::xmlArray()));
}

TEST(VersionSupport, BinaryArrayIsRejected) {
    EXPECT_FALSE(isVersionSupportDictionary(test::binaryArray()));
}

TEST(VersionSupport, TopLevelStringIsRejected) {
    EXPECT_FALSE(isVersionSupportDictionary(test::xmlString()));
}

TEST(VersionSupport, HtmlPageIsRejected) {
    EXPECT_FALSE(isVersionSupportDictionary(test::garbage()));
}

TEST(VersionSupport, EmptyBodyIsRejected) {
    EXPECT_FALSE(isVersionSupportDictionary({}));
}

TEST(VersionSupport, PlainTextIsRejected) {
    EXPECT_FALSE(isVersionSupportDictionary("supported=1.0\n"));
}

TEST(VersionSupport, TruncatedBinaryDictionaryIsRejected) {
    const QByteArray binary = test::binaryDictionary();
    EXPECT_FALSE(isVersionSupportDictionary(binary.left(binary.size() / 2)));
    EXPECT_FALSE(isVersionSupportDictionary("bplist00"));
}

TEST(VersionSupport, TheFileTheSiteShipsIsAccepted) {
    QFile shipped(TARNIC_SITE_DIR "/tn11.plist");
    ASSERT_TRUE(shipped.open(QIODevice::ReadOnly));
    EXPECT_TRUE(isVersionSupportDictionary(shipped.readAll()));
}

} // namespace
} // namespace tarnic
