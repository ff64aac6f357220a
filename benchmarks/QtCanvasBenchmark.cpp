// A frame of a spinning wheel of three columns on a Qt image, with the canvas that copies row
// images and, for the ratio, with one that draws the same rows naively as text.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFontDatabase>
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

/// What a canvas would do without a thought for speed.
class NaiveCanvas : public UIGraphicsContext {
public:
    void begin(QPainter& painter) { painter_ = &painter; }
    void end() { painter_ = nullptr; }
    void saveState() override { painter_->save(); }
    void restoreState() override { painter_->restore(); }
    void translate(CGFloat x, CGFloat y) override { painter_->translate(x, y); }
    void scale(CGFloat x, CGFloat y) override { painter_->scale(x, y); }
    void clipToRect(CGRect rect) override {
        painter_->setClipRect(QRectF(rect.origin.x, rect.origin.y, rect.size.width, rect.size.height), Qt::IntersectClip);
    }
    void multiplyAlpha(double alpha) override { painter_->setOpacity(painter_->opacity() * alpha); }

protected:
    void fillRectWithComponents(CGRect rect, const UIColorComponents& color, CGFloat radius) override {
        painter_->setRenderHint(QPainter::Antialiasing);
        painter_->setPen(Qt::NoPen);
        painter_->setBrush(colorOf(color));
        painter_->drawRoundedRect(QRectF(rect.origin.x, rect.origin.y, rect.size.width, rect.size.height), radius, radius);
    }
    void drawTextWithComponents(std::string_view text, const UIFont& font, const UIColorComponents& color, CGPoint origin) override {
        QFont qtFont(QStringLiteral("Inter"));
        qtFont.setPixelSize(static_cast<int>(font.pointSize()));
        qtFont.setWeight(font.weight() == UIFontWeight::Medium ? QFont::Medium : QFont::Normal);
        painter_->setRenderHint(QPainter::Antialiasing);
        painter_->setFont(qtFont);
        painter_->setPen(colorOf(color));
        painter_->drawText(QPointF(origin.x, origin.y + QFontMetricsF(qtFont).ascent()),
                           QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    }
    void drawImageInRect(const UIImage&, CGRect) override {}

private:
    static QColor colorOf(const UIColorComponents& color) {
        return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green), static_cast<float>(color.blue),
                                static_cast<float>(color.alpha));
    }
    QPainter* painter_ = nullptr;
};

template <class Canvas>
void spinningWheel(benchmark::State& state) {
    const auto ratio = static_cast<double>(state.range(0));
    const auto picker = create<GXDurationPickerView>(CGRectMake(0, 0, 320, 216));
    picker->setType(1); // hours, minutes and seconds
    const auto wheel = picker->pickerView();
    const auto window = create<UIWindow>(picker->frame());
    window->addSubview(picker);
    QImage image(QSizeF(320 * ratio, 216 * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    Canvas canvas;
    double now = 0;
    NSInteger target = 0;
    for (auto _ : state) {
        now += 1.0 / 60;
        if (!wheel->isTurning()) {
            target = target == 2 ? 9 : 2;
            for (const NSInteger column : {0, 2, 4}) wheel->selectRow_inComponent_animated(target, column, true);
        }
        window->tick(now);
        image.fill(Qt::white);
        QPainter painter(&image);
        canvas.begin(painter);
        window->draw(canvas);
        canvas.end();
    }
}

BENCHMARK(spinningWheel<qt::QtCanvas>)->Arg(1)->Arg(3)->Unit(benchmark::kMillisecond);
BENCHMARK(spinningWheel<NaiveCanvas>)->Arg(1)->Arg(3)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    qt::installQtHost(application);
    if (!qt::loadInterfaceFont({std::begin(fontFiles), std::end(fontFiles)})) {
        qCritical("The font Inter is missing: install Debian's package fonts-inter.");
        return 2;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
