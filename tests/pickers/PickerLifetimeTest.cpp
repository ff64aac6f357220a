#include <gtest/gtest.h>

#include <functional>

#include "CastTo.h"
#include "GXBpmPickerCell.h"
#include "GXDistancePickerView.h"
#include "GXDurationPickerView.h"
#include "GXHeartRatePickerView.h"
#include "GXHeightPickerView.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXTemperaturePickerView.h"
#include "GXWeightPickerView.h"
#include "PickerKind.h"

using namespace gx;

// An application's own wheel sees every call, and may then drop the last reference to the picker
// that calls it. The picker lives until it has returned.

namespace {

constexpr CGRect usual = {{0, 0}, {320, 216}};

struct NotifyingWheel : GXMultiValuePickerView {
    std::function<void()> whenCalled;

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
        if (const auto told = std::exchange(whenCalled, nullptr)) told();
    }
};

struct Owner {
    Ref<NotifyingWheel> wheel;
    Ref<GXBasePickerView> picker;

    explicit Owner(Ref<GXBasePickerView> (*make)(const CGRect& frame)) {
        GXMultiValuePickerView::setFactory([this](CGRect frame) { return wheel = create<NotifyingWheel>(frame); });
        picker = make(usual);
        GXMultiValuePickerView::setFactory({});
    }
};

/// Drops its picker at the first call of the wheel.
struct DroppingOwner : Owner {
    WeakRef<GXBasePickerView> weak;
    bool isCalled = false;
    bool isAlive = false;

    explicit DroppingOwner(Ref<GXBasePickerView> (*make)(const CGRect& frame)) : Owner(make), weak(picker) {
        wheel->whenCalled = [this] {
            isCalled = true;
            picker = nullptr;
            isAlive = !weak.expired();
        };
    }
    void expectPickerToHaveOutlivedItsCall() const {
        EXPECT_TRUE(isCalled);
        EXPECT_TRUE(isAlive) << "while there is more to do";
        EXPECT_TRUE(weak.expired()) << "and no longer";
    }
};

template <class Picker>
void expectToOutliveItsCall(void (*call)(Picker&)) {
    DroppingOwner owner(createdAs<Picker, CGRect>);
    call(static_cast<Picker&>(*owner.picker));
    owner.expectPickerToHaveOutlivedItsCall();
}

struct NotifyingHeightPicker : GXHeightPickerView {
    std::function<void()> whenCalled;

    void selectRow_inComponent_animated(NSInteger row, NSInteger component, bool animated) override {
        if (const auto told = std::exchange(whenCalled, nullptr)) told();
        GXHeightPickerView::selectRow_inComponent_animated(row, component, animated);
    }
};

/// The data source and delegate of a wheel of two components that it owns, and drops when it is
/// asked for a title.
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

/// Calls a wheel that has been laid out, whose owner drops it meanwhile.
void expectWheelToOutlive(void (*call)(GXMultiValuePickerView&, const Ref<WheelOwner>&)) {
    const auto owner = std::make_shared<WheelOwner>();
    owner->wheel->isGone = &owner->isGone;
    owner->wheel->setDataSource(owner);
    owner->wheel->setDelegate(owner);
    owner->wheel->setSeparatorText_afterComponent(":", 0);
    owner->wheel->layoutIfNeeded();
    owner->letsGo = true;
    call(*owner->wheel, owner);
    EXPECT_TRUE(owner->isGone);
}

Ref<GXStyleSheetFont> font() {
    return GXStyleSheetFont::fontWithFamily_size_weight_color("", 12, UIFontWeight::Regular, UIColor::labelColor());
}
NSNumber number(double value) { return NSNumber::numberWithDouble(value); }

} // namespace

TEST(PickerLifetime, APickerOutlivesNewBoundsAndFonts) {
    expectToOutliveItsCall<GXBasePickerView>([](GXBasePickerView& picker) { picker.setMinValue(number(5)); });
    expectToOutliveItsCall<GXBasePickerView>([](GXBasePickerView& picker) { picker.setMaxValue(number(50)); });
    expectToOutliveItsCall<GXBasePickerView>([](GXBasePickerView& picker) { picker.setStepSize(number(2)); });
    expectToOutliveItsCall<GXBasePickerView>([](GXBasePickerView& picker) { picker.setCustomValueFont(font()); });
    expectToOutliveItsCall<GXBasePickerView>([](GXBasePickerView& picker) { picker.setCustomLabelFont(font()); });
}

TEST(PickerLifetime, ADistancePickerOutlivesItsCalls) {
    using Picker = GXDistancePickerView;
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.setIsMetric(true); });
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.setCurrentValue(number(7000)); });
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.selectCurrentValue(); });
}

