// The numbers that a screen reader gets of a wheel's column, and the focus of its columns.

#include <limits>

#include "TestWindow.h"
#include "WheelSource.h"

using namespace gx;
using Notices = std::vector<WheelSource::Notice>;

namespace {

struct UIPickerColumnNumbers : testing::Test {
    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel = wheelWithSource(source);
    TestWindow window{wheel};

    Ref<UIAccessibilityElement> element(std::size_t index = 0) { return wheel->accessibilityElements().at(index); }
    void show(NSInteger count, std::string (*title)(NSInteger row), NSInteger row) {
        source->rows = {count};
        source->title = [title](NSInteger shown, NSInteger) { return title(shown); };
        wheel->reloadAllComponents();
        wheel->selectRow_inComponent_animated(row, 0, false);
        window.tick(TestWindow::frame);
    }
    void expectNumbers(double value, double minimum, double maximum, double step) {
        EXPECT_EQ(element()->numbers(), (UIAccessibilityNumbers{value, minimum, maximum, step}))
            << element()->numbers()->value << " in " << element()->numbers()->minimum << " to " << element()->numbers()->maximum;
    }
    NSInteger rowAfterSetting(double number) {
        element()->setNumber(number);
        window.runUntilStill();
        return wheel->selectedRowInComponent(0);
    }
};

} // namespace

TEST_F(UIPickerColumnNumbers, AreThoseOfTheTitles) {
    show(
        204, [](NSInteger row) { return std::to_string(row + 25); }, 117);
    expectNumbers(142, 25, 228, 1);
    EXPECT_EQ(element()->index(), 117);
    show(
        80, [](NSInteger row) { return std::to_string(row - 20); }, 40);
    expectNumbers(20, -20, 59, 1);
    show(
        59, [](NSInteger row) { return (row < 9 ? "0" : "") + std::to_string(row + 1); }, 3);
    expectNumbers(4, 1, 59, 1);
    show(
        100, [](NSInteger row) { return std::to_string(10 * row); }, 42);
    expectNumbers(420, 0, 990, 10);
}

TEST_F(UIPickerColumnNumbers, MayBeFollowedByAMarkHaveDecimalsOrOtherDigits) {
    show(
        5, [](NSInteger row) { return std::to_string(row + 3) + "'"; }, 2);
    expectNumbers(5, 3, 7, 1);
    show(
        10, [](NSInteger row) { return "36." + std::to_string(row); }, 5);
    expectNumbers(36.5, 36, 36.9, element()->numbers()->step);
    EXPECT_NEAR(element()->numbers()->step, 0.1, 1e-9);
    EXPECT_EQ(rowAfterSetting(36.68), 7);
    show(
        10, [](NSInteger row) { return "." + std::to_string(row); }, 5);
    expectNumbers(5, 0, 9, 1);
    show(
        3,
        [](NSInteger row) {
            return std::vector<std::string>{"١٠", "١١", "١٢"}.at(static_cast<std::size_t>(row));
        },
        1);
    expectNumbers(11, 10, 12, 1);
}

TEST_F(UIPickerColumnNumbers, ADashInFrontCountsAsOneStepBefore) {
    show(
        6, [](NSInteger row) { return row == 0 ? "–" : std::to_string(20 + 5 * row); }, 2);
    expectNumbers(30, 20, 45, 5);
    wheel->selectRow_inComponent_animated(0, 0, false);
    expectNumbers(20, 20, 45, 5);
    EXPECT_EQ(rowAfterSetting(22.4), 0);
    EXPECT_EQ(rowAfterSetting(22.6), 1);
    show(
        2, [](NSInteger row) -> std::string { return row == 0 ? "–" : "5"; }, 1);
    expectNumbers(5, 4, 5, 1);
}

TEST_F(UIPickerColumnNumbers, MayDescend) {
    show(
        10, [](NSInteger row) { return std::to_string(9 - row); }, 2);
    expectNumbers(7, 0, 9, 1);
    EXPECT_EQ(rowAfterSetting(3), 6);
    EXPECT_EQ(rowAfterSetting(100), 0);
    EXPECT_EQ(rowAfterSetting(-100), 9);
    EXPECT_EQ(rowAfterSetting(4.4), 5);
}

TEST_F(UIPickerColumnNumbers, WithoutNumbersInOrderTheyAreTheIndex) {
    show(
        3, [](NSInteger row) -> std::string { return row == 0   ? "km"
                                                     : row == 1 ? "mi"
                                                                : "m"; }, 1);
    expectNumbers(1, 0, 2, 1);
    EXPECT_EQ(rowAfterSetting(1.6), 2);
    EXPECT_EQ(rowAfterSetting(-5), 0);
    EXPECT_EQ(rowAfterSetting(std::numeric_limits<double>::quiet_NaN()), 0);
    show(
        4, [](NSInteger row) { return std::string(1, "3x95"[row]); }, 1);
    expectNumbers(1, 0, 3, 1);
    wheel->selectRow_inComponent_animated(2, 0, false);
    expectNumbers(2, 0, 3, 1);
}

