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

/// What changes the rows besides the numbers: 0 to 3.
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

template <class Picker>
struct PickerContract : PickerTest<Picker> {
    PickerContract() { prepare(*this->picker); }
    NSInteger components() { return this->wheel().numberOfComponents(); }
    void renew() {
        this->picker = create<Picker>(usual);
        prepare(*this->picker);
        this->notices = create<PickerNotices>();
        this->picker->setDelegate(this->notices);
    }
};

using Pickers = testing::Types<GXBasePickerView, GXBpmPickerView, GXCaloriesPickerView, GXDistancePickerView, GXDurationPickerView,
                               GXHeartRatePickerView, GXIconPickerView, GXPacePickerView, GXSpeedPickerView, GXTemperaturePickerView,
                               GXWeightPickerView>;
TYPED_TEST_SUITE(PickerContract, Pickers);

} // namespace

// The delegate

TYPED_TEST(PickerContract, ADelegateMayDropTheLastReferenceToThePickerInItsNotice) {
    int turned = 0;
    const NSInteger components = this->components();
    for (NSInteger component = 0; component < components; ++component) {
        this->renew();
        const WeakRef<GXBasePickerView> weak = this->picker;
        const Ref<GXMultiValuePickerView> wheel = this->picker->pickerView();
        bool isTold = false;
        this->notices->whenTold = [&](const PickerNotices::Notice&) {
            isTold = true;
            this->notices->list.clear();
            this->picker = nullptr;
        };
        wheel->turnToRow_inComponent(1, component);
        this->notices->list.clear(); // The heart rate's second notice names the picker again.
        EXPECT_EQ(weak.expired(), isTold) << "component " << component;
        wheel->turnToRow_inComponent(2, component);
        if (isTold) ++turned;
    }
    EXPECT_GE(turned, components > 1 ? 2 : 1);
}

TYPED_TEST(PickerContract, ADelegateMayDropThePickerWithoutAWheelThatHoldsAnything) {
    const WeakRef<GXBasePickerView> weak = this->picker;
    int told = 0;
    this->notices->whenTold = [&](const PickerNotices::Notice&) {
        ++told;
        this->notices->list.clear();
        this->picker = nullptr;
    };
    TypeParam* const called = this->picker.get(); // The caller holds nothing either.
    called->pickerView_didSelectRow_inComponent(nullptr, 3, 0);
    this->notices->list.clear();
    EXPECT_GT(told, 0);
    EXPECT_TRUE(weak.expired());
}

TYPED_TEST(PickerContract, ADelegateThatDiedIsSkipped) {
    const auto twin = create<TypeParam>(usual);
    prepare(*twin);
    const auto heard = create<PickerNotices>();
    twin->setDelegate(heard);
    twin->pickerView()->turnToRow_inComponent(1, 0);
    EXPECT_FALSE(heard->list.empty());

    this->notices = nullptr;
    EXPECT_FALSE(this->picker->delegate().lock());
    this->turn(1, 0);
    EXPECT_EQ(storedIn(*this->picker), storedIn(*twin));
}

// The wheel

TYPED_TEST(PickerContract, WithoutAWheelEveryOperationIsSafe) {
    const auto& tested = this->picker;
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
    EXPECT_FALSE(this->notices->list.empty());
}

TYPED_TEST(PickerContract, AWheelWithoutComponentsAsksAboutMinus1And0) {
    struct WithoutComponents : TypeParam {
        std::vector<NSInteger> asked;
        bool hasComponents = true;
        NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>& wheel) override {
            return hasComponents ? TypeParam::numberOfComponentsInPickerView(wheel) : 0;
        }
        std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& wheel, NSInteger row,
                                                                       NSInteger component) override {
            if (!hasComponents) asked.push_back(component);
            return TypeParam::pickerView_titleForRow_forComponent(wheel, row, component);
        }
    };
    const auto tested = create<WithoutComponents>(usual);
    tested->hasComponents = false;
    const Ref<GXMultiValuePickerView> wheel = tested->pickerView();
    wheel->reloadAllComponents();
    tested->reloadData();
    wheel->layoutIfNeeded();
    EXPECT_EQ(wheel->numberOfComponents(), 0);
    EXPECT_TRUE(std::count(tested->asked.begin(), tested->asked.end(), -1));
    EXPECT_TRUE(std::count(tested->asked.begin(), tested->asked.end(), 0));
}

// Extreme numbers

TYPED_TEST(PickerContract, ExtremeNumbersNeverLeaveTheWheelWithoutItsRows) {
    const std::vector<NSNumber> numbers = extremeNumbers();
    const auto& tested = this->picker;
    for (const int variant : {0, 1, 2, 3}) {
        choose(*tested, variant);
        for (const NSNumber& minimum : numbers) {
            for (const NSNumber& maximum : numbers) {
                tested->setMinValue(minimum);
                tested->setMaxValue(maximum);
                tested->setStepSize(minimum);
                for (const NSNumber& value : numbers) {
                    tested->setCurrentValue(value);
                    EXPECT_TRUE(isAllowed(*tested));
                    for (NSInteger component = 0; component < this->components(); ++component) {
                        const NSInteger count = this->rows(component);
                        ASSERT_GE(count, 0);
                        ASSERT_GE(this->selected(component), 0);
                        ASSERT_LE(this->selected(component), std::max<NSInteger>(count - 1, 0));
                        tested->pickerView_titleForRow_forComponent(nullptr, highest, component);
                        tested->pickerView_titleForRow_forComponent(nullptr, lowest, component);
                        this->turn(count - 1, component);
                    }
                }
            }
        }
        tested->layoutIfNeeded();
    }
}

// Getters

TYPED_TEST(PickerContract, ItAsksForItsNumbersAndItsWheelThroughTheGetters) {
    struct Asked : TypeParam {
        mutable int numbers = 0;
        mutable int wheels = 0;
        const NSNumber& minValue() const override {
            ++numbers;
            return TypeParam::minValue();
        }
        const NSNumber& maxValue() const override {
            ++numbers;
            return TypeParam::maxValue();
        }
        const NSNumber& currentValue() const override {
            ++numbers;
            return TypeParam::currentValue();
        }
        const Ref<GXMultiValuePickerView>& pickerView() const override {
            ++wheels;
            return TypeParam::pickerView();
        }
    };
    const auto tested = create<Asked>(usual);
    prepare(*tested);
    tested->numbers = tested->wheels = 0;
    tested->selectCurrentValue();
    tested->pickerView_numberOfRowsInComponent(tested->pickerView(), 0);
    tested->informDelegateOfValueChange();
    tested->pickerView_didSelectRow_inComponent(nullptr, 1, 0);
    EXPECT_GT(tested->numbers, 0);
    EXPECT_GT(tested->wheels, 0);
}

TYPED_TEST(PickerContract, ItTellsTheDelegateThatItsGetterReturns) {
    struct WithDelegate : TypeParam {
        Ref<PickerNotices> own = create<PickerNotices>();
        WeakRef<GXBasePickerViewDelegate> delegate() const override { return own; }
    };
    const auto tested = create<WithDelegate>(usual);
    prepare(*tested);
    tested->pickerView()->turnToRow_inComponent(1, 0);
    EXPECT_FALSE(tested->own->list.empty());
    tested->own->list.clear();
}
