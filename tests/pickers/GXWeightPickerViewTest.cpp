#include "GXWeightPickerView.h"

#include "GXLocalization.h"
#include "KeysAndComments.h"
#include "NSLocale.h"
#include "PickerTest.h"

using namespace gx;

namespace {

using WeightPicker = PickerTest<GXWeightPickerView>;
constexpr auto unknownUnit = static_cast<GXWeightUnit>(7);
constexpr auto highestUnit = static_cast<GXWeightUnit>(18446744073709551615U);

/// A pound is 0.45359237 kg and a stone 6.35029318 kg; what is kept is the next float that is not
/// below.
constexpr float kilogramsOf34Pounds = 15.422141F;
constexpr float kilogramsOf771Pounds = 349.71973F;
constexpr float kilogramsOf3Stones = 19.05088F;
constexpr float kilogramsOf55Stones = 349.26614F;

} // namespace

// Construction

TEST_F(WeightPicker, ItIsSetUpStepByStepThroughTheSettersAndSelectsNothing) {
    EXPECT_EQ(wheel().takeCalls(), (Calls{"delegate", "data source", // the wheel
                                          "right kg", "reload",      // no unit column
                                          "reload", "reload",        // minimum, maximum
                                          "separator . after 0", "reload"}));
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(WeightPicker, ItsDefaultsAreKilogramsFrom15To350WithoutAUnitColumn) {
    EXPECT_EQ(picker->weightUnit(), GXWeightUnitKilogram);
    EXPECT_FALSE(picker->weightUnitSelectable());
    for (const auto& [number, value] : {std::pair(picker->minValue(), 15), {picker->maxValue(), 350}, {picker->currentValue(), 0}}) {
        EXPECT_EQ(number.type(), NSNumber::Type::Int);
        EXPECT_EQ(number.intValue(), value);
    }
    EXPECT_EQ(wheel().numberOfComponents(), 3);
    EXPECT_EQ(wheel().rightDescLabel()->text(), "kg");
    EXPECT_EQ(wheel().separatorAfterComponent(0)->text(), ".");
}

TEST(WeightUnit, ItIsAnUnsignedMachineWordThatCountsFromKilograms) {
    static_assert(std::is_same_v<std::underlying_type_t<GXWeightUnit>, NSUInteger>);
    EXPECT_EQ(NSUInteger{GXWeightUnitKilogram}, 0U);
    EXPECT_EQ(NSUInteger{GXWeightUnitPound}, 1U);
    EXPECT_EQ(NSUInteger{GXWeightUnitStone}, 2U);
}

TEST_F(WeightPicker, TheOtherInitialisersSetItUpAlike) {
    const auto high = create<GXWeightPickerView>(CGRectMake(0, 0, 320, 216), 60.0F);
    EXPECT_EQ(high->minValue().intValue(), 15);
    EXPECT_EQ(high->pickerView_rowHeightForComponent(high->pickerView(), 3), 60);
    const auto coded = create<GXWeightPickerView>(create<NSCoder>());
    EXPECT_EQ(coded->maxValue().intValue(), 350);
    EXPECT_EQ(coded->pickerView()->rightLabelText(), "kg");
    EXPECT_EQ(coded->pickerView()->separatorAfterComponent(0)->text(), ".");
}

TEST(WeightPickerLocale, TheSeparatorIsTheLocalesOfTheMomentItIsMade) {
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("de_DE"));
    const auto picker = create<GXWeightPickerView>(CGRectMake(0, 0, 320, 216));
    NSLocale::setCurrentLocale(nullptr);
    EXPECT_EQ(picker->pickerView()->separatorAfterComponent(0)->text(), ",");
    picker->setCurrentValue(boxedDouble(72.46));
    EXPECT_EQ(picker->pickerView()->selectedRowInComponent(2), 5);
}

