#pragma once

#include <functional>
#include <vector>

#include "GXBasePickerView.h"

/// A picker's delegate that notes what it is told.
class PickerNotices : public gx::NSObject, public gx::GXBasePickerViewDelegate {
public:
    struct Notice {
        gx::Ref<gx::GXBasePickerView> picker;
        gx::NSNumber value;
        gx::NSInteger component;
    };
    std::vector<Notice> list;
    std::function<void(const Notice&)> whenTold;

    void pickerView_didChangeCurrentValue_forComponent(const gx::Ref<gx::GXBasePickerView>& picker, const gx::NSNumber& value,
                                                       gx::NSInteger component) override {
        list.push_back({picker, value, component});
        // The copy outlives whatever the action does to this delegate.
        const Notice notice = list.back();
        if (whenTold) whenTold(notice);
    }
};
