#include "GXBasePickerView.h"
#include "CastTo.h"

#include <limits>

#include "GXStyleSheet.h"
#include "PickerTest.h"
#include "UILabel.h"
#include "UITextEngine.h"

using namespace gx;

namespace {
using BasePicker = PickerTest<GXBasePickerView>;
constexpr NSInteger lowest = std::numeric_limits<NSInteger>::min();
} // namespace

// Construction

TEST_F(BasePicker, DefaultsAreBoxed32BitIntegers) {
    for (const auto& [number, value] :
         {std::pair(picker->minValue(), 0), {picker->maxValue(), 100}, {picker->stepSize(), 1}, {picker->currentValue(), 0}}) {
        EXPECT_EQ(number.type(), NSNumber::Type::Int);
        EXPECT_EQ(number.intValue(), value);
    }
    EXPECT_FALSE(picker->isMetric());
    EXPECT_FALSE(picker->customValueFont());
    EXPECT_FALSE(picker->customLabelFont());
}

TEST_F(BasePicker, SetUpGivesTheWheelItsDelegateBeforeItsDataSourceAndSelectsNothing) {
    EXPECT_EQ(wheel().takeCalls(), (Calls{"delegate", "data source"}));
    EXPECT_EQ(wheel().superview(), picker);
    EXPECT_FALSE(wheel().translatesAutoresizingMaskIntoConstraints());
    EXPECT_EQ(picker->constraints().size(), 4U);
}

TEST_F(BasePicker, TheWheelFillsThePickerWhateverItsSize) {
    EXPECT_EQ(wheel().frame(), CGRectMake(0, 0, 320, 216));
    picker->setFrame(CGRectMake(10, 10, 200, 150));
    picker->layoutIfNeeded();
    EXPECT_EQ(wheel().frame(), CGRectMake(0, 0, 200, 150));
}

TEST(BasePickerConstruction, RowsAreAsHighAsTheStyleSheetSaysOrAsGiven) {
    struct Style : GXStyleSheet {
        double pickerRowHeight() const override { return 0.1; }
    };
    GXStyleSheet::setGlobalStyleSheet(create<Style>());
    const auto styled = create<GXBasePickerView>(CGRectMake(0, 0, 320, 216));
    const auto coded = create<GXBasePickerView>(create<NSCoder>());
    GXStyleSheet::setGlobalStyleSheet(nullptr);
    // The height is kept in single precision.
    EXPECT_EQ(styled->pickerView_rowHeightForComponent(styled->pickerView(), 0), 0.10000000149011612);
    EXPECT_EQ(coded->pickerView_rowHeightForComponent(coded->pickerView(), 7), 0.10000000149011612);
    const auto given = create<GXBasePickerView>(CGRectMake(0, 0, 320, 216), 60.5F);
    EXPECT_EQ(given->pickerView_rowHeightForComponent(given->pickerView(), 0), 60.5);
}

TEST(BasePickerConstruction, ACoderRestoresTheFrame) {
    const auto coder = create<NSCoder>();
    coder->encodeCGRect_forKey(CGRectMake(5, 6, 300, 200), "frame");
    const auto picker = create<GXBasePickerView>(coder);
    ASSERT_TRUE(picker);
    EXPECT_EQ(picker->frame(), CGRectMake(5, 6, 300, 200));
    EXPECT_EQ(picker->pickerView()->frame(), CGRectMake(0, 0, 300, 200));
    EXPECT_EQ(picker->maxValue().intValue(), 100);
}

// Rows

TEST_F(BasePicker, TheDefaultsShow0To99InOneColumn) {
    EXPECT_EQ(wheel().numberOfComponents(), 1);
    EXPECT_EQ(rows(), 100);
    EXPECT_EQ(title(0), "0");
    EXPECT_EQ(title(99), "99");
}

TEST_F(BasePicker, TheMaximumIsNotOfferedAndAPartialStepIsLost) {
    picker->setMaxValue(boxed(240));
    picker->setStepSize(boxed(10));
    EXPECT_EQ(rows(), 24);
    EXPECT_EQ(title(23), "230");
    picker->setMaxValue(boxed(25));
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(title(1), "10");
    picker->setMaxValue(boxed(29));
    EXPECT_EQ(rows(), 2);
    picker->setMaxValue(boxed(30));
    EXPECT_EQ(rows(), 3);
}

TEST_F(BasePicker, BoundsAndStepsAreReadByTheirIntegerParts) {
    picker->setMinValue(boxedDouble(-1.9));
    picker->setMaxValue(boxedFloat(8.9F));
    picker->setStepSize(boxedDouble(3.99));
    EXPECT_EQ(rows(), 3); // (8 + 1) / 3
    EXPECT_EQ(title(0), "-1");
    EXPECT_EQ(title(2), "5");
}

