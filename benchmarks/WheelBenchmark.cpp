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

} // namespace
