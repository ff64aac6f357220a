#include "GallerySegments.h"

#include <algorithm>
#include <numeric>

#include "GalleryTheme.h"
#include <GXUIPickers/UIGraphicsContext.h>
#include <GXUIPickers/UIKey.h>

using namespace gx;

namespace gallery {

namespace {
constexpr CGFloat trackRadius = 11;
constexpr CGFloat thumbInset = 3;
constexpr CGFloat textInset = thumbInset + 1;
constexpr CGFloat wantedTextInset = thumbInset + 4;

/// The segments as a screen reader has them.
class SegmentsElement : public UIAccessibilityElement {
public:
    explicit SegmentsElement(const Ref<GallerySegments>& segments)
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
    WeakRef<GallerySegments> segments_;
};

} // namespace

UIAccessibilityElements GallerySegments::accessibilityElements() {
    if (choices_.empty()) return {};
    return {std::make_shared<SegmentsElement>(refTo(this))};
}

Ref<GallerySegments> GallerySegments::segmentsWithChoices(std::vector<std::string> choices, std::size_t chosen) {
    auto segments = create<GallerySegments>(CGRectZero);
    segments->choices_ = std::move(choices);
    for (const std::string& choice : segments->choices_) {
        const auto label = create<UILabel>(CGRectZero);
        label->setText(choice);
        label->setTextAlignment(NSTextAlignmentCenter);
        label->setFont(GalleryTheme::strongCaptionFont()); // The wider one, of the chosen.
        segments->neededWidths_.push_back(label->sizeThatFits({}).width + 2 * wantedTextInset);
        segments->labels_.push_back(label);
        segments->addSubview(label);
    }
    segments->setChosen(chosen);
    segments->showChosen();
    return segments;
}

void GallerySegments::setChosen(std::size_t chosen) {
    if (chosen >= choices_.size()) return;
    chosen_ = chosen;
    showChosen();
}

void GallerySegments::showChosen() {
    for (std::size_t i = 0; i < labels_.size(); ++i) {
        labels_[i]->setFont(i == chosen_ ? GalleryTheme::strongCaptionFont() : GalleryTheme::captionFont());
        labels_[i]->setTextColor(i == chosen_ ? GalleryTheme::text() : GalleryTheme::secondaryText());
    }
    setNeedsDisplay();
}

CGRect GallerySegments::frameOfSegment(std::size_t index) const {
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

std::size_t GallerySegments::segmentAt(CGPoint point) const {
    std::size_t index = 0;
    while (index < choices_.size() && !CGRectContainsPoint(frameOfSegment(index), point)) ++index;
    return index;
}

CGSize GallerySegments::sizeThatFits(CGSize available) const { return {available.width, GalleryTheme::controlHeight}; }

void GallerySegments::layoutSubviews() {
    GalleryControl::layoutSubviews();
    for (std::size_t i = 0; i < labels_.size(); ++i) labels_[i]->setFrame(CGRectInset(frameOfSegment(i), textInset, 0));
}

void GallerySegments::drawRect(UIGraphicsContext& context, CGRect rect) {
    context.fillRect(rect, GalleryTheme::track(), trackRadius);
    if (choices_.empty()) return;
    const CGFloat radius = trackRadius - thumbInset;
    context.fillRect(CGRectInset(frameOfSegment(chosen_), thumbInset, thumbInset), GalleryTheme::thumb(), radius);
    const std::size_t held = isHighlighted() ? segmentAt(highlightedPoint()) : choices_.size();
    if (held < choices_.size())
        context.fillRect(CGRectInset(frameOfSegment(held), thumbInset, thumbInset), GalleryTheme::pressed(), radius);
    drawFocus(context, rect, trackRadius);
}

bool GallerySegments::keyPressed(const UIKey& key) {
    const bool isBack = key.code == UIKey::Code::Left;
    if ((!isBack && key.code != UIKey::Code::Right) || key.isCommand()) return GalleryControl::keyPressed(key);
    const Ref<UIView> keep = refTo<UIView>(this);
    const std::size_t beside = isBack ? chosen_ - 1 : chosen_ + 1; // Before the first one there is none, as beyond the last.
    choose(beside);
    return true;
}

bool GallerySegments::canBecomeFirstResponder() { return !choices_.empty(); }

CGPoint GallerySegments::pointOfKeys() const { return middleOfSegment(chosen_); }

CGPoint GallerySegments::middleOfSegment(std::size_t index) const {
    const CGRect segment = frameOfSegment(index);
    return {CGRectGetMidX(segment), CGRectGetMidY(segment)};
}

void GallerySegments::tapped(CGPoint point) { choose(segmentAt(point)); }

void GallerySegments::choose(std::size_t index) {
    if (index >= choices_.size() || index == chosen_) return;
    setChosen(index);
    const auto action = action_; // The call may replace or drop what it was called by.
    if (action) action(index);
}

} // namespace gallery
