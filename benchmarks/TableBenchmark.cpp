// A table's reload and the frame of one that scrolls, each for a hundred rows and for a billion:
// the ratio of the two should be 1.

#include <benchmark/benchmark.h>

#include "NullCanvas.h"
#include "TableSource.h"
#include "UIWindow.h"

using namespace gx;

namespace {

struct ScrollingTable {
    explicit ScrollingTable(NSInteger rows) {
        source->rows = {rows};
        table = tableWithSource(source);
        window = create<UIWindow>(table->frame());
        window->addSubview(table);
        window->tick(now);
    }
    /// Half a row further in each frame, to the fiftieth row and back.
    void frame() {
        now += 1.0 / 60;
        const CGFloat y = table->contentOffset().y;
        if (y <= 0) step = 22;
        if (y >= 2200) step = -22;
        window->scroll({UIScroll::Unit::Points, 0, step, now, {160, 220}, false});
        window->tick(now);
        window->draw(canvas);
        source->queried.clear();
    }

    Ref<TableSource> source = create<TableSource>();
    Ref<UITableView> table;
    Ref<UIWindow> window;
    NullCanvas canvas;
    double now = 0;
    CGFloat step = 22;
};

void reload(benchmark::State& state) {
    ScrollingTable scrolling(state.range(0));
    for (auto _ : state) {
        scrolling.table->reloadData();
        scrolling.table->layoutIfNeeded();
        scrolling.source->queried.clear();
    }
}
BENCHMARK(reload)->Arg(100)->Arg(1'000'000'000);

void frameToACanvasThatDoesNothing(benchmark::State& state) {
    ScrollingTable scrolling(state.range(0));
    for (auto _ : state) scrolling.frame();
}
BENCHMARK(frameToACanvasThatDoesNothing)->Arg(100)->Arg(1'000'000'000);

} // namespace
