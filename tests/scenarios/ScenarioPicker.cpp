#include "ScenarioPicker.h"

#include <gtest/gtest.h>

#include "GXBpmPickerView.h"
#include "GXCaloriesPickerView.h"
#include "GXDistanceAndDurationPicker.h"
#include "GXDistancePickerView.h"
#include "GXDurationPickerView.h"
#include "GXDurationType.h"
#include "GXHeartRatePickerView.h"
#include "GXPacePickerView.h"
#include "GXSpeedPickerView.h"
#include "GXTemperaturePickerView.h"
#include "GXWeatherAndTemperaturePickerView.h"
#include "GXWeightPickerView.h"
#include "ScenarioWheel.h"

using namespace gx;

namespace scenarios {

namespace {

NSNumber number(const Json& value) { return NSNumber::numberWithDouble(value.get<double>()); }
NSNumber whole(const Json& value) { return NSNumber::numberWithInt(value.get<std::int32_t>()); }
std::int32_t narrow(const Json& value) { return value.get<std::int32_t>(); }
bool isMetric(const Json& unit) { return unit == "metric"; }
Json nameOfUnit(bool isMetric) { return isMetric ? "metric" : "imperial"; }

Ref<const GXIconPickerView::Images> imagesOf(const Json& labels) {
    auto images = std::make_shared<GXIconPickerView::Images>();
    for (const Json& label : labels) {
        const Ref<UIImage> image = UIImage::imageWithHostHandle_size(static_cast<std::int64_t>(images->size()), {24, 24});
        image->setAccessibilityLabel(label.get<std::string>());
        images->push_back(image);
    }
    return images;
}

} // namespace

void ScenarioPicker::set(const std::string& name, const Json& value) {
    const auto setter = setters_.find(name);
    ASSERT_NE(setter, setters_.end()) << "no property " << name;
    setter->second(value);
}

Json ScenarioPicker::values() const {
    Json values = Json::object();
    for (const auto& [name, getter] : values_) values[name] = getter();
    return values;
}

/// Fills in a picker of one kind. What decides what is shown selects the present value again, as an
/// application does.
class ScenarioPickerMaker {
public:
    explicit ScenarioPickerMaker(ScenarioPicker& made) : made_(made) {}

    template <class Picker>
    Ref<Picker> base() {
        const auto picker = create<Picker>(CGRectZero);
        whole(*picker);
        return picker;
    }
    void whole(GXBasePickerView& picker) {
        made_.view_ = refTo<UIView>(&picker);
        made_.text_ = [&picker] { return picker.currentValueText(); };
        made_.reload_ = [&picker] { picker.reloadData(); };
        picker.setDelegate(Ref<GXBasePickerViewDelegate>(refTo(&made_)));
    }
    void option(const std::string& name, std::function<void(const Json&)> setter, GXBasePickerView& picker) {
        made_.setters_[name] = [setter = std::move(setter), &picker](const Json& value) {
            setter(value);
            picker.setCurrentValue(picker.currentValue());
        };
    }
    void range(GXBasePickerView& picker, const std::string& minimum = "min", const std::string& maximum = "max") {
        option(
            minimum, [&](const Json& value) { picker.setMinValue(number(value)); }, picker);
        option(
            maximum, [&](const Json& value) { picker.setMaxValue(number(value)); }, picker);
    }
    void step(GXBasePickerView& picker) {
        option(
            "step", [&](const Json& value) { picker.setStepSize(number(value)); }, picker);
    }
    void value(GXBasePickerView& picker, const std::string& name = "value") {
        made_.setters_[name] = [&picker](const Json& value) { picker.setCurrentValue(number(value)); };
        made_.values_.emplace_back(name, [&picker] { return Json(picker.currentValue().doubleValue()); });
    }
    /// The unit is metric unless a scenario says otherwise.
    void unit(GXBasePickerView& picker) { unitOfInner(picker, picker); }
    /// The unit of the whole, after which an inner picker selects its value again.
    void unitOfInner(GXBasePickerView& picker, GXBasePickerView& inner) {
        option(
            "unit", [&](const Json& value) { picker.setIsMetric(isMetric(value)); }, inner);
        made_.values_.emplace_back("unit", [&inner] { return nameOfUnit(inner.isMetric()); });
        made_.set("unit", "metric");
    }
    void rangeAndValue(GXBasePickerView& picker) {
        range(picker);
        value(picker);
    }
    void fraction(GXDistancePickerView& picker) {
        option(
            "fraction-digits", [&](const Json& value) { picker.setNumberOfFractionUnits(narrow(value)); }, picker);
    }
    void duration(GXDurationPickerView& picker) {
        const std::map<std::string, NSInteger> layouts = {{"hours-minutes", GXDurationTypeHoursMinutes},
                                                          {"hours-minutes-seconds", GXDurationTypeHoursMinutesSeconds},
                                                          {"minutes-seconds", GXDurationTypeMinutesSeconds}};
        option(
            "layout", [&picker, layouts](const Json& name) { picker.setType(layouts.at(name.get<std::string>())); }, picker);
        option(
            "hours-step", [&](const Json& value) { picker.setHoursStepSize(narrow(value)); }, picker);
        option(
            "minutes-step", [&](const Json& value) { picker.setMinutesStepSize(narrow(value)); }, picker);
        option(
            "seconds-step", [&](const Json& value) { picker.setSecondsStepSize(narrow(value)); }, picker);
    }

