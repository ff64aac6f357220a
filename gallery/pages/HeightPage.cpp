#include <cmath>

#include "GalleryPages.h"
#include "GalleryTheme.h"
#include "NumberFormat.h"
#include <GXUIPickers/GXHeightPickerView.h>

using namespace gx;

namespace gallery {

namespace {

std::string inWords(CGFloat centimetres, bool isMetric) {
    if (isMetric) return NumberFormat::decimal(centimetres, 0) + " cm";
    constexpr CGFloat centimetresInInch = 2.54;
    const auto inches = static_cast<NSInteger>(std::round(centimetres / centimetresInInch));
    return std::to_string(inches / 12) + "′ " + std::to_string(inches % 12) + "″";
}

/// The height picker has a delegate protocol of its own.
class HeightDelegate : public NSObject, public GXHeightPickerViewDelegate {
public:
    void setReport(GalleryReport report) { report_ = std::move(report); }

    void heightPickerView_didSelectHeightInCm_metric(const Ref<GXHeightPickerView>&, CGFloat height, bool metric) override {
        const std::string facts =
            NumberFormat::boxed(NSNumber::numberWithDouble(height)) + " cm (" + (metric ? "metric" : "imperial") + ")";
        report_({inWords(height, metric), facts});
    }

private:
    GalleryReport report_;
};

GalleryExhibit makeExhibit(const GalleryReport& report) {
    const auto picker = create<GXHeightPickerView>(CGRectZero);
    const auto delegate = create<HeightDelegate>();
    delegate->setReport(report);
    picker->setHeightDelegate(delegate);
    picker->setHeightInCm(176);

    GalleryExhibit exhibit;
    exhibit.picker = picker;
    exhibit.wheel = picker;
    exhibit.delegate = delegate;
    exhibit.options = {
        {"Unit system",
         {"Metric", "Imperial"},
         0,
         [picker](std::size_t choice) { picker->setIsMetric(choice == 0); },
         [picker] { return std::size_t{picker->isMetric() ? 0U : 1U}; }},
        // Its rows are black until they are given another tint; the label colour shows in both looks.
        {"Tint",
         {"Text", "Accent"},
         0,
         [picker](std::size_t choice) { picker->setTintColor(choice == 0 ? UIColor::labelColor() : GalleryTheme::accent()); },
         {}},
    };
    exhibit.values = [picker] { return std::vector<NSNumber>{NSNumber::numberWithDouble(picker->heightInCm())}; };
    exhibit.setValues = [picker](const std::vector<NSNumber>& values) {
        if (!values.empty()) picker->setHeightInCm(values.front().doubleValue());
    };
    return exhibit;
}

} // namespace

GalleryPageDescription heightPage() {
    return {"Height", "Centimetres, or feet and inches, chosen on the wheel itself. The value is in centimetres.", makeExhibit};
}

} // namespace gallery
