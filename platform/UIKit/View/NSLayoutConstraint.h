#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "CGGeometry.h"
#include "GXExport.h"
#include "NSObject.h"

namespace gx {

/// The edge that a constraint pins.
enum class NSLayoutAttribute { Left, Right, Top, Bottom };

/// Pins one edge of a view to the same edge of its superview, at a distance inward.
///
/// Add constraints to the superview with `UIView::addConstraints`; they move the view, through its
/// `setFrame`, in the superview's layout. For any other layout override `UIView::layoutSubviews`.
///
/// Invariant: a constraint never changes once it is made.
class GX_EXPORT NSLayoutConstraint : public NSObject {
public:
    /// Distances and views under the names that a format uses for them.
    using Metrics = std::map<std::string, CGFloat>;
    /// The views by the names in the format.
    using Views = std::map<std::string, Ref<NSObject>>;

    /// The constraints that a format describes, such as `H:|[name]|`, `V:|-8-[name]-(12)-|` or
    /// `H:[name]-gap-|`.
    ///
    /// - The direction is H if none is given.
    /// - On either side may be a pin with a distance, in points or by the name of a metric. Without
    ///   a distance it is 0; `-` alone is the standard distance of 8 points.
    /// - `options` are for alignments, which these formats do not have.
    ///
    /// Any other format, an unknown name or a missing view gives no constraints, and a message in
    /// debug builds.
    static std::vector<Ref<NSLayoutConstraint>> constraintsWithVisualFormat_options_metrics_views(const std::string& format,
                                                                                                  NSUInteger options,
                                                                                                  const Metrics& metrics,
                                                                                                  const Views& views);
    /// The constraints that pin a view to edges of its superview, without a distance.
    ///
    /// Left and Right give those of `H:|[name]|`.
    static std::vector<Ref<NSLayoutConstraint>> constraintsPinningView_toEdges(const Ref<NSObject>& view,
                                                                               const std::vector<NSLayoutAttribute>& edges);

    /// The view that is pinned, held weakly.
    Ref<NSObject> firstItem() const { return item_.lock(); }
    /// The edge that is pinned.
    NSLayoutAttribute attribute() const { return attribute_; }
    /// The distance inward from the superview's edge, in points.
    CGFloat constant() const { return constant_; }

private:
    static Ref<NSLayoutConstraint> constraintPinning_edge_distance(const Ref<NSObject>& view, NSLayoutAttribute edge, CGFloat distance);

    WeakRef<NSObject> item_;
    NSLayoutAttribute attribute_ = NSLayoutAttribute::Left;
    CGFloat constant_ = 0;
};

/// All pins of one view together.
struct GX_EXPORT NSLayoutPins {
    std::optional<CGFloat> left;   ///< inward from the left edge, in points; nothing if it is free
    std::optional<CGFloat> right;  ///< inward from the right edge
    std::optional<CGFloat> top;    ///< downward from the top edge
    std::optional<CGFloat> bottom; ///< upward from the bottom edge
    /// The view. May be gone.
    WeakRef<NSObject> item;

    /// The pins of each view that is left, in the order in which the views come first.
    static std::vector<NSLayoutPins> pinsOfConstraints(const std::vector<Ref<NSLayoutConstraint>>& constraints);

    /// A later pin of the same edge wins.
    void add(const NSLayoutConstraint& constraint);
    /// Two opposite pins give place and size, one pin moves the rectangle, none leaves it.
    CGRect frameInBounds_from(CGRect bounds, CGRect frame) const;
};

} // namespace gx
