import GXUIPickers

/// Picks a pace, minutes and seconds per kilometre or mile. Its value is the speed that it stands
/// for.
PickerControl {
    /// Metres per second, clamped to the range: 10 is 1:40 a kilometre. Default: 10.
    property alias value: item.value
    /// The fastest pace, and so the largest speed. Default: 11.11.
    property alias from: item.from
    /// The slowest pace, and so the smallest speed; the wheel includes it. Default: 0.28.
    property alias to: item.to
    /// Has no effect: each unit has a step of its own. Default: 1.
    property alias stepSize: item.stepSize
    /// Default: UnitSystem.Metric.
    property alias unitSystem: item.unitSystem
    /// Default: 1.
    property alias minutesStepSize: item.minutesStepSize
    /// Default: 5.
    property alias secondsStepSize: item.secondsStepSize
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Pace
    }
}
