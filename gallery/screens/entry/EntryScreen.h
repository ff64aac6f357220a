#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Button.h"
#include "EntryRows.h"
#include "Measurement.h"
#include "Paragraph.h"
#include "UserFiles.h"
#include <GXUIPickers/UITableView.h>

namespace gallery {

class MeasurementCell;

/// "Add workout": a table with a row for each measurement.
///
/// - A tap on a row opens its picker below it, a second tap closes it. The value in the row follows
///   the wheel.
/// - "Save" and "Open" keep the workout in a file.
///
/// Invariant: the workout has the values that the rows show. A wheel that still spins is finished
/// before its row closes and before the workout is saved.
class EntryScreen : public gx::UIView, public gx::UITableViewDataSource, public gx::UITableViewDelegate {
public:
    bool initWithFrame(gx::CGRect frame) override;

    /// Makes all rows again; the workout, the open row and the scroll position stay.
    void setSettings(const Settings& settings);
    /// Without files the buttons are hidden.
    void setFiles(std::shared_ptr<UserFiles> files);
    /// False where a bar above the screen has the title.
    void setShowsTitle(bool shows);

    const Workout& workout() const { return *workout_; }
    void setWorkout(const Workout& workout);

    const std::vector<MeasurementGroup>& groups() const { return groups_; }
    /// Among all measurements, counted over the groups; nothing while no picker is open.
    std::optional<std::size_t> openMeasurement() const { return rows_.open(); }
    /// Closes the open picker and opens that of a measurement, if one is given. Ignored for one
    /// that does not exist.
    void openMeasurement_animated(std::optional<std::size_t> measurement, bool animated);
    std::size_t measurementCount() const { return rows_.measurementCount(); }
    const gx::Ref<Measurement>& measurement(std::size_t index) const;
    /// Where the row of a measurement is in the table. Its picker, if it is open, is one row below.
    gx::NSIndexPath pathOfMeasurement(std::size_t index) const { return rows_.pathOfMeasurement(index); }

    /// Ends every spin at once, on the row that it was heading for.
    void finishSpins();
    void save();
    void open();
    /// The last message for the user; empty for none.
    const std::string& message() const { return message_->text(); }

    const gx::Ref<gx::UITableView>& table() const { return table_; }
    const gx::Ref<Button>& saveButton() const { return saveButton_; }
    const gx::Ref<Button>& openButton() const { return openButton_; }

    gx::CGSize sizeThatFits(gx::CGSize available) const override { return available; }
    void layoutSubviews() override;
    /// Escape closes the open picker.
    bool keyPressed(const gx::UIKey& key) override;

    gx::NSInteger numberOfSectionsInTableView(const gx::Ref<gx::UITableView>&) override { return rows_.sectionCount(); }
    gx::NSInteger tableView_numberOfRowsInSection(const gx::Ref<gx::UITableView>& table, gx::NSInteger section) override;
    std::optional<std::string> tableView_titleForHeaderInSection(const gx::Ref<gx::UITableView>& table, gx::NSInteger section) override;
    gx::Ref<gx::UITableViewCell> tableView_cellForRowAtIndexPath(const gx::Ref<gx::UITableView>& table, gx::NSIndexPath path) override;
    gx::CGFloat tableView_heightForRowAtIndexPath(const gx::Ref<gx::UITableView>& table, gx::NSIndexPath path) override;
    bool tableView_shouldHighlightRowAtIndexPath(const gx::Ref<gx::UITableView>& table, gx::NSIndexPath path) override;
    void tableView_didSelectRowAtIndexPath(const gx::Ref<gx::UITableView>& table, gx::NSIndexPath path) override;

private:
    struct Texts {
        std::string name;
        std::string value;
    };
    gx::CGFloat pickerHeight() const;
    void makeRows();
    void noteValue(std::size_t measurement);
    void showRow(std::size_t measurement);
    void fillRow(MeasurementCell& cell, std::size_t measurement);
    void tell(const std::string& message, bool isError);

    std::shared_ptr<Workout> workout_ = std::make_shared<Workout>();
    Settings settings_;
    std::vector<MeasurementGroup> groups_;
    EntryRows rows_;
    std::vector<Texts> texts_;                   // Of each measurement.
    gx::WeakRef<gx::UITableViewCell> readyCell_; // The cell whose picker shows the workout.
    std::shared_ptr<UserFiles> files_;
    bool showsTitle_ = true;

    gx::Ref<gx::UITableView> table_;
    gx::Ref<gx::UILabel> title_;
    gx::Ref<Button> saveButton_;
    gx::Ref<Button> openButton_;
    gx::Ref<Paragraph> message_;
};

} // namespace gallery
