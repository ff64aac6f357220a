import QtQuick
import QtQuick.Controls
import GXUIPickers

ApplicationWindow {
    width: 320
    height: 280
    visible: true
    title: picker.text // The value as the wheel shows it, such as "5.3 km".

    DistancePicker {
        id: picker

        anchors.fill: parent
        value: 5300 // Metres, whatever the wheel shows.
        to: 100000
        unitSystem: miles.checked ? UnitSystem.Imperial : UnitSystem.Metric
        Accessible.name: qsTr("Distance")
        onMoved: console.log(value, "metres") // By the user alone, not by a binding.
    }
    footer: CheckBox {
        id: miles

        text: qsTr("Miles")
    }
}
