#include "WebCanvas.h"

#include <GXUIPickers/UIImage.h>

#include "WebFont.h"
#include "WebPage.h"

namespace gx::web {

void WebCanvas::saveState() { saved_.push_back(state_); }

void WebCanvas::restoreState() {
    if (saved_.empty()) return;
    state_ = saved_.back();
    saved_.pop_back();
}

CGPoint WebCanvas::placeOf(CGPoint point) const {
    return {state_.origin.x + state_.scaleX * point.x, state_.origin.y + state_.scaleY * point.y};
}

void WebCanvas::translate(CGFloat x, CGFloat y) {
    state_.origin = placeOf({x, y});
    state_.home += x;
}

void WebCanvas::scale(CGFloat x, CGFloat y) {
    state_.scaleX *= x;
    state_.scaleY *= y;
    state_.isScaled = true;
}

void WebCanvas::clipToRect(CGRect) {}

void WebCanvas::multiplyAlpha(double alpha) { state_.alpha *= alpha; }

void WebCanvas::fillRectWithComponents(CGRect rect, const UIColorComponents& color, CGFloat cornerRadius) {
    if (CGRectIsEmpty(rect) || color.alpha <= 0) return;
    const auto isColor = [&](const UIColor& other) { return color == other.resolved(userInterfaceStyle(), accessibilityContrast()); };
    WebShape shape = WebShape::Mark;
    if (isColor(UIColor::tertiarySystemFillColor())) shape = WebShape::Indicator;
    if (isColor(UIColor::secondaryLabelColor())) shape = WebShape::Outline;
    const CGPoint place = placeOf(rect.origin);
    gx_page_fill_rect(static_cast<std::int32_t>(shape), place.x, place.y, rect.size.width * state_.scaleX, rect.size.height * state_.scaleY,
                      cornerRadius, shape == WebShape::Mark ? color.alpha * state_.alpha : state_.alpha);
}

void WebCanvas::drawTextWithComponents(std::string_view text, const UIFont& font, const UIColorComponents& color, CGPoint origin) {
    if (text.empty() || state_.alpha * color.alpha <= 0) return;
    const CGPoint place = placeOf(origin);
    gx_page_draw_text(state_.isScaled ? 1 : 0, WebFont::numberOf(font, systemFont_), font.pointSize(), text.data(),
                      static_cast<std::int32_t>(text.size()), state_.scaleX, state_.scaleY, place.x, place.y, state_.alpha, state_.home);
}

void WebCanvas::drawImageInRect(const UIImage& image, CGRect rect) {
    if (!image.hostHandle() || state_.alpha <= 0) return; // Pixels have no place among elements.
    const CGPoint place = placeOf(rect.origin);
    gx_page_draw_image(static_cast<std::int32_t>(*image.hostHandle()), state_.scaleX, state_.scaleY, place.x, place.y, rect.size.width,
                       rect.size.height, state_.alpha, state_.home);
}

} // namespace gx::web
