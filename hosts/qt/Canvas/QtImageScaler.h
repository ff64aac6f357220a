#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <QImage>
#include <QRect>
#include <QRectF>

#include <GXUIPickers/GXExport.h>

namespace gx::qt {

/// Makes images of texts smaller as QPainter draws them smoothly, to the bit, in less time.
///
/// QPainter finds the places in an image again for each line of the area, and blends span by span.
/// Here places are found once, and the painter copies the result to whole device pixels.
///
/// - Supports: premultiplied images with a clear edge, so that it does not matter which pixels at
///   the edge belong to an area; areas that are not wider than the image, and not below half of it.
/// - Does not support: all else. The caller draws such an image with QPainter.
class GX_EXPORT QtImageScaler {
public:
    /// The components of two pixels.
    using Lanes [[gnu::vector_size(16)]] = std::uint16_t;

    /// Fills the device pixels of the area, and returns which these are; empty for what is not
    /// supported. Allocates nothing once there was a larger area.
    QRect scale(const QImage& image, const QRectF& area);
    /// The result, in its upper left corner.
    const QImage& result() const { return scaled_; }

private:
    /// Where a pixel of a line comes from: two neighbours, and their shares for each component.
    struct Column {
        Lanes shares;
        std::int32_t left;
    };
    void mixLines(const QRgb* first, const QRgb* second, std::size_t width, std::uint16_t share);

    QImage scaled_;
    std::vector<Column> columns_;
    // Two lines mixed, with the outer pixels twice.
    std::vector<QRgb> line_;
};

} // namespace gx::qt
