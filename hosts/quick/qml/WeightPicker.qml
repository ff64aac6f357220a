import GXUIPickers

/// Picks a body weight in kilograms, pounds or stones.
PickerControl {
    /// Kilograms. A value below `from` selects nothing, so set one. Default: 0.
    property alias value: item.value
    /// Kilograms. Default: 15.
    property alias from: item.from
    /// Kilograms. Has no effect: rows end where the unit says, at 349.9 kg. Default: 350.
    property alias to: item.to
    /// Has no effect: rows are a tenth apart. Default: 1.
    property alias stepSize: item.stepSize
    /// Changes when the user chooses another one. Default: WeightUnit.Kilogram.
    property alias weightUnit: item.weightUnit
    /// Default: false.
    property alias weightUnitSelectable: item.weightUnitSelectable
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Weight
    }
}
