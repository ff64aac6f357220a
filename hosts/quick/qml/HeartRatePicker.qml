import GXUIPickers

/// Picks the average and the maximum of a heart rate, in beats per minute.
PickerControl {
    property alias currentAvgHeartRate: item.currentAvgHeartRate
    property alias currentMaxHeartRate: item.currentMaxHeartRate
    property alias from: item.from
    property alias to: item.to
    property alias stepSize: item.stepSize
    property alias shouldShowNullValue: item.shouldShowNullValue
    property alias minimumGapBetweenAvgAndMax: item.minimumGapBetweenAvgAndMax
    /// The value as it is shown, with its unit.
    readonly property alias text: item.text

    wheel: PickerItem {
        id: item

        kind: PickerItem.HeartRate
    }
}
