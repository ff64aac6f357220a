#pragma once

#include <cstddef>
#include <vector>

#include <QRect>

#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/UIGraphicsContext.h>

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

/// Which pieces of a recorded frame each view has drawn, so that the next frame takes over those of
/// the views that draw the same.
///
/// A view is looked for where the frame before had it: at the same place among the views that were
/// drawn within the same view. One that is not found there draws, so its order decides only what a
/// frame costs.
///
/// Recording again takes nothing from the heap once there were as many views.
class GX_EXPORT QtFrameViews {
public:
    /// What had been recorded at some time.
    struct Extent {
        std::size_t pieces = 0;
        std::size_t textBytes = 0; ///< of the images of texts
    };
    /// A view, with all below it.
    struct View {
        UIDrawingVersion version;
        QtDrawingState state; ///< in which it draws
        Extent begin;
        Extent end;
        std::size_t next = 0; ///< the first one that is not below it
    };

    /// Starts with no views. Those of the frame before, if it may be used, must live until the end.
    void begin(const QtFrameViews* before);
    /// A view is about to draw. Returns it as the frame before has it, if it would draw the same;
    /// it then counts as drawn. Else `endView` must follow.
    const View* beginView(const UIDrawingVersion& version, const QtDrawingState& state, Extent now);
    void endView(Extent now);
    /// Whether all views have ended that began.
    bool isClosed() const { return open_.size() == 1; }

private:
    struct Open {
        std::size_t view = 0;
        std::size_t next = 0; // In the frame before: the next view within this one, and their end.
        std::size_t end = 0;
    };
    void takeOver(std::size_t view, Extent now);

    const QtFrameViews* before_ = nullptr;
    std::vector<View> views_;
    std::vector<Open> open_;
};

} // namespace gx::qt
