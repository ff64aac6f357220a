import GXUIPickers

/// Picks a speed. Its value is in metres per second.
PickerControl {
    property alias value: item.value
    property alias from: item.from
    property alias to: item.to
    property alias stepSize: item.stepSize
    property alias unitSystem: item.unitSystem
    /// The value as it is shown, with its unit.
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Speed
    }
}
