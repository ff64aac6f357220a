// Examples of the reference: the types of Qt Quick. What each shows is tested.
pragma ComponentBehavior: Bound

import QtQuick
import GXUIPickers

Column {
    // [BpmPicker]
    BpmPicker {
        value: 87 // Between two rows; shows "80 bpm".
        to: 200
        onMoved: console.log(value)
    }
    // [BpmPicker]

    // [CaloriesPicker]
    CaloriesPicker {
        value: 640 // Shows "640 kcal".
        Accessible.name: qsTr("Energy")
    }
    // [CaloriesPicker]

    // [DistanceAndDurationPicker]
    /// - Side by side, the two need a width from about 300 pixels on. With large text, give it the
    ///   height of two wheels, and they are one above the other.
    DistanceAndDurationPicker {
        distance: 10500
        duration: 47 * 60000 // Shows "10.5 km, 0:47 h".
        onMoved: console.log(distance, duration)
    }
    // [DistanceAndDurationPicker]

    // [DistancePicker]
    /// - The value stays in metres: `unitSystem` changes what is shown alone.
    DistancePicker {
        value: 42195
        numberOfFractionUnits: 2
        unitSystem: UnitSystem.Imperial // Shows "26.21 mi".
    }
    // [DistancePicker]

    // [DurationPicker]
    /// - Minutes and seconds alone need a `to` below an hour: minutes end at 59.
    DurationPicker {
        type: DurationType.HoursMinutesSeconds
        secondsStepSize: 10
        value: 2950000 // Shows "0:49:10".
    }
    // [DurationPicker]

    // [HeartRatePicker]
    /// - A change of `from`, `to` or `stepSize` selects the first row of the average: set the rates
    ///   after it. Within one document the order does not matter.
    HeartRatePicker {
        currentAvgHeartRate: 142
        currentMaxHeartRate: 176 // Shows "AVG 142, MAX 176".
        minimumGapBetweenAvgAndMax: 5
    }
    // [HeartRatePicker]

    // [HeightPicker]
    /// - In feet and inches a height is that of whole inches once the user has selected one: 180 cm
    ///   become 180.34.
    /// - The user may change the unit, which is a selection too.
    HeightPicker {
        value: 176 // Shows "176 cm".
    }
    // [HeightPicker]

    // [IconPicker]
    IconPicker {
        iconImages: ["sun.png", "rain.png"]
        iconLabels: [qsTr("Sunny"), qsTr("Rain")]
        value: 1 // Shows "Rain".
    }
    // [IconPicker]

    // [IntegerPicker]
    IntegerPicker {
        from: 1
        to: 11 // The last row is 10.
        value: 4 // Shows "4".
    }
    // [IntegerPicker]

    // [PacePicker]
    /// - The range runs from the fastest pace to the slowest, so `from` is the larger number.
    PacePicker {
        from: 8
        to: 1
        value: 1000 / 285 // Shows "4:45 min/km".
    }
    // [PacePicker]

    // [SpeedPicker]
    SpeedPicker {
        value: 25 / 3.6 // Shows "25.0 km/h".
    }
    // [SpeedPicker]

    // [TemperaturePicker]
    /// - Rows in Fahrenheit lie elsewhere than those in Celsius: a value shows on the row below it.
    TemperaturePicker {
        from: 10
        to: 31
        stepSize: 1
        value: 18 // Shows "18 °C".
    }
    // [TemperaturePicker]

    // [WeatherAndTemperaturePicker]
    WeatherAndTemperaturePicker {
        iconImages: ["sun.png", "rain.png"]
        iconLabels: [qsTr("Sunny"), qsTr("Rain")]
        weather: 1
        temperature: 15 // Shows "Rain, 15 °C".
    }
    // [WeatherAndTemperaturePicker]

    // [WeightPicker]
    /// - Stones are decimal ones: 3.5 st are three stones and seven pounds.
    WeightPicker {
        value: 70
        weightUnit: WeightUnit.Pound // Shows "154.3 lb".
        weightUnitSelectable: true
    }
    // [WeightPicker]

    // [WheelPicker]
    /// - It has no text of its own: put one together from `currentIndexes`.
    WheelPicker {
        columns: [[qsTr("easy"), qsTr("hard")], 60]
        currentIndexes: [1, 30]
        columnLabels: [qsTr("Effort"), qsTr("Minutes")]
        onMoved: console.log(currentIndexes)
    }
    // [WheelPicker]
}
