#include "Paragraph.h"

#include "LineBreaks.h"
#include "ReadingDirection.h"
#include "TextDirection.h"
#include <GXUIPickers/UIGraphicsContext.h>
#include <GXUIPickers/UITextEngine.h>

using namespace gx;

namespace gallery {

namespace {

// Between two lines; chosen by eye.
constexpr CGFloat leading = 2;

/// Which share of the free room lies before a line.
CGFloat shareBeforeLine(NSTextAlignment alignment) {
    if (alignment == NSTextAlignmentCenter) return 0.5;
    const bool isAtRight = alignment == NSTextAlignmentNatural ? ReadingDirection::isRightToLeft() : alignment == NSTextAlignmentRight;
    return isAtRight ? 1 : 0;
}

} // namespace

Ref<Paragraph> Paragraph::paragraphWithStyle_color(Theme::TextStyle style, const UIColor& color) {
    auto paragraph = create<Paragraph>(CGRectZero);
    paragraph->setTextStyle(style);
    paragraph->setColor(color);
    return paragraph;
}

bool Paragraph::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    setUserInteractionEnabled(false);
    color_ = Theme::secondaryText();
    return true;
}

void Paragraph::setText(std::string text) {
    if (text == text_) return;
    text_ = std::move(text);
    linesFont_ = nullptr;
    setNeedsDisplay();
}

void Paragraph::setColor(const UIColor& color) {
    if (color == color_) return;
    color_ = color;
    setNeedsDisplay();
}

void Paragraph::setTextStyle(Theme::TextStyle style) {
    if (style == style_) return;
    style_ = style;
    linesFont_ = nullptr;
    setNeedsDisplay();
}

void Paragraph::setTextAlignment(NSTextAlignment alignment) {
    if (alignment == alignment_) return;
    alignment_ = alignment;
    setNeedsDisplay();
}

// Lines

CGFloat Paragraph::widthOf(std::string_view text) const {
    return UITextEngine::shared()->sizeOfText_font(text, *Theme::font(style_)).width;
}

CGFloat Paragraph::lineHeight() const { return UITextEngine::shared()->sizeOfText_font("", *Theme::font(style_)).height + leading; }

CGFloat Paragraph::widthInOneLine() const { return widthOf(text_); }

const std::vector<std::string>& Paragraph::linesForWidth(CGFloat width) const {
    const Ref<UIFont> font = Theme::font(style_);
    if (linesFont_ == font && linesWidth_ == width) return lines_;
    linesFont_ = font;
    linesWidth_ = width;
    lines_ = LineBreaks::linesOfText_width(text_, width, [this](std::string_view part) { return widthOf(part); });
    linesFromRight_.clear();
    if (!TextDirection::hasLettersFromRight(text_)) return lines_;
    for (const std::string& line : lines_) linesFromRight_.push_back(TextDirection::lineOfTextFromRight(line));
    return lines_;
}

const std::string& Paragraph::drawnLine(std::size_t index) const {
    return linesFromRight_.empty() ? lines_[index] : linesFromRight_[index];
}

CGSize Paragraph::sizeThatFits(CGSize available) const {
    const auto count = static_cast<CGFloat>(linesForWidth(available.width).size());
    return {available.width, count * lineHeight()};
}

void Paragraph::drawRect(UIGraphicsContext& context, CGRect rect) {
    const std::vector<std::string>& lines = linesForWidth(rect.size.width);
    const CGFloat height = static_cast<CGFloat>(lines.size()) * lineHeight();
    const CGFloat share = shareBeforeLine(alignment_);
    CGFloat y = rect.origin.y + 0.5 * (rect.size.height - height);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const CGFloat x = share == 0 ? 0 : share * (rect.size.width - widthOf(lines[i]));
        context.drawText(drawnLine(i), *Theme::font(style_), color_, {rect.origin.x + x, y});
        y += lineHeight();
    }
}

// Accessibility

std::optional<std::string> Paragraph::accessibilityLabel() const {
    std::optional<std::string> label = UIView::accessibilityLabel();
    return label || text_.empty() ? label : text_;
}

UIAccessibilityElements Paragraph::accessibilityElements() {
    return accessibilityElementAndSubviews(refTo<UIView>(this), UIAccessibilityRole::Text);
}

} // namespace gallery
