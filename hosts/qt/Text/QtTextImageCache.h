#pragma once

#include <memory>
#include <string_view>

#include <QImage>

#include "QtTextCache.h"
#include "QtTextEngine.h"
#include <GXUIPickers/GXExport.h>

namespace gx::qt {

/// A line of text as an image in device pixels.
struct QtTextImage {
    /// Empty for a text without ink.
    QImage image;
    /// Where the text's left end and its baseline lie in the image.
    int penX = 0;
    int baseline = 0;
};

/// Texts as images, so that drawing one again only copies pixels.
///
/// A spinning wheel draws the same few texts in each frame, more or less faint; setting the type
/// each time costs about ten times as much.
///
/// - Supports: any text, font, colour and resolution; bounded by bytes.
/// - Does not support: images larger than `largestSide`. The caller draws such text directly.
class GX_EXPORT QtTextImageCache {
public:
    /// Chosen: about a thousand rows of a wheel on a screen with two pixels a point.
    static constexpr std::size_t defaultCapacity = std::size_t{16} << 20U;
    /// In pixels. Chosen: wider than a screen.
    static constexpr int largestSide = 4096;

    explicit QtTextImageCache(std::size_t byteCapacity = defaultCapacity) : cache_(byteCapacity) {}

    /// The one that canvases share; never empty.
    static const std::shared_ptr<QtTextImageCache>& shared();

    /// `pixelsPerEm` is the size of the font in device pixels. Nothing if the image would be too
    /// large. The pointer is valid until the next call.
    const QtTextImage* imageOfText(std::string_view text, const QtTextEngine::Face& face, double pixelsPerEm, QRgb color);

    std::size_t byteCount() const { return cache_.cost(); }
    std::size_t byteCapacity() const { return cache_.capacity(); }
    void setByteCapacity(std::size_t capacity) { cache_.setCapacity(capacity); }
    void purge() { cache_.clear(); }

    std::size_t imageCount() const { return cache_.size(); }
    /// How often an image was there, and how often it had to be made.
    std::size_t hitCount() const { return hitCount_; }
    std::size_t missCount() const { return missCount_; }

private:
    QtTextCache<QtTextImage> cache_;
    std::size_t hitCount_ = 0;
    std::size_t missCount_ = 0;
};

} // namespace gx::qt
