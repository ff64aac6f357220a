#include <gtest/gtest.h>

#include <functional>

#include "GXBpmPickerCell.h"
#include "GXDistancePickerView.h"
#include "GXDurationPickerView.h"
#include "GXHeartRatePickerView.h"
#include "GXHeightPickerView.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXTemperaturePickerView.h"
#include "GXWeightPickerView.h"

using namespace gx;

// An application's own wheel hears of every order, and may then let go of the picker that gives it. The picker has more to do, and lives
// until it has done it.

namespace {

constexpr CGRect usual = {{0, 0}, {320, 216}};

struct HearingWheel : GXMultiValuePickerView {
    std::function<void()> whenOrdered;

    void reloadAllComponents() override {
        tell();
        GXMultiValuePickerView::reloadAllComponents();
    }
    void selectRow_inComponent_animated(NSInteger row, NSInteger component, bool animated) override {
        tell();
        GXMultiValuePickerView::selectRow_inComponent_animated(row, component, animated);
    }
    NSInteger numberOfRowsInComponent(NSInteger component) override {
        tell();
        return GXMultiValuePickerView::numberOfRowsInComponent(component);
    }
    void setRightLabelText(std::optional<std::string> text) override {
        tell();
        GXMultiValuePickerView::setRightLabelText(std::move(text));
    }
    void setCustomLabelFont(Ref<GXStyleSheetFont> font) override {
        tell();
        GXMultiValuePickerView::setCustomLabelFont(std::move(font));
    }
    void setCustomValueFont(Ref<GXStyleSheetFont> font) override {
        tell();
        GXMultiValuePickerView::setCustomValueFont(std::move(font));
    }

private:
    void tell() {
        if (const auto told = std::exchange(whenOrdered, nullptr)) told();
    }
};

template <class Picker>
struct Owner {
    Ref<HearingWheel> wheel;
    Ref<Picker> picker;

    Owner() {
        GXMultiValuePickerView::setFactory([this](CGRect frame) { return wheel = create<HearingWheel>(frame); });
        picker = create<Picker>(usual);
        GXMultiValuePickerView::setFactory({});
    }
};

/// Gives the order to a picker whose wheel lets go of it when it first hears of it.
template <class Picker, class Order>
void expectToOutliveItsOrder(Order order) {
    Owner<Picker> owner;
    const WeakRef<Picker> weak = owner.picker;
    bool isHeard = false;
    bool isAlive = false;
    owner.wheel->whenOrdered = [&] {
        isHeard = true;
        owner.picker = nullptr;
        isAlive = !weak.expired();
    };
    order(*owner.picker);
    EXPECT_TRUE(isHeard);
    EXPECT_TRUE(isAlive) << "while there is more to do";
    EXPECT_TRUE(weak.expired()) << "and no longer";
}

struct HearingHeightPicker : GXHeightPickerView {
    std::function<void()> whenOrdered;

    void selectRow_inComponent_animated(NSInteger row, NSInteger component, bool animated) override {
        if (const auto told = std::exchange(whenOrdered, nullptr)) told();
        GXHeightPickerView::selectRow_inComponent_animated(row, component, animated);
    }
};

/// Answers for a wheel of two columns that it owns, and lets go of it with the first title that it is asked for.
struct WheelOwner : NSObject, UIPickerViewDataSource, GXMultiValuePickerViewDelegate {
    struct Wheel : GXMultiValuePickerView {
        bool* isGone = nullptr;
        ~Wheel() override { *isGone = true; }
    };
    Ref<Wheel> wheel = create<Wheel>(usual);
    bool isGone = false;
    bool letsGo = false;

    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>&) override { return 2; }
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger) override { return 10; }
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>&, NSInteger) override { return 80; }
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) override {
        if (letsGo) wheel = nullptr;
        return "7";
    }
};

