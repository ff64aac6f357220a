#pragma once

#include <cstdint>

namespace gx::elements {

/// The pickers, as a page numbers them.
enum class PickerKind : std::int32_t {
    Number = 0,
    Bpm,
    Calories,
    Distance,
    DistanceAndDuration,
    Duration,
    HeartRate,
    Height,
    Icon,
    Pace,
    Speed,
    Temperature,
    WeatherAndTemperature,
    Weight,
    Columns,
    Count
};

/// Whether a kind is in this build: all are, unless it is made for a single one (`GX_WEB_PICKER`).
constexpr bool isBuilt([[maybe_unused]] PickerKind kind) {
#if defined(GX_ONLY_PICKER)
    return kind == PickerKind::GX_ONLY_PICKER;
#else
    return true;
#endif
}

/// The properties of all pickers, as a page numbers them; all of them numbers, flags as 0 and 1.
///
/// In the order in which they are applied to a new picker: what is shown, then the range, then
/// values.
enum class PickerProperty : std::int32_t {
    Metric = 0,
    WeightUnit,     ///< a `GXWeightUnit`
    UnitSelectable, ///< whether the unit has a column
    FractionDigits, ///< of a distance
    Layout,         ///< of a duration, one of `GXDurationType.h`
    HoursStep,
    MinutesStep,
    SecondsStep,
    NullRow, ///< whether the first heart rate is "-"
    Gap,     ///< between the heart rates
    Min,
    Max,
    Step,
    MinDistance,
    MaxDistance,
    MinDuration,
    MaxDuration,
    Average,
    Maximum,
    Distance,
    Duration,
    Weather,
    Temperature,
    Value,
    Count
};

} // namespace gx::elements
