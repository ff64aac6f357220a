import GXUIPickers

/// Picks a distance in metres, and a duration in milliseconds beside it.
PickerControl {
    property alias distance: item.distance
    property alias minDistance: item.minDistance
    property alias maxDistance: item.maxDistance
    property alias duration: item.duration
    property alias minDuration: item.minDuration
    property alias maxDuration: item.maxDuration
    property alias unitSystem: item.unitSystem
    property alias numberOfFractionUnits: item.numberOfFractionUnits
    property alias type: item.type
    property alias hoursStepSize: item.hoursStepSize
    property alias minutesStepSize: item.minutesStepSize
    property alias secondsStepSize: item.secondsStepSize
    /// The value as it is shown, with its unit.
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.DistanceAndDuration
    }
}
