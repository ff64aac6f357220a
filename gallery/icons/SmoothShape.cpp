#include "SmoothShape.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace gx;

namespace gallery {

namespace {

constexpr double pi = 3.14159265358979323846;

CGFloat distanceToSegment(CGPoint point, CGPoint from, CGPoint to) {
    const CGPoint way = {to.x - from.x, to.y - from.y};
    const CGPoint there = {point.x - from.x, point.y - from.y};
    const CGFloat square = way.x * way.x + way.y * way.y;
    const CGFloat along = square > 0 ? std::clamp((there.x * way.x + there.y * way.y) / square, 0.0, 1.0) : 0;
    const CGFloat x = there.x - along * way.x;
    const CGFloat y = there.y - along * way.y;
    return std::sqrt(x * x + y * y);
}

/// True if a ray from the point to the right crosses the edge.
bool crosses(CGPoint point, CGPoint from, CGPoint to) {
    return (from.y > point.y) != (to.y > point.y) && point.x < from.x + (point.y - from.y) / (to.y - from.y) * (to.x - from.x);
}

/// The smaller of both. Where they are nearly equal it is less by up to a quarter of the fillet,
/// which rounds the crease.
CGFloat smoothMin(CGFloat first, CGFloat second, CGFloat fillet) {
    const CGFloat nearness = fillet - std::fabs(first - second);
    return std::min(first, second) - (nearness > 0 ? nearness * nearness / (4 * fillet) : 0);
}

} // namespace

SmoothShape SmoothShape::circle(CGPoint center, CGFloat radius) { return stroke({center}, 2 * radius); }

SmoothShape SmoothShape::stroke(std::vector<CGPoint> points, CGFloat width) {
    SmoothShape shape;
    if (!points.empty()) shape.parts_.push_back({std::move(points), 0.5 * width, false});
    return shape;
}

SmoothShape SmoothShape::polygon(std::vector<CGPoint> corners, CGFloat rounding) {
    SmoothShape shape;
    if (corners.empty()) return shape;
    // Closed, so that the edges are treated as those of a line.
    corners.push_back(corners.front());
    shape.parts_.push_back({std::move(corners), rounding, true});
    return shape;
}

SmoothShape SmoothShape::united(const std::vector<SmoothShape>& shapes, CGFloat fillet) {
    SmoothShape whole;
    whole.fillet_ = fillet;
    for (const SmoothShape& shape : shapes) whole.parts_.insert(whole.parts_.end(), shape.parts_.begin(), shape.parts_.end());
    return whole;
}

SmoothShape SmoothShape::grown(CGFloat points) const {
    SmoothShape shape = *this;
    for (Part& part : shape.parts_) part.radius += points;
    return shape;
}

SmoothShape SmoothShape::moved(CGFloat x, CGFloat y) const {
    SmoothShape shape = *this;
    for (Part& part : shape.parts_) {
        for (CGPoint& point : part.points) point = {point.x + x, point.y + y};
    }
    return shape;
}

SmoothShape SmoothShape::scaled(CGFloat factor) const {
    SmoothShape shape = *this;
    shape.fillet_ *= factor;
    for (Part& part : shape.parts_) {
        part.radius *= factor;
        for (CGPoint& point : part.points) point = {point.x * factor, point.y * factor};
    }
    return shape;
}

CGFloat SmoothShape::Part::distance(CGPoint point) const {
    CGFloat nearest = distanceToSegment(point, points.front(), points.front());
    bool isInside = false;
    for (std::size_t i = 1; i < points.size(); ++i) {
        nearest = std::min(nearest, distanceToSegment(point, points[i - 1], points[i]));
        if (isFilled && crosses(point, points[i - 1], points[i])) isInside = !isInside;
    }
    return (isInside ? -nearest : nearest) - radius;
}

CGFloat SmoothShape::distance(CGPoint point) const {
    CGFloat nearest = std::numeric_limits<CGFloat>::max();
    for (const Part& part : parts_) nearest = smoothMin(nearest, part.distance(point), fillet_);
    return nearest;
}

CGRect SmoothShape::bounds() const {
    constexpr CGFloat far = std::numeric_limits<CGFloat>::max();
    CGPoint least = {far, far};
    CGPoint most = {-far, -far};
    for (const Part& part : parts_) {
        const CGFloat reach = part.radius + 0.25 * fillet_ * static_cast<CGFloat>(parts_.size() - 1);
        for (const CGPoint point : part.points) {
            least = {std::min(least.x, point.x - reach), std::min(least.y, point.y - reach)};
            most = {std::max(most.x, point.x + reach), std::max(most.y, point.y + reach)};
        }
    }
    return parts_.empty() ? CGRectZero : CGRectMake(least.x, least.y, most.x - least.x, most.y - least.y);
}

std::vector<CGPoint> arcPoints(CGPoint center, CGFloat radius, CGFloat fromDegrees, CGFloat toDegrees) {
    constexpr int pieces = 24;
    std::vector<CGPoint> points;
    for (int i = 0; i <= pieces; ++i) {
        const CGFloat angle = (fromDegrees + (toDegrees - fromDegrees) * i / pieces) * pi / 180;
        points.push_back({center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)});
    }
    return points;
}

} // namespace gallery
