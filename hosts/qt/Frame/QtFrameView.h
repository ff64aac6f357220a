#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include <QRect>

#include "QtPiece.h"
#include <GXUIPickers/CGGeometry.h>
#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/UIDrawingVersion.h>

namespace gx::qt {

/// Maps points to device pixels: what a canvas draws with at some time.
struct QtDrawingState {
    double scaleX = 1;
    double scaleY = 1;
    double x = 0;
    double y = 0;
    double alpha = 1;
    QRect clip;
    /// That of a view whose origin and alpha are these.
    QtDrawingState at(CGPoint origin, double viewAlpha) const {
        return {scaleX, scaleY, x + origin.x * scaleX, y + origin.y * scaleY, alpha * viewAlpha, clip};
    }
    friend bool operator==(const QtDrawingState& some, const QtDrawingState& other) {
        return some.scaleX == other.scaleX && some.scaleY == other.scaleY && some.x == other.x && some.y == other.y &&
               some.alpha == other.alpha && some.clip == other.clip;
    }
};

/// What a view has drawn into a recorded frame: its pieces, and the views within it.
struct GX_EXPORT QtFrameView {
    /// A view within this one, beside what is asked of each of them in every frame.
    struct Within {
        std::unique_ptr<QtFrameView> view = std::make_unique<QtFrameView>();
        QRect visible; ///< contains the visible areas of its pieces and of those within it
        std::size_t textBytes = 0;
    };
    /// How subviews were drawn in their order.
    struct Subviews {
        std::size_t first = 0; ///< their place among the views within
        std::size_t count = 0;
        QtDrawingState state;
    };

    UIDrawingVersion version = {0, 0};
    QtDrawingState state;
    Subviews subviews;
    std::vector<QtPiece> pieces; ///< those of the view itself
    std::vector<QtPiece> before; ///< what `pieces` were, while the view draws again
    /// In their order; those from `count` on are kept for their memory.
    std::vector<Within> within;
    std::size_t count = 0;

    /// Forgets all that was drawn, and keeps the memory.
    void clear();
    /// Which area of device pixels `pieces` and `before` differ in.
    QRect changedPieces() const;
    /// Calls with the pieces that are visible in the area, those within included, in their order.
    template <class Call>
    void forEachPieceIn(const QRect& area, const Call& call) const {
        std::size_t next = 0;
        const auto callWithinUntil = [&](std::size_t end) {
            for (; next < end; ++next) {
                if (overlap(within[next].visible, area)) within[next].view->forEachPieceIn(area, call);
            }
        };
        for (const QtPiece& piece : pieces) {
            callWithinUntil(piece.viewsBelow);
            if (piece.visible.intersects(area)) call(piece);
        }
        callWithinUntil(count);
    }

private:
    /// As `intersects`, but short. May be true for an empty rectangle.
    static bool overlap(const QRect& some, const QRect& other) {
        return some.left() <= other.right() && other.left() <= some.right() && some.top() <= other.bottom() && other.top() <= some.bottom();
    }
};

} // namespace gx::qt
