import GXUIPickers

/// Picks the weather, by its picture, and a temperature beside it.
PickerControl {
    /// Default: 0.
    property alias weather: item.weather
    /// A value between two rows shows on the lower one. Default: 20.
    property alias temperature: item.temperature
    /// Of the temperature. Default: -20.
    property alias from: item.from
    /// Of the temperature, exclusive. Default: 60.
    property alias to: item.to
    /// Of the temperature: degrees of what is shown, Celsius or Fahrenheit. Default: 5.
    property alias stepSize: item.stepSize
    /// Default: UnitSystem.Metric.
    property alias unitSystem: item.unitSystem
    property alias iconImages: item.iconImages
    property alias iconLabels: item.iconLabels
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.WeatherAndTemperature
    }
}
