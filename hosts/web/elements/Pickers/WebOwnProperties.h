#pragma once

#include <optional>

#include <GXUIPickers/GXBpmPickerView.h>
#include <GXUIPickers/GXCaloriesPickerView.h>
#include <GXUIPickers/GXDistancePickerView.h>
#include <GXUIPickers/GXDurationPickerView.h>
#include <GXUIPickers/GXHeartRatePickerView.h>
#include <GXUIPickers/GXPacePickerView.h>
#include <GXUIPickers/GXSpeedPickerView.h>
#include <GXUIPickers/GXTemperaturePickerView.h>
#include <GXUIPickers/GXWeightPickerView.h>

#include "WebProperty.h"

// The properties of each picker that not all have. The getters return nothing, the setters false,
// for a property that the picker does not have.

namespace gx::web {

/// A number from the page as a 32-bit integer, its fraction cut off.
std::int32_t integerOf(double value);

/// Those that all have which show a number from a range.
std::optional<double> rangeProperty(const GXBasePickerView& picker, WebProperty property);
bool setRangeProperty(GXBasePickerView& picker, WebProperty property, double value);

std::optional<double> ownProperty(const GXBasePickerView& picker, WebProperty property);
bool setOwnProperty(GXBasePickerView& picker, WebProperty property, double value);
std::optional<double> ownProperty(const GXDistancePickerView& picker, WebProperty property);
bool setOwnProperty(GXDistancePickerView& picker, WebProperty property, double value);
std::optional<double> ownProperty(const GXDurationPickerView& picker, WebProperty property);
bool setOwnProperty(GXDurationPickerView& picker, WebProperty property, double value);
std::optional<double> ownProperty(const GXHeartRatePickerView& picker, WebProperty property);
bool setOwnProperty(GXHeartRatePickerView& picker, WebProperty property, double value);
std::optional<double> ownProperty(const GXPacePickerView& picker, WebProperty property);
bool setOwnProperty(GXPacePickerView& picker, WebProperty property, double value);
std::optional<double> ownProperty(const GXSpeedPickerView& picker, WebProperty property);
bool setOwnProperty(GXSpeedPickerView& picker, WebProperty property, double value);
std::optional<double> ownProperty(const GXTemperaturePickerView& picker, WebProperty property);
bool setOwnProperty(GXTemperaturePickerView& picker, WebProperty property, double value);
std::optional<double> ownProperty(const GXWeightPickerView& picker, WebProperty property);
bool setOwnProperty(GXWeightPickerView& picker, WebProperty property, double value);

/// Selects the present value again, after what is shown has changed.
void selectAgain(GXBasePickerView& picker);
void selectAgain(GXHeartRatePickerView& picker);

} // namespace gx::web
