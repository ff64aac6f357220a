#include "GXIconPickerView.h"

#include "GXWheelCalls.h"
#include "NSArithmetic.h"
#include "UIImageView.h"

namespace gx {

void GXIconPickerView::didInitialize() {
    GXBasePickerView::didInitialize();
    if (!givenRowHeight()) initGXIconPickerView();
}

void GXIconPickerView::initGXIconPickerView() { setIconImages(std::make_shared<const Images>()); }

void GXIconPickerView::setIconImages(Ref<const Images> images) {
    if (images == iconImages_) return;
    iconImages_ = std::move(images);
    reloadAllComponents(pickerView());
}

NSInteger GXIconPickerView::imageCount() const {
    const Ref<const Images>& images = iconImages();
    return images ? static_cast<NSInteger>(images->size()) : 0;
}

Ref<UIImage> GXIconPickerView::imageOfRow(NSInteger row) const {
    const NSInteger index = wrappingAdd(minValue().integerValue(), row);
    if (index < 0 || index >= imageCount()) return nullptr;
    return (*iconImages())[static_cast<std::size_t>(index)];
}

std::string GXIconPickerView::currentValueText() {
    const Ref<GXBasePickerView> keep = self();
    const NSInteger row = selectedRowInComponent(pickerView(), 0);
    return pickerView_accessibilityValueForRow_forComponent(pickerView(), row, 0).value_or(std::string());
}

// What the wheel queries

NSInteger GXIconPickerView::numberOfComponentsInPickerView(const Ref<UIPickerView>&) { return 1; }

NSInteger GXIconPickerView::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger) {
    return wrappingSubtract(imageCount(), minValue().integerValue());
}

std::optional<std::string> GXIconPickerView::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) {
    return std::nullopt;
}

CGFloat GXIconPickerView::pickerView_widthForComponent(const Ref<UIPickerView>&, NSInteger) {
    return pickerView() ? pickerView()->bounds().size.width : 0;
}

Ref<UIView> GXIconPickerView::pickerView_viewForRow_forComponent_reusingView(const Ref<UIPickerView>&, NSInteger row, NSInteger,
                                                                             const Ref<UIView>& view) {
    Ref<UIImageView> imageView = asKindOf<UIImageView>(view);
    if (!imageView) {
        const Ref<GXMultiValuePickerView> wheel = pickerView();
        imageView = create<UIImageView>(CGRect{{0, 0}, wheel ? wheel->rowSizeForComponent(0) : CGSize{}});
        imageView->setContentMode(UIViewContentModeScaleAspectFit);
    }
    imageView->setImage(imageOfRow(row));
    return imageView;
}

// Accessibility texts

std::optional<std::string> GXIconPickerView::pickerView_accessibilityValueForRow_forComponent(const Ref<UIPickerView>&, NSInteger row,
                                                                                              NSInteger) {
    const Ref<UIImage> image = imageOfRow(row);
    return image ? image->accessibilityLabel() : std::nullopt;
}

} // namespace gx
