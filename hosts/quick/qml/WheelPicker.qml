import GXUIPickers

/// A wheel with columns of an application's own. A model may change at any time, and a column may
/// have 2^53 rows.
PickerControl {
    property alias columns: item.columns
    property alias currentIndexes: item.currentIndexes
    property alias columnWidths: item.columnWidths
    property alias columnLabels: item.columnLabels
    property alias textRole: item.textRole

    wheel: ColumnsItem {
        id: item
    }
}
