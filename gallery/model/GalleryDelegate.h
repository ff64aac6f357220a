#pragma once

#include <functional>
#include <utility>

#include <GXUIPickers/GXBasePickerViewDelegate.h>

namespace gallery {

/// Hands what a picker tells its delegate to a function.
class GalleryDelegate : public gx::NSObject, public gx::GXBasePickerViewDelegate {
public:
    using Handler = std::function<void(const gx::NSNumber& value, gx::NSInteger component)>;
    void setHandler(Handler handler) { handler_ = std::move(handler); }

    void pickerView_didChangeCurrentValue_forComponent(const gx::Ref<gx::GXBasePickerView>& pickerView, const gx::NSNumber& value,
                                                       gx::NSInteger component) override;

private:
    Handler handler_;
};

} // namespace gallery
