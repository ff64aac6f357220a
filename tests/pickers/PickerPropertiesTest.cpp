// What holds for every picker whatever an application and a user do: tried at random. A failure
// prints its seed; GX_SEED=… repeats it.

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

#include "GXBpmPickerView.h"
#include "GXCaloriesPickerView.h"
#include "GXDistancePickerView.h"
#include "GXDurationPickerView.h"
#include "GXHeartRatePickerView.h"
#include "GXHeightPickerView.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXTemperaturePickerView.h"
#include "GXWeightPickerView.h"
#include "PickerKind.h"
#include "PickerNotices.h"
#include "PickerTest.h"
#include "TestWindow.h"

using namespace gx;

namespace {

std::uint64_t firstSeed() {
    const char* given = std::getenv("GX_SEED");
    return given ? std::strtoull(given, nullptr, 10) : std::random_device{}();
}

class Random {
public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}

    NSInteger between(NSInteger low, NSInteger high) { return std::uniform_int_distribution<NSInteger>(low, high)(engine_); }
    double real(double low, double high) { return std::uniform_real_distribution<double>(low, high)(engine_); }
    bool chance(double share) { return real(0, 1) < share; }

    /// Any number an application could set: sensible ones mostly, and all the others.
    NSNumber number() {
        switch (between(0, 11)) {
        case 0:
            return {};
        case 1:
            return boxedDouble(std::numeric_limits<double>::quiet_NaN());
        case 2:
            return boxedInteger(chance(0.5) ? std::numeric_limits<NSInteger>::max() : std::numeric_limits<NSInteger>::min());
        case 3:
            return boxedDouble(chance(0.5) ? 1e300 : -std::numeric_limits<double>::infinity());
        case 4:
            return boxed(chance(0.5) ? std::numeric_limits<std::int32_t>::max() : std::numeric_limits<std::int32_t>::min());
        case 5:
            return boxedInteger(between(-2, 2));
        case 6:
            return boxedFloat(static_cast<float>(real(-50, 500)));
        case 7:
            return boxedDouble(real(-1e6, 1e9));
        case 8:
            return boxed(static_cast<int>(between(-100, 100)));
        default:
            return boxedDouble(std::exp(real(-5, 20)));
        }
    }

private:
    std::mt19937_64 engine_;
};

/// Whatever happens, each component has selected a row that exists, and shows it.
void expectRowsThatExist(UIPickerView& wheel) {
    wheel.layoutIfNeeded();
    for (NSInteger i = 0; i < wheel.numberOfComponents(); ++i) {
        const NSInteger count = wheel.numberOfRowsInComponent(i);
        const NSInteger row = wheel.selectedRowInComponent(i);
        ASSERT_GE(count, 0);
        ASSERT_GE(row, 0);
        ASSERT_LE(row, std::max<NSInteger>(count - 1, 0));
        ASSERT_FALSE(wheel.viewForRow_forComponent(count, i));
        if (!wheel.isTurning() && count > 0) {
            ASSERT_TRUE(wheel.viewForRow_forComponent(row, i)) << "row " << row << " of " << count << " in component " << i;
        }
    }
}

void turnAtRandom(UIPickerView& wheel, TestWindow& window, Random& random) {
    const NSInteger component = random.between(0, wheel.numberOfComponents());
    const NSInteger count = wheel.numberOfRowsInComponent(component);
    switch (random.between(0, 3)) {
    case 0:
        wheel.turnToRow_inComponent(random.between(-2, std::min<NSInteger>(count, 1000) + 1), component);
        break;
    case 1: {
        const CGPoint from = {random.real(60, 260), random.real(20, 196)};
        window.fling(from, {from.x, random.real(-300, 500)}, static_cast<int>(random.between(1, 6)));
        break;
    }
    case 2:
        window.scrollNotches({random.real(60, 260), 108}, static_cast<double>(random.between(-20, 20)));
        break;
    default:
        window.tap({random.real(60, 260), random.real(0, 216)});
    }
    if (random.chance(0.5)) window.runUntilStill();
}

using Make = Ref<GXBasePickerView> (*)(const CGRect& frame);
/// Changes what only one class of pickers has.
using Option = void (*)(GXBasePickerView&, Random&);

void noOption(GXBasePickerView&, Random&) {}

