// The application by the keyboard alone.

#include "ApplicationTest.h"
#include "UIWindow.h"

using namespace gallery;
using namespace gx;

namespace {

class KeyboardTest : public ApplicationTest {
protected:
    void press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(widget.get(), key, held);
        settle();
    }
    Ref<UIView> focus() { return widget->uiWindow()->firstResponder(); }
    /// Presses Tab, or Shift and Tab, until the view has the focus.
    void tabTo(const Ref<UIView>& view, bool isBackward = false) {
        constexpr int enough = 60;
        for (int i = 0; i < enough && focus() != view; ++i) {
            press(isBackward ? Qt::Key_Backtab : Qt::Key_Tab, isBackward ? Qt::ShiftModifier : Qt::NoModifier);
        }
        ASSERT_EQ(focus(), view);
    }
    void goByKeysTo(const std::string& page) {
        const std::size_t index = screen->indexOfPage(page).value_or(0);
        if (!screen->hasSidebar()) {
            tabTo(screen->menuButton());
            press(Qt::Key_Return);
            ASSERT_TRUE(screen->isMenuShown());
        }
        tabTo(screen->sidebar()->rows()[index], screen->hasSidebar());
        press(Qt::Key_Return);
        ASSERT_EQ(screen->pageIndex(), index);
    }
    /// The value as the screen shows it, without scrolling to it.
    std::string value(const std::string& name) {
        const NSIndexPath path = entry()->pathOfMeasurement(indexOf(name));
        const auto cell = std::dynamic_pointer_cast<MeasurementCell>(entry()->table()->cellForRowAtIndexPath(path));
        return cell ? cell->value() : "not in sight";
    }
    void enterSaveAndSwitchUnits() {
        tabTo(entry()->table());
        EXPECT_TRUE(widget->uiWindow()->showsFocus());
        press(Qt::Key_Down);
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        ASSERT_EQ(entry()->openMeasurement(), indexOf("Calories"));
        EXPECT_EQ(focus(), entry()->table());

        press(Qt::Key_Tab);
        ASSERT_EQ(focus(), openWheels().at(0));
        QTest::keyClicks(widget.get(), "450");
        settle();
        step(1);
        settle();
        EXPECT_EQ(value("Calories"), "450 kcal");
        press(Qt::Key_Escape);
        EXPECT_EQ(entry()->openMeasurement(), std::nullopt);
        EXPECT_EQ(focus(), entry()->table());
        EXPECT_EQ(entry()->table()->indexPathForFocusedRow(), entry()->pathOfMeasurement(indexOf("Calories")));

        press(Qt::Key_Backtab, Qt::ShiftModifier);
        ASSERT_EQ(focus(), entry()->saveButton());
        press(Qt::Key_Return);
        EXPECT_EQ(entry()->message(), "Saved: workout.json");
        EXPECT_TRUE(QFile::exists(chosenPath));

        goByKeysTo("Settings");
        tabTo(screen->settingsControls()->control("Units"));
        press(Qt::Key_Right);
        EXPECT_EQ(screen->settingsControls()->control("Units")->chosen(), 1U);
        goByKeysTo("Add workout");
        EXPECT_EQ(value("Distance"), "0.62 mi"); // 1 km is 0.6214 mi.
        EXPECT_EQ(value("Calories"), "450 kcal");
    }
};

} // namespace

TEST_F(KeyboardTest, AWorkoutIsEnteredAndSavedAndUnitsAreSwitchedOnAPhone) {
    enterSaveAndSwitchUnits();
    EXPECT_EQ(focus(), screen->menuButton()) << "which has the focus back from the menu";
}

TEST_F(KeyboardTest, AWorkoutIsEnteredAndSavedAndUnitsAreSwitchedOnADesktop) {
    start(1200, 800);
    enterSaveAndSwitchUnits();
    EXPECT_EQ(focus(), screen->sidebar()->rows()[MainScreen::entryPage]);
}

TEST_F(KeyboardTest, EveryPickerOpensTakesKeysAndCloses) {
    tabTo(entry()->table());
    for (std::size_t i = 0; i < entry()->measurementCount(); ++i) {
        const std::string name = entry()->measurement(i)->name();
        SCOPED_TRACE(name);
        const std::string before = entry()->measurement(i)->valueText();
        press(Qt::Key_Space);
        ASSERT_EQ(entry()->openMeasurement(), i);
        press(Qt::Key_Tab);
        ASSERT_EQ(focus(), openWheels().at(0));
        press(Qt::Key_Down);
        EXPECT_NE(entry()->measurement(i)->valueText(), before);
        press(Qt::Key_Escape);
        ASSERT_EQ(focus(), entry()->table());
        EXPECT_EQ(value(name), entry()->measurement(i)->valueText()) << "and the row is in sight";
        press(Qt::Key_Down);
    }
}

TEST_F(KeyboardTest, EscapeClosesTheMenu) {
    tabTo(screen->menuButton());
    press(Qt::Key_Space);
    ASSERT_TRUE(screen->isMenuShown());
    tabTo(screen->sidebar()->rows()[0]);
    press(Qt::Key_Down);
    EXPECT_EQ(focus(), screen->sidebar()->rows()[1]);
    press(Qt::Key_End);
    EXPECT_EQ(focus(), screen->sidebar()->rows().back());
    press(Qt::Key_Down);
    press(Qt::Key_Home);
    press(Qt::Key_Up);
    EXPECT_EQ(focus(), screen->sidebar()->rows()[0]);
    press(Qt::Key_Escape);
    EXPECT_FALSE(screen->isMenuShown());
    EXPECT_EQ(focus(), screen->menuButton());
    EXPECT_EQ(screen->pageIndex(), MainScreen::entryPage);
}

TEST_F(KeyboardTest, ALanguageIsChosenAndItsButtonKeepsTheFocus) {
    goByKeysTo("Settings");
    tabTo(screen->settingsControls()->languageButton("de"));
    press(Qt::Key_Return);
    EXPECT_EQ(screen->settings().language, "de");
    EXPECT_EQ(focus(), screen->settingsControls()->languageButton("de"));
}
