#pragma once

#include <functional>
#include <memory>
#include <string>

#include "GalleryExhibit.h"
#include "GallerySettings.h"
#include "GalleryWorkout.h"
#include <GXUIPickers/GXBasePickerCell.h>
#include <GXUIPickers/UITableView.h>

namespace gallery {

/// One row of the entry screen: a part of the workout, the cell with whose picker it is entered, and how it is written.
///
/// The workout belongs to the screen and is shared by all rows; what the user picks goes there at once.
class GalleryMeasurement : public gx::NSObject {
public:
    /// The English text, which is also what it is called in tests.
    const std::string& name() const { return name_; }
    /// Called after the user has turned a wheel and the workout holds the new value.
    void setChanged(std::function<void()> changed) { changed_ = std::move(changed); }

    /// As the picker shows it: "5.3 km".
    virtual std::string valueInWords() = 0;

    virtual void registerCellInTable(gx::UITableView& table) const = 0;
    const std::string& cellIdentifier() const { return cellIdentifier_; }
    /// Brings the cell's picker to the units of the settings and the value of the workout, and listens to it. Other cells are left alone.
    virtual void showInCell(const gx::Ref<gx::UITableViewCell>& cell) = 0;

protected:
    void setUp(std::string name, std::string cellIdentifier, std::shared_ptr<GalleryWorkout> workout, GallerySettings settings) {
        name_ = std::move(name);
        cellIdentifier_ = std::move(cellIdentifier);
        workout_ = std::move(workout);
        settings_ = std::move(settings);
    }
    GalleryWorkout& workout() const { return *workout_; }
    const GallerySettings& settings() const { return settings_; }
    void noteChange() {
        const std::function<void()> changed = changed_; // It may replace itself.
        if (changed) changed();
    }

private:
    std::string name_;
    std::string cellIdentifier_;
    std::shared_ptr<GalleryWorkout> workout_;
    GallerySettings settings_;
    std::function<void()> changed_;
};

/// What rows have in common whose picker is a `GXBasePickerView` in a cell of its own. A row says how to bring a picker to the workout,
/// what to take from it, and how to read it.
template <class Cell, class Picker>
class GalleryPickerMeasurement : public GalleryMeasurement, public gx::GXBasePickerViewDelegate {
public:
    using Configure = void (*)(Picker& picker, const GalleryWorkout& workout, const GallerySettings& settings);
    /// `sender` is the picker that was turned, which within a composite is an inner one.
    using Take = void (*)(GalleryWorkout& workout, const Picker& picker, const gx::Ref<gx::GXBasePickerView>& sender,
                          const gx::NSNumber& value);
    using Words = std::string (*)(const gx::Ref<Picker>& picker);
    /// Brings a picker to its units and steps.
    using Prepare = void (*)(Picker& picker, const GallerySettings& settings);

    static gx::Ref<GalleryMeasurement> measurement(std::string name, std::shared_ptr<GalleryWorkout> workout, GallerySettings settings,
                                                   Configure configure, Take take, Words words) {
        auto made = gx::create<GalleryPickerMeasurement>();
        made->setUp(std::move(name), Cell::cellIdentifier(), std::move(workout), std::move(settings));
        made->configure_ = configure;
        made->take_ = take;
        made->words_ = words;
        return made;
    }

    /// A row for one number of the workout, which is the picker's current value.
    static gx::Ref<GalleryMeasurement> measurementOfValue(std::string name, std::shared_ptr<GalleryWorkout> workout,
                                                          GallerySettings settings, double GalleryWorkout::*value, Prepare prepare,
                                                          Words words) {
        auto made = gx::create<GalleryPickerMeasurement>();
        made->setUp(std::move(name), Cell::cellIdentifier(), std::move(workout), std::move(settings));
        made->value_ = value;
        made->prepare_ = prepare;
        made->words_ = words;
        return made;
    }

    /// Read off a picker that is never shown, so that the row says what the wheel says.
    std::string valueInWords() override {
        if (!reader_) reader_ = gx::create<Picker>(gx::CGRectZero);
        configure(*reader_);
        return words_(reader_);
    }

    void registerCellInTable(gx::UITableView& table) const override { table.registerClass_forCellReuseIdentifier<Cell>(cellIdentifier()); }

    void showInCell(const gx::Ref<gx::UITableViewCell>& cell) override {
        const auto host = std::dynamic_pointer_cast<gx::GXBasePickerCell>(cell);
        picker_ = std::dynamic_pointer_cast<Picker>(host ? host->pickerView() : nullptr);
        if (!picker_) return;
        configure(*picker_);
        picker_->setDelegate(gx::refTo(this));
        fitFonts(picker_);
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
    double GalleryWorkout::*value_ = nullptr;
    Prepare prepare_ = nullptr;
    Words words_ = nullptr;
    gx::Ref<Picker> reader_;
    gx::Ref<Picker> picker_;
};

} // namespace gallery
