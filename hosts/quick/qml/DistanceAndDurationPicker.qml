import GXUIPickers

/// Picks a distance, and a duration beside it.
PickerControl {
    /// Default: 5000.
    property alias distance: item.distance
    /// Default: 0.
    property alias minDistance: item.minDistance
    /// Default: 300000.
    property alias maxDistance: item.maxDistance
    /// Default: 300000.
    property alias duration: item.duration
    /// Default: 0.
    property alias minDuration: item.minDuration
    /// Exclusive. Default: 356400000.
    property alias maxDuration: item.maxDuration
    /// Default: UnitSystem.Metric.
    property alias unitSystem: item.unitSystem
    /// Default: 1.
    property alias numberOfFractionUnits: item.numberOfFractionUnits
    /// Default: DurationType.HoursMinutes.
    property alias type: item.type
    /// Default: 1.
    property alias hoursStepSize: item.hoursStepSize
    /// Default: 1.
    property alias minutesStepSize: item.minutesStepSize
    /// Default: 5.
    property alias secondsStepSize: item.secondsStepSize
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.DistanceAndDuration
    }
}