/// Gives the order to a wheel that has been laid out, whose owner lets go of it meanwhile.
void expectWheelToOutlive(void (*order)(GXMultiValuePickerView&, const Ref<WheelOwner>&)) {
    const auto owner = std::make_shared<WheelOwner>();
    owner->wheel->isGone = &owner->isGone;
    owner->wheel->setDataSource(owner);
    owner->wheel->setDelegate(owner);
    owner->wheel->setSeparatorText_afterComponent(":", 0);
    owner->wheel->layoutIfNeeded();
    owner->letsGo = true;
    order(*owner->wheel, owner);
    EXPECT_TRUE(owner->isGone);
}

NSNumber number(double value) { return NSNumber::numberWithDouble(value); }

} // namespace

TEST(PickerLifetime, a_picker_outlives_new_bounds_and_fonts) {
    const auto font = GXStyleSheetFont::fontWithFamily_size_weight_color("", 12, UIFontWeight::Regular, UIColor::labelColor());
    expectToOutliveItsOrder<GXBasePickerView>([](GXBasePickerView& picker) { picker.setMinValue(number(5)); });
    expectToOutliveItsOrder<GXBasePickerView>([](GXBasePickerView& picker) { picker.setMaxValue(number(50)); });
    expectToOutliveItsOrder<GXBasePickerView>([](GXBasePickerView& picker) { picker.setStepSize(number(2)); });
    expectToOutliveItsOrder<GXBasePickerView>([&](GXBasePickerView& picker) { picker.setCustomValueFont(font); });
    expectToOutliveItsOrder<GXBasePickerView>([&](GXBasePickerView& picker) { picker.setCustomLabelFont(font); });
}

TEST(PickerLifetime, a_distance_picker_outlives_its_orders) {
    using Picker = GXDistancePickerView;
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.setIsMetric(true); });
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.setCurrentValue(number(7000)); });
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.selectCurrentValue(); });
}

TEST(PickerLifetime, a_speed_picker_outlives_its_orders) {
    using Picker = GXSpeedPickerView;
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.setIsMetric(true); });
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.selectCurrentValue(); });
}

TEST(PickerLifetime, a_pace_picker_outlives_its_orders) {
    using Picker = GXPacePickerView;
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.setIsMetric(true); });
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.setCurrentValue(number(5)); });
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.setCurrentValue(number(1000)); });
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.selectCurrentValue(); });
}

TEST(PickerLifetime, a_duration_picker_outlives_its_orders) {
    using Picker = GXDurationPickerView;
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.setType(GXDurationTypeHoursMinutesSeconds); });
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.setCurrentValue(number(-1)); });
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.selectCurrentValue(); });
}

TEST(PickerLifetime, a_weight_picker_outlives_its_orders) {
    using Picker = GXWeightPickerView;
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.setWeightUnit(GXWeightUnitPound); });
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.setWeightUnitSelectable(true); });
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.updateMinMaxWeight(); });
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.setCurrentValue(number(80)); });
}

TEST(PickerLifetime, a_temperature_picker_outlives_its_orders) {
    expectToOutliveItsOrder<GXTemperaturePickerView>([](GXTemperaturePickerView& picker) { picker.setIsMetric(true); });
}

TEST(PickerLifetime, a_heart_rate_picker_outlives_its_orders) {
    using Picker = GXHeartRatePickerView;
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.setCurrentAvgHeartRate(number(100)); });
    expectToOutliveItsOrder<Picker>([](Picker& picker) { picker.setCurrentMaxHeartRate(number(200)); });
}

TEST(PickerLifetime, a_wheel_may_be_taken_from_its_heart_rate_picker_by_a_question) {
    Owner<GXHeartRatePickerView> owner;
    owner.wheel->whenOrdered = [&] { owner.picker->setPickerView(nullptr); };
    owner.picker->setCurrentAvgHeartRate(number(100));
    EXPECT_EQ(owner.picker->currentAvgHeartRate().integerValue(), 100);
    EXPECT_EQ(owner.wheel->selectedRowInComponent(0), 75) << "100 above the minimum of 25: the order has been given";
}

