#include "Paragraph.h"

#include <algorithm>

#include "Theme.h"
#include <GXUIPickers/UIGraphicsContext.h>
#include <GXUIPickers/UITextEngine.h>

using namespace gx;

namespace gallery {

namespace {
// Between two lines of a paragraph; chosen by eye.
constexpr CGFloat leading = 2;

CGFloat widthOf(const std::string& text) { return UITextEngine::shared()->sizeOfText_font(text, *Theme::bodyFont()).width; }

/// How many bytes of a text fit: whole characters, and at least one.
std::size_t fittingPart(const std::string& text, CGFloat width) {
    const auto endOfCharacter = [&text](std::size_t at) {
        constexpr unsigned char continuationMask = 0xC0;
        constexpr unsigned char continuation = 0x80;
        do ++at;
        while (at < text.size() && (static_cast<unsigned char>(text[at]) & continuationMask) == continuation);
        return at;
    };
    std::size_t part = endOfCharacter(0);
    while (part < text.size() && widthOf(text.substr(0, endOfCharacter(part))) <= width) part = endOfCharacter(part);
    return part;
}

} // namespace

bool Paragraph::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    setUserInteractionEnabled(false);
    color_ = Theme::secondaryText();
    return true;
}

void Paragraph::setText(std::string text) {
    text_ = std::move(text);
    setNeedsDisplay();
}

void Paragraph::setColor(const UIColor& color) {
    if (color == color_) return;
    color_ = color;
    setNeedsDisplay();
}

std::vector<std::string> Paragraph::linesForWidth(CGFloat width) const {
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text_.size();) {
        const std::size_t end = std::min(text_.find(' ', start), text_.size());
        std::string word = text_.substr(start, end - start);
        start = end + 1;
        const std::string longer = lines.empty() ? word : lines.back() + " " + word;
        if (!lines.empty() && widthOf(longer) <= width) {
            lines.back() = longer;
            continue;
        }
        // Languages that write without spaces, and names of files, break where the line ends.
        while (widthOf(word) > width) {
            const std::size_t part = fittingPart(word, width);
            lines.push_back(word.substr(0, part));
            word.erase(0, part);
        }
        if (!word.empty()) lines.push_back(word);
    }
    return lines;
}

CGFloat Paragraph::lineHeight() const { return UITextEngine::shared()->sizeOfText_font("", *Theme::bodyFont()).height + leading; }

CGSize Paragraph::sizeThatFits(CGSize available) const {
    const auto count = static_cast<CGFloat>(linesForWidth(available.width).size());
    return {available.width, count * lineHeight()};
}

void Paragraph::drawRect(UIGraphicsContext& context, CGRect rect) {
    CGPoint origin = rect.origin;
    for (const std::string& line : linesForWidth(rect.size.width)) {
        context.drawText(line, *Theme::bodyFont(), color_, origin);
        origin.y += lineHeight();
    }
}

} // namespace gallery
