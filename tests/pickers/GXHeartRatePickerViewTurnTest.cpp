#include <limits>

#include "GXHeartRatePickerView.h"
#include "PickerTest.h"
#include "TestWindow.h"

using namespace gx;

namespace {

constexpr NSInteger average = 0;
constexpr NSInteger spacer = 1;
constexpr NSInteger maximum = 2;
constexpr NSInteger highest = std::numeric_limits<NSInteger>::max();
constexpr NSInteger lowest = std::numeric_limits<NSInteger>::min();

/// Value and component of each notice.
using Told = std::vector<std::pair<NSInteger, NSInteger>>;

struct HeartRateTurns : PickerTest<GXHeartRatePickerView> {
    NSInteger avg() const { return picker->currentAvgHeartRate().integerValue(); }
    NSInteger max() const { return picker->currentMaxHeartRate().integerValue(); }
    void setRates(int avg, int max) {
        picker->setCurrentAvgHeartRate(boxed(avg));
        picker->setCurrentMaxHeartRate(boxed(max));
    }
    /// To a rate of the range from 25 on.
    Calls turnTo(NSInteger rate, NSInteger component) { return turn(rate - 25, component); }
    Told told() {
        Told told;
        for (const auto& notice : notices->list) told.emplace_back(notice.value.integerValue(), notice.component);
        notices->list.clear();
        return told;
    }
};

} // namespace

// What is told

TEST_F(HeartRateTurns, BothRatesAreToldTheMaximumFirstAsComponent1ThenTheAverageAs0) {
    EXPECT_EQ(turnTo(130, average), (Calls{"select 105 in 0 animated"}));
    EXPECT_EQ(told(), (Told{{160, 1}, {130, 0}}));
    EXPECT_EQ(turnTo(170, maximum), (Calls{"select 145 in 2 animated"}));
    EXPECT_EQ(told(), (Told{{170, 1}, {130, 0}}));
    EXPECT_EQ(picker->currentAvgHeartRate().type(), NSNumber::Type::Integer);
    EXPECT_EQ(picker->currentMaxHeartRate().type(), NSNumber::Type::Integer);
}

TEST_F(HeartRateTurns, BothAreToldAlsoIfNothingHasChanged) {
    turnTo(120, average);
    EXPECT_EQ(told(), (Told{{160, 1}, {120, 0}}));
}

TEST_F(HeartRateTurns, ASelectionInAnyOtherColumnChangesNothingAndTellsNobody) {
    EXPECT_EQ(turn(7, spacer), Calls{});
    for (const NSInteger component : {-1, 1, 3, 4, 5, 6, 7}) {
        picker->pickerView_didSelectRow_inComponent(picker->pickerView(), 9, component);
    }
    EXPECT_EQ(told(), Told{});
    EXPECT_EQ(avg(), 120);
    EXPECT_EQ(max(), 160);
}

// The gap, with the average turned

TEST_F(HeartRateTurns, AnAverageThatComesTooNearPushesTheMaximumUpToExactlyTheGap) {
    setRates(120, 140);
    EXPECT_EQ(turnTo(139, average), (Calls{"select 114 in 0 animated"})) << "139 and 140 are a gap of 1";
    EXPECT_EQ(turnTo(140, average), (Calls{"select 115 in 0 animated", "select 116 in 2 animated"}));
    EXPECT_EQ(max(), 141);
    setRates(120, 140);
    told();
    turnTo(150, average);
    EXPECT_EQ(told(), (Told{{151, 1}, {150, 0}}));
    EXPECT_EQ(selectedTitle(maximum), "151");
}

TEST_F(HeartRateTurns, TheHighestAverageLeavesTheHighestMaximumAtTheDefaultGap) {
    turn(203, average);
    EXPECT_EQ(told(), (Told{{229, 1}, {228, 0}}));
}

TEST_F(HeartRateTurns, AnAverageWithoutRoomAboveItIsPushedBackDown) {
    picker->setMinimumGapBetweenAvgAndMax(boxed(5));
    EXPECT_EQ(turnTo(224, average), (Calls{"select 199 in 0 animated", "select 204 in 2 animated"}));
    EXPECT_EQ(told(), (Told{{229, 1}, {224, 0}})) << "224 + 5 is the last row";
    setRates(120, 160);
    EXPECT_EQ(turnTo(225, average), (Calls{"select 200 in 0 animated", "select 204 in 2 animated", "select 199 in 0 animated"}));
    EXPECT_EQ(told(), (Told{{229, 1}, {224, 0}})) << "225 + 5 is the top itself";
    setRates(120, 160);
    EXPECT_EQ(turnTo(226, average), (Calls{"select 201 in 0 animated", "select 204 in 2 animated", "select 199 in 0 animated"}));
    EXPECT_EQ(told(), (Told{{229, 1}, {224, 0}}));
    EXPECT_EQ(selectedTitle(average), "224");
}

TEST_F(HeartRateTurns, AnAverageOfNoValueLeavesTheMaximumAlone) {
    EXPECT_EQ(turn(0, average), (Calls{"select 0 in 0 animated"}));
    EXPECT_EQ(told(), (Told{{160, 1}, {0, 0}}));
    EXPECT_EQ(selectedTitle(average), "-");
}

