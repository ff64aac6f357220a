// The bar that shows which part of a scroll view's content is visible: where, and how long.

#include <algorithm>
#include <locale>
#include <sstream>

#include "FocusableView.h"
#include "NSLocale.h"
#include "RecordingCanvas.h"
#include "ScrollViewTest.h"
#include "TableSource.h"

using namespace gx;

namespace {

/// The alpha of the bar that is drawn, if any, and the call that draws it.
struct DrawnBar {
    double alpha = 0;
    std::string fill;
};

/// With a point, whatever the user's locale has.
double numberIn(const std::string& text) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    double number = 0;
    stream >> number;
    return number;
}

DrawnBar barIn(const Ref<UIView>& view) {
    RecordingCanvas canvas;
    view->renderInContext(canvas);
    DrawnBar bar;
    double alpha = 1;
    for (const std::string& call : canvas.calls) {
        if (call == "save") alpha = 1;
        if (call.starts_with("alpha ")) alpha = numberIn(call.substr(6));
        // All bars here are 4 points wide.
        if (call.starts_with("fill ") && call.find(" 4 160 ") != std::string::npos) bar = {alpha, call};
    }
    return bar;
}

struct UIScrollIndicatorTest : UIScrollViewTest {
    double alpha() const { return barIn(scroll).alpha; }
    std::string fill() const { return barIn(scroll).fill; }
    /// The seconds until nothing is requested any more, counted in frames.
    double secondsUntilStill() { return window.runUntilStill(); }
};

struct RightToLeftScrollIndicator : UIScrollIndicatorTest {
    RightToLeftScrollIndicator() { NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("he")); }
    ~RightToLeftScrollIndicator() override { NSLocale::setCurrentLocale(nullptr); }
};

// 0.6 s of waiting and 0.3 s of fading, and the first frame, with which the clock begins.
constexpr double visibleSeconds = 0.9;
constexpr double fewFrames = 4 * TestWindow::frame;

} // namespace

TEST_F(UIScrollIndicatorTest, IsNotThereAtRest) {
    EXPECT_EQ(alpha(), 0);
    window.runUntilStill();
    setOffset(100);
    EXPECT_EQ(alpha(), 0) << "the program has placed the content; nobody scrolls";
    EXPECT_LT(secondsUntilStill(), 3 * TestWindow::frame);
}

TEST_F(UIScrollIndicatorTest, ShowsWhereTheContentIsWhileAFingerDrags) {
    window.down(middle);
    EXPECT_EQ(alpha(), 0) << "a touch may be a tap";
    window.glide(middle, {150, 190}, 1);
    EXPECT_EQ(alpha(), 1) << "it drags from here";
    // 160 of the 400 points are the share that is shown; the bar runs from 4 to 396.
    EXPECT_TRUE(fill().starts_with("fill 292 4 4 160 ")) << fill();
    window.glide({150, 190}, {150, 40}, 10);
    EXPECT_EQ(offset(), 150);
    // 232 points of way for 600 of content: 150 + 4 + 58
    EXPECT_TRUE(fill().starts_with("fill 292 212 4 160 ")) << fill();
    EXPECT_FALSE(window.tick(5) && window.tick(5)) << "under a resting finger no frames are needed";
    EXPECT_EQ(alpha(), 1);
    window.up({150, 40});
    EXPECT_NEAR(secondsUntilStill(), visibleSeconds, fewFrames);
    EXPECT_EQ(alpha(), 0);
}

TEST_F(UIScrollIndicatorTest, WaitsAndFadesAfterTheMovementAndThenTheWindowIsStill) {
    window.scrollNotches(middle, 1);
    EXPECT_EQ(alpha(), 1);
    window.tick(TestWindow::frame); // Its clock begins.
    window.run(0.59);
    EXPECT_EQ(alpha(), 1);
    window.run(0.16);
    EXPECT_NEAR(alpha(), 0.5, 1e-6);
    EXPECT_TRUE(window.tick(0.14));
    EXPECT_NEAR(alpha(), 1.0 / 30, 1e-6);
    EXPECT_TRUE(window.tick(0.02)) << "the frame without it is drawn";
    EXPECT_EQ(alpha(), 0);
    EXPECT_FALSE(window.tick(TestWindow::frame));
    EXPECT_FALSE(window.tick(TestWindow::frame));
}

TEST_F(UIScrollIndicatorTest, StaysWhileContentMovesByItself) {
    window.fling({150, 300}, {150, 150}, 5);
    while (scroll->isDecelerating()) {
        EXPECT_EQ(alpha(), 1);
        window.tick(TestWindow::frame);
    }
    EXPECT_EQ(alpha(), 1);
    EXPECT_NEAR(secondsUntilStill(), visibleSeconds, fewFrames);
    scroll->setContentOffset_animated({0, 0}, true);
    EXPECT_EQ(alpha(), 1);
    window.run(0.2);
    EXPECT_GT(offset(), 0);
    EXPECT_EQ(alpha(), 1);
}

