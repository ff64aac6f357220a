#include "FuzzProperties.h"

#include "FuzzViews.h"
#include "GXCaloriesPickerView.h"
#include "GXDistanceAndDurationPicker.h"
#include "GXHeartRatePickerView.h"
#include "GXHeightPickerView.h"
#include "GXLocalization.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXStyleSheet.h"
#include "GXWeatherAndTemperaturePickerView.h"
#include "GXWeightPickerView.h"
#include "NSLocale.h"
#include "UIWindow.h"

using namespace gx;

namespace {

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

// What is set is not held meanwhile: a callback may drop it, as an application
// may.

template <class T>
T* as(GXBasePickerView* picker) {
    return dynamic_cast<T*>(picker);
}

/// To make a picker calls the application's wheels, and these may drop the composite that it is
/// for.
template <class Outer, class Inner>
void replaceInner(FuzzBytes& bytes, Outer* outer, void (Outer::*set)(Ref<Inner>)) {
    const WeakRef<Outer> seen = refTo(outer);
    const Ref<Inner> inner = bytes.flag() ? create<Inner>(bytes.rect()) : nullptr;
    if (!seen.expired()) (outer->*set)(inner);
}

/// What only pickers of this kind have.
void setOwnProperty(FuzzBytes& bytes, GXBasePickerView* picker) {
    const unsigned which = bytes.below(6);
    if (auto* const weight = as<GXWeightPickerView>(picker)) {
        which % 2 ? weight->setWeightUnitSelectable(bytes.flag()) : weight->setWeightUnit(static_cast<NSUInteger>(bytes.integer()));
    } else if (auto* const pace = as<GXPacePickerView>(picker)) {
        which % 2 ? pace->setMinutesStepSize(bytes.smallInteger()) : pace->setSecondsStepSize(bytes.smallInteger());
    } else if (auto* const heart = as<GXHeartRatePickerView>(picker)) {
        if (which == 0) heart->setShouldShowNullValue(bytes.flag());
        if (which == 1) heart->setMinimumGapBetweenAvgAndMax(bytes.box());
        if (which % 2 == 0 && which > 0) heart->setCurrentAvgHeartRate(bytes.box());
        if (which % 2 == 1 && which > 1) heart->setCurrentMaxHeartRate(bytes.box());
    } else if (auto* const duration = as<GXDurationPickerView>(picker)) {
        if (which < 3) duration->setType(bytes.below(4) == 0 ? bytes.integer() : bytes.below(3));
        if (which == 3) duration->setHoursStepSize(bytes.smallInteger());
        if (which == 4) duration->setMinutesStepSize(bytes.smallInteger());
        if (which == 5) duration->setSecondsStepSize(bytes.smallInteger());
    } else if (auto* const distance = as<GXDistancePickerView>(picker)) {
        if (which < 3) distance->setNumberOfFractionUnits(bytes.smallInteger());
        if (which == 3) distance->setDistanceFormatter(nullptr);
        if (which == 4) distance->checkMetricAndInformDelegate(bytes.number());
    } else if (auto* const speed = as<GXSpeedPickerView>(picker)) {
        if (which == 0) speed->setMinSpeedInMphOrKph(bytes.number());
        if (which == 1) speed->setMaxSpeedInMphOrKph(bytes.number());
        if (which == 2) speed->setCurrentSpeedInMphOrKph(bytes.number());
        if (which == 3) speed->setSpeedFormatter(nullptr);
        if (which == 4) speed->checkMetricAndInformDelegate(bytes.number());
    } else if (auto* const calories = as<GXCaloriesPickerView>(picker)) {
        calories->setCaloriesFormatter(nullptr);
    } else if (auto* const icon = as<GXIconPickerView>(picker)) {
        icon->setIconImages(imagesOf(bytes));
    } else if (auto* const outdoors = as<GXWeatherAndTemperaturePickerView>(picker)) {
        if (which == 0) replaceInner(bytes, outdoors, &GXWeatherAndTemperaturePickerView::setWeatherPicker);
        if (which == 1) replaceInner(bytes, outdoors, &GXWeatherAndTemperaturePickerView::setTemperaturePicker);
        if (which > 3) setSomething(bytes, outdoors->weatherPicker().get());
        if (which == 2 || which == 3) setSomething(bytes, outdoors->temperaturePicker().get());
    } else if (auto* const course = as<GXDistanceAndDurationPicker>(picker)) {
        if (which == 0) replaceInner(bytes, course, &GXDistanceAndDurationPicker::setDistancePicker);
        if (which == 1) replaceInner(bytes, course, &GXDistanceAndDurationPicker::setDurationPicker);
        if (which > 3) setSomething(bytes, course->distancePicker().get());
        if (which == 2 || which == 3) setSomething(bytes, course->durationPicker().get());
    }
}

void setPickerProperty(FuzzBytes& bytes, GXBasePickerView* picker) {
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
        return bytes.flag() ? picker->reloadData() : picker->selectCurrentValue();
    case 9:
        return picker->informDelegateOfValueChange();
    case 10:
        if (bytes.below(4) == 0) picker->setPickerView(bytes.flag() ? create<GXMultiValuePickerView>(bytes.rect()) : nullptr);
        return;
    default:
        return setOwnProperty(bytes, picker);
    }
}

