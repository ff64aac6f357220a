#include <gtest/gtest.h>

#include <set>

#include <QQuickItem>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QTest>

#include "QuickNode.h"

using namespace gx;
using namespace gx::quick;

namespace {

/// Shows pieces, and notes which textures their nodes have.
class PiecesItem : public QQuickItem {
public:
    explicit PiecesItem(QQuickItem* parent) : QQuickItem(parent) {
        setFlag(ItemHasContents);
        setSize({320, 216});
    }

    std::vector<QuickPiece> pieces;
    std::vector<QSGTexture*> textures;
    std::size_t textureCount = 0;

protected:
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData*) override {
        auto* const shown = node ? static_cast<QuickNode*>(node) : new QuickNode;
        shown->show(pieces, *window());
        textureCount = shown->textureCount();
        textures.clear();
        for (QSGNode* transform = shown->firstChild(); transform != nullptr; transform = transform->nextSibling()) {
            if (transform->type() != QSGNode::TransformNodeType) continue;
            const auto* const image = dynamic_cast<QSGImageNode*>(transform->firstChild()->firstChild());
            textures.push_back(image != nullptr ? image->texture() : nullptr);
        }
        return shown;
    }
};

class QuickNodes : public testing::Test {
protected:
    QuickNodes() {
        window.resize(320, 216);
        window.setColor(Qt::white);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
    QImage draw() {
        item.update();
        return window.grabWindow();
    }
    static QImage filled(Qt::GlobalColor color) {
        QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
        image.fill(color);
        return image;
    }
    static QuickPiece pieceOf(const QImage& image, double x) {
        QuickPiece piece;
        piece.image = image;
        piece.area = QRectF(0, 0, 10, 10);
        piece.x = x;
        return piece;
    }

    QQuickWindow window;
    PiecesItem item{window.contentItem()};
};

} // namespace

TEST_F(QuickNodes, APieceThatMovesKeepsItsTexture) {
    item.pieces = {pieceOf(filled(Qt::red), 0), pieceOf(filled(Qt::blue), 20)};
    draw();
    const std::vector<QSGTexture*> before = item.textures;
    ASSERT_EQ(before.size(), 2U);
    for (int frame = 1; frame <= 30; ++frame) {
        item.pieces[0].x = frame;
        item.pieces[1].scaleY = 1 - 0.01 * frame;
        item.pieces[1].alpha = 1 - 0.01 * frame;
        const QImage picture = draw();
        EXPECT_EQ(item.textures, before);
        EXPECT_EQ(item.textureCount, 2U);
        if (frame == 30) {
            EXPECT_EQ(picture.pixelColor(35, 5), Qt::red);
            EXPECT_EQ(picture.pixelColor(5, 5), Qt::white);
        }
    }
}

TEST_F(QuickNodes, PiecesOfOneImageShareATexture) {
    const QImage image = filled(Qt::red);
    item.pieces = {pieceOf(image, 0), pieceOf(image, 20), pieceOf(filled(Qt::blue), 40)};
    draw();
    ASSERT_EQ(item.textures.size(), 3U);
    EXPECT_EQ(item.textures[0], item.textures[1]);
    EXPECT_NE(item.textures[0], item.textures[2]);
    EXPECT_EQ(item.textureCount, 2U);
}

TEST_F(QuickNodes, APieceThatIsGoneIsNotDrawnAndComesBackWithItsTexture) {
    item.pieces = {pieceOf(filled(Qt::red), 0), pieceOf(filled(Qt::blue), 20)};
    const QuickPiece blue = item.pieces[1];
    EXPECT_EQ(draw().pixelColor(25, 5), Qt::blue);
    const std::vector<QSGTexture*> before = item.textures;
    item.pieces.pop_back();
    EXPECT_EQ(draw().pixelColor(25, 5), Qt::white);
    item.pieces.push_back(blue);
    EXPECT_EQ(draw().pixelColor(25, 5), Qt::blue);
    EXPECT_EQ(item.textures, before);
}

TEST_F(QuickNodes, AnImageBecomesARectangleAndBack) {
    item.pieces = {pieceOf(filled(Qt::red), 0)};
    const QuickPiece image = item.pieces[0];
    draw();
    item.pieces[0].image = QImage();
    item.pieces[0].color = Qt::green;
    EXPECT_EQ(draw().pixelColor(5, 5), QColor(Qt::green));
    item.pieces[0] = image;
    EXPECT_EQ(draw().pixelColor(5, 5), Qt::red);
}

// Chosen in QuickNode: 64 more than there are pieces.
TEST_F(QuickNodes, TexturesAreBoundedByWhatIsShown) {
    for (int frame = 0; frame < 200; ++frame) {
        item.pieces = {pieceOf(filled(Qt::red), 0), pieceOf(filled(Qt::blue), 20)};
        draw();
        EXPECT_LE(item.textureCount, 66U);
    }
    EXPECT_EQ(std::set(item.textures.begin(), item.textures.end()).size(), 2U);
}

TEST_F(QuickNodes, ATextureOfAHiddenNodeIsNotDropped) {
    item.pieces = {pieceOf(filled(Qt::red), 0), pieceOf(filled(Qt::blue), 20)};
    const QuickPiece blue = item.pieces[1];
    draw();
    for (int frame = 0; frame < 200; ++frame) {
        item.pieces = {pieceOf(filled(Qt::red), 0)};
        draw();
    }
    item.pieces.push_back(blue);
    EXPECT_EQ(draw().pixelColor(25, 5), Qt::blue);
}

TEST(QuickCanvas, ATextThatMovesKeepsItsImage) {
    QuickCanvas canvas;
    const Ref<UIFont> font = UIFont::systemFontOfSize_weight(22, UIFontWeight::Medium);
    qint64 first = 0;
    for (int frame = 0; frame < 20; ++frame) {
        canvas.begin(1);
        canvas.translate(10, 3.7 * frame);
        canvas.scale(1 - 0.01 * frame, 1 - 0.02 * frame);
        canvas.multiplyAlpha(1 - 0.03 * frame);
        canvas.drawText("42", *font, UIColor::blackColor(), CGPointMake(0, 0));
        ASSERT_EQ(canvas.pieces().size(), 1U);
        if (frame == 0) first = canvas.pieces()[0].image.cacheKey();
        EXPECT_EQ(canvas.pieces()[0].image.cacheKey(), first);
    }
}