TEST_F(BasePicker, WithoutARangeThereAreNoRowsAndTheWidthIsMeasuredOnTheRowBeforeTheFirst) {
    picker->setMaxValue(boxed(0));
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), 0), 50.0);
    picker->setMinValue(boxed(-99998));
    picker->setMaxValue(boxed(-99998));
    // The row before the first is -99999: 6 code points of 10 points, times 1.8 in single
    // precision.
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), 0), 60 * 1.7999999523162842);
}

TEST_F(BasePicker, ATitleBeyond32BitsWraps) {
    picker->setMinValue(boxedInteger(2147483647));
    EXPECT_EQ(title(0), "2147483647");
    EXPECT_EQ(title(1), "-2147483648");
    EXPECT_EQ(title(2), "-2147483647");
}

TEST_F(BasePicker, ColumnsAreAtLeast50WideAndElse1Point8TimesTheirLastTitle) {
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), 0), 50.0); // "99" gives 36
    // "999" gives 54
    picker->setMaxValue(boxed(1000));
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), 0), 30 * 1.7999999523162842);
}

TEST_F(BasePicker, WidthsAreMeasuredInTheLabelFontAndRowsDrawnInTheValueFont) {
    struct Engine : UITextEngine {
        CGSize sizeOfText_font(std::string_view text, const UIFont& font) override {
            return {static_cast<CGFloat>(text.size()) * font.pointSize(), font.pointSize()};
        }
    };
    UITextEngine::setShared(create<Engine>());
    picker->setMaxValue(boxed(1000));
    picker->setCustomValueFont(GXStyleSheetFont::fontWithFamily_size_weight_color("", 30.0, UIFontWeight::Regular, UIColor::blackColor()));
    picker->setCustomLabelFont(GXStyleSheetFont::fontWithFamily_size_weight_color("", 40.0, UIFontWeight::Regular, UIColor::blackColor()));
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), 0), 120 * 1.7999999523162842);
    const auto label = castTo<UILabel>(wheel().viewForRow_forComponent(0, 0));
    EXPECT_EQ(label->font()->pointSize(), 30);
    UITextEngine::setShared(nullptr);
}

// Row views

TEST_F(BasePicker, ARowIsAClearLabelWithTheRowsTitleInTheValueFont) {
    const auto label = castTo<UILabel>(picker->pickerView_viewForRow_forComponent_reusingView(picker->pickerView(), 12, 0, nullptr));
    ASSERT_TRUE(label);
    EXPECT_EQ(label->text(), "12");
    EXPECT_TRUE(CGRectIsNull(label->frame()));
    EXPECT_EQ(label->backgroundColor(), UIColor::clearColor());
    EXPECT_EQ(label->font(), GXStyleSheet::globalStyleSheet()->pickerValueFont()->font());
}

TEST_F(BasePicker, AnOfferedLabelIsUsedAgainWithItsFontAndAnyOtherViewIsNot) {
    const auto label = create<UILabel>(CGRectZero);
    EXPECT_EQ(picker->pickerView_viewForRow_forComponent_reusingView(picker->pickerView(), 3, 0, label), label);
    EXPECT_EQ(label->text(), "3");
    EXPECT_EQ(label->font(), GXStyleSheet::globalStyleSheet()->pickerValueFont()->font());
    const auto view = create<UIView>(CGRectZero);
    EXPECT_NE(picker->pickerView_viewForRow_forComponent_reusingView(picker->pickerView(), 3, 0, view), view);
}

namespace {
class ThreeColumns : public GXBasePickerView {
public:
    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>&) override { return 3; }
};
NSTextAlignment alignmentIn(GXBasePickerView& picker, NSInteger component) {
    const Ref<UIView> view = picker.pickerView_viewForRow_forComponent_reusingView(picker.pickerView(), 0, component, nullptr);
    return castTo<UILabel>(view)->textAlignment();
}
} // namespace

TEST_F(BasePicker, ASingleColumnIsRightAligned) { EXPECT_EQ(alignmentIn(*picker, 0), NSTextAlignmentRight); }

TEST(BasePickerSubclass, ThreeColumnsAreAlignedRightCentreLeft) {
    const auto picker = create<ThreeColumns>(CGRectMake(0, 0, 320, 216));
    EXPECT_EQ(alignmentIn(*picker, 0), NSTextAlignmentRight);
    EXPECT_EQ(alignmentIn(*picker, 1), NSTextAlignmentCenter);
    EXPECT_EQ(alignmentIn(*picker, 2), NSTextAlignmentLeft);
    EXPECT_EQ(picker->pickerView()->numberOfComponents(), 3) << "the wheel asks through the object";
}

// Setters

TEST_F(BasePicker, ABoundReloadsAndThenReselects) {
    EXPECT_EQ(callsOf([&] { picker->setMinValue(boxed(-5)); }), (Calls{"reload", "select 5 in 0"}));
    EXPECT_EQ(callsOf([&] { picker->setMaxValue(boxed(7)); }), (Calls{"reload", "select 5 in 0"}));
    EXPECT_EQ(callsOf([&] { picker->setStepSize(boxed(2)); }), (Calls{"reload", "select 2 in 0"}));
}

