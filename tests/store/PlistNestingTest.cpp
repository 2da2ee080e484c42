#include "store/DeepPlists.h"
#include "store/PlistNesting.h"

#include <gtest/gtest.h>

#include <string_view>

namespace tarnic {
namespace {

std::string_view view(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

TEST(XmlPlistNesting, CountsArraysAndDictionariesUpToTheBound) {
    EXPECT_TRUE(xmlPlistNestsWithin("<dict><key>a</key><array><dict></dict></array></dict>", 3));
    EXPECT_FALSE(xmlPlistNestsWithin("<dict><key>a</key><array><dict></dict></array></dict>", 2));
    // Siblings do not add up.
    EXPECT_TRUE(xmlPlistNestsWithin("<array><array></array><array></array></array>", 2));
    EXPECT_TRUE(xmlPlistNestsWithin(view(xmlNestedArrays(15)), 16));
    EXPECT_FALSE(xmlPlistNestsWithin(view(xmlNestedArrays(16)), 16));
}

TEST(XmlPlistNesting, EmptyElementsOpenNothing) {
    EXPECT_TRUE(xmlPlistNestsWithin("<array><array/><dict /><array/></array>", 1));
}

TEST(XmlPlistNesting, SpacesAttributesAndCaseDoNotHideATag) {
    EXPECT_FALSE(xmlPlistNestsWithin("<array ><ARRAY\n><Dict x=\"1\"></Dict></ARRAY></array>", 2));
}

TEST(XmlPlistNesting, ClosingTagsInCommentsAndCdataCloseNothing) {
    EXPECT_FALSE(
        xmlPlistNestsWithin("<array><!-- </array> --><array><![CDATA[</array>]]><array>", 2));
    // Nor do opening ones open anything there.
    EXPECT_TRUE(xmlPlistNestsWithin("<!-- <array><array> --><array></array>", 1));
}

TEST(XmlPlistNesting, ClosingTagsInQuotesOrDeclarationsCloseNothing) {
    EXPECT_FALSE(xmlPlistNestsWithin("<array a=\"</array>\"><array>", 1));
    EXPECT_FALSE(xmlPlistNestsWithin("<array><?pi \"?></array>\" ?><array>", 1));
    EXPECT_FALSE(xmlPlistNestsWithin("<array><!DOCTYPE x \"</array>\"><array>", 1));
    EXPECT_FALSE(xmlPlistNestsWithin("<array><!DOCTYPE x [ </array> \"]>\" ]><array>", 1));
    // The program's own header passes.
    EXPECT_TRUE(xmlPlistNestsWithin(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC \"-//Apple//DTD "
        "PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist "
        "version=\"1.0\"><dict><key>a</key><array/></dict></plist>",
        1));
}

TEST(XmlPlistNesting, StrayClosingTagsDoNotMakeRoom) {
    EXPECT_FALSE(xmlPlistNestsWithin("</array></array></array><array><array>", 1));
}

TEST(XmlPlistNesting, TextThatIsNoPropertyListPasses) {
    EXPECT_TRUE(xmlPlistNestsWithin("", 1));
    EXPECT_TRUE(xmlPlistNestsWithin("<<<<<<<<<<", 1));
    EXPECT_TRUE(xmlPlistNestsWithin("\x00\x01 garbage <", 1));
}

TEST(BinaryPlistNesting, CountsLevelsFromTheTopObject) {
    EXPECT_TRUE(binaryPlistNestsWithin(view(binaryNestedArrays(15)), 16, 1000));
    EXPECT_FALSE(binaryPlistNestsWithin(view(binaryNestedArrays(16)), 16, 1000));
    EXPECT_FALSE(binaryPlistNestsWithin(view(binaryNestedArrays(50000)), 16, 1000000));
}

TEST(BinaryPlistNesting, SharedObjectsCountOncePerReference) {
    const QByteArray bytes = binarySharedArrays(2, 30);
    // 1 dictionary, its key, 1 array, 30 arrays of 30 references each: 933 objects reached.
    EXPECT_TRUE(binaryPlistNestsWithin(view(bytes), 16, 933));
    EXPECT_FALSE(binaryPlistNestsWithin(view(bytes), 16, 932));
}

TEST(BinaryPlistNesting, ReferencesOutsideTheFileFail) {
    QByteArray bytes = binaryNestedArrays(3);
    EXPECT_TRUE(binaryPlistNestsWithin(view(bytes), 16, 1000));
    // The top object's number, past the last object.
    bytes[bytes.size() - 9] = 99;
    EXPECT_FALSE(binaryPlistNestsWithin(view(bytes), 16, 1000));
    EXPECT_FALSE(binaryPlistNestsWithin("bplist00", 16, 1000));
    EXPECT_FALSE(
        binaryPlistNestsWithin(view(QByteArray("bplist00") + QByteArray(32, '\xff')), 16, 1000));
}

} // namespace
} // namespace tarnic
