#pragma once

#include <cstddef>
#include <vector>

#include <GXUIPickers/CGGeometry.h>
#include <GXUIPickers/UIImage.h>

namespace gallery {

/// A shape told by the distance to its edge, in points, so that it has smooth edges in any resolution and can be grown evenly. One without
/// points is empty: it covers nothing.
class GalleryShape {
public:
    static GalleryShape circle(gx::CGPoint center, gx::CGFloat radius);
    /// A line through the points, with round ends and joints.
    static GalleryShape stroke(std::vector<gx::CGPoint> points, gx::CGFloat width);
    /// The inside of the corners, grown by `rounding`, which makes them round.
    static GalleryShape polygon(std::vector<gx::CGPoint> corners, gx::CGFloat rounding);
    /// All shapes as one, the creases where they meet filled as far as `fillet` tells; 0 leaves them sharp.
    static GalleryShape united(const std::vector<GalleryShape>& shapes, gx::CGFloat fillet);

    /// The shape and all that lies within so many points of it.
    GalleryShape grown(gx::CGFloat points) const;
    GalleryShape moved(gx::CGFloat x, gx::CGFloat y) const;
    /// About the origin.
    GalleryShape scaled(gx::CGFloat factor) const;

    /// Below 0 inside, above 0 outside.
    gx::CGFloat distance(gx::CGPoint point) const;
    /// The shape lies within.
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

/// The points of a part of a circle, for a stroke. Angles are in degrees, 0 at the right, growing clockwise.
std::vector<gx::CGPoint> galleryArc(gx::CGPoint center, gx::CGFloat radius, gx::CGFloat fromDegrees, gx::CGFloat toDegrees);

/// A picture in the making: shapes are laid over each other on a clear ground.
class GallerySketch {
public:
    /// A square of `side` points, `scale` pixels for a point. Where one is not above 0, there is no image.
    GallerySketch(int side, int scale);

    /// `rgb` as 0xRRGGBB.
    void fill(const GalleryShape& shape, unsigned rgb);
    /// Makes the shape clear again.
    void erase(const GalleryShape& shape);
    gx::Ref<gx::UIImage> image() const;

private:
    struct Pixel { // Premultiplied, from 0 to 1.
        float red = 0;
        float green = 0;
        float blue = 0;
        float alpha = 0;
    };
    void blend(const GalleryShape& shape, const Pixel& paint);

    int pixelSide_;
    int scale_;
    std::vector<Pixel> pixels_;
};

} // namespace gallery
