import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import GXUIPickers

/// The entry of a workout: a row for each measurement, and below the open one its picker.
ApplicationWindow {
    id: window

    property bool dark: false
    /// Which entry is open; -1 for none.
    property int open: 0
    readonly property int entryCount: entries.children.length

    width: 400
    height: 760
    visible: true
    title: qsTr("Add workout")
    color: palette.window
    palette {
        window: dark ? "#14161a" : "#f2f3f6"
        base: dark ? "#1f2228" : "#ffffff"
        windowText: dark ? "#f2f4f8" : "#14161a"
        text: dark ? "#f2f4f8" : "#14161a"
        buttonText: dark ? "#f2f4f8" : "#14161a"
        highlight: dark ? "#5aa2ff" : "#0a66d8"
    }

    function toggle(entry: int) {
        open = open === entry ? -1 : entry
    }

    /// A measurement: its name, its value as a text, and its picker where it is open.
    component Entry: Rectangle {
        id: entry

        required property string name
        required property string value
        required property bool isOpen
        default property alias picker: holder.data

        signal pressed

        Layout.fillWidth: true
        implicitHeight: column.implicitHeight
        radius: 12
        color: palette.base

        ColumnLayout {
            id: column

            anchors.fill: parent
            spacing: 0

            AbstractButton {
                id: header

                Layout.fillWidth: true
                implicitHeight: 52
                Accessible.name: entry.name + ", " + entry.value
                onClicked: entry.pressed()
                Accessible.onPressAction: entry.pressed()
                contentItem: RowLayout {
                    Label {
                        Layout.leftMargin: 16
                        Layout.fillWidth: true
                        text: entry.name
                        font.pixelSize: 17
                    }
                    Label {
                        Layout.rightMargin: 16
                        text: entry.value
                        font.pixelSize: 17
                        color: entry.isOpen ? palette.highlight : palette.windowText
                    }
                }
                background: Rectangle {
                    radius: 12
                    color: "transparent"
                    border.width: header.visualFocus ? 2 : 0
                    border.color: header.palette.highlight
                }
            }
            Item {
                id: holder

                Layout.fillWidth: true
                visible: entry.isOpen
                implicitHeight: 216
            }
        }
    }

    Flickable {
        anchors.fill: parent
        anchors.margins: 16
        contentHeight: entries.implicitHeight
        boundsBehavior: Flickable.StopAtBounds

        ColumnLayout {
            id: entries

            width: parent.width
            spacing: 10

            Entry {
                name: qsTr("Distance")
                value: distance.text
                isOpen: window.open === 0
                onPressed: window.toggle(0)
                DistancePicker {
                    id: distance

                    anchors.fill: parent
                    value: 10500
                    numberOfFractionUnits: 2
                    Accessible.name: qsTr("Distance")
                }
            }
            Entry {
                name: qsTr("Duration")
                value: duration.text
                isOpen: window.open === 1
                onPressed: window.toggle(1)
                DurationPicker {
                    id: duration

                    anchors.fill: parent
                    type: DurationType.HoursMinutesSeconds
                    value: 2955000
                    Accessible.name: qsTr("Duration")
                }
            }
            Entry {
                name: qsTr("Heart rate")
                value: heartRate.text
                isOpen: window.open === 2
                onPressed: window.toggle(2)
                HeartRatePicker {
                    id: heartRate

                    anchors.fill: parent
                    currentAvgHeartRate: 142
                    currentMaxHeartRate: 176
                }
            }
            Entry {
                name: qsTr("Calories")
                value: calories.text
                isOpen: window.open === 3
                onPressed: window.toggle(3)
                CaloriesPicker {
                    id: calories

                    anchors.fill: parent
                    value: 640
                }
            }
            Entry {
                name: qsTr("Temperature")
                value: temperature.text
                isOpen: window.open === 4
                onPressed: window.toggle(4)
                TemperaturePicker {
                    id: temperature

                    anchors.fill: parent
                    value: 18
                    stepSize: 1
                }
            }
            Entry {
                name: qsTr("Effort")
                value: effort.texts[effort.currentIndexes[0]]
                isOpen: window.open === 5
                onPressed: window.toggle(5)
                WheelPicker {
                    id: effort

                    readonly property list<string> texts: [qsTr("easy"), qsTr("moderate"), qsTr("hard"), qsTr("all out")]

                    anchors.fill: parent
                    columns: [texts]
                    currentIndexes: [1]
                    columnLabels: [qsTr("Effort")]
                }
            }
        }
    }
}
