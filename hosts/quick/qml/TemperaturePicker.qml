import GXUIPickers

/// Picks a temperature in degrees Celsius or Fahrenheit.
PickerControl {
    /// Degrees Celsius. A value between two rows shows on the lower one. Default: 20.
    property alias value: item.value
    /// Degrees Celsius. Default: -20.
    property alias from: item.from
    /// Degrees Celsius, exclusive: the last row is 55. Default: 60.
    property alias to: item.to
    /// Degrees of what is shown, Celsius or Fahrenheit. Default: 5.
    property alias stepSize: item.stepSize
    /// Default: UnitSystem.Metric.
    property alias unitSystem: item.unitSystem
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Temperature
    }
}
