#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "CGGeometry.h"
#include "NSObject.h"

namespace gx {

class UIView;

enum class NSLayoutAttribute { Left, Right, Top, Bottom };

/// Pins one edge of a view to the same edge of the view that holds the constraint, at a distance inward.
///
/// This is all the layout that the pickers need. Add constraints to the superview with
/// `UIView::addConstraints`; they move the view, through its `setFrame`, in the superview's layout.
class NSLayoutConstraint : public NSObject {
public:
    /// Distances and views under the names that a format uses for them.
    using Metrics = std::map<std::string, CGFloat>;
    using Views = std::map<std::string, Ref<UIView>>;

    /// Reads formats of the form `H:|[name]|`, `V:|-8-[name]-(12)-|` or `H:[name]-gap-|`: the direction (H if
    /// none is given), and on either side a pin with an optional distance, in points or by the name of a
    /// metric; `-` alone is the standard distance of 8 points. `options` are for alignments, which these
    /// formats have none of. Any other format, an unknown name or a missing view gives no constraints, and
    /// says so in debug builds.
    static std::vector<Ref<NSLayoutConstraint>> constraintsWithVisualFormat_options_metrics_views(const std::string& format,
                                                                                                  NSUInteger options,
                                                                                                  const Metrics& metrics,
                                                                                                  const Views& views);

    /// The view that is pinned, held weakly.
    Ref<UIView> firstItem() const { return item_.lock(); }
    NSLayoutAttribute attribute() const { return attribute_; }
    CGFloat constant() const { return constant_; }

private:
    WeakRef<UIView> item_;
    NSLayoutAttribute attribute_ = NSLayoutAttribute::Left;
    CGFloat constant_ = 0;
};

/// All pins of one view together.
struct NSLayoutPins {
    std::optional<CGFloat> left, right, top, bottom;

    /// A later pin of the same edge wins.
    void add(const NSLayoutConstraint& constraint);
    /// Two opposite pins give place and size, one pin moves the rectangle, none leaves it.
    CGRect frameInBounds_from(CGRect bounds, CGRect frame) const;
};

} // namespace gx
