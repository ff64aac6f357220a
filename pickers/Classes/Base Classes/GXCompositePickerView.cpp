#include "GXCompositePickerView.h"

#include <algorithm>

#include "GXFontFitting.h"
#include "GXStyleSheet.h"

namespace gx {

namespace {

/// A picker that is tried in another frame, in the style sheet's fonts. What it had before comes
/// back.
class TriedPicker {
public:
    TriedPicker(Ref<GXBasePickerView> picker, CGRect frame)
        : picker_(std::move(picker)), frame_(picker_->frame()), valueFont_(picker_->customValueFont()),
          labelFont_(picker_->customLabelFont()) {
        place(frame, nullptr, nullptr);
    }
    ~TriedPicker() { place(frame_, valueFont_, labelFont_); }
    TriedPicker(const TriedPicker&) = delete;
    TriedPicker& operator=(const TriedPicker&) = delete;

    const Ref<GXMultiValuePickerView>& wheel() const { return picker_->pickerView(); }

private:
    void place(CGRect frame, const Ref<GXStyleSheetFont>& valueFont, const Ref<GXStyleSheetFont>& labelFont) {
        picker_->setFrame(frame);
        if (picker_->customValueFont() != valueFont) picker_->setCustomValueFont(valueFont);
        if (picker_->customLabelFont() != labelFont) picker_->setCustomLabelFont(labelFont);
        picker_->layoutIfNeeded();
    }

    Ref<GXBasePickerView> picker_;
    CGRect frame_;
    Ref<GXStyleSheetFont> valueFont_;
    Ref<GXStyleSheetFont> labelFont_;
};

} // namespace

void GXCompositePickerView::initGXBasePickerView() {}

std::vector<Ref<GXBasePickerView>> GXCompositePickerView::innerPickers() const {
    std::vector<Ref<GXBasePickerView>> pickers;
    for (const Place place : places) {
        if (Ref<GXBasePickerView> picker = innerPicker(place)) pickers.push_back(std::move(picker));
    }
    return pickers;
}

// In each of these the second picker is read after the call to the first, which may replace it.

void GXCompositePickerView::setDelegate(WeakRef<GXBasePickerViewDelegate> delegate) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setDelegate(delegate);
    for (const Place place : places) {
        if (const Ref<GXBasePickerView> picker = innerPicker(place)) picker->setDelegate(delegate);
    }
}

void GXCompositePickerView::setIsMetric(bool isMetric) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setIsMetric(isMetric);
    for (const Place place : places) {
        if (const Ref<GXBasePickerView> picker = innerPicker(place)) picker->setIsMetric(isMetric);
    }
    updateStacking();
}

void GXCompositePickerView::setFrame(CGRect frame) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setFrame(frame);
    placeInnerPickers();
}

void GXCompositePickerView::setBounds(CGRect newBounds) {
    const Ref<GXBasePickerView> keep = self();
    const CGRect before = bounds();
    GXBasePickerView::setBounds(newBounds);
    if (bounds() != before) placeInnerPickers();
}

void GXCompositePickerView::reloadData() {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::reloadData();
    updateStacking();
}

void GXCompositePickerView::sizeFontsToFit() {
    const Ref<GXBasePickerView> keep = self();
    updateStacking();
    GXBasePickerView::sizeFontsToFit();
}

// One above the other

void GXCompositePickerView::updateStacking() {
    const Ref<GXBasePickerView> keep = self();
    if (isStacked_ || mayStack()) placeInnerPickers();
}

void GXCompositePickerView::placeInnerPickers() {
    const bool wasStacked = isStacked_;
    isStacked_ = mayStack() && !fitsSideBySide(bounds());
    for (const Place place : places) {
        const Ref<GXBasePickerView> picker = innerPicker(place);
        if (picker) picker->setFrame(isStacked_ ? frameStacked(place) : frameSideBySide(place, bounds()));
    }
    if (isStacked_ == wasStacked) return;
    stackingDidChange();
    setNeedsDisplay();
}

CGRect GXCompositePickerView::frameStacked(Place place) const {
    const CGFloat half = 0.5 * bounds().size.height;
    return CGRectMake(bounds().origin.x, bounds().origin.y + (place == Place::First ? 0 : half), bounds().size.width, half);
}

/// As high as texts of this size need: rows that were made before the scale was set are lower.
CGFloat GXCompositePickerView::rowHeightOfWheels() const {
    CGFloat height = GXStyleSheet::globalStyleSheet()->pickerRowHeight();
    for (const Ref<GXBasePickerView>& picker : innerPickers()) {
        height = std::max(height, picker->pickerView_rowHeightForComponent(picker->pickerView(), 0));
    }
    return height;
}

/// Whether there may be a reason to stack, and the height for it.
bool GXCompositePickerView::mayStack() const {
    const bool isLarge = GXStyleSheet::globalStyleSheet()->textScale() > 1;
    if (!isLarge || !innerPicker(Place::First) || !innerPicker(Place::Second)) return false;
    return bounds().size.height >= 2 * fewestStackedRows * rowHeightOfWheels();
}

bool GXCompositePickerView::fitsSideBySide(CGRect bounds) const {
    std::vector<Ref<GXMultiValuePickerView>> wheels;
    std::vector<std::unique_ptr<TriedPicker>> tried;
    for (const Place place : places) {
        const Ref<GXBasePickerView> picker = innerPicker(place);
        const CGRect frame = frameSideBySide(place, bounds);
        if (!picker || !picker->pickerView()) continue;
        if (!(frame.size.width > 0)) return false;
        tried.push_back(std::make_unique<TriedPicker>(picker, frame));
        wheels.push_back(tried.back()->wheel());
    }
    return showAllTextsInStyleSheetFonts(wheels);
}

CGFloat GXCompositePickerView::smallestHeightForWidth(CGFloat width) {
    const Ref<GXBasePickerView> keep = self();
    const CGFloat height = fewestRows * rowHeightOfWheels();
    const bool isLarge = GXStyleSheet::globalStyleSheet()->textScale() > 1;
    return isLarge && !fitsSideBySide(CGRectMake(0, 0, width, height)) ? 2 * height : height;
}

} // namespace gx
