#include "WheelInput.h"
#include "gui/PopUpButton.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <memory>

namespace tarnic {
namespace {

// One pop-up button alone in a window, holding the items "A" to "F" with "C" selected.
class PopUpButtonAlone : public ::testing::Test {
protected:
    void SetUp() override {
        window_ = std::make_unique<QWidget>();
        auto* layout = new QVBoxLayout(window_.get());
        popup_ = new PopUpButton(window_.get());
        layout->addWidget(popup_);
        popup_->addItems({"A", "B", "C", "D", "E", "F"});
        popup_->setCurrentIndex(2);
        window_->show();
        window_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
        popup_->setFocus();
        ASSERT_TRUE(popup_->hasFocus());
    }

    void type(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(window_->windowHandle(), key, modifiers);
    }
    bool listShown() const { return popup_->view()->isVisible(); }
    void closeList() {
        type(Qt::Key_Escape);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !listShown(); }, 5000));
    }

    std::unique_ptr<QWidget> window_;
    PopUpButton* popup_ = nullptr;
};

TEST_F(PopUpButtonAlone, WheelChangesNothingAndChoosesNothing) {
    QSignalSpy chosen(popup_, &PopUpButton::chosen);
    QSignalSpy activated(popup_, &QComboBox::activated);
    QSignalSpy changed(popup_, &QComboBox::currentIndexChanged);
    EXPECT_EQ(test::turnWheelOver(*popup_, 2), 2);
    EXPECT_EQ(test::turnWheelOver(*popup_, -5), 5);
    EXPECT_EQ(popup_->currentIndex(), 2);
    EXPECT_FALSE(listShown());
    EXPECT_TRUE(chosen.isEmpty());
    EXPECT_TRUE(activated.isEmpty());
    EXPECT_TRUE(changed.isEmpty());
}

TEST_F(PopUpButtonAlone, WheelScrollsWhatIsUnderThePopUp) {
    // The pop-up inside a tall page of a scroll area: the wheel scrolls the page.
    QScrollArea area;
    auto* page = new QWidget;
    page->setMinimumSize(200, 3000);
    auto* inner = new PopUpButton(page);
    inner->addItems({"A", "B", "C"});
    inner->setGeometry(10, 10, 100, 30);
    area.setWidget(page);
    area.resize(300, 200);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&area));
    QSignalSpy chosen(inner, &PopUpButton::chosen);
    ASSERT_EQ(area.verticalScrollBar()->value(), 0);

    EXPECT_EQ(test::turnWheelOver(*inner, -1), 1);
    EXPECT_GT(area.verticalScrollBar()->value(), 0);
    EXPECT_EQ(inner->currentIndex(), 0);
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(PopUpButtonAlone, ArrowsLettersAndPageKeysChangeNothing) {
    QSignalSpy chosen(popup_, &PopUpButton::chosen);
    QSignalSpy activated(popup_, &QComboBox::activated);
    QSignalSpy changed(popup_, &QComboBox::currentIndexChanged);
    for (Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Left, Qt::Key_Right, Qt::Key_PageDown,
                        Qt::Key_PageUp, Qt::Key_Home, Qt::Key_End, Qt::Key_E, Qt::Key_A}) {
        type(key);
        EXPECT_FALSE(listShown()) << key;
    }
    type(Qt::Key_Down, Qt::ControlModifier);
    type(Qt::Key_Space, Qt::ShiftModifier);
    type(Qt::Key_F4, Qt::AltModifier);
    QTest::keyClicks(popup_, QStringLiteral("fed"));
    EXPECT_EQ(popup_->currentIndex(), 2);
    EXPECT_FALSE(listShown());
    EXPECT_TRUE(chosen.isEmpty());
    EXPECT_TRUE(activated.isEmpty());
    EXPECT_TRUE(changed.isEmpty());
}

TEST_F(PopUpButtonAlone, TextFromAnInputMethodChangesNothing) {
    QSignalSpy changed(popup_, &QComboBox::currentIndexChanged);
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral("E"));
    QApplication::sendEvent(popup_, &commit);
    EXPECT_EQ(popup_->currentIndex(), 2);
    EXPECT_TRUE(changed.isEmpty());
}

