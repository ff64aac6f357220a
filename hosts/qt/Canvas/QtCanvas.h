#pragma once

#include <memory>
#include <vector>

#include <QRect>
#include <QTransform>

#include <GXUIPickers/GXExport.h>
#include <GXUIPickers/QtImageCache.h>
#include <GXUIPickers/QtTextImageCache.h>
#include <GXUIPickers/UIGraphicsContext.h>

class QPainter;

namespace gx::qt {

/// Draws on a QPainter.
///
/// Supports: the whole of `UIGraphicsContext`, on any paint device and at any ratio of device pixels to points. Rectangles
/// and clips end on whole device pixels; a rectangle never vanishes for being thinner than one. Text is copied from
/// images (`QtTextImageCache`): at its own size it stands on whole device pixels with its baseline, squeezed or stretched it is placed
/// between them, so that it moves evenly. Scaling by the painter before the frame keeps text at its own size; a view that scales its text
/// gets it sharp, but not on whole pixels. A picture whose pixels fit the device's one by one is drawn so.
/// Does not support: opacity of groups (each piece is made fainter by itself).
///
/// Transform, clip and alpha are kept here and not in the painter, whose own states are costly to keep and restore; the painter is
/// given a clip or an opacity only when something is drawn with another one than before.
///
/// One canvas may serve all frames of a widget.
class GX_EXPORT QtCanvas : public UIGraphicsContext {
public:
    explicit QtCanvas(Ref<QtTextEngine> engine = QtTextEngine::shared(),
                      std::shared_ptr<QtTextImageCache> texts = QtTextImageCache::shared(),
                      std::shared_ptr<QtImageCache> pictures = QtImageCache::shared());

    /// Starts a frame with the painter's transform and clip (of a clip that is no rectangle, the bounding one). The painter must
    /// live until `end`, and nobody else may draw with it meanwhile.
    void begin(QPainter& painter);
    /// Gives the painter back as it was.
    void end();

    void saveState() override;
    void restoreState() override;
    void translate(CGFloat x, CGFloat y) override;
    void scale(CGFloat x, CGFloat y) override;
    void clipToRect(CGRect rect) override;
    void multiplyAlpha(double alpha) override;

protected:
    void fillRectWithComponents(CGRect rect, const UIColorComponents& color, CGFloat cornerRadius) override;
    void drawTextWithComponents(std::string_view text, const UIFont& font, const UIColorComponents& color, CGPoint origin) override;
    void drawImageInRect(const UIImage& image, CGRect rect) override;

private:
    /// Maps points to device pixels.
    struct State {
        double scaleX = 1;
        double scaleY = 1;
        double x = 0;
        double y = 0;
        double alpha = 1;
        QRect clip;
    };

    QRectF mapped(CGRect rect) const;
    bool prepareClip(const QRectF& area);
    void drawMapped(const QImage& image, const QRectF& area);
    void drawTextDirectly(std::string_view text, const QtTextEngine::Face& face, double size, QRgb color, CGPoint origin);

    Ref<QtTextEngine> engine_;
    std::shared_ptr<QtTextImageCache> texts_;
    std::shared_ptr<QtImageCache> pictures_;

    QPainter* painter_ = nullptr;
    double baseScale_ = 1; // Device pixels for a point at the frame's start.
    State state_;
    std::vector<State> saved_;
    QRect paintedClip_;       // What the painter clips to now.
    double paintedAlpha_ = 1; // The painter's opacity now.
};

} // namespace gx::qt
