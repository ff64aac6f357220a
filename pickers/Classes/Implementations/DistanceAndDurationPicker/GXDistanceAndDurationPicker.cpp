#include "GXDistanceAndDurationPicker.h"

#include "UIGraphicsContext.h"

namespace gx {

namespace {

// How far the distance reaches beyond the middle, and where before it the duration begins.
// Prescribed by the product.
constexpr CGFloat distanceBeyondMiddle = 5;
constexpr CGFloat durationBeforeMiddle = 20;

/// Of an inner picker: both would overlap in the middle, so the composite draws one for them.
void showSelectionIndicator(const Ref<GXBasePickerView>& picker, bool shows) {
    const Ref<GXMultiValuePickerView> wheel = picker ? picker->pickerView() : nullptr;
    if (wheel) wheel->setShowsSelectionIndicator(shows);
}

} // namespace

void GXDistanceAndDurationPicker::didInitialize() {
    GXCompositePickerView::didInitialize();
    if (!givenRowHeight()) initGXDistanceAndDurationPicker();
    updateStacking();
}

void GXDistanceAndDurationPicker::initGXDistanceAndDurationPicker() {
    const Ref<GXDistancePickerView> distance = create<GXDistancePickerView>(frameSideBySide(Place::First, bounds()));
    setDistancePicker(distance);
    distance->setDelegate(refTo(this));
    const Ref<GXDurationPickerView> duration = create<GXDurationPickerView>(frameSideBySide(Place::Second, bounds()));
    setDurationPicker(duration);
    duration->setDelegate(refTo(this));
    addSubview(distance);
    addSubview(duration);
}

void GXDistanceAndDurationPicker::setDistancePicker(Ref<GXDistancePickerView> picker) {
    const Ref<GXBasePickerView> keep = self();
    moveSelectionIndicator(distancePicker_, picker);
    distancePicker_ = std::move(picker);
}

void GXDistanceAndDurationPicker::setDurationPicker(Ref<GXDurationPickerView> picker) {
    const Ref<GXBasePickerView> keep = self();
    moveSelectionIndicator(durationPicker_, picker);
    durationPicker_ = std::move(picker);
}

void GXDistanceAndDurationPicker::moveSelectionIndicator(const Ref<GXBasePickerView>& from, const Ref<GXBasePickerView>& to) {
    if (!wheelInside(from)) showSelectionIndicator(from, true);
    showSelectionIndicator(to, isStacked());
    setNeedsDisplay();
}

/// The picker's wheel, if it lies somewhere in this view.
Ref<GXMultiValuePickerView> GXDistanceAndDurationPicker::wheelInside(const Ref<GXBasePickerView>& picker) const {
    Ref<GXMultiValuePickerView> wheel = picker ? picker->pickerView() : nullptr;
    for (Ref<UIView> above = wheel; above; above = above->superview()) {
        if (above.get() == this) return wheel;
    }
    return nullptr;
}

void GXDistanceAndDurationPicker::drawRect(UIGraphicsContext& context, CGRect rect) {
    GXCompositePickerView::drawRect(context, rect);
    if (isStacked()) return;
    CGRect indicator;
    CGFloat margin = 0;
    if (const Ref<GXMultiValuePickerView> distance = wheelInside(distancePicker())) {
        indicator = convertRect_fromView(distance->selectionIndicatorFrame(), distance);
        margin = CGRectGetMinX(indicator) - CGRectGetMinX(rect);
    } else if (const Ref<GXMultiValuePickerView> duration = wheelInside(durationPicker())) {
        indicator = convertRect_fromView(duration->selectionIndicatorFrame(), duration);
        margin = CGRectGetMaxX(rect) - CGRectGetMaxX(indicator);
    }
    if (!(indicator.size.height > 0)) return;
    // As far from the right edge as from the left one.
    indicator.origin.x = rect.origin.x + margin;
    indicator.size.width = rect.size.width - 2 * margin;
    UIPickerView::drawSelectionIndicator(context, indicator);
}

void GXDistanceAndDurationPicker::stackingDidChange() {
    const Ref<GXBasePickerView> keep = self();
    GXCompositePickerView::stackingDidChange();
    showSelectionIndicator(distancePicker(), isStacked());
    showSelectionIndicator(durationPicker(), isStacked());
}

Ref<GXBasePickerView> GXDistanceAndDurationPicker::innerPicker(Place place) const {
    if (place == Place::First) return distancePicker();
    return durationPicker();
}

CGRect GXDistanceAndDurationPicker::frameSideBySide(Place place, CGRect bounds) const {
    const CGFloat middle = CGRectGetMidX(bounds);
    if (place == Place::First) return CGRectMake(0, 0, middle + distanceBeyondMiddle, CGRectGetHeight(bounds));
    return CGRectMake(middle - durationBeforeMiddle, 0, middle + durationBeforeMiddle, CGRectGetHeight(bounds));
}

void GXDistanceAndDurationPicker::selectCurrentValue() {}

void GXDistanceAndDurationPicker::pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>& pickerView,
                                                                                const NSNumber& value, NSInteger) {
    // An absent sender is no inner picker, also while one of those is absent.
    if (!pickerView) return;
    const bool isDistance = pickerView == distancePicker();
    if (!isDistance && pickerView != durationPicker()) return;
    const Ref<GXBasePickerView> keep = self();
    if (const Ref<GXBasePickerViewDelegate> receiver = delegate().lock()) {
        receiver->pickerView_didChangeCurrentValue_forComponent(keep, value, isDistance ? distanceComponent : durationComponent);
    }
}

} // namespace gx
