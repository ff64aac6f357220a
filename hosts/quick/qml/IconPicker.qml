import GXUIPickers

/// Picks one of some pictures. Its value is the index of one.
PickerControl {
    property alias value: item.value
    property alias from: item.from
    property alias to: item.to
    property alias stepSize: item.stepSize
    property alias iconImages: item.iconImages
    property alias iconLabels: item.iconLabels
    /// The value as it is shown, with its unit.
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Icon
    }
}
