// A frame of a widget whose wheel spins, alone in its window and beside many labels in a large one.

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include "UILabel.h"
#include "UIViewWidget.h"
#include "WheelSource.h"

using namespace gx;

namespace {

/// Three columns at 320 by 216 points, beside so many labels.
void frameOfASpinningWheel(benchmark::State& state) {
    const auto labels = static_cast<int>(state.range(0));
    const auto source = create<WheelSource>();
    source->rows = {100, 100, 100};
    const Ref<UIPickerView> wheel = wheelWithSource(source);
    const auto root = create<UIView>(labels == 0 ? wheel->frame() : CGRectMake(0, 0, 1600, 1000));
    root->setBackgroundColor(UIColor::whiteColor());
    for (int i = 0; i < labels; ++i) {
        const auto label = create<UILabel>(CGRectMake(340 + 120 * (i % 10), 10 + 24 * (i / 10), 110, 20));
        label->setText("Label " + std::to_string(i));
        root->addSubview(label);
    }
    root->addSubview(wheel);
    double now = 1000;
    qt::UIViewWidget widget;
    widget.setClock([&now] { return now; });
    widget.setRootView(root);
    widget.resize(widget.sizeHint());
    widget.show();
    const auto frame = [&] {
        now += 1.0 / 60;
        widget.stepFrame();
        QCoreApplication::processEvents();
    };
    for (int i = 0; i < 10; ++i) frame();
    NSInteger target = 0;
    for (auto _ : state) {
        if (!wheel->isTurning()) {
            target = target == 2 ? 9 : 2;
            for (const NSInteger column : {0, 1, 2}) wheel->selectRow_inComponent_animated(target, column, true);
        }
        frame();
    }
}
BENCHMARK(frameOfASpinningWheel)->ArgName("labels")->Arg(0)->Arg(400)->Unit(benchmark::kMicrosecond);

} // namespace
