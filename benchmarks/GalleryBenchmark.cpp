// The entry screen of the gallery: opening it, opening each of its pickers, and scrolling it.
// The pickers alone show by comparison what the table and the cells cost.

#include <cmath>

#include <benchmark/benchmark.h>

#include "EntryScreen.h"
#include "GXBpmPickerView.h"
#include "GXCaloriesPickerView.h"
#include "GXDistanceAndDurationPicker.h"
#include "GXHeartRatePickerView.h"
#include "GXHeightPickerView.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXWeatherAndTemperaturePickerView.h"
#include "GXWeightPickerView.h"
#include "NSRunLoop.h"
#include "NullCanvas.h"
#include "UIAccessibilityChanges.h"
#include "UIPickerView.h"
#include "UIWindow.h"

using namespace gx;
using namespace gallery;

namespace {

const CGRect phone = CGRectMake(0, 0, 390, 844);

/// An entry screen in a window, with time.
struct Screen {
    Screen() {
        window->addSubview(entry);
        window->tick(now);
    }
    void tick() {
        window->tick(now += 1.0 / 60);
        window->draw(canvas);
    }

    Ref<UIWindow> window = create<UIWindow>(phone);
    Ref<EntryScreen> entry = create<EntryScreen>(phone);
    NullCanvas canvas;
    double now = 0;
};

void openTheScreen(benchmark::State& state) {
    for (auto _ : state) {
        Screen screen;
        benchmark::DoNotOptimize(screen.entry);
    }
}
BENCHMARK(openTheScreen)->Unit(benchmark::kMicrosecond);

void openTheScreenAndEachPicker(benchmark::State& state) {
    for (auto _ : state) {
        Screen screen;
        for (std::size_t i = 0; i < screen.entry->measurementCount(); ++i) screen.entry->openMeasurement_animated(i, false);
        NSRunLoop::mainRunLoop()->runPass();
    }
}
BENCHMARK(openTheScreenAndEachPicker)->Unit(benchmark::kMicrosecond);

template <class Picker>
void makeAndLayOut() {
    const auto picker = create<Picker>(CGRectMake(0, 0, 390, 200));
    picker->layoutIfNeeded();
    benchmark::DoNotOptimize(picker);
}

void thePickersAlone(benchmark::State& state) {
    for (auto _ : state) {
        makeAndLayOut<GXDistanceAndDurationPicker>();
        makeAndLayOut<GXSpeedPickerView>();
        makeAndLayOut<GXCaloriesPickerView>();
        makeAndLayOut<GXDistancePickerView>();
        makeAndLayOut<GXDurationPickerView>();
        makeAndLayOut<GXPacePickerView>();
        makeAndLayOut<GXHeartRatePickerView>();
        makeAndLayOut<GXBpmPickerView>();
        makeAndLayOut<GXWeatherAndTemperaturePickerView>();
        makeAndLayOut<GXTemperaturePickerView>();
        makeAndLayOut<GXWeightPickerView>();
        makeAndLayOut<GXHeightPickerView>();
        NSRunLoop::mainRunLoop()->runPass();
    }
}
BENCHMARK(thePickersAlone)->Unit(benchmark::kMicrosecond);

/// Up and down with a picker open, half a row a frame.
void aFrameOfScrolling(benchmark::State& state) {
    Screen screen;
    screen.entry->openMeasurement_animated(2, false);
    const auto& table = screen.entry->table();
    CGFloat step = 22;
    for (auto _ : state) {
        const CGFloat y = table->contentOffset().y;
        if (y <= 0) step = 22;
        if (y >= table->highestOffset()) step = -22;
        screen.window->scroll({UIScroll::Unit::Points, 0, step, screen.now, {195, 200}, false});
        screen.tick();
    }
}
BENCHMARK(aFrameOfScrolling)->Unit(benchmark::kMicrosecond);

Ref<UIPickerView> wheelIn(const Ref<UIView>& view) {
    if (const auto wheel = std::dynamic_pointer_cast<UIPickerView>(view)) return wheel;
    for (const Ref<UIView>& below : view->subviews()) {
        if (const auto wheel = wheelIn(below)) return wheel;
    }
    return nullptr;
}

/// A wheel in its row, moved by a finger to and fro; without and with a screen reader, for which
/// the host looks for changes after each frame.
void aFrameOfASpinningWheel(benchmark::State& state) {
    Screen screen;
    screen.entry->openMeasurement_animated(1, false);
    screen.tick();
    const Ref<UIPickerView> wheel = wheelIn(screen.entry->openPickerCell());
    const CGPoint middle = wheel->convertPoint_toView({CGRectGetMidX(wheel->bounds()) - 30, CGRectGetMidY(wheel->bounds())}, screen.window);
    UIAccessibilityChanges changes;
    constexpr CGFloat way = 60; // About two rows, and back.
    CGFloat place = 0;
    CGFloat step = 3;
    screen.window->touchBegan_at_time(1, middle, screen.now);
    for (auto _ : state) {
        place += step;
        if (std::abs(place) >= way) step = -step;
        screen.window->touchMoved_at_time(1, {middle.x, middle.y + place}, screen.now);
        screen.tick();
        if (state.range(0) != 0) benchmark::DoNotOptimize(changes.takeChanges(*screen.window));
    }
}
BENCHMARK(aFrameOfASpinningWheel)->ArgName("screenReader")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

} // namespace
