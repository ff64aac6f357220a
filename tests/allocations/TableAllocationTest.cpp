// What a table takes from the heap while it scrolls, counted.

#include "AllocationCount.h"
#include "NullCanvas.h"
#include "TableSource.h"
#include "TestWindow.h"

using namespace gx;

namespace {

std::size_t allocationsOfScrolling(NSInteger rows) {
    const auto source = create<TableSource>();
    source->rows = {rows};
    source->titles = {"A title that is longer than a string keeps in itself"};
    const auto table = tableWithSource(source);
    TestWindow window(table);
    NullCanvas canvas;
    source->queried.reserve(10'000);
    const auto scroll = [&](double points) {
        for (int i = 0; i < 60; ++i) {
            window.scrollPoints({160, 220}, points);
            window.tick(TestWindow::frame);
            window->draw(canvas);
        }
    };
    scroll(17);
    scroll(-17);
    const int textsBefore = canvas.texts;
    const std::size_t asked = source->queried.size();
    const std::size_t count = allocationsOf([&] {
        scroll(17);
        scroll(-17);
    });
    EXPECT_GT(canvas.texts - textsBefore, 1000);
    EXPECT_GT(source->queried.size() - asked, 40U) << "rows came and went";
    return count;
}

} // namespace

TEST(TableAllocations, scrolling_back_and_forth_takes_nothing) {
    EXPECT_EQ(allocationsOfScrolling(100), 0U);
    EXPECT_EQ(allocationsOfScrolling(1'000'000'000), 0U);
}

TEST(TableAllocations, a_flings_frames_take_nothing) {
    const auto source = create<TableSource>();
    const auto table = tableWithSource(source);
    TestWindow window(table);
    NullCanvas canvas;
    source->queried.reserve(10'000);
    for (const bool isWarm : {false, true}) {
        table->setContentOffset({0, 0});
        window.fling({160, 400}, {160, 200}, 5);
        EXPECT_TRUE(table->isDecelerating());
        const std::size_t count = allocationsOf([&] {
            for (int i = 0; i < 60; ++i) {
                window.tick(TestWindow::frame);
                window->draw(canvas);
            }
        });
        if (isWarm) {
            EXPECT_EQ(count, 0U);
        }
        window.runUntilStill();
        EXPECT_GT(table->contentOffset().y, 1000);
    }
}

TEST(TableAllocations, a_pointer_that_moves_over_rows_takes_nothing) {
    const auto source = create<TableSource>();
    const auto table = tableWithSource(source);
    TestWindow window(table);
    NullCanvas canvas;
    const auto sweep = [&] {
        for (int y = 0; y < 440; y += 4) {
            window->pointerMoved({100, static_cast<double>(y)});
            window.tick(TestWindow::frame);
            window->draw(canvas);
        }
        window->pointerLeft();
    };
    sweep();
    EXPECT_EQ(allocationsOf(sweep), 0U);
}
