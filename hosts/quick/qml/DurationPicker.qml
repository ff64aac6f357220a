import GXUIPickers

/// Picks a duration in hours, minutes and seconds.
PickerControl {
    /// Milliseconds, clamped to the range. Default: 300000.
    property alias value: item.value
    /// Milliseconds. Default: 0.
    property alias from: item.from
    /// Milliseconds, exclusive: 99 hours. Default: 356400000.
    property alias to: item.to
    /// Has no effect: each unit has a step of its own. Default: 1.
    property alias stepSize: item.stepSize
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

        kind: PickerItem.Duration
    }
}
