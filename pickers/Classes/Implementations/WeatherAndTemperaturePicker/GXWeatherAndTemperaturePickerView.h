#pragma once

#include "GXCompositePickerView.h"
#include "GXExport.h"
#include "GXIconPickerView.h"
#include "GXTemperaturePickerView.h"

namespace gx {

/// Picks a workout's weather: an icon and a temperature, on two pickers with rows of the same
/// height. They are side by side or, if the user's text size needs it and the height allows it, one
/// above the other (see `GXCompositePickerView`).
///
/// It has no wheel and no numbers of its own: the images, the chosen index and the temperature
/// belong to the inner pickers and are set there. Its own setters of numbers and fonts only store,
/// and show nothing.
///
/// It sends no notices itself, but hands its delegate to the inner pickers. They report straight to
/// that, each as the sender and for component 0, so compare the sender with `weatherPicker` and
/// `temperaturePicker`. Before `setDelegate`, nothing is reported.
///
/// Side by side, the two meet 30 points left of the middle. In less than 60 points there is no room
/// for the icons: the weather picker's frame then has a negative width.
class GX_EXPORT GXWeatherAndTemperaturePickerView : public GXCompositePickerView {
public:
    /// Held strongly. It has no rows until it is given its images. The setters of both pickers
    /// store only: neither subviews nor frames, delegate or unit system follow. Without one, what
    /// concerns it does nothing.
    virtual const Ref<GXIconPickerView>& weatherPicker() const { return weatherPicker_; }
    virtual void setWeatherPicker(Ref<GXIconPickerView> picker) { weatherPicker_ = std::move(picker); }
    /// The temperature, on the right or below; set as the weather is.
    virtual const Ref<GXTemperaturePickerView>& temperaturePicker() const { return temperaturePicker_; }
    virtual void setTemperaturePicker(Ref<GXTemperaturePickerView> picker) { temperaturePicker_ = std::move(picker); }

protected:
    void didInitialize() override;
    Ref<GXBasePickerView> innerPicker(Place place) const override;
    CGRect frameSideBySide(Place place, CGRect bounds) const override;
    /// Makes the inner pickers. Their rows have the height given to the initialiser, else the
    /// style sheet's for images.
    virtual void initGXWeatherAndTemperaturePickerViewWithRowHeight(float rowHeight);
    /// The style sheet's, also where the initialiser was given one: that is the inner pickers'.
    float initialRowHeight() const override;

private:
    Ref<GXIconPickerView> weatherPicker_;
    Ref<GXTemperaturePickerView> temperaturePicker_;
};

} // namespace gx
