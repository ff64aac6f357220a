#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <QRect>
#include <QTransform>

#include "QtFrameView.h"
#include "QtPiece.h"
#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/NSLocale.h>

namespace gx::qt {

/// What a `QtCanvas` has recorded of the present frame, to be painted in parts.
///
/// Each frame is recorded over the one before, view by view. A view that draws the same stays as it
/// was recorded; one that draws is compared with what lay at its place: the same place among the
/// views that were drawn within the same view. So a frame costs what was invalidated.
///
/// Recording again takes nothing from the heap once there were as many views and pieces.
class GX_EXPORT QtFrame {
public:
    /// Starts a frame for a device whose transform is this.
    void begin(const QTransform& device);
    void end();
    void add(QtPiece piece);

    /// A view is about to draw in this state, with so many bytes of images of texts recorded.
    /// Returns whether it stays as it was recorded; else `endView` must follow.
    bool beginView(const UIDrawingVersion& version, const QtDrawingState& state, std::size_t& textBytes);
    void endView(std::size_t textBytes);
    /// See `UIGraphicsContext`.
    std::uint64_t beginSubviews(const UIDrawingVersion& version, const QtDrawingState& state, std::size_t count);
    void repeatSubviews(std::size_t count, std::size_t& textBytes);

    const QTransform& transform() const { return transform_; }
    /// A frame that shows what is no piece cannot be painted from here.
    bool isComplete() const { return isComplete_; }
    void markIncomplete() { isComplete_ = false; }

    /// Calls with the pieces that are visible in an area of device pixels, in their order.
    template <class Call>
    void forEachPieceIn(const QRect& area, const Call& call) const {
        root_.forEachPieceIn(area, call);
    }
    /// What looks different from the frame before, in device pixels; empty if both look the same.
    ///
    /// No scaled image lies partly in it, since one that is painted in parts may differ by a
    /// rounding.
    QRect changedArea() const;

private:
    /// A view that is drawing.
    struct Open {
        QtFrameView* view = nullptr;
        bool mayKeep = false;      // Whether views within it may stay as they were.
        std::size_t textBytes = 0; // When it began.
        // As it was recorded before.
        std::uint64_t treeBefore = 0;
        QtFrameView::Subviews subviewsBefore = {};
        // Of what is recorded now.
        std::size_t next = 0; // The place of the next view within it.
        QRect visible = {};
    };
    void close(const Open& ended);

    QtFrameView root_; // Stands for the frame; no view has its version.
    std::vector<Open> open_;
    QRect changed_;
    // What drawing depends on beside the views.
    Ref<NSLocale> locale_;
    std::uint64_t textGeneration_ = 0;
    QTransform transform_;
    bool isComplete_ = false;
    bool isWhole_ = false; // Whether all views have ended that began.
};

} // namespace gx::qt
