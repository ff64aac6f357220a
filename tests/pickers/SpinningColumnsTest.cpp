// One column turns while another still spins: both values end as the rules give them, each told
// once.

#include "GXDistancePickerView.h"
#include "GXDurationPickerView.h"
#include "GXHeartRatePickerView.h"
#include "GXHeightPickerView.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXWeightPickerView.h"
#include "PickerNotices.h"
#include "PickerTest.h"
#include "TestWindow.h"

using namespace gx;

namespace {

CGPoint middleOf(UIPickerView& wheel, NSInteger component) {
    const Ref<UIView> view = wheel.viewForRow_forComponent(wheel.selectedRowInComponent(component), component);
    return {CGRectGetMidX(wheel.convertRect_fromView(view->bounds(), view)), 108};
}

/// Flings one column, over 21 rows if it has them: 94 points of way and 1500 points a second, which
/// run 749.25 points, in rows of 40.
void spin(TestWindow& window, UIPickerView& wheel, NSInteger component) {
    const CGPoint from = {middleOf(wheel, component).x, 150};
    window.fling(from, {from.x, 50}, 4);
    window.run(0.2);
    ASSERT_TRUE(wheel.isTurning());
}

/// Turns the other column by one row a notch meanwhile, and waits until all is still.
void turnMeanwhile(TestWindow& window, UIPickerView& wheel, NSInteger component, double notches) {
    window.scrollNotches(middleOf(wheel, component), notches);
    window.run(0.2);
    EXPECT_TRUE(wheel.isTurning()) << "the first column still spins when the second has landed";
    window.runUntilStill();
}

template <class Picker>
struct Spinning : testing::Test {
    Spinning() { picker->setDelegate(notices); }
    std::vector<double> told() const {
        std::vector<double> values;
        for (const auto& notice : notices->list) values.push_back(notice.value.doubleValue());
        return values;
    }
    void turnBoth(NSInteger spinning, NSInteger turned, double notches) {
        TestWindow window(picker);
        spin(window, *picker->pickerView(), spinning);
        turnMeanwhile(window, *picker->pickerView(), turned, notches);
    }

    Ref<Picker> picker = create<Picker>(CGRectMake(0, 0, 320, 216));
    Ref<PickerNotices> notices = create<PickerNotices>();
};

using SpinningDistance = Spinning<GXDistancePickerView>;
using SpinningDuration = Spinning<GXDurationPickerView>;
using SpinningPace = Spinning<GXPacePickerView>;
using SpinningSpeed = Spinning<GXSpeedPickerView>;
using SpinningHeartRate = Spinning<GXHeartRatePickerView>;
using SpinningWeight = Spinning<GXWeightPickerView>;
using Values = std::vector<double>;

} // namespace

TEST_F(SpinningDistance, TheWholeKilometresLandWhileTheTenthsSpin) {
    picker->setIsMetric(true);
    turnBoth(2, 0, 2); // 5.0 km: the kilometres to 7, the tenths to their last
    EXPECT_EQ(told(), (Values{7000, 7900}));
}

TEST_F(SpinningDistance, TheTenthsLandWhileTheWholeKilometresSpin) {
    picker->setIsMetric(true);
    turnBoth(0, 2, 3);
    EXPECT_EQ(told(), (Values{5300, 26300}));
}

TEST_F(SpinningDuration, TheHoursLandWhileTheMinutesSpin) {
    turnBoth(2, 0, 1); // 0:05: the hours to 1, the minutes to 5 + 21
    EXPECT_EQ(told(), (Values{3900000, 5160000}));
}

TEST_F(SpinningDuration, TheMinutesLandWhileTheSecondsSpin) {
    picker->setType(1);
    turnBoth(4, 2, 1); // the minutes to 6, the seconds to 55
    EXPECT_EQ(told(), (Values{360000, 415000}));
}

TEST_F(SpinningPace, TheSecondsLandWhileTheMinutesSpin) {
    picker->setIsMetric(true);
    picker->setCurrentValue(boxedDouble(1000.0 / 300)); // 5:00 per kilometre
    turnBoth(0, 2, 3);                                  // 5:15, then 26:15
    ASSERT_EQ(told().size(), 2U);
    EXPECT_DOUBLE_EQ(told()[0], 1000.0 / 315);
    EXPECT_DOUBLE_EQ(told()[1], 1000.0 / 1575);
}

TEST_F(SpinningSpeed, TheTenthsLandWhileTheWholeNumberSpins) {
    picker->setIsMetric(true);
    turnBoth(0, 2, 5); // 10.5, then 31.5 km/h
    ASSERT_EQ(told().size(), 2U);
    EXPECT_DOUBLE_EQ(told()[0], 10.5 * 0.277777778);
    EXPECT_DOUBLE_EQ(told()[1], 31.5 * 0.277777778);
}

TEST_F(SpinningHeartRate, TheAverageLandsWhileTheMaximumSpins) {
    turnBoth(2, 0, 5); // 125 below 160; then 181 above 125
    EXPECT_EQ(told(), (Values{160, 125, 181, 125}));
}

TEST_F(SpinningHeartRate, AnAverageThatNeedsRoomTakesTheMaximumFromTheUsersHand) {
    // 170 asks for 171, another row than the 160 that the maximum reports: its movement is over
    turnBoth(2, 0, 50);
    EXPECT_EQ(told(), (Values{171, 170}));
    EXPECT_EQ(picker->pickerView()->selectedRowInComponent(2), 171 - 25);
}

TEST_F(SpinningWeight, TheTenthsLandWhileTheKilogramsSpin) {
    picker->setCurrentValue(boxedDouble(72));
    turnBoth(0, 2, 4);
    EXPECT_EQ(told(), (Values{72.4, 93.4}));
}

TEST(SpinningHeight, TheFeetLandWhileTheInchesSpin) {
    struct Heights : NSObject, GXHeightPickerViewDelegate {
        std::vector<double> told;
        void heightPickerView_didSelectHeightInCm_metric(const Ref<GXHeightPickerView>&, CGFloat height, bool) override {
            told.push_back(height);
        }
    };
    const auto picker = create<GXHeightPickerView>(CGRectMake(0, 0, 320, 216));
    const auto heights = create<Heights>();
    picker->setHeightDelegate(heights);
    picker->setHeightInCm(150); // 4 feet 11 inches
    NSRunLoop::mainRunLoop()->runPass();
    TestWindow window(picker);
    const CGPoint inches = middleOf(*picker, 1);
    window.fling({inches.x, 50}, {inches.x, 150}, 4); // down to 0 inches
    window.run(0.1);
    turnMeanwhile(window, *picker, 0, 1);
    NSRunLoop::mainRunLoop()->runPass();
    // 5 · 30.48 + 11 · 2.54, then 5 · 30.48 + 0 · 2.54, in single precision.
    EXPECT_EQ(heights->told, (Values{double{5 * 30.48F + 11 * 2.54F}, double{5 * 30.48F}}));
}