    void distanceAndDuration();
    void heartRate();
    void height();
    void icon(const Json& options);
    void weatherAndTemperature(const Json& options);
    void weight();
    void wheel(const Json& options);

private:
    ScenarioPicker& made_;
};

void ScenarioPickerMaker::distanceAndDuration() {
    const auto picker = base<GXDistanceAndDurationPicker>();
    GXDistancePickerView& distance = *picker->distancePicker();
    GXDurationPickerView& time = *picker->durationPicker();
    fraction(distance);
    duration(time);
    range(distance, "min-distance", "max-distance");
    range(time, "min-duration", "max-duration");
    unitOfInner(*picker, distance);
    value(distance, "distance");
    value(time, "duration");
}

void ScenarioPickerMaker::heartRate() {
    GXHeartRatePickerView& picker = *base<GXHeartRatePickerView>();
    const auto selecting = [&picker](std::function<void(const Json&)> setter) {
        return [setter = std::move(setter), &picker](const Json& value) {
            setter(value);
            picker.setCurrentAvgHeartRate(picker.currentAvgHeartRate());
            picker.setCurrentMaxHeartRate(picker.currentMaxHeartRate());
        };
    };
    auto& setters = made_.setters_;
    setters["min"] = selecting([&](const Json& value) { picker.setMinValue(number(value)); });
    setters["max"] = selecting([&](const Json& value) { picker.setMaxValue(number(value)); });
    setters["gap"] = selecting([&](const Json& value) { picker.setMinimumGapBetweenAvgAndMax(scenarios::whole(value)); });
    setters["no-null-row"] = selecting([&](const Json& value) {
        picker.setShouldShowNullValue(!value.get<bool>());
        picker.reloadData();
    });
    setters["average"] = [&](const Json& value) { picker.setCurrentAvgHeartRate(scenarios::whole(value)); };
    setters["maximum"] = [&](const Json& value) { picker.setCurrentMaxHeartRate(scenarios::whole(value)); };
    made_.values_.emplace_back("average", [&picker] { return Json(picker.currentAvgHeartRate().doubleValue()); });
    made_.values_.emplace_back("maximum", [&picker] { return Json(picker.currentMaxHeartRate().doubleValue()); });
}

void ScenarioPickerMaker::height() {
    const auto made = create<GXHeightPickerView>(CGRectZero);
    GXHeightPickerView& picker = *made;
    made_.view_ = made;
    made_.text_ = [&picker] { return picker.currentValueText(); };
    made_.reload_ = [&picker] { picker.reloadData(); };
    picker.setHeightDelegate(Ref<GXHeightPickerViewDelegate>(refTo(&made_)));
    made_.setters_["unit"] = [&](const Json& unit) { picker.setIsMetric(isMetric(unit)); };
    made_.setters_["value"] = [&](const Json& value) { picker.setHeightInCm(value.get<double>()); };
    made_.values_.emplace_back("unit", [&picker] { return nameOfUnit(picker.isMetric()); });
    made_.values_.emplace_back("value", [&picker] { return Json(picker.heightInCm()); });
    made_.set("unit", "metric");
}

void ScenarioPickerMaker::icon(const Json& options) {
    GXIconPickerView& picker = *base<GXIconPickerView>();
    picker.setIconImages(imagesOf(options.at("icons")));
    option(
        "min", [&](const Json& minimum) { picker.setMinValue(number(minimum)); }, picker);
    value(picker);
}

void ScenarioPickerMaker::weatherAndTemperature(const Json& options) {
    const auto picker = base<GXWeatherAndTemperaturePickerView>();
    picker->weatherPicker()->setIconImages(imagesOf(options.at("icons")));
    GXTemperaturePickerView& temperature = *picker->temperaturePicker();
    range(temperature);
    step(temperature);
    unitOfInner(*picker, temperature);
    value(*picker->weatherPicker(), "weather");
    value(temperature, "temperature");
}

void ScenarioPickerMaker::weight() {
    GXWeightPickerView& picker = *base<GXWeightPickerView>();
    const std::vector<std::string> units = {"kg", "lb", "st"};
    range(picker);
    option(
        "unit",
        [&picker, units](const Json& name) {
            picker.setWeightUnit(static_cast<NSUInteger>(std::find(units.begin(), units.end(), name.get<std::string>()) - units.begin()));
            picker.updateMinMaxWeight();
        },
        picker);
    option(
        "unit-selectable", [&](const Json& value) { picker.setWeightUnitSelectable(value.get<bool>()); }, picker);
    made_.values_.emplace_back("unit", [&picker, units] { return Json(units.at(picker.weightUnit())); });
    value(picker);
}

void ScenarioPickerMaker::wheel(const Json& options) {
    const auto source = create<ScenarioWheel>();
    for (const Json& given : options.at("columns")) {
        ScenarioWheel::Column& column = source->columns.emplace_back();
        const Json& rows = given.at("rows");
        if (rows.is_array()) column.titles = rows.get<std::vector<std::string>>();
        column.rows = rows.is_array() ? static_cast<NSInteger>(rows.size()) : rows.get<NSInteger>();
        column.label = given.at("label").get<std::string>();
    }
    source->didSelect = [&made = made_] { made.hasReported_ = true; };
    const Ref<GXMultiValuePickerView> wheel = GXMultiValuePickerView::wheelWithFrame(CGRectZero);
    wheel->setDelegate(source);
    wheel->setDataSource(Ref<UIPickerViewDataSource>(source));
    wheel->reloadAllComponents();
    made_.source_ = source;
    made_.view_ = wheel;
    const auto rowsOf = [&view = *wheel](NSInteger (UIPickerView::*row)(NSInteger)) {
        Json list = Json::array();
        for (NSInteger i = 0; i < view.numberOfComponents(); ++i) list.push_back((view.*row)(i));
        return list;
    };
    made_.setters_["rows"] = [&view = *wheel](const Json& list) {
        for (std::size_t i = 0; i < list.size(); ++i)
            view.selectRow_inComponent_animated(list[i].get<NSInteger>(), static_cast<NSInteger>(i), false);
    };
    made_.values_.emplace_back("rows", [rowsOf] { return rowsOf(&UIPickerView::rowInSelectionIndicatorOfComponent); });
    made_.selectedRows_ = [rowsOf] { return rowsOf(&UIPickerView::selectedRowInComponent); };
    made_.reload_ = [&view = *wheel] { view.reloadAllComponents(); };
    made_.text_ = [&view = *wheel, &columns = *source] {
        std::string text;
        for (NSInteger i = 0; i < view.numberOfComponents(); ++i)
            text += (i > 0 ? " " : "") + *columns.pickerView_titleForRow_forComponent(nullptr, view.selectedRowInComponent(i), i);
        return text;
    };
}

namespace {

using Fill = void (*)(ScenarioPickerMaker&, const Json& options);

std::map<std::string, Fill> kinds() {
    return {
        {"number",
         [](ScenarioPickerMaker& maker, const Json&) {
             const auto picker = maker.base<GXBasePickerView>();
             maker.step(*picker);
             maker.rangeAndValue(*picker);
         }},
        {"bpm",
         [](ScenarioPickerMaker& maker, const Json&) {
             const auto picker = maker.base<GXBpmPickerView>();
             maker.step(*picker);
             maker.rangeAndValue(*picker);
         }},
        {"calories",
         [](ScenarioPickerMaker& maker, const Json&) {
             const auto picker = maker.base<GXCaloriesPickerView>();
             maker.step(*picker);
             maker.rangeAndValue(*picker);
         }},
        {"distance",
         [](ScenarioPickerMaker& maker, const Json&) {
             const auto picker = maker.base<GXDistancePickerView>();
             maker.fraction(*picker);
             maker.unit(*picker);
             maker.rangeAndValue(*picker);
         }},
        {"distance-and-duration", [](ScenarioPickerMaker& maker, const Json&) { maker.distanceAndDuration(); }},
        {"duration",
         [](ScenarioPickerMaker& maker, const Json&) {
             const auto picker = maker.base<GXDurationPickerView>();
             maker.duration(*picker);
             maker.rangeAndValue(*picker);
         }},
        {"heart-rate", [](ScenarioPickerMaker& maker, const Json&) { maker.heartRate(); }},
        {"height", [](ScenarioPickerMaker& maker, const Json&) { maker.height(); }},
        {"icon", [](ScenarioPickerMaker& maker, const Json& options) { maker.icon(options); }},
        {"pace",
         [](ScenarioPickerMaker& maker, const Json&) {
             const auto picker = maker.base<GXPacePickerView>();
             GXPacePickerView& pace = *picker;
             maker.option(
                 "minutes-step", [&pace](const Json& value) { pace.setMinutesStepSize(narrow(value)); }, pace);
             maker.option(
                 "seconds-step", [&pace](const Json& value) { pace.setSecondsStepSize(narrow(value)); }, pace);
             maker.unit(pace);
             maker.rangeAndValue(pace);
         }},
        {"speed",
         [](ScenarioPickerMaker& maker, const Json&) {
             const auto picker = maker.base<GXSpeedPickerView>();
             maker.unit(*picker);
             maker.rangeAndValue(*picker);
         }},
        {"temperature",
         [](ScenarioPickerMaker& maker, const Json&) {
             const auto picker = maker.base<GXTemperaturePickerView>();
             maker.step(*picker);
             maker.unit(*picker);
             maker.rangeAndValue(*picker);
         }},
        {"weather-and-temperature", [](ScenarioPickerMaker& maker, const Json& options) { maker.weatherAndTemperature(options); }},
        {"weight", [](ScenarioPickerMaker& maker, const Json&) { maker.weight(); }},
        {"wheel", [](ScenarioPickerMaker& maker, const Json& options) { maker.wheel(options); }},
    };
}

} // namespace

Ref<ScenarioPicker> ScenarioPicker::pickerOfKind(const std::string& kind, const Json& options) {
    const auto made = create<ScenarioPicker>();
    ScenarioPickerMaker maker(*made);
    kinds().at(kind)(maker, options);
    for (const auto& [name, value] : options.items()) {
        if (name != "icons" && name != "columns") made->set(name, value);
    }
    return made;
}

} // namespace scenarios