void exercise(Make make, Option option) {
    const std::uint64_t first = firstSeed();
    for (std::uint64_t seed = first; seed < first + (std::getenv("GX_SEED") ? 1 : 60); ++seed) {
        SCOPED_TRACE("GX_SEED=" + std::to_string(seed));
        Random random(seed);
        const auto picker = make(CGRectMake(0, 0, 320, 216));
        const auto notices = create<PickerNotices>();
        picker->setDelegate(notices);
        TestWindow window(picker);
        for (int step = 0; step < 40; ++step) {
            switch (random.between(0, 7)) {
            case 0:
                picker->setMinValue(random.number());
                break;
            case 1:
                picker->setMaxValue(random.number());
                break;
            case 2:
                picker->setStepSize(random.number());
                break;
            case 3:
                picker->setCurrentValue(random.number());
                break;
            case 4:
                picker->setIsMetric(random.chance(0.5));
                break;
            case 5:
                option(*picker, random);
                break;
            default:
                turnAtRandom(*picker->pickerView(), window, random);
            }
            expectRowsThatExist(*picker->pickerView());
            if (testing::Test::HasFatalFailure()) return;
        }
        window.runUntilStill();
        picker->pickerView()->finishAnimations();
    }
}

struct Range {
    double lowest;
    double highest;
    bool isReversed = false; // The minimum is the highest.
    bool isWhole = false;    // The bounds are read as whole numbers.
};

/// Turns a picker of a sensible range; each notice has to lie in it, and be what is stored.
void expectToStayInRange(Make make, Range range, Option option) {
    const std::uint64_t first = firstSeed();
    int told = 0;
    for (std::uint64_t seed = first; seed < first + 100; ++seed) {
        SCOPED_TRACE("GX_SEED=" + std::to_string(seed));
        Random random(seed);
        double low = std::floor(random.real(range.lowest, range.highest) * 10) / 10;
        double high = std::floor(random.real(range.lowest, range.highest) * 10) / 10;
        if (low > high) std::swap(low, high);
        const auto picker = make(CGRectMake(0, 0, 320, 216));
        picker->setIsMetric(random.chance(0.5));
        option(*picker, random);
        picker->setMinValue(boxedDouble(range.isReversed ? high : low));
        picker->setMaxValue(boxedDouble(range.isReversed ? low : high));
        picker->setCurrentValue(boxedDouble(random.real(low, high)));
        const auto notices = create<PickerNotices>();
        notices->whenTold = [&](const PickerNotices::Notice& notice) {
            ++told;
            EXPECT_TRUE(notice.value.isIdenticalTo(picker->currentValue()));
            EXPECT_GE(notice.value.doubleValue(), range.isWhole ? std::trunc(low) : low);
            EXPECT_LE(notice.value.doubleValue(), high);
        };
        picker->setDelegate(notices);
        TestWindow window(picker);
        for (int step = 0; step < 20; ++step) turnAtRandom(*picker->pickerView(), window, random);
        window.runUntilStill();
        if (testing::Test::HasFailure()) return;
    }
    EXPECT_GT(told, 500) << "the turns did turn something";
}

void distanceOption(GXBasePickerView& any, Random& random) {
    auto& picker = static_cast<GXDistancePickerView&>(any);
    picker.setNumberOfFractionUnits(static_cast<int>(random.between(0, 3)));
}
void durationOption(GXBasePickerView& any, Random& random) {
    auto& picker = static_cast<GXDurationPickerView&>(any);
    picker.setType(random.between(0, 2));
    picker.setSecondsStepSize(static_cast<int>(random.between(-1, 20)));
    picker.setMinutesStepSize(static_cast<int>(random.between(-1, 3)));
}
void paceOption(GXBasePickerView& any, Random& random) {
    auto& picker = static_cast<GXPacePickerView&>(any);
    picker.setSecondsStepSize(static_cast<int>(random.between(-1, 15)));
}

} // namespace

