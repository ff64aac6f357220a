#include "UIGraphicsContext.h"

namespace gx {

bool UIGraphicsContext::beginView(const UIDrawingVersion&, CGPoint, double) { return false; }

void UIGraphicsContext::endView() {}

std::uint64_t UIGraphicsContext::beginSubviews(const UIDrawingVersion&, std::size_t) { return 0; }

void UIGraphicsContext::repeatSubviews(std::size_t) {}

void UIGraphicsContext::fillRect(CGRect rect, const UIColor& color, CGFloat cornerRadius) {
    const UIColorComponents& components = color.resolved(style_, contrast_);
    if (components.alpha > 0 && !CGRectIsEmpty(rect)) fillRectWithComponents(rect, components, cornerRadius);
}

void UIGraphicsContext::drawText(std::string_view text, const UIFont& font, const UIColor& color, CGPoint origin) {
    const UIColorComponents& components = color.resolved(style_, contrast_);
    if (components.alpha > 0 && !text.empty()) drawTextWithComponents(text, font, components, origin);
}

void UIGraphicsContext::drawImage(const UIImage& image, CGRect rect) {
    if (!CGRectIsEmpty(rect)) drawImageInRect(image.resolved(style_), rect);
}

} // namespace gx
