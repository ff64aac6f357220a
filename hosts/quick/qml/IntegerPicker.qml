import GXUIPickers

/// Picks a whole number from a range.
PickerControl {
    /// A whole number; fractions are cut off. Default: 0.
    property alias value: item.value
    /// Default: 0.
    property alias from: item.from
    /// Exclusive: the last row lies below it. Default: 100.
    property alias to: item.to
    /// Default: 1.
    property alias stepSize: item.stepSize
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Integer
    }
}
