#include <QPalette>

#include "QtTextImageCache.h"
#include "UILabel.h"
#include "UIViewWidget.h"
#include "WidgetTest.h"

using namespace gx;
using gx::qt::QtTextImageCache;
using gx::qt::UIViewWidget;

namespace {

/// Counts how often it is drawn, and moves for `remaining` frames.
struct Counter : UIView {
    int frames = 0;
    int advances = 0;
    int remaining = 0;
    void drawRect(UIGraphicsContext& context, CGRect rect) override {
        ++frames;
        context.fillRect(rect, UIColor::labelColor());
    }
    bool advanceToTime(NSTimeInterval) override {
        ++advances;
        return --remaining > 0;
    }
};

/// A widget of 100 by 80 points with a counter, its own timer and a clock that counts its queries.
struct UIViewWidgetFrames : testing::Test {
    UIViewWidgetFrames() {
        steady.start();
        widget.setClock(
            [this] {
                ++clockQueries;
                return static_cast<double>(steady.nsecsElapsed()) * 1e-9;
            },
            UIViewWidget::FrameDriver::Timer);
        widget.setRootView(counter);
        widget.resize(100, 80);
        widget.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
        EXPECT_TRUE(rests());
    }
    bool rests() {
        return QTest::qWaitFor([this] { return !widget.isFrameDue(); }) && (QTest::qWait(30), true);
    }

    QElapsedTimer steady;
    int clockQueries = 0;
    Ref<Counter> counter = create<Counter>(CGRectMake(0, 0, 100, 80));
    UIViewWidget widget;
};

TEST_F(UIViewWidgetFrames, TheFirstFrameComesByItself) { EXPECT_GE(counter->frames, 1); }

TEST_F(UIViewWidgetFrames, NothingTicksAtRest) {
    const int frames = counter->frames;
    const int queries = clockQueries;
    QTest::qWait(120);
    EXPECT_EQ(counter->frames, frames);
    EXPECT_EQ(clockQueries, queries);
}

TEST_F(UIViewWidgetFrames, AChangeIsDrawnOnce) {
    const int frames = counter->frames;
    const int queries = clockQueries;
    counter->setNeedsDisplay();
    counter->setAlpha(0.5);
    EXPECT_TRUE(widget.isFrameDue());
    EXPECT_EQ(counter->frames, frames); // Not at once.
    EXPECT_TRUE(rests());
    EXPECT_EQ(counter->frames, frames + 1);
    EXPECT_EQ(clockQueries, queries + 2); // One draws, one finds nothing.
}

TEST_F(UIViewWidgetFrames, WhatMovesIsDrawnUntilItRests) {
    counter->advances = 0;
    counter->remaining = 5;
    widget.uiWindow()->animateView(counter);
    EXPECT_TRUE(rests());
    EXPECT_EQ(counter->advances, 5);
}

TEST_F(UIViewWidgetFrames, WhatMovesComesToRestAlsoWhileHidden) {
    widget.hide();
    const int frames = counter->frames;
    counter->advances = 0;
    counter->remaining = 5;
    widget.uiWindow()->animateView(counter);
    EXPECT_TRUE(rests());
    EXPECT_EQ(counter->advances, 5);
    EXPECT_EQ(counter->frames, frames);
}

TEST_F(UIViewWidgetFrames, WithFramesByHandTheTimerIsOff) {
    double now = 50;
    widget.setClock([&now] { return now; });
    const int frames = counter->frames;
    counter->setNeedsDisplay();
    QTest::qWait(60);
    EXPECT_EQ(counter->frames, frames);
    EXPECT_TRUE(widget.isFrameDue());
    EXPECT_TRUE(widget.stepFrame());
    EXPECT_FALSE(widget.stepFrame());
    EXPECT_FALSE(widget.isFrameDue());
    EXPECT_TRUE(QTest::qWaitFor([&] { return counter->frames == frames + 1; }));
    // A frame that was needed meanwhile comes when the timer drives again.
    counter->setNeedsDisplay();
    widget.setClock(nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return counter->frames == frames + 2; }));
}

TEST_F(UIViewWidgetFrames, TheRootViewFillsTheWidget) {
    EXPECT_EQ(counter->frame(), CGRectMake(0, 0, 100, 80));
    widget.resize(150, 60);
    EXPECT_TRUE(QTest::qWaitFor([this] { return counter->frame() == CGRectMake(0, 0, 150, 60); }));
    EXPECT_EQ(widget.uiWindow()->frame(), CGRectMake(0, 0, 150, 60));
    const auto other = create<Counter>(CGRectMake(5, 5, 33, 44));
    widget.setRootView(other);
    EXPECT_EQ(widget.rootView(), other);
    EXPECT_FALSE(counter->superview());
    EXPECT_EQ(other->frame(), CGRectMake(0, 0, 150, 60));
    EXPECT_EQ(widget.sizeHint(), QSize(33, 44));
}

