import GXUIPickers

/// Picks kilocalories.
PickerControl {
    /// Kilocalories. Default: 0.
    property alias value: item.value
    /// Default: 0.
    property alias from: item.from
    /// Exclusive: the last row is 99990. Default: 100000.
    property alias to: item.to
    /// Default: 10.
    property alias stepSize: item.stepSize
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Calories
    }
}
