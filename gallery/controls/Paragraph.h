#pragma once

#include <string>
#include <vector>

#include <GXUIPickers/UIView.h>

namespace gx {
class UIFont;
}

namespace gallery {

/// A text that is broken into lines between its words. For one line, a `gx::UILabel` is enough.
class Paragraph : public gx::UIView {
public:
    bool initWithFrame(gx::CGRect frame) override;

    const std::string& text() const { return text_; }
    void setText(std::string text);
    /// Default `Theme::secondaryText()`.
    void setColor(const gx::UIColor& color);

    /// As wide as offered, and as high as all lines.
    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void drawRect(gx::UIGraphicsContext& context, gx::CGRect rect) override;

private:
    std::vector<std::string> linesForWidth(gx::CGFloat width) const;
    gx::CGFloat lineHeight() const;

    std::string text_;
    gx::UIColor color_;
};

} // namespace gallery
