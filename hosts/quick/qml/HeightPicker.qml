import GXUIPickers

/// Picks the height of a person. Its value is in centimetres.
PickerControl {
    property alias value: item.value
    property alias unitSystem: item.unitSystem
    /// The value as it is shown, with its unit.
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Height
    }
}
