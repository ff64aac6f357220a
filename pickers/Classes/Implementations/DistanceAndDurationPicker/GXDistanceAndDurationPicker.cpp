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

void GXDistanceAndDurationPicker::initGXBasePickerView() {}

void GXDistanceAndDurationPicker::didInitialize() {
    GXBasePickerView::didInitialize();
    if (!givenRowHeight()) initGXDistanceAndDurationPicker();
}

void GXDistanceAndDurationPicker::initGXDistanceAndDurationPicker() {
    const Ref<GXDistancePickerView> distance = create<GXDistancePickerView>(distanceFrame());
    setDistancePicker(distance);
    distance->setDelegate(refTo(this));
    const Ref<GXDurationPickerView> duration = create<GXDurationPickerView>(durationFrame());
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
    showSelectionIndicator(to, false);
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
    GXBasePickerView::drawRect(context, rect);
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

std::vector<Ref<GXBasePickerView>> GXDistanceAndDurationPicker::innerPickers() const {
    std::vector<Ref<GXBasePickerView>> pickers;
    if (distancePicker()) pickers.push_back(distancePicker());
    if (durationPicker()) pickers.push_back(durationPicker());
    return pickers;
}

CGRect GXDistanceAndDurationPicker::distanceFrame() const {
    return CGRectMake(0, 0, CGRectGetMidX(bounds()) + distanceBeyondMiddle, CGRectGetHeight(bounds()));
}

CGRect GXDistanceAndDurationPicker::durationFrame() const {
    const CGFloat middle = CGRectGetMidX(bounds());
    return CGRectMake(middle - durationBeforeMiddle, 0, middle + durationBeforeMiddle, CGRectGetHeight(bounds()));
}

// In each of these the inner pickers are held by copies: what is told to the first may replace it,
// or the second.

void GXDistanceAndDurationPicker::setFrame(CGRect frame) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setFrame(frame);
    if (const Ref<GXDistancePickerView> picker = distancePicker()) picker->setFrame(distanceFrame());
    if (const Ref<GXDurationPickerView> picker = durationPicker()) picker->setFrame(durationFrame());
}

void GXDistanceAndDurationPicker::setDelegate(WeakRef<GXBasePickerViewDelegate> delegate) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setDelegate(delegate);
    if (const Ref<GXDistancePickerView> picker = distancePicker()) picker->setDelegate(delegate);
    if (const Ref<GXDurationPickerView> picker = durationPicker()) picker->setDelegate(delegate);
}

void GXDistanceAndDurationPicker::setIsMetric(bool isMetric) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setIsMetric(isMetric);
    if (const Ref<GXDistancePickerView> picker = distancePicker()) picker->setIsMetric(isMetric);
    if (const Ref<GXDurationPickerView> picker = durationPicker()) picker->setIsMetric(isMetric);
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
