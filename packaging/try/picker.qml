// For Qt's own viewer of QML: says the value of a picker, draws it into a file, and ends.
import QtQuick
import QtQuick.Window
import GXUIPickers

Window {
    visible: true
    width: 320
    height: 216

    DistancePicker {
        id: picker

        anchors.fill: parent
        value: 5300
    }
    Timer {
        running: true
        interval: 500
        onTriggered: {
            console.log("The picker has", picker.value);
            picker.grabToImage(result => Qt.exit(result.saveToFile("/trial/qml.png") ? 0 : 1));
        }
    }
}
