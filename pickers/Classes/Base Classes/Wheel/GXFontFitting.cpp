#include "GXFontFitting.h"

#include <algorithm>

#include "GXDigitWidths.h"
#include "GXStyleSheet.h"

namespace gx {

namespace {

// Below this size, in points, texts are hard to read; then one that is cut is the lesser harm.
// Chosen.
constexpr int smallestSize = 13;
// Between a label and the end of the selection indicator, in points. Chosen by eye: the ends are
// round.
constexpr CGFloat labelMargin = 6;

/// The part of a wheel's bounds that is as wide as its selection indicator.
CGRect roomOfIndicator(const Ref<GXMultiValuePickerView>& wheel) {
    const CGRect bounds = wheel->bounds();
    const CGRect indicator = wheel->selectionIndicatorFrame();
    return CGRectMake(indicator.origin.x, bounds.origin.y, indicator.size.width, bounds.size.height);
}

bool areLabelsInsideIndicator(const Ref<GXMultiValuePickerView>& wheel) {
    const CGRect room = CGRectInset(roomOfIndicator(wheel), labelMargin, 0);
    const auto isInside = [&room](const Ref<UILabel>& label) {
        const bool isOutside = CGRectGetMinX(label->frame()) < CGRectGetMinX(room) || CGRectGetMaxX(label->frame()) > CGRectGetMaxX(room);
        return !label->showsSomething() || !isOutside;
    };
    return isInside(wheel->leftDescLabel()) && isInside(wheel->rightDescLabel());
}

/// Some columns are of one width whatever the font, so that a large one would have its titles cut.
bool areTitlesWhole(const Ref<GXMultiValuePickerView>& wheel, const Ref<UIFont>& font) {
    const auto titles = wheel->delegate().lock();
    if (!titles) return true;
    for (NSInteger component = 0; component < wheel->numberOfComponents(); ++component) {
        const CGFloat room = wheel->rowSizeForComponent(component).width;
        // Numbers grow longer toward the last row, but for those below 0.
        for (const NSInteger row : {NSInteger{0}, wheel->numberOfRowsInComponent(component) - 1}) {
            const auto title = titles->pickerView_titleForRow_forComponent(wheel, row, component);
            if (title && widthWithAnyDigits(*title, font) > room) return false;
        }
    }
    return true;
}

/// The wheels of a composite overlap a little; there no label may lie on the selection indicator of
/// another wheel.
bool areLabelsApart(const std::vector<Ref<GXMultiValuePickerView>>& wheels) {
    const auto isOnIndicatorOf = [](const Ref<UILabel>& label, const Ref<GXMultiValuePickerView>& wheel) {
        return label->showsSomething() && CGRectIntersectsRect(wheel->convertRect_fromView(label->bounds(), label), roomOfIndicator(wheel));
    };
    for (const Ref<GXMultiValuePickerView>& wheel : wheels) {
        for (const Ref<GXMultiValuePickerView>& other : wheels) {
            if (other == wheel) continue;
            if (isOnIndicatorOf(wheel->leftDescLabel(), other) || isOnIndicatorOf(wheel->rightDescLabel(), other)) return false;
        }
    }
    return true;
}

bool showAllTexts(const std::vector<Ref<GXMultiValuePickerView>>& wheels, const Ref<GXStyleSheetFont>& valueFont) {
    const auto showsAllTexts = [&valueFont](const Ref<GXMultiValuePickerView>& wheel) {
        wheel->layoutIfNeeded();
        return areLabelsInsideIndicator(wheel) && areTitlesWhole(wheel, valueFont->font());
    };
    return std::all_of(wheels.begin(), wheels.end(), showsAllTexts) && areLabelsApart(wheels);
}

Ref<GXStyleSheetFont> resized(const Ref<GXStyleSheetFont>& font, int size) {
    return GXStyleSheetFont::fontWithFamily_size_weight_color(font->familyName(), size, font->weight(), font->color());
}

} // namespace

bool showAllTextsInStyleSheetFonts(const std::vector<Ref<GXMultiValuePickerView>>& wheels) {
    const Ref<GXStyleSheetFont> values = GXStyleSheet::globalStyleSheet()->pickerValueFont();
    return !values || showAllTexts(wheels, values);
}

void chooseLargestFonts(const std::vector<Ref<GXMultiValuePickerView>>& wheels, const GXFontSetter& setFonts) {
    const Ref<GXStyleSheet> sheet = GXStyleSheet::globalStyleSheet();
    const Ref<GXStyleSheetFont> values = sheet->pickerValueFont();
    const Ref<GXStyleSheetFont> labels = sheet->pickerLabelFont();
    setFonts(nullptr, nullptr);
    if (!values || !labels) return; // Those of an application's own style sheet may be absent.
    Ref<GXStyleSheetFont> tried = values;
    for (int size = static_cast<int>(values->pointSize()); size >= smallestSize; --size) {
        if (showAllTexts(wheels, tried)) return;
        tried = resized(values, size);
        setFonts(tried, resized(labels, size));
    }
}

} // namespace gx
