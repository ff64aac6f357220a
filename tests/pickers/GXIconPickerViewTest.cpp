#include "GXIconPickerView.h"
#include "CastTo.h"

#include <limits>

#include "FingerTurn.h"
#include "IconImages.h"
#include "PickerTest.h"
#include "UIImageView.h"
#include "UILabel.h"

using namespace gx;

namespace {

constexpr NSInteger highest = std::numeric_limits<NSInteger>::max();
constexpr NSInteger lowest = std::numeric_limits<NSInteger>::min();

struct IconPicker : PickerTest<GXIconPickerView> {
    /// What a row in sight shows.
    Ref<UIImage> imageInRow(NSInteger row) {
        const auto view = castTo<UIImageView>(wheel().viewForRow_forComponent(row, 0));
        EXPECT_TRUE(view) << row << " is not in sight";
        return view ? view->image() : nullptr;
    }
    /// A view for a row, as a delegate is asked for it.
    Ref<UIImageView> viewForRow(NSInteger row, const Ref<UIView>& offered = nullptr) {
        return castTo<UIImageView>(picker->pickerView_viewForRow_forComponent_reusingView(picker->pickerView(), row, 0, offered));
    }
};

struct FiveIcons : IconPicker {
    FiveIcons() { picker->setIconImages(images); }
    const Ref<const GXIconPickerView::Images> images = iconImages(5);
};

} // namespace

// Construction

TEST_F(IconPicker, AFreshOneHasAnEmptyListAndNoRows) {
    EXPECT_EQ(wheel().takeCalls(), (Calls{"delegate", "data source", "reload"}));
    ASSERT_TRUE(picker->iconImages());
    EXPECT_TRUE(picker->iconImages()->empty());
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(selected(), 0);
    EXPECT_EQ(picker->maxValue().intValue(), 100) << "the base's range is left as it is";
}

TEST(IconPickerConstruction, OneFromACoderHasAnEmptyListToo) {
    const auto coded = create<GXIconPickerView>(create<NSCoder>());
    ASSERT_TRUE(coded->iconImages());
    EXPECT_TRUE(coded->iconImages()->empty());
}

TEST(IconPickerConstruction, OneMadeWithARowHeightHasNoListWhichCountsAsNoImages) {
    const auto high = create<GXIconPickerView>(CGRectMake(0, 0, 320, 216), 60.5F);
    EXPECT_FALSE(high->iconImages());
    EXPECT_EQ(high->pickerView()->numberOfRowsInComponent(0), 0);
    EXPECT_EQ(high->pickerView_rowHeightForComponent(nullptr, 0), 60.5);
    const auto view = high->pickerView_viewForRow_forComponent_reusingView(nullptr, 0, 0, nullptr);
    EXPECT_FALSE(castTo<UIImageView>(view)->image());
    high->setIconImages(iconImages(2));
    EXPECT_EQ(high->pickerView()->numberOfRowsInComponent(0), 2);
    high->setIconImages(nullptr);
    EXPECT_EQ(high->pickerView()->numberOfRowsInComponent(0), 0);
}

// Rows

TEST_F(FiveIcons, EachImageHasARowInOneColumnWithoutTitles) {
    EXPECT_EQ(wheel().numberOfComponents(), 1);
    EXPECT_EQ(rows(), 5);
    EXPECT_EQ(picker->pickerView_numberOfRowsInComponent(nullptr, 7), 5) << "whatever the component";
    EXPECT_EQ(title(0), std::nullopt);
    EXPECT_EQ(title(4, 1), std::nullopt);
    picker->setCurrentValue(boxed(2));
    for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(imageInRow(static_cast<NSInteger>(i)), images->at(i));
}

TEST_F(FiveIcons, TheMinimumHidesTheImagesBeforeIt) {
    picker->setMinValue(boxedDouble(2.9)); // its integer part
    EXPECT_EQ(rows(), 3);
    EXPECT_EQ(imageInRow(0), images->at(2));
    EXPECT_EQ(imageInRow(2), images->at(4));
    turn(0);
    EXPECT_EQ(picker->currentValue().integerValue(), 2);
    EXPECT_EQ(notices->list.at(0).value.integerValue(), 2);
}

