#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Settings.h"
#include "Workout.h"
#include <GXUIPickers/UITableView.h>

namespace gallery {

/// One row of the entry screen: a part of the workout, and the cell with whose picker it is
/// entered.
///
/// The workout belongs to the screen and is shared by all rows; what the user picks goes there at
/// once.
class Measurement : public gx::NSObject {
public:
    /// The English text, which is also what it is called in tests.
    const std::string& name() const { return name_; }
    /// Called after the user has turned a wheel and the workout holds the new value.
    void setChanged(std::function<void()> changed) { changed_ = std::move(changed); }

    /// The text of the picker's present value: "5.3 km".
    virtual std::string valueText() = 0;
    /// Brings the open picker, if there is one, to the units of the settings and the value of the
    /// workout.
    virtual void showWorkout() = 0;

    virtual void registerCellInTable(gx::UITableView& table) const = 0;
    const std::string& cellIdentifier() const { return cellIdentifier_; }
    /// Makes the cell's picker the open one: it shows the workout, and the measurement becomes its
    /// delegate. Other cells are left alone.
    virtual void showInCell(const gx::Ref<gx::UITableViewCell>& cell) = 0;
    /// To be called when the open picker has got another size: fits its fonts. A wheel that spins
    /// goes on.
    virtual void fitPicker() = 0;
    /// The least height at which a picker of this width shows its rows well, at the present text
    /// size.
    virtual gx::CGFloat smallestPickerHeightForWidth(gx::CGFloat width) = 0;

protected:
    void setUp(std::string name, std::string cellIdentifier, std::shared_ptr<Workout> workout, Settings settings) {
        name_ = std::move(name);
        cellIdentifier_ = std::move(cellIdentifier);
        workout_ = std::move(workout);
        settings_ = std::move(settings);
    }
    Workout& workout() const { return *workout_; }
    const Settings& settings() const { return settings_; }
    void noteChange() {
        const std::function<void()> changed = changed_; // It may replace itself.
        if (changed) changed();
    }

private:
    std::string name_;
    std::string cellIdentifier_;
    std::shared_ptr<Workout> workout_;
    Settings settings_;
    std::function<void()> changed_;
};

/// Measurements under one heading.
struct MeasurementGroup {
    std::string heading;
    std::vector<gx::Ref<Measurement>> measurements;
};

} // namespace gallery
