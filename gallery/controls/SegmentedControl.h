#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Control.h"
#include <GXUIPickers/UILabel.h>

namespace gallery {

/// Choices side by side, of which one is chosen.
///
/// They are equally wide. Where a text needs more than that, each gets the width of its text and an
/// equal part of the rest; where there is too little room, a part in proportion to its text.
///
/// Invariant: `chosen` is one of the choices, as long as there are any.
class SegmentedControl : public Control {
public:
    static gx::Ref<SegmentedControl> segmentsWithChoices(std::vector<std::string> choices, std::size_t chosen);

    const std::vector<std::string>& choices() const { return choices_; }
    std::size_t chosen() const { return chosen_; }
    /// Ignored beyond the choices. The action is not called.
    void setChosen(std::size_t chosen);
    /// Called when the user has chosen another one.
    void setAction(std::function<void(std::size_t chosen)> action) { action_ = std::move(action); }
    /// The segment's rectangle in this view's coordinates; empty beyond the choices.
    gx::CGRect frameOfSegment(std::size_t index) const;

    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;
    void drawRect(gx::UIGraphicsContext& context, gx::CGRect rect) override;
    /// Left and right choose the segment beside, as a tap on it does.
    bool keyPressed(const gx::UIKey& key) override;
    bool canBecomeFirstResponder() override;
    /// Chooses, and calls the action, as a tap on the segment does. Ignored for the chosen one and
    /// beyond the choices.
    void choose(std::size_t index);
    /// One adjustable element, with the view's label as its name.
    gx::UIAccessibilityElements accessibilityElements() override;

protected:
    void tapped(gx::CGPoint point) override;
    gx::CGPoint pointOfKeys() const override;

private:
    gx::CGPoint middleOfSegment(std::size_t index) const;
    void showChosen();
    std::size_t segmentAt(gx::CGPoint point) const;

    std::vector<std::string> choices_;
    std::size_t chosen_ = 0;
    std::function<void(std::size_t)> action_;
    std::vector<gx::Ref<gx::UILabel>> labels_;
    std::vector<gx::CGFloat> neededWidths_; ///< of each choice, whether it is the chosen one or not
};

} // namespace gallery
