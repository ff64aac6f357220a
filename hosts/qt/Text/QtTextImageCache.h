#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

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
/// - Supports: any text, font, colour and resolution.
/// - Bounded by what is in sight: above `keptScreens` times the bytes that all canvases have drawn
///   in their last frames, the images used longest ago are released. `byteCapacity` is never
///   exceeded.
/// - Does not support: images larger than `largestSide`. The caller draws such text directly.
class GX_EXPORT QtTextImageCache {
public:
    /// Chosen: about a thousand rows of a wheel on a screen with two pixels a point.
    static constexpr std::size_t defaultCapacity = std::size_t{16} << 20U;
    /// Kept whatever is in sight. Chosen: all rows of hours, minutes and seconds, on a screen with
    /// one pixel a point.
    static constexpr std::size_t smallestBound = std::size_t{384} << 10U;
    /// Chosen: the rows in sight, and as many behind and before them as a spin passes soon.
    static constexpr std::size_t keptScreens = 4;
    /// In pixels. Chosen: wider than a screen.
    static constexpr int largestSide = 4096;

    explicit QtTextImageCache(std::size_t byteCapacity = defaultCapacity) : highestBound_(byteCapacity) { bound(); }

    /// The one that canvases share; never empty.
    static const std::shared_ptr<QtTextImageCache>& shared();

    /// `pixelsPerEm` is the size of the font in device pixels. Nothing if the image would be too
    /// large. The pointer is valid until the next call.
    const QtTextImage* imageOfText(std::string_view text, const QtTextEngine::Face& face, double pixelsPerEm, QRgb color);

    /// What a canvas has drawn in its last frame, in bytes of images; 0 for one that is gone.
    void setBytesInSight(const void* canvas, std::size_t bytes);

    std::size_t byteCount() const { return cache_.cost(); }
    std::size_t byteCapacity() const { return highestBound_; }
    void setByteCapacity(std::size_t capacity) {
        highestBound_ = capacity;
        bound();
    }
    /// What the bytes are bounded by at present.
    std::size_t byteBound() const { return cache_.capacity(); }
    void purge() {
        cache_.clear();
        digits_.clear();
    }

    std::size_t imageCount() const { return cache_.size(); }
    /// How often an image was there, and how often it had to be made.
    std::size_t hitCount() const { return hitCount_; }
    std::size_t missCount() const { return missCount_; }

private:
    /// Chosen: the digits of one look at all places within a pixel, for a screen with two pixels a
    /// point; a wheel has two or three looks.
    static constexpr std::size_t digitCapacity = std::size_t{128} << 10U;

    const QImage* imageOfDigit(char digit, int phase, const QtTextEngine::Face& face, double pixelsPerEm, QRgb color, QPoint& pen);
    std::optional<QtTextImage> composedText(std::string_view text, const QtTextEngine::Face& face, double pixelsPerEm, QRgb color);

    struct Canvas {
        const void* canvas; // Compared only.
        std::size_t bytes;
    };
    void bound();

    std::vector<Canvas> canvases_;
    std::size_t highestBound_;
    QtTextCache<QtTextImage> cache_{smallestBound};
    QtTextCache<QtTextImage> digits_{digitCapacity};
    std::size_t hitCount_ = 0;
    std::size_t missCount_ = 0;
};

} // namespace gx::qt
