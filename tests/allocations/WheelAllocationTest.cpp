// Counts what a wheel takes from the heap: the same for a hundred rows and for a billion, and
// nothing in steady motion.

#include "AllocationCount.h"
#include "GXCaloriesPickerView.h"
#include "NullCanvas.h"
#include "TestWindow.h"
#include "WheelSource.h"

using namespace gx;

namespace {

constexpr NSInteger billion = 1'000'000'000;

/// Allocations of a reload, a jump to the middle, and sixty frames of a fling, once all buffers
/// have grown.
struct Costs {
    std::size_t reload, jump, frames;
    friend bool operator==(const Costs&, const Costs&) = default;
};

Costs costsOf(NSInteger rows) {
    const auto source = create<WheelSource>();
    source->rows = {rows, rows, rows};
    const auto wheel = wheelWithSource(source);
    TestWindow window(wheel);
    NullCanvas canvas;
    const auto spin = [&] {
        window.fling({117, 150}, {117, 50}, 5);
        window.fling({202, 150}, {202, 30}, 5);
        return allocationsOf([&] {
            for (int i = 0; i < 60; ++i) {
                window.tick(TestWindow::frame);
                window->draw(canvas);
            }
        });
    };
    spin(); // Buffers and views grow to what a moving wheel needs.
    wheel->finishAnimations();
    window.tick(0);
    const std::size_t reload = allocationsOf([&] {
        wheel->reloadAllComponents();
        window.tick(0);
    });
    const std::size_t jump = allocationsOf([&] {
        wheel->selectRow_inComponent_animated(rows / 2, 0, false);
        window.tick(0);
    });
    const std::size_t frames = spin();
    EXPECT_GT(canvas.texts, 1000);
    return {reload, jump, frames};
}

} // namespace

TEST(WheelAllocations, AreTheSameForAHundredRowsAndForABillion) { EXPECT_EQ(costsOf(100), costsOf(billion)); }

TEST(WheelAllocations, ASteadyFrameTakesNothing) { EXPECT_EQ(costsOf(billion).frames, 0U); }

TEST(WheelAllocations, APickersSteadyFrameTakesNothing) {
    const auto picker = create<GXCaloriesPickerView>(CGRectMake(0, 0, 320, 216));
    TestWindow window(picker);
    NullCanvas canvas;
    for (const bool isWarm : {false, true}) {
        window.fling({160, 180}, {160, 40}, 4);
        const std::size_t count = allocationsOf([&] {
            for (int i = 0; i < 60; ++i) {
                window.tick(TestWindow::frame);
                window->draw(canvas);
            }
        });
        if (isWarm) {
            EXPECT_EQ(count, 0U);
        }
        EXPECT_TRUE(picker->pickerView()->isTurning()) << "the frames counted were frames of a movement";
        window.runUntilStill();
    }
}

TEST(WheelAllocations, ASteadyFrameOfAMovementByKeysTakesNothing) {
    const auto source = create<WheelSource>();
    const auto wheel = wheelWithSource(source);
    source->rows = {billion};
    wheel->reloadAllComponents();
    TestWindow window(wheel);
    NullCanvas canvas;
    wheel->becomeFirstResponder();
    window.press(UIKey::Code::Down);
    window.type("4");
    for (const bool isWarm : {false, true}) {
        wheel->selectRow_inComponent_animated(0, 0, false);
        window.tick(0);
        window.press(UIKey::Code::PageDown);
        window.press(UIKey::Code::PageDown);
        window.tick(TestWindow::frame);
        const std::size_t count = allocationsOf([&] {
            for (int i = 0; i < 10; ++i) {
                window.tick(TestWindow::frame);
                window->draw(canvas);
            }
        });
        if (isWarm) {
            EXPECT_EQ(count, 0U);
        }
        EXPECT_TRUE(wheel->isTurning()) << "the frames counted were frames of a movement";
        EXPECT_TRUE(window->showsFocus());
    }
}

TEST(WheelAllocations, a_pointer_that_moves_takes_nothing) {
    const auto source = create<WheelSource>();
    source->rows = {100, 100, 100};
    const auto wheel = wheelWithSource(source);
    TestWindow window(wheel);
    NullCanvas canvas;
    const auto sweep = [&] {
        for (int x = 0; x < 320; x += 4) {
            window->pointerMoved({static_cast<double>(x), 108});
            window.tick(TestWindow::frame);
            window->draw(canvas);
        }
        window->pointerLeft();
    };
    sweep();
    EXPECT_EQ(allocationsOf(sweep), 0U);
}
