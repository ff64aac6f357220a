#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Control.h"
#include "Paragraph.h"

namespace gallery {

/// A few choices, of which one is chosen.
///
/// 1. They stand side by side and are equally wide.
/// 2. Where a text needs more than that, each gets the width of its text and an equal part of the
///    rest.
/// 3. Where all together need more than the width, they stand in rows of equal columns; two or
///    three choices stand one below the other. A text that is wider than its column has several
///    lines.
///
/// The first one is at the leading edge.
///
/// Invariant: `chosen` is one of the choices, as long as there are any.
class SegmentedControl : public Control {
public:
    static gx::Ref<SegmentedControl> segmentsWithChoices(std::vector<std::string> choices, std::size_t chosen);

    const std::vector<std::string>& choices() const { return choices_; }
    std::size_t chosen() const { return chosen_; }
    /// Ignored beyond the choices. The action is not called.
    void setChosen(std::size_t chosen);
    /// The one that has the focus, if the control has it: the chosen one, until a screen reader
    /// moves the focus alone. Return and Space choose it, left and right the one beside it.
    std::size_t segmentOfKeys() const { return segmentOfKeys_; }
    /// Ignored beyond the choices.
    void setSegmentOfKeys(std::size_t index);
    /// Called when the user has chosen another one.
    void setAction(std::function<void(std::size_t chosen)> action) { action_ = std::move(action); }
    /// The segment's rectangle in this view's coordinates; empty beyond the choices.
    gx::CGRect frameOfSegment(std::size_t index) const;

    /// As wide as offered, and as high as all rows.
    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;
    void drawRect(gx::UIGraphicsContext& context, gx::CGRect rect) override;
    /// Left and right choose the segment beside, as a tap on it does. In rows they continue in the
    /// next one.
    bool keyPressed(const gx::UIKey& key) override;
    bool canBecomeFirstResponder() override;
    /// Chooses, and calls the action, as a tap on the segment does. Ignored for the chosen one and
    /// beyond the choices.
    void choose(std::size_t index);
    /// A radio button for each choice, in a group with the view's label as its name.
    gx::UIAccessibilityElements accessibilityElements() override;

protected:
    void tapped(gx::CGPoint point) override;
    gx::CGPoint pointOfKeys() const override;
    bool looksDifferentAt(gx::CGPoint one, gx::CGPoint other) const override;

private:
    gx::CGPoint middleOfSegment(std::size_t index) const;
    void showChosen();
    std::size_t segmentAt(gx::CGPoint point) const;
    /// Of all segments, as if they were read from the left.
    const std::vector<gx::CGRect>& framesForWidth(gx::CGFloat width) const;
    std::vector<gx::CGRect> framesSideBySide(gx::CGFloat width, const std::vector<gx::CGFloat>& needed) const;
    std::vector<gx::CGRect> framesInRows(gx::CGFloat width, const std::vector<gx::CGFloat>& texts) const;
    gx::CGFloat heightOfText(std::size_t index, gx::CGFloat width) const;

    std::vector<std::string> choices_;
    std::size_t chosen_ = 0;
    std::size_t segmentOfKeys_ = 0;
    std::function<void(std::size_t)> action_;
    std::vector<gx::Ref<Paragraph>> labels_;
    // Measures each text as that of the chosen one, which is the widest.
    gx::Ref<Paragraph> ruler_;

    // The frames for a width and a font, computed once.
    mutable std::vector<gx::CGRect> frames_;
    mutable gx::CGFloat framesWidth_ = 0;
    mutable gx::Ref<gx::UIFont> framesFont_;
};

} // namespace gallery
