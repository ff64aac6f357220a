#include "NSLayoutConstraint.h"

#include <algorithm>
#include <string_view>
#include <utility>

#ifndef NDEBUG
#include <cstdio>
#endif

#include "NSArithmetic.h"

namespace gx {

namespace {

// Prescribed by the phone's platform.
constexpr CGFloat standardDistance = 8;

/// What one format says: a direction, a view's name, and the pins on either side of it.
class VisualFormat {
public:
    VisualFormat(std::string_view text, const NSLayoutConstraint::Metrics& metrics)
        : rest_(text), metrics_(metrics), isVertical_(accept("V:")) {
        if (!isVertical_) accept("H:");
        isValid_ = readLeadingPin() && readView() && readTrailingPin() && rest_.empty();
    }

    bool isValid() const { return isValid_; }
    bool isVertical() const { return isVertical_; }
    const std::string& viewName() const { return viewName_; }
    std::optional<CGFloat> leading() const { return leading_; }
    std::optional<CGFloat> trailing() const { return trailing_; }

private:
    bool accept(std::string_view token) {
        if (rest_.substr(0, token.size()) != token) return false;
        rest_.remove_prefix(token.size());
        return true;
    }

    std::string readName() {
        // Not by the C library, whose result depends on the C locale.
        const auto isPart = [](char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_'; };
        const auto end = std::find_if_not(rest_.begin(), rest_.end(), isPart);
        const auto length = static_cast<std::size_t>(end - rest_.begin());
        std::string name(rest_.substr(0, length));
        rest_.remove_prefix(length);
        return name;
    }

    /// Digits with an optional fraction, read without the C locale; at most 9 digits on either
    /// side.
    std::optional<CGFloat> readNumber() {
        CGFloat number = 0;
        const auto readDigits = [this](CGFloat& value) {
            int count = 0;
            while (!rest_.empty() && rest_.front() >= '0' && rest_.front() <= '9' && count < 9) {
                value = value * 10 + (rest_.front() - '0');
                rest_.remove_prefix(1);
                ++count;
            }
            return count;
        };
        if (readDigits(number) == 0) return std::nullopt;
        if (accept(".")) {
            CGFloat fraction = 0;
            const int digits = readDigits(fraction);
            if (digits == 0) return std::nullopt;
            number += fraction / powerOfTen(digits);
        }
        return number;
    }

    std::optional<CGFloat> readMetric() {
        if (const auto number = readNumber()) return number;
        const auto entry = metrics_.find(readName());
        return entry == metrics_.end() ? std::nullopt : std::optional<CGFloat>(entry->second);
    }

    /// After a "-": a distance and another "-", or nothing, which means the standard distance.
    std::optional<CGFloat> readDistance() {
        if (rest_.empty() || rest_.front() == '[' || rest_.front() == '|') return standardDistance;
        const bool isBracketed = accept("(");
        const std::optional<CGFloat> distance = readMetric();
        const bool isClosed = (!isBracketed || accept(")")) && accept("-");
        return isClosed ? distance : std::nullopt;
    }

    bool readLeadingPin() {
        if (!accept("|")) return true;
        leading_ = accept("-") ? readDistance() : 0;
        return leading_.has_value();
    }

    bool readView() {
        if (!accept("[")) return false;
        viewName_ = readName();
        return !viewName_.empty() && accept("]");
    }

    bool readTrailingPin() {
        if (rest_.empty()) return true;
        trailing_ = accept("-") ? readDistance() : 0;
        return trailing_.has_value() && accept("|");
    }

    std::string_view rest_;
    const NSLayoutConstraint::Metrics& metrics_;
    bool isVertical_ = false;
    bool isValid_ = false;
    std::string viewName_;
    std::optional<CGFloat> leading_;
    std::optional<CGFloat> trailing_;
};

void reportInDebugBuilds([[maybe_unused]] const std::string& format) {
#ifndef NDEBUG
    std::fprintf(stderr, "NSLayoutConstraint: no constraints from the format \"%s\"\n", format.c_str());
#endif
}

} // namespace

std::vector<Ref<NSLayoutConstraint>> NSLayoutConstraint::constraintsWithVisualFormat_options_metrics_views(const std::string& format,
                                                                                                           NSUInteger /*options*/,
                                                                                                           const Metrics& metrics,
                                                                                                           const Views& views) {
    const VisualFormat parsed(format, metrics);
    const auto view = parsed.isValid() ? views.find(parsed.viewName()) : views.end();
    if (view == views.end() || !view->second) {
        reportInDebugBuilds(format);
        return {};
    }
    std::vector<Ref<NSLayoutConstraint>> constraints;
    const auto pin = [&](NSLayoutAttribute attribute, std::optional<CGFloat> distance) {
        if (!distance) return;
        constraints.push_back(constraintPinning_edge_distance(view->second, attribute, *distance));
    };
    pin(parsed.isVertical() ? NSLayoutAttribute::Top : NSLayoutAttribute::Left, parsed.leading());
    pin(parsed.isVertical() ? NSLayoutAttribute::Bottom : NSLayoutAttribute::Right, parsed.trailing());
    return constraints;
}

std::vector<Ref<NSLayoutConstraint>> NSLayoutConstraint::constraintsPinningView_toEdges(const Ref<NSObject>& view,
                                                                                        const std::vector<NSLayoutAttribute>& edges) {
    std::vector<Ref<NSLayoutConstraint>> constraints;
    if (!view) return constraints;
    for (const NSLayoutAttribute edge : edges) constraints.push_back(constraintPinning_edge_distance(view, edge, 0));
    return constraints;
}

Ref<NSLayoutConstraint> NSLayoutConstraint::constraintPinning_edge_distance(const Ref<NSObject>& view, NSLayoutAttribute edge,
                                                                            CGFloat distance) {
    auto constraint = create<NSLayoutConstraint>();
    constraint->item_ = view;
    constraint->attribute_ = edge;
    constraint->constant_ = distance;
    return constraint;
}

void NSLayoutPins::add(const NSLayoutConstraint& constraint) {
    switch (constraint.attribute()) {
    case NSLayoutAttribute::Left:
        left = constraint.constant();
        break;
    case NSLayoutAttribute::Right:
        right = constraint.constant();
        break;
    case NSLayoutAttribute::Top:
        top = constraint.constant();
        break;
    case NSLayoutAttribute::Bottom:
        bottom = constraint.constant();
        break;
    }
}

std::vector<NSLayoutPins> NSLayoutPins::pinsOfConstraints(const std::vector<Ref<NSLayoutConstraint>>& constraints) {
    std::vector<NSLayoutPins> all;
    for (const Ref<NSLayoutConstraint>& constraint : constraints) {
        const Ref<NSObject> item = constraint->firstItem();
        if (!item) continue;
        auto pins = std::find_if(all.begin(), all.end(), [&item](const NSLayoutPins& known) { return known.item.lock() == item; });
        if (pins == all.end()) {
            pins = all.insert(all.end(), NSLayoutPins());
            pins->item = item;
        }
        pins->add(*constraint);
    }
    return all;
}

namespace {

/// One direction of a rectangle: where it starts and how long it is. The length is never negative.
std::pair<CGFloat, CGFloat> pinned(CGFloat start, CGFloat length, CGFloat outerStart, CGFloat outerLength, std::optional<CGFloat> leading,
                                   std::optional<CGFloat> trailing) {
    const CGFloat outerEnd = outerStart + outerLength;
    if (leading && trailing) return {outerStart + *leading, std::max(0.0, outerLength - *leading - *trailing)};
    if (leading) return {outerStart + *leading, length};
    if (trailing) return {outerEnd - *trailing - length, length};
    return {start, length};
}

} // namespace

CGRect NSLayoutPins::frameInBounds_from(CGRect bounds, CGRect frame) const {
    const auto [x, width] = pinned(frame.origin.x, frame.size.width, bounds.origin.x, bounds.size.width, left, right);
    const auto [y, height] = pinned(frame.origin.y, frame.size.height, bounds.origin.y, bounds.size.height, top, bottom);
    return CGRectMake(x, y, width, height);
}

} // namespace gx
