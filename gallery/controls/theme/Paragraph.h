#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Theme.h"
#include <GXUIPickers/UILabel.h>

namespace gallery {

/// A text in one of the theme's styles that is broken into lines where it needs more than one.
///
/// - It follows the text size and is never cut, as long as it gets the height that it asks for.
/// - Lines are centred on the height.
/// - For a text of any other font, and of one line, use `gx::UILabel`.
class Paragraph : public gx::UIView {
public:
    static gx::Ref<Paragraph> paragraphWithStyle_color(Theme::TextStyle style, const gx::UIColor& color);

    bool initWithFrame(gx::CGRect frame) override;

    const std::string& text() const { return text_; }
    void setText(std::string text);
    /// Default `Theme::secondaryText()`.
    void setColor(const gx::UIColor& color);
    /// Default `Theme::TextStyle::Body`.
    void setTextStyle(Theme::TextStyle style);
    /// Default `NSTextAlignmentNatural`.
    void setTextAlignment(gx::NSTextAlignment alignment);

    /// As wide as offered, and as high as all lines.
    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    /// As wide as the text in one line.
    gx::CGFloat widthInOneLine() const;
    const std::vector<std::string>& linesForWidth(gx::CGFloat width) const;

    bool showsSomething() const override { return !text_.empty(); }
    void drawRect(gx::UIGraphicsContext& context, gx::CGRect rect) override;
    /// Its text, unless a label was set.
    std::optional<std::string> accessibilityLabel() const override;
    gx::UIAccessibilityElements accessibilityElements() override;

private:
    gx::CGFloat lineHeight() const;
    const std::string& drawnLine(std::size_t index) const;
    gx::CGFloat widthOf(std::string_view text) const;

    std::string text_;
    gx::UIColor color_;
    Theme::TextStyle style_ = Theme::TextStyle::Body;
    gx::NSTextAlignment alignment_ = gx::NSTextAlignmentNatural;

    // The lines for a width and a font, broken once.
    mutable std::vector<std::string> lines_;
    mutable std::vector<std::string> linesFromRight_; // As they are drawn; empty for other texts.
    mutable gx::CGFloat linesWidth_ = 0;
    mutable gx::Ref<gx::UIFont> linesFont_; // Empty while there are no lines.
};

} // namespace gallery