TEST_F(UIPickerColumnNumbers, SettingOneGoesToTheNearestRowAndIsReportedOnce) {
    show(
        100, [](NSInteger row) { return std::to_string(10 * row + 30); }, 0);
    EXPECT_EQ(rowAfterSetting(424), 39);
    EXPECT_EQ(source->notices, (Notices{{39, 0}}));
    EXPECT_EQ(rowAfterSetting(425), 40) << "of two the larger";
    EXPECT_EQ(rowAfterSetting(std::numeric_limits<double>::infinity()), 99);
    EXPECT_EQ(rowAfterSetting(-std::numeric_limits<double>::infinity()), 0);
    EXPECT_EQ(rowAfterSetting(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(rowAfterSetting(1e300), 99);
    EXPECT_EQ(source->notices, (Notices{{39, 0}, {40, 0}, {99, 0}, {0, 0}, {99, 0}}));
}

TEST_F(UIPickerColumnNumbers, AreReadOfABillionRowsWithFewQueries) {
    show(
        1'000'000'000, [](NSInteger row) { return std::to_string(row + 7); }, 999'999'990);
    source->forget();
    expectNumbers(999'999'997, 7, 1'000'000'006, 1);
    EXPECT_LT(source->titleQuestions, 30);
    source->forget();
    element()->setNumber(123'456'789);
    EXPECT_LT(source->titleQuestions, 100);
    EXPECT_EQ(element()->index(), 123'456'782);
}

TEST_F(UIPickerColumnNumbers, AStepHasTheValueOfTheRowItGoesToAtOnce) {
    wheel->selectRow_inComponent_animated(10, 0, false);
    element()->increment();
    EXPECT_EQ(element()->value(), "11");
    EXPECT_EQ(wheel->announcedRowInComponent(0), 11);
    EXPECT_EQ(wheel->selectedRowInComponent(0), 10) << "it reports the row when it lands";
    window.tick(TestWindow::frame);
    element()->increment();
    EXPECT_EQ(element()->value(), "12");
    window.runUntilStill();
    EXPECT_EQ(element()->value(), "12");
    EXPECT_EQ(wheel->announcedRowInComponent(0), 12);
    EXPECT_EQ(wheel->announcedRowInComponent(1), -1);
    EXPECT_EQ(wheel->announcedRowInComponent(-1), -1);
}

TEST_F(UIPickerColumnNumbers, ATypedNumberIsTheValueAtOnceAlsoWhileItsReportWaits) {
    wheel->becomeFirstResponder();
    window.type("4");
    EXPECT_EQ(element()->value(), "4");
    window.run(0.5);
    EXPECT_EQ(source->notices, Notices{});
    EXPECT_EQ(element()->value(), "4");
    window.type("2");
    EXPECT_EQ(element()->value(), "42");
    window.runUntilStill();
    EXPECT_EQ(source->notices, (Notices{{42, 0}}));
}

TEST_F(UIPickerColumnNumbers, AFingerThatCatchesAStepKeepsItsValueUntilRest) {
    wheel->selectRow_inComponent_animated(10, 0, false);
    element()->setIndex(12);
    window.tick(TestWindow::frame);
    window.down({160, 108});
    EXPECT_EQ(element()->value(), "12");
    window.glide({160, 108}, {160, 188}, 20);
    EXPECT_EQ(element()->value(), "12");
    window.run(0.2);
    window.up({160, 188});
    window.runUntilStill();
    EXPECT_EQ(element()->value(), std::to_string(source->notices.back().row));
    EXPECT_NE(element()->value(), "12");
    window.fling({160, 108}, {160, 148}, 3);
    EXPECT_EQ(element()->value(), std::to_string(source->notices.back().row)) << "the step before is forgotten";
}

TEST_F(UIPickerColumnNumbers, AReloadThatTakesTheRowOfAStepAwayTakesItsValue) {
    wheel->selectRow_inComponent_animated(10, 0, false);
    element()->setIndex(50);
    EXPECT_EQ(element()->value(), "50");
    source->rows = {20};
    wheel->reloadAllComponents();
    EXPECT_EQ(element()->value(), "10");
    window.runUntilStill();
    EXPECT_EQ(element()->value(), "10");
}

// The focus

TEST_F(UIPickerColumnNumbers, FocusingAColumnMakesItTheOneOfTheKeys) {
    source->rows = {100, 100, 1};
    wheel->reloadAllComponents();
    window.tick(TestWindow::frame);
    EXPECT_TRUE(element(0)->isFocusable());
    EXPECT_FALSE(element(0)->isFocused());
    EXPECT_TRUE(element(1)->focus());
    EXPECT_TRUE(wheel->isFirstResponder());
    EXPECT_TRUE(window->showsFocus());
    EXPECT_EQ(wheel->componentOfKeys(), 1);
    EXPECT_TRUE(element(1)->isFocused());
    EXPECT_FALSE(element(0)->isFocused());
    ASSERT_TRUE(window->focusedAccessibilityElement());
    EXPECT_TRUE(window->focusedAccessibilityElement()->isSameAs(*element(1)));
    window.press(UIKey::Code::Left);
    EXPECT_TRUE(window->focusedAccessibilityElement()->isSameAs(*element(0)));
    wheel->setUserInteractionEnabled(false);
    EXPECT_FALSE(element(1)->isFocusable());
    EXPECT_FALSE(element(1)->focus());
    EXPECT_EQ(wheel->componentOfKeys(), 0);
}

TEST_F(UIPickerColumnNumbers, FocusingAnotherColumnCompletesATypedNumber) {
    source->rows = {100, 100};
    wheel->reloadAllComponents();
    window.tick(TestWindow::frame);
    wheel->becomeFirstResponder();
    window.type("4");
    window.run(0.5);
    EXPECT_EQ(source->notices, Notices{});
    element(1)->focus();
    EXPECT_EQ(source->notices, (Notices{{4, 0}}));
}