TEST_F(UIViewWidgetFrames, TheLookFollowsThePalette) {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Window, QColor(250, 250, 250));
    widget.setPalette(palette);
    EXPECT_EQ(widget.userInterfaceStyle(), UIUserInterfaceStyle::Light);
    EXPECT_TRUE(rests());
    EXPECT_LT(qGray(widget.grab().toImage().pixel(50, 40)), 60);

    palette.setColor(QPalette::Window, QColor(20, 20, 20));
    widget.setPalette(palette);
    EXPECT_EQ(widget.userInterfaceStyle(), UIUserInterfaceStyle::Dark);
    EXPECT_TRUE(widget.isFrameDue());
    EXPECT_GT(qGray(widget.grab().toImage().pixel(50, 40)), 200);
}

TEST_F(UIViewWidgetFrames, ALookThatWasSetStays) {
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Window, Qt::white);
    widget.setPalette(palette);
    widget.setUserInterfaceStyle(UIUserInterfaceStyle::Dark);
    EXPECT_EQ(widget.userInterfaceStyle(), UIUserInterfaceStyle::Dark);
    palette.setColor(QPalette::Window, QColor(240, 240, 240));
    widget.setPalette(palette);
    EXPECT_EQ(widget.userInterfaceStyle(), UIUserInterfaceStyle::Dark);
    widget.setUserInterfaceStyle(std::nullopt);
    EXPECT_EQ(widget.userInterfaceStyle(), UIUserInterfaceStyle::Light);
}

TEST_F(UIViewWidgetFrames, SettingTheContrastRedraws) {
    EXPECT_EQ(widget.contrast(), UIAccessibilityContrast::Normal);
    EXPECT_TRUE(rests());
    widget.setContrast(UIAccessibilityContrast::High);
    EXPECT_EQ(widget.uiWindow()->accessibilityContrast(), UIAccessibilityContrast::High);
    EXPECT_EQ(widget.contrast(), UIAccessibilityContrast::High);
    EXPECT_TRUE(widget.isFrameDue());
}

TEST_F(UIViewWidgetFrames, AChildWidgetDrawsInItsPlace) {
    QWidget outer;
    outer.resize(300, 200);
    auto* inner = new UIViewWidget(&outer);
    inner->setRootView(create<Counter>(CGRectZero));
    inner->setUserInterfaceStyle(UIUserInterfaceStyle::Light);
    inner->setGeometry(30, 40, 50, 20);
    QPalette palette = outer.palette();
    palette.setColor(QPalette::Window, Qt::white);
    outer.setPalette(palette);
    const QImage image = outer.grab().toImage();
    const auto greyAt = [&image](double x, double y) { return qGray(image.pixel((QPointF(x, y) * image.devicePixelRatio()).toPoint())); };
    EXPECT_LT(greyAt(31, 41), 60);
    EXPECT_LT(greyAt(78, 58), 60);
    EXPECT_EQ(greyAt(28, 41), 255);
    EXPECT_EQ(greyAt(82, 58), 255);
}

TEST_F(WidgetTest, ARowThatPassesTheSelectionIndicatorCallsTheHandler) {
    int ticks = 0;
    widget.setWheelTickHandler([&ticks] { ++ticks; });
    wheelEvent(firstColumn, {}, {0, -360});
    run(1);
    EXPECT_EQ(ticks, 3);
    wheel->selectRow_inComponent_animated(20, 0, true);
    run(1);
    EXPECT_EQ(ticks, 3); // A request by the program does not.
}

TEST_F(WidgetTest, ASpinningWheelSetsNoTextAgain) {
    const std::shared_ptr<QtTextImageCache> texts = QtTextImageCache::shared();
    for (const int notches : {-10, 10}) {
        wheelEvent(firstColumn, {}, {0, 120 * notches});
        for (int i = 0; i < 30; ++i) {
            step(0.016);
            widget.grab();
        }
    }
    const std::size_t misses = texts->missCount();
    const std::size_t hits = texts->hitCount();
    wheelEvent(firstColumn, {}, {0, -1200});
    for (int i = 0; i < 30; ++i) {
        step(0.016);
        widget.grab();
    }
    EXPECT_EQ(texts->missCount(), misses);
    EXPECT_GT(texts->hitCount(), hits + 30 * 10);
}

} // namespace
