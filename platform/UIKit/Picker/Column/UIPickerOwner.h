#pragma once

#include <optional>
#include <string>

#include "NSAttributedString.h"
#include "UIView.h"

namespace gx {

/// The wheel, as its parts see it: calls of its data source and delegate, and its own virtual
/// operations.
///
/// All but `isLayoutNeeded` may call back: they may change the rows, replace the delegate or take
/// components away. The wheel keeps itself alive while it uses its parts.
class UIPickerOwner {
public:
    struct Sizes {
        std::optional<CGFloat> width; ///< nothing for an equal share
        CGFloat rowHeight = 0;        ///< above 0
    };
    /// A delegate, kept alive over several calls; empty without one.
    using Delegate = Ref<void>;

    virtual NSInteger queryNumberOfComponents() = 0;
    virtual NSInteger queryNumberOfRows(NSInteger component) = 0;
    virtual Sizes querySizes(NSInteger component) = 0;

    virtual Delegate lockDelegate() = 0;
    // Of a delegate that is there.
    virtual Ref<UIView> viewForRow(const Delegate& delegate, NSInteger row, NSInteger component, const Ref<UIView>& reused) = 0;
    virtual Ref<NSAttributedString> attributedTitleForRow(const Delegate& delegate, NSInteger row, NSInteger component) = 0;
    virtual std::optional<std::string> titleForRow(const Delegate& delegate, NSInteger row, NSInteger component) = 0;
    virtual std::optional<std::string> accessibilityLabel(const Delegate& delegate, NSInteger component) = 0;
    virtual std::optional<std::string> accessibilityValue(const Delegate& delegate, NSInteger row, NSInteger component) = 0;

    // What subclasses of the wheel may override.
    /// Of rows with a title alone. Nothing leaves it to the label.
    virtual Ref<UIFont> titleFont() { return nullptr; }
    /// What is shown behind a component. Nothing without a separator.
    virtual std::optional<std::string> separatorTextAfter(NSInteger /*component*/) { return std::nullopt; }
    virtual NSInteger componentCount() = 0;
    virtual NSInteger selectedRow(NSInteger component) = 0;
    /// The row that a screen reader says. Here the selected one.
    virtual NSInteger announcedRow(NSInteger component) { return selectedRow(component); }
    virtual NSInteger rowCount(NSInteger component) = 0;
    virtual Ref<UIView> visibleView(NSInteger row, NSInteger component) = 0;
    /// A gesture of the user has ended on the row.
    virtual void report(NSInteger row, NSInteger component) = 0;

    virtual bool isLayoutNeeded() const = 0;

    virtual ~UIPickerOwner() = default;
};

} // namespace gx
