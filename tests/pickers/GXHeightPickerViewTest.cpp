#include <limits>

#include "CastTo.h"
#include "GXLocalization.h"
#include "HeightPickerTest.h"
#include "UILabel.h"

using namespace gx;

namespace {
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
} // namespace

// Construction

TEST_F(HeightPicker, ItIsItsOwnDataSourceAndDelegateAndSelectsNothing) {
    EXPECT_EQ(picker->calls, (Calls{"data source", "delegate"}));
    EXPECT_EQ(picker->dataSource().lock().get(), static_cast<UIPickerViewDataSource*>(picker.get()));
    EXPECT_EQ(picker->delegate().lock().get(), static_cast<UIPickerViewDelegate*>(picker.get()));
    EXPECT_EQ(picker->tintColor(), UIColor::blackColor());
    EXPECT_EQ(picker->heightInCm(), 0);
    EXPECT_FALSE(picker->isMetric());
    for (const NSInteger component : {0, 1, 2}) EXPECT_EQ(selected(component), 0);
    EXPECT_FALSE(NSRunLoop::mainRunLoop()->hasWork());
}

TEST(HeightPickerConstruction, OneFromAnInterfaceIsABareWheelUntilItAwakes) {
    const auto coded = create<GXHeightPickerView>(create<NSCoder>());
    EXPECT_FALSE(coded->dataSource().lock());
    EXPECT_EQ(coded->numberOfComponents(), 0);
    coded->setIsMetric(true);
    coded->setHeightInCm(170);
    coded->awakeFromNib();
    EXPECT_EQ(coded->numberOfComponents(), 2);
    EXPECT_EQ(coded->tintColor(), UIColor::blackColor());
}

// Rows

TEST_F(MetricHeightPicker, ItShowsCentimetresAndAUnit) {
    EXPECT_EQ(picker->numberOfComponents(), 2);
    EXPECT_EQ(rows(0), 101);
    EXPECT_EQ(title(0, 0), "120");
    EXPECT_EQ(title(100, 0), "220");
    EXPECT_EQ(rows(1), 2);
    EXPECT_EQ(title(0, 1), "cm");
    EXPECT_EQ(title(1, 1), "ft");
    EXPECT_EQ(picker->rowSizeForComponent(0), (CGSize{100, 40}));
    EXPECT_EQ(picker->rowSizeForComponent(1), (CGSize{60, 40}));
}

TEST_F(HeightPicker, ItShowsFeetInchesAndAUnit) {
    EXPECT_EQ(picker->numberOfComponents(), 3);
    EXPECT_EQ(rows(0), 3);
    EXPECT_EQ(title(0, 0), "4'");
    EXPECT_EQ(title(2, 0), "6'");
    EXPECT_EQ(rows(1), 12);
    EXPECT_EQ(title(0, 1), "0\"");
    EXPECT_EQ(title(11, 1), "11\"");
    EXPECT_EQ(rows(2), 2);
    EXPECT_EQ(title(0, 2), "cm");
    EXPECT_EQ(title(1, 2), "ft");
    for (const NSInteger component : {0, 1, 2}) EXPECT_EQ(picker->rowSizeForComponent(component), (CGSize{60, 40}));
}

TEST_F(HeightPicker, ColumnsThatDoNotExistAreLikeTheUnits) {
    for (const bool isMetric : {true, false}) {
        picker->setIsMetric(isMetric);
        for (const NSInteger component : {-1, 3, 4, 5, 6, 7}) {
            EXPECT_EQ(picker->pickerView_numberOfRowsInComponent(picker, component), 2);
            EXPECT_EQ(picker->pickerView_widthForComponent(picker, component), 60.0);
            EXPECT_EQ(picker->pickerView_rowHeightForComponent(picker, component), 40.0);
            EXPECT_EQ(title(0, component), "cm");
            EXPECT_EQ(title(1, component), "ft");
            EXPECT_EQ(title(-1, component), "ft");
        }
    }
    EXPECT_EQ(picker->pickerView_numberOfRowsInComponent(picker, 2), 2);
}

