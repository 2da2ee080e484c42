#include "EditorFixture.h"

#include "PrintingAlerts.h"
#include "platform/fake/FakePlatform.h"

#include <QVariantList>

namespace tarnic::testing {
namespace {

// The ends the program must come to, started as the program is: standard error gets the line
// first, then the window's alert shows the same line, then the program ends.
class FatalAlertWindowDeathTest : public EditorFixture {
protected:
    void launchPrinting() {
        shutDown();
        Application::Options options;
        options.siteUrl.clear();
        options.alerts = &printing_;
        app_ = std::make_unique<Application>(makeFakePlatform(), options);
        controls_ = std::make_unique<WindowControls>(app_->window());
        app_->start();
    }

    PrintingAlerts printing_;
};

TEST_F(FatalAlertWindowDeathTest, AListOfTheWrongTypeIsShownBeforeTheEnd) {
    storeRaw("mainDic", QStringLiteral("not a list"));
    // The child that dies has a store folder of its own.
    const std::string line = "Fatal error: Stored value of the wrong type: key \"mainDic\" in "
                             "\"[^\"]*/Tarnic/Tarnic Pro\\.plist\": expected array of "
                             "dictionaries of strings, found string";
    EXPECT_DEATH(launchPrinting(),
                 line + "\nalert on the GUI thread: Tarnic Pro has to close\\. / " + line + "\n$");
}

TEST_F(FatalAlertWindowDeathTest, ABindingOfTheWrongTypeIsShownBeforeTheEnd) {
    storeRaw("inventoryModel3", QStringLiteral("Q"));
    EXPECT_DEATH(launchPrinting(),
                 "alert on the GUI thread: Tarnic Pro has to close\\. / Fatal error: Stored value "
                 "of the wrong type: key \"inventoryModel3\"");
}

TEST_F(FatalAlertWindowDeathTest, AnEmptyListEndsAtTheHotkeyPopUpWithTheAlert) {
    storeRaw("mainDic", QVariantList{});
    launchPrinting();
    ASSERT_EQ(editor().mainDic().size(), 0U);
    EXPECT_DEATH(choose(*ui().keysPopup, "Q"),
                 "Fatal error: Index out of range: row -1 of 0\n"
                 "alert on the GUI thread: Tarnic Pro has to close\\. / "
                 "Fatal error: Index out of range: row -1 of 0\n$");
}

} // namespace
} // namespace tarnic::testing