TEST_F(FiveIcons, AMinimumBeyondTheListAsksForANegativeCountAndShowsNoRows) {
    for (const auto& [minimum, count] : {std::pair(4, 1), {5, 0}, {6, -1}, {8, -3}}) {
        picker->setMinValue(boxed(minimum));
        EXPECT_EQ(picker->pickerView_numberOfRowsInComponent(nullptr, 0), count);
        EXPECT_EQ(rows(), std::max(count, 0));
    }
}

TEST_F(FiveIcons, ANegativeMinimumBringsRowsWithoutAnImageBeforeTheFirst) {
    picker->setMinValue(boxed(-2));
    EXPECT_EQ(rows(), 7);
    picker->setCurrentValue(boxed(-2));
    EXPECT_EQ(selected(), 0);
    EXPECT_FALSE(imageInRow(0));
    EXPECT_FALSE(imageInRow(1));
    EXPECT_EQ(imageInRow(2), images->at(0));
}

TEST_F(FiveIcons, RowsOutOfTheListShowNoImage) {
    for (const NSInteger row : {lowest, NSInteger{-1}, NSInteger{5}, highest}) EXPECT_FALSE(viewForRow(row)->image()) << row;
    EXPECT_EQ(viewForRow(4)->image(), images->at(4));
    picker->setMinValue(boxedInteger(highest));
    EXPECT_FALSE(viewForRow(1)->image()) << "the sum wraps to the lowest number";
    EXPECT_EQ(viewForRow(lowest + 1)->image(), images->at(0)) << "and this one to 0";
}

TEST_F(FiveIcons, ExtremeNumbersNeverLeaveTheWheelWithoutItsRows) {
    const std::vector<NSNumber> numbers{boxedInteger(lowest), boxedInteger(highest), boxedDouble(std::numeric_limits<double>::quiet_NaN()),
                                        NSNumber(), boxedInteger(-1)};
    for (const NSNumber& minimum : numbers) {
        picker->setMinValue(minimum);
        for (const NSNumber& other : numbers) {
            picker->setStepSize(other);
            picker->setMaxValue(other);
            picker->setCurrentValue(other);
            EXPECT_GE(rows(), 0);
            EXPECT_GE(selected(), 0);
            turn(rows() - 1);
        }
    }
    // -1 is an integer again: image -1 and all five.
    EXPECT_EQ(rows(), 6);
}

TEST_F(FiveIcons, AnEmptyEntryShowsNothing) {
    picker->setIconImages(std::make_shared<const GXIconPickerView::Images>(2));
    EXPECT_EQ(rows(), 2);
    EXPECT_FALSE(imageInRow(0));
}

// Row views

TEST_F(FiveIcons, ANewRowViewHasTheRowsSizeAndKeepsTheImagesShape) {
    const auto view = viewForRow(1);
    ASSERT_TRUE(view);
    EXPECT_EQ(view->frame(), CGRectMake(0, 0, 320, 40));
    EXPECT_EQ(view->contentMode(), UIViewContentModeScaleAspectFit);
    EXPECT_EQ(view->image(), images->at(1));
}

TEST_F(FiveIcons, AnOfferedImageViewIsUsedAsItIs) {
    const auto offered = create<UIImageView>(CGRectMake(1, 2, 3, 4));
    offered->setContentMode(UIViewContentModeCenter);
    EXPECT_EQ(viewForRow(3, offered), offered);
    EXPECT_EQ(offered->image(), images->at(3));
    EXPECT_EQ(offered->frame(), CGRectMake(1, 2, 3, 4));
    EXPECT_EQ(offered->contentMode(), UIViewContentModeCenter);
    EXPECT_EQ(viewForRow(5, offered)->image(), nullptr) << "nothing is left of the row before";
}

TEST_F(FiveIcons, AnOfferedViewOfAnotherKindIsLeftAlone) {
    const auto label = create<UILabel>(CGRectZero);
    const auto view = viewForRow(3, label);
    ASSERT_TRUE(view);
    EXPECT_EQ(view->image(), images->at(3));
}