TEST_F(HeartRateTurns, NoValueCountsAs0SoWithBothOnItTheGapIsReportedAsTheMaximum) {
    picker->setMinimumGapBetweenAvgAndMax(boxed(5));
    setRates(120, 25);
    EXPECT_EQ(turn(0, average), (Calls{"select 0 in 0 animated", "select 0 in 2 animated"}));
    EXPECT_EQ(told(), (Told{{5, 1}, {0, 0}}));
    EXPECT_EQ(selectedTitle(maximum), "-");
}

// The gap, with the maximum turned

TEST_F(HeartRateTurns, AMaximumThatComesTooNearPushesTheAverageDownToExactlyTheGap) {
    setRates(150, 180);
    EXPECT_EQ(turnTo(151, maximum), (Calls{"select 126 in 2 animated"})) << "150 and 151 are a gap of 1";
    EXPECT_EQ(turnTo(150, maximum), (Calls{"select 125 in 2 animated", "select 124 in 0 animated"}));
    EXPECT_EQ(avg(), 149);
    told();
    turnTo(130, maximum);
    EXPECT_EQ(told(), (Told{{130, 1}, {129, 0}}));
}

TEST_F(HeartRateTurns, AMaximumTurnedToNoValueTakesTheAverageWithIt) {
    EXPECT_EQ(turn(0, maximum), (Calls{"select 0 in 2 animated", "select 0 in 0 animated"}));
    EXPECT_EQ(told(), (Told{{0, 1}, {0, 0}}));
    EXPECT_EQ(selectedTitle(average), "-");
    EXPECT_EQ(selectedTitle(maximum), "-");
}

TEST_F(HeartRateTurns, WithTheNullRowAMaximumWithoutRoomBelowItStaysAndTheAverageHasNoValue) {
    picker->setMinimumGapBetweenAvgAndMax(boxed(5));
    turnTo(29, maximum); // 24 is below the minimum
    EXPECT_EQ(told(), (Told{{29, 1}, {0, 0}}));
    setRates(120, 160);
    turnTo(30, maximum); // 25 is the minimum, where the null row stands
    EXPECT_EQ(told(), (Told{{30, 1}, {0, 0}}));
    setRates(120, 160);
    turnTo(31, maximum);
    EXPECT_EQ(told(), (Told{{31, 1}, {26, 0}}));
}

TEST_F(HeartRateTurns, WithoutTheNullRowAMaximumWithoutRoomBelowItIsPushedBackUp) {
    picker->setMinimumGapBetweenAvgAndMax(boxed(5));
    picker->setShouldShowNullValue(false);
    EXPECT_EQ(turnTo(29, maximum), (Calls{"select 4 in 2 animated", "select 0 in 0 animated", "select 5 in 2 animated"}));
    EXPECT_EQ(told(), (Told{{30, 1}, {25, 0}}));
    setRates(120, 160);
    turnTo(25, maximum);
    EXPECT_EQ(told(), (Told{{30, 1}, {25, 0}}));
    setRates(120, 160);
    EXPECT_EQ(turnTo(30, maximum), (Calls{"select 5 in 2 animated", "select 0 in 0 animated"}));
    EXPECT_EQ(told(), (Told{{30, 1}, {25, 0}}));
}

// Odd gaps

TEST_F(HeartRateTurns, WithoutAGapTheRatesMayBeEqualAndWithANegativeOneTheyMayCross) {
    for (const NSNumber& none : {boxed(0), NSNumber(), boxedDouble(std::numeric_limits<double>::quiet_NaN()), boxedDouble(0.9)}) {
        picker->setMinimumGapBetweenAvgAndMax(none);
        setRates(120, 160);
        turnTo(160, average);
        EXPECT_EQ(told(), (Told{{160, 1}, {160, 0}}));
    }
    picker->setMinimumGapBetweenAvgAndMax(boxed(-10));
    turnTo(170, average);
    EXPECT_EQ(told(), (Told{{160, 1}, {170, 0}}));
    turnTo(171, average);
    EXPECT_EQ(told(), (Told{{161, 1}, {171, 0}}));
}

// Fingers

TEST_F(HeartRateTurns, AFingerOnTheAverageMovesTheMaximumAlongAndBothAreReportedOnce) {
    setRates(120, 121);
    TestWindow window(picker);
    window.drag({125, 108}, {125, 108 - 126}); // three rows of 40 and the slop
    window.runUntilStill();
    EXPECT_EQ(told(), (Told{{124, 1}, {123, 0}}));
    EXPECT_EQ(selectedTitle(average), "123");
    EXPECT_EQ(selectedTitle(maximum), "124");
    EXPECT_EQ(wheel().rowInSelectionIndicatorOfComponent(maximum), 99) << "it has come to rest there";
}

TEST_F(HeartRateTurns, AFingerOnTheMaximumMovesTheAverageAlong) {
    setRates(158, 160);
    TestWindow window(picker);
    window.drag({195, 108}, {195, 108 + 126});
    window.runUntilStill();
    EXPECT_EQ(told(), (Told{{157, 1}, {156, 0}}));
}