TEST(WeightPickerLabels, TheyAreLocalised) {
    struct Silent : GXLocalization {
        std::optional<std::string> localizedStringWithKey_comment(const std::string&, const std::string&) const override { return {}; }
    };
    GXLocalization::setSharedLocalization(create<KeysAndComments>());
    const auto picker = create<GXWeightPickerView>(CGRectMake(0, 0, 320, 216));
    EXPECT_EQ(picker->pickerView()->rightLabelText(), "kg|unit kg (kilogram)");
    picker->setWeightUnit(GXWeightUnitPound);
    EXPECT_EQ(picker->pickerView()->rightLabelText(), "lb|unit lb (pound)");
    picker->setWeightUnit(GXWeightUnitStone);
    EXPECT_EQ(picker->pickerView()->rightLabelText(), "st|unit st (stones)");
    const auto title = [&](NSInteger row) { return picker->pickerView_titleForRow_forComponent(picker->pickerView(), row, 3); };
    EXPECT_EQ(title(0), "  kg|unit kg (kilogram)");
    EXPECT_EQ(title(1), "  lb|unit lb (pound)");
    EXPECT_EQ(title(2), "  st|unit st (stones)");
    GXLocalization::setSharedLocalization(create<Silent>());
    EXPECT_EQ(title(1), std::nullopt);
    picker->updateCurrentRightLabel();
    EXPECT_EQ(picker->pickerView()->rightLabelText(), std::nullopt);
    GXLocalization::setSharedLocalization(nullptr);
}

// Rows

TEST_F(WeightPicker, WholeNumbersGoFromTheUnitsFirstToOneBelowItsMaximum) {
    struct Table {
        GXWeightUnit unit;
        NSInteger rows;
        const char* first;
        const char* last;
    };
    for (const Table& table :
         {Table{GXWeightUnitKilogram, 335, "15", "349"}, Table{GXWeightUnitPound, 737, "34", "770"},
          Table{GXWeightUnitStone, 52, "3", "54"}, Table{unknownUnit, 52, "3", "54"}, Table{highestUnit, 52, "3", "54"}}) {
        picker->setWeightUnit(table.unit);
        EXPECT_EQ(rows(0), table.rows);
        EXPECT_EQ(title(0, 0), table.first);
        EXPECT_EQ(title(table.rows - 1, 0), table.last);
    }
}

TEST_F(WeightPicker, TheOtherColumnsAreAnUntitledRowTenTenthsAndThreeUnits) {
    picker->setWeightUnitSelectable(true);
    EXPECT_EQ(wheel().numberOfComponents(), 4);
    EXPECT_EQ(rows(1), 1);
    EXPECT_EQ(title(0, 1), std::nullopt);
    EXPECT_EQ(rows(2), 10);
    EXPECT_EQ(title(0, 2), "0");
    EXPECT_EQ(title(9, 2), "9");
    EXPECT_EQ(rows(3), 3);
    EXPECT_EQ(title(0, 3), "  kg");
    EXPECT_EQ(title(1, 3), "  lb");
    EXPECT_EQ(title(2, 3), "  st");
    EXPECT_EQ(title(3, 3), "  kg");
    EXPECT_EQ(title(-1, 3), "  kg");
}

TEST_F(WeightPicker, ColumnsThatDoNotExistHaveThreeUntitledRows) {
    for (const NSInteger component : {-1, 4, 5, 6, 7}) {
        EXPECT_EQ(picker->pickerView_numberOfRowsInComponent(picker->pickerView(), component), 3);
        EXPECT_EQ(title(0, component), std::nullopt);
        EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), component), 20.0);
    }
}

TEST_F(WeightPicker, WholeNumbersAreAsWideAsTheirLastTitleNeedsButAtMostAThirdOfTheWheel) {
    const auto width = [&](NSInteger component) { return picker->pickerView_widthForComponent(picker->pickerView(), component); };
    EXPECT_EQ(width(0), 30 * 1.7999999523162842); // "349"
    EXPECT_EQ(width(1), 3.0);
    EXPECT_EQ(width(2), 20.0);
    EXPECT_EQ(width(3), 60.0);
    picker->setWeightUnit(GXWeightUnitStone);
    EXPECT_EQ(width(0), 50.0); // "54"
    picker->pickerView()->setBounds(CGRectMake(0, 0, 149, 216));
    EXPECT_EQ(width(0), 49.0) << "49.67 in whole points";
    picker->pickerView()->setBounds(CGRectMake(0, 0, 150, 216));
    EXPECT_EQ(width(0), 50.0);
}

