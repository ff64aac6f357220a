import GXUIPickers

/// Picks a distance in kilometres or miles, with one or two decimal places.
PickerControl {
    /// Metres. Default: 5000.
    property alias value: item.value
    /// Metres. Default: 0.
    property alias from: item.from
    /// Metres, exclusive. A mile that is not whole in the range is not offered. Default: 300000.
    property alias to: item.to
    /// Counts whole kilometres or miles. Default: 1.
    property alias stepSize: item.stepSize
    /// Default: UnitSystem.Metric.
    property alias unitSystem: item.unitSystem
    /// Default: 1.
    property alias numberOfFractionUnits: item.numberOfFractionUnits
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Distance
    }
}
