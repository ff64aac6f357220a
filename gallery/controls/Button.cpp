#include "Button.h"

#include "Theme.h"
#include <GXUIPickers/UIGraphicsContext.h>

using namespace gx;

namespace gallery {

namespace {

constexpr CGFloat inset = 12;
constexpr CGFloat arrowWidth = 12;

/// Three bars.
void drawMenuSign(UIGraphicsContext& context, CGPoint middle) {
    constexpr CGFloat width = 20;
    constexpr CGFloat thickness = 2;
    for (const CGFloat dy : {-6.0, 0.0, 6.0}) {
        const CGRect bar = CGRectMake(middle.x - 0.5 * width, middle.y + dy - 0.5 * thickness, width, thickness);
        context.fillRect(bar, Theme::text(), 0.5 * thickness);
    }
}

CGRect circle(CGPoint middle, CGFloat radius) { return CGRectMake(middle.x - radius, middle.y - radius, 2 * radius, 2 * radius); }

/// A disc, half light and half dark.
void drawLookSign(UIGraphicsContext& context, CGPoint middle, const UIColor& surface) {
    constexpr CGFloat radius = 10;
    constexpr CGFloat thickness = 2;
    context.fillRect(circle(middle, radius), Theme::text(), radius);
    context.saveState();
    context.clipToRect(CGRectMake(middle.x, middle.y - radius, radius, 2 * radius));
    context.fillRect(circle(middle, radius - thickness), surface, radius - thickness);
    context.restoreState();
}

} // namespace

Ref<Button> Button::buttonWithTitle_style(std::string title, Style style) {
    auto button = create<Button>(CGRectZero);
    button->setStyle(style);
    button->setTitle(std::move(title));
    return button;
}

Ref<Button> Button::buttonWithTitle_sign(std::string title, Sign sign) {
    auto button = create<Button>(CGRectZero);
    button->sign_ = sign;
    button->setTitle(std::move(title));
    return button;
}

bool Button::initWithFrame(CGRect frame) {
    if (!Control::initWithFrame(frame)) return false;
    label_ = create<UILabel>(CGRectZero);
    addSubview(label_);
    setStyle(Style::Plain);
    return true;
}

void Button::setStyle(Style style) {
    style_ = style;
    label_->setTextAlignment(style == Style::Plain ? NSTextAlignmentCenter : NSTextAlignmentLeft);
    if (style == Style::Heading && !arrow_) {
        arrow_ = create<UILabel>(CGRectZero);
        arrow_->setText("\u203A");
        arrow_->setFont(Theme::headingFont());
        arrow_->setTextColor(Theme::secondaryText());
        arrow_->setTextAlignment(NSTextAlignmentRight);
        addSubview(arrow_);
    }
    showTitle();
}

void Button::setTitle(std::string title) {
    title_ = std::move(title);
    showTitle();
}

void Button::setChosen(bool chosen) {
    isChosen_ = chosen;
    showTitle();
    setNeedsDisplay();
}

void Button::showTitle() {
    const bool isAccented = style_ == Style::Plain || isChosen_;
    label_->setText(sign_ == Sign::None ? std::optional(title_) : std::nullopt);
    label_->setTextColor(isAccented ? Theme::accent() : Theme::text());
    label_->setFont(style_ == Style::Heading             ? Theme::headingFont()
                    : style_ == Style::Row && !isChosen_ ? Theme::bodyFont()
                                                         : Theme::strongFont());
    setNeedsLayout();
}

CGSize Button::sizeThatFits(CGSize) const {
    const CGFloat width = sign_ == Sign::None ? label_->sizeThatFits({}).width + 2 * inset : Theme::controlHeight;
    return {std::max(width, Theme::controlHeight), Theme::controlHeight};
}

void Button::layoutSubviews() {
    Control::layoutSubviews();
    // A heading is aligned with the views below it; the others leave room for their background.
    const CGFloat side = style_ == Style::Heading ? 0 : inset;
    CGRect room = CGRectInset(bounds(), side, 0);
    if (arrow_) {
        arrow_->setFrame(CGRectMake(CGRectGetMaxX(room) - arrowWidth, 0, arrowWidth, room.size.height));
        room.size.width -= arrowWidth;
    }
    label_->setFrame(room);
}

void Button::drawRect(UIGraphicsContext& context, CGRect rect) {
    constexpr CGFloat radius = 10;
    const CGRect lit = style_ == Style::Heading ? CGRectInset(rect, -inset, 0) : rect;
    if (isChosen_) context.fillRect(lit, Theme::accentFill(), radius);
    if (isHighlighted()) context.fillRect(lit, Theme::pressed(), radius);
    const CGPoint middle = {CGRectGetMidX(rect), CGRectGetMidY(rect)};
    if (sign_ == Sign::Menu) drawMenuSign(context, middle);
    if (sign_ == Sign::Look) drawLookSign(context, middle, Theme::sidebar());
    drawFocus(context, lit, radius);
}

std::optional<std::string> Button::accessibilityLabel() const { return Control::accessibilityLabel().value_or(title_); }

UIAccessibilityElements Button::accessibilityElements() {
    return wholeAccessibilityElement(refTo<UIView>(this), UIAccessibilityRole::Button);
}

void Button::tapped(CGPoint) {
    const auto action = action_; // The call may replace the action or drop this view.
    if (action) action();
}

} // namespace gallery
