#pragma once

#include <vector>

#include <GXUIPickers/UIWindow.h>

namespace gallery {

/// Where an element is among those that a screen reader finds in a window: its index at the top of
/// the tree, then that among the children, and so on. It means the same element as long as the
/// screen shows the same.
///
/// Example: {3, 1} is the second item of the list that is the fourth element.
class ElementPath {
public:
    /// Empty for one that the window does not offer.
    static std::vector<gx::NSInteger> ofElement(const gx::UIAccessibilityElement& element);
    /// Nothing if there is none.
    static gx::Ref<gx::UIAccessibilityElement> elementAt(gx::UIWindow& window, const std::vector<gx::NSInteger>& path);
};

} // namespace gallery
