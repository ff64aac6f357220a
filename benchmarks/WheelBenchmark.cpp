// A wheel's reload, jump and frame, each for a hundred rows and for a billion: the ratio of the two
// should be 1.

#include <benchmark/benchmark.h>

#include "NullCanvas.h"
#include "UIWindow.h"
#include "WheelSource.h"

using namespace gx;

namespace {

struct SpinningWheel {
    explicit SpinningWheel(NSInteger rows) {
        source->rows = {rows, rows, rows};
        wheel = wheelWithSource(source);
        window = create<UIWindow>(wheel->frame());
        window->addSubview(wheel);
        window->tick(now);
    }
    /// Keeps all three columns turning: a new animated request whenever one has arrived.
    void frame() {
        now += 1.0 / 60;
        if (!wheel->isTurning()) {
            target = target == 20 ? 60 : 20;
            for (NSInteger i = 0; i < 3; ++i) wheel->selectRow_inComponent_animated(target, i, true);
        }
        window->tick(now);
        window->draw(canvas);
    }

    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel;
    Ref<UIWindow> window;
    NullCanvas canvas;
    double now = 0;
    NSInteger target = 0;
};

void reload(benchmark::State& state) {
    SpinningWheel spinning(state.range(0));
    for (auto _ : state) {
        spinning.wheel->reloadAllComponents();
        spinning.wheel->layoutIfNeeded();
    }
}
BENCHMARK(reload)->Arg(100)->Arg(1'000'000'000);

void jump(benchmark::State& state) {
    SpinningWheel spinning(state.range(0));
    NSInteger row = 0;
    for (auto _ : state) {
        row = state.range(0) - 1 - row;
        spinning.wheel->selectRow_inComponent_animated(row, 0, false);
        spinning.wheel->layoutIfNeeded();
    }
}
BENCHMARK(jump)->Arg(100)->Arg(1'000'000'000);

void frameToACanvasThatDoesNothing(benchmark::State& state) {
    SpinningWheel spinning(state.range(0));
    for (auto _ : state) spinning.frame();
}
BENCHMARK(frameToACanvasThatDoesNothing)->Arg(100)->Arg(1'000'000'000);

/// A finger moves each of three columns to and fro by less than half a row, in a wheel of a height.
/// The columns have five rows, all of which are drawn in each frame.
///
/// At 216 points the outermost ones fade toward the edges; at 432 nothing does.
void frameWithAndWithoutRowsThatFade(benchmark::State& state) {
    SpinningWheel dragged(5);
    dragged.wheel->setFrame(CGRectMake(0, 0, 320, static_cast<CGFloat>(state.range(0))));
    dragged.window->setFrame(dragged.wheel->frame());
    for (NSInteger i = 0; i < 3; ++i) dragged.wheel->selectRow_inComponent_animated(2, i, false);
    dragged.window->tick(0);
    const CGFloat middle = 0.5 * dragged.wheel->bounds().size.height;
    constexpr CGFloat columns[] = {75, 160, 245};
    for (int i = 0; i < 3; ++i) dragged.window->touchBegan_at_time(i, {columns[i], middle}, 0);
    int step = 0;
    for (auto _ : state) {
        // Between 7 and 25 points from where they came down, 6 of which a finger moves for nothing.
        const CGFloat distance = 7 + 3 * (++step % 7);
        dragged.now += 1.0 / 60;
        for (int i = 0; i < 3; ++i) dragged.window->touchMoved_at_time(i, {columns[i], middle + distance}, dragged.now);
        dragged.window->tick(dragged.now);
        dragged.window->draw(dragged.canvas);
    }
    if (!dragged.wheel->isTurning()) state.SkipWithError("no finger moves it");
    state.counters["rows"] = benchmark::Counter(dragged.canvas.texts, benchmark::Counter::kAvgIterations);
}
BENCHMARK(frameWithAndWithoutRowsThatFade)->Arg(216)->Arg(432);

} // namespace
