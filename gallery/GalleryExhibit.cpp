#include "GalleryExhibit.h"

#include <algorithm>

#include "GXStyleSheet.h"
#include "GalleryDelegate.h"
#include "GalleryNumbers.h"

using namespace gx;

namespace gallery {

namespace {

bool fitsIntoBand(const Ref<GXBasePickerView>& picker) {
    // The band begins 8 points from the wheel's edges; a text wants some air within it.
    constexpr CGFloat inset = 14;
    picker->layoutIfNeeded();
    const auto& wheel = picker->pickerView();
    const CGRect room = CGRectInset(wheel->bounds(), inset, 0);
    const auto isInside = [&room](const Ref<UILabel>& label) {
        const bool isOutside = CGRectGetMinX(label->frame()) < CGRectGetMinX(room) || CGRectGetMaxX(label->frame()) > CGRectGetMaxX(room);
        return !label->showsSomething() || !isOutside;
    };
    return isInside(wheel->leftDescLabel()) && isInside(wheel->rightDescLabel());
}

Ref<GXStyleSheetFont> resized(const Ref<GXStyleSheetFont>& font, CGFloat size) {
    return GXStyleSheetFont::fontWithFamily_size_weight_color(font->familyName(), size, font->weight(), font->color());
}

void addTextPickers(const Ref<GXBasePickerView>& picker, std::vector<Ref<GXBasePickerView>>& found) {
    if (!picker || CGRectIsEmpty(picker->bounds())) return;
    if (picker->pickerView()) return found.push_back(picker);
    for (const Ref<UIView>& inner : picker->subviews()) addTextPickers(std::dynamic_pointer_cast<GXBasePickerView>(inner), found);
}

} // namespace

void fitFonts(const Ref<GXBasePickerView>& picker) {
    std::vector<Ref<GXBasePickerView>> pickers;
    addTextPickers(picker, pickers);
    constexpr int smallest = 13;
    const auto values = GXStyleSheet::globalStyleSheet()->pickerValueFont();
    const auto labels = GXStyleSheet::globalStyleSheet()->pickerLabelFont();
    const auto setFonts = [&pickers](const Ref<GXStyleSheetFont>& valueFont, const Ref<GXStyleSheetFont>& labelFont) {
        for (const Ref<GXBasePickerView>& each : pickers) {
            each->setCustomValueFont(valueFont);
            each->setCustomLabelFont(labelFont);
        }
    };
    setFonts(nullptr, nullptr); // Nothing stands for the style sheet's.
    for (int size = static_cast<int>(values->pointSize()); size >= smallest; --size) {
        if (std::all_of(pickers.begin(), pickers.end(), fitsIntoBand)) return;
        setFonts(resized(values, size), resized(labels, size));
    }
}

GalleryExhibit exhibitOf(const Ref<GXBasePickerView>& picker, const GalleryReport& report, const std::string& unit,
                         std::function<std::string(const NSNumber&, NSInteger)> inWords) {
    const auto delegate = create<GalleryDelegate>();
    delegate->setHandler([report, unit, inWords = std::move(inWords)](const NSNumber& value, NSInteger component) {
        const std::string facts = GalleryNumbers::boxed(value) + " " + unit + " (component " + std::to_string(component) + ")";
        report({inWords(value, component), facts});
    });
    picker->setDelegate(delegate);

    GalleryExhibit exhibit;
    exhibit.picker = picker;
    exhibit.wheel = picker->pickerView();
    exhibit.textPicker = picker;
    exhibit.delegate = delegate;
    exhibit.values = [picker] { return std::vector<NSNumber>{picker->currentValue()}; };
    exhibit.setValues = [picker](const std::vector<NSNumber>& values) {
        if (!values.empty()) picker->setCurrentValue(values.front());
    };
    return exhibit;
}

std::string unitBesideWheel(const Ref<GXBasePickerView>& picker) { return picker->pickerView()->rightLabelText().value_or(""); }

} // namespace gallery
