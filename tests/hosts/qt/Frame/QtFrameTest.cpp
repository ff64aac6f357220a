#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <QPainter>

#include "QtCanvas.h"
#include "UILabel.h"
#include "UIWindow.h"
#include "WheelSource.h"

using namespace gx;
using gx::qt::everywhere;
using gx::qt::QtCanvas;
using gx::qt::QtFrame;
using gx::qt::QtPiece;
using gx::qt::QtTextEngine;

namespace {

/// Counts the views that begin, drawn or not.
struct CountingCanvas : QtCanvas {
    int views = 0;
    bool beginView(const UIDrawingVersion& version, CGPoint origin, double alpha) override {
        ++views;
        return QtCanvas::beginView(version, origin, alpha);
    }
};

/// A wheel of two columns beside a label, recorded frame by frame for a screen with so many pixels
/// a point. What has changed is painted over the picture of the frame before.
struct Screen {
    explicit Screen(double scale) : device(QTransform::fromScale(scale, scale)), picture(pixelsOf(scale), QImage::Format_RGB32) {
        source->rows = {100, 24};
        wheel = wheelWithSource(source);
        label->setText("Label 7");
        views->addSubview(wheel);
        views->addSubview(label);
        record();
        paint(picture, picture.rect());
    }
    static QSize pixelsOf(double scale) { return (QSizeF(480, 220) * scale).toSize(); }

    void record() {
        views->tick(now += 0.013);
        canvas.begin(shown, device);
        views->draw(canvas);
        canvas.end();
    }
    /// Whether every view that draws gives the same frame.
    void expectWholeFrame(const char* what) {
        QtFrame whole;
        canvas.begin(whole, device);
        views->draw(canvas);
        canvas.end();
        const std::vector<QtPiece> pieces = piecesOf(shown);
        const std::vector<QtPiece> expected = piecesOf(whole);
        ASSERT_EQ(pieces.size(), expected.size()) << what;
        ASSERT_TRUE(std::equal(pieces.begin(), pieces.end(), expected.begin())) << what;
    }
    static std::vector<QtPiece> piecesOf(const QtFrame& frame) {
        std::vector<QtPiece> pieces;
        frame.forEachPieceIn(everywhere, [&pieces](const QtPiece& piece) { pieces.push_back(piece); });
        return pieces;
    }
    void paint(QImage& image, const QRect& area) {
        QPainter painter(&image);
        painter.setClipRect(area);
        painter.fillRect(area, Qt::white);
        painter.setWorldTransform(device);
        canvas.paintFrame(painter, shown, area);
    }
    /// In whole points, as a widget is repainted.
    QRect changedPixels() const {
        const QRect changed = shown.changedArea();
        if (changed.isEmpty()) return {};
        const QRect points = device.inverted().mapRect(QRectF(changed)).toAlignedRect().adjusted(-1, -1, 1, 1);
        return device.mapRect(QRectF(points)).toAlignedRect();
    }
    /// Whether painting what has changed since the frame before gives the whole picture.
    void expectWholePicture(const char* what) {
        record();
        ASSERT_TRUE(shown.isComplete()) << what;
        ASSERT_NO_FATAL_FAILURE(expectWholeFrame(what));
        const QRect changed = changedPixels();
        if (!changed.isEmpty()) paint(picture, changed);
        QImage whole(picture.size(), picture.format());
        paint(whole, whole.rect());
        ASSERT_EQ(picture, whole) << what;
    }

