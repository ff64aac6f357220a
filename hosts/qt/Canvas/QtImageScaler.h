#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <QImage>
#include <QPointF>
#include <QRect>
#include <QRectF>

#include <GXUIPickers/GXExport.h>

namespace gx::qt {

/// Makes images of texts smaller as QPainter draws them smoothly, to the bit, in less time.
///
/// QPainter finds the places in an image again for each line of the area, and blends span by span.
/// Here places are found once. The result is blended with what is below at once, or copied by the
/// painter to whole device pixels.
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
    /// Blends the area's device pixels with what `onto` shows. Returns whether it did: it leaves to
    /// the caller what is not supported, and an area that is cut by the clip or by the edge.
    bool blend(const QImage& image, const QRectF& area, double opacity, QImage& onto, const QRect& clip);

private:
    /// Where a pixel of a line comes from: two neighbours, and their shares for each component.
    struct Column {
        Lanes shares{}; // None for those that only fill a register.
        std::int32_t left = 0;
    };
    /// Returns the device pixels of the area, and keeps where they come from; empty for what is not
    /// supported.
    QRect place(const QImage& image, const QRectF& area);
    void prepareColumns(int imageWidth, int width);
    /// Makes the pixels, and has `storeFour` store them.
    template <typename Store>
    void write(const QImage& image, const QRect& pixels, uchar* to, qsizetype lineLength, Store storeFour);
    void mixLines(const QRgb* first, const QRgb* second, std::size_t width, std::uint16_t share);

    QPointF step_;  // In the image, from one device pixel to the next.
    QPointF first_; // The first one's place in the image.
    QImage scaled_;
    std::vector<Column> columns_;
    // Two lines mixed, with the outer pixels twice.
    std::vector<QRgb> line_;
};

} // namespace gx::qt