TEST_F(BasePicker, TheVerySameBoxDoesNothingAndAnEqualOneReloads) {
    const NSNumber same = picker->minValue();
    EXPECT_EQ(callsOf([&] { picker->setMinValue(same); }), Calls{});
    EXPECT_EQ(callsOf([&] { picker->setMinValue(boxed(0)); }), (Calls{"reload", "select 0 in 0"}));
    EXPECT_EQ(callsOf([&] { picker->setMaxValue(picker->maxValue()); }), Calls{});
    EXPECT_EQ(callsOf([&] { picker->setMaxValue(boxed(100)); }), (Calls{"reload", "select 0 in 0"}));
    EXPECT_EQ(callsOf([&] { picker->setStepSize(picker->stepSize()); }), Calls{});
    EXPECT_EQ(callsOf([&] { picker->setStepSize(boxed(1)); }), (Calls{"reload", "select 0 in 0"}));
}

TEST_F(BasePicker, AStepBelow1Becomes1) {
    for (const NSNumber& step : {boxed(0), boxed(-5), boxedDouble(0.5), boxedInteger(lowest), boxedDouble(-0.0),
                                 boxedDouble(std::numeric_limits<double>::quiet_NaN()), NSNumber()}) {
        picker->setStepSize(boxed(7));
        picker->setStepSize(step);
        EXPECT_EQ(picker->stepSize().integerValue(), 1);
    }
    picker->setStepSize(boxedDouble(1.5));
    EXPECT_EQ(picker->stepSize().doubleValue(), 1.5) << "kept as given, read as 1";
}

TEST_F(BasePicker, TheCurrentValueIsStoredAndSelectedWithoutAReloadOrANotice) {
    const NSNumber value = boxed(37);
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(value); }), (Calls{"select 37 in 0"}));
    EXPECT_TRUE(picker->currentValue().isIdenticalTo(value));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(value); }), (Calls{"select 37 in 0"})) << "also for the same box";
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(BasePicker, AFractionIsCutOffBeforeTheRowIsCounted) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(7.9)); }), (Calls{"select 7 in 0"}));
    picker->setStepSize(boxed(2));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(9)); }), (Calls{"select 4 in 0"}));
}

TEST_F(BasePicker, AValueBelowTheMinimumIsStoredButLeavesTheWheelAlone) {
    picker->setCurrentValue(boxed(5));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(-1)); }), Calls{});
    EXPECT_EQ(picker->currentValue().intValue(), -1);
    EXPECT_EQ(selected(), 5);
}

TEST_F(BasePicker, TheLowerBoundIsTestedAsFloatsAndTheRowCountedInIntegers) {
    picker->setMinValue(boxedDouble(0.5));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(0.25)); }), Calls{});
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxedDouble(0.5)); }), (Calls{"select 0 in 0"}));
    // As floats both are 16777216, so the value is not below the minimum, and its row is −1.
    picker->setMinValue(boxed(16777217));
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(16777216)); }), (Calls{"select -1 in 0"}));
}

TEST_F(BasePicker, ThereIsNoUpperClamp) {
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(100)); }), (Calls{"select 100 in 0"}));
    EXPECT_EQ(selected(), 99);
    picker->setMaxValue(boxed(101));
    EXPECT_EQ(selected(), 100) << "more rows: the value shows";
}

TEST_F(BasePicker, FontsReachTheWheelWhichReloads) {
    const auto font = GXStyleSheet::globalStyleSheet()->pickerLabelFont();
    EXPECT_EQ(callsOf([&] { picker->setCustomLabelFont(font); }), (Calls{"label font", "reload"}));
    EXPECT_EQ(callsOf([&] { picker->setCustomValueFont(font); }), (Calls{"value font", "reload"}));
    EXPECT_EQ(wheel().customLabelFont(), font);
    EXPECT_EQ(wheel().customValueFont(), font);
    EXPECT_EQ(picker->customLabelFont(), font);
}

TEST_F(BasePicker, MetricIsStoredOnly) {
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(true); }), Calls{});
    EXPECT_TRUE(picker->isMetric());
}

TEST_F(BasePicker, WithoutAWheelEveryOperationIsSafe) {
    picker->setPickerView(nullptr);
    EXPECT_FALSE(picker->pickerView());
    picker->setMinValue(boxed(1));
    picker->setStepSize(boxed(0));
    picker->setCurrentValue(boxed(5));
    picker->setCustomLabelFont(nullptr);
    picker->setCustomValueFont(nullptr);
    picker->setIsMetric(true);
    EXPECT_EQ(picker->currentValue().intValue(), 5);
    picker->pickerView_didSelectRow_inComponent(nullptr, 2, 0);
    EXPECT_EQ(notices->list.back().value.intValue(), 3);
}
