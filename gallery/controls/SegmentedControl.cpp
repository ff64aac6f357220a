#include "SegmentedControl.h"

#include <algorithm>
#include <numeric>

#include "Theme.h"
#include <GXUIPickers/UIGraphicsContext.h>
#include <GXUIPickers/UIKey.h>

using namespace gx;

namespace gallery {

namespace {
constexpr CGFloat trackRadius = 11;
constexpr CGFloat thumbInset = 3;
constexpr CGFloat textInset = thumbInset + 1;
constexpr CGFloat wantedTextInset = thumbInset + 4;

/// The control as one adjustable element for screen readers.
class SegmentsElement : public UIAccessibilityElement {
public:
    explicit SegmentsElement(const Ref<SegmentedControl>& segments)
        : UIAccessibilityElement(segments, UIAccessibilityRole::Adjustable), segments_(segments) {}

    std::optional<std::string> value() const override {
        const auto segments = segments_.lock();
        return segments ? std::optional(segments->choices()[segments->chosen()]) : std::nullopt;
    }
    std::optional<NSInteger> index() const override {
        const auto segments = segments_.lock();
        return segments ? std::optional(static_cast<NSInteger>(segments->chosen())) : std::nullopt;
    }
    NSInteger count() const override {
        const auto segments = segments_.lock();
        return segments ? static_cast<NSInteger>(segments->choices().size()) : 0;
    }
    void increment() override { setIndex(index().value_or(0) + 1); }
    void decrement() override { setIndex(index().value_or(0) - 1); }
    void setIndex(NSInteger index) override {
        const auto segments = segments_.lock();
        if (segments && isEnabled()) segments->choose(static_cast<std::size_t>(std::clamp<NSInteger>(index, 0, count() - 1)));
    }

private:
    WeakRef<SegmentedControl> segments_;
};

} // namespace

UIAccessibilityElements SegmentedControl::accessibilityElements() {
    if (choices_.empty()) return {};
    return {std::make_shared<SegmentsElement>(refTo(this))};
}

Ref<SegmentedControl> SegmentedControl::segmentsWithChoices(std::vector<std::string> choices, std::size_t chosen) {
    auto segments = create<SegmentedControl>(CGRectZero);
    segments->choices_ = std::move(choices);
    for (const std::string& choice : segments->choices_) {
        const auto label = create<UILabel>(CGRectZero);
        label->setText(choice);
        label->setTextAlignment(NSTextAlignmentCenter);
        label->setFont(Theme::strongCaptionFont()); // The wider one, of the chosen.
        segments->neededWidths_.push_back(label->sizeThatFits({}).width + 2 * wantedTextInset);
        segments->labels_.push_back(label);
        segments->addSubview(label);
    }
    segments->setChosen(chosen);
    segments->showChosen();
    return segments;
}

void SegmentedControl::setChosen(std::size_t chosen) {
    if (chosen >= choices_.size()) return;
    chosen_ = chosen;
    showChosen();
}

void SegmentedControl::showChosen() {
    for (std::size_t i = 0; i < labels_.size(); ++i) {
        labels_[i]->setFont(i == chosen_ ? Theme::strongCaptionFont() : Theme::captionFont());
        labels_[i]->setTextColor(i == chosen_ ? Theme::text() : Theme::secondaryText());
    }
    setNeedsDisplay();
}

CGRect SegmentedControl::frameOfSegment(std::size_t index) const {
    if (index >= choices_.size()) return {};
    const CGSize size = bounds().size;
    const auto count = static_cast<CGFloat>(choices_.size());
    if (*std::max_element(neededWidths_.begin(), neededWidths_.end()) <= size.width / count) {
        const CGFloat width = size.width / count;
        return CGRectMake(static_cast<CGFloat>(index) * width, 0, width, size.height);
    }
    const auto needed = neededWidths_.begin() + static_cast<std::ptrdiff_t>(index);
    const CGFloat neededByAll = std::accumulate(neededWidths_.begin(), neededWidths_.end(), 0.0);
    const CGFloat neededBefore = std::accumulate(neededWidths_.begin(), needed, 0.0);
    if (neededByAll > size.width) {
        const CGFloat share = size.width / neededByAll;
        return CGRectMake(neededBefore * share, 0, *needed * share, size.height);
    }
    const CGFloat spare = (size.width - neededByAll) / count;
    return CGRectMake(neededBefore + static_cast<CGFloat>(index) * spare, 0, *needed + spare, size.height);
}

std::size_t SegmentedControl::segmentAt(CGPoint point) const {
    std::size_t index = 0;
    while (index < choices_.size() && !CGRectContainsPoint(frameOfSegment(index), point)) ++index;
    return index;
}

CGSize SegmentedControl::sizeThatFits(CGSize available) const { return {available.width, Theme::controlHeight}; }

void SegmentedControl::layoutSubviews() {
    Control::layoutSubviews();
    for (std::size_t i = 0; i < labels_.size(); ++i) labels_[i]->setFrame(CGRectInset(frameOfSegment(i), textInset, 0));
}

void SegmentedControl::drawRect(UIGraphicsContext& context, CGRect rect) {
    context.fillRect(rect, Theme::track(), trackRadius);
    if (choices_.empty()) return;
    const CGFloat radius = trackRadius - thumbInset;
    context.fillRect(CGRectInset(frameOfSegment(chosen_), thumbInset, thumbInset), Theme::thumb(), radius);
    const std::size_t held = isHighlighted() ? segmentAt(highlightedPoint()) : choices_.size();
    if (held < choices_.size()) context.fillRect(CGRectInset(frameOfSegment(held), thumbInset, thumbInset), Theme::pressed(), radius);
    drawFocus(context, rect, trackRadius);
}

bool SegmentedControl::keyPressed(const UIKey& key) {
    const bool isBack = key.code == UIKey::Code::Left;
    if ((!isBack && key.code != UIKey::Code::Right) || key.isCommand()) return Control::keyPressed(key);
    const Ref<UIView> keep = refTo<UIView>(this);
    // Wraps below 0 and is then ignored, as beyond the last one.
    const std::size_t beside = isBack ? chosen_ - 1 : chosen_ + 1;
    choose(beside);
    return true;
}

bool SegmentedControl::canBecomeFirstResponder() { return !choices_.empty(); }

CGPoint SegmentedControl::pointOfKeys() const { return middleOfSegment(chosen_); }

CGPoint SegmentedControl::middleOfSegment(std::size_t index) const {
    const CGRect segment = frameOfSegment(index);
    return {CGRectGetMidX(segment), CGRectGetMidY(segment)};
}

void SegmentedControl::tapped(CGPoint point) { choose(segmentAt(point)); }

void SegmentedControl::choose(std::size_t index) {
    if (index >= choices_.size() || index == chosen_) return;
    setChosen(index);
    const auto action = action_; // The call may replace the action or drop this view.
    if (action) action(index);
}

} // namespace gallery
