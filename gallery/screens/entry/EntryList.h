#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ContentScrollView.h"
#include "EntryRows.h"
#include "Measurement.h"
#include "PickerPane.h"
#include <GXUIPickers/UITableView.h>

namespace gallery {

class MeasurementCell;

/// The table of all measurements, and the open picker: below its row, or beside the table.
///
/// - A tap on a row opens its picker, a second tap closes it. The value in the row follows the
///   wheel.
/// - While the window is resized the picker moves from one place to the other, with its values and
///   the focus.
///
/// Invariants: rows show the values of the workout. A wheel that still spins is finished before it
/// closes or moves.
class EntryList : public gx::UIView, public gx::UITableViewDataSource, public gx::UITableViewDelegate {
public:
    bool initWithFrame(gx::CGRect frame) override;

    /// Makes all rows again; the open row and the scroll position stay.
    void makeRows(const std::shared_ptr<Workout>& workout, const Settings& settings);
    /// To be called when the workout has got other values.
    void showWorkout();
    /// Whether the open picker is beside the table, from the next layout on. Default: false.
    bool showsPickerBeside() const { return showsPickerBeside_; }
    void setShowsPickerBeside(bool beside) {
        if (beside == showsPickerBeside_) return;
        showsPickerBeside_ = beside;
        setNeedsLayout();
    }

    const std::vector<MeasurementGroup>& groups() const { return groups_; }
    std::optional<std::size_t> openMeasurement() const { return rows_.open(); }
    void openMeasurement_animated(std::optional<std::size_t> measurement, bool animated);
    std::size_t measurementCount() const { return rows_.measurementCount(); }
    const gx::Ref<Measurement>& measurement(std::size_t index) const;
    gx::NSIndexPath pathOfMeasurement(std::size_t index) const { return rows_.pathOfMeasurement(index); }
    void finishSpins();

    const gx::Ref<gx::UITableView>& table() const { return table_; }
    const gx::Ref<PickerPane>& pane() const { return pane_; }
    gx::Ref<gx::UITableViewCell> openPickerCell();

    void layoutSubviews() override;
    /// Escape closes the open picker.
    bool keyPressed(const gx::UIKey& key) override;

    gx::NSInteger numberOfSectionsInTableView(const gx::Ref<gx::UITableView>&) override { return rows_.sectionCount(); }
    gx::NSInteger tableView_numberOfRowsInSection(const gx::Ref<gx::UITableView>&, gx::NSInteger section) override {
        return rows_.rowCountOfSection(section);
    }
    std::optional<std::string> tableView_titleForHeaderInSection(const gx::Ref<gx::UITableView>& table, gx::NSInteger section) override;
    bool tableView_isRowPartOfRowAbove(const gx::Ref<gx::UITableView>&, gx::NSIndexPath path) override {
        return rows_.rowAt(path).isPicker;
    }
    gx::Ref<gx::UITableViewCell> tableView_cellForRowAtIndexPath(const gx::Ref<gx::UITableView>& table, gx::NSIndexPath path) override;
    gx::CGFloat tableView_heightForRowAtIndexPath(const gx::Ref<gx::UITableView>& table, gx::NSIndexPath path) override;
    gx::CGFloat tableView_heightForHeaderInSection(const gx::Ref<gx::UITableView>&, gx::NSInteger section) override {
        return heightOfHeading(section);
    }
    /// A paragraph for a heading that needs several lines.
    gx::Ref<gx::UIView> tableView_viewForHeaderInSection(const gx::Ref<gx::UITableView>& table, gx::NSInteger section) override;
    bool tableView_shouldHighlightRowAtIndexPath(const gx::Ref<gx::UITableView>&, gx::NSIndexPath path) override {
        return !rows_.rowAt(path).isPicker;
    }
    void tableView_didSelectRowAtIndexPath(const gx::Ref<gx::UITableView>& table, gx::NSIndexPath path) override;

private:
    struct Texts {
        std::string name;
        std::string value;
    };
    gx::CGFloat pickerHeight() const;
    void noteValue(std::size_t measurement);
    void showRow(std::size_t measurement);
    gx::CGFloat heightOfRow(std::size_t measurement) const;
    void fillRow(MeasurementCell& cell, std::size_t measurement);
    void showPicker(bool animated);
    void closePicker(bool animated);
    void showPickerInPane();
    void movePicker();
    gx::Ref<gx::UIView> focusInPicker() const;
    void placeTableAndPane();
    gx::CGFloat widthOfHeadings() const;
    gx::CGFloat heightOfHeading(gx::NSInteger section) const;

    std::vector<MeasurementGroup> groups_;
    EntryRows rows_;
    std::vector<Texts> texts_;                 // Of each measurement.
    std::vector<gx::Ref<Paragraph>> headings_; // For those of several lines.
    gx::Ref<gx::UITableViewCell> pickerCell_;  // Of the open picker, once it was shown.
    // Whether its picker has the values of the workout, and the fonts that fit in the table.
    bool isPickerReady_ = false;
    bool showsPickerBeside_ = false;

    gx::Ref<gx::UITableView> table_;
    gx::Ref<MeasurementCell> measuringCell_; // Never shown.
    gx::Ref<PickerPane> pane_;
    gx::Ref<ContentScrollView> paneScroll_;
};

} // namespace gallery
