import GXUIPickers

/// Picks a duration. Its value is in milliseconds.
PickerControl {
    property alias value: item.value
    property alias from: item.from
    property alias to: item.to
    property alias stepSize: item.stepSize
    property alias type: item.type
    property alias hoursStepSize: item.hoursStepSize
    property alias minutesStepSize: item.minutesStepSize
    property alias secondsStepSize: item.secondsStepSize
    /// The value as it is shown, with its unit.
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Duration
    }
}
