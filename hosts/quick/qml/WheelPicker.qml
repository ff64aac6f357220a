import GXUIPickers

/// A wheel with columns of the application's own.
///
/// A column is a number of rows, a list of texts, or a model.
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
