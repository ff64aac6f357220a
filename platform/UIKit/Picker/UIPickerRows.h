#pragma once

#include "UIPickerComponents.h"

namespace gx {

/// What the rows of a wheel show: binds visible rows to views, and reads their titles.
///
/// A delegate's view goes before its attributed title, and that before its plain one. Views of rows
/// that are not visible any more are reused. Queries may change the rows or replace the delegate;
/// what was made for rows that are gone is dropped.
class UIPickerRows {
public:
    UIPickerRows(UIPickerOwner& owner, UIPickerComponents& components) : owner_(owner), components_(components) {}

    /// Which visible rows are bound to a view.
    enum class Binding {
        All,    ///< also those that have a view, since what they show may have changed
        Missing ///< those that have come into sight
    };
    /// Gives each visible row of a component a view.
    void showRows(NSInteger component, Binding binding);
    /// Its attributed title, or else the plain one; nothing for a row that does not exist, or is
    /// gone after a query.
    std::optional<std::string> titleOfRow(NSInteger row, NSInteger component);
    /// What a screen reader says of a row: the delegate's text, or what the row shows.
    std::optional<std::string> accessibilityText(NSInteger row, NSInteger component);

private:
    void showRow(NSInteger component, NSInteger row);

    UIPickerOwner& owner_;
    UIPickerComponents& components_;
};

} // namespace gx