    double now = 1000;
    QTransform device;
    QImage picture;
    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel;
    Ref<UILabel> label = create<UILabel>(CGRectMake(340.3, 20.6, 120, 30));
    Ref<UIWindow> views = create<UIWindow>(CGRectMake(0, 0, 480, 220));
    CountingCanvas canvas;
    QtFrame shown;
};

class QtFrameAtEachScale : public testing::TestWithParam<double> {};

TEST_P(QtFrameAtEachScale, PaintingWhatHasChangedGivesTheWholePicture) {
    Screen screen(GetParam());
    screen.wheel->selectRow_inComponent_animated(50, 0, true);
    screen.wheel->selectRow_inComponent_animated(3, 1, true);
    for (int i = 0; i < 60; ++i) {
        if (i == 20) screen.label->setText("Another label");
        if (i == 30) screen.label->setFrame(CGRectMake(330.7, 60.1, 120, 30));
        if (i == 40) screen.wheel->setAlpha(0.7);
        ASSERT_NO_FATAL_FAILURE(screen.expectWholePicture("in motion")) << "frame " << i;
    }
}

TEST_P(QtFrameAtEachScale, AFrameThatLooksTheSameHasNoChange) {
    Screen screen(GetParam());
    screen.views->setNeedsDisplay();
    screen.record();
    EXPECT_TRUE(screen.changedPixels().isEmpty());
}

TEST_P(QtFrameAtEachScale, ASpinningColumnIsTheWholeChange) {
    Screen screen(GetParam());
    screen.wheel->selectRow_inComponent_animated(50, 0, true);
    for (int i = 0; i < 3; ++i) screen.record();
    for (int i = 0; i < 8; ++i) {
        screen.record();
        const QRect changed = screen.changedPixels();
        EXPECT_FALSE(changed.isEmpty());
        EXPECT_LT(changed.right(), 162 * GetParam()) << "left of the second column";
    }
}

TEST_P(QtFrameAtEachScale, AFontThatChangesLateIsPainted) {
    Screen screen(GetParam());
    QtTextEngine& engine = *QtTextEngine::shared();
    const std::string family = engine.interfaceFamily();
    const QImage before = screen.picture;
    engine.setInterfaceFamily("monospace");
    screen.label->setText("Label 8");
    ASSERT_NO_FATAL_FAILURE(screen.expectWholePicture("another font"));
    EXPECT_NE(screen.picture, before);
    engine.setInterfaceFamily(family);
    screen.label->setText("Label 7");
    ASSERT_NO_FATAL_FAILURE(screen.expectWholePicture("the first font"));
    EXPECT_EQ(screen.picture, before);
}

TEST_P(QtFrameAtEachScale, AFontThatChangesLateIsShownByEveryView) {
    Screen screen(GetParam());
    QtTextEngine& engine = *QtTextEngine::shared();
    const std::string family = engine.interfaceFamily();
    engine.setInterfaceFamily("monospace");
    screen.wheel->setNeedsDisplay();
    ASSERT_NO_FATAL_FAILURE(screen.expectWholePicture("another font"));
    engine.setInterfaceFamily(family);
    screen.wheel->setNeedsDisplay();
    ASSERT_NO_FATAL_FAILURE(screen.expectWholePicture("the first font"));
}

TEST_P(QtFrameAtEachScale, ViewsThatComeGoAndChangePlacesAreShown) {
    Screen screen(GetParam());
    std::vector<Ref<UILabel>> labels;
    const auto holder = create<UIView>(CGRectMake(320, 60, 150, 150));
    screen.views->addSubview(holder);
    for (int i = 0; i < 6; ++i) {
        labels.push_back(create<UILabel>(CGRectMake(3 * i, 20 * i, 100, 20)));
        labels.back()->setText("Label " + std::to_string(i));
        holder->addSubview(labels.back());
    }
    const std::vector<std::function<void()>> changes = {
        [] {},
        [&] { labels[2]->setHidden(true); },
        [&] { labels[4]->setText("Four"); },
        [&] { labels[2]->setHidden(false); },
        [&] { holder->insertSubview_atIndex(labels[5], 0); },
        [&] { labels[0]->removeFromSuperview(); },
        [&] { labels[1]->addSubview(labels[3]); },
        [&] { holder->setFrame(CGRectMake(310.5, 50, 150, 150)); },
        [&] { holder->setAlpha(0.6); },
        [&] { holder->setBounds(CGRectMake(0, 7, 150, 150)); },
        [&] { screen.views->setUserInterfaceStyle(UIUserInterfaceStyle::Dark); },
        [&] { holder->addSubview(labels[0]); },
        [&] { holder->setClipsToBounds(true); },
        [&] { labels[5]->setFrame(CGRectMake(-20, 140, 100, 20)); },
        [&] { holder->setClipsToBounds(false); },
        [] {},
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        changes[i]();
        ASSERT_NO_FATAL_FAILURE(screen.expectWholePicture("after a change")) << i;
        ASSERT_NO_FATAL_FAILURE(screen.expectWholePicture("in the next frame")) << i;
    }
}

/// Draws its subviews in this order, and a stripe over so many of them.
struct Arranged : UIView {
    std::vector<Ref<UIView>> order;
    std::size_t belowStripe = 0;
    bool drawsByList = false;
    void drawSubviews(UIGraphicsContext& context) override {
        if (drawsByList) return UIView::drawSubviews(context);
        for (std::size_t i = 0; i <= order.size(); ++i) {
            if (i == belowStripe) context.fillRect(CGRectMake(0, 10, 60, 10), UIColor::blackColor());
            if (i < order.size()) drawView(*order[i], context);
        }
    }
};

TEST_P(QtFrameAtEachScale, AViewMayDrawBetweenItsSubviewsAndInAnyOrder) {
    Screen screen(GetParam());
    const auto holder = create<Arranged>(CGRectMake(330, 60, 100, 100));
    screen.views->addSubview(holder);
    const auto addSquare = [&](double place, unsigned color) {
        const auto square = create<UIView>(CGRectMake(place, place, 30, 30));
        square->setBackgroundColor(UIColor::colorWithHex(color));
        holder->addSubview(square);
        holder->order.push_back(square);
        return square;
    };
    const Ref<UIView> first = addSquare(0, 0xff0000);
    const Ref<UIView> second = addSquare(10, 0x0000ff);
    const std::vector<std::function<void()>> changes = {
        [] {},
        [&] { holder->belowStripe = 1; },
        [&] { holder->belowStripe = 2; },
        [&] { std::swap(holder->order[0], holder->order[1]); },
        [&] { holder->belowStripe = 0; },
        [&] { holder->order.pop_back(); },
        [&] { holder->drawsByList = true; },
        [&] { first->setBackgroundColor(UIColor::colorWithHex(0x00ff00)); },
        [&] { holder->drawsByList = false; },
        [&] { holder->drawsByList = true; },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        changes[i]();
        second->setNeedsDisplay(); // Has the holder draw, which was not invalidated itself.
        ASSERT_NO_FATAL_FAILURE(screen.expectWholePicture("after a change")) << i;
    }
}

TEST_P(QtFrameAtEachScale, AListOfSubviewsThatChangesWhileTheyDrawIsShownInTheNextFrame) {
    struct Reordering : UIView {
        bool reorders = false;
        void drawRect(UIGraphicsContext&, CGRect) override {
            if (std::exchange(reorders, false)) superview()->insertSubview_atIndex(superview()->subviews().back(), 0);
        }
    };
    Screen screen(GetParam());
    const auto holder = create<UIView>(CGRectMake(320, 60, 150, 150));
    screen.views->addSubview(holder);
    for (int i = 0; i < 4; ++i) {
        const auto square = create<UIView>(CGRectMake(10 * i, 8 * i, 30, 30));
        square->setBackgroundColor(UIColor::colorWithHex(0x400000U * static_cast<unsigned>(i)));
        holder->addSubview(square);
    }
    const auto reordering = create<Reordering>(CGRectMake(0, 0, 10, 10));
    holder->insertSubview_atIndex(reordering, 1);
    screen.record();
    screen.paint(screen.picture, screen.picture.rect());
    const QImage before = screen.picture;
    reordering->reorders = true;
    reordering->setNeedsDisplay();
    screen.record();
    screen.paint(screen.picture, screen.picture.rect());
    ASSERT_NO_FATAL_FAILURE(screen.expectWholePicture("in the next frame"));
    EXPECT_NE(screen.picture, before);
}

TEST_P(QtFrameAtEachScale, AnotherLocaleIsShownByEveryView) {
    struct Separator : UIView {
        void drawRect(UIGraphicsContext& context, CGRect) override {
            const std::string separator = *NSLocale::currentLocale()->objectForKey(NSLocaleDecimalSeparator);
            context.drawText("5" + separator + "3", *UIFont::systemFontOfSize_weight(20), UIColor::blackColor(), {});
        }
    };
    const Ref<NSLocale> locale = NSLocale::currentLocale();
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("en"));
    Screen screen(GetParam());
    screen.views->addSubview(create<Separator>(CGRectMake(340, 100, 100, 30)));
    ASSERT_NO_FATAL_FAILURE(screen.expectWholePicture("in English"));
    const QImage english = screen.picture;
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("de"));
    screen.label->setNeedsDisplay(); // The view with the separator is not invalidated.
    ASSERT_NO_FATAL_FAILURE(screen.expectWholePicture("in German"));
    EXPECT_NE(screen.picture, english);
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("en"));
    screen.label->setNeedsDisplay();
    ASSERT_NO_FATAL_FAILURE(screen.expectWholePicture("in English again"));
    EXPECT_EQ(screen.picture, english);
    NSLocale::setCurrentLocale(locale);
}

TEST(QtFrame, BeginsOnlyViewsThatWereInvalidated) {
    const auto viewsOfAFrameBeside = [](int labels) {
        Screen screen(1);
        for (int i = 0; i < labels; ++i) {
            const auto label = create<UILabel>(CGRectMake(340, i, 100, 20));
            label->setHidden(i % 4 == 0);
            screen.views->insertSubview_atIndex(label, i % 2 == 0 ? 0 : labels + 2);
        }
        screen.wheel->selectRow_inComponent_animated(50, 0, true);
        for (int i = 0; i < 5; ++i) screen.record();
        screen.canvas.views = 0;
        screen.record();
        return screen.canvas.views;
    };
    EXPECT_GT(viewsOfAFrameBeside(0), 2) << "the window, the wheel and its rows";
    EXPECT_EQ(viewsOfAFrameBeside(400), viewsOfAFrameBeside(0));
}

INSTANTIATE_TEST_SUITE_P(Scales, QtFrameAtEachScale, testing::Values(1, 1.5, 2, 3));

} // namespace
