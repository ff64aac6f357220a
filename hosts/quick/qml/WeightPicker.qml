import GXUIPickers

/// Picks a body weight. Its value is in kilograms.
PickerControl {
    property alias value: item.value
    property alias from: item.from
    property alias to: item.to
    property alias stepSize: item.stepSize
    property alias weightUnit: item.weightUnit
    property alias weightUnitSelectable: item.weightUnitSelectable
    /// The value as it is shown, with its unit.
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Weight
    }
}
