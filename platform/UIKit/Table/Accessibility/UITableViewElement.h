#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "NSIndexPath.h"
#include "UITableViewCell.h"

namespace gx {

/// What a screen reader finds of a table: for each section a heading, if it has a title, and a
/// list of its rows.
///
/// Rows that are out of sight are items too. They are made when they are asked for, and come into
/// sight when they get the focus or are activated. An item is known by its path: after an insertion
/// above, the same item is another row.
///
/// A row that is part of the one above it, such as an open picker, is no item of its own. What it
/// holds belongs to the row above.
class UITableViewElement : public UIAccessibilityElement {
public:
    /// The table, as its elements know it. Lives as long as the view; a reference to it keeps the
    /// view alive. Every call may query the data source and the delegate.
    class Table {
    public:
        using CellReader = std::function<void(UITableViewCell& cell)>;

        virtual NSInteger sectionCount() = 0;
        virtual NSInteger rowCount(NSInteger section) = 0;
        virtual std::optional<std::string> title(NSInteger section) = 0;
        virtual bool isPartOfRowAbove(NSIndexPath path) = 0;
        virtual bool canTap(NSIndexPath path) = 0;
        virtual CGRect frameOfHeader(NSInteger section) = 0;
        virtual CGRect frameOfRow(NSIndexPath path) = 0;
        /// Nothing for a view that shows no row or no header at present.
        virtual std::optional<NSIndexPath> rowOfView(const Ref<UIView>& view) = 0;
        virtual std::optional<NSInteger> sectionOfHeader(const Ref<UIView>& view) = 0;
        /// Only of a row in sight.
        virtual Ref<UITableViewCell> visibleCell(NSIndexPath path) = 0;
        /// Of any row; one out of sight gets a cell for the length of the call.
        virtual void readCell(NSIndexPath path, const CellReader& read) = 0;
        virtual std::optional<NSIndexPath> rowOfKeys() = 0;
        /// Makes it the row of the keys, and brings it into sight.
        virtual void chooseRow(NSIndexPath path) = 0;
        virtual void tapRow(NSIndexPath path, NSTimeInterval time) = 0;

    protected:
        ~Table() = default;
    };

    /// Sections with more rows have no parts of rows. Chosen: so many queries take no time that a
    /// user notices.
    static constexpr NSInteger highestPartCount = 1000;
    /// A table of more sections offers those in sight alone. Chosen as more than a user would go
    /// through one by one.
    static constexpr NSInteger highestSectionCount = 100;

    /// What the table offers, in reading order: headings, rows in sight, what can be operated in
    /// them, lists of which no row is in sight, and other views in the table.
    static UIAccessibilityElements elementsOf(const Ref<UIView>& view, const Ref<Table>& table);
    /// The row of the keys, while it has the focus.
    static Ref<UIAccessibilityElement> focusedOf(const Ref<UIView>& view, const Ref<Table>& table);

    bool exists() const override;
    CGRect frame() const override;

protected:
    UITableViewElement(const Ref<UIView>& view, UIAccessibilityRole role, NSInteger part, WeakRef<Table> table)
        : UIAccessibilityElement(view, role, part), table_(std::move(table)) {}

    /// Nothing once the view is gone.
    Ref<Table> table() const { return table_.lock(); }
    Ref<UIView> tableView() const { return std::static_pointer_cast<UIView>(view()); }
    virtual bool existsIn(Table& table) const = 0;
    /// In the table's coordinates.
    virtual CGRect frameIn(Table& table) const = 0;

private:
    WeakRef<Table> table_;
};

} // namespace gx
