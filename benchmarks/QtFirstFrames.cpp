// The first frames of wheels in a process that has drawn none: their processor time, and the heap
// that they leave taken. One line a frame; a fresh process makes a fresh measurement.

#include <cstdio>
#include <ctime>
#include <iterator>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "GXDurationPickerView.h"
#include "QtCanvas.h"
#include "QtHost.h"
#include "UIWindow.h"

using namespace gx;

namespace {

constexpr const char* fontFiles[] = {"/usr/share/fonts/opentype/inter/Inter-Regular.otf",
                                     "/usr/share/fonts/opentype/inter/Inter-Medium.otf"};

double milliseconds() { return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

double heapKibibytes() {
#ifdef __GLIBC__
    const struct mallinfo2 heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd) / 1024;
#else
    return 0;
#endif
}

/// Hours, minutes and seconds at 320 by 216 points.
struct Wheel {
    Wheel() {
        picker->setType(1);
        window->addSubview(picker);
        window->tick(0);
    }
    void draw(QImage& image) {
        QPainter painter(&image);
        canvas.begin(painter);
        window->draw(canvas);
        canvas.end();
    }

    Ref<GXDurationPickerView> picker = create<GXDurationPickerView>(CGRectMake(0, 0, 320, 216));
    Ref<UIWindow> window = create<UIWindow>(picker->frame());
    qt::QtCanvas canvas;
};

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    qt::installQtHost(*qGuiApp);
    if (!qt::loadInterfaceFont({std::begin(fontFiles), std::end(fontFiles)})) {
        qCritical("The font Inter is missing: install Debian's package fonts-inter.");
        return 2;
    }
    QImage image(320, 216, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    std::list<Wheel> wheels;
    for (const char* name : {"first", "second"}) {
        const double heap = heapKibibytes();
        const double start = milliseconds();
        wheels.emplace_back();
        const double made = milliseconds();
        wheels.back().draw(image);
        const double drawn = milliseconds();
        const double taken = heapKibibytes() - heap;
        std::printf("%s wheel: %.2f ms to make, %.2f ms for its first frame, %.0f KiB of heap\n", name, made - start, drawn - made, taken);
    }
    const double start = milliseconds();
    constexpr int frames = 100;
    for (int i = 0; i < frames; ++i) wheels.back().draw(image);
    std::printf("again: %.3f ms for a frame; texts take %zu KiB\n", (milliseconds() - start) / frames,
                qt::QtTextImageCache::shared()->byteCount() / 1024);
    return 0;
}
