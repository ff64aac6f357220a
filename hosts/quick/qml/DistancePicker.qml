import GXUIPickers

/// Picks a distance. Its value is in metres; `stepSize` counts whole
/// kilometres or miles.
PickerControl {
    property alias value: item.value
    property alias from: item.from
    property alias to: item.to
    property alias stepSize: item.stepSize
    property alias unitSystem: item.unitSystem
    property alias numberOfFractionUnits: item.numberOfFractionUnits
    /// The value as it is shown, with its unit.
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Distance
    }
}
