#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

// The enumerations of the QML module. Their values are those of the library.

namespace gx::quick {

/// `UnitSystem.Metric`: kilometres, centimetres, degrees Celsius. `UnitSystem.Imperial`: miles,
/// feet and inches, degrees Fahrenheit. Weights have `WeightUnit`.
namespace UnitSystem {
Q_NAMESPACE
QML_ELEMENT
QML_ADDED_IN_VERSION(0, 2)
enum Value { Metric = 0, Imperial = 1 };
Q_ENUM_NS(Value)
} // namespace UnitSystem

/// What a `WeightPicker` shows. Its value is in kilograms with each of them.
namespace WeightUnit {
Q_NAMESPACE
QML_ELEMENT
QML_ADDED_IN_VERSION(0, 2)
enum Value { Kilogram = 0, Pound = 1, Stone = 2 };
Q_ENUM_NS(Value)
} // namespace WeightUnit

/// The columns of a `DurationPicker`.
namespace DurationType {
Q_NAMESPACE
QML_ELEMENT
QML_ADDED_IN_VERSION(0, 2)
enum Value { HoursMinutes = 0, HoursMinutesSeconds = 1, MinutesSeconds = 2 };
Q_ENUM_NS(Value)
} // namespace DurationType

} // namespace gx::quick
