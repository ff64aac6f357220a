#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <GXUIPickers/NSIndexPath.h>

namespace gallery {

/// Where the rows of the entry screen lie: in each section one row for each measurement, and below
/// the row of the open measurement one for its picker, unless that is shown elsewhere.
///
/// Measurements count over all sections. It knows numbers only, neither views nor values.
class EntryRows {
public:
    struct Row {
        std::size_t measurement = 0;
        bool isPicker = false;
    };

    /// How many measurements each section has. The open one stays.
    void setSections(std::vector<std::size_t> measurementCounts) { sections_ = std::move(measurementCounts); }
    std::size_t measurementCount() const;

    /// Nothing while no picker is open.
    std::optional<std::size_t> open() const { return open_; }
    void setOpen(std::optional<std::size_t> measurement) { open_ = measurement; }
    /// Whether an open picker has a row. Default: true.
    bool hasPickerRow() const { return hasPickerRow_; }
    void setHasPickerRow(bool has) { hasPickerRow_ = has; }

    gx::NSInteger sectionCount() const { return static_cast<gx::NSInteger>(sections_.size()); }
    gx::NSInteger rowCountOfSection(gx::NSInteger section) const;
    /// The row of a measurement that exists.
    gx::NSIndexPath pathOfMeasurement(std::size_t measurement) const;
    /// The row of the open picker, or the one that it would have; there has to be an open one.
    gx::NSIndexPath pathOfPicker() const;
    Row rowAt(gx::NSIndexPath path) const;

private:
    bool showsPicker() const { return open_ && hasPickerRow_; }

    std::vector<std::size_t> sections_;
    std::optional<std::size_t> open_;
    bool hasPickerRow_ = true;
};

} // namespace gallery
