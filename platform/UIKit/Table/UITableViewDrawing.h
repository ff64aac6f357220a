#pragma once

#include <optional>

#include "UIGraphicsContext.h"
#include "UITableViewChange.h"
#include "UITableViewHeaders.h"
#include "UITableViewVisibleRows.h"

namespace gx {

/// Draws what a table shows beyond plain subviews: rows that a change moves, separators and the
/// mark of the focus.
///
/// It refers to the table's own state, which callbacks may modify while cells are drawn: a change
/// may end meanwhile.
class UITableViewDrawing {
public:
    /// Draws a view with its background and subviews, in its superview's coordinates.
    using DrawView = void (*)(UIView& view, UIGraphicsContext& context);

    UITableViewDrawing(const UIView& table, const UITableViewRows& rows, const UITableViewVisibleRows& visible,
                       const UITableViewHeaders& headers, const std::optional<UITableViewChange>& change)
        : table_(table), rows_(rows), visible_(visible), headers_(headers), change_(change) {}

    /// All subviews, as far as the present change has moved them. There has to be one.
    void drawChange(UIGraphicsContext& context, DrawView drawView) const;
    /// Between the rows of a section; they begin below the rows' text and run to the edge.
    void drawSeparators(UIGraphicsContext& context, const UIColor& color, CGFloat height) const;
    /// Over a row: a fill and an outline that lies inside the row.
    void drawFocus(UIGraphicsContext& context, NSIndexPath row, const UIColor& tint) const;
    /// A faint fill over a row.
    void drawHover(UIGraphicsContext& context, NSIndexPath row) const;

private:
    CGFloat width() const { return table_.bounds().size.width; }
    UITableViewRows::Span spanWhereDrawn(NSIndexPath row) const;

    const UIView& table_;
    const UITableViewRows& rows_;
    const UITableViewVisibleRows& visible_;
    const UITableViewHeaders& headers_;
    const std::optional<UITableViewChange>& change_;
};

} // namespace gx
