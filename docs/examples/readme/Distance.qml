import GXUIPickers

DistancePicker {
    value: 5300 // Metres, whatever the wheel shows.
    unitSystem: UnitSystem.Metric
    onMoved: console.log(value, text) // By the user alone, such as 5400 and "5.4 km".
}
