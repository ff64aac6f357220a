#pragma once

#include <functional>
#include <string>

#include "Control.h"
#include "Paragraph.h"

namespace gallery {

/// A button with a title, or with a sign drawn instead of it.
///
/// A title that needs more than the width stands in several lines, for which `sizeThatFits` gives
/// the height. Leading and trailing edges are those of the `ReadingDirection`.
class Button : public Control {
public:
    enum class Style {
        Plain, ///< the title in the middle, in the accent colour
        Row,   ///< a row of a list: the title at the leading edge; highlighted when chosen
        /// a heading that leads somewhere: the title as in a row, an arrow at the other edge
        Heading
    };
    enum class Sign { None, Menu, Look };

    static gx::Ref<Button> buttonWithTitle_style(std::string title, Style style);
    /// The title remains the button's accessibility label.
    static gx::Ref<Button> buttonWithTitle_sign(std::string title, Sign sign);

    bool initWithFrame(gx::CGRect frame) override;

    const std::string& title() const { return title_; }
    void setTitle(std::string title);
    bool isChosen() const { return isChosen_; }
    void setChosen(bool chosen);
    /// What a screen reader says behind the title, such as a state: called each time. May be empty.
    void setAccessibilityDetail(std::function<std::string()> detail) { detail_ = std::move(detail); }
    /// Called for a tap; may do anything, remove the button included.
    void setAction(std::function<void()> action) { action_ = std::move(action); }

    /// As wide as the title in one line, or as offered if that is less but not 0. High enough for
    /// all lines and for a finger.
    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;
    void drawRect(gx::UIGraphicsContext& context, gx::CGRect rect) override;
    /// The title, also where a sign is drawn, and the detail.
    std::optional<std::string> accessibilityLabel() const override;
    /// A button or, in a view with the role `RadioGroup`, one of its choices.
    gx::UIAccessibilityElements accessibilityElements() override;

protected:
    void tapped(gx::CGPoint point) override;

private:
    void setStyle(Style style);
    void showTitle();
    /// Beside the title, on both sides together.
    gx::CGFloat widthBesideTitle() const;

    std::string title_;
    Style style_ = Style::Plain;
    Sign sign_ = Sign::None;
    bool isChosen_ = false;
    std::function<void()> action_;
    std::function<std::string()> detail_;
    gx::Ref<Paragraph> label_;
    gx::Ref<Paragraph> arrow_; // Only of a heading.
};

} // namespace gallery
