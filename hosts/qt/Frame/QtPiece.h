#pragma once

#include <cstddef>

#include <QColor>
#include <QImage>
#include <QRect>

namespace gx::qt {

/// Stands for "no clip": larger than any device, small enough for sums of coordinates.
inline constexpr QRect everywhere{QPoint(-(1 << 24), -(1 << 24)), QPoint((1 << 24) - 1, (1 << 24) - 1)};

/// One thing that a frame shows, in device pixels: an image, or a rectangle of one colour.
struct QtPiece {
    QImage image; ///< shared with the caches; null for a rectangle
    QRectF area;
    QRect clip = everywhere;
    double alpha = 1; ///< of an image; a colour has its own
    QColor color;
    double radiusX = 0;
    double radiusY = 0;
    bool hasClearEdge = false;  ///< an image without ink in its outer pixels, as those of texts
    QRect visible;              ///< the visible area, once it is recorded
    std::size_t viewsBelow = 0; ///< how many views within its own lie below it
    /// Whether the image's pixels lie between those of the device.
    bool isScaled() const { return !image.isNull() && (area.width() != image.width() || area.height() != image.height()); }
    /// What it may change, in whole pixels.
    QRect visibleArea() const { return area.toAlignedRect().adjusted(-1, -1, 1, 1).intersected(clip); }
    friend bool operator==(const QtPiece& some, const QtPiece& other) {
        return some.image.cacheKey() == other.image.cacheKey() && some.area == other.area && some.clip == other.clip &&
               some.alpha == other.alpha && some.color == other.color && some.radiusX == other.radiusX && some.radiusY == other.radiusY &&
               some.viewsBelow == other.viewsBelow;
    }
};

} // namespace gx::qt
