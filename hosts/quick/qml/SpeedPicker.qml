import GXUIPickers

/// Picks a speed in kilometres or miles per hour.
PickerControl {
    /// Metres per second. Default: 2.78.
    property alias value: item.value
    /// Metres per second. Default: 0.
    property alias from: item.from
    /// Metres per second: 50 km/h. Default: 13.89.
    property alias to: item.to
    /// Leave it at 1: rows are 1 apart whatever it is. Default: 1.
    property alias stepSize: item.stepSize
    /// Default: UnitSystem.Metric.
    property alias unitSystem: item.unitSystem
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Speed
    }
}
