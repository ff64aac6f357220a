#include "EntryRows.h"

#include <numeric>

using namespace gx;

namespace gallery {

std::size_t EntryRows::measurementCount() const { return std::accumulate(sections_.begin(), sections_.end(), std::size_t{0}); }

NSInteger EntryRows::rowCountOfSection(NSInteger section) const {
    const auto count = static_cast<NSInteger>(sections_[static_cast<std::size_t>(section)]);
    return showsPicker() && pathOfPicker().section == section ? count + 1 : count;
}

NSIndexPath EntryRows::pathOfMeasurement(std::size_t measurement) const {
    std::size_t section = 0;
    std::size_t first = 0;
    while (measurement - first >= sections_[section]) first += sections_[section++];
    const bool isBelowPicker = showsPicker() && *open_ >= first && *open_ < measurement;
    return {static_cast<NSInteger>(section), static_cast<NSInteger>(measurement - first) + (isBelowPicker ? 1 : 0)};
}

NSIndexPath EntryRows::pathOfPicker() const {
    const NSIndexPath row = pathOfMeasurement(*open_);
    return {row.section, row.row + 1};
}

EntryRows::Row EntryRows::rowAt(NSIndexPath path) const {
    Row found;
    for (NSInteger section = 0; section < path.section; ++section) found.measurement += sections_[static_cast<std::size_t>(section)];
    found.measurement += static_cast<std::size_t>(path.row);
    const bool isInSection = showsPicker() && pathOfPicker().section == path.section;
    if (isInSection && path.row >= pathOfPicker().row) {
        found.isPicker = path.row == pathOfPicker().row;
        --found.measurement;
    }
    return found;
}

} // namespace gallery