TEST_F(UIScrollIndicatorTest, IsShownAgainWhenScrolledWhileItFades) {
    window.scrollNotches(middle, 1);
    window.tick(0);
    window.tick(0.75);
    EXPECT_NEAR(alpha(), 0.5, 1e-6);
    window.scrollNotches(middle, 1);
    EXPECT_EQ(alpha(), 1);
    EXPECT_NEAR(secondsUntilStill(), visibleSeconds, fewFrames);
}

TEST_F(UIScrollIndicatorTest, WithReducedMotionItVanishesWithoutAFade) {
    window->setReducesMotion(true);
    scroll->setContentOffset_animated({0, 100}, true);
    EXPECT_EQ(offset(), 100) << "requests arrive at once";
    EXPECT_EQ(alpha(), 0) << "so nothing scrolls";
    window.runUntilStill();
    window.scrollNotches(middle, 1);
    EXPECT_EQ(alpha(), 1);
    window.tick(0);
    window.tick(0.59);
    EXPECT_EQ(alpha(), 1);
    EXPECT_TRUE(window.tick(0.02));
    EXPECT_EQ(alpha(), 0);
    EXPECT_FALSE(window.tick(TestWindow::frame));
}

TEST_F(UIScrollIndicatorTest, ShowsForKeysAlsoWithReducedMotion) {
    const auto field = create<FocusableView>(CGRectMake(0, 0, 10, 10));
    content->addSubview(field);
    field->becomeFirstResponder();
    for (const bool reduces : {false, true}) {
        window->setReducesMotion(reduces);
        setOffset(0);
        window.press(UIKey::Code::End);
        EXPECT_EQ(alpha(), 1);
        window.runUntilStill();
        EXPECT_EQ(offset(), 600);
        EXPECT_EQ(alpha(), 0);
    }
}

TEST_F(UIScrollIndicatorTest, FlashesOnRequest) {
    window.runUntilStill();
    scroll->flashScrollIndicators();
    EXPECT_EQ(alpha(), 1);
    EXPECT_NEAR(secondsUntilStill(), visibleSeconds, fewFrames);
    EXPECT_EQ(alpha(), 0);
    scroll->setContentSize({300, 400});
    window.runUntilStill();
    scroll->flashScrollIndicators();
    EXPECT_FALSE(window.tick(0)) << "all content is visible";
    scroll->setContentSize({300, 1000});
    EXPECT_EQ(alpha(), 0);
    scroll->removeFromSuperview();
    scroll->flashScrollIndicators();
    EXPECT_EQ(alpha(), 0) << "without a window no time passes, and it would stay";
}

TEST_F(UIScrollIndicatorTest, IsGoneWhereAllContentFits) {
    window.scrollNotches(middle, 1);
    scroll->setContentSize({300, 400});
    EXPECT_EQ(alpha(), 0);
}

TEST_F(UIScrollIndicatorTest, EndsWithTheMovements) {
    window.scrollNotches(middle, 1);
    window->finishAnimations();
    EXPECT_EQ(alpha(), 0);
    window.scrollNotches(middle, 1);
    const Ref<UIView> keep = scroll;
    scroll->removeFromSuperview();
    EXPECT_EQ(alpha(), 0);
    window->addSubview(scroll);
    EXPECT_EQ(alpha(), 0);
    EXPECT_LT(secondsUntilStill(), 3 * TestWindow::frame);
}

TEST_F(RightToLeftScrollIndicator, IsOnTheLeft) {
    window.scrollNotches(middle, 1);
    EXPECT_TRUE(fill().starts_with("fill 4 ")) << fill();
}

TEST(UIScrollIndicator, ATableHasOneToo) {
    const auto source = create<TableSource>();
    source->rows = {100};
    const auto table = tableWithSource(source);
    TestWindow window(table);
    const auto fillsOf = [&table] {
        RecordingCanvas canvas;
        table->renderInContext(canvas);
        const std::vector<std::string> painted = canvas.painted();
        return std::count_if(painted.begin(), painted.end(),
                             [](const std::string& call) { return call.find("rounded 2") != std::string::npos; });
    };
    EXPECT_EQ(fillsOf(), 0);
    window.scrollNotches({160, 220}, 3);
    EXPECT_EQ(fillsOf(), 1);
    EXPECT_NEAR(window.runUntilStill(), visibleSeconds, fewFrames);
    EXPECT_EQ(fillsOf(), 0);
}
