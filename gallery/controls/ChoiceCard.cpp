#include "ChoiceCard.h"

#include <algorithm>
#include <cmath>

#include "Theme.h"

using namespace gx;

namespace gallery {

namespace {

constexpr CGFloat titleGap = 4;
constexpr CGFloat choiceGap = 14;
constexpr CGFloat padding = Theme::cardPadding;

} // namespace

struct ChoiceCard::Frames {
    std::vector<CGRect> titles;
    std::vector<CGRect> controls;
    CGFloat height = 0;
};

bool ChoiceCard::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    setBackgroundColor(Theme::card());
    setCornerRadius(Theme::cardRadius);
    return true;
}

Ref<SegmentedControl> ChoiceCard::addChoice(const std::string& title, std::vector<std::string> choices, std::size_t chosen) {
    titles_.push_back(Paragraph::paragraphWithStyle_color(Theme::TextStyle::StrongCaption, Theme::secondaryText()));
    titles_.back()->setText(title);
    titles_.back()->setAccessibilityLabel(""); // The group has the name.
    controls_.push_back(SegmentedControl::segmentsWithChoices(std::move(choices), chosen));
    controls_.back()->setAccessibilityLabel(title);
    addSubview(titles_.back());
    addSubview(controls_.back());
    setNeedsLayout();
    return controls_.back();
}

void ChoiceCard::removeChoices() {
    for (const auto& title : titles_) title->removeFromSuperview();
    for (const auto& control : controls_) control->removeFromSuperview();
    titles_.clear();
    controls_.clear();
    setNeedsLayout();
}

ChoiceCard::Frames ChoiceCard::framesForWidth(CGFloat width) const {
    const CGFloat content = std::max(0.0, width - 2 * padding);
    Frames frames;
    CGFloat y = padding;
    const auto place = [&](const UIView& view, std::vector<CGRect>& list, CGFloat gap) {
        const CGFloat height = std::ceil(view.sizeThatFits({content, 0}).height);
        list.push_back(CGRectMake(padding, y, content, height));
        y += height + gap;
    };
    for (std::size_t i = 0; i < controls_.size(); ++i) {
        place(*titles_[i], frames.titles, titleGap);
        place(*controls_[i], frames.controls, choiceGap);
    }
    frames.height = controls_.empty() ? 0 : y - choiceGap + padding;
    return frames;
}

CGSize ChoiceCard::sizeThatFits(CGSize available) const { return {available.width, framesForWidth(available.width).height}; }

void ChoiceCard::layoutSubviews() {
    UIView::layoutSubviews();
    const Frames frames = framesForWidth(bounds().size.width);
    for (std::size_t i = 0; i < controls_.size(); ++i) {
        titles_[i]->setFrame(frames.titles[i]);
        controls_[i]->setFrame(frames.controls[i]);
    }
}

} // namespace gallery
