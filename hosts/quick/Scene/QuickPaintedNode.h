#pragma once

#include <vector>

#include <QSGRenderNode>

#include "QtCanvas.h"
#include "QuickCanvas.h"

class QQuickWindow;

namespace gx::quick {

/// The pieces of a frame, for the software renderer alone: one node, which paints them.
///
/// That renderer paints each node again that has moved, and spends more on finding what to paint
/// than on painting a row: nodes for each piece (`QuickNode`) take twice the time. They are for all
/// other renderers, and show the same picture.
class QuickPaintedNode final : public QSGRenderNode {
public:
    explicit QuickPaintedNode(QQuickWindow& window) : window_(window) {}

    void show(const std::vector<QuickPiece>& pieces);

    void render(const RenderState* state) override;
    RenderingFlags flags() const override { return BoundedRectRendering; }
    QRectF rect() const override { return area_; }

private:
    qt::QtPiece painted(const QuickPiece& piece, const QTransform& device) const;

    QQuickWindow& window_;
    std::vector<QuickPiece> pieces_;
    QRectF area_; // What they cover, in points.
    qt::QtCanvas canvas_;
    qt::QtFrame frame_;
};

/// Has the node that suits the window's renderer show the pieces. `before` is what was returned the
/// last time, or nothing; the scene graph owns it.
QSGNode* nodeWithPieces(const std::vector<QuickPiece>& pieces, QSGNode* before, QQuickWindow& window);

} // namespace gx::quick
