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

Ref<GXStyleSheetFont> fontOf(FuzzBytes& bytes) {
    if (bytes.flag()) return nullptr;
    return GXStyleSheetFont::fontWithFamily_size_weight_color("", bytes.number(), UIFontWeight{}, UIColor::labelColor());
}

Ref<const GXIconPickerView::Images> imagesOf(FuzzBytes& bytes) {
    if (bytes.below(4) == 0) return nullptr;
    auto images = std::make_shared<GXIconPickerView::Images>();
    for (unsigned left = bytes.below(12); left > 0; --left) {
        images->push_back(UIImage::imageWithPixels_width_height_scale(std::vector<std::uint8_t>(4), 1, 1, bytes.number()));
    }
    return images;
}

template <class T>
Ref<T> as(const Ref<GXBasePickerView>& picker) {
    return std::dynamic_pointer_cast<T>(picker);
}

/// What only pickers of this kind have.
void setOwnProperty(FuzzBytes& bytes, const Ref<GXBasePickerView>& picker) {
    const unsigned which = bytes.below(6);
    if (const auto weight = as<GXWeightPickerView>(picker)) {
        which % 2 ? weight->setWeightUnitSelectable(bytes.flag()) : weight->setWeightUnit(static_cast<NSUInteger>(bytes.integer()));
    } else if (const auto pace = as<GXPacePickerView>(picker)) {
        which % 2 ? pace->setMinutesStepSize(bytes.smallInteger()) : pace->setSecondsStepSize(bytes.smallInteger());
    } else if (const auto heart = as<GXHeartRatePickerView>(picker)) {
        if (which == 0) heart->setShouldShowNullValue(bytes.flag());
        if (which == 1) heart->setMinimumGapBetweenAvgAndMax(bytes.box());
        if (which % 2 == 0 && which > 0) heart->setCurrentAvgHeartRate(bytes.box());
        if (which % 2 == 1 && which > 1) heart->setCurrentMaxHeartRate(bytes.box());
    } else if (const auto duration = as<GXDurationPickerView>(picker)) {
        if (which < 3) duration->setType(bytes.below(4) == 0 ? bytes.integer() : bytes.below(3));
        if (which == 3) duration->setHoursStepSize(bytes.smallInteger());
        if (which == 4) duration->setMinutesStepSize(bytes.smallInteger());
        if (which == 5) duration->setSecondsStepSize(bytes.smallInteger());
    } else if (const auto distance = as<GXDistancePickerView>(picker)) {
        if (which < 3) distance->setNumberOfFractionUnits(bytes.smallInteger());
        if (which == 3) distance->setDistanceFormatter(nullptr);
        if (which == 4) distance->checkMetricAndInformDelegate(bytes.number());
    } else if (const auto speed = as<GXSpeedPickerView>(picker)) {
        if (which == 0) speed->setMinSpeedInMphOrKph(bytes.number());
        if (which == 1) speed->setMaxSpeedInMphOrKph(bytes.number());
        if (which == 2) speed->setCurrentSpeedInMphOrKph(bytes.number());
        if (which == 3) speed->setSpeedFormatter(nullptr);
        if (which == 4) speed->checkMetricAndInformDelegate(bytes.number());
    } else if (const auto calories = as<GXCaloriesPickerView>(picker)) {
        calories->setCaloriesFormatter(nullptr);
    } else if (const auto icon = as<GXIconPickerView>(picker)) {
        icon->setIconImages(imagesOf(bytes));
    } else if (const auto outdoors = as<GXWeatherAndTemperaturePickerView>(picker)) {
        if (which == 0) outdoors->setWeatherPicker(bytes.flag() ? create<GXIconPickerView>(bytes.rect()) : nullptr);
        if (which == 1) outdoors->setTemperaturePicker(bytes.flag() ? create<GXTemperaturePickerView>(bytes.rect()) : nullptr);
        if (which > 3) setSomething(bytes, outdoors->weatherPicker());
        if (which > 1) setSomething(bytes, outdoors->temperaturePicker());
    } else if (const auto course = as<GXDistanceAndDurationPicker>(picker)) {
        if (which == 0) course->setDistancePicker(bytes.flag() ? create<GXDistancePickerView>(bytes.rect()) : nullptr);
        if (which == 1) course->setDurationPicker(bytes.flag() ? create<GXDurationPickerView>(bytes.rect()) : nullptr);
        if (which > 3) setSomething(bytes, course->distancePicker());
        if (which > 1) setSomething(bytes, course->durationPicker());
    }
}

