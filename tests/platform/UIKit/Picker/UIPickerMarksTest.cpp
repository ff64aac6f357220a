// The marks of the pointer in a wheel's selection indicator.

#include "RecordingCanvas.h"
#include "TestWindow.h"
#include "WheelSource.h"

using namespace gx;

namespace {

/// A wheel of 320 by 216 points: a column of 80 points at x 35, one of a single row at 120 and one
/// at 205.
struct UIPickerMarks : testing::Test {
    UIPickerMarks() {
        source->rows = {100, 1, 100};
        wheel->reloadAllComponents();
        window.tick(0.1);
    }

    /// The fills in the tint's hue: those of marks.
    std::vector<std::string> marks() {
        wheel->setTintColor(UIColor::colorWithHex(0xFF0000));
        RecordingCanvas canvas;
        window->draw(canvas);
        std::vector<std::string> found;
        for (const std::string& call : canvas.painted()) {
            if (call.find("with 1 0 0") != std::string::npos) found.push_back(call);
        }
        return found;
    }

    static constexpr CGPoint first{75, 108};
    static constexpr CGPoint single{160, 108};
    static constexpr CGPoint last{245, 108};
    // The selection indicator is 40 high in the middle of 216.
    const std::vector<std::string> none;
    const std::vector<std::string> faintOnFirst = {"fill 35 88 80 40 with 1 0 0 0.07 rounded 8"};
    const std::vector<std::string> faintOnLast = {"fill 205 88 80 40 with 1 0 0 0.07 rounded 8"};
    const std::vector<std::string> strongOnFirst = {"fill 35 88 80 40 with 1 0 0 0.14 rounded 8", "fill 43 88 64 2 with 1 0 0 1 rounded 1",
                                                    "fill 43 126 64 2 with 1 0 0 1 rounded 1"};

    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel = wheelWithSource(source);
    TestWindow window{wheel};
};

} // namespace

TEST_F(UIPickerMarks, TheColumnBelowThePointerIsMarkedFaintly) {
    EXPECT_EQ(marks(), none);
    window->pointerMoved(first);
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Turn);
    EXPECT_EQ(marks(), faintOnFirst);
    window->pointerMoved(last);
    EXPECT_EQ(marks(), faintOnLast);
    window->pointerMoved({last.x, 10});
    EXPECT_EQ(marks(), faintOnLast) << "anywhere on the column";
    window->pointerLeft();
    EXPECT_EQ(marks(), none);
}

TEST_F(UIPickerMarks, ColumnsOfOneRowAndTheRoomBesideColumnsAreNotMarked) {
    window->pointerMoved(first);
    for (const CGPoint place : {single, CGPointMake(20, 108), CGPointMake(117, 108)}) {
        window->pointerMoved(place);
        EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Default);
        EXPECT_EQ(marks(), none);
    }
}

TEST_F(UIPickerMarks, MovesWithinAColumnRequestNoFrame) {
    window->pointerMoved(first);
    EXPECT_TRUE(window.tick(0.1));
    window->pointerMoved({first.x + 1, first.y + 1});
    EXPECT_FALSE(window.tick(0.1));
}

TEST_F(UIPickerMarks, TheMouseWheelMarksItsColumnLikeKeysUntilThePointerLeavesIt) {
    window->pointerMoved(first);
    window.scrollNotches(first, 1);
    window.tick(TestWindow::frame);
    EXPECT_EQ(marks(), strongOnFirst);
    window.runUntilStill();
    EXPECT_EQ(source->notices, (std::vector<WheelSource::Notice>{{1, 0}}));
    EXPECT_EQ(marks(), strongOnFirst);
    window->pointerMoved(last);
    EXPECT_EQ(marks(), faintOnLast);
    window->pointerMoved(first);
    EXPECT_EQ(marks(), faintOnFirst);
}

TEST_F(UIPickerMarks, ADragMarksItsColumnLikeKeysWhereverThePointerGoes) {
    window->pointerMoved(first);
    window->touchBegan_at_time(UITouch::pointerIdentifier, first, window.now);
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Turning);
    EXPECT_EQ(marks(), strongOnFirst);
    const CGPoint far = {last.x, 10};
    window->pointerMoved(far);
    window->touchMoved_at_time(UITouch::pointerIdentifier, far, window.now);
    window.tick(TestWindow::frame);
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Turning);
    EXPECT_EQ(marks(), strongOnFirst);
    window->touchEnded_at_time(UITouch::pointerIdentifier, far, window.now);
    window.runUntilStill();
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Turn);
    EXPECT_EQ(marks(), faintOnLast);
}

TEST_F(UIPickerMarks, AFingerNeedsNoMark) {
    window.drag(first, {first.x, 20});
    window.runUntilStill();
    window.scrollNotches(first, 1);
    window.runUntilStill();
    EXPECT_EQ(marks(), none);
}

TEST_F(UIPickerMarks, TheColumnOfKeysIsMarkedOnceAlsoBelowThePointer) {
    wheel->becomeFirstResponder();
    window.press(UIKey::Code::Left);
    EXPECT_EQ(marks(), strongOnFirst);
    window->pointerMoved(first);
    EXPECT_EQ(marks(), strongOnFirst);
    window->pointerMoved(last);
    std::vector<std::string> both = strongOnFirst;
    both.push_back(faintOnLast.front());
    EXPECT_EQ(marks(), both);
    window.scrollNotches(last, 1);
    window.runUntilStill();
    EXPECT_EQ(marks(), both) << "the strong mark says where keys go";
}

TEST_F(UIPickerMarks, AtHighContrastTheFaintMarkIsStrongerAndHasNoBars) {
    window->setAccessibilityContrast(UIAccessibilityContrast::High);
    window->pointerMoved(first);
    EXPECT_EQ(marks(), (std::vector<std::string>{strongOnFirst.front()}));
}

TEST_F(UIPickerMarks, AColumnThatGoesBelowARestingPointerLosesItsMark) {
    window->pointerMoved(last);
    source->rows = {100};
    wheel->reloadAllComponents();
    window.tick(0.1);
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Default);
    EXPECT_EQ(marks(), none);
}