TEST_F(PopUpButtonAlone, SpaceReturnEnterAltDownAndF4OpenTheList) {
    QSignalSpy chosen(popup_, &PopUpButton::chosen);
    const std::pair<Qt::Key, Qt::KeyboardModifiers> openers[] = {
        {Qt::Key_Space, Qt::NoModifier},
        {Qt::Key_Return, Qt::NoModifier},
        {Qt::Key_Enter, Qt::KeypadModifier},
        {Qt::Key_Down, Qt::AltModifier},
        {Qt::Key_F4, Qt::NoModifier}};
    for (const auto& [key, modifiers] : openers) {
        type(key, modifiers);
        EXPECT_TRUE(listShown()) << key;
        // The list opens on the selected item.
        EXPECT_EQ(popup_->view()->currentIndex().row(), 2) << key;
        closeList();
    }
    EXPECT_EQ(popup_->currentIndex(), 2);
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(PopUpButtonAlone, ArrowsMoveInTheOpenListAndReturnChoosesOnce) {
    QSignalSpy chosen(popup_, &PopUpButton::chosen);
    type(Qt::Key_Space);
    ASSERT_TRUE(listShown());
    type(Qt::Key_Down);
    type(Qt::Key_Down);
    type(Qt::Key_Up);
    type(Qt::Key_Down);
    EXPECT_TRUE(chosen.isEmpty());
    EXPECT_EQ(popup_->currentIndex(), 2);
    type(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !listShown(); }, 5000));
    EXPECT_EQ(popup_->currentIndex(), 4);
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(chosen.front().front().toInt(), 4);
    // Once the list is closed, the keys change nothing again.
    QApplication::processEvents();
    type(Qt::Key_Down);
    type(Qt::Key_Up);
    EXPECT_EQ(popup_->currentIndex(), 4);
    EXPECT_EQ(chosen.size(), 1);
}

TEST_F(PopUpButtonAlone, AClickInTheOpenListChooses) {
    QSignalSpy chosen(popup_, &PopUpButton::chosen);
    type(Qt::Key_Space);
    ASSERT_TRUE(listShown());
    // A release that follows the opening faster than a double click is taken as the end of
    // the click that opened the list; a person's click in the list comes later.
    QTest::qWait(QApplication::doubleClickInterval() + 100);
    QAbstractItemView& list = *popup_->view();
    const QRect item = list.visualRect(popup_->model()->index(5, 0));
    ASSERT_TRUE(item.isValid());
    // Left of the middle: the list's window may come out narrower than its rows.
    const QPoint at(qMin(item.center().x(), list.viewport()->width() / 2), item.center().y());
    QTest::mouseMove(list.viewport(), at);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !listShown(); }, 5000));
    EXPECT_EQ(popup_->currentIndex(), 5);
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(chosen.front().front().toInt(), 5);
}

TEST_F(PopUpButtonAlone, ChoosingTheSelectedItemIsStillAChoice) {
    QSignalSpy chosen(popup_, &PopUpButton::chosen);
    type(Qt::Key_Return);
    ASSERT_TRUE(listShown());
    type(Qt::Key_Return);
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(chosen.front().front().toInt(), 2);
}

TEST_F(PopUpButtonAlone, EscapeLeavesTheListWithoutAChoice) {
    QSignalSpy chosen(popup_, &PopUpButton::chosen);
    type(Qt::Key_Space);
    ASSERT_TRUE(listShown());
    type(Qt::Key_Down);
    closeList();
    QApplication::processEvents();
    EXPECT_EQ(popup_->currentIndex(), 2);
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(PopUpButtonAlone, AListClosedFromOutsideLeavesTheButtonAsBefore) {
    QSignalSpy chosen(popup_, &PopUpButton::chosen);
    type(Qt::Key_Space);
    ASSERT_TRUE(listShown());
    // As when the application closes its pop-ups because another window became active.
    popup_->view()->window()->close();
    ASSERT_FALSE(listShown());
    QApplication::processEvents();
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return window_->isActiveWindow(); }, 5000));
    popup_->setFocus();

    type(Qt::Key_Down);
    EXPECT_EQ(popup_->currentIndex(), 2);
    type(Qt::Key_Space);
    EXPECT_TRUE(listShown());
    closeList();
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(PopUpButtonAlone, AnEmptyButtonOpensNothingAndStillOpensOnceFilled) {
    PopUpButton empty(window_.get());
    empty.show();
    empty.setFocus();
    ASSERT_TRUE(empty.hasFocus());
    type(Qt::Key_Space);
    EXPECT_FALSE(empty.view()->isVisible());
    QApplication::processEvents();
    empty.addItems({"X", "Y"});
    type(Qt::Key_Space);
    EXPECT_TRUE(empty.view()->isVisible());
    type(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !empty.view()->isVisible(); }, 5000));
}

TEST_F(PopUpButtonAlone, SelectingFromCodeIsNoChoice) {
    QSignalSpy chosen(popup_, &PopUpButton::chosen);
    QSignalSpy activated(popup_, &QComboBox::activated);
    popup_->setCurrentIndex(popup_->findText("F"));
    popup_->setCurrentIndex(popup_->findText("no such title"));
    popup_->setCurrentIndex(0);
    EXPECT_EQ(popup_->currentText(), "A");
    EXPECT_TRUE(chosen.isEmpty());
    EXPECT_TRUE(activated.isEmpty());
}

} // namespace
} // namespace tarnic
