#pragma once

#include "GXExport.h"

namespace gx {

/// A length or coordinate in points. Always double precision, on every machine.
using CGFloat = double;

/// A place, in points. y grows downward.
struct CGPoint {
    CGFloat x = 0; ///< to the right
    CGFloat y = 0; ///< downward
    friend bool operator==(const CGPoint&, const CGPoint&) = default;
};

/// A width and a height, in points. Either may be negative.
struct CGSize {
    CGFloat width = 0;  ///< to the right of the origin; negative to its left
    CGFloat height = 0; ///< below the origin; negative above it
    friend bool operator==(const CGSize&, const CGSize&) = default;
};

/// A rectangle, y growing downward. A negative width or height is allowed.
///
/// Every `CGRectGet…` returns values of the area it spans, with its corners put in order.
struct CGRect {
    CGPoint origin; ///< the corner that the size starts from; the top left of a standard rectangle
    CGSize size;    ///< from the origin to the opposite corner
    friend bool operator==(const CGRect&, const CGRect&) = default;
};

/// The rectangle at (0, 0) without size.
GX_EXPORT extern const CGRect CGRectZero;
/// "No rectangle": it lies at infinity, is empty, and intersects nothing. A view made with it as
/// its frame shows nothing until it is given a real frame.
GX_EXPORT extern const CGRect CGRectNull;

/// A point of these coordinates.
constexpr CGPoint CGPointMake(CGFloat x, CGFloat y) { return {x, y}; }
/// A size of these sides, unchanged.
constexpr CGSize CGSizeMake(CGFloat width, CGFloat height) { return {width, height}; }
/// A rectangle of these numbers, unchanged: a negative side stays negative.
constexpr CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) { return {{x, y}, {width, height}}; }

/// The left edge.
GX_EXPORT CGFloat CGRectGetMinX(CGRect rect);
/// Half way between left and right edge.
GX_EXPORT CGFloat CGRectGetMidX(CGRect rect);
/// The right edge.
GX_EXPORT CGFloat CGRectGetMaxX(CGRect rect);
/// The top edge.
GX_EXPORT CGFloat CGRectGetMinY(CGRect rect);
/// Half way between top and bottom edge.
GX_EXPORT CGFloat CGRectGetMidY(CGRect rect);
/// The bottom edge.
GX_EXPORT CGFloat CGRectGetMaxY(CGRect rect);
/// Never negative, unlike `size.width`.
GX_EXPORT CGFloat CGRectGetWidth(CGRect rect);
/// Never negative, unlike `size.height`.
GX_EXPORT CGFloat CGRectGetHeight(CGRect rect);

/// The same area with a width and height that are not negative.
GX_EXPORT CGRect CGRectStandardize(CGRect rect);
/// Whether a coordinate of the origin is positive infinity, as those of `CGRectNull` are.
GX_EXPORT bool CGRectIsNull(CGRect rect);
/// True for the null rectangle and for one without area. A rectangle with a coordinate that is no
/// number is empty.
GX_EXPORT bool CGRectIsEmpty(CGRect rect);
/// Whether both span the same area, whichever corner is the origin. NaN equals nothing.
GX_EXPORT bool CGRectEqualToRect(CGRect first, CGRect second);
/// The left and top edges belong to the rectangle, the right and bottom edges do not.
GX_EXPORT bool CGRectContainsPoint(CGRect rect, CGPoint point);
/// The rectangle moved by dx to the right and dy downward. The null rectangle stays null.
GX_EXPORT CGRect CGRectOffset(CGRect rect, CGFloat dx, CGFloat dy);
/// Shrinks by dx at the left and right and by dy at the top and bottom. One shrunk beyond nothing
/// is the null rectangle.
GX_EXPORT CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy);
/// The null rectangle where the two share no point.
GX_EXPORT CGRect CGRectIntersection(CGRect first, CGRect second);
/// True when the two share some area.
GX_EXPORT bool CGRectIntersectsRect(CGRect first, CGRect second);

} // namespace gx
