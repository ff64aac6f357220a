import QtQuick
import QtQuick.Controls.Basic

Row {
    id: row

    property int rows: 100
    property real textSize: 22

    width: 320
    height: 216

    component Column: Tumbler {
        width: row.width / 3
        height: row.height
        font.pixelSize: row.textSize
        model: row.rows
        currentIndex: 50
    }

    Column { id: first }
    Column { id: second }
    Column { id: third }

    function jump(index: real) {
        first.positionViewAtIndex(index, Tumbler.Center)
        second.positionViewAtIndex(index, Tumbler.Center)
        third.positionViewAtIndex(index, Tumbler.Center)
    }
}
