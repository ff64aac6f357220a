// Making each picker, and one full selection by the user: the gesture, the notice and the layout
// that follows.

#include <benchmark/benchmark.h>

#include "GXBpmPickerView.h"
#include "GXCaloriesPickerView.h"
#include "GXDistancePickerView.h"
#include "GXDurationPickerView.h"
#include "GXHeartRatePickerView.h"
#include "GXHeightPickerView.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXTemperaturePickerView.h"
#include "GXWeightPickerView.h"
#include "NSRunLoop.h"

using namespace gx;

namespace {

const CGRect frame = CGRectMake(0, 0, 320, 216);

Ref<UIPickerView> wheelOf(const Ref<GXBasePickerView>& picker) { return picker->pickerView(); }
Ref<UIPickerView> wheelOf(const Ref<GXHeightPickerView>& picker) { return picker; }

template <class Picker>
void creation(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(create<Picker>(frame));
    NSRunLoop::mainRunLoop()->runPass();
}

template <class Picker>
void selection(benchmark::State& state) {
    const auto picker = create<Picker>(frame);
    const auto wheel = wheelOf(picker);
    NSInteger row = 1;
    for (auto _ : state) {
        row = 3 - row;
        wheel->turnToRow_inComponent(row, 0);
        wheel->layoutIfNeeded();
        NSRunLoop::mainRunLoop()->runPass();
    }
}

#define GX_BENCHMARK_PICKER(Picker)                                                                                                        \
    BENCHMARK(creation<Picker>);                                                                                                           \
    BENCHMARK(selection<Picker>)

GX_BENCHMARK_PICKER(GXBasePickerView);
GX_BENCHMARK_PICKER(GXBpmPickerView);
GX_BENCHMARK_PICKER(GXCaloriesPickerView);
GX_BENCHMARK_PICKER(GXDistancePickerView);
GX_BENCHMARK_PICKER(GXDurationPickerView);
GX_BENCHMARK_PICKER(GXPacePickerView);
GX_BENCHMARK_PICKER(GXSpeedPickerView);
GX_BENCHMARK_PICKER(GXHeartRatePickerView);
GX_BENCHMARK_PICKER(GXWeightPickerView);
GX_BENCHMARK_PICKER(GXHeightPickerView);
GX_BENCHMARK_PICKER(GXTemperaturePickerView);

} // namespace
