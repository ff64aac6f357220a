#include "CGGeometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace gx {

namespace {
constexpr CGFloat infinity = std::numeric_limits<CGFloat>::infinity();

/// Whether one of its numbers is no number.
bool hasNoPlace(CGRect rect) {
    return std::isnan(rect.origin.x) || std::isnan(rect.origin.y) || std::isnan(rect.size.width) || std::isnan(rect.size.height);
}
} // namespace

const CGRect CGRectZero = {{0, 0}, {0, 0}};
const CGRect CGRectNull = {{infinity, infinity}, {0, 0}};

CGFloat CGRectGetMinX(CGRect rect) { return CGRectStandardize(rect).origin.x; }
CGFloat CGRectGetMinY(CGRect rect) { return CGRectStandardize(rect).origin.y; }
CGFloat CGRectGetWidth(CGRect rect) { return std::fabs(rect.size.width); }
CGFloat CGRectGetHeight(CGRect rect) { return std::fabs(rect.size.height); }
CGFloat CGRectGetMaxX(CGRect rect) { return CGRectGetMinX(rect) + CGRectGetWidth(rect); }
CGFloat CGRectGetMaxY(CGRect rect) { return CGRectGetMinY(rect) + CGRectGetHeight(rect); }
CGFloat CGRectGetMidX(CGRect rect) { return CGRectGetMinX(rect) + 0.5 * CGRectGetWidth(rect); }
CGFloat CGRectGetMidY(CGRect rect) { return CGRectGetMinY(rect) + 0.5 * CGRectGetHeight(rect); }

CGRect CGRectStandardize(CGRect rect) {
    if (rect.size.width < 0) {
        rect.origin.x += rect.size.width;
        rect.size.width = -rect.size.width;
    }
    if (rect.size.height < 0) {
        rect.origin.y += rect.size.height;
        rect.size.height = -rect.size.height;
    }
    return rect;
}

bool CGRectIsNull(CGRect rect) { return rect.origin.x == infinity || rect.origin.y == infinity; }

bool CGRectIsEmpty(CGRect rect) {
    const bool hasArea = CGRectGetWidth(rect) > 0 && CGRectGetHeight(rect) > 0;
    return CGRectIsNull(rect) || !hasArea || hasNoPlace(rect);
}

bool CGRectEqualToRect(CGRect first, CGRect second) { return CGRectStandardize(first) == CGRectStandardize(second); }

bool CGRectContainsPoint(CGRect rect, CGPoint point) {
    return !CGRectIsEmpty(rect) && point.x >= CGRectGetMinX(rect) && point.x < CGRectGetMaxX(rect) && point.y >= CGRectGetMinY(rect) &&
           point.y < CGRectGetMaxY(rect);
}

CGRect CGRectOffset(CGRect rect, CGFloat dx, CGFloat dy) {
    if (CGRectIsNull(rect)) return rect;
    return {{rect.origin.x + dx, rect.origin.y + dy}, rect.size};
}

CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy) {
    if (CGRectIsNull(rect)) return rect;
    const CGRect area = CGRectStandardize(rect);
    const CGRect inner = {{area.origin.x + dx, area.origin.y + dy}, {area.size.width - 2 * dx, area.size.height - 2 * dy}};
    const bool isLeft = inner.size.width >= 0 && inner.size.height >= 0;
    return isLeft ? inner : CGRectNull;
}

CGRect CGRectIntersection(CGRect first, CGRect second) {
    if (CGRectIsNull(first) || CGRectIsNull(second) || hasNoPlace(first) || hasNoPlace(second)) return CGRectNull;
    const CGFloat minX = std::max(CGRectGetMinX(first), CGRectGetMinX(second));
    const CGFloat minY = std::max(CGRectGetMinY(first), CGRectGetMinY(second));
    const CGFloat maxX = std::min(CGRectGetMaxX(first), CGRectGetMaxX(second));
    const CGFloat maxY = std::min(CGRectGetMaxY(first), CGRectGetMaxY(second));
    const bool isShared = maxX >= minX && maxY >= minY;
    return isShared ? CGRect{{minX, minY}, {maxX - minX, maxY - minY}} : CGRectNull;
}

bool CGRectIntersectsRect(CGRect first, CGRect second) { return !CGRectIsEmpty(CGRectIntersection(first, second)); }

} // namespace gx
