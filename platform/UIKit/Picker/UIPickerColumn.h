#pragma once

#include <vector>

#include "UIView.h"

namespace gx {

/// One column of a wheel on the screen: the views of the rows in sight, drawn as a cylinder.
///
/// Its coordinates are those of its rows: row r lies at (r − anchor) · row height, and its bounds' origin says
/// which of them are in sight. The foreshortening is drawing only.
class UIPickerColumn : public UIView {
public:
    /// A view that shows a row, and whether the delegate made it.
    struct Row {
        NSInteger row = 0;
        Ref<UIView> view;
        bool isDelegates = false;
    };

    bool initWithFrame(CGRect frame) override;

    /// Takes no rows in sight that are further away, however low the rows: nobody could tell them apart.
    static constexpr double highestReach = 100;

    CGFloat rowHeight() const { return rowHeight_; }
    void setRowHeight(CGFloat height);
    /// Which part of the rows is in the middle.
    void scrollToAnchor_offset(NSInteger anchor, double offset);
    CGSize rowSize() const { return {bounds().size.width, rowHeight_}; }

    /// The rows in sight, `last` exclusive, of `count` rows.
    struct Range {
        NSInteger first = 0;
        NSInteger last = 0;
    };
    Range rowsInSight(NSInteger count) const;
    /// How many rows show all of themselves while one stands in the band; at least 1.
    NSInteger rowsWhollyInSight() const;
    /// Where on the wheel the row lies that is drawn at `y` of the column's frame, in rows from the anchor;
    /// nothing beside the cylinder.
    std::optional<double> offsetDrawnAt(CGFloat y) const;

    /// The view that shows a row now, or nothing.
    Ref<UIView> viewForRow(NSInteger row) const;
    /// Whether any row in sight shows something.
    bool showsSomething() const override;

    /// Puts the rows outside the range into the pool.
    void recycleRowsOutside(Range range);
    /// Takes the entry of this row or, without one, a pooled view that suits; the row is no longer shown.
    Row takeRow(NSInteger row, bool isDelegates);
    /// Shows a row by this view.
    void showRow(Row row);
    /// Gives a taken view back that was not used.
    void pool(Row row);
    /// Lets go of views beyond what a moving column needs, or of all.
    void trimPool(std::size_t size);
    void removeAllRows();

protected:
    void drawSubviews(UIGraphicsContext& context) override;

private:
    CGFloat radius() const;
    double reach() const;
    CGRect frameOfRow(NSInteger row) const;

    std::vector<Row> shown_;
    std::vector<Row> pool_;
    CGFloat rowHeight_ = 32;
    NSInteger anchor_ = 0;
    double offset_ = 0;
};

} // namespace gx
