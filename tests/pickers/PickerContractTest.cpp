#include <array>
#include <limits>

#include "GXBpmPickerView.h"
#include "GXCaloriesPickerView.h"
#include "GXDistancePickerView.h"
#include "GXDurationPickerView.h"
#include "GXHeartRatePickerView.h"
#include "GXIconPickerView.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXTemperaturePickerView.h"
#include "GXWeightPickerView.h"
#include "IconImages.h"
#include "PickerKind.h"
#include "PickerTest.h"

using namespace gx;

// What every picker with a wheel has to do.

namespace {

constexpr CGRect usual = {{0, 0}, {320, 216}};
constexpr NSInteger lowest = std::numeric_limits<NSInteger>::min();
constexpr NSInteger highest = std::numeric_limits<NSInteger>::max();
constexpr std::int32_t largestStep = std::numeric_limits<std::int32_t>::max();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

/// Gives it rows to turn to, and its last component if that is optional.
void prepare(GXBasePickerView&) {}
void prepare(GXIconPickerView& picker) { picker.setIconImages(iconImages(5)); }
void prepare(GXDistancePickerView& picker) { picker.setNumberOfFractionUnits(2); }
void prepare(GXDurationPickerView& picker) { picker.setType(GXDurationTypeHoursMinutesSeconds); }
void prepare(GXWeightPickerView& picker) { picker.setWeightUnitSelectable(true); }

/// What changes the rows besides the numbers: variants 0 and 1, or 0 to 3.
void choose(GXBasePickerView& picker, int variant) { picker.setIsMetric(variant % 2 == 0); }
void choose(GXDistancePickerView& picker, int variant) {
    picker.setIsMetric(variant % 2 == 0);
    picker.setNumberOfFractionUnits(variant < 2 ? 2 : 1);
}
void choose(GXDurationPickerView& picker, int variant) { picker.setType(variant); }
void choose(GXPacePickerView& picker, int variant) {
    picker.setIsMetric(variant % 2 == 0);
    picker.setMinutesStepSize(variant < 2 ? 1 : largestStep);
    picker.setSecondsStepSize(variant < 2 ? 5 : largestStep);
}
void choose(GXWeightPickerView& picker, int variant) { picker.setWeightUnit(static_cast<NSUInteger>(variant)); }
void choose(GXHeartRatePickerView& picker, int variant) { picker.setShouldShowNullValue(variant % 2 == 0); }

/// The duration clamps what is set: the maximum is the last word.
bool isAllowed(const GXBasePickerView&) { return true; }
bool isAllowed(const GXDurationPickerView& picker) { return picker.currentValue().integerValue() <= picker.maxValue().integerValue(); }

std::vector<double> storedIn(const GXBasePickerView& picker) { return {picker.currentValue().doubleValue()}; }
std::vector<double> storedIn(const GXHeartRatePickerView& picker) {
    return {picker.currentMaxHeartRate().doubleValue(), picker.currentAvgHeartRate().doubleValue()};
}

std::vector<NSNumber> extremeNumbers() {
    return {boxedInteger(lowest),   boxedInteger(highest), boxedInteger(-1),     boxedDouble(notANumber), boxedDouble(infinite),
            boxedDouble(-infinite), boxedDouble(1e300),    boxedDouble(-1e-300), boxedDouble(4.44),       NSNumber()};
}

/// What an own picker is asked for, and what it returns instead of its superclass.
struct Notes {
    mutable int numbers = 0;
    mutable int wheels = 0;
    std::vector<NSInteger> titles; // the components, when it has none
    bool hasComponents = true;
    Ref<PickerNotices> delegateOfGetter;
};
template <class Picker>
struct OwnClass : Picker, Notes {
    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>& wheel) override {
        return hasComponents ? Picker::numberOfComponentsInPickerView(wheel) : 0;
    }
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& wheel, NSInteger row,
                                                                   NSInteger component) override {
        if (!hasComponents) titles.push_back(component);
        return Picker::pickerView_titleForRow_forComponent(wheel, row, component);
    }
    const NSNumber& minValue() const override {
        ++numbers;
        return Picker::minValue();
    }
    const NSNumber& maxValue() const override {
        ++numbers;
        return Picker::maxValue();
    }
    const NSNumber& currentValue() const override {
        ++numbers;
        return Picker::currentValue();
    }
    const Ref<GXMultiValuePickerView>& pickerView() const override {
        ++wheels;
        return Picker::pickerView();
    }
    WeakRef<GXBasePickerViewDelegate> delegate() const override {
        if (delegateOfGetter) return delegateOfGetter;
        return Picker::delegate();
    }
};
using Own = OwnPicker<Notes>;

