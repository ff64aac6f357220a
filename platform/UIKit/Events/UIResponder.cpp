#include "UIResponder.h"

namespace gx {

Ref<UIResponder> UIResponder::nextResponder() const { return nullptr; }

bool UIResponder::touchBegan(const UITouch& touch) {
    const Ref<UIResponder> next = nextResponder();
    return next && next->touchBegan(touch);
}

void UIResponder::touchMoved(const UITouch& touch) {
    if (const Ref<UIResponder> next = nextResponder()) next->touchMoved(touch);
}

void UIResponder::touchEnded(const UITouch& touch) {
    if (const Ref<UIResponder> next = nextResponder()) next->touchEnded(touch);
}

void UIResponder::touchCancelled(const UITouch& touch) {
    if (const Ref<UIResponder> next = nextResponder()) next->touchCancelled(touch);
}

bool UIResponder::scrolled(const UIScroll& scroll) {
    const Ref<UIResponder> next = nextResponder();
    return next && next->scrolled(scroll);
}

std::optional<UIPointerStyle> UIResponder::hoverMoved(CGPoint) { return std::nullopt; }

void UIResponder::hoverEnded() {}

bool UIResponder::keyPressed(const UIKey& key) {
    const Ref<UIResponder> next = nextResponder();
    return next && next->keyPressed(key);
}

bool UIResponder::canBecomeFirstResponder() { return false; }

void UIResponder::focusDidChange() {}

} // namespace gx
