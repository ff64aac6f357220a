import GXUIPickers

/// Picks beats per minute.
PickerControl {
    /// Beats per minute. A value between two rows shows on the lower one. Default: 160.
    property alias value: item.value
    /// Default: 0.
    property alias from: item.from
    /// Exclusive: the last row is 230. Default: 240.
    property alias to: item.to
    /// Default: 10.
    property alias stepSize: item.stepSize
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Bpm
    }
}