TEST_F(FiveIcons, TheColumnIsAsWideAsThePickersOwnWheel) {
    EXPECT_EQ(picker->pickerView_widthForComponent(picker->pickerView(), 0), 320);
    EXPECT_EQ(picker->pickerView_widthForComponent(nullptr, 7), 320);
    const auto asking = create<UIPickerView>(CGRectMake(0, 0, 100, 100));
    EXPECT_EQ(picker->pickerView_widthForComponent(asking, 0), 320);
    picker->setFrame(CGRectMake(0, 0, 568, 200));
    picker->layoutIfNeeded();
    EXPECT_EQ(picker->pickerView_widthForComponent(nullptr, 0), 568);
    EXPECT_EQ(wheel().rowSizeForComponent(0), (CGSize{568, 40}));
}

// The list

TEST_F(FiveIcons, TheListThatIsHeldDoesNothingAndAnEqualOneReloads) {
    EXPECT_EQ(callsOf([&] { picker->setIconImages(images); }), Calls{});
    const auto equal = std::make_shared<const GXIconPickerView::Images>(*images);
    EXPECT_EQ(callsOf([&] { picker->setIconImages(equal); }), (Calls{"reload"}));
    EXPECT_EQ(picker->iconImages(), equal);
}

TEST_F(FiveIcons, RowsInSightShowTheNewImagesAndTheSelectionStays) {
    picker->setCurrentValue(boxed(3));
    const auto others = iconImages(6);
    picker->setIconImages(others);
    EXPECT_EQ(selected(), 3);
    EXPECT_EQ(picker->currentValue().intValue(), 3);
    EXPECT_EQ(imageInRow(3), others->at(3));
    EXPECT_EQ(imageInRow(5), others->at(5));
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(FiveIcons, AShorterListShowsItsLastRowUntilALongerOneBringsTheRequestedRowBack) {
    picker->setCurrentValue(boxed(4));
    picker->setIconImages(iconImages(2));
    EXPECT_EQ(selected(), 1);
    EXPECT_EQ(picker->currentValue().intValue(), 4);
    picker->setIconImages(images);
    EXPECT_EQ(selected(), 4);
}

// The value

TEST_F(FiveIcons, ASelectionStoresTheIndexAndTellsTheDelegate) {
    turn(3);
    EXPECT_EQ(picker->currentValue().integerValue(), 3);
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].picker, picker);
    EXPECT_EQ(notices->list[0].value.integerValue(), 3);
    EXPECT_EQ(notices->list[0].component, 0);
}

TEST_F(FiveIcons, ValuesFollowTheStepAndTheMaximumPlaysNoPart) {
    picker->setMaxValue(boxed(1));
    EXPECT_EQ(rows(), 5);
    picker->setMinValue(boxed(1));
    picker->setStepSize(boxed(10));
    EXPECT_EQ(rows(), 4);
    turn(3);
    EXPECT_EQ(picker->currentValue().integerValue(), 31);
}

TEST_F(FiveIcons, AFingerTurnsIt) {
    TestWindow window(picker);
    turnOneRow(window, picker->pickerView(), 0);
    ASSERT_EQ(notices->list.size(), 1U);
    EXPECT_EQ(notices->list[0].value.integerValue(), 1);
}

TEST_F(FiveIcons, TheDelegateMayReplaceTheListAndDropThePicker) {
    const WeakRef<GXBasePickerView> weak = picker;
    const Ref<GXMultiValuePickerView> kept = picker->pickerView();
    notices->whenTold = [&](const PickerNotices::Notice&) {
        picker->setIconImages(nullptr);
        picker = nullptr;
        notices->list.clear();
    };
    kept->turnToRow_inComponent(2, 0);
    EXPECT_TRUE(weak.expired());
}

TEST_F(FiveIcons, WithoutAWheelEveryOperationIsSafe) {
    picker->setPickerView(nullptr);
    EXPECT_EQ(picker->pickerView_widthForComponent(nullptr, 0), 0);
    const auto view = viewForRow(1);
    EXPECT_EQ(view->frame(), CGRectZero);
    EXPECT_EQ(view->image(), images->at(1));
    picker->setIconImages(iconImages(2));
    picker->setCurrentValue(boxed(1));
    EXPECT_EQ(picker->pickerView_numberOfRowsInComponent(nullptr, 0), 2);
}
