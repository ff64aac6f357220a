#pragma once

#include <vector>

#include "UIPickerCylinder.h"
#include "UIView.h"

namespace gx {

/// One column of a wheel on the screen: the views of its visible rows, drawn as a cylinder.
///
/// Its coordinates are those of its rows: row r lies at (r − anchor) · row height, and its bounds'
/// origin says which of them are visible. The foreshortening is drawing only: it never enters
/// frames. `UIPickerCylinder` says how they look, `UIPickerRows` binds them, `UIPickerColumnAxis`
/// says where they are.
///
/// A row that has faded out at an edge is not drawn, but it keeps its view, and is found by its
/// place: a tap there spins to it.
class UIPickerColumn : public UIView {
public:
    /// Who made the view of a row.
    enum class Maker { Wheel, Delegate };
    /// A view that shows a row.
    struct Row {
        NSInteger row = 0;
        Ref<UIView> view;
        Maker maker = Maker::Wheel;
    };

    bool initWithFrame(CGRect frame) override;

    /// In rows: those further away from the middle are not shown, however low rows are. Chosen:
    /// they could not be told apart.
    static constexpr double highestReach = 100;

    CGFloat rowHeight() const { return rowHeight_; }
    void setRowHeight(CGFloat height);
    /// Which part of the rows is in the middle.
    void scrollToAnchor_offset(NSInteger anchor, double offset);

    /// Of `count` rows those that are visible, `last` exclusive.
    struct Range {
        NSInteger first = 0;
        NSInteger last = 0;
    };
    Range rowsInSight(NSInteger count) const;
    /// How many rows are entirely visible while one is selected; at least 1.
    NSInteger rowsWhollyInSight() const;
    /// The row that is drawn at `y` of the column's frame, in rows from the anchor, with its
    /// fraction. Nothing beside the cylinder.
    std::optional<double> offsetDrawnAt(CGFloat y) const;

    /// The view that shows a row now, or nothing.
    Ref<UIView> viewForRow(NSInteger row) const;
    /// Whether any visible row shows something.
    bool showsSomething() const override;

    /// Puts the rows outside the range into the pool.
    void recycleRowsOutside(Range range);
    /// Takes the entry of this row or, without one, a pooled view of the same maker. The row is no
    /// longer shown. Without such a view the entry has none.
    Row takeRow(NSInteger row, Maker maker);
    /// Shows a row by this view.
    void showRow(Row row);
    /// Puts a taken view back that was not used.
    void pool(Row row);
    /// Removes pooled views beyond the size.
    void trimPool(std::size_t size);
    void removeAllRows();

protected:
    void boundsSizeDidChange() override;
    void drawSubviews(UIGraphicsContext& context) override;

private:
    double reach() const;
    CGRect frameOfRow(NSInteger row) const;

    std::vector<Row> shown_;
    std::vector<Row> pool_;
    UIPickerCylinder cylinder_;
    CGFloat rowHeight_ = UIPickerCylinder::initialRowHeight;
    NSInteger anchor_ = 0;
    double offset_ = 0;
};

} // namespace gx
