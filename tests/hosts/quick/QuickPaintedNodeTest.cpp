// A wheel as the nodes of Qt Quick show it, beside what a widget paints.

#include <gtest/gtest.h>

#include <QPainter>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSGSimpleRectNode>
#include <QTest>

#include "QtCanvas.h"
#include "QuickNode.h"
#include "QuickPaintedNode.h"
#include "UIWindow.h"
#include "WheelSource.h"

using namespace gx;
using namespace gx::quick;

namespace {

constexpr QSize frameSize(320, 216);

/// Shows what a canvas has noted, by nodes for each piece or by one that paints them.
class WheelItem : public QQuickItem {
public:
    WheelItem(QQuickItem* parent, bool byOneNode) : QQuickItem(parent), isPainted(byOneNode) {
        setFlag(ItemHasContents);
        setSize(frameSize);
    }

    QuickCanvas canvas;
    std::size_t madeTextureCount = 0;

protected:
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData*) override {
        if (isPainted) return nodeWithPieces(canvas.pieces(), node, *window());
        auto* const shown = node ? static_cast<QuickNode*>(node) : new QuickNode;
        shown->show(canvas.pieces(), *window());
        madeTextureCount = shown->madeTextureCount();
        return shown;
    }

private:
    bool isPainted;
};

/// Shows one image by the node that paints.
class Picture : public QQuickItem {
public:
    explicit Picture(QQuickItem* parent) : QQuickItem(parent) {
        setFlag(ItemHasContents);
        setSize({8, 8});
    }
    void setImage(const QImage& image) {
        piece_.image = image;
        piece_.area = QRectF({}, QSizeF(image.size()));
        update();
    }

protected:
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData*) override { return nodeWithPieces({piece_}, node, *window()); }

private:
    QuickPiece piece_;
};

/// A square of one colour.
class Square : public QQuickItem {
public:
    Square(QQuickItem* parent, QPointF place) : QQuickItem(parent) {
        setFlag(ItemHasContents);
        setPosition(place);
        setSize({8, 8});
    }
    void setColor(const QColor& color) {
        color_ = color;
        update();
    }

protected:
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData*) override {
        auto* const shown = node ? static_cast<QSGSimpleRectNode*>(node) : new QSGSimpleRectNode;
        shown->setRect(boundingRect());
        shown->setColor(color_);
        return shown;
    }

private:
    QColor color_ = Qt::white;
};

/// A wheel of three columns, of which two spin.
struct QuickPictures : testing::Test {
    QuickPictures() {
        source->rows = {100, 24, 60};
        source->width = 80;
        wheel = wheelWithSource(source);
        views->addSubview(wheel);
        screen.resize(frameSize);
        screen.setColor(Qt::white);
        screen.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&screen));
    }
    void spin() {
        wheel->selectRow_inComponent_animated(40, 0, true);
        wheel->selectRow_inComponent_animated(7, 2, true);
    }
    void tick() { views->tick(now += 1.0 / 60); }
    QImage pictureOf(WheelItem& item) {
        item.canvas.begin(1);
        views->draw(item.canvas);
        painted.setVisible(&item == &painted);
        nodes.setVisible(&item == &nodes);
        item.update();
        return screen.grabWindow().convertToFormat(QImage::Format_RGB32);
    }
    QImage pictureOfWidget(double alpha = 1, CGPoint place = {}) {
        QImage image(frameSize, QImage::Format_RGB32);
        image.fill(screen.color());
        QPainter painter(&image);
        canvas.begin(painter);
        canvas.translate(place.x, place.y);
        canvas.multiplyAlpha(alpha);
        views->draw(canvas);
        canvas.end();
        return image;
    }

    double now = 1000;
    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel;
    Ref<UIWindow> views = create<UIWindow>(CGRectMake(0, 0, frameSize.width(), frameSize.height()));
    qt::QtCanvas canvas;
    QQuickWindow screen;
    WheelItem painted{screen.contentItem(), true};
    WheelItem nodes{screen.contentItem(), false};
};

