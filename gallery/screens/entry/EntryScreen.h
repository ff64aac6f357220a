#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "EntryHeader.h"
#include "EntryList.h"
#include "Settings.h"
#include "UserFiles.h"

namespace gallery {

/// "Add workout": a table with a row for each measurement, and the picker of the open one.
///
/// - Where the window has room for both, the picker is beside the table, else below its row. See
///   `EntryList`.
/// - "Save" and "Open" keep the workout in a file.
///
/// Invariant: the workout has the values that the rows show. A wheel that still spins is finished
/// before its row closes and before the workout is saved.
class EntryScreen : public gx::UIView {
public:
    bool initWithFrame(gx::CGRect frame) override;

    /// Makes all rows again; the workout, the open row and the scroll position stay.
    void setSettings(const Settings& settings);
    /// Without files the buttons are hidden.
    void setFiles(std::shared_ptr<UserFiles> files);
    /// False where a bar above the screen has the title.
    void setShowsTitle(bool shows);
    /// Whether the open picker is beside the table, from the next layout on. Default: false.
    void setShowsPickerBeside(bool beside);

    const Workout& workout() const { return *workout_; }
    void setWorkout(const Workout& workout);

    const std::vector<MeasurementGroup>& groups() const { return list_->groups(); }
    /// Among all measurements, counted over the groups; nothing while no picker is open.
    std::optional<std::size_t> openMeasurement() const { return list_->openMeasurement(); }
    /// Closes the open picker and opens that of a measurement, if one is given. Ignored for one
    /// that does not exist.
    void openMeasurement_animated(std::optional<std::size_t> measurement, bool animated) {
        list_->openMeasurement_animated(measurement, animated);
    }
    std::size_t measurementCount() const { return list_->measurementCount(); }
    const gx::Ref<Measurement>& measurement(std::size_t index) const { return list_->measurement(index); }
    /// Where the row of a measurement is in the table. Its picker, if it is open and not beside the
    /// table, is one row below.
    gx::NSIndexPath pathOfMeasurement(std::size_t index) const { return list_->pathOfMeasurement(index); }

    /// Ends every spin at once, on the row that it was heading for.
    void finishSpins() { list_->finishSpins(); }
    void save();
    void open();
    /// The last message for the user; empty for none.
    const std::string& message() const { return header_->message(); }

    const gx::Ref<EntryHeader>& header() const { return header_; }
    const gx::Ref<gx::UITableView>& table() const { return list_->table(); }
    /// Hidden while pickers open in the table.
    const gx::Ref<PickerPane>& pane() const { return list_->pane(); }
    /// The cell of the open picker, in the table or beside it. Nothing while none is open, and
    /// while it is out of sight in the table.
    gx::Ref<gx::UITableViewCell> openPickerCell() { return list_->openPickerCell(); }
    const gx::Ref<Button>& saveButton() const { return header_->saveButton(); }
    const gx::Ref<Button>& openButton() const { return header_->openButton(); }

    gx::CGSize sizeThatFits(gx::CGSize available) const override { return available; }
    void layoutSubviews() override;

private:
    void showTexts();
    using MessageKind = EntryHeader::MessageKind;
    void tell(const std::string& message, MessageKind kind);

    std::shared_ptr<Workout> workout_ = std::make_shared<Workout>();
    Settings settings_;
    std::shared_ptr<UserFiles> files_;

    gx::Ref<EntryHeader> header_;
    gx::Ref<EntryList> list_;
};

} // namespace gallery