void setHeightProperty(FuzzBytes& bytes, GXHeightPickerView* picker) {
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

void setWheelProperty(FuzzBytes& bytes, UIPickerView* wheel) {
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
    auto* const labelled = dynamic_cast<GXMultiValuePickerView*>(wheel);
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

void setSomething(FuzzBytes& bytes, UIView* view) {
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
    GXBasePickerView* const picker = pickerOf(refTo(view)).get();
    UIPickerView* const wheel = wheelOf(refTo(view)).get();
    if (auto* const height = dynamic_cast<GXHeightPickerView*>(wheel)) {
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
    wheel->rowInSelectionIndicatorOfComponent(component);
    wheel->componentOfKeys();
}

void setWindowProperty(FuzzBytes& bytes, const Ref<UIWindow>& window) {
    switch (bytes.below(8)) {
    case 0:
        return window->setReceivesKeys(bytes.flag());
    case 1:
        return window->setFrame(bytes.rect());
    case 2:
        return window->setUserInterfaceStyle(bytes.flag() ? UIUserInterfaceStyle::Dark : UIUserInterfaceStyle::Light);
    case 3:
        return window->setAccessibilityContrast(bytes.flag() ? UIAccessibilityContrast::High : UIAccessibilityContrast::Normal);
    case 4:
        return window->setFeedbackEnabled(bytes.flag());
    case 5:
        return window->finishAnimations();
    default:
        return window->setReducesMotion(bytes.flag());
    }
}

void setSurroundings(FuzzBytes& bytes) {
    constexpr std::array<const char*, 6> languages = {"en", "de", "ar_EG", "zh-Hans", "", "xx"};
    const std::string language = languages[bytes.below(languages.size())];
    switch (bytes.below(7)) {
    case 0:
        return GXLocalization::sharedLocalization()->setLanguage(language);
    case 1:
        return NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier(language));
    case 2:
        return NSLocale::currentLocale()->setDecimalSeparator(bytes.typedText());
    case 3:
        return NSLocale::currentLocale()->setCharacterDirection(bytes.flag() ? NSLocaleLanguageDirection::RightToLeft
                                                                             : NSLocaleLanguageDirection::LeftToRight);
    case 4:
        return GXStyleSheet::globalStyleSheet()->setTextScale(bytes.number());
    case 5:
        return GXStyleSheet::setGlobalStyleSheet(nullptr);
    default:
        return GXLocalization::setSharedLocalization(nullptr);
    }
}

void restoreSurroundings() {
    NSLocale::setCurrentLocale(nullptr);
    GXLocalization::setSharedLocalization(nullptr);
    GXStyleSheet::setGlobalStyleSheet(nullptr);
}