TEST(PickerProperties, ABpmPickerAlwaysStandsOnRowsThatExist) { exercise(createdAs<GXBpmPickerView, CGRect>, noOption); }
TEST(PickerProperties, ACaloriesPickerAlwaysStandsOnRowsThatExist) { exercise(createdAs<GXCaloriesPickerView, CGRect>, noOption); }
TEST(PickerProperties, ADistancePickerAlwaysStandsOnRowsThatExist) { exercise(createdAs<GXDistancePickerView, CGRect>, distanceOption); }
TEST(PickerProperties, ADurationPickerAlwaysStandsOnRowsThatExist) {
    exercise(createdAs<GXDurationPickerView, CGRect>, [](GXBasePickerView& any, Random& random) {
        auto& picker = static_cast<GXDurationPickerView&>(any);
        picker.setType(random.between(-1, 4));
        picker.setHoursStepSize(random.number().intValue());
        picker.setMinutesStepSize(random.number().intValue());
        picker.setSecondsStepSize(random.number().intValue());
    });
}
TEST(PickerProperties, APacePickerAlwaysStandsOnRowsThatExist) {
    exercise(createdAs<GXPacePickerView, CGRect>, [](GXBasePickerView& any, Random& random) {
        auto& picker = static_cast<GXPacePickerView&>(any);
        picker.setMinutesStepSize(random.number().intValue());
        picker.setSecondsStepSize(random.number().intValue());
    });
}
TEST(PickerProperties, ASpeedPickerAlwaysStandsOnRowsThatExist) { exercise(createdAs<GXSpeedPickerView, CGRect>, noOption); }
TEST(PickerProperties, ATemperaturePickerAlwaysStandsOnRowsThatExist) { exercise(createdAs<GXTemperaturePickerView, CGRect>, noOption); }
TEST(PickerProperties, AHeartRatePickerAlwaysStandsOnRowsThatExist) {
    exercise(createdAs<GXHeartRatePickerView, CGRect>, [](GXBasePickerView& any, Random& random) {
        auto& picker = static_cast<GXHeartRatePickerView&>(any);
        picker.setShouldShowNullValue(random.chance(0.5));
        picker.setMinimumGapBetweenAvgAndMax(random.number());
        picker.setCurrentAvgHeartRate(random.number());
        picker.setCurrentMaxHeartRate(random.number());
    });
}
TEST(PickerProperties, AWeightPickerAlwaysStandsOnRowsThatExist) {
    exercise(createdAs<GXWeightPickerView, CGRect>, [](GXBasePickerView& any, Random& random) {
        auto& picker = static_cast<GXWeightPickerView&>(any);
        picker.setWeightUnitSelectable(random.chance(0.5));
        picker.setWeightUnit(static_cast<GXWeightUnit>(random.between(0, 3)));
        if (random.chance(0.5)) picker.updateMinMaxWeight();
    });
}

TEST(PickerProperties, AHeightPickerAlwaysStandsOnRowsThatExist) {
    const std::uint64_t first = firstSeed();
    for (std::uint64_t seed = first; seed < first + (std::getenv("GX_SEED") ? 1 : 60); ++seed) {
        SCOPED_TRACE("GX_SEED=" + std::to_string(seed));
        Random random(seed);
        const auto picker = create<GXHeightPickerView>(CGRectMake(0, 0, 320, 216));
        TestWindow window(picker);
        for (int step = 0; step < 40; ++step) {
            if (random.chance(0.3)) picker->setHeightInCm(random.number().doubleValue());
            if (random.chance(0.2)) picker->setIsMetric(random.chance(0.5));
            if (random.chance(0.5)) turnAtRandom(*picker, window, random);
            if (random.chance(0.5)) NSRunLoop::mainRunLoop()->runPass();
            expectRowsThatExist(*picker);
            if (testing::Test::HasFatalFailure()) return;
        }
    }
    NSRunLoop::mainRunLoop()->runPass();
}

TEST(PickerProperties, AfterASelectionADistanceLiesInItsRange) {
    expectToStayInRange(createdAs<GXDistancePickerView, CGRect>, {0, 300000}, distanceOption);
}
TEST(PickerProperties, AfterASelectionADurationLiesInItsRange) {
    expectToStayInRange(createdAs<GXDurationPickerView, CGRect>, {0, 3.6e7, false, true}, durationOption);
}
TEST(PickerProperties, AfterASelectionAPaceLiesInItsRange) {
    expectToStayInRange(createdAs<GXPacePickerView, CGRect>, {0.3, 11, true}, paceOption);
}
TEST(PickerProperties, AfterASelectionASpeedLiesInItsRange) {
    expectToStayInRange(createdAs<GXSpeedPickerView, CGRect>, {0, 20}, noOption);
}