TEST_F(WeightPicker, ATitleBeyond32BitsWraps) {
    EXPECT_EQ(title(2147483633, 0), "-2147483648");
    EXPECT_EQ(title(2147483648, 2), "-2147483648");
}

// The unit

TEST_F(WeightPicker, AUnitRelabelsAndReloadsButNeitherReselectsNorChangesBounds) {
    picker->setCurrentValue(boxed(70));
    EXPECT_EQ(callsOf([&] { picker->setWeightUnit(GXWeightUnitPound); }), (Calls{"right lb", "reload"}));
    EXPECT_EQ(selected(0), 55) << "the row of 70 kg";
    EXPECT_EQ(picker->minValue().intValue(), 15);
    EXPECT_EQ(picker->maxValue().intValue(), 350);
    EXPECT_EQ(callsOf([&] { picker->setWeightUnit(GXWeightUnitStone); }), (Calls{"right st", "reload"}));
    EXPECT_EQ(callsOf([&] { picker->setWeightUnit(GXWeightUnitStone); }), (Calls{"right st", "reload"})) << "also the same one";
    // 11.023 st
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(70)); }), (Calls{"select 8 in 0", "select 0 in 2"}));
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(WeightPicker, AnUnknownUnitLeavesLabelAndBoundsAndCountsInStones) {
    picker->setWeightUnit(GXWeightUnitPound);
    EXPECT_EQ(callsOf([&] { picker->setWeightUnit(unknownUnit); }), (Calls{"reload"}));
    EXPECT_EQ(wheel().rightLabelText(), "lb");
    EXPECT_EQ(picker->weightUnit(), 7U);
    EXPECT_EQ(callsOf([&] { picker->updateMinMaxWeight(); }), Calls{});
    picker->setWeightUnitSelectable(true);
    EXPECT_EQ(callsOf([&] { picker->setCurrentValue(boxed(70)); }), (Calls{"select 8 in 0", "select 0 in 2"})) << "no row for it";
}

TEST_F(WeightPicker, AUnitColumnTakesTheLabelsPlace) {
    EXPECT_EQ(callsOf([&] { picker->setWeightUnitSelectable(true); }), (Calls{"right (nothing)", "reload"}));
    EXPECT_TRUE(picker->weightUnitSelectable());
    EXPECT_EQ(wheel().numberOfComponents(), 4);
    EXPECT_EQ(wheel().rightDescLabel()->text(), std::nullopt);
    EXPECT_EQ(callsOf([&] { picker->setWeightUnit(GXWeightUnitStone); }), (Calls{"right (nothing)", "reload"}));
    EXPECT_EQ(callsOf([&] { picker->setWeightUnitSelectable(false); }), (Calls{"right st", "reload"}));
    EXPECT_EQ(wheel().numberOfComponents(), 3);
}

TEST_F(WeightPicker, EachUnitsBoundsAreSetOnDemandInKilograms) {
    picker->setWeightUnit(GXWeightUnitPound);
    EXPECT_EQ(callsOf([&] { picker->updateMinMaxWeight(); }), (Calls{"reload", "reload"}));
    EXPECT_EQ(picker->minValue().type(), NSNumber::Type::Float);
    EXPECT_EQ(picker->minValue().floatValue(), kilogramsOf34Pounds);
    EXPECT_EQ(picker->maxValue().type(), NSNumber::Type::Float);
    EXPECT_EQ(picker->maxValue().floatValue(), kilogramsOf771Pounds);
    picker->setWeightUnit(GXWeightUnitStone);
    picker->updateMinMaxWeight();
    EXPECT_EQ(picker->minValue().type(), NSNumber::Type::Float);
    EXPECT_EQ(picker->minValue().floatValue(), kilogramsOf3Stones);
    EXPECT_EQ(picker->maxValue().floatValue(), kilogramsOf55Stones);
    picker->setWeightUnit(GXWeightUnitKilogram);
    picker->setCurrentValue(boxed(70));
    EXPECT_EQ(callsOf([&] { picker->updateMinMaxWeight(); }),
              (Calls{"reload", "select 55 in 0", "select 0 in 2", "reload", "select 55 in 0", "select 0 in 2"}));
    EXPECT_EQ(picker->minValue().type(), NSNumber::Type::Int);
    EXPECT_EQ(picker->maxValue().intValue(), 350);
}
