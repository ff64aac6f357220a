// Plays a gesture on a picker and prints, for each of its steps, the calls from the host's event to
// what the library calls at its end: addresses within this program, innermost first.
//
// draw_gesture.py turns them into names and draws docs/images/gesture.svg.

#include <GXUIPickers/GXUIPickers.h>

#include <execinfo.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <string>

using namespace gx;

extern "C" const char __executable_start; // NOLINT(bugprone-reserved-identifier): the linker's own.

namespace {

std::string step;    // What is looked at now; empty once its calls are printed.
std::string stepEnd; // Which call of the library ends it.

void callArrives(const char* name) {
    if (step.empty() || stepEnd != name) return;
    std::array<void*, 64> frames{};
    const int count = backtrace(frames.data(), static_cast<int>(frames.size()));
    std::printf("%s\n", step.c_str());
    for (int i = 0; i < count; ++i) {
        const auto address = reinterpret_cast<std::uintptr_t>(frames.at(static_cast<std::size_t>(i)));
        std::printf("  %llx\n", static_cast<unsigned long long>(address - reinterpret_cast<std::uintptr_t>(&__executable_start)));
    }
    step.clear();
}

void look(const char* wanted, const char* end) {
    step = wanted;
    stepEnd = end;
}

class Host : public UIWindowHost {
public:
    void windowNeedsFrame() override { callArrives("frame"); }
    void giveFeedback(UIFeedback) override { callArrives("feedback"); }
};

class Delegate : public NSObject, public GXBasePickerViewDelegate {
public:
    void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>&, const NSNumber&, NSInteger) override {
        callArrives("delegate");
        ++changes;
    }
    int changes = 0;
};

} // namespace

int main() {
    Host host;
    const auto window = create<UIWindow>(CGRectMake(0, 0, 320, 216));
    window->setHost(&host);
    const auto picker = create<GXBpmPickerView>(window->bounds());
    const auto delegate = create<Delegate>();
    picker->setDelegate(delegate);
    window->addSubview(picker);
    window->tick(0);
    while (window->tick(0)) {
    }

    const double frame = 1.0 / 60;
    look("The finger comes down", "frame");
    window->touchBegan_at_time(0, {160, 108}, 0);
    double time = 0;
    CGFloat y = 108;
    for (int i = 0; i < 8; ++i) {
        window->tick(time);
        time += frame;
        y -= 12;
        // By now it has moved far enough to spin the column.
        if (i == 4) look("It moves", "frame");
        window->touchMoved_at_time(0, {160, y}, time);
    }
    window->tick(time);
    look("It lifts, and the column spins on", "frame");
    window->touchEnded_at_time(0, {160, y}, time);
    look("A frame, in which a row passes", "feedback");
    while (!step.empty() && window->tick(time += frame)) {
    }
    look("The column lands", "delegate");
    while (window->tick(time += frame)) {
    }
    window->setHost(nullptr);
    return delegate->changes == 1 ? 0 : 1;
}
