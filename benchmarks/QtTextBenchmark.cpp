// A jump of a wheel on the Qt canvas, to rows that were drawn before and to rows never seen.

#include <benchmark/benchmark.h>

#include <QImage>
#include <QPainter>

#include "QtCanvas.h"
#include "UIWindow.h"
#include "WheelSource.h"

using namespace gx;

namespace {

/// A wheel of one column of a million rows, drawn on an image. Rows of 24 points: nine are in
/// sight.
struct DrawnWheel {
    DrawnWheel() {
        source->rows = {1'000'000};
        source->height = 24;
        source->width = 200;
        wheel = wheelWithSource(source);
        window = create<UIWindow>(wheel->frame());
        window->addSubview(wheel);
    }
    void jumpTo(NSInteger row) {
        wheel->selectRow_inComponent_animated(row, 0, false);
        window->tick(now += 1.0 / 60);
        image.fill(Qt::white);
        QPainter painter(&image);
        canvas.begin(painter);
        window->draw(canvas);
        canvas.end();
    }

    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel;
    Ref<UIWindow> window;
    qt::QtCanvas canvas;
    QImage image = QImage(320, 216, QImage::Format_ARGB32_Premultiplied);
    double now = 0;
};

void jumpToRowsSeenBefore(benchmark::State& state) {
    DrawnWheel drawn;
    NSInteger row = 100'000;
    for (auto _ : state) drawn.jumpTo(row = 300'000 - row);
}
BENCHMARK(jumpToRowsSeenBefore)->Unit(benchmark::kMicrosecond);

void jumpToRowsNeverSeen(benchmark::State& state) {
    DrawnWheel drawn;
    static NSInteger row = 100'000; // Goes on where the last, shorter run has ended.
    const std::size_t before = qt::QtTextImageCache::shared()->missCount();
    for (auto _ : state) drawn.jumpTo(row = 100'000 + (row + 7'919) % 899'000);
    const auto made = static_cast<double>(qt::QtTextImageCache::shared()->missCount() - before);
    state.counters["rows"] = benchmark::Counter(made, benchmark::Counter::kAvgIterations);
}
BENCHMARK(jumpToRowsNeverSeen)->Unit(benchmark::kMicrosecond);

} // namespace
