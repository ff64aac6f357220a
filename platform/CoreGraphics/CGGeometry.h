#pragma once

#include "GXExport.h"

namespace gx {

/// A length or coordinate in points. Always double precision, on every machine.
using CGFloat = double;

struct CGPoint {
    CGFloat x = 0;
    CGFloat y = 0;
    friend bool operator==(const CGPoint&, const CGPoint&) = default;
};

struct CGSize {
    CGFloat width = 0;
    CGFloat height = 0;
    friend bool operator==(const CGSize&, const CGSize&) = default;
};

/// A rectangle, y growing downward. A negative width or height is allowed.
///
/// Every `CGRectGet…` returns values of the area it spans, with its corners put in order.
struct CGRect {
    CGPoint origin;
    CGSize size;
    friend bool operator==(const CGRect&, const CGRect&) = default;
};

/// The rectangle at (0, 0) without size.
GX_EXPORT extern const CGRect CGRectZero;
/// "No rectangle": it lies at infinity, is empty, and intersects nothing. A view made with it as
/// its frame shows nothing until it is given a real frame.
GX_EXPORT extern const CGRect CGRectNull;

constexpr CGPoint CGPointMake(CGFloat x, CGFloat y) { return {x, y}; }
constexpr CGSize CGSizeMake(CGFloat width, CGFloat height) { return {width, height}; }
constexpr CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) { return {{x, y}, {width, height}}; }

GX_EXPORT CGFloat CGRectGetMinX(CGRect rect);
GX_EXPORT CGFloat CGRectGetMidX(CGRect rect);
GX_EXPORT CGFloat CGRectGetMaxX(CGRect rect);
GX_EXPORT CGFloat CGRectGetMinY(CGRect rect);
GX_EXPORT CGFloat CGRectGetMidY(CGRect rect);
GX_EXPORT CGFloat CGRectGetMaxY(CGRect rect);
GX_EXPORT CGFloat CGRectGetWidth(CGRect rect);
GX_EXPORT CGFloat CGRectGetHeight(CGRect rect);

/// The same area with a width and height that are not negative.
GX_EXPORT CGRect CGRectStandardize(CGRect rect);
GX_EXPORT bool CGRectIsNull(CGRect rect);
/// True for the null rectangle and for one without area. A rectangle with a coordinate that is no
/// number is empty.
GX_EXPORT bool CGRectIsEmpty(CGRect rect);
GX_EXPORT bool CGRectEqualToRect(CGRect first, CGRect second);
/// The left and top edges belong to the rectangle, the right and bottom edges do not.
GX_EXPORT bool CGRectContainsPoint(CGRect rect, CGPoint point);
GX_EXPORT CGRect CGRectOffset(CGRect rect, CGFloat dx, CGFloat dy);
/// Shrinks by dx at the left and right and by dy at the top and bottom. One shrunk beyond nothing
/// is the null rectangle.
GX_EXPORT CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy);
/// The null rectangle where the two share no point.
GX_EXPORT CGRect CGRectIntersection(CGRect first, CGRect second);
/// True when the two share some area.
GX_EXPORT bool CGRectIntersectsRect(CGRect first, CGRect second);

} // namespace gx
