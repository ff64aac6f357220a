#pragma once

#include "GXExport.h"
#include "NSObject.h"

namespace gx {

/// The place of a row in a table: a section, and a row in it. Both count from 0.
struct GX_EXPORT NSIndexPath {
    NSInteger section = 0; ///< from 0
    NSInteger row = 0;     ///< within the section, from 0

    /// Unchecked: negative numbers are kept, and name no row.
    static constexpr NSIndexPath indexPathForRow_inSection(NSInteger row, NSInteger section) { return {section, row}; }

    friend constexpr bool operator==(const NSIndexPath&, const NSIndexPath&) = default;
    /// From top to bottom.
    friend constexpr bool operator<(const NSIndexPath& first, const NSIndexPath& second) {
        return first.section < second.section || (first.section == second.section && first.row < second.row);
    }
};

} // namespace gx
