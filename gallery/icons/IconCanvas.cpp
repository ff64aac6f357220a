#include "IconCanvas.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

using namespace gx;

namespace gallery {

namespace {

float channel(unsigned rgb, unsigned shift) { return static_cast<float>((rgb >> shift) & 0xFFU) / 255.0F; }
std::uint8_t byte(float value) { return static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0F, 1.0F) * 255.0F)); }

} // namespace

IconCanvas::IconCanvas(int side, int scale)
    : pixelSide_(std::max(side, 0) * std::max(scale, 0)), scale_(scale),
      pixels_(static_cast<std::size_t>(pixelSide_) * static_cast<std::size_t>(pixelSide_)) {}

void IconCanvas::fill(const SmoothShape& shape, unsigned rgb) { blend(shape, {channel(rgb, 16), channel(rgb, 8), channel(rgb, 0), 1}); }

void IconCanvas::erase(const SmoothShape& shape) { blend(shape, {}); }

void IconCanvas::blend(const SmoothShape& shape, const Pixel& paint) {
    const CGRect bounds = shape.bounds();
    if (CGRectIsEmpty(bounds)) return;
    // An edge is smoothed over half a pixel to either side.
    const auto clamped = [this](CGFloat pixel) { return static_cast<int>(std::clamp<CGFloat>(pixel, 0, pixelSide_)); };
    const auto first = [this, clamped](CGFloat edge) { return clamped(std::floor(edge * scale_ - 0.5)); };
    const auto last = [this, clamped](CGFloat edge) { return clamped(std::ceil(edge * scale_ + 0.5)); };
    const int right = last(CGRectGetMaxX(bounds));
    const int bottom = last(CGRectGetMaxY(bounds));
    for (int y = first(CGRectGetMinY(bounds)); y < bottom; ++y) {
        for (int x = first(CGRectGetMinX(bounds)); x < right;) {
            const CGFloat distance = scale_ * shape.distance({(x + 0.5) / scale_, (y + 0.5) / scale_});
            const auto cover = static_cast<float>(std::clamp(0.5 - distance, 0.0, 1.0));
            // The edge is no nearer than that, so neighbours well inside or outside have the same
            // value.
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

Ref<UIImage> IconCanvas::image() const {
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
