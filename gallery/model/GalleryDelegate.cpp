#include "GalleryDelegate.h"

using namespace gx;

namespace gallery {

void GalleryDelegate::pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>&, const NSNumber& value,
                                                                    NSInteger component) {
    if (handler_) handler_(value, component);
}

} // namespace gallery
