// The entry screen in a window that has room for the open picker beside the table.

#include "EntryScreenTest.h"

using namespace gallery;
using namespace gx;

namespace {

class PickerPaneTest : public EntryScreenTest {
protected:
    void resize(CGFloat width, CGFloat height) {
        (*window)->setFrame(CGRectMake(0, 0, width, height));
        screen->setFrame((*window)->bounds());
        (*window)->layoutIfNeeded();
    }
    const Ref<PickerPane>& pane() { return entry()->pane(); }
    bool isPaneShown() { return !pane()->superview()->isHidden(); }
    bool isInPane(const Ref<UIView>& view) { return view && view->isDescendantOfView(pane()); }
    bool isInTable(const Ref<UIView>& view) { return view && view->isDescendantOfView(table()); }
    Ref<UIView> focus() { return (*window)->firstResponder(); }
    CGRect inWindow(const Ref<UIView>& view) { return view->convertRect_toView(view->bounds(), window->ref()); }
    /// Leaves the wheel of the calories spinning.
    void spinCalories() {
        tapRow("Calories");
        const CGPoint from = middleOfColumn(wheels()[0], 0);
        window->fling(from, {from.x, from.y - 60}, 3);
        window->tick(0.05);
        ASSERT_TRUE(wheels()[0]->isTurning());
    }
    /// Where that spin ends if nothing disturbs it.
    double caloriesAfterSpin(CGFloat width) {
        openEntry(width, 800);
        spinCalories();
        settle();
        return entry()->workout().calories;
    }
};

} // namespace

TEST_F(PickerPaneTest, APickerOpensBesideTheTableFrom900Points) {
    openEntry(899, 640);
    tapRow("Average speed");
    EXPECT_FALSE(isPaneShown());
    EXPECT_EQ(table()->numberOfRowsInSection(0), 4);

    openEntry(900, 640);
    EXPECT_TRUE(isPaneShown());
    tapRow("Average speed");
    EXPECT_EQ(entry()->openMeasurement(), 1U);
    EXPECT_EQ(table()->numberOfRowsInSection(0), 3);
    ASSERT_EQ(wheels().size(), 1U);
    EXPECT_TRUE(isInPane(wheels()[0]));
    EXPECT_EQ(pane()->value(), "12.5 km/h");
    // Beside the list of pages are 668 points. Less 16 at either side and between are 620, of which
    // 46 % are 285.
    EXPECT_EQ(inWindow(table()).origin.x, 232 + 16);
    EXPECT_EQ(inWindow(table()).size.width, 285);
    EXPECT_EQ(inWindow(pane()).origin.x, 232 + 16 + 285 + 16);
    EXPECT_EQ(inWindow(pane()).size.width, 335);
    // The wheel has nine rows of 40 points, where a row of the table has five.
    EXPECT_EQ(wheels()[0]->bounds().size.height, 360);
    tapRow("Average speed");
    EXPECT_EQ(entry()->openMeasurement(), std::nullopt);
    EXPECT_TRUE(wheels().empty());
}

TEST_F(PickerPaneTest, WhileNothingIsOpenItSaysHowAPickerIsOpened) {
    openEntry(1200, 800);
    EXPECT_FALSE(pane()->hint()->isHidden());
    EXPECT_EQ(pane()->hint()->text(), "Choose a row to change its value.");
    tapRow("Weight");
    EXPECT_TRUE(pane()->hint()->isHidden());
    tapRow("Weight");
    EXPECT_FALSE(pane()->hint()->isHidden());
    Settings settings = screen->settings();
    settings.language = "de";
    choose(settings);
    EXPECT_EQ(pane()->hint()->text(), "Zeile wählen, um den Wert zu ändern.");
}

TEST_F(PickerPaneTest, RowAndPaneFollowTheWheel) {
    openEntry(1200, 800);
    tapRow("Calories");
    turnWheel(0, 0, 3);
    EXPECT_EQ(entry()->workout().calories, 450);
    EXPECT_EQ(value("Calories"), "450 kcal");
    EXPECT_EQ(pane()->value(), "450 kcal");
    // Another row shows its own picker there; the one before is closed.
    tapRow("Weather");
    EXPECT_EQ(wheels().size(), 2U);
    EXPECT_EQ(pane()->value(), "partly cloudy, 18 °C");
    turnWheel(0, 0, 1);
    EXPECT_EQ(pane()->value(), "cloudy, 18 °C");
    EXPECT_EQ(value("Calories"), "450 kcal");
}

TEST_F(PickerPaneTest, ClosingFinishesASpinFirst) {
    const double undisturbed = caloriesAfterSpin(1200);
    openEntry(1200, 800);
    spinCalories();
    entry()->openMeasurement_animated(std::nullopt, true);
    EXPECT_EQ(entry()->workout().calories, undisturbed);
    EXPECT_EQ(value("Calories"), std::to_string(static_cast<int>(undisturbed)) + " kcal");
}

TEST_F(PickerPaneTest, SettingsAndWorkoutsShowInTheOpenPicker) {
    openEntry(1200, 800);
    tapRow("Distance");
    Settings settings = screen->settings();
    settings.isMetric = false;
    choose(settings);
    EXPECT_EQ(entry()->openMeasurement(), indexOf("Distance"));
    EXPECT_EQ(pane()->value(), "0.62 mi");
    ASSERT_EQ(wheels().size(), 1U);
    EXPECT_TRUE(isInPane(wheels()[0]));
    Workout other;
    other.intervalDistance = 1609.344;
    entry()->setWorkout(other);
    settle();
    EXPECT_EQ(pane()->value(), "1.00 mi");
    EXPECT_EQ(wheels()[0]->selectedRowInComponent(0), 1);
}

// Keys

