import GXUIPickers

/// Picks the weather, by its picture, and a temperature in degrees Celsius, whose range `from`, `to` and
/// `stepSize` are.
PickerControl {
    property alias weather: item.weather
    property alias temperature: item.temperature
    property alias from: item.from
    property alias to: item.to
    property alias stepSize: item.stepSize
    property alias unitSystem: item.unitSystem
    property alias iconImages: item.iconImages
    property alias iconLabels: item.iconLabels
    /// The value as it is shown, with its unit.
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.WeatherAndTemperature
    }
}
