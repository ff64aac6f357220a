import GXUIPickers

WheelPicker {
    property real rows: 100
    /// Has a pixel height, as the other one.
    property real textSize: 22

    width: 320
    height: 216
    font.pixelSize: textSize
    reducedMotion: true
    columns: [rows, rows, rows]
    currentIndexes: [50, 50, 50]

    function jump(row: real) {
        currentIndexes = [row, row, row]
    }
}