struct Kind : PickerKind {
    int variants;
    void (*prepare)(GXBasePickerView&);
    void (*choose)(GXBasePickerView&, int variant);
    bool (*isAllowed)(const GXBasePickerView&);
    std::vector<double> (*storedIn)(const GXBasePickerView&);
    Own (*own)(const CGRect&);
};
template <class Picker>
Kind kind(const char* name, int variants = 2) {
    return {pickerKind<Picker>(name),
            variants,
            [](GXBasePickerView& picker) { prepare(static_cast<Picker&>(picker)); },
            [](GXBasePickerView& picker, int variant) { choose(static_cast<Picker&>(picker), variant); },
            [](const GXBasePickerView& picker) { return isAllowed(static_cast<const Picker&>(picker)); },
            [](const GXBasePickerView& picker) { return storedIn(static_cast<const Picker&>(picker)); },
            ownPicker<OwnClass<Picker>, Notes, CGRect>};
}

struct PickerContract : PickerTest<GXBasePickerView>, testing::WithParamInterface<Kind> {
    PickerContract() : PickerTest(GetParam().withFrame) { GetParam().prepare(*picker); }
    NSInteger components() { return wheel().numberOfComponents(); }
    void renew() {
        picker = GetParam().withFrame(usual);
        GetParam().prepare(*picker);
        notices = create<PickerNotices>();
        picker->setDelegate(notices);
    }
};

INSTANTIATE_TEST_SUITE_P(Pickers, PickerContract,
                         testing::Values(kind<GXBasePickerView>("Base"), kind<GXBpmPickerView>("Bpm"),
                                         kind<GXCaloriesPickerView>("Calories"), kind<GXDistancePickerView>("Distance", 4),
                                         kind<GXDurationPickerView>("Duration", 4), kind<GXHeartRatePickerView>("HeartRate"),
                                         kind<GXIconPickerView>("Icon"), kind<GXPacePickerView>("Pace", 4),
                                         kind<GXSpeedPickerView>("Speed"), kind<GXTemperaturePickerView>("Temperature"),
                                         kind<GXWeightPickerView>("Weight", 4)),
                         NameOfKind());

} // namespace

// The delegate

TEST_P(PickerContract, ADelegateMayDropTheLastReferenceToThePickerInItsNotice) {
    int turned = 0;
    const NSInteger count = components();
    for (NSInteger component = 0; component < count; ++component) {
        renew();
        const WeakRef<GXBasePickerView> weak = picker;
        const Ref<GXMultiValuePickerView> wheel = picker->pickerView();
        bool isTold = false;
        notices->whenTold = [&](const PickerNotices::Notice&) {
            isTold = true;
            notices->list.clear();
            picker = nullptr;
        };
        wheel->turnToRow_inComponent(1, component);
        notices->list.clear(); // The heart rate's second notice names the picker again.
        EXPECT_EQ(weak.expired(), isTold) << "component " << component;
        wheel->turnToRow_inComponent(2, component);
        if (isTold) ++turned;
    }
    EXPECT_GE(turned, count > 1 ? 2 : 1);
}

TEST_P(PickerContract, ADelegateMayDropThePickerWithoutAWheelThatHoldsAnything) {
    const WeakRef<GXBasePickerView> weak = picker;
    int told = 0;
    notices->whenTold = [&](const PickerNotices::Notice&) {
        ++told;
        notices->list.clear();
        picker = nullptr;
    };
    GXBasePickerView* const called = picker.get(); // The caller holds nothing either.
    called->pickerView_didSelectRow_inComponent(nullptr, 3, 0);
    notices->list.clear();
    EXPECT_GT(told, 0);
    EXPECT_TRUE(weak.expired());
}

TEST_P(PickerContract, ADelegateThatDiedIsSkipped) {
    const auto twin = GetParam().withFrame(usual);
    GetParam().prepare(*twin);
    const auto heard = create<PickerNotices>();
    twin->setDelegate(heard);
    twin->pickerView()->turnToRow_inComponent(1, 0);
    EXPECT_FALSE(heard->list.empty());

    notices = nullptr;
    EXPECT_FALSE(picker->delegate().lock());
    turn(1, 0);
    EXPECT_EQ(GetParam().storedIn(*picker), GetParam().storedIn(*twin));
}

