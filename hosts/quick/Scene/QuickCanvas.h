#pragma once

#include <vector>

#include <QColor>
#include <QImage>
#include <QRectF>

#include <GXUIPickers/UIGraphicsContext.h>

#include "QtImageCache.h"
#include "QtTextImageCache.h"

namespace gx::quick {

/// One thing that a frame shows: an image, or a rectangle of one colour.
struct QuickPiece {
    QImage image; ///< shared with the caches; null for a rectangle
    QColor color;
    /// Its place before it is moved. It stays the same for the same text, however its row moves.
    QRectF area;
    double x = 0;
    double y = 0;
    double scaleX = 1;
    double scaleY = 1;
    double alpha = 1;
    bool hasClearEdge = false; ///< an image without ink in its outer pixels, as those of texts
};

/// Notes what a frame shows, as pieces that the scene graph moves (`QuickNode`) or that its
/// software renderer paints (`QuickPaintedNode`).
///
/// - Supports: texts and pictures at any ratio of device pixels to points, rectangles with and
///   without rounded corners, one alpha for each piece.
/// - Does not support: clips within the item, since rows fade out before they reach an edge; texts
///   that are larger than an image may be.
///
/// Texts are images of the shared cache. One that is not scaled lies on whole device pixels, seen
/// from the item's corner. Noting a frame allocates nothing once there was a larger one.
class QuickCanvas final : public UIGraphicsContext {
public:
    QuickCanvas() = default;
    ~QuickCanvas() override { texts_->setBytesInSight(this, 0); }
    Q_DISABLE_COPY_MOVE(QuickCanvas)

    /// Starts a frame at this many device pixels for a point.
    void begin(double pixelsPerPoint);
    const std::vector<QuickPiece>& pieces() const { return pieces_; }

    void saveState() override { saved_.push_back(state_); }
    void restoreState() override;
    void translate(CGFloat x, CGFloat y) override;
    void scale(CGFloat x, CGFloat y) override;
    void clipToRect(CGRect) override {}
    void multiplyAlpha(double alpha) override { state_.alpha *= alpha; }

protected:
    void fillRectWithComponents(CGRect rect, const UIColorComponents& color, CGFloat cornerRadius) override;
    void drawTextWithComponents(std::string_view text, const UIFont& font, const UIColorComponents& color, CGPoint origin) override;
    void drawImageInRect(const UIImage& image, CGRect rect) override;

private:
    struct State {
        double scaleX = 1;
        double scaleY = 1;
        double x = 0;
        double y = 0;
        double alpha = 1;
    };
    void add(QImage image, const QRectF& area, CGPoint origin);
    double onPixel(double coordinate) const;

    Ref<qt::QtTextEngine> engine_ = qt::QtTextEngine::shared();
    std::shared_ptr<qt::QtTextImageCache> texts_ = qt::QtTextImageCache::shared();
    std::shared_ptr<qt::QtImageCache> pictures_ = qt::QtImageCache::shared();
    double pixelsPerPoint_ = 1;
    std::size_t textBytes_ = 0; // Of the images that the frame shows.
    State state_;
    std::vector<State> saved_;
    std::vector<QuickPiece> pieces_;
};

} // namespace gx::quick