void setPickerProperty(FuzzBytes& bytes, const Ref<GXBasePickerView>& picker) {
    switch (bytes.below(16)) {
    case 0:
        return picker->setMinValue(bytes.box());
    case 1:
        return picker->setMaxValue(bytes.box());
    case 2:
        return picker->setStepSize(bytes.box());
    case 3:
    case 4:
        return picker->setCurrentValue(bytes.box());
    case 5:
        return picker->setIsMetric(bytes.flag());
    case 6:
        return picker->setCustomValueFont(fontOf(bytes));
    case 7:
        return picker->setCustomLabelFont(fontOf(bytes));
    case 8:
        return picker->selectCurrentValue();
    case 9:
        return picker->informDelegateOfValueChange();
    case 10:
        if (bytes.below(4) == 0) picker->setPickerView(bytes.flag() ? create<GXMultiValuePickerView>(bytes.rect()) : nullptr);
        return;
    default:
        return setOwnProperty(bytes, picker);
    }
}

void setHeightProperty(FuzzBytes& bytes, const Ref<GXHeightPickerView>& picker) {
    switch (bytes.below(8)) {
    case 0:
    case 1:
        return picker->setHeightInCm(bytes.number());
    case 2:
    case 3:
        return picker->setIsMetric(bytes.flag());
    case 4:
        return picker->reload();
    case 5:
        return picker->reload2ndStage();
    case 6:
        return picker->recalculateHeight();
    default:
        return picker->setupSelf();
    }
}

void setWheelProperty(FuzzBytes& bytes, const Ref<UIPickerView>& wheel) {
    switch (bytes.below(8)) {
    case 0:
        return wheel->setShowsSelectionIndicator(bytes.flag());
    case 1:
        return wheel->reloadAllComponents();
    case 2:
        return wheel->reloadComponent(bytes.integer());
    case 3:
        return wheel->setDelegate({});
    default:
        break;
    }
    const auto labelled = std::dynamic_pointer_cast<GXMultiValuePickerView>(wheel);
    if (!labelled) return;
    switch (bytes.below(5)) {
    case 0:
        return labelled->setLeftLabelText(bytes.text());
    case 1:
        return labelled->setRightLabelText(bytes.text());
    case 2:
        return labelled->setSeparatorText_afterComponent(":", static_cast<NSUInteger>(bytes.integer()));
    case 3:
        return labelled->setCustomLabelFont(fontOf(bytes));
    default:
        return labelled->reloadLabelFrames();
    }
}

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

void setSomething(FuzzBytes& bytes, const Ref<UIView>& view) {
    if (!view) return;
    switch (bytes.below(16)) {
    case 0:
        return view->setFrame(bytes.rect());
    case 1:
        return view->setBounds(bytes.rect());
    case 2:
        return view->setHidden(bytes.flag());
    case 3:
        return view->setAlpha(bytes.number());
    case 4:
        return view->setCornerRadius(bytes.number());
    case 5:
        return view->setTintColor(bytes.flag() ? std::optional(UIColor::blackColor()) : std::nullopt);
    default:
        break;
    }
    const Ref<GXBasePickerView> picker = pickerOf(view);
    const Ref<UIPickerView> wheel = wheelOf(view);
    if (const auto height = std::dynamic_pointer_cast<GXHeightPickerView>(wheel)) {
        setHeightProperty(bytes, height);
    } else if (picker && bytes.below(8) > 0) {
        setPickerProperty(bytes, picker);
    } else if (wheel) {
        setWheelProperty(bytes, wheel);
    }
}

void askSomething(FuzzBytes& bytes, const Ref<UIView>& view) {
    const Ref<UIPickerView> wheel = wheelOf(view);
    const NSInteger row = bytes.integer();
    const NSInteger component = bytes.integer();
    if (const Ref<GXBasePickerView> picker = pickerOf(view); picker && bytes.flag()) {
        picker->pickerView_numberOfRowsInComponent(wheel, component);
        picker->pickerView_titleForRow_forComponent(wheel, row, component);
        picker->pickerView_widthForComponent(wheel, component);
        picker->pickerView_rowHeightForComponent(wheel, component);
        picker->pickerView_viewForRow_forComponent_reusingView(wheel, row, component, nullptr);
        return;
    }
    if (!wheel) return;
    wheel->numberOfRowsInComponent(component);
    wheel->rowSizeForComponent(component);
    wheel->selectedRowInComponent(component);
    wheel->viewForRow_forComponent(row, component);
    wheel->rowInBandOfComponent(component);
    wheel->componentOfKeys();
}
