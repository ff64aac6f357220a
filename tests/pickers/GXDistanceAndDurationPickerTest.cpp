#include <algorithm>

#include "DistanceAndDurationTest.h"
#include "RecordingCanvas.h"

using namespace gx;

// Construction

TEST_F(DistanceAndDuration, ItHasTwoPickersAndNoWheelOfItsOwn) {
    EXPECT_FALSE(picker->pickerView());
    EXPECT_TRUE(picker->constraints().empty());
    EXPECT_EQ(picker->subviews(), (std::vector<Ref<UIView>>{picker->distancePicker(), picker->durationPicker()}));
    EXPECT_EQ(picker->distancePicker()->currentValue().intValue(), 5000);
    EXPECT_EQ(picker->durationPicker()->currentValue().intValue(), 300000);
}

TEST_F(DistanceAndDuration, TheInnerPickersReportToItAtFirst) {
    const Ref<GXBasePickerViewDelegate> itself = picker;
    EXPECT_EQ(picker->distancePicker()->delegate().lock(), itself);
    EXPECT_EQ(picker->durationPicker()->delegate().lock(), itself);
    EXPECT_FALSE(picker->delegate().lock());
}

TEST(DistanceAndDurationConstruction, OneFromACoderIsSetUpAlike) {
    const auto coder = create<NSCoder>();
    coder->encodeCGRect_forKey(CGRectMake(7, 8, 320, 216), "frame");
    const auto restored = create<GXDistanceAndDurationPicker>(coder);
    EXPECT_EQ(restored->distancePicker()->frame(), CGRectMake(0, 0, 165, 216));
    EXPECT_EQ(restored->durationPicker()->frame(), CGRectMake(140, 0, 180, 216));
    EXPECT_FALSE(restored->pickerView());
    const auto bare = create<GXDistanceAndDurationPicker>(create<NSCoder>());
    EXPECT_EQ(bare->distancePicker()->frame(), CGRectMake(0, 0, 5, 0));
    EXPECT_EQ(bare->durationPicker()->frame(), CGRectMake(-20, 0, 20, 0));
}

TEST(DistanceAndDurationConstruction, OneMadeWithARowHeightHasNoInnerPickers) {
    const auto bare = create<GXDistanceAndDurationPicker>(upright, 60.0F);
    ASSERT_TRUE(bare);
    EXPECT_FALSE(bare->distancePicker());
    EXPECT_FALSE(bare->durationPicker());
    EXPECT_TRUE(bare->subviews().empty());
    expectEveryOperationIsSafe(bare);
    EXPECT_EQ(create<GXDistanceAndDurationPicker>(upright, 60.0F)->pickerView_rowHeightForComponent(nullptr, 0), 60);
}

TEST(DistanceAndDurationConstruction, AnApplicationsWheelComesUnderTheInnerPickers) {
    RecordingWheel::install();
    const auto made = create<GXDistanceAndDurationPicker>(upright);
    RecordingWheel::uninstall();
    EXPECT_EQ(RecordingWheel::under(made->distancePicker()).rightLabelText(), "mi");
    RecordingWheel& wheel = RecordingWheel::under(made->durationPicker());
    wheel.takeCalls();
    made->setIsMetric(true);
    EXPECT_EQ(wheel.takeCalls(), Calls{}) << "the duration only stores the unit system";
    EXPECT_EQ(RecordingWheel::under(made->distancePicker()).rightLabelText(), "km");
}

// Frames

TEST_F(DistanceAndDuration, TheTwoOverlapAroundTheMiddleWithTheDurationOnTop) {
    expectFrames(CGRectMake(0, 0, 165, 216), CGRectMake(140, 0, 180, 216));
    EXPECT_TRUE(picker->hitTest({150, 108})->isDescendantOfView(picker->durationPicker()));
    EXPECT_TRUE(picker->hitTest({139, 108})->isDescendantOfView(picker->distancePicker()));
}

TEST_F(DistanceAndDuration, TheyFollowASelectionedScreenAndBack) {
    picker->setFrame(lying);
    expectFrames(CGRectMake(0, 0, 289, 200), CGRectMake(264, 0, 304, 200));
    picker->setFrame(upright);
    expectFrames(CGRectMake(0, 0, 165, 216), CGRectMake(140, 0, 180, 216));
    picker->setFrame(CGRectMake(40, 50, 320, 216));
    expectFrames(CGRectMake(0, 0, 165, 216), CGRectMake(140, 0, 180, 216));
}

TEST_F(DistanceAndDuration, ACompositeWithoutAPlaceKeepsTheirWidthsBeyondTheMiddle) {
    picker->setFrame(CGRectNull);
    EXPECT_EQ(picker->distancePicker()->frame(), CGRectMake(0, 0, 5, 0));
    EXPECT_EQ(picker->durationPicker()->frame(), CGRectMake(-20, 0, 20, 0));
}

// Units and numbers

TEST_F(DistanceAndDuration, TheUnitSystemGoesToBoth) {
    EXPECT_TRUE(picker->distancePicker()->isMetric());
    EXPECT_TRUE(picker->durationPicker()->isMetric());
    EXPECT_EQ(distanceWheel()->rightLabelText(), "km");
    picker->setIsMetric(false);
    EXPECT_FALSE(picker->isMetric());
    EXPECT_FALSE(picker->distancePicker()->isMetric());
    EXPECT_FALSE(picker->durationPicker()->isMetric());
    EXPECT_EQ(distanceWheel()->rightLabelText(), "mi");
}

TEST_F(DistanceAndDuration, TheSameFlagReachesAnInnerPickerThatDiffers) {
    picker->distancePicker()->setIsMetric(false);
    picker->setIsMetric(true);
    EXPECT_TRUE(picker->distancePicker()->isMetric());
}

TEST_F(DistanceAndDuration, ItsOwnNumbersShowNothing) {
    picker->setMinValue(boxed(9000));
    picker->setMaxValue(boxed(9001));
    picker->setStepSize(boxed(7));
    picker->setCurrentValue(boxed(12));
    EXPECT_EQ(picker->minValue().intValue(), 9000);
    EXPECT_EQ(picker->distancePicker()->minValue().intValue(), 0);
    EXPECT_EQ(picker->distancePicker()->maxValue().intValue(), 300000);
    EXPECT_EQ(distanceWheel()->selectedRowInComponent(0), 5);
    EXPECT_EQ(durationWheel()->selectedRowInComponent(2), 5);
}

TEST_F(DistanceAndDuration, EveryOperationIsSafe) {
    expectEveryOperationIsSafe(create<GXDistanceAndDurationPicker>(upright));
    expectEveryOperationIsSafe(create<GXDistanceAndDurationPicker>(Ref<NSCoder>()));
    const auto cleared = create<GXDistanceAndDurationPicker>(upright);
    cleared->setDistancePicker(nullptr);
    cleared->setDurationPicker(nullptr);
    expectEveryOperationIsSafe(cleared);
}
