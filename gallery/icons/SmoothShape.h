#pragma once

#include <cstddef>
#include <vector>

#include <GXUIPickers/CGGeometry.h>

namespace gallery {

/// A shape as the signed distance to its edge, in points, so that it has smooth edges in any
/// resolution and can be grown evenly. A shape without points covers nothing.
class SmoothShape {
public:
    static SmoothShape circle(gx::CGPoint center, gx::CGFloat radius);
    /// A line through the points, with round ends and joints.
    static SmoothShape stroke(std::vector<gx::CGPoint> points, gx::CGFloat width);
    /// A polygon grown by `rounding`, which rounds its corners.
    static SmoothShape polygon(std::vector<gx::CGPoint> corners, gx::CGFloat rounding);
    /// All shapes as one, with creases where they meet rounded by `fillet`; 0 leaves them sharp.
    static SmoothShape united(const std::vector<SmoothShape>& shapes, gx::CGFloat fillet);

    /// The shape with its edge moved outward by so many points.
    SmoothShape grown(gx::CGFloat points) const;
    SmoothShape moved(gx::CGFloat x, gx::CGFloat y) const;
    /// Scaled about the origin.
    SmoothShape scaled(gx::CGFloat factor) const;

    /// Negative inside, positive outside.
    gx::CGFloat distance(gx::CGPoint point) const;
    /// A rectangle that contains the shape.
    gx::CGRect bounds() const;

private:
    struct Part {
        std::vector<gx::CGPoint> points;
        gx::CGFloat radius;
        bool isFilled;
        gx::CGFloat distance(gx::CGPoint point) const;
    };
    std::vector<Part> parts_;
    gx::CGFloat fillet_ = 0;
};

/// The points of an arc, for a stroke. Angles are in degrees, clockwise from the right.
std::vector<gx::CGPoint> arcPoints(gx::CGPoint center, gx::CGFloat radius, gx::CGFloat fromDegrees, gx::CGFloat toDegrees);

} // namespace gallery
