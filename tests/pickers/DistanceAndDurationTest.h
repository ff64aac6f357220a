#pragma once

#include "CompositeTest.h"
#include "GXDistanceAndDurationPicker.h"

/// A composite in kilometres, and a delegate that it has not been given yet.
struct DistanceAndDuration : testing::Test {
    DistanceAndDuration() {
        picker->setIsMetric(true);
        notices = gx::create<PickerNotices>();
    }

    gx::Ref<gx::GXMultiValuePickerView> distanceWheel() const { return picker->distancePicker()->pickerView(); }
    gx::Ref<gx::GXMultiValuePickerView> durationWheel() const { return picker->durationPicker()->pickerView(); }
    /// Gives the composite a delegate and leads the inner pickers' notices through the composite
    /// again.
    void relay() {
        picker->setDelegate(notices);
        picker->distancePicker()->setDelegate(picker);
        picker->durationPicker()->setDelegate(picker);
    }
    void expectTold(std::size_t index, const gx::Ref<gx::GXBasePickerView>& sender, double value, gx::NSInteger component) {
        ASSERT_LT(index, notices->list.size());
        EXPECT_EQ(notices->list[index].picker, sender);
        EXPECT_EQ(notices->list[index].value.doubleValue(), value);
        EXPECT_EQ(notices->list[index].component, component);
    }
    void expectFrames(gx::CGRect distance, gx::CGRect duration) {
        EXPECT_EQ(picker->distancePicker()->frame(), distance);
        EXPECT_EQ(picker->durationPicker()->frame(), duration);
        picker->layoutIfNeeded();
        EXPECT_EQ(distanceWheel()->bounds(), (gx::CGRect{{0, 0}, distance.size}));
        EXPECT_EQ(durationWheel()->bounds(), (gx::CGRect{{0, 0}, duration.size}));
    }

    gx::Ref<gx::GXDistanceAndDurationPicker> picker = gx::create<gx::GXDistanceAndDurationPicker>(upright);
    gx::Ref<PickerNotices> notices;
};
