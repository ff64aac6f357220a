#include "CastTo.h"
#include "GXBasePickerView.h"

#include <limits>

#include "PickerTest.h"
#include "TestWindow.h"
#include "UILabel.h"

using namespace gx;

namespace {
using BasePicker = PickerTest<GXBasePickerView>;
constexpr NSInteger highest = std::numeric_limits<NSInteger>::max();

class ThreeColumns : public GXBasePickerView {
public:
    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>&) override { return 3; }
};
} // namespace

// The user's selections

TEST_F(BasePicker, ASelectionStoresTheRowsValueAs64BitsAndSendsOneNotice) {
    EXPECT_EQ(turn(37), Calls{}) << "the wheel is not selected again";
    EXPECT_EQ(picker->currentValue().type(), NSNumber::Type::Integer);
    EXPECT_EQ(picker->currentValue().integerValue(), 37);
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].picker, picker);
    EXPECT_TRUE(notices->list[0].value.isIdenticalTo(picker->currentValue()));
    EXPECT_EQ(notices->list[0].component, 0);
}

TEST(BasePickerSubclass, WhateverColumnIsTurnedComponent0IsReported) {
    const auto picker = create<ThreeColumns>(CGRectMake(0, 0, 320, 216));
    const auto notices = create<PickerNotices>();
    picker->setDelegate(notices);
    picker->pickerView()->turnToRow_inComponent(8, 2);
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].component, 0);
    EXPECT_EQ(notices->list[0].value.integerValue(), 8);
}

TEST(BasePickerSubclass, OverridesTakeEffectInTheBasesOwnRules) {
    class Words : public GXBasePickerView {
    public:
        int informed = 0;
        int selected = 0;
        NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger) override { return 3; }
        std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger) override {
            return row == 2 ? "twelve chars" : "short";
        }
        void selectCurrentValue() override { ++selected; }
        void informDelegateOfValueChange() override { ++informed; }
    };
    const auto picker = create<Words>(CGRectMake(0, 0, 320, 216));
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), 0), 120 * 1.7999999523162842);
    EXPECT_EQ(castTo<UILabel>(picker->pickerView()->viewForRow_forComponent(0, 0))->text(), "short");
    picker->setMinValue(boxed(1));
    picker->setMaxValue(boxed(1));
    picker->setStepSize(boxed(1));
    picker->setCurrentValue(boxed(1));
    EXPECT_EQ(picker->selected, 4);
    picker->pickerView()->turnToRow_inComponent(1, 0);
    EXPECT_EQ(picker->informed, 1);
}

TEST_F(BasePicker, AFingerTurnsTheWheelAndTheDelegateIsNotifiedOnce) {
    TestWindow window(picker);
    window.drag({160, 108}, {160, 108 - 126}); // three rows of 40 and the slop
    window.runUntilStill();
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].value.integerValue(), 3);
    EXPECT_EQ(picker->currentValue().integerValue(), 3);
}

TEST_F(BasePicker, ASelectionAsksAndMeasuresNoMoreThanItsLayoutNeeds) {
    struct Engine : UIFixedWidthTextEngine {
        int asked = 0;
        CGSize sizeOfText_font(std::string_view text, const UIFont& font) override {
            ++asked;
            return UIFixedWidthTextEngine::sizeOfText_font(text, font);
        }
    };
    wheel().setRightLabelText("bpm");
    picker->layoutIfNeeded();
    const auto engine = create<Engine>();
    UITextEngine::setShared(engine);
    wheel().turnToRow_inComponent(5, 0);
    EXPECT_EQ(engine->asked, 0) << "the turn itself places nothing";
    wheel().layoutIfNeeded();
    UITextEngine::setShared(nullptr);
    // The column's width; for the right label the widest title, the column's width once more, and
    // its own text; for the empty left label the widest title.
    EXPECT_EQ(engine->asked, 5);
}

// Delegates

TEST_F(BasePicker, ADelegateThatDiedIsSkipped) {
    notices = nullptr;
    turn(3);
    EXPECT_EQ(picker->currentValue().integerValue(), 3);
    EXPECT_FALSE(picker->delegate().lock());
}

TEST_F(BasePicker, ADelegateMaySetValuesInItsNotice) {
    notices->whenTold = [&](const PickerNotices::Notice&) {
        picker->setMaxValue(boxed(50));
        picker->setCurrentValue(boxed(40));
    };
    turn(3);
    EXPECT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(picker->currentValue().intValue(), 40);
    EXPECT_EQ(selected(), 40);
    EXPECT_EQ(rows(), 50);
}

TEST_F(BasePicker, ADelegateMayReplaceItselfInItsNotice) {
    const auto other = create<PickerNotices>();
    notices->whenTold = [&](const PickerNotices::Notice&) {
        picker->setDelegate(other);
        notices = nullptr;
    };
    turn(3);
    turn(4);
    EXPECT_EQ(other->list.size(), 1U);
}

// Extremes

TEST_F(BasePicker, AMinimumAboveTheMaximumGivesNoRows) {
    picker->setMinValue(boxed(200));
    EXPECT_EQ(rows(), 0);
    picker->layoutIfNeeded();
    TestWindow window(picker);
    window.drag({160, 108}, {160, 20});
    EXPECT_FALSE(window.scrollNotches({160, 108}, 1));
    EXPECT_TRUE(notices->list.empty()) << "there is no row to turn to";
    turn(0);
    EXPECT_EQ(notices->list.size(), 1U) << "a program that says so all the same is taken at its word";
    EXPECT_EQ(notices->list[0].value.integerValue(), 200);
}

TEST_F(BasePicker, EmptyAndNaNNumbersReadAs0) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    picker->setMinValue(NSNumber());
    EXPECT_EQ(rows(), 100);
    picker->setCurrentValue(NSNumber());
    EXPECT_EQ(selected(), 0);
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(nan)); }), (Calls{"select 0 in 0"})) << "no number is not below";
    picker->setMaxValue(boxedDouble(nan));
    EXPECT_EQ(rows(), 0);
    picker->setMaxValue(boxedDouble(1e300));
    EXPECT_EQ(rows(), highest);
}
