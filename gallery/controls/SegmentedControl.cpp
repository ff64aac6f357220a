#include "SegmentedControl.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "ChoiceElements.h"
#include "ReadingDirection.h"
#include "Theme.h"
#include <GXUIPickers/UIGraphicsContext.h>
#include <GXUIPickers/UIKey.h>

using namespace gx;

namespace gallery {

namespace {
constexpr CGFloat trackRadius = 11;
constexpr CGFloat thumbInset = 3;
// Beside a text; the narrow one where choices would not stand side by side otherwise.
CGFloat narrowInset() { return thumbInset + Theme::scaled(2) - 1; }
CGFloat wantedInset() { return thumbInset + Theme::scaled(4); }
// Above and below a text of several lines.
constexpr CGFloat segmentRowInset = thumbInset + 4;
// As many choices stand one below the other rather than in rows with a gap at the end.
constexpr std::size_t mostInOneColumn = 3;

CGFloat sumOf(const std::vector<CGFloat>& widths) { return std::accumulate(widths.begin(), widths.end(), 0.0); }

/// One of the choices, as a radio button.
class SegmentElement : public ChoiceElement {
public:
    SegmentElement(const Ref<SegmentedControl>& segments, std::size_t index)
        : ChoiceElement(segments, static_cast<NSInteger>(index)), segments_(segments), index_(index) {}

