#pragma once

#include <optional>
#include <string>
#include <vector>

#include "GXExport.h"
#include "UIWindow.h"

namespace gx {

/// Finds what has changed for a screen reader since the last look: for hosts, which tell the
/// system. Each change is found once.
///
/// A host that has a screen reader looks after frames: whatever changes asks for one. While views
/// move it may leave looks out, as long as `hasColumnChanged` returns false and the last frame is
/// followed by one. Without a screen reader nothing needs to look, and nothing is queried.
///
/// - A column that a key moves has its new value with the next look, and none when it lands. One
///   that a finger or a mouse wheel spins has it once it rests.
/// - Announcements wait until keys come to the window, and follow the focus: after a dialog the
///   focus would cut them off.
/// - Elements that come have no changes of their own. Those that go are not mentioned again.
class GX_EXPORT UIAccessibilityChanges {
public:
    /// One change, and of which element.
    struct Change {
        /// In the order in which they are found.
        enum class Kind {
            /// others than before in the tree, below `element` or, without one, at its top
            Elements,
            Label,
            Number, ///< another value of `UIAccessibilityElement::numbers`
            Value,  ///< another text of `UIAccessibilityElement::value`; after the number
            Expanded,
            Checked,
            Focus, ///< `element` has the focus now or, without one, no element has
            Announcement
        };
        Kind kind = Kind::Elements; ///< what has changed
        /// Whose change it is; empty as the kinds say, and for announcements.
        Ref<UIAccessibilityElement> element;
        /// The value before, of a `Value`.
        std::string before;
        /// Of an `Announcement`.
        UIAccessibilityAnnouncement announcement;
    };

    /// The views may do anything meanwhile but drop this object. A look within a look finds
    /// nothing.
    std::vector<Change> takeChanges(UIWindow& window);
    /// Whether a column has another row than at the last look, as when it has come to rest or a key
    /// has moved it. Queries nothing else, so it costs little in each frame.
    bool hasColumnChanged();

private:
    struct Known {
        Ref<UIAccessibilityElement> element;
        std::optional<std::string> label;
        std::optional<std::string> value;
        std::optional<NSInteger> index;
        std::optional<UIAccessibilityNumbers> numbers;
        std::optional<bool> isExpanded;
        std::optional<bool> isChecked;
        NSInteger childCount = 0;
    };
    static Known known(const Ref<UIAccessibilityElement>& element);
    static void compare(Known& before, const Ref<UIAccessibilityElement>& element, std::vector<Change>& changes);

    UIAccessibilityElements top_;
    std::vector<Known> known_;
    Ref<UIAccessibilityElement> focused_;
    bool isLooking_ = false;
};

} // namespace gx
