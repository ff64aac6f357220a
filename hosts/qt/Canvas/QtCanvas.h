#pragma once

#include <memory>
#include <vector>

#include <QRect>
#include <QTransform>

#include "QtFrame.h"
#include "QtImageCache.h"
#include "QtImageScaler.h"
#include "QtTextImageCache.h"
#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/UIGraphicsContext.h>

class QPainter;

namespace gx::qt {

/// Draws on a QPainter. One canvas may serve all frames of a widget.
///
/// - Supports: the whole of `UIGraphicsContext`, on any paint device and at any ratio of device
///   pixels to points.
/// - Does not support: opacity of groups (each piece is made fainter by itself).
///
/// Rectangles and clips end on whole device pixels; a rectangle is at least one pixel thick. A
/// picture whose pixels fit the device's one by one is copied.
///
/// Text is copied from images (`QtTextImageCache`). At its own size, also after a scaling by the
/// painter before the frame, its baseline lies on whole device pixels. Text that a view scales is
/// sharp, and placed between pixels, so that it moves evenly.
///
/// Invariant: transform, clip and alpha are kept here and not in the painter, whose states are
/// costly to save and restore. The painter gets a clip or an opacity only when it has to change.
class GX_EXPORT QtCanvas : public UIGraphicsContext {
public:
    explicit QtCanvas(Ref<QtTextEngine> engine = QtTextEngine::shared(),
                      std::shared_ptr<QtTextImageCache> texts = QtTextImageCache::shared(),
                      std::shared_ptr<QtImageCache> pictures = QtImageCache::shared());
    ~QtCanvas() override;
    Q_DISABLE_COPY_MOVE(QtCanvas)

    /// Starts a frame with the painter's transform and the bounding rectangle of its clip. The
    /// painter must live until `end`, and nothing else may draw with it meanwhile.
    void begin(QPainter& painter);
    /// Starts a frame that is recorded, for a device with this transform, and not painted. Views
    /// that draw the same as in the frame recorded before stay as they are.
    void begin(QtFrame& frame, const QTransform& device);
    /// Gives the painter back as it was, or ends the recording.
    void end();
    /// Whether a painter's units can be made device pixels. One that is rotated or sheared keeps
    /// its transform, and its units count as device pixels.
    static bool isPlain(const QTransform& device) { return device.type() <= QTransform::TxScale && device.isInvertible(); }
    /// Paints what a frame shows in an area of device pixels, and nothing outside of it.
    ///
    /// The painter's transform on the device must be the frame's. The area replaces a clip that was
    /// set on the painter; that of a paint event stays in force.
    ///
    /// `device` is the image that the painter paints on, if nothing but the area clips. Texts are
    /// then blended with its pixels at once, which spares the painter's states.
    void paintFrame(QPainter& painter, const QtFrame& frame, const QRect& area, QImage* device = nullptr);

    void saveState() override { saved_.push_back(state_); }
    void restoreState() override;
    void translate(CGFloat x, CGFloat y) override;
    void scale(CGFloat x, CGFloat y) override;
    void clipToRect(CGRect rect) override;
    void multiplyAlpha(double alpha) override;
    bool beginView(const UIDrawingVersion& version, CGPoint origin, double alpha) override {
        return frame_ != nullptr && frame_->beginView(version, state_.at(origin, alpha), textBytes_);
    }
    void endView() override {
        if (frame_) frame_->endView(textBytes_);
    }
    std::uint64_t beginSubviews(const UIDrawingVersion& version, std::size_t count) override {
        return frame_ != nullptr ? frame_->beginSubviews(version, state_, count) : 0;
    }
    void repeatSubviews(std::size_t count) override {
        if (frame_) frame_->repeatSubviews(count, textBytes_);
    }

protected:
    void fillRectWithComponents(CGRect rect, const UIColorComponents& color, CGFloat cornerRadius) override;
    void drawTextWithComponents(std::string_view text, const UIFont& font, const UIColorComponents& color, CGPoint origin) override;
    void drawImageInRect(const UIImage& image, CGRect rect) override;

private:
    void beginState(const QTransform& device);
    void takePainter(QPainter& painter);
    QRectF mapped(CGRect rect) const;
    bool isSeen(const QRectF& area) const;
    void prepareClip(const QRect& wanted);
    void drawMapped(const QImage& image, const QRectF& area, bool hasClearEdge = false);
    void draw(QtPiece piece);
    void paint(const QtPiece& piece);
    void paintScaled(const QtPiece& piece);
    void drawTextDirectly(std::string_view text, const QtTextEngine::Face& face, double size, QRgb color, CGPoint origin);

    Ref<QtTextEngine> engine_;
    std::shared_ptr<QtTextImageCache> texts_;
    std::shared_ptr<QtImageCache> pictures_;

    QPainter* painter_ = nullptr;
    bool isPainterPlain_ = false; // Its units are device pixels.
    QtImageScaler scaler_;
    QtFrame* frame_ = nullptr; // In place of the painter.
    QImage* device_ = nullptr; // What a frame is painted on.
    double baseScale_ = 1;     // Device pixels for a point at the frame's start.
    QtDrawingState state_;
    std::vector<QtDrawingState> saved_;
    QRect paintedClip_;              // What the painter clips to now.
    QRect paintedArea_ = everywhere; // Nothing is painted outside of it.
    double paintedAlpha_ = 1;        // The painter's opacity now.
    std::size_t textBytes_ = 0;
};

} // namespace gx::qt
