#pragma once

#include <functional>
#include <map>
#include <memory>
#include <utility>

#include "GXDistancePickerView.h"
#include "GXDurationPickerView.h"
#include "GXHeartRatePickerView.h"
#include "GXHeightPickerView.h"
#include "GXPacePickerView.h"
#include "GXWeightPickerView.h"
#include "PickerNotices.h"
#include "ReferenceNotation.h"

namespace reference {

using Setters = std::map<std::string, std::function<void(const Argument&)>>;

/// The properties that only one picker has.
inline Setters ownSetters(gx::GXBasePickerView&) { return {}; }
inline Setters ownSetters(gx::GXDistancePickerView& picker) {
    return {{"fraction", [&](const Argument& to) { picker.setNumberOfFractionUnits(to.narrow()); }}};
}
inline Setters ownSetters(gx::GXDurationPickerView& picker) {
    return {{"type", [&](const Argument& to) { picker.setType(to.number); }},
            {"hours", [&](const Argument& to) { picker.setHoursStepSize(to.narrow()); }},
            {"minutes", [&](const Argument& to) { picker.setMinutesStepSize(to.narrow()); }},
            {"seconds", [&](const Argument& to) { picker.setSecondsStepSize(to.narrow()); }}};
}
inline Setters ownSetters(gx::GXPacePickerView& picker) {
    return {{"minutes", [&](const Argument& to) { picker.setMinutesStepSize(to.narrow()); }},
            {"seconds", [&](const Argument& to) { picker.setSecondsStepSize(to.narrow()); }}};
}
inline Setters ownSetters(gx::GXHeartRatePickerView& picker) {
    return {{"nullrow", [&](const Argument& to) { picker.setShouldShowNullValue(to.flag()); }},
            {"gap", [&](const Argument& to) { picker.setMinimumGapBetweenAvgAndMax(to.box); }},
            {"average", [&](const Argument& to) { picker.setCurrentAvgHeartRate(to.box); }},
            {"maximum", [&](const Argument& to) { picker.setCurrentMaxHeartRate(to.box); }}};
}
inline Setters ownSetters(gx::GXWeightPickerView& picker) {
    return {{"unit", [&](const Argument& to) { picker.setWeightUnit(static_cast<gx::GXWeightUnit>(to.number)); }},
            {"selectable", [&](const Argument& to) { picker.setWeightUnitSelectable(to.flag()); }},
            {"bounds", [&](const Argument&) { picker.updateMinMaxWeight(); }}};
}

inline std::string storedIn(const gx::GXBasePickerView& picker) { return textOf(picker.currentValue()); }
inline std::string storedIn(const gx::GXHeartRatePickerView& picker) {
    return textOf(picker.currentAvgHeartRate()) + " " + textOf(picker.currentMaxHeartRate());
}

/// A new picker of 320 by 216 points, and all that a table says of one.
struct Subject {
    virtual ~Subject() = default;
    virtual const gx::Ref<gx::UIPickerView>& wheel() = 0;
    virtual std::optional<std::string> title(gx::NSInteger row, gx::NSInteger component) = 0;
    virtual std::string stored() = 0;
    /// What the delegate was told since the last call of this.
    virtual Texts takeTold() = 0;

    Setters setters;
};

/// Any picker but the height picker.
struct BaseSubject : Subject {
    using Stored = std::string (*)(const gx::GXBasePickerView&);
    BaseSubject(const gx::Ref<gx::GXBasePickerView>& tested, Setters own, Stored storedIn) : picker(tested), stored_(storedIn) {
        picker->setDelegate(notices);
        setters = std::move(own);
        setters["min"] = [this](const Argument& to) { picker->setMinValue(to.box); };
        setters["max"] = [this](const Argument& to) { picker->setMaxValue(to.box); };
        setters["step"] = [this](const Argument& to) { picker->setStepSize(to.box); };
        setters["current"] = [this](const Argument& to) { picker->setCurrentValue(to.box); };
        setters["metric"] = [this](const Argument& to) { picker->setIsMetric(to.flag()); };
    }
    const gx::Ref<gx::UIPickerView>& wheel() override { return wheel_; }
    std::optional<std::string> title(gx::NSInteger row, gx::NSInteger component) override {
        return picker->pickerView_titleForRow_forComponent(wheel_, row, component);
    }
    std::string stored() override { return stored_(*picker); }
    Texts takeTold() override {
        Texts told;
        for (const PickerNotices::Notice& notice : notices->list) {
            EXPECT_EQ(notice.picker, picker);
            told.push_back(textOf(notice.component, notice.value));
        }
        notices->list.clear();
        return told;
    }

    gx::Ref<gx::GXBasePickerView> picker;
    Stored stored_;
    gx::Ref<gx::UIPickerView> wheel_ = picker->pickerView();
    gx::Ref<PickerNotices> notices = gx::create<PickerNotices>();
};
template <class Picker>
std::unique_ptr<Subject> subject() {
    const auto picker = gx::create<Picker>(gx::CGRectMake(0, 0, 320, 216));
    const auto storedInPicker = [](const gx::GXBasePickerView& any) { return storedIn(static_cast<const Picker&>(any)); };
    return std::make_unique<BaseSubject>(picker, ownSetters(*picker), storedInPicker);
}

struct HeightNotices : gx::NSObject, gx::GXHeightPickerViewDelegate {
    void heightPickerView_didSelectHeightInCm_metric(const gx::Ref<gx::GXHeightPickerView>&, gx::CGFloat height, bool metric) override {
        told.push_back(textOf(metric ? 1 : 0, gx::NSNumber::numberWithDouble(height)));
    }
    Texts told;
};

struct HeightSubject : Subject {
    HeightSubject() {
        picker->setHeightDelegate(notices);
        setters["metric"] = [this](const Argument& to) { picker->setIsMetric(to.flag()); };
        setters["height"] = [this](const Argument& to) { picker->setHeightInCm(to.real); };
    }
    const gx::Ref<gx::UIPickerView>& wheel() override { return wheel_; }
    std::optional<std::string> title(gx::NSInteger row, gx::NSInteger component) override {
        const auto attributed = picker->pickerView_attributedTitleForRow_forComponent(wheel_, row, component);
        return attributed ? std::optional(attributed->string()) : std::nullopt;
    }
    std::string stored() override { return "f64 " + textOf(picker->heightInCm()); }
    Texts takeTold() override { return std::exchange(notices->told, {}); }

    gx::Ref<gx::GXHeightPickerView> picker = gx::create<gx::GXHeightPickerView>(gx::CGRectMake(0, 0, 320, 216));
    gx::Ref<gx::UIPickerView> wheel_ = picker;
    gx::Ref<HeightNotices> notices = gx::create<HeightNotices>();
};
inline std::unique_ptr<Subject> heightSubject() { return std::make_unique<HeightSubject>(); }

} // namespace reference
