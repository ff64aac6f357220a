#pragma once

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
extern const CGRect CGRectZero;
/// "No rectangle": it lies at infinity, is empty, and intersects nothing. A view made with it as
/// its frame shows nothing until it is given a real frame.
extern const CGRect CGRectNull;

constexpr CGPoint CGPointMake(CGFloat x, CGFloat y) { return {x, y}; }
constexpr CGSize CGSizeMake(CGFloat width, CGFloat height) { return {width, height}; }
constexpr CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) { return {{x, y}, {width, height}}; }

CGFloat CGRectGetMinX(CGRect rect);
CGFloat CGRectGetMidX(CGRect rect);
CGFloat CGRectGetMaxX(CGRect rect);
CGFloat CGRectGetMinY(CGRect rect);
CGFloat CGRectGetMidY(CGRect rect);
CGFloat CGRectGetMaxY(CGRect rect);
CGFloat CGRectGetWidth(CGRect rect);
CGFloat CGRectGetHeight(CGRect rect);

/// The same area with a width and height that are not negative.
CGRect CGRectStandardize(CGRect rect);
bool CGRectIsNull(CGRect rect);
/// True for the null rectangle and for one without area. A rectangle with a coordinate that is no
/// number is empty.
bool CGRectIsEmpty(CGRect rect);
bool CGRectEqualToRect(CGRect first, CGRect second);
/// The left and top edges belong to the rectangle, the right and bottom edges do not.
bool CGRectContainsPoint(CGRect rect, CGPoint point);
CGRect CGRectOffset(CGRect rect, CGFloat dx, CGFloat dy);
/// Shrinks by dx at the left and right and by dy at the top and bottom. One shrunk beyond nothing
/// is the null rectangle.
CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy);
/// The null rectangle where the two share no point.
CGRect CGRectIntersection(CGRect first, CGRect second);
/// True when the two share some area.
bool CGRectIntersectsRect(CGRect first, CGRect second);

} // namespace gx
