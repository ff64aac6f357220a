import GXUIPickers

/// Picks a pace. Its value is the speed that it stands for, in metres per second.
PickerControl {
    property alias value: item.value
    property alias from: item.from
    property alias to: item.to
    property alias stepSize: item.stepSize
    property alias unitSystem: item.unitSystem
    property alias minutesStepSize: item.minutesStepSize
    property alias secondsStepSize: item.secondsStepSize
    /// The value as it is shown, with its unit.
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Pace
    }
}
