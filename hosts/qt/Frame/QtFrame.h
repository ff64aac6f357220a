#pragma once

#include <vector>

#include <QColor>
#include <QImage>
#include <QRect>
#include <QTransform>

#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/NSLocale.h>

#include "QtFrameViews.h"

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
    QRect visible;             ///< the visible area, once it is recorded
    /// Whether the image's pixels lie between those of the device.
    bool isScaled() const { return !image.isNull() && (area.width() != image.width() || area.height() != image.height()); }
    /// What it may change, in whole pixels.
    QRect visibleArea() const { return area.toAlignedRect().adjusted(-1, -1, 1, 1).intersected(clip); }
    friend bool operator==(const QtPiece& some, const QtPiece& other);
};

/// What a `QtCanvas` has recorded of one frame, to be painted in parts and compared with the next.
///
/// A view that draws the same as in the frame before is not drawn again: its pieces are moved here.
///
/// Recording into a frame again takes nothing from the heap once it was larger.
class GX_EXPORT QtFrame {
public:
    /// Starts with nothing, for a device whose transform is this. Pieces are taken out of the frame
    /// before, if one is given. It must live until the recording ends, and then serves for
    /// `areaChangedSince` alone.
    void begin(const QTransform& device, QtFrame* before = nullptr);
    /// A view is about to draw, with so many bytes of images of texts recorded. Returns whether it
    /// was taken over; else `endView` must follow.
    bool beginView(const UIDrawingVersion& version, const QtDrawingState& state, std::size_t& textBytes);
    void endView(std::size_t textBytes) { views_.endView({pieces_.size(), textBytes}); }
    void add(QtPiece piece);
    const std::vector<QtPiece>& pieces() const { return pieces_; }
    const QTransform& transform() const { return transform_; }

    /// A frame that shows what is no piece cannot be painted from here.
    bool isComplete() const { return isComplete_; }
    void markIncomplete() { isComplete_ = false; }

    /// What has to be painted again after the other frame, in device pixels; empty if both show the
    /// same. Pieces may have been taken out of that frame, and of no other.
    ///
    /// No scaled image lies partly in it, since one that is painted in parts may differ by a
    /// rounding.
    QRect areaChangedSince(const QtFrame& before) const;

private:
    /// Some pieces in a row.
    struct Range {
        std::size_t begin = 0;
        std::size_t end = 0;
    };
    /// Pieces here and where they were in the frame before.
    struct Taken {
        Range here;
        Range before;
    };
    bool canTakeOver(const QtFrame& before) const;
    QRect difference(Range here, const QtFrame& before, Range there) const;

    std::vector<QtPiece> pieces_;
    QtFrameViews views_;
    QtFrame* before_ = nullptr; // While views begin and end.
    std::vector<Taken> taken_;  // In their order, here and there.
    // What drawing depends on beside the views.
    Ref<NSLocale> locale_;
    std::uint64_t textGeneration_ = 0;
    QTransform transform_;
    bool isComplete_ = false;
};

} // namespace gx::qt