TEST_F(HeartRateTurns, AFingerCannotTurnTheSpacer) {
    TestWindow window(picker);
    window.drag({160, 108}, {160, 108 - 126});
    window.runUntilStill();
    EXPECT_EQ(told(), Told{});
    EXPECT_EQ(selected(spacer), 0);
}

// Delegates

TEST_F(HeartRateTurns, ADelegateThatDiedIsSkipped) {
    notices = nullptr;
    turnTo(170, average);
    EXPECT_EQ(max(), 171);
}

TEST_F(HeartRateTurns, RatesSetInTheFirstNoticeAreToldInTheSecond) {
    notices->whenTold = [&](const PickerNotices::Notice& notice) {
        if (notice.component == 1) setRates(70, 80);
    };
    turnTo(130, average);
    EXPECT_EQ(told(), (Told{{160, 1}, {70, 0}}));
    EXPECT_EQ(max(), 80);
}

TEST_F(HeartRateTurns, ADelegateReplacedInTheFirstNoticeDoesNotGetTheSecond) {
    const auto other = create<PickerNotices>();
    notices->whenTold = [&](const PickerNotices::Notice&) { picker->setDelegate(other); };
    turnTo(130, average);
    EXPECT_EQ(told(), (Told{{160, 1}}));
    ASSERT_EQ(other->list.size(), 1U);
    EXPECT_EQ(other->list[0].value.integerValue(), 130);
    EXPECT_EQ(other->list[0].component, 0);
}

TEST_F(HeartRateTurns, ADelegateMayDropTheLastReferenceToThePickerInItsFirstNotice) {
    const WeakRef<GXHeartRatePickerView> weak = picker;
    int count = 0;
    notices->whenTold = [&](const PickerNotices::Notice&) {
        notices->list.clear();
        picker = nullptr;
        ++count;
    };
    GXHeartRatePickerView* const called = picker.get(); // The caller holds nothing either.
    called->pickerView_didSelectRow_inComponent(nullptr, 3, average);
    EXPECT_EQ(count, 2);
    notices->list.clear();
    EXPECT_TRUE(weak.expired());
}

TEST_F(HeartRateTurns, ItsOwnProtocolIsTheBasesAndSuitsAsADelegate) {
    class Own : public NSObject, public GXHeartRatePickerViewDelegate {
    public:
        int count = 0;
        void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>&, const NSNumber&, NSInteger) override { ++count; }
    };
    const auto own = create<Own>();
    picker->setDelegate(own);
    turnTo(130, average);
    EXPECT_EQ(own->count, 2);
    EXPECT_EQ(picker->delegate().lock(), own);
}

// Bad input

TEST_F(HeartRateTurns, WithoutAWheelEveryOperationIsSafe) {
    picker->setPickerView(nullptr);
    picker->setMinValue(boxed(30));
    picker->selectCurrentValue();
    picker->setCurrentMaxHeartRate(boxed(30));
    EXPECT_EQ(max(), 0);
    picker->pickerView_didSelectRow_inComponent(nullptr, 20, average);
    EXPECT_EQ(told(), (Told{{51, 1}, {50, 0}}));
}

TEST_F(HeartRateTurns, EmptyAndNaNRatesReadAs0OrTheirDefault) {
    picker->setCurrentAvgHeartRate(boxedDouble(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_EQ(avg(), 0);
    EXPECT_EQ(selected(average), 0);
    picker->setCurrentMaxHeartRate(boxedDouble(1e300));
    EXPECT_EQ(selected(maximum), 204);
    picker->setMinValue(NSNumber());
    picker->setMaxValue(NSNumber());
    EXPECT_EQ(rows(average), 0);
    EXPECT_EQ(rows(maximum), 0);
}

TEST_F(HeartRateTurns, NoRangeStepOrGapLeavesTheWheelWithoutItsRows) {
    for (const NSInteger minimum : {lowest, NSInteger{-1}, NSInteger{25}, highest}) {
        for (const NSInteger top : {lowest, NSInteger{0}, highest}) {
            for (const NSInteger gap : {lowest, NSInteger{0}, highest}) {
                picker->setMinValue(boxedInteger(minimum));
                picker->setMaxValue(boxedInteger(top));
                picker->setStepSize(boxedInteger(gap));
                picker->setMinimumGapBetweenAvgAndMax(boxedInteger(gap));
                picker->setCurrentAvgHeartRate(boxedInteger(lowest));
                picker->setCurrentMaxHeartRate(boxedInteger(highest));
                picker->layoutIfNeeded();
                for (NSInteger component = -1; component <= 7; ++component) {
                    turn(rows(component) - 1, component);
                    picker->pickerView_didSelectRow_inComponent(picker->pickerView(), highest, component);
                    picker->pickerView_didSelectRow_inComponent(picker->pickerView(), lowest, component);
                    title(highest, component);
                    EXPECT_GE(picker->pickerView_widthForComponent(picker->pickerView(), component), 5.0);
                    EXPECT_LE(selected(component), std::max<NSInteger>(rows(component) - 1, 0));
                }
            }
        }
    }
}
