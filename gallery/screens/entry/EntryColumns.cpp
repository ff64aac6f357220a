#include "EntryColumns.h"

#include <algorithm>
#include <cmath>

#include "Theme.h"

using namespace gx;

namespace gallery {

namespace {

// In wider rows the value is too far from its name, also in a table beside which is a picker. Wider
// pickers have their columns amid nothing. All chosen by eye, for scale 1.
constexpr CGFloat widestTable = 640;
constexpr CGFloat widestTableBesidePicker = 480;
constexpr CGFloat widestPane = 640;
constexpr double tablesShareBesidePicker = 0.46;
// Below it, table and pane are so narrow that the margins are those of a phone.
constexpr CGFloat roomyWidth = 800;

} // namespace

EntryColumns EntryColumns::columnsForWidth(CGFloat width, bool isPickerBeside) {
    EntryColumns columns;
    if (!isPickerBeside) {
        const CGFloat margin = Theme::marginForWidth(width);
        columns.header = {margin, std::clamp(width - 2 * margin, 0.0, Theme::grown(widestTable))};
        // On a phone rows run from edge to edge.
        columns.table = width < widestTable ? Span{0, width} : columns.header;
        return columns;
    }
    const CGFloat margin = width < roomyWidth ? Theme::cardPadding : Theme::marginForWidth(width);
    const CGFloat room = std::max(0.0, width - 2 * margin - Theme::gap);
    columns.table = {margin, std::min(std::round(tablesShareBesidePicker * room), Theme::grown(widestTableBesidePicker))};
    const CGFloat x = margin + columns.table.width + Theme::gap;
    columns.pane = {x, std::min(room - columns.table.width, Theme::grown(widestPane))};
    columns.header = {margin, x + columns.pane.width - margin};
    return columns;
}

} // namespace gallery
