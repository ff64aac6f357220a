import GXUIPickers

/// Picks one of some pictures.
PickerControl {
    /// The index of a picture. Default: 0.
    property alias value: item.value
    /// The index of the first picture that is offered. Default: 0.
    property alias from: item.from
    /// Has no effect: the pictures end the wheel. Default: 100.
    property alias to: item.to
    /// Leave it at 1: pictures follow each other whatever it is. Default: 1.
    property alias stepSize: item.stepSize
    property alias iconImages: item.iconImages
    property alias iconLabels: item.iconLabels
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Icon
    }
}