TEST(PickerLifetime, a_wheel_may_be_taken_from_its_picker_by_a_new_bound) {
    Owner<GXBasePickerView> owner;
    owner.wheel->whenOrdered = [&] {
        owner.picker->setPickerView(nullptr);
        owner.wheel->removeFromSuperview();
        owner.wheel = nullptr;
    };
    owner.picker->setMinValue(number(5));
    EXPECT_EQ(owner.picker->minValue().integerValue(), 5);
    EXPECT_EQ(owner.picker->pickerView(), nullptr);
}

TEST(PickerLifetime, a_wheel_may_leave_its_picker_while_that_is_made) {
    struct LeavingWheel : GXMultiValuePickerView {
        void setDelegate(WeakRef<UIPickerViewDelegate> delegate) override {
            if (const auto picker = std::dynamic_pointer_cast<GXBasePickerView>(delegate.lock())) picker->setPickerView(nullptr);
            GXMultiValuePickerView::setDelegate(std::move(delegate));
        }
    };
    GXMultiValuePickerView::setFactory([](CGRect frame) { return create<LeavingWheel>(frame); });
    const auto picker = create<GXBasePickerView>(usual);
    GXMultiValuePickerView::setFactory({});
    EXPECT_EQ(picker->pickerView(), nullptr);
    ASSERT_EQ(picker->subviews().size(), 1U);
    const auto wheel = std::dynamic_pointer_cast<UIPickerView>(picker->subviews().front());
    ASSERT_NE(wheel, nullptr);
    EXPECT_EQ(wheel->numberOfRowsInComponent(0), 100) << "which the picker answers for all the same";
}

TEST(PickerLifetime, a_height_picker_outlives_its_orders) {
    for (const bool isMetric : {false, true}) {
        auto picker = create<HearingHeightPicker>(usual);
        const WeakRef<HearingHeightPicker> weak = picker;
        bool isAlive = false;
        picker->whenOrdered = [&] {
            picker = nullptr;
            isAlive = !weak.expired();
        };
        picker->setIsMetric(isMetric);
        EXPECT_TRUE(isAlive);
        EXPECT_TRUE(weak.expired());
    }
}

TEST(PickerLifetime, a_cell_outlives_the_making_of_its_picker) {
    auto cell = create<GXBpmPickerCell>(create<NSCoder>());
    const WeakRef<GXBpmPickerCell> weak = cell;
    bool isAlive = false;
    GXMultiValuePickerView::setFactory([&](CGRect) {
        cell = nullptr;
        isAlive = !weak.expired();
        return nullptr;
    });
    cell->awakeFromNib();
    GXMultiValuePickerView::setFactory({});
    EXPECT_TRUE(isAlive);
    EXPECT_TRUE(weak.expired());
}

TEST(PickerLifetime, a_wheel_outlives_the_placing_of_its_labels) {
    using Wheel = GXMultiValuePickerView;
    using Owned = Ref<WheelOwner>;
    expectWheelToOutlive([](Wheel& wheel, const Owned&) { wheel.setupLeftLabelFrame(); });
    expectWheelToOutlive([](Wheel& wheel, const Owned&) { wheel.setupRightLabelFrame(); });
    expectWheelToOutlive([](Wheel& wheel, const Owned&) { wheel.reloadLabelFrames(); });
    expectWheelToOutlive([](Wheel& wheel, const Owned&) { wheel.reloadAllComponents(); });
    expectWheelToOutlive([](Wheel& wheel, const Owned&) { wheel.setRightLabelText("kg"); });
    expectWheelToOutlive([](Wheel& wheel, const Owned& owner) { wheel.setDataSource(owner); });
    expectWheelToOutlive([](Wheel& wheel, const Owned& owner) { wheel.setDelegate(owner); });
    expectWheelToOutlive([](Wheel& wheel, const Owned&) {
        wheel.setFrame(CGRectMake(0, 0, 300, 200));
        wheel.updateSeparatorFrames();
    });
}
