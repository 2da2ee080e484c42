#include "gui/WrappingLabel.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace tarnic::test {
namespace {

// A plain QLabel set up the same way: what the wrapping label must answer, every time.
class Twin {
public:
    explicit Twin(const QString& text) : kept_(), plain_() {
        plain_.setWordWrap(true);
        setText(text);
    }
    void setText(const QString& text) {
        kept_.setText(text);
        plain_.setText(text);
    }
    void setFont(const QFont& font) {
        kept_.setFont(font);
        plain_.setFont(font);
    }
    void setMargin(int margin) {
        kept_.setMargin(margin);
        plain_.setMargin(margin);
    }
    void expectSameAnswers(const char* after) {
        EXPECT_EQ(kept_.sizeHint(), plain_.sizeHint()) << after;
        EXPECT_EQ(kept_.minimumSizeHint(), plain_.minimumSizeHint()) << after;
        for (int width : {40, 90, 160, 400}) {
            EXPECT_EQ(kept_.heightForWidth(width), plain_.heightForWidth(width))
                << after << ", width " << width;
        }
    }
    WrappingLabel& kept() { return kept_; }

private:
    WrappingLabel kept_;
    QLabel plain_;
};

const QString kShort = QStringLiteral("Slot 1");
const QString kLong = QStringLiteral("Choose an inventory slot, then the key that uses it, and "
                                     "watch the line below for what the keys just did.");

TEST(WrappingLabel, WrapsAndAnswersAsAPlainLabelWould) {
    Twin twin(kLong);
    EXPECT_TRUE(twin.kept().wordWrap());
    twin.expectSameAnswers("first");
    twin.expectSameAnswers("asked again");
}

TEST(WrappingLabel, ANewTextFontOrMarginIsMeasuredAnew) {
    Twin twin(kLong);
    const int narrowHeight = twin.kept().heightForWidth(90);
    twin.setText(kShort);
    twin.expectSameAnswers("a shorter text");
    EXPECT_LT(twin.kept().heightForWidth(90), narrowHeight);

    twin.setText(kLong);
    QFont larger = twin.kept().font();
    larger.setPointSize(larger.pointSize() + 8);
    twin.setFont(larger);
    twin.expectSameAnswers("a larger font");
    EXPECT_GT(twin.kept().heightForWidth(90), narrowHeight);

    twin.setMargin(12);
    twin.expectSameAnswers("a margin");
}

TEST(WrappingLabel, ManyWidthsInARowStayRight) {
    // More widths than the label keeps: it forgets and measures again, never answers wrong.
    Twin twin(kLong);
    QLabel plain(kLong);
    plain.setWordWrap(true);
    for (int round = 0; round < 2; ++round) {
        for (int width = 20; width < 600; width += 7) {
            ASSERT_EQ(twin.kept().heightForWidth(width), plain.heightForWidth(width)) << width;
        }
    }
    twin.expectSameAnswers("after many widths");
}

} // namespace
} // namespace tarnic::test
