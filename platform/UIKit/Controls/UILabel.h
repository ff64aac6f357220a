#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "GXExport.h"
#include "NSAttributedString.h"
#include "UIView.h"

namespace gx {

/// Where a line lies in its bounds.
enum NSTextAlignment {
    NSTextAlignmentLeft = 0,
    NSTextAlignmentCenter = 1,
    NSTextAlignmentRight = 2,
    NSTextAlignmentNatural = 4 ///< where lines begin in the current locale at the time of drawing
};

/// One line of text, aligned in its bounds and centred on their height.
///
/// A text that is too long ends in "…". Takes no touches; for a text to tap, put a label into a
/// view of your own.
///
/// Invariant: setting a plain text drops the attributed one, and the other way round.
class GX_EXPORT UILabel : public UIView {
public:
    /// Stands for this class in `isKindOfClass`.
    static const NSClass kind;
    bool isKindOfClass(const NSClass& asked) const override { return &asked == &kind || UIView::isKindOfClass(asked); }

    /// An empty label that takes no touches.
    bool initWithFrame(CGRect frame) override;
    /// Also restores "text", "textAlignment" and "fontSize".
    bool initWithCoder(const Ref<NSCoder>& coder) override;

    /// The text shown, also that of an attributed one. Nothing shows none.
    const std::optional<std::string>& text() const { return text_; }
    /// Replaces an attributed text.
    void setText(std::optional<std::string> text);
    /// The text with the attributes that it was given; nothing if it was set as plain text.
    const Ref<NSAttributedString>& attributedText() const { return attributedText_; }
    /// Its attributes override the label's own font and colour.
    void setAttributedText(Ref<NSAttributedString> text);

    /// Never empty.
    const Ref<UIFont>& font() const { return font_; }
    /// An empty reference gives the system font in `UIFont::labelFontSize`.
    void setFont(Ref<UIFont> font);
    /// Of a text that brings no colour. Default: `UIColor::labelColor`.
    const UIColor& textColor() const { return textColor_; }
    void setTextColor(const UIColor& color);
    /// Default: left.
    NSTextAlignment textAlignment() const { return alignment_; }
    void setTextAlignment(NSTextAlignment alignment);

    /// The size of the text.
    CGSize sizeThatFits(CGSize available) const override;
    bool showsSomething() const override { return text_ && !text_->empty(); }
    void drawRect(UIGraphicsContext& context, CGRect rect) override;

    /// Its text, unless a label was set.
    std::optional<std::string> accessibilityLabel() const override;
    /// Itself as a text, then what its subviews offer.
    UIAccessibilityElements accessibilityElements() override;

protected:
    /// Called after text or font have changed, and with them the size that fits.
    virtual void textDidChange();

private:
    void initLabel();
    Ref<UIFont> drawnFont() const;
    const UIColor& drawnColor() const;
    void fitText(CGFloat width) const;

    std::optional<std::string> text_;
    Ref<NSAttributedString> attributedText_;
    Ref<UIFont> font_;
    UIColor textColor_ = UIColor::labelColor();
    NSTextAlignment alignment_ = NSTextAlignmentLeft;

    // The text as it fits into a width, measured once for each change.
    mutable std::string fittedText_;
    mutable CGSize fittedSize_;
    mutable CGFloat fittedWidth_ = 0;
    mutable std::uint64_t fittedGeneration_ = 0; // Of the text engine.
    mutable bool isFitted_ = false;
};

} // namespace gx
