#pragma once

#include "GXIconPickerView.h"

/// A list of different images of one white pixel each.
inline gx::Ref<const gx::GXIconPickerView::Images> iconImages(std::size_t count) {
    gx::GXIconPickerView::Images images;
    while (images.size() < count) images.push_back(gx::UIImage::imageWithPixels_width_height_scale({255, 255, 255, 255}, 1, 1, 1));
    return std::make_shared<const gx::GXIconPickerView::Images>(std::move(images));
}