TEST_F(HeightPicker, TitlesAreColouredByTheTintAndNothingElse) {
    const auto styled = picker->pickerView_attributedTitleForRow_forComponent(picker, 1, 0);
    EXPECT_EQ(styled->string(), "5'");
    EXPECT_EQ(styled->attributes().foregroundColor, UIColor::blackColor());
    EXPECT_FALSE(styled->attributes().font);
    EXPECT_EQ(picker->pickerView_titleForRow_forComponent(picker, 1, 0), std::nullopt) << "there are no plain titles";
    picker->setTintColor(UIColor::whiteColor());
    EXPECT_EQ(picker->styleString("x")->attributes().foregroundColor, UIColor::whiteColor());
    EXPECT_FALSE(picker->styleString(std::nullopt));
}

TEST_F(HeightPicker, ANewTintShowsOnTheRowsInSight) {
    const auto colour = [&] {
        return castTo<UILabel>(picker->viewForRow_forComponent(0, 0))->attributedText()->attributes().foregroundColor;
    };
    EXPECT_EQ(colour(), UIColor::blackColor());
    picker->setTintColor(UIColor::whiteColor());
    EXPECT_EQ(colour(), UIColor::whiteColor());
    const auto above = create<UIView>(CGRectMake(0, 0, 320, 216));
    above->addSubview(picker);
    picker->setTintColor(std::nullopt);
    above->setTintColor(UIColor::clearColor());
    EXPECT_EQ(colour(), UIColor::clearColor()) << "handed down from above";
}

TEST(HeightPickerTitles, OnlyTheUnitsAreLocalised) {
    struct Noted : GXLocalization {
        std::optional<std::string> localizedStringWithKey_comment(const std::string& key, const std::string& comment) const override {
            if (key == "ft") return std::nullopt;
            return key + "|" + comment;
        }
    };
    const auto picker = create<GXHeightPickerView>(CGRectMake(0, 0, 320, 216));
    GXLocalization::setSharedLocalization(create<Noted>());
    EXPECT_EQ(picker->pickerView_attributedTitleForRow_forComponent(picker, 0, 2)->string(), "cm|unit cm (centimeter)");
    EXPECT_FALSE(picker->pickerView_attributedTitleForRow_forComponent(picker, 1, 2)) << "no text, no title";
    EXPECT_EQ(picker->pickerView_attributedTitleForRow_forComponent(picker, 0, 0)->string(), "4'");
    GXLocalization::setSharedLocalization(nullptr);
}

// From the height to the rows

TEST_F(MetricHeightPicker, ItSelectsWholeCentimetresAndHandsRowsBeyondTheEndsOn) {
    EXPECT_EQ(rowsOf(175.6), (Calls{"select 55 in 0"}));
    EXPECT_EQ(shown(0), "175");
    EXPECT_EQ(rowsOf(120), (Calls{"select 0 in 0"}));
    EXPECT_EQ(rowsOf(119.1), (Calls{"select 0 in 0"})) << "cut off toward 120";
    EXPECT_EQ(rowsOf(119), (Calls{"select -1 in 0"}));
    EXPECT_EQ(rowsOf(0.5), (Calls{"select -119 in 0"}));
    EXPECT_EQ(rowsOf(220.9), (Calls{"select 100 in 0"}));
    EXPECT_EQ(rowsOf(221), (Calls{"select 101 in 0"}));
    EXPECT_EQ(shown(0), "220");
    EXPECT_EQ(picker->heightInCm(), 221);
}

TEST_F(MetricHeightPicker, WithoutAHeightItShows180AndStoresNone) {
    for (const double height : {0.0, -1.0, -infinity}) {
        EXPECT_EQ(rowsOf(height), (Calls{"select 60 in 0"}));
        EXPECT_EQ(picker->heightInCm(), height);
    }
    EXPECT_EQ(rowsOf(notANumber), (Calls{"select 60 in 0"}));
    EXPECT_EQ(shown(0), "180");
}

TEST_F(MetricHeightPicker, AnInfiniteHeightAsksForTheFurthestRow) {
    EXPECT_EQ(rowsOf(infinity), (Calls{"select 9223372036854775807 in 0"}));
    EXPECT_EQ(shown(0), "220");
}

TEST_F(HeightPicker, Below120CentimetresItShows5Feet10InchesAndStoresWhatWasGiven) {
    for (const double height : {0.0, 100.0, 119.99, -1.0, -infinity}) {
        EXPECT_EQ(rowsOf(height), (Calls{"select 1 in 0", "select 10 in 1"}));
        EXPECT_EQ(picker->heightInCm(), height);
    }
    EXPECT_EQ(rowsOf(notANumber), (Calls{"select 1 in 0", "select 10 in 1"}));
    EXPECT_EQ(shown(0), "5'");
    EXPECT_EQ(shown(1), "10\"");
}