    bool exists() const override {
        const auto segments = segments_.lock();
        return segments && index_ < segments->choices().size() && ChoiceElement::exists();
    }
    std::optional<std::string> label() const override {
        return exists() ? std::optional(segments_.lock()->choices()[index_]) : std::nullopt;
    }
    CGRect frame() const override {
        const CGRect whole = ChoiceElement::frame();
        if (!exists()) return whole;
        const CGRect segment = segments_.lock()->frameOfSegment(index_);
        return CGRectOffset(segment, whole.origin.x, whole.origin.y);
    }
    std::optional<bool> isChecked() const override { return exists() && segments_.lock()->chosen() == index_; }
    bool isFocused() const override { return exists() && segments_.lock()->segmentOfKeys() == index_ && ChoiceElement::isFocused(); }
    bool focus() const override {
        if (!exists() || !isFocusable()) return false;
        segments_.lock()->setSegmentOfKeys(index_);
        return ChoiceElement::focus() && isFocused();
    }
    void activateAtTime(NSTimeInterval) const override {
        const auto segments = segments_.lock();
        if (segments && isEnabled()) segments->choose(index_);
    }

private:
    WeakRef<SegmentedControl> segments_;
    std::size_t index_;
};

} // namespace

UIAccessibilityElements SegmentedControl::accessibilityElements() {
    UIAccessibilityElements elements;
    for (std::size_t i = 0; i < choices_.size(); ++i) elements.push_back(std::make_shared<SegmentElement>(refTo(this), i));
    return elements;
}

Ref<SegmentedControl> SegmentedControl::segmentsWithChoices(std::vector<std::string> choices, std::size_t chosen) {
    auto segments = create<SegmentedControl>(CGRectZero);
    segments->setAccessibilityRole(UIAccessibilityRole::RadioGroup);
    segments->choices_ = std::move(choices);
    segments->ruler_ = Paragraph::paragraphWithStyle_color(Theme::TextStyle::StrongCaption, Theme::text());
    for (const std::string& choice : segments->choices_) {
        const auto label = create<Paragraph>(CGRectZero);
        label->setText(choice);
        label->setTextAlignment(NSTextAlignmentCenter);
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
    segmentOfKeys_ = chosen;
    showChosen();
}

void SegmentedControl::setSegmentOfKeys(std::size_t index) {
    if (index >= choices_.size() || index == segmentOfKeys_) return;
    segmentOfKeys_ = index;
    setNeedsDisplay();
}

void SegmentedControl::showChosen() {
    for (std::size_t i = 0; i < labels_.size(); ++i) {
        labels_[i]->setTextStyle(i == chosen_ ? Theme::TextStyle::StrongCaption : Theme::TextStyle::Caption);
        labels_[i]->setColor(i == chosen_ ? Theme::text() : Theme::secondaryText());
    }
    setNeedsDisplay();
}

// Layout

CGRect SegmentedControl::frameOfSegment(std::size_t index) const {
    if (index >= choices_.size()) return {};
    const CGFloat width = bounds().size.width;
    return ReadingDirection::frame(framesForWidth(width)[index], width);
}

CGFloat SegmentedControl::heightOfText(std::size_t index, CGFloat width) const {
    ruler_->setText(choices_[index]);
    return std::ceil(ruler_->sizeThatFits({std::max(0.0, width), 0}).height);
}

const std::vector<CGRect>& SegmentedControl::framesForWidth(CGFloat width) const {
    const Ref<UIFont> font = Theme::font(Theme::TextStyle::StrongCaption);
    if (framesFont_ == font && framesWidth_ == width) return frames_;
    framesFont_ = font;
    framesWidth_ = width;
    std::vector<CGFloat> texts;
    for (const std::string& choice : choices_) {
        ruler_->setText(choice);
        texts.push_back(ruler_->widthInOneLine());
    }
    for (const CGFloat margin : {wantedInset(), narrowInset()}) {
        std::vector<CGFloat> needed = texts;
        for (CGFloat& each : needed) each += 2 * margin;
        if (sumOf(needed) <= width) {
            frames_ = framesSideBySide(width, needed);
            return frames_;
        }
    }
    frames_ = framesInRows(width, texts);
    return frames_;
}

std::vector<CGRect> SegmentedControl::framesSideBySide(CGFloat width, const std::vector<CGFloat>& needed) const {
    const auto count = static_cast<CGFloat>(needed.size());
    const bool areEqual = *std::max_element(needed.begin(), needed.end()) <= width / count;
    const CGFloat spare = (width - sumOf(needed)) / count;
    std::vector<CGRect> frames;
    CGFloat x = 0;
    for (const CGFloat each : needed) {
        const CGFloat segment = areEqual ? width / count : each + spare;
        frames.push_back(CGRectMake(x, 0, segment, Theme::controlHeight()));
        x += segment;
    }
    return frames;
}

std::vector<CGRect> SegmentedControl::framesInRows(CGFloat width, const std::vector<CGFloat>& texts) const {
    std::size_t columns = 1;
    if (texts.size() > mostInOneColumn) {
        const CGFloat widest = *std::max_element(texts.begin(), texts.end()) + 2 * narrowInset();
        columns = std::clamp<std::size_t>(static_cast<std::size_t>(width / widest), 1, texts.size());
        const std::size_t rows = (texts.size() + columns - 1) / columns;
        columns = (texts.size() + rows - 1) / rows; // The last row is as full as can be.
    }
    const CGFloat column = width / static_cast<CGFloat>(columns);
    std::vector<CGRect> frames;
    CGFloat y = 0;
    for (std::size_t first = 0; first < texts.size(); first += columns) {
        const std::size_t end = std::min(texts.size(), first + columns);
        CGFloat height = Theme::controlHeight();
        for (std::size_t i = first; i < end; ++i)
            height = std::max(height, heightOfText(i, column - 2 * narrowInset()) + 2 * segmentRowInset);
        for (std::size_t i = first; i < end; ++i) {
            const std::size_t place = i - first;
            frames.push_back(CGRectMake(static_cast<CGFloat>(place) * column, y, column, height));
        }
        y += height;
    }
    return frames;
}

bool SegmentedControl::looksDifferentAt(CGPoint one, CGPoint other) const { return segmentAt(one) != segmentAt(other); }

std::size_t SegmentedControl::segmentAt(CGPoint point) const {
    std::size_t index = 0;
    while (index < choices_.size() && !CGRectContainsPoint(frameOfSegment(index), point)) ++index;
    return index;
}

CGSize SegmentedControl::sizeThatFits(CGSize available) const {
    const CGFloat height = choices_.empty() ? Theme::controlHeight() : CGRectGetMaxY(framesForWidth(available.width).back());
    return {available.width, height};
}

void SegmentedControl::layoutSubviews() {
    Control::layoutSubviews();
    for (std::size_t i = 0; i < labels_.size(); ++i) labels_[i]->setFrame(CGRectInset(frameOfSegment(i), narrowInset(), 0));
}

void SegmentedControl::drawRect(UIGraphicsContext& context, CGRect rect) {
    context.fillRect(rect, Theme::track(), trackRadius);
    if (choices_.empty()) return;
    const CGFloat radius = trackRadius - thumbInset;
    context.fillRect(CGRectInset(frameOfSegment(chosen_), thumbInset, thumbInset), Theme::thumb(), radius);
    const std::size_t hovered = isHovered() ? segmentAt(hoveredPoint()) : chosen_;
    if (hovered < choices_.size() && hovered != chosen_)
        context.fillRect(CGRectInset(frameOfSegment(hovered), thumbInset, thumbInset), Theme::hovered(), radius);
    const std::size_t held = isHighlighted() ? segmentAt(highlightedPoint()) : choices_.size();
    if (held < choices_.size()) context.fillRect(CGRectInset(frameOfSegment(held), thumbInset, thumbInset), Theme::pressed(), radius);
    drawFocus(context, rect, trackRadius);
}

bool SegmentedControl::keyPressed(const UIKey& key) {
    const bool isLeft = key.code == UIKey::Code::Left;
    const bool isBack = isLeft != ReadingDirection::isRightToLeft();
    if ((!isLeft && key.code != UIKey::Code::Right) || key.isCommand()) return Control::keyPressed(key);
    const Ref<UIView> keep = refTo<UIView>(this);
    // Wraps below 0 and is then ignored, as beyond the last one.
    const std::size_t beside = isBack ? segmentOfKeys_ - 1 : segmentOfKeys_ + 1;
    choose(beside);
    return true;
}

bool SegmentedControl::canBecomeFirstResponder() { return !choices_.empty(); }

CGPoint SegmentedControl::pointOfKeys() const { return middleOfSegment(segmentOfKeys_); }

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
