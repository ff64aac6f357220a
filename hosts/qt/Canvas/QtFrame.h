#pragma once

#include <vector>

#include <QColor>
#include <QImage>
#include <QRect>
#include <QTransform>

#include <GXUIPickers/GXExport.h>

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
    bool hasClearEdge = false; ///< an image without ink in its outer pixels, as those of texts
    /// Whether the image's pixels lie between those of the device.
    bool isScaled() const { return !image.isNull() && (area.width() != image.width() || area.height() != image.height()); }
    /// What it may change, in whole pixels.
    QRect visibleArea() const { return area.toAlignedRect().adjusted(-1, -1, 1, 1).intersected(clip); }
    friend bool operator==(const QtPiece& some, const QtPiece& other);
};

/// What a `QtCanvas` has recorded of one frame, to be painted in parts and compared with the next.
///
/// Recording into a frame again takes nothing from the heap once it was larger.
class GX_EXPORT QtFrame {
public:
    /// Starts with nothing, for a device whose transform is this.
    void begin(const QTransform& device);
    void add(QtPiece piece) { pieces_.push_back(std::move(piece)); }
    const std::vector<QtPiece>& pieces() const { return pieces_; }
    const QTransform& transform() const { return transform_; }

    /// A frame that shows what is no piece cannot be painted from here.
    bool isComplete() const { return isComplete_; }
    void markIncomplete() { isComplete_ = false; }

    /// What has to be painted again after the other frame, in device pixels; empty if both show the
    /// same. No scaled image lies partly in it, since one that is painted in parts may differ by a
    /// rounding.
    QRect areaChangedSince(const QtFrame& before) const;

private:
    std::vector<QtPiece> pieces_;
    QTransform transform_;
    bool isComplete_ = false;
};

} // namespace gx::qt
