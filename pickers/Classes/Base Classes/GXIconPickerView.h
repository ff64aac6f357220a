#pragma once

#include <vector>

#include "GXBasePickerView.h"
#include "GXExport.h"
#include "UIImage.h"

namespace gx {

/// Picks one image out of a list, such as a weather icon. The value is the image's index in the
/// list.
///
/// Row r shows image minimum + r: the minimum hides the images before it, and keeping it within the
/// list is the application's duty.
/// - Beyond the list there are no rows; a negative minimum brings rows without an image before the
///   first.
/// - The maximum plays no part.
/// - The values follow the base picker's step while the images do not, so leave that at 1.
class GX_EXPORT GXIconPickerView : public GXBasePickerView {
public:
    /// The list of images; its entries may be empty.
    using Images = std::vector<Ref<UIImage>>;

    /// The images to pick from, shared with the application; an empty entry shows nothing. The
    /// setter does nothing for the very list that is held already; any other one, also of the same
    /// images, reloads the wheel. The selection stays.
    virtual const Ref<const Images>& iconImages() const { return iconImages_; }
    virtual void setIconImages(Ref<const Images> images);

    /// What the chosen image's own label says; empty for one without.
    std::string currentValueText() override;

    // What the wheel queries

    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>& pickerView) override;
    /// The images from the minimum on; negative for a minimum beyond the list.
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    /// None.
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                   NSInteger component) override;
    /// The whole width of the picker's own wheel, 0 without one.
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>& pickerView, NSInteger component) override;
    /// An image view that keeps the image's shape; the one offered, if it is one.
    Ref<UIView> pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>& pickerView, NSInteger row, NSInteger component,
                                                               const Ref<UIView>& view) override;
    /// What the image's own label says; nothing for one without.
    std::optional<std::string> pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>& pickerView, NSInteger row,
                                                                                NSInteger component) override;

protected:
    void didInitialize() override;
    /// Gives it an empty list. One made with a row height has none, which shows the same: no rows.
    virtual void initGXIconPickerView();
    std::optional<GXAccessibilityName> accessibilityMeasurement() const override { return GXAccessibilityName::Icon; }

private:
    NSInteger imageCount() const;
    Ref<UIImage> imageOfRow(NSInteger row) const;

    Ref<const Images> iconImages_;
};

} // namespace gx
