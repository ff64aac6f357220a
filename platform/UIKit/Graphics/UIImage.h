#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "CGGeometry.h"
#include "GXExport.h"
#include "NSObject.h"
#include "UIColor.h"

namespace gx {

/// A picture as pixels, or one that the host has, or a pair of pictures, one for each look.
///
/// Invariant: the pixels never change, so hosts may cache what they make of an image for as long as
/// it lives.
class GX_EXPORT UIImage : public NSObject {
public:
    /// An image of pixels. Returns nothing if the sizes do not fit each other or are not above 0.
    ///
    /// - `pixels` are rows from the top, four bytes a pixel: red, green, blue and alpha, not
    ///   premultiplied.
    /// - `scale` is pixels for a point.
    static Ref<UIImage> imageWithPixels_width_height_scale(std::vector<std::uint8_t> pixels, int width, int height, double scale);
    /// Stands for a picture that the host has itself, knows by a handle and draws. There are no
    /// pixels. Returns nothing if a side is not above 0.
    static Ref<UIImage> imageWithHostHandle_size(std::int64_t handle, CGSize size);
    /// Reads a picture with the host's loader; nothing without a host, or if it cannot be read.
    static Ref<UIImage> imageWithContentsOfFile(const std::string& path);

    /// The light picture of `light` in the light look, the dark picture of `dark` in the dark one.
    ///
    /// A window that changes its look only has to draw again. The image holds both, which may be of
    /// different scales, and begins with the accessibility label of `light`.
    ///
    /// Returns nothing if either is absent or if their sizes in points differ.
    static Ref<UIImage> imageWithLight_dark(Ref<UIImage> light, Ref<UIImage> dark);

    /// The picture to draw in the look: one of the pair, else this image itself. Lives as long as
    /// this image.
    const UIImage& resolved(UIUserInterfaceStyle style) const;

    // For a pair, these are the light picture's.

    /// In points.
    CGSize size() const { return hostHandle_ ? hostSize_ : CGSize{width_ / scale_, height_ / scale_}; }
    /// Nothing for an image of pixels.
    std::optional<std::int64_t> hostHandle() const { return hostHandle_; }
    /// In pixels; 0 for an image of the host.
    int pixelWidth() const { return width_; }
    /// In pixels; 0 for an image of the host.
    int pixelHeight() const { return height_; }
    /// Pixels for a point; 1 for an image of the host.
    double scale() const { return scale_; }
    /// Rows from the top, four bytes a pixel; empty for an image of the host.
    const std::vector<std::uint8_t>& pixels() const { return light_ ? light_->pixels_ : pixels_; }

    /// The accessibility text: what the picture shows.
    const std::optional<std::string>& accessibilityLabel() const { return accessibilityLabel_; }
    void setAccessibilityLabel(std::optional<std::string> label) { accessibilityLabel_ = std::move(label); }

private:
    std::vector<std::uint8_t> pixels_;
    int width_ = 0;
    int height_ = 0;
    double scale_ = 1;
    std::optional<std::int64_t> hostHandle_;
    CGSize hostSize_;
    // A pair has both and no pixels of its own; neither of them is a pair.
    Ref<const UIImage> light_;
    Ref<const UIImage> dark_;
    std::optional<std::string> accessibilityLabel_;
};

/// Decodes picture files for `UIImage`; a host provides it.
class GX_EXPORT UIImageLoader {
public:
    /// The loader in use; empty without a host.
    static Ref<UIImageLoader> shared();
    /// Replaces the loader for all; an empty reference removes it.
    static void setShared(Ref<UIImageLoader> loader);

    virtual ~UIImageLoader() = default;
    /// The picture in a file; nothing if it cannot be read.
    virtual Ref<UIImage> imageWithContentsOfFile(const std::string& path) = 0;
};

} // namespace gx
