#include "UIPickerMarks.h"

#include "UIPickerSelectionIndicator.h"

namespace gx {

std::optional<UIPointerStyle> UIPickerMarks::hoverMoved(CGPoint point) {
    const NSInteger held = components_.componentOfTouch(UITouch::pointerIdentifier);
    const NSInteger component = held >= 0 ? held : components_.componentAt(point);
    if (!components_.canBeChosen(component)) {
        hoverEnded();
        return std::nullopt;
    }
    const bool isSpinning = held >= 0 || components_.at(component).axis.isUsersGesture();
    markHovered(component, isSpinning || (component == hovered_ && isSpun_));
    return held >= 0 ? UIPointerStyle::Turning : UIPointerStyle::Turn;
}

void UIPickerMarks::hoverEnded() { markHovered(-1, false); }

void UIPickerMarks::markHovered(NSInteger component, bool isSpun) {
    if (component == hovered_ && isSpun == isSpun_) return;
    hovered_ = component;
    isSpun_ = isSpun;
    wheel_.setNeedsDisplay();
}

void UIPickerMarks::draw(UIGraphicsContext& context, CGRect indicator) const {
    const auto partOf = [&](NSInteger component) {
        const CGRect column = components_.at(component).column->frame();
        return CGRectMake(column.origin.x, indicator.origin.y, column.size.width, indicator.size.height);
    };
    const Ref<UIWindow> window = wheel_.window();
    const NSInteger ofKeys = window && window->showsFocus() && wheel_.isFirstResponder() ? components_.componentOfKeys() : -1;
    if (ofKeys >= 0) UIPickerSelectionIndicator::drawFocus(context, partOf(ofKeys), wheel_.tintColor());
    if (hovered_ == ofKeys || !components_.canBeChosen(hovered_)) return;
    if (isSpun_ && ofKeys < 0) {
        UIPickerSelectionIndicator::drawFocus(context, partOf(hovered_), wheel_.tintColor());
    } else {
        UIPickerSelectionIndicator::drawHover(context, partOf(hovered_), wheel_.tintColor());
    }
}

} // namespace gx
