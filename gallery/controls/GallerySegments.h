#pragma once

#include <functional>
#include <string>
#include <vector>

#include "GalleryControl.h"
#include <GXUIPickers/UILabel.h>

namespace gallery {

/// One of several: choices side by side, of which one is chosen. They are equally wide; where a text needs more than that, each gets what
/// its text needs and they share the rest, or, of too little room, as large a part as of what they need.
///
/// Invariant: `chosen` is one of the choices, as long as there are any.
class GallerySegments : public GalleryControl {
public:
    static gx::Ref<GallerySegments> segmentsWithChoices(std::vector<std::string> choices, std::size_t chosen);

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
    /// Left and right choose the one beside, as a tap on it does.
    bool keyPressed(const gx::UIKey& key) override;
    bool canBecomeFirstResponder() override;
    /// Chooses, and calls the action, as a tap on the segment does. Ignored for the chosen one and beyond the choices.
    void choose(std::size_t index);
    /// One that goes from choice to choice, called by the view's label.
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
