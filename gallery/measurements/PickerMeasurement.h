#pragma once

#include <memory>
#include <string>
#include <utility>

#include "Measurement.h"
#include <GXUIPickers/GXBasePickerCell.h>

namespace gallery {

/// A measurement whose picker is a `GXBasePickerView` in a cell of its own. It says how to bring a
/// picker to the workout, and what to take from it.
template <class Cell, class Picker>
class PickerMeasurement : public Measurement, public gx::GXBasePickerViewDelegate {
public:
    using Configure = void (*)(Picker& picker, const Workout& workout, const Settings& settings);
    /// `sender` is the picker that was turned, which within a composite is an inner one.
    using Take = void (*)(Workout& workout, const Picker& picker, const gx::Ref<gx::GXBasePickerView>& sender, const gx::NSNumber& value);
    /// Brings a picker to its units and steps.
    using Prepare = void (*)(Picker& picker, const Settings& settings);

    static gx::Ref<Measurement> measurement(std::string name, std::shared_ptr<Workout> workout, Settings settings, Configure configure,
                                            Take take) {
        auto made = gx::create<PickerMeasurement>();
        made->setUp(std::move(name), Cell::cellIdentifier(), std::move(workout), std::move(settings));
        made->configure_ = configure;
        made->take_ = take;
        return made;
    }

    /// A row for one number of the workout, which is the picker's current value.
    static gx::Ref<Measurement> measurementOfValue(std::string name, std::shared_ptr<Workout> workout, Settings settings,
                                                   double Workout::*value, Prepare prepare) {
        auto made = gx::create<PickerMeasurement>();
        made->setUp(std::move(name), Cell::cellIdentifier(), std::move(workout), std::move(settings));
        made->value_ = value;
        made->prepare_ = prepare;
        return made;
    }

    /// The open picker's text. Before there is one, a picker that lives no longer than the call has
    /// the same.
    std::string valueText() override {
        if (picker_) return picker_->currentValueText();
        const gx::Ref<Picker> picker = gx::create<Picker>(gx::CGRectZero);
        configure(*picker);
        return picker->currentValueText();
    }

    void showWorkout() override {
        if (picker_) configure(*picker_);
    }

    void registerCellInTable(gx::UITableView& table) const override { table.registerClass_forCellReuseIdentifier<Cell>(cellIdentifier()); }

    void showInCell(const gx::Ref<gx::UITableViewCell>& cell) override {
        const auto host = std::dynamic_pointer_cast<gx::GXBasePickerCell>(cell);
        picker_ = std::dynamic_pointer_cast<Picker>(host ? host->pickerView() : nullptr);
        if (!picker_) return;
        configure(*picker_);
        picker_->setDelegate(gx::refTo(this));
        fitPicker();
    }

    void fitPicker() override {
        if (picker_) picker_->sizeFontsToFit();
    }

    gx::CGFloat smallestPickerHeightForWidth(gx::CGFloat width) override {
        if (picker_) return picker_->smallestHeightForWidth(width);
        const gx::Ref<Picker> picker = gx::create<Picker>(gx::CGRectMake(0, 0, width, 0));
        configure(*picker);
        return picker->smallestHeightForWidth(width);
    }

    void pickerView_didChangeCurrentValue_forComponent(const gx::Ref<gx::GXBasePickerView>& sender, const gx::NSNumber& value,
                                                       gx::NSInteger) override {
        const auto keep = gx::refTo(this);
        if (!picker_) return;
        if (take_) take_(workout(), *picker_, sender, value);
        if (value_) workout().*value_ = value.doubleValue();
        noteChange();
    }

private:
    void configure(Picker& picker) {
        if (configure_) configure_(picker, workout(), settings());
        if (prepare_) prepare_(picker, settings());
        if (value_) picker.setCurrentValue(gx::NSNumber::numberWithDouble(workout().*value_));
    }

    Configure configure_ = nullptr;
    Take take_ = nullptr;
    double Workout::*value_ = nullptr;
    Prepare prepare_ = nullptr;
    gx::Ref<Picker> picker_;
};

} // namespace gallery
