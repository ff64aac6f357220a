#include "GalleryShapes.h"

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

/// The smaller of both; where they are about equal, less by up to a quarter of the fillet, which rounds the crease.
CGFloat smoothMin(CGFloat first, CGFloat second, CGFloat fillet) {
    const CGFloat nearness = fillet - std::fabs(first - second);
    return std::min(first, second) - (nearness > 0 ? nearness * nearness / (4 * fillet) : 0);
}

float channel(unsigned rgb, unsigned shift) { return static_cast<float>((rgb >> shift) & 0xFFU) / 255.0F; }
std::uint8_t byte(float value) { return static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0F, 1.0F) * 255.0F)); }

} // namespace

GalleryShape GalleryShape::circle(CGPoint center, CGFloat radius) { return stroke({center}, 2 * radius); }

GalleryShape GalleryShape::stroke(std::vector<CGPoint> points, CGFloat width) {
    GalleryShape shape;
    if (!points.empty()) shape.parts_.push_back({std::move(points), 0.5 * width, false});
    return shape;
}

GalleryShape GalleryShape::polygon(std::vector<CGPoint> corners, CGFloat rounding) {
    GalleryShape shape;
    if (corners.empty()) return shape;
    // Closed, so that its edges are those of a line.
    corners.push_back(corners.front());
    shape.parts_.push_back({std::move(corners), rounding, true});
    return shape;
}

GalleryShape GalleryShape::united(const std::vector<GalleryShape>& shapes, CGFloat fillet) {
    GalleryShape whole;
    whole.fillet_ = fillet;
    for (const GalleryShape& shape : shapes) whole.parts_.insert(whole.parts_.end(), shape.parts_.begin(), shape.parts_.end());
    return whole;
}

GalleryShape GalleryShape::grown(CGFloat points) const {
    GalleryShape shape = *this;
    for (Part& part : shape.parts_) part.radius += points;
    return shape;
}

GalleryShape GalleryShape::moved(CGFloat x, CGFloat y) const {
    GalleryShape shape = *this;
    for (Part& part : shape.parts_) {
        for (CGPoint& point : part.points) point = {point.x + x, point.y + y};
    }
    return shape;
}

GalleryShape GalleryShape::scaled(CGFloat factor) const {
    GalleryShape shape = *this;
    shape.fillet_ *= factor;
    for (Part& part : shape.parts_) {
        part.radius *= factor;
        for (CGPoint& point : part.points) point = {point.x * factor, point.y * factor};
    }
    return shape;
}

CGFloat GalleryShape::Part::distance(CGPoint point) const {
    CGFloat nearest = distanceToSegment(point, points.front(), points.front());
    bool isInside = false;
    for (std::size_t i = 1; i < points.size(); ++i) {
        nearest = std::min(nearest, distanceToSegment(point, points[i - 1], points[i]));
        if (isFilled && crosses(point, points[i - 1], points[i])) isInside = !isInside;
    }
    return (isInside ? -nearest : nearest) - radius;
}

CGFloat GalleryShape::distance(CGPoint point) const {
    CGFloat nearest = std::numeric_limits<CGFloat>::max();
    for (const Part& part : parts_) nearest = smoothMin(nearest, part.distance(point), fillet_);
    return nearest;
}

CGRect GalleryShape::bounds() const {
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

std::vector<CGPoint> galleryArc(CGPoint center, CGFloat radius, CGFloat fromDegrees, CGFloat toDegrees) {
    constexpr int pieces = 24;
    std::vector<CGPoint> points;
    for (int i = 0; i <= pieces; ++i) {
        const CGFloat angle = (fromDegrees + (toDegrees - fromDegrees) * i / pieces) * pi / 180;
        points.push_back({center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)});
    }
    return points;
}

GallerySketch::GallerySketch(int side, int scale)
    : pixelSide_(std::max(side, 0) * std::max(scale, 0)), scale_(scale),
      pixels_(static_cast<std::size_t>(pixelSide_) * static_cast<std::size_t>(pixelSide_)) {}

void GallerySketch::fill(const GalleryShape& shape, unsigned rgb) { blend(shape, {channel(rgb, 16), channel(rgb, 8), channel(rgb, 0), 1}); }

void GallerySketch::erase(const GalleryShape& shape) { blend(shape, {}); }

void GallerySketch::blend(const GalleryShape& shape, const Pixel& paint) {
    const CGRect bounds = shape.bounds();
    if (CGRectIsEmpty(bounds)) return;
    // An edge is smoothed over half a pixel to either side.
    const auto held = [this](CGFloat pixel) { return static_cast<int>(std::clamp<CGFloat>(pixel, 0, pixelSide_)); };
    const auto first = [this, held](CGFloat edge) { return held(std::floor(edge * scale_ - 0.5)); };
    const auto last = [this, held](CGFloat edge) { return held(std::ceil(edge * scale_ + 0.5)); };
    const int right = last(CGRectGetMaxX(bounds));
    const int bottom = last(CGRectGetMaxY(bounds));
    for (int y = first(CGRectGetMinY(bounds)); y < bottom; ++y) {
        for (int x = first(CGRectGetMinX(bounds)); x < right;) {
            const CGFloat distance = scale_ * shape.distance({(x + 0.5) / scale_, (y + 0.5) / scale_});
            const auto cover = static_cast<float>(std::clamp(0.5 - distance, 0.0, 1.0));
            // The edge is no nearer than that, so neighbours well inside or outside share the answer.
            const int end = std::min(right, x + 1 + std::max(0, static_cast<int>(std::fabs(distance) - 0.5)));
            for (; x < end; ++x) {
                Pixel& pixel = pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(pixelSide_) + static_cast<std::size_t>(x)];
                pixel.red += (paint.red - pixel.red) * cover;
                pixel.green += (paint.green - pixel.green) * cover;
                pixel.blue += (paint.blue - pixel.blue) * cover;
                pixel.alpha += (paint.alpha - pixel.alpha) * cover;
            }
        }
    }
}

Ref<UIImage> GallerySketch::image() const {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(pixels_.size() * 4);
    for (const Pixel& pixel : pixels_) {
        const float unmultiply = pixel.alpha > 0 ? 1 / pixel.alpha : 0;
        for (const float value : {pixel.red * unmultiply, pixel.green * unmultiply, pixel.blue * unmultiply, pixel.alpha}) {
            bytes.push_back(byte(value));
        }
    }
    return UIImage::imageWithPixels_width_height_scale(std::move(bytes), pixelSide_, pixelSide_, scale_);
}

} // namespace gallery