TEST(PickerLifetime, ASpeedPickerOutlivesItsCalls) {
    using Picker = GXSpeedPickerView;
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.setIsMetric(true); });
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.selectCurrentValue(); });
}

TEST(PickerLifetime, APacePickerOutlivesItsCalls) {
    using Picker = GXPacePickerView;
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.setIsMetric(true); });
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.setCurrentValue(number(5)); });
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.setCurrentValue(number(1000)); });
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.selectCurrentValue(); });
}

TEST(PickerLifetime, ADurationPickerOutlivesItsCalls) {
    using Picker = GXDurationPickerView;
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.setType(GXDurationTypeHoursMinutesSeconds); });
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.setCurrentValue(number(-1)); });
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.selectCurrentValue(); });
}

TEST(PickerLifetime, AWeightPickerOutlivesItsCalls) {
    using Picker = GXWeightPickerView;
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.setWeightUnit(GXWeightUnitPound); });
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.setWeightUnitSelectable(true); });
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.updateMinMaxWeight(); });
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.setCurrentValue(number(80)); });
}

TEST(PickerLifetime, ATemperaturePickerOutlivesItsCalls) {
    expectToOutliveItsCall<GXTemperaturePickerView>([](GXTemperaturePickerView& picker) { picker.setIsMetric(true); });
}

TEST(PickerLifetime, AHeartRatePickerOutlivesItsCalls) {
    using Picker = GXHeartRatePickerView;
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.setCurrentAvgHeartRate(number(100)); });
    expectToOutliveItsCall<Picker>([](Picker& picker) { picker.setCurrentMaxHeartRate(number(200)); });
}

TEST(PickerLifetime, AWheelMayBeTakenFromItsHeartRatePickerByAQuery) {
    Owner owner(createdAs<GXHeartRatePickerView, CGRect>);
    owner.wheel->whenCalled = [&] { owner.picker->setPickerView(nullptr); };
    auto& heartRate = static_cast<GXHeartRatePickerView&>(*owner.picker);
    heartRate.setCurrentAvgHeartRate(number(100));
    EXPECT_EQ(heartRate.currentAvgHeartRate().integerValue(), 100);
    EXPECT_EQ(owner.wheel->selectedRowInComponent(0), 75) << "100 above the minimum of 25: the call has been made";
}

TEST(PickerLifetime, AWheelMayBeTakenFromItsPickerByANewBound) {
    Owner owner(createdAs<GXBasePickerView, CGRect>);
    owner.wheel->whenCalled = [&] {
        owner.picker->setPickerView(nullptr);
        owner.wheel->removeFromSuperview();
        owner.wheel = nullptr;
    };
    owner.picker->setMinValue(number(5));
    EXPECT_EQ(owner.picker->minValue().integerValue(), 5);
    EXPECT_EQ(owner.picker->pickerView(), nullptr);
}

TEST(PickerLifetime, AWheelMayLeaveItsPickerWhileThatIsMade) {
    struct LeavingWheel : GXMultiValuePickerView {
        void setDelegate(WeakRef<UIPickerViewDelegate> delegate) override {
            if (const auto picker = castTo<GXBasePickerView>(delegate.lock())) picker->setPickerView(nullptr);
            GXMultiValuePickerView::setDelegate(std::move(delegate));
        }
    };
    GXMultiValuePickerView::setFactory([](CGRect frame) { return create<LeavingWheel>(frame); });
    const auto picker = create<GXBasePickerView>(usual);
    GXMultiValuePickerView::setFactory({});
    EXPECT_EQ(picker->pickerView(), nullptr);
    ASSERT_EQ(picker->subviews().size(), 1U);
    const auto wheel = castTo<UIPickerView>(picker->subviews().front());
    ASSERT_NE(wheel, nullptr);
    EXPECT_EQ(wheel->numberOfRowsInComponent(0), 100) << "which the picker answers for all the same";
}

TEST(PickerLifetime, AHeightPickerOutlivesItsCalls) {
    for (const bool isMetric : {false, true}) {
        auto picker = create<NotifyingHeightPicker>(usual);
        const WeakRef<NotifyingHeightPicker> weak = picker;
        bool isAlive = false;
        picker->whenCalled = [&] {
            picker = nullptr;
            isAlive = !weak.expired();
        };
        picker->setIsMetric(isMetric);
        EXPECT_TRUE(isAlive);
        EXPECT_TRUE(weak.expired());
    }
}

TEST(PickerLifetime, ACellOutlivesTheMakingOfItsPicker) {
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

TEST(PickerLifetime, AWheelOutlivesThePlacingOfItsLabels) {
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
