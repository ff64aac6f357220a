#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "GalleryButton.h"
#include "GalleryFiles.h"
#include "GalleryMeasurements.h"
#include "GalleryText.h"
#include <GXUIPickers/UITableView.h>

namespace gallery {

class GalleryRowCell;

/// "Add workout": a table with a row for each measurement. A tap on a row opens its picker below it, a second tap closes it; the value in
/// the row follows the wheel. "Save" and "Open" keep the workout in a file.
///
/// The workout always holds what the rows say: a wheel that still spins is settled before its row closes and before the workout is saved.
class GalleryEntry : public gx::UIView, public gx::UITableViewDataSource, public gx::UITableViewDelegate {
public:
    bool initWithFrame(gx::CGRect frame) override;

    /// Builds all rows anew; the workout, the open row and the place in the table stay.
    void setSettings(const GallerySettings& settings);
    /// Without files there is nothing to save to, and the buttons are hidden.
    void setFiles(std::shared_ptr<GalleryFiles> files);
    /// Without it where a bar above the screen tells the name.
    void setShowsTitle(bool shows);

    const GalleryWorkout& workout() const { return *workout_; }
    void setWorkout(const GalleryWorkout& workout);

    const std::vector<GalleryMeasurementGroup>& groups() const { return groups_; }
    /// Among all measurements, counted over the groups; nothing while no picker is open.
    std::optional<std::size_t> openMeasurement() const { return open_; }
    /// Opens the picker of a measurement and closes the one that was open; nothing only closes. Ignored for one that does not exist.
    void openMeasurement_animated(std::optional<std::size_t> measurement, bool animated);
    std::size_t measurementCount() const;
    const gx::Ref<GalleryMeasurement>& measurement(std::size_t index) const;
    /// Where the row of a measurement is in the table, and where its picker would be below it.
    gx::NSIndexPath pathOfMeasurement(std::size_t index) const;

    /// Ends the turn of every wheel at once, where it was heading for.
    void settleWheels();
    void save();
    void open();
    /// What the screen has told the user last; empty for nothing.
    const std::string& message() const { return message_->text(); }

    const gx::Ref<gx::UITableView>& table() const { return table_; }
    const gx::Ref<GalleryButton>& saveButton() const { return saveButton_; }
    const gx::Ref<GalleryButton>& openButton() const { return openButton_; }

    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;
    /// Escape closes the open picker.
    bool keyPressed(const gx::UIKey& key) override;

    gx::NSInteger numberOfSectionsInTableView(const gx::Ref<gx::UITableView>& table) override;
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
    struct Row {
        std::size_t measurement = 0;
        bool isPicker = false;
    };
    Row rowAt(gx::NSIndexPath path) const;
    gx::NSIndexPath pathOfPicker() const;
    gx::CGFloat pickerHeight() const;
    void makeRows();
    void noteValue(std::size_t measurement);
    void showRow(std::size_t measurement);
    void fillRow(GalleryRowCell& cell, std::size_t measurement);
    void tell(const std::string& message, bool isError);

    std::shared_ptr<GalleryWorkout> workout_ = std::make_shared<GalleryWorkout>();
    GallerySettings settings_;
    std::vector<GalleryMeasurementGroup> groups_;
    std::vector<Texts> texts_; // One for each measurement.
    std::optional<std::size_t> open_;
    gx::WeakRef<gx::UITableViewCell> readyCell_; // Its picker shows the workout.
    std::shared_ptr<GalleryFiles> files_;
    bool showsTitle_ = true;

    gx::Ref<gx::UITableView> table_;
    gx::Ref<gx::UILabel> title_;
    gx::Ref<GalleryButton> saveButton_;
    gx::Ref<GalleryButton> openButton_;
    gx::Ref<GalleryText> message_;
};

} // namespace gallery