// The wheel

TEST_P(PickerContract, WithoutAWheelEveryOperationIsSafe) {
    const auto& tested = picker;
    tested->setPickerView(nullptr);
    EXPECT_FALSE(tested->pickerView());
    tested->setIsMetric(true);
    tested->setIsMetric(false);
    tested->setMinValue(boxed(1));
    tested->setMaxValue(boxed(50));
    tested->setStepSize(boxed(0));
    EXPECT_EQ(tested->stepSize().intValue(), 1);
    tested->setCurrentValue(boxed(5));
    tested->setCustomLabelFont(nullptr);
    tested->setCustomValueFont(nullptr);
    tested->selectCurrentValue();
    tested->reloadData();
    for (NSInteger component = -1; component < 6; ++component) {
        tested->pickerView_numberOfRowsInComponent(nullptr, component);
        tested->pickerView_titleForRow_forComponent(nullptr, 0, component);
        EXPECT_GE(tested->pickerView_widthForComponent(nullptr, component), 0.0);
        EXPECT_TRUE(tested->pickerView_viewForRow_forComponent_reusingView(nullptr, 0, component, nullptr));
        tested->pickerView_accessibilityLabelForComponent(nullptr, component);
        tested->pickerView_accessibilityValueForRow_forComponent(nullptr, 0, component);
    }
    tested->pickerView_didSelectRow_inComponent(nullptr, 2, 0);
    EXPECT_FALSE(notices->list.empty());
}

TEST_P(PickerContract, AWheelWithoutComponentsAsksAboutMinus1And0) {
    const auto [tested, noted] = GetParam().own(usual);
    noted->hasComponents = false;
    const Ref<GXMultiValuePickerView> wheel = tested->pickerView();
    wheel->reloadAllComponents();
    tested->reloadData();
    wheel->layoutIfNeeded();
    EXPECT_EQ(wheel->numberOfComponents(), 0);
    EXPECT_TRUE(std::count(noted->titles.begin(), noted->titles.end(), -1));
    EXPECT_TRUE(std::count(noted->titles.begin(), noted->titles.end(), 0));
}

// Extreme numbers

TEST_P(PickerContract, ExtremeNumbersNeverLeaveTheWheelWithoutItsRows) {
    const std::vector<NSNumber> numbers = extremeNumbers();
    const auto& tested = picker;
    for (int variant = 0; variant < GetParam().variants; ++variant) {
        GetParam().choose(*tested, variant);
        for (const NSNumber& minimum : numbers) {
            for (const NSNumber& maximum : numbers) {
                tested->setMinValue(minimum);
                tested->setMaxValue(maximum);
                tested->setStepSize(minimum);
                for (const NSNumber& value : numbers) {
                    tested->setCurrentValue(value);
                    EXPECT_TRUE(GetParam().isAllowed(*tested));
                    for (NSInteger component = 0; component < components(); ++component) {
                        const NSInteger count = rows(component);
                        ASSERT_GE(count, 0);
                        ASSERT_GE(selected(component), 0);
                        ASSERT_LE(selected(component), std::max<NSInteger>(count - 1, 0));
                        tested->pickerView_titleForRow_forComponent(nullptr, highest, component);
                        tested->pickerView_titleForRow_forComponent(nullptr, lowest, component);
                        turn(count - 1, component);
                    }
                }
            }
        }
        tested->layoutIfNeeded();
    }
}

// Getters

TEST_P(PickerContract, ItAsksForItsNumbersAndItsWheelThroughTheGetters) {
    const auto [tested, noted] = GetParam().own(usual);
    GetParam().prepare(*tested);
    const Ref<UIPickerView> wheel = tested->pickerView();
    noted->numbers = noted->wheels = 0;
    tested->selectCurrentValue();
    tested->pickerView_numberOfRowsInComponent(wheel, 0);
    tested->informDelegateOfValueChange();
    tested->pickerView_didSelectRow_inComponent(nullptr, 1, 0);
    EXPECT_GT(noted->numbers, 0);
    EXPECT_GT(noted->wheels, 0);
}

TEST_P(PickerContract, ItTellsTheDelegateThatItsGetterReturns) {
    const auto [tested, noted] = GetParam().own(usual);
    GetParam().prepare(*tested);
    const auto informed = create<PickerNotices>();
    noted->delegateOfGetter = informed;
    tested->pickerView()->turnToRow_inComponent(1, 0);
    EXPECT_FALSE(informed->list.empty());
    informed->list.clear();
}
