#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

#include <QSGNode>
#include <QSGTexture>

#include "QuickCanvas.h"

class QQuickWindow;
class QSGImageNode;
class QSGRectangleNode;

namespace gx::quick {

/// The pieces of a frame as nodes of the scene graph.
///
/// A piece is a transform, an opacity and an image, in this order. From one frame to the next nodes
/// are used again, and only what differs is set: a row that moves changes its transform and its
/// opacity. Each image has one texture, which all nodes with it share.
///
/// Textures that no piece has shown for a while are dropped, so they are bounded by what is on
/// screen. Works with every renderer of Qt Quick: there are no materials of its own. The software
/// renderer has a faster node (`QuickPaintedNode`).
class QuickNode final : public QSGNode {
public:
    ~QuickNode() override;

    void show(const std::vector<QuickPiece>& pieces, QQuickWindow& window);

    std::size_t textureCount() const { return textures_.size(); }
    /// How many textures were made so far.
    std::size_t madeTextureCount() const { return madeTextureCount_; }

private:
    /// The nodes of a piece; owned by the tree.
    struct Nodes {
        QSGTransformNode* transform = nullptr;
        QSGOpacityNode* opacity = nullptr;
        QSGImageNode* image = nullptr;         // One of these two.
        QSGRectangleNode* rectangle = nullptr; // The other one is nothing.
        QuickPiece shown;
        bool isHidden = false;
    };
    struct Texture {
        std::unique_ptr<QSGTexture> texture;
        std::uint64_t lastFrame = 0;
    };
    void update(Nodes& nodes, const QuickPiece& piece, QQuickWindow& window);
    QSGTexture* textureOf(const QImage& image, QQuickWindow& window);
    void dropTextures();
    void hide(Nodes& nodes);

    // Chosen: the rows that come back when a wheel is turned to and fro.
    static constexpr std::size_t spareTextureCount = 64;
    // Chosen: beyond every window, and exact as a float.
    static constexpr float hiddenPlace = -65536;

    std::vector<Nodes> nodes_;
    std::unordered_map<qint64, Texture> textures_; // By the images' cache keys.
    std::uint64_t frame_ = 0;
    std::size_t madeTextureCount_ = 0;
};

} // namespace gx::quick