TEST_F(PickerPaneTest, TabLeadsFromTheRowToItsPickerAndEscapeBack) {
    openEntry(1200, 800);
    ASSERT_TRUE(table()->becomeFirstResponder());
    window->press(UIKey::Code::Down);
    window->press(UIKey::Code::Return);
    settle();
    EXPECT_EQ(entry()->openMeasurement(), 1U);
    EXPECT_EQ(focus(), table());
    window->press(UIKey::Code::Tab);
    EXPECT_EQ(focus(), wheels().at(0));
    window->press(UIKey::Code::BackTab);
    EXPECT_EQ(focus(), table());
    window->press(UIKey::Code::Tab);
    window->press(UIKey::Code::Escape);
    settle();
    EXPECT_EQ(entry()->openMeasurement(), std::nullopt);
    EXPECT_EQ(focus(), table());
    EXPECT_EQ(table()->indexPathForFocusedRow(), (NSIndexPath{0, 1}));
}

// Resizing

TEST_F(PickerPaneTest, ResizingAcrossTheLimitKeepsTheOpenPickerItsSpinAndTheFocus) {
    for (const bool isGrowing : {true, false}) {
        SCOPED_TRACE(isGrowing);
        const CGFloat from = isGrowing ? 700 : 1200;
        const CGFloat to = isGrowing ? 1200 : 700;
        const double undisturbed = caloriesAfterSpin(from);
        ASSERT_GT(undisturbed, 420);

        openEntry(from, 800);
        spinCalories();
        const Ref<UIPickerView> wheel = wheels()[0];
        ASSERT_EQ(focus(), wheel);
        resize(to, 800);
        EXPECT_EQ(entry()->openMeasurement(), indexOf("Calories"));
        ASSERT_EQ(wheels().size(), 1U);
        EXPECT_EQ(wheels()[0], wheel) << "the same wheel in another place";
        EXPECT_EQ(isGrowing, isInPane(wheel));
        EXPECT_EQ(!isGrowing, isInTable(wheel));
        EXPECT_EQ(isGrowing, isPaneShown());
        EXPECT_EQ(focus(), wheel);
        settle();
        EXPECT_EQ(entry()->workout().calories, undisturbed);
        EXPECT_EQ(value("Calories"), std::to_string(static_cast<int>(undisturbed)) + " kcal");
        // It turns there as before.
        turnWheel(0, 0, 1);
        EXPECT_EQ(entry()->workout().calories, undisturbed + 10);
    }
}

TEST_F(PickerPaneTest, ResizingAcrossTheLimitWithNothingOpenLeavesTheFocusOnTheTable) {
    openEntry(1200, 800);
    ASSERT_TRUE(table()->becomeFirstResponder());
    window->press(UIKey::Code::Down);
    resize(390, 800);
    EXPECT_FALSE(isPaneShown());
    EXPECT_EQ(focus(), table());
    EXPECT_EQ(table()->indexPathForFocusedRow(), (NSIndexPath{0, 1}));
    tapRow("Weight");
    EXPECT_TRUE(isInTable(wheels().at(0)));
    resize(1200, 800);
    EXPECT_TRUE(isInPane(wheels().at(0)));
}

TEST_F(PickerPaneTest, EveryPickerMovesThereAndBack) {
    openEntry(390, 844);
    for (std::size_t i = 0; i < entry()->measurementCount(); ++i) {
        SCOPED_TRACE(entry()->measurement(i)->name());
        entry()->openMeasurement_animated(i, false);
        settle();
        const std::string before = entry()->measurement(i)->valueText();
        const auto inTable = wheels();
        resize(1000, 700);
        settle();
        EXPECT_EQ(wheels(), inTable);
        for (const auto& wheel : wheels()) EXPECT_TRUE(isInPane(wheel));
        EXPECT_EQ(pane()->value(), before);
        expectInsideParents(screen);
        resize(390, 844);
        settle();
        EXPECT_EQ(wheels(), inTable);
        EXPECT_EQ(entry()->measurement(i)->valueText(), before);
        // In sight, as it was.
        const NSIndexPath path = entry()->pathOfMeasurement(i);
        const CGRect cell = table()->rectForRowAtIndexPath({path.section, path.row + 1});
        EXPECT_GE(CGRectGetMinY(cell), table()->bounds().origin.y);
        EXPECT_LE(CGRectGetMaxY(cell), CGRectGetMaxY(table()->bounds()));
    }
}

TEST_F(PickerPaneTest, AWheelBesideTheTableSpinsOnWhileTheWindowIsResized) {
    const double undisturbed = caloriesAfterSpin(1200);
    openEntry(1200, 800);
    spinCalories();
    resize(1000, 700);
    EXPECT_TRUE(wheels()[0]->isTurning());
    settle();
    EXPECT_EQ(entry()->workout().calories, undisturbed);
}

TEST_F(PickerPaneTest, InALowWindowThePaneScrolls) {
    openEntry(900, 320);
    tapRow("Weight");
    const auto scroll = std::dynamic_pointer_cast<ContentScrollView>(pane()->superview());
    ASSERT_TRUE(scroll);
    EXPECT_GE(wheels()[0]->bounds().size.height, 120) << "three rows";
    scroll->setOffset(scroll->maxOffset());
    EXPECT_LE(CGRectGetMaxY(inWindow(pane()->card())), 320);
    Settings settings = screen->settings();
    settings.textScale = 1.3;
    choose(settings);
    scroll->setOffset(scroll->maxOffset());
    EXPECT_GT(scroll->maxOffset(), 0);
    EXPECT_GE(wheels()[0]->bounds().size.height, 156) << "three large rows";
    EXPECT_LE(CGRectGetMaxY(inWindow(pane()->card())), 320);
}
