#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Paragraph.h"
#include "SegmentedControl.h"

namespace gallery {

/// A card with choices one below the other, each with its title above it.
///
/// It is as high as its texts need in its width. A single choice without a title and a card is a
/// `SegmentedControl`.
class ChoiceCard : public gx::UIView {
public:
    bool initWithFrame(gx::CGRect frame) override;

    /// The title is also the control's accessibility label.
    gx::Ref<SegmentedControl> addChoice(const std::string& title, std::vector<std::string> choices, std::size_t chosen);
    void removeChoices();
    const std::vector<gx::Ref<SegmentedControl>>& controls() const { return controls_; }

    gx::CGSize sizeThatFits(gx::CGSize available) const override;
    void layoutSubviews() override;

private:
    struct Frames;
    Frames framesForWidth(gx::CGFloat width) const;

    std::vector<gx::Ref<Paragraph>> titles_; // One for each control.
    std::vector<gx::Ref<SegmentedControl>> controls_;
};

} // namespace gallery
