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

#include "PickerProperty.h"

// The properties of each picker that not all have. The getters return nothing, the setters false,
// for a property that the picker does not have.

namespace gx::elements {

/// A number from the host as a 32-bit integer, its fraction cut off.
std::int32_t integerOf(double value);

/// Those that all have which show a number from a range.
std::optional<double> rangeProperty(const GXBasePickerView& picker, PickerProperty property);
bool setRangeProperty(GXBasePickerView& picker, PickerProperty property, double value);

std::optional<double> ownProperty(const GXBasePickerView& picker, PickerProperty property);
bool setOwnProperty(GXBasePickerView& picker, PickerProperty property, double value);
std::optional<double> ownProperty(const GXDistancePickerView& picker, PickerProperty property);
bool setOwnProperty(GXDistancePickerView& picker, PickerProperty property, double value);
std::optional<double> ownProperty(const GXDurationPickerView& picker, PickerProperty property);
bool setOwnProperty(GXDurationPickerView& picker, PickerProperty property, double value);
std::optional<double> ownProperty(const GXHeartRatePickerView& picker, PickerProperty property);
bool setOwnProperty(GXHeartRatePickerView& picker, PickerProperty property, double value);
std::optional<double> ownProperty(const GXPacePickerView& picker, PickerProperty property);
bool setOwnProperty(GXPacePickerView& picker, PickerProperty property, double value);
std::optional<double> ownProperty(const GXSpeedPickerView& picker, PickerProperty property);
bool setOwnProperty(GXSpeedPickerView& picker, PickerProperty property, double value);
std::optional<double> ownProperty(const GXTemperaturePickerView& picker, PickerProperty property);
bool setOwnProperty(GXTemperaturePickerView& picker, PickerProperty property, double value);
std::optional<double> ownProperty(const GXWeightPickerView& picker, PickerProperty property);
bool setOwnProperty(GXWeightPickerView& picker, PickerProperty property, double value);

/// Selects the present value again, after what is shown has changed.
void selectAgain(GXBasePickerView& picker);
void selectAgain(GXHeartRatePickerView& picker);

} // namespace gx::elements
