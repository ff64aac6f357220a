#pragma once

#include "GXDistancePickerView.h"
#include "GXDurationPickerView.h"
#include "GXExport.h"

namespace gx {

/// Picks a workout's distance and duration, on two pickers side by side.
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
/// The two overlap by 25 points around the middle, where the one's unit ends and the other's wheels
/// begin; the duration lies on top.
class GX_EXPORT GXDistanceAndDurationPicker : public GXBasePickerView, public GXBasePickerViewDelegate {
public:
    /// The components of the notices that this picker passes on.
    static constexpr NSInteger distanceComponent = 0;
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
    virtual const Ref<GXDurationPickerView>& durationPicker() const { return durationPicker_; }
    virtual void setDurationPicker(Ref<GXDurationPickerView> picker);

    /// Places the inner pickers by the new bounds, each over its half and a little more.
    void setFrame(CGRect frame) override;
    /// The one selection indicator that spans both wheels, at the height of the distance's or,
    /// without a distance picker in this view, of the duration's.
    void drawRect(UIGraphicsContext& context, CGRect rect) override;
    /// Also hands the delegate, or nothing, to the inner pickers; from then on they no longer
    /// report here.
    void setDelegate(WeakRef<GXBasePickerViewDelegate> delegate) override;
    using GXBasePickerView::setDelegate;
    /// Also sets the flag of the inner pickers; the duration has no unit systems and only stores
    /// it.
    void setIsMetric(bool isMetric) override;
    /// Does nothing: there is no wheel to turn.
    void selectCurrentValue() override;

    /// What an inner picker reports goes to the delegate with this picker as the sender. The
    /// component that it names does not count, and other senders are ignored, such as an inner
    /// picker that was replaced.
    void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>& pickerView, const NSNumber& value,
                                                       NSInteger component) override;

protected:
    /// Does nothing, so that there is neither a wheel nor a range.
    void initGXBasePickerView() override;
    std::vector<Ref<GXBasePickerView>> innerPickers() const override;
    void didInitialize() override;
    virtual void initGXDistanceAndDurationPicker();

private:
    Ref<GXMultiValuePickerView> wheelInside(const Ref<GXBasePickerView>& picker) const;
    void moveSelectionIndicator(const Ref<GXBasePickerView>& from, const Ref<GXBasePickerView>& to);
    CGRect distanceFrame() const;
    CGRect durationFrame() const;

    Ref<GXDistancePickerView> distancePicker_;
    Ref<GXDurationPickerView> durationPicker_;
};

} // namespace gx
