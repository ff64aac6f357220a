#pragma once

#include "GXCompositePickerView.h"
#include "GXDistancePickerView.h"
#include "GXDurationPickerView.h"
#include "GXExport.h"

namespace gx {

/// Picks a workout's distance and duration, on two pickers side by side or, if the user's text size
/// needs it and the height allows it, one above the other (see `GXCompositePickerView`).
///
/// It has no wheel and no numbers of its own: range, step and value belong to the inner pickers, in
/// metres and milliseconds, and are set there. Its own setters of numbers and fonts only store, and
/// show nothing.
///
/// Notices:
/// - After `setDelegate` the inner pickers report straight to that delegate. The sender is the
///   inner picker and the component is 0 for both, so compare the sender with `distancePicker` and
///   `durationPicker`.
/// - Before, they report to this picker, which passes it on to a delegate as its own notice:
///   component 0 for the distance, 1 for the duration.
///
/// Side by side, the two overlap by 25 points around the middle, where the one's unit ends and the
/// other's wheels begin; the duration lies on top.
class GX_EXPORT GXDistanceAndDurationPicker : public GXCompositePickerView, public GXBasePickerViewDelegate {
public:
    /// The components of the notices that this picker passes on.
    static constexpr NSInteger distanceComponent = 0;
    /// The duration, in milliseconds.
    static constexpr NSInteger durationComponent = 1;

    /// Made by `initWithFrame` and `initWithCoder`; one made with a row height has none until the
    /// application gives it some. Held strongly.
    ///
    /// The setters store: neither subviews nor frames, delegate or unit system follow. Without one,
    /// what concerns it is a no-op.
    ///
    /// Only the selection indicator follows, so that there is one across both wheels: the new
    /// picker's wheel hides its own. That of the picker before shows its own again, if it was
    /// removed from this view first.
    virtual const Ref<GXDistancePickerView>& distancePicker() const { return distancePicker_; }
    virtual void setDistancePicker(Ref<GXDistancePickerView> picker);
    /// The same for the duration, on the right or below.
    virtual const Ref<GXDurationPickerView>& durationPicker() const { return durationPicker_; }
    virtual void setDurationPicker(Ref<GXDurationPickerView> picker);

    /// The one selection indicator that spans both wheels side by side, at the height of the
    /// distance's or, without a distance picker in this view, of the duration's. Stacked wheels
    /// have their own.
    void drawRect(UIGraphicsContext& context, CGRect rect) override;
    /// Does nothing: there is no wheel to turn.
    void selectCurrentValue() override;

    /// What an inner picker reports goes to the delegate with this picker as the sender. The
    /// component that it names does not count, and other senders are ignored, such as an inner
    /// picker that was replaced.
    void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>& pickerView, const NSNumber& value,
                                                       NSInteger component) override;

protected:
    void didInitialize() override;
    Ref<GXBasePickerView> innerPicker(Place place) const override;
    /// Each picker over its half and a little more.
    CGRect frameSideBySide(Place place, CGRect bounds) const override;
    void stackingDidChange() override;
    /// Makes the two inner pickers and adds them, this picker as their delegate.
    virtual void initGXDistanceAndDurationPicker();

private:
    Ref<GXMultiValuePickerView> wheelInside(const Ref<GXBasePickerView>& picker) const;
    void moveSelectionIndicator(const Ref<GXBasePickerView>& from, const Ref<GXBasePickerView>& to);

    Ref<GXDistancePickerView> distancePicker_;
    Ref<GXDurationPickerView> durationPicker_;
};

} // namespace gx
