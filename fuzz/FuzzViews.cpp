#include "FuzzViews.h"

#include "GXBpmPickerCell.h"
#include "GXBpmPickerView.h"
#include "GXCaloriesPickerCell.h"
#include "GXCaloriesPickerView.h"
#include "GXDistanceAndDurationCell.h"
#include "GXDistanceAndDurationPicker.h"
#include "GXDistancePickerCell.h"
#include "GXDurationPickerCell.h"
#include "GXHeartRatePickerCell.h"
#include "GXHeartRatePickerView.h"
#include "GXHeightPickerCell.h"
#include "GXPacePickerCell.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerCell.h"
#include "GXSpeedPickerView.h"
#include "GXTemperaturePickerCell.h"
#include "GXWeatherAndTemperaturePickerCell.h"
#include "GXWeatherAndTemperaturePickerView.h"
#include "GXWeightPickerCell.h"
#include "GXWeightPickerView.h"
#include "UIImageView.h"
#include "UITableView.h"
#include "UIWindow.h"

using namespace gx;

namespace {

constexpr CGRect usual = {{0, 0}, {320, 216}};

/// With a row height of its own if asked for, as far as the class has that.
template <class T>
Ref<UIView> made(FuzzBytes& bytes) {
    const CGRect frame = bytes.below(4) == 0 ? bytes.rect() : usual;
    if constexpr (std::is_base_of_v<UITableViewCell, T>) {
        const auto style = bytes.flag() ? UITableViewCellStyleValue1 : UITableViewCellStyleDefault;
        if (bytes.flag()) return create<T>(style, std::optional<std::string>(bytes.text()));
    } else if constexpr (std::is_base_of_v<GXBasePickerView, T>) {
        if (bytes.below(4) == 0) return create<T>(frame, bytes.smallNumber());
    }
    return create<T>(frame);
}

template <class T>
Ref<UIView> restored(const Ref<NSCoder>& coder) {
    return create<T>(coder);
}

using Maker = Ref<UIView> (*)(FuzzBytes&);
using Restorer = Ref<UIView> (*)(const Ref<NSCoder>&);

constexpr Maker makers[] = {
    made<GXBpmPickerView>,
    made<GXCaloriesPickerView>,
    made<GXDistancePickerView>,
    made<GXDurationPickerView>,
    made<GXHeartRatePickerView>,
    made<GXIconPickerView>,
    made<GXPacePickerView>,
    made<GXSpeedPickerView>,
    made<GXTemperaturePickerView>,
    made<GXWeightPickerView>,
    made<GXDistanceAndDurationPicker>,
    made<GXWeatherAndTemperaturePickerView>,
    made<GXHeightPickerView>,
    made<GXBasePickerView>,
    made<UIPickerView>,
    made<GXMultiValuePickerView>,
    made<GXBpmPickerCell>,
    made<GXCaloriesPickerCell>,
    made<GXDistancePickerCell>,
    made<GXDurationPickerCell>,
    made<GXHeartRatePickerCell>,
    made<GXPacePickerCell>,
    made<GXSpeedPickerCell>,
    made<GXTemperaturePickerCell>,
    made<GXWeightPickerCell>,
    made<GXDistanceAndDurationCell>,
    made<GXWeatherAndTemperaturePickerCell>,
    made<GXHeightPickerCell>,
    made<GXBasePickerCell>,
};

constexpr Restorer restorers[] = {
    restored<UIView>,
    restored<UILabel>,
    restored<UIImageView>,
    restored<UIScrollView>,
    restored<UITableView>,
    restored<UITableViewCell>,
    restored<UIWindow>,
    restored<UIPickerView>,
    restored<GXMultiValuePickerView>,
    restored<GXBasePickerView>,
    restored<GXBpmPickerView>,
    restored<GXCaloriesPickerView>,
    restored<GXDistancePickerView>,
    restored<GXDurationPickerView>,
    restored<GXHeartRatePickerView>,
    restored<GXIconPickerView>,
    restored<GXPacePickerView>,
    restored<GXSpeedPickerView>,
    restored<GXTemperaturePickerView>,
    restored<GXWeightPickerView>,
    restored<GXDistanceAndDurationPicker>,
    restored<GXWeatherAndTemperaturePickerView>,
    restored<GXHeightPickerView>,
    restored<GXBpmPickerCell>,
    restored<GXCaloriesPickerCell>,
    restored<GXDistancePickerCell>,
    restored<GXDurationPickerCell>,
    restored<GXHeartRatePickerCell>,
    restored<GXPacePickerCell>,
    restored<GXSpeedPickerCell>,
    restored<GXTemperaturePickerCell>,
    restored<GXWeightPickerCell>,
    restored<GXDistanceAndDurationCell>,
    restored<GXWeatherAndTemperaturePickerCell>,
    restored<GXHeightPickerCell>,
    restored<GXBasePickerCell>,
};

} // namespace

Ref<UIView> makeView(FuzzBytes& bytes) { return makers[bytes.below(static_cast<unsigned>(std::size(makers)))](bytes); }

Ref<UIView> makeViewWithCoder(FuzzBytes& bytes, const Ref<NSCoder>& coder) {
    return restorers[bytes.below(static_cast<unsigned>(std::size(restorers)))](coder);
}

Ref<GXBasePickerView> pickerOf(const Ref<UIView>& view) {
    if (const auto cell = std::dynamic_pointer_cast<GXBasePickerCell>(view)) return cell->pickerView();
    return std::dynamic_pointer_cast<GXBasePickerView>(view);
}

Ref<UIPickerView> wheelOf(const Ref<UIView>& view) {
    if (const auto cell = std::dynamic_pointer_cast<GXHeightPickerCell>(view)) return cell->pickerView();
    if (const auto picker = pickerOf(view)) return picker->pickerView();
    return std::dynamic_pointer_cast<UIPickerView>(view);
}
