import GXUIPickers

/// Picks the height of a person in centimetres, or feet and inches.
PickerControl {
    /// Centimetres, from 120 to 220. With 0, which is none, the wheel shows 180 cm. In feet and
    /// inches rows end at 6' 11": a larger height shows as that. Default: 0.
    property alias value: item.value
    /// Changes when the user chooses the other unit. Default: UnitSystem.Metric.
    property alias unitSystem: item.unitSystem
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.Height
    }
}
