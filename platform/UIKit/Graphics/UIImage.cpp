#include "UIImage.h"

#include <cmath>

namespace gx {

namespace {
Ref<UIImageLoader>& sharedLoader() {
    static Ref<UIImageLoader> loader;
    return loader;
}
} // namespace

Ref<UIImage> UIImage::imageWithPixels_width_height_scale(std::vector<std::uint8_t> pixels, int width, int height, double scale) {
    const bool isSized = width > 0 && height > 0 && scale > 0 && std::isfinite(scale);
    if (!isSized) return nullptr;
    // In 64 bits, where no two ints overflow, whatever the machine's word.
    if (pixels.size() != static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(height) * 4) return nullptr;
    auto image = create<UIImage>();
    image->pixels_ = std::move(pixels);
    image->width_ = width;
    image->height_ = height;
    image->scale_ = scale;
    return image;
}

Ref<UIImage> UIImage::imageWithHostHandle_size(std::int64_t handle, CGSize size) {
    const bool isSized = size.width > 0 && size.height > 0 && std::isfinite(size.width) && std::isfinite(size.height);
    if (!isSized) return nullptr;
    auto image = create<UIImage>();
    image->hostHandle_ = handle;
    image->hostSize_ = size;
    return image;
}

Ref<UIImage> UIImage::imageWithContentsOfFile(const std::string& path) {
    const Ref<UIImageLoader> loader = UIImageLoader::shared();
    return loader ? loader->imageWithContentsOfFile(path) : nullptr;
}

Ref<UIImage> UIImage::imageWithLight_dark(Ref<UIImage> light, Ref<UIImage> dark) {
    if (!light || !dark || light->size() != dark->size()) return nullptr;
    auto image = create<UIImage>();
    image->width_ = light->width_;
    image->height_ = light->height_;
    image->scale_ = light->scale_;
    image->hostHandle_ = light->hostHandle_;
    image->hostSize_ = light->hostSize_;
    image->accessibilityLabel_ = light->accessibilityLabel_;
    image->light_ = light->light_ ? light->light_ : std::move(light);
    image->dark_ = dark->dark_ ? dark->dark_ : std::move(dark);
    return image;
}

const UIImage& UIImage::resolved(UIUserInterfaceStyle style) const {
    const Ref<const UIImage>& picture = style == UIUserInterfaceStyle::Dark ? dark_ : light_;
    return picture ? *picture : *this;
}

Ref<UIImageLoader> UIImageLoader::shared() { return sharedLoader(); }
void UIImageLoader::setShared(Ref<UIImageLoader> loader) { sharedLoader() = std::move(loader); }

} // namespace gx
