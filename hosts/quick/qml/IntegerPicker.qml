import GXUIPickers

/// Picks a number from a range. All whole numbers from `from` to `to` in steps of `stepSize`.
PickerControl {
    property alias value: item.value
    property alias from: item.from
    property alias to: item.to
    property alias stepSize: item.stepSize
    /// The value as it is shown, with its unit.
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Integer
    }
}
