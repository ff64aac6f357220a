// The row of a table below the pointer.

#include "RecordingCanvas.h"
#include "TableSource.h"
#include "TestWindow.h"

using namespace gx;

namespace {

/// A table of ten visible rows of 44 points, whose row 2 cannot be tapped.
struct UITableViewHover : testing::Test {
    UITableViewHover() {
        listener->refuses = [](NSIndexPath path) { return path.row == 2; };
        table->setDelegate(listener);
        window.tick(0.1);
    }

    /// The marks of hovered rows.
    std::vector<std::string> marks() {
        RecordingCanvas canvas;
        window->draw(canvas);
        std::vector<std::string> found;
        for (const std::string& call : canvas.painted()) {
            if (call.ends_with(" 0.09") || call.ends_with(" 0.18")) found.push_back(call);
        }
        return found;
    }
    static std::vector<std::string> markAt(int y) {
        // 0x767D8A
        return {"fill 0 " + std::to_string(y) + " 320 44 with 0.462745 0.490196 0.541176 0.09"};
    }

    const std::vector<std::string> none;
    Ref<TableSource> source = create<TableSource>();
    Ref<TableListener> listener = create<TableListener>();
    Ref<UITableView> table = tableWithSource(source);
    TestWindow window{table};
};

} // namespace

TEST_F(UITableViewHover, ARowThatCanBeTappedIsMarkedBelowThePointer) {
    window->pointerMoved({100, 50});
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Press);
    EXPECT_EQ(marks(), markAt(44));
    window->pointerMoved({100, 100});
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Default) << "row 2 cannot be tapped";
    EXPECT_EQ(marks(), none);
    window->pointerMoved({100, 140});
    EXPECT_EQ(marks(), markAt(132));
    window->pointerLeft();
    EXPECT_EQ(marks(), none);
}

TEST_F(UITableViewHover, MovesWithinARowCallNobodyAndRequestNoFrame) {
    window->pointerMoved({100, 50});
    EXPECT_TRUE(window.tick(0.1));
    const int before = listener->queries;
    window->pointerMoved({101, 60});
    EXPECT_EQ(listener->queries, before);
    EXPECT_FALSE(window.tick(0.1));
}

TEST_F(UITableViewHover, ScrollingBelowARestingPointerMarksTheRowThatArrives) {
    window->pointerMoved({100, 10});
    window.scrollPoints({100, 10}, 44, true);
    window.tick(0.1);
    EXPECT_EQ(marks(), markAt(44)) << "row 1, in the content's coordinates";
}

TEST_F(UITableViewHover, TheMarkFollowsRowsThatComeAndGo) {
    window->pointerMoved({100, 10});
    source->rows = {101};
    table->insertRowsAtIndexPaths_animated({{0, 0}}, false);
    EXPECT_EQ(marks(), markAt(44)) << "the same row, until the next frame looks again";
    window.tick(0.1);
    EXPECT_EQ(marks(), markAt(0));
    source->rows = {0};
    table->reloadData();
    window.tick(0.1);
    EXPECT_EQ(marks(), none);
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Default);
}

TEST_F(UITableViewHover, AtHighContrastTheMarkIsStronger) {
    window->setAccessibilityContrast(UIAccessibilityContrast::High);
    window->pointerMoved({100, 10});
    ASSERT_EQ(marks().size(), 1U);
    EXPECT_TRUE(marks().front().ends_with(" 0.18"));
}

TEST_F(UITableViewHover, ADelegateMayDropTheTable) {
    listener->whenQueried = [this] {
        table->removeFromSuperview();
        table = nullptr;
    };
    window->pointerMoved({100, 10});
    window.tick(0.1);
    EXPECT_EQ(window->pointerStyle(), UIPointerStyle::Default);
    EXPECT_EQ(marks(), none);
}
