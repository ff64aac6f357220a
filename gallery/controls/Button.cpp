#include "Button.h"

#include <algorithm>
#include <cmath>

#include "ChoiceElements.h"
#include "ReadingDirection.h"
#include "Theme.h"
#include <GXUIPickers/NSLocale.h>
#include <GXUIPickers/UIGraphicsContext.h>

using namespace gx;

namespace gallery {

namespace {

constexpr CGFloat inset = 12;
constexpr CGFloat lineInset = 4; // Above and below a title of several lines.
constexpr const char* arrowToRight = "\u203A";
constexpr const char* arrowToLeft = "\u2039";

/// How much larger signs are than usual. The bar has room for no more.
CGFloat signScale() { return std::clamp(Theme::textScale(), 1.0, 1.6); }

/// Three bars.
void drawMenuSign(UIGraphicsContext& context, CGPoint middle) {
    const CGFloat width = 20 * signScale();
    const CGFloat thickness = 2 * signScale();
    const CGFloat distance = 6 * signScale();
    for (const CGFloat dy : {-distance, 0.0, distance}) {
        const CGRect bar = CGRectMake(middle.x - 0.5 * width, middle.y + dy - 0.5 * thickness, width, thickness);
        context.fillRect(bar, Theme::text(), 0.5 * thickness);
    }
}

CGRect circle(CGPoint middle, CGFloat radius) { return CGRectMake(middle.x - radius, middle.y - radius, 2 * radius, 2 * radius); }

/// A disc, half light and half dark.
void drawLookSign(UIGraphicsContext& context, CGPoint middle, const UIColor& surface) {
    const CGFloat radius = 10 * signScale();
    const CGFloat thickness = 2 * signScale();
    context.fillRect(circle(middle, radius), Theme::text(), radius);
    context.saveState();
    context.clipToRect(CGRectMake(middle.x, middle.y - radius, radius, 2 * radius));
    context.fillRect(circle(middle, radius - thickness), surface, radius - thickness);
    context.restoreState();
}

/// A button that is one of several choices, as the languages are.
class ChoiceButtonElement : public ChoiceElement {
public:
    explicit ChoiceButtonElement(const Ref<Button>& button) : ChoiceElement(button), button_(button) {}

    std::optional<bool> isChecked() const override {
        const auto button = button_.lock();
        return button && button->isChosen();
    }

private:
    WeakRef<Button> button_;
};

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
    label_ = create<Paragraph>(CGRectZero);
    addSubview(label_);
    setStyle(Style::Plain);
    return true;
}

void Button::setStyle(Style style) {
    style_ = style;
    label_->setTextAlignment(style == Style::Plain ? NSTextAlignmentCenter : NSTextAlignmentNatural);
    if (style == Style::Heading && !arrow_) {
        arrow_ = Paragraph::paragraphWithStyle_color(Theme::TextStyle::Heading, Theme::secondaryText());
        arrow_->setText(arrowToRight);
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
    label_->setText(sign_ == Sign::None ? title_ : "");
    label_->setColor(isAccented ? Theme::accent() : Theme::text());
    label_->setTextStyle(style_ == Style::Heading             ? Theme::TextStyle::Heading
                         : style_ == Style::Row && !isChosen_ ? Theme::TextStyle::Body
                                                              : Theme::TextStyle::Strong);
    setNeedsLayout();
}

// A heading is aligned with the views below it; the others leave room for their background.
CGFloat Button::widthBesideTitle() const { return style_ == Style::Heading ? std::ceil(arrow_->widthInOneLine()) + lineInset : 2 * inset; }

CGSize Button::sizeThatFits(CGSize available) const {
    if (sign_ != Sign::None) return {std::round(40 * signScale()), std::round(40 * signScale())};
    const CGFloat beside = widthBesideTitle();
    CGFloat width = std::max(std::ceil(label_->widthInOneLine()) + beside, Theme::controlHeight());
    if (available.width > 0) width = std::min(width, available.width);
    const CGFloat lines = label_->sizeThatFits({std::max(0.0, width - beside), 0}).height;
    return {width, std::max(Theme::controlHeight(), std::ceil(lines) + 2 * lineInset)};
}

void Button::layoutSubviews() {
    Control::layoutSubviews();
    const CGSize size = bounds().size;
    const CGFloat x = style_ == Style::Heading ? 0 : inset;
    const CGFloat width = std::max(0.0, size.width - widthBesideTitle());
    label_->setFrame(ReadingDirection::frame(CGRectMake(x, 0, width, size.height), size.width));
    if (!arrow_) return;
    arrow_->setText(ReadingDirection::isRightToLeft() ? arrowToLeft : arrowToRight);
    const CGFloat arrowWidth = std::ceil(arrow_->widthInOneLine());
    arrow_->setFrame(ReadingDirection::frame(CGRectMake(size.width - arrowWidth, 0, arrowWidth, size.height), size.width));
}

void Button::drawRect(UIGraphicsContext& context, CGRect rect) {
    constexpr CGFloat radius = 10;
    const CGRect lit = style_ == Style::Heading ? CGRectInset(rect, -inset, 0) : rect;
    if (isChosen_) context.fillRect(lit, Theme::accentFill(), radius);
    if (isHovered()) context.fillRect(lit, Theme::hovered(), radius);
    if (isHighlighted()) context.fillRect(lit, Theme::pressed(), radius);
    const CGPoint middle = {CGRectGetMidX(rect), CGRectGetMidY(rect)};
    if (sign_ == Sign::Menu) drawMenuSign(context, middle);
    if (sign_ == Sign::Look) drawLookSign(context, middle, Theme::sidebar());
    drawFocus(context, lit, radius);
}

std::optional<std::string> Button::accessibilityLabel() const {
    const std::string label = Control::accessibilityLabel().value_or(title_);
    return detail_ ? label + NSLocale::currentLocale()->listSeparator() + detail_() : label;
}

UIAccessibilityElements Button::accessibilityElements() {
    if (ChoiceGroupElement::around(refTo<UIView>(this))) return {std::make_shared<ChoiceButtonElement>(refTo(this))};
    return wholeAccessibilityElement(refTo<UIView>(this), UIAccessibilityRole::Button);
}

void Button::tapped(CGPoint) {
    const auto action = action_; // The call may replace the action or drop this view.
    if (action) action();
}

} // namespace gallery
