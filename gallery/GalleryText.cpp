#include "GalleryText.h"

#include <algorithm>

#include "GalleryTheme.h"
#include "UIGraphicsContext.h"
#include "UITextEngine.h"

using namespace gx;

namespace gallery {

namespace {
// Between two lines of a paragraph; chosen by eye.
constexpr CGFloat leading = 2;
} // namespace

bool GalleryText::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    setUserInteractionEnabled(false);
    color_ = GalleryTheme::secondaryText();
    return true;
}

void GalleryText::setText(std::string text) {
    text_ = std::move(text);
    setNeedsDisplay();
}

void GalleryText::setColor(const UIColor& color) {
    if (color == color_) return;
    color_ = color;
    setNeedsDisplay();
}

std::vector<std::string> GalleryText::linesForWidth(CGFloat width) const {
    UITextEngine& engine = *UITextEngine::shared();
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text_.size();) {
        const std::size_t end = std::min(text_.find(' ', start), text_.size());
        const std::string word = text_.substr(start, end - start);
        start = end + 1;
        const std::string longer = lines.empty() ? word : lines.back() + " " + word;
        const bool fits = engine.sizeOfText_font(longer, *GalleryTheme::bodyFont()).width <= width;
        if (lines.empty() || !fits) {
            lines.push_back(word);
        } else {
            lines.back() = longer;
        }
    }
    return lines;
}

CGFloat GalleryText::lineHeight() const { return UITextEngine::shared()->sizeOfText_font("", *GalleryTheme::bodyFont()).height + leading; }

CGSize GalleryText::sizeThatFits(CGSize available) const {
    const auto count = static_cast<CGFloat>(linesForWidth(available.width).size());
    return {available.width, count * lineHeight()};
}

void GalleryText::drawRect(UIGraphicsContext& context, CGRect rect) {
    CGPoint origin = rect.origin;
    for (const std::string& line : linesForWidth(rect.size.width)) {
        context.drawText(line, *GalleryTheme::bodyFont(), color_, origin);
        origin.y += lineHeight();
    }
}

} // namespace gallery
