#include "ElementPath.h"

#include <algorithm>

using namespace gx;

namespace gallery {

std::vector<NSInteger> ElementPath::ofElement(const UIAccessibilityElement& element) {
    const Ref<UIViewNode> view = element.view();
    const Ref<UIWindow> window = view ? windowOf(*view) : nullptr;
    if (!window) return {};
    std::vector<NSInteger> path;
    const UIAccessibilityElement* below = &element;
    Ref<UIAccessibilityElement> container = element.container();
    Ref<UIAccessibilityElement> outermost;
    while (container) {
        path.insert(path.begin(), container->indexOfChild(*below));
        outermost = container;
        below = outermost.get();
        container = outermost->container();
    }
    const UIAccessibilityElements top = outermostAccessibilityElements(window->accessibilityElements());
    const auto found = std::find_if(top.begin(), top.end(), [below](const auto& each) { return each->isSameAs(*below); });
    path.insert(path.begin(), found == top.end() ? -1 : found - top.begin());
    const bool isOffered = std::find(path.begin(), path.end(), -1) == path.end();
    return isOffered ? path : std::vector<NSInteger>();
}

Ref<UIAccessibilityElement> ElementPath::elementAt(UIWindow& window, const std::vector<NSInteger>& path) {
    Ref<UIAccessibilityElement> found;
    for (std::size_t depth = 0; depth < path.size(); ++depth) {
        const NSInteger index = path[depth];
        if (depth > 0) {
            found = index >= 0 && index < found->childCount() ? found->child(index) : nullptr;
        } else {
            const UIAccessibilityElements top = outermostAccessibilityElements(window.accessibilityElements());
            found = index >= 0 && index < static_cast<NSInteger>(top.size()) ? top[static_cast<std::size_t>(index)] : nullptr;
        }
        if (!found) return nullptr;
    }
    return found;
}

} // namespace gallery
