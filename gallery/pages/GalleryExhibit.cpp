#include "GalleryExhibit.h"

#include <algorithm>

#include "GalleryDelegate.h"
#include "NumberFormat.h"
#include <GXUIPickers/GXStyleSheet.h>
#include <GXUIPickers/UITextEngine.h>

using namespace gx;

namespace gallery {

namespace {

// From the wheel's edges to its band, and to a text in it, which wants some air.
constexpr CGFloat bandInset = 8;
constexpr CGFloat inset = 14;

bool fitsIntoBand(const Ref<GXBasePickerView>& picker) {
    picker->layoutIfNeeded();
    const auto& wheel = picker->pickerView();
    const CGRect room = CGRectInset(wheel->bounds(), inset, 0);
    const auto isInside = [&room](const Ref<UILabel>& label) {
        const bool isOutside = CGRectGetMinX(label->frame()) < CGRectGetMinX(room) || CGRectGetMaxX(label->frame()) > CGRectGetMaxX(room);
        return !label->showsSomething() || !isOutside;
    };
    return isInside(wheel->leftDescLabel()) && isInside(wheel->rightDescLabel());
}

/// Of all texts that differ from this one in their digits alone: digits need not be equally wide.
CGFloat widestLike(std::string text, const Ref<UIFont>& font) {
    UITextEngine& engine = *UITextEngine::shared();
    char widest = '0';
    CGFloat width = 0;
    for (char digit = '0'; digit <= '9'; ++digit) {
        const CGFloat digitWidth = engine.sizeOfText_font(std::string(1, digit), *font).width;
        if (digitWidth <= width) continue;
        widest = digit;
        width = digitWidth;
    }
    std::replace_if(
        text.begin(), text.end(), [](char letter) { return letter >= '0' && letter <= '9'; }, widest);
    return engine.sizeOfText_font(text, *font).width;
}

/// Some columns are of one width whatever the font, so that a large one would have its titles cut.
bool fitsIntoColumns(const Ref<GXBasePickerView>& picker) {
    const auto& wheel = picker->pickerView();
    const auto& custom = picker->customValueFont();
    const Ref<UIFont> font = (custom ? custom : GXStyleSheet::globalStyleSheet()->pickerValueFont())->font();
    for (NSInteger component = 0; component < wheel->numberOfComponents(); ++component) {
        const CGFloat room = wheel->rowSizeForComponent(component).width;
        // Numbers grow longer toward the last row, but for those below 0.
        for (const NSInteger row : {NSInteger{0}, wheel->numberOfRowsInComponent(component) - 1}) {
            const auto title = picker->pickerView_titleForRow_forComponent(wheel, row, component);
            if (title && widestLike(*title, font) > room) return false;
        }
    }
    return true;
}

bool fits(const Ref<GXBasePickerView>& picker) { return fitsIntoBand(picker) && fitsIntoColumns(picker); }

/// The wheels of a composite overlap a little; there no label lies on another wheel's band.
bool areLabelsApart(const std::vector<Ref<GXBasePickerView>>& pickers) {
    const auto isOnBandOf = [](const Ref<UILabel>& label, const Ref<UIView>& wheel) {
        const CGRect band = CGRectInset(wheel->bounds(), bandInset, 0);
        return label->showsSomething() && CGRectIntersectsRect(wheel->convertRect_fromView(label->bounds(), label), band);
    };
    for (const Ref<GXBasePickerView>& picker : pickers) {
        const auto& wheel = picker->pickerView();
        for (const Ref<GXBasePickerView>& other : pickers) {
            if (other == picker) continue;
            if (isOnBandOf(wheel->leftDescLabel(), other->pickerView()) || isOnBandOf(wheel->rightDescLabel(), other->pickerView()))
                return false;
        }
    }
    return true;
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
        if (std::all_of(pickers.begin(), pickers.end(), fits) && areLabelsApart(pickers)) return;
        setFonts(resized(values, size), resized(labels, size));
    }
}

GalleryExhibit exhibitOf(const Ref<GXBasePickerView>& picker, const GalleryReport& report, const std::string& unit,
                         std::function<std::string(const NSNumber&, NSInteger)> inWords) {
    const auto delegate = create<GalleryDelegate>();
    delegate->setHandler([report, unit, inWords = std::move(inWords)](const NSNumber& value, NSInteger component) {
        const std::string facts = NumberFormat::boxed(value) + " " + unit + " (component " + std::to_string(component) + ")";
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
