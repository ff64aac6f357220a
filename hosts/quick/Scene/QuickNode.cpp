#include "QuickNode.h"

#include <QMatrix4x4>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRectangleNode>

namespace gx::quick {

QuickNode::~QuickNode() {
    // Before their textures.
    while (QSGNode* const child = firstChild()) {
        removeChildNode(child);
        delete child; // And what is below it. NOLINT(cppcoreguidelines-owning-memory)
    }
}

QSGTexture* QuickNode::textureOf(const QImage& image, QQuickWindow& window) {
    Texture& entry = textures_[image.cacheKey()];
    if (!entry.texture) {
        entry.texture.reset(window.createTextureFromImage(image, QQuickWindow::TextureCanUseAtlas));
        ++madeTextureCount_;
    }
    entry.lastFrame = frame_;
    return entry.texture.get();
}

void QuickNode::dropTextures() {
    if (textures_.size() <= nodes_.size() + spareTextureCount) return;
    for (auto entry = textures_.begin(); entry != textures_.end();) {
        entry = entry->second.lastFrame == frame_ ? std::next(entry) : textures_.erase(entry);
    }
}

void QuickNode::update(Nodes& nodes, const QuickPiece& piece, QQuickWindow& window) {
    const bool isImage = !piece.image.isNull();
    const bool isNew = nodes.transform == nullptr || isImage != (nodes.image != nullptr);
    // The tree owns its nodes. NOLINTBEGIN(cppcoreguidelines-owning-memory)
    if (nodes.transform == nullptr) {
        nodes.transform = new QSGTransformNode;
        nodes.opacity = new QSGOpacityNode;
        nodes.transform->appendChildNode(nodes.opacity);
        appendChildNode(nodes.transform);
    }
    if (isNew) {
        while (QSGNode* const before = nodes.opacity->firstChild()) {
            nodes.opacity->removeChildNode(before);
            delete before;
        }
        nodes.image = isImage ? window.createImageNode() : nullptr;
        nodes.rectangle = isImage ? nullptr : window.createRectangleNode();
    }
    // NOLINTEND(cppcoreguidelines-owning-memory)
    const QuickPiece& shown = nodes.shown;
    if (isImage) {
        QSGTexture* const texture = textureOf(piece.image, window);
        if (isNew || shown.image.cacheKey() != piece.image.cacheKey()) {
            nodes.image->setTexture(texture);
            nodes.image->setSourceRect(QRectF(QPointF(), QSizeF(piece.image.size())));
            nodes.image->setFiltering(QSGTexture::Linear);
            nodes.image->setOwnsTexture(false);
        }
        if (isNew || shown.area != piece.area) nodes.image->setRect(piece.area);
    } else {
        if (isNew || shown.color != piece.color) nodes.rectangle->setColor(piece.color);
        if (isNew || shown.area != piece.area) nodes.rectangle->setRect(piece.area);
    }
    const bool isMoved = shown.x != piece.x || shown.y != piece.y || shown.scaleX != piece.scaleX || shown.scaleY != piece.scaleY;
    if (isNew || isMoved || nodes.isHidden) {
        QMatrix4x4 matrix;
        matrix.translate(static_cast<float>(piece.x), static_cast<float>(piece.y));
        matrix.scale(static_cast<float>(piece.scaleX), static_cast<float>(piece.scaleY));
        nodes.transform->setMatrix(matrix);
    }
    if (isNew || shown.alpha != piece.alpha) nodes.opacity->setOpacity(piece.alpha);
    // Renderers look at a node at once.
    if (isNew) nodes.opacity->appendChildNode(isImage ? static_cast<QSGNode*>(nodes.image) : nodes.rectangle);
    nodes.shown = piece;
    nodes.isHidden = false;
}

/// Taking nodes out of the tree has renderers sort the whole scene again.
void QuickNode::hide(Nodes& nodes) {
    // It still uses its texture.
    if (nodes.image != nullptr) textures_[nodes.shown.image.cacheKey()].lastFrame = frame_;
    if (nodes.isHidden) return;
    nodes.isHidden = true;
    QMatrix4x4 matrix;
    matrix.translate(hiddenPlace, hiddenPlace);
    nodes.transform->setMatrix(matrix);
}

void QuickNode::show(const std::vector<QuickPiece>& pieces, QQuickWindow& window) {
    ++frame_;
    if (pieces.size() > nodes_.size()) nodes_.resize(pieces.size());
    for (std::size_t i = 0; i < pieces.size(); ++i) update(nodes_[i], pieces[i], window);
    for (std::size_t i = pieces.size(); i < nodes_.size(); ++i) hide(nodes_[i]);
    dropTextures();
}

} // namespace gx::quick
