#pragma once

#include <vector>

#include "SmoothShape.h"
#include <GXUIPickers/UIImage.h>

namespace gallery {

/// Draws an icon: shapes are filled one over the other on a transparent ground.
class IconCanvas {
public:
    /// A square of `side` points with `scale` pixels a point. If one of them is not above 0, there
    /// is no image.
    IconCanvas(int side, int scale);

    /// `rgb` as 0xRRGGBB.
    void fill(const SmoothShape& shape, unsigned rgb);
    /// Makes the shape transparent again.
    void erase(const SmoothShape& shape);
    gx::Ref<gx::UIImage> image() const;

private:
    struct Pixel { // Premultiplied, from 0 to 1.
        float red = 0;
        float green = 0;
        float blue = 0;
        float alpha = 0;
    };
    void blend(const SmoothShape& shape, const Pixel& paint);

    int pixelSide_;
    int scale_;
    std::vector<Pixel> pixels_;
};

} // namespace gallery
