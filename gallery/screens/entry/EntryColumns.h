#pragma once

#include <GXUIPickers/CGGeometry.h>

namespace gallery {

/// How the entry screen divides its width: the head above all, the table, and beside that the open
/// picker, if there is room for both.
///
/// Numbers only, counted from the edge where lines begin.
struct EntryColumns {
    struct Span {
        gx::CGFloat x = 0;
        gx::CGFloat width = 0;
    };
    Span header;
    Span table;
    /// Empty while pickers open within the table.
    Span pane;

    static EntryColumns columnsForWidth(gx::CGFloat width, bool isPickerBeside);
};

} // namespace gallery
