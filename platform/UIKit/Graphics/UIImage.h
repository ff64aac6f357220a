#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "CGGeometry.h"
#include "NSObject.h"
#include "UIColor.h"

namespace gx {

/// A picture as pixels, or as a pair of pictures, one for each look. Immutable, so hosts may keep what they make of it for as long as it
/// lives.
class UIImage : public NSObject {
public:
    /// `pixels` are rows from the top, four bytes a pixel: red, green, blue and alpha, not premultiplied.
    /// `scale` is pixels for a point. Answers nothing if the sizes do not fit each other or are not above 0.
    static Ref<UIImage> imageWithPixels_width_height_scale(std::vector<std::uint8_t> pixels, int width, int height, double scale);
    /// Reads a picture with the host's loader; nothing without a host, or if it cannot be read.
    static Ref<UIImage> imageWithContentsOfFile(const std::string& path);

    /// Drawn as the light picture of `light` in the light look, as the dark picture of `dark` in the dark one, so a window that changes
    /// from light to dark only has to draw again. Holds both; they may be of different scales. It begins with the label of `light`.
    /// Answers nothing if either is absent or if their sizes in points differ.
    static Ref<UIImage> imageWithLight_dark(Ref<UIImage> light, Ref<UIImage> dark);

    /// The picture to draw in the look: one of the pair, else this image itself. Lives as long as this image.
    const UIImage& resolved(UIUserInterfaceStyle style) const;

    // Of the two pictures of a pair, what follows tells the light one's.

    /// In points.
    CGSize size() const { return {width_ / scale_, height_ / scale_}; }
    int pixelWidth() const { return width_; }
    int pixelHeight() const { return height_; }
    double scale() const { return scale_; }
    const std::vector<std::uint8_t>& pixels() const { return light_ ? light_->pixels_ : pixels_; }

    /// What the picture shows, as a screen reader says it.
    const std::optional<std::string>& accessibilityLabel() const { return accessibilityLabel_; }
    void setAccessibilityLabel(std::optional<std::string> label) { accessibilityLabel_ = std::move(label); }

private:
    std::vector<std::uint8_t> pixels_;
    int width_ = 0;
    int height_ = 0;
    double scale_ = 1;
    // A pair has both and no pixels of its own; neither of them is a pair.
    Ref<const UIImage> light_;
    Ref<const UIImage> dark_;
    std::optional<std::string> accessibilityLabel_;
};

/// Decodes picture files for `UIImage`; a host provides it.
class UIImageLoader {
public:
    static Ref<UIImageLoader> shared();
    static void setShared(Ref<UIImageLoader> loader);

    virtual ~UIImageLoader() = default;
    virtual Ref<UIImage> imageWithContentsOfFile(const std::string& path) = 0;
};

} // namespace gx
