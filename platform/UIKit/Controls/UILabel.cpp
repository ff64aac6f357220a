#include "UILabel.h"

#include "NSLocale.h"
#include "UIGraphicsContext.h"
#include "UITextEngine.h"

namespace gx {

namespace {
const Ref<UIFont>& defaultFont() {
    static const Ref<UIFont> font = UIFont::systemFontOfSize_weight(UIFont::labelFontSize);
    return font;
}
constexpr std::string_view ellipsis = "\u2026";

/// Which share of the free room lies before the text.
CGFloat shareBeforeText(NSTextAlignment alignment) {
    switch (alignment) {
    case NSTextAlignmentLeft:
        return 0;
    case NSTextAlignmentCenter:
        return 0.5;
    case NSTextAlignmentRight:
        return 1;
    case NSTextAlignmentNatural:
        return NSLocale::currentLocale()->isRightToLeft() ? 1 : 0;
    }
    return 0;
}
} // namespace

void UILabel::initLabel() {
    font_ = defaultFont();
    setUserInteractionEnabled(false);
}

const NSClass UILabel::kind = {"UILabel"};

bool UILabel::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    initLabel();
    return true;
}

bool UILabel::initWithCoder(const Ref<NSCoder>& coder) {
    if (!UIView::initWithCoder(coder)) return false;
    initLabel();
    if (!coder) return true;
    text_ = coder->decodeStringForKey("text");
    if (coder->containsValueForKey("fontSize")) font_ = UIFont::systemFontOfSize_weight(coder->decodeDoubleForKey("fontSize"));
    const NSInteger alignment = coder->decodeIntegerForKey("textAlignment");
    if (alignment == NSTextAlignmentCenter) alignment_ = NSTextAlignmentCenter;
    if (alignment == NSTextAlignmentRight) alignment_ = NSTextAlignmentRight;
    if (alignment == NSTextAlignmentNatural) alignment_ = NSTextAlignmentNatural;
    return true;
}

void UILabel::textDidChange() {
    isFitted_ = false;
    setNeedsDisplay();
}

void UILabel::setText(std::optional<std::string> text) {
    if (text == text_ && !attributedText_) return;
    text_ = std::move(text);
    attributedText_ = nullptr;
    textDidChange();
}

void UILabel::setAttributedText(Ref<NSAttributedString> text) {
    if (text == attributedText_ && (text || !text_)) return;
    text_ = text ? std::optional<std::string>(text->string()) : std::nullopt;
    attributedText_ = std::move(text);
    textDidChange();
}

void UILabel::setFont(Ref<UIFont> font) {
    if (!font) font = defaultFont();
    if (font == font_ || (font_ && font->isEqualToFont(*font_))) return;
    font_ = std::move(font);
    textDidChange();
}

void UILabel::setTextColor(const UIColor& color) {
    if (color == textColor_) return;
    textColor_ = color;
    setNeedsDisplay();
}

void UILabel::setTextAlignment(NSTextAlignment alignment) {
    if (alignment == alignment_) return;
    alignment_ = alignment;
    setNeedsDisplay();
}

Ref<UIFont> UILabel::drawnFont() const {
    if (attributedText_ && attributedText_->attributes().font) return attributedText_->attributes().font;
    return font_ ? font_ : defaultFont();
}

const UIColor& UILabel::drawnColor() const {
    if (attributedText_ && attributedText_->attributes().foregroundColor) return *attributedText_->attributes().foregroundColor;
    return textColor_;
}

CGSize UILabel::sizeThatFits(CGSize) const {
    if (!text_) return {};
    return UITextEngine::shared()->sizeOfText_font(*text_, *drawnFont());
}

void UILabel::fitText(CGFloat width) const {
    const std::uint64_t generation = UITextEngine::generation();
    if (isFitted_ && width == fittedWidth_ && generation == fittedGeneration_) return;
    isFitted_ = true;
    fittedWidth_ = width;
    fittedGeneration_ = generation;
    const std::string text = text_.value_or("");
    const Ref<UIFont> font = drawnFont();
    const Ref<UITextEngine> engine = UITextEngine::shared();
    const auto fits = [&](std::size_t length, std::string_view ending) {
        // Chosen: so little too much comes from adding up fractions, and is no reason to cut.
        constexpr CGFloat tolerance = 0.01;
        fittedText_.assign(text, 0, length);
        fittedText_ += ending;
        fittedSize_ = engine->sizeOfText_font(fittedText_, *font);
        return !(fittedSize_.width > width + tolerance);
    };
    if (fits(text.size(), "") || text.empty()) return;

    // The longest beginning that fits, found by halving, cut between code points. The ellipsis
    // alone is shown whether it fits or not.
    std::size_t fitting = 0;
    std::size_t tooLong = text.size();
    std::size_t measured = tooLong;
    for (;;) {
        std::size_t middle = fitting + (tooLong - fitting) / 2;
        while (middle > fitting && !UITextEngine::startsCodePoint(text[middle])) --middle;
        if (middle == fitting) ++middle;
        while (middle < tooLong && !UITextEngine::startsCodePoint(text[middle])) ++middle;
        if (middle >= tooLong) break;
        (fits(middle, ellipsis) ? fitting : tooLong) = middle;
        measured = middle;
    }
    if (measured != fitting) fits(fitting, ellipsis);
}

void UILabel::drawRect(UIGraphicsContext& context, CGRect rect) {
    if (!text_ || text_->empty()) return;
    fitText(rect.size.width);
    const CGFloat room = rect.size.width - fittedSize_.width;
    const CGPoint origin = {rect.origin.x + room * shareBeforeText(alignment_),
                            rect.origin.y + 0.5 * (rect.size.height - fittedSize_.height)};
    context.drawText(fittedText_, *drawnFont(), drawnColor(), origin);
}

// Accessibility

std::optional<std::string> UILabel::accessibilityLabel() const {
    std::optional<std::string> label = UIView::accessibilityLabel();
    return label ? label : text_;
}

UIAccessibilityElements UILabel::accessibilityElements() {
    return accessibilityElementAndSubviews(refTo<UIView>(this), UIAccessibilityRole::Text);
}

} // namespace gx
