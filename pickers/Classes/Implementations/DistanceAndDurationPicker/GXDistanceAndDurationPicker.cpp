#include "GXDistanceAndDurationPicker.h"

#include "UIGraphicsContext.h"

namespace gx {

namespace {

// How far the distance reaches beyond the middle, and where before it the duration begins. Prescribed by the product.
constexpr CGFloat distanceBeyondMiddle = 5;
constexpr CGFloat durationBeforeMiddle = 20;

} // namespace

bool GXDistanceAndDurationPicker::initWithFrame(CGRect frame) {
    if (!GXBasePickerView::initWithFrame(frame)) return false;
    initGXDistanceAndDurationPicker();
    return true;
}

bool GXDistanceAndDurationPicker::initWithCoder(const Ref<NSCoder>& coder) {
    if (!GXBasePickerView::initWithCoder(coder)) return false;
    initGXDistanceAndDurationPicker();
    return true;
}

void GXDistanceAndDurationPicker::initGXBasePickerView() {}

void GXDistanceAndDurationPicker::initGXDistanceAndDurationPicker() {
    distancePicker_ = create<GXDistancePickerView>(distanceFrame());
    distancePicker_->setDelegate(refTo(this));
    durationPicker_ = create<GXDurationPickerView>(durationFrame());
    durationPicker_->setDelegate(refTo(this));
    addSubview(distancePicker_);
    addSubview(durationPicker_);
    // Theirs would overlap in the middle.
    for (const Ref<GXMultiValuePickerView>& wheel : {distancePicker_->pickerView(), durationPicker_->pickerView()}) {
        if (wheel) wheel->setShowsSelectionIndicator(false);
    }
}

void GXDistanceAndDurationPicker::drawRect(UIGraphicsContext& context, CGRect rect) {
    GXBasePickerView::drawRect(context, rect);
    const Ref<GXMultiValuePickerView> wheel = distancePicker_ ? distancePicker_->pickerView() : nullptr;
    if (!wheel) return;
    // As far from the right edge as from the left one.
    CGRect band = convertRect_fromView(wheel->selectionIndicatorFrame(), wheel);
    band.size.width = rect.size.width - 2 * (band.origin.x - rect.origin.x);
    if (band.size.height > 0) UIPickerView::drawSelectionIndicator(context, band);
}

std::vector<Ref<GXBasePickerView>> GXDistanceAndDurationPicker::innerPickers() const {
    std::vector<Ref<GXBasePickerView>> pickers;
    if (distancePicker_) pickers.push_back(distancePicker_);
    if (durationPicker_) pickers.push_back(durationPicker_);
    return pickers;
}

CGRect GXDistanceAndDurationPicker::distanceFrame() const {
    return CGRectMake(0, 0, CGRectGetMidX(bounds()) + distanceBeyondMiddle, CGRectGetHeight(bounds()));
}

CGRect GXDistanceAndDurationPicker::durationFrame() const {
    const CGFloat middle = CGRectGetMidX(bounds());
    return CGRectMake(middle - durationBeforeMiddle, 0, middle + durationBeforeMiddle, CGRectGetHeight(bounds()));
}

// In each of these the inner pickers are held by copies: what is told to the first may replace it, or the second.

void GXDistanceAndDurationPicker::setFrame(CGRect frame) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setFrame(frame);
    if (const Ref<GXDistancePickerView> picker = distancePicker_) picker->setFrame(distanceFrame());
    if (const Ref<GXDurationPickerView> picker = durationPicker_) picker->setFrame(durationFrame());
}

void GXDistanceAndDurationPicker::setDelegate(WeakRef<GXBasePickerViewDelegate> delegate) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setDelegate(delegate);
    if (const Ref<GXDistancePickerView> picker = distancePicker_) picker->setDelegate(delegate);
    if (const Ref<GXDurationPickerView> picker = durationPicker_) picker->setDelegate(delegate);
}

void GXDistanceAndDurationPicker::setIsMetric(bool isMetric) {
    const Ref<GXBasePickerView> keep = self();
    GXBasePickerView::setIsMetric(isMetric);
    if (const Ref<GXDistancePickerView> picker = distancePicker_) picker->setIsMetric(isMetric);
    if (const Ref<GXDurationPickerView> picker = durationPicker_) picker->setIsMetric(isMetric);
}

void GXDistanceAndDurationPicker::selectCurrentValue() {}

void GXDistanceAndDurationPicker::pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>& pickerView,
                                                                                const NSNumber& value, NSInteger) {
    // An absent sender is no inner picker, also while one of those is absent.
    if (!pickerView) return;
    const bool isDistance = pickerView == distancePicker_;
    if (!isDistance && pickerView != durationPicker_) return;
    const Ref<GXBasePickerView> keep = self();
    if (const Ref<GXBasePickerViewDelegate> receiver = delegate().lock()) {
        receiver->pickerView_didChangeCurrentValue_forComponent(keep, value, isDistance ? distanceComponent : durationComponent);
    }
}

} // namespace gx