TEST_F(HeightPicker, From120CentimetresTo4FeetItShows4Feet) {
    for (const double height : {120.0, 121.0, 121.91}) {
        EXPECT_EQ(rowsOf(height), (Calls{"select 0 in 0", "select 0 in 1"}));
    }
}

TEST_F(HeightPicker, From4FeetItShowsWholeFeetAndTheNearestInch) {
    EXPECT_EQ(rowsOf(121.92), (Calls{"select 0 in 0", "select 0 in 1"}));
    EXPECT_EQ(rowsOf(152.4), (Calls{"select 1 in 0", "select 0 in 1"}));
    EXPECT_EQ(rowsOf(180), (Calls{"select 1 in 0", "select 11 in 1"}));
    EXPECT_EQ(rowsOf(181.6), (Calls{"select 1 in 0", "select 11 in 1"})); // 11.496 inches
    EXPECT_EQ(rowsOf(182.88), (Calls{"select 2 in 0", "select 0 in 1"}));
    EXPECT_EQ(rowsOf(212), (Calls{"select 2 in 0", "select 11 in 1"})); // 11.46 inches
}

TEST_F(HeightPicker, ARemainderThatRoundsTo12InchesIsNotCarried) {
    EXPECT_EQ(rowsOf(151.2), (Calls{"select 0 in 0", "select 12 in 1"}));
    EXPECT_EQ(rowsOf(182), (Calls{"select 1 in 0", "select 12 in 1"}));
    EXPECT_EQ(shown(0), "5'");
    EXPECT_EQ(shown(1), "11\"");
    EXPECT_EQ(rowsOf(213), (Calls{"select 2 in 0", "select 12 in 1"}));
}

TEST_F(HeightPicker, From7FeetItShows6Feet11Inches) {
    for (const double height : {213.36, 250.0, 1e300, infinity}) {
        EXPECT_EQ(rowsOf(height), (Calls{"select 2 in 0", "select 11 in 1"}));
    }
}

// Reloading

TEST_F(MetricHeightPicker, ValuesAreSelectedBeforeTheReloadAndTheUnitInALaterPass) {
    EXPECT_EQ(callsOf([&] { picker->setHeightInCm(170); }), (Calls{"select 50 in 0", "reload"}));
    EXPECT_EQ(callsOf([&] { picker->setHeightInCm(170); }), (Calls{"select 50 in 0", "reload"})) << "also the same height";
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(true); }), (Calls{"select 50 in 0", "reload"})) << "also the same unit";
    EXPECT_EQ(callsOf(pass), (Calls{"select 0 in 1", "select 0 in 1", "select 0 in 1", "select 0 in 1"})) << "one for each reload";
    EXPECT_EQ(callsOf(pass), Calls{});
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(HeightPicker, EachSecondStageSelectsTheUnitOfItsMoment) {
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(true); }), (Calls{"select 60 in 0", "reload"}));
    EXPECT_EQ(callsOf([&] { picker->setIsMetric(false); }), (Calls{"select 1 in 0", "select 10 in 1", "reload"}));
    EXPECT_EQ(callsOf(pass), (Calls{"select 1 in 2", "select 1 in 2"}));
    EXPECT_EQ(shown(2), "ft");
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(HeightPicker, RowsSelectedOnTheOldColumnsAppearWithTheNewOnes) {
    picker->setHeightInCm(175);
    pass();
    EXPECT_EQ(shown(0) + shown(1) + shown(2), "5'9\"ft");
    picker->setIsMetric(true);
    EXPECT_EQ(shown(0), "175");
    EXPECT_EQ(shown(1), "ft") << "still the inches' row, held to the two units";
    pass();
    EXPECT_EQ(shown(1), "cm");
    picker->setIsMetric(false);
    EXPECT_EQ(shown(0) + shown(1), "5'9\"");
    pass();
    EXPECT_EQ(shown(2), "ft");
    EXPECT_EQ(picker->heightInCm(), 175);
}

TEST_F(HeightPicker, ASecondStageDoesNotKeepThePicker) {
    picker->setHeightInCm(175);
    const WeakRef<GXHeightPickerView> weak = picker;
    picker = nullptr;
    EXPECT_TRUE(weak.expired());
    EXPECT_TRUE(NSRunLoop::mainRunLoop()->hasWork());
    pass();
}
