import GXUIPickers

/// Picks the average and the maximum of a heart rate, in beats per minute.
PickerControl {
    /// Default: 120.
    property alias currentAvgHeartRate: item.currentAvgHeartRate
    /// Default: 160.
    property alias currentMaxHeartRate: item.currentMaxHeartRate
    /// The row "-" stands in its place, so the rates begin above it. Default: 25.
    property alias from: item.from
    /// Exclusive. Default: 230.
    property alias to: item.to
    /// Leave it at 1: rows are 1 apart whatever it is. Default: 1.
    property alias stepSize: item.stepSize
    /// Default: true.
    property alias shouldShowNullValue: item.shouldShowNullValue
    /// Default: 1.
    property alias minimumGapBetweenAvgAndMax: item.minimumGapBetweenAvgAndMax
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.HeartRate
    }
}