/// The largest difference of a component.
int difference(const QImage& one, const QImage& other) {
    EXPECT_EQ(one.size(), other.size());
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor first = one.pixelColor(x, y);
            const QColor second = other.pixelColor(x, y);
            largest = std::max({largest, std::abs(first.red() - second.red()), std::abs(first.green() - second.green()),
                                std::abs(first.blue() - second.blue())});
        }
    }
    return largest;
}

/// How many pixels are not those of an empty window.
int inkCount(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == image.pixel(0, 0) ? 0 : 1;
    }
    return count;
}

// Of 255: roundings of the indicator's corners.
constexpr int tolerance = 2;

TEST_F(QuickPictures, ASpinningWheelLooksAsInAWidgetLightAndDark) {
    for (const auto style : {UIUserInterfaceStyle::Light, UIUserInterfaceStyle::Dark}) {
        views->setUserInterfaceStyle(style);
        screen.setColor(style == UIUserInterfaceStyle::Dark ? Qt::black : Qt::white);
        wheel->selectRow_inComponent_animated(10, 0, false);
        wheel->selectRow_inComponent_animated(30, 2, false);
        tick();
        spin();
        for (int frame = 0; frame < 20; ++frame) {
            for (int i = 0; i < 3; ++i) tick();
            const QImage widget = pictureOfWidget();
            ASSERT_GT(inkCount(widget), 2000);
            EXPECT_LE(difference(pictureOf(painted), widget), tolerance) << "painted, frame " << frame;
            EXPECT_LE(difference(pictureOf(nodes), widget), tolerance) << "nodes, frame " << frame;
        }
    }
}

TEST_F(QuickPictures, AnItemThatIsMovedIsPaintedThere) {
    painted.setPosition({33, -21});
    EXPECT_LE(difference(pictureOf(painted), pictureOfWidget(1, {33, -21})), tolerance);
}

TEST_F(QuickPictures, ATranslucentItemIsPaintedTranslucent) {
    painted.setOpacity(0.4);
    EXPECT_LE(difference(pictureOf(painted), pictureOfWidget(0.4)), tolerance);
}

TEST_F(QuickPictures, WhatLiesBetweenTwoChangedItemsIsNotPaintedAgain) {
    Square first(screen.contentItem(), {30, 100});
    Square last(screen.contentItem(), {280, 150});
    for (Square* const square : {&first, &last}) square->setZ(-1);
    tick();
    const QImage before = pictureOf(painted);
    ASSERT_GT(inkCount(before), 2000);
    const auto pictureWithSquares = [&](const QColor& color) {
        first.setColor(color);
        last.setColor(color);
        return screen.grabWindow().convertToFormat(QImage::Format_RGB32);
    };
    EXPECT_NE(pictureWithSquares(Qt::red), before);
    EXPECT_EQ(pictureWithSquares(Qt::white), before);
}

TEST_F(QuickPictures, AFrameKeepsNoImagesOfTheOneBefore) {
    Picture picture(screen.contentItem());
    QImage first(8, 8, QImage::Format_ARGB32_Premultiplied);
    first.fill(Qt::red);
    QImage second(8, 8, QImage::Format_ARGB32_Premultiplied);
    second.fill(Qt::blue);
    picture.setImage(first);
    EXPECT_EQ(screen.grabWindow().pixelColor(4, 4), QColor(Qt::red));
    EXPECT_FALSE(first.isDetached()) << "it is shown";
    picture.setImage(second);
    EXPECT_EQ(screen.grabWindow().pixelColor(4, 4), QColor(Qt::blue));
    EXPECT_TRUE(first.isDetached());
}

TEST_F(QuickPictures, ASpinOverRowsThatWereShownMakesNoTextures) {
    source->rows = {12, 12, 12};
    wheel->reloadAllComponents();
    const auto spinTo = [this](NSInteger row) {
        for (const NSInteger column : {0, 1, 2}) wheel->selectRow_inComponent_animated(row, column, true);
        for (int frame = 0; frame < 90; ++frame) {
            tick();
            pictureOf(nodes);
        }
    };
    spinTo(11);
    spinTo(0);
    const std::size_t before = nodes.madeTextureCount;
    EXPECT_GE(before, 12U);
    EXPECT_LE(before, 16U) << "one for each row's text, and the indicator's";
    spinTo(11);
    spinTo(0);
    EXPECT_EQ(nodes.madeTextureCount, before);
}

} // namespace
