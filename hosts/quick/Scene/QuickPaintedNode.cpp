#include "QuickPaintedNode.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include "QuickNode.h"

namespace gx::quick {

namespace {

QRectF areaOf(const QuickPiece& piece) {
    const QRectF& area = piece.area;
    return {piece.x + area.x() * piece.scaleX, piece.y + area.y() * piece.scaleY, area.width() * piece.scaleX,
            area.height() * piece.scaleY};
}

/// On whole pixels, if it has the image's size but for what adding up fractions leaves.
QRectF snapped(const QRectF& area, QSize size) {
    constexpr double tolerance = 1e-6;
    const bool isWhole = std::fabs(area.width() - size.width()) < tolerance && std::fabs(area.height() - size.height()) < tolerance;
    return isWhole ? QRectF({std::floor(area.x() + 0.5), std::floor(area.y() + 0.5)}, QSizeF(size)) : area;
}

} // namespace

void QuickPaintedNode::show(const std::vector<QuickPiece>& pieces) {
    pieces_ = pieces;
    QRectF area;
    for (const QuickPiece& piece : pieces_) area |= areaOf(piece);
    const bool isElsewhere = area != area_;
    area_ = area;
    markDirty(isElsewhere ? DirtyMaterial | DirtyGeometry : DirtyMaterial);
}

/// In device pixels; where these are not upright, in points.
qt::QtPiece QuickPaintedNode::painted(const QuickPiece& piece, const QTransform& device) const {
    const double opacity = piece.alpha * inheritedOpacity();
    const QRectF area = device.mapRect(areaOf(piece));
    qt::QtPiece painted;
    painted.image = piece.image;
    painted.hasClearEdge = piece.hasClearEdge;
    if (piece.image.isNull()) {
        painted.area = QRectF(area.toRect());
        painted.color = piece.color;
        painted.color.setAlphaF(static_cast<float>(piece.color.alphaF() * opacity));
    } else {
        painted.area = snapped(area, piece.image.size());
        painted.alpha = opacity;
    }
    return painted;
}

void QuickPaintedNode::render(const RenderState* state) {
    void* const resource = window_.rendererInterface()->getResource(&window_, QSGRendererInterface::PainterResource);
    auto* const painter = static_cast<QPainter*>(resource);
    if (painter == nullptr) return;
    // The renderer restores it.
    painter->setTransform(QTransform());
    const QTransform ofWindow = painter->deviceTransform();
    const QTransform item = matrix()->toTransform();
    painter->setTransform(item);
    const QTransform device = painter->deviceTransform();
    const bool isPlain = qt::QtCanvas::isPlain(device);
    frame_.begin(device);
    for (const QuickPiece& piece : pieces_) frame_.add(painted(piece, isPlain ? device : QTransform()));
    frame_.end(); // Releases the images of the frame before.
    // It clips to nothing but the region, so the canvas may blend with its pixels.
    auto* const image = isPlain ? dynamic_cast<QImage*>(painter->device()) : nullptr;
    const QRegion* const dirty = state->clipRegion();
    const QTransform toArea = isPlain ? ofWindow : item.inverted();
    // What lies between its rectangles is not cleared before.
    for (const QRect& rect : dirty != nullptr && !dirty->isEmpty() ? *dirty : QRegion(QRect({}, window_.size()))) {
        canvas_.paintFrame(*painter, frame_, toArea.mapRect(QRectF(rect)).toAlignedRect(), image);
    }
}

QSGNode* nodeWithPieces(const std::vector<QuickPiece>& pieces, QSGNode* before, QQuickWindow& window) {
    // All windows of a process have one renderer.
    // NOLINTBEGIN(cppcoreguidelines-owning-memory, cppcoreguidelines-pro-type-static-cast-downcast)
    if (window.rendererInterface()->graphicsApi() == QSGRendererInterface::Software) {
        auto* const painted = before ? static_cast<QuickPaintedNode*>(before) : new QuickPaintedNode(window);
        painted->show(pieces);
        return painted;
    }
    auto* const shown = before ? static_cast<QuickNode*>(before) : new QuickNode;
    shown->show(pieces, window);
    return shown;
    // NOLINTEND(cppcoreguidelines-owning-memory, cppcoreguidelines-pro-type-static-cast-downcast)
}

} // namespace gx::quick
