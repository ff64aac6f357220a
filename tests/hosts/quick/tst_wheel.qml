import QtQuick
import QtTest
import GXUIPickers

Item {
    id: root

    width: 640
    height: 480

    ListModel {
        id: sports

        ListElement { name: "Running"; minutes: 30 }
        ListElement { name: "Cycling"; minutes: 60 }
    }
    Component {
        id: wheels

        WheelPicker {
            property int moves: 0

            reducedMotion: true
            columns: [1e9, ["low", "middle", "high"], sports]
            currentIndexes: [999999999, 1, 0]
            textRole: "name"
            onMoved: moves += 1
        }
    }

    TestCase {
        id: test

        name: "WheelPicker"
        when: windowShown

        function test_columnsAreNumbersTextsAndModels() {
            failOnWarning(/./)
            const wheel = test.createTemporaryObject(wheels, root)
            compare(wheel.currentIndexes, [999999999, 1, 0])
            wheel.forceActiveFocus()
            keyClick(Qt.Key_Up)
            tryCompare(wheel, "moves", 1)
            compare(wheel.currentIndexes, [999999998, 1, 0])
            keyClick(Qt.Key_Right)
            keyClick("h")
            tryCompare(wheel, "moves", 2)
            compare(wheel.currentIndexes, [999999998, 2, 0])
        }

        function test_aModelMayChange() {
            const wheel = test.createTemporaryObject(wheels, root)
            wheel.forceActiveFocus()
            sports.append({ name: "Swimming", minutes: 45 })
            wheel.currentIndexes = [0, 0, 2]
            keyClick(Qt.Key_Left)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Up)
            tryCompare(wheel, "moves", 1)
            compare(wheel.currentIndexes, [0, 0, 1])
            sports.remove(2)
        }

        function test_whatIsNoColumnIsWarnedOf() {
            const wheel = test.createTemporaryObject(wheels, root)
            ignoreWarning(/QML WheelPicker: columns\[1\] is neither a number of rows, nor a list of texts, nor a model/)
            wheel.columns = [3, true]
            ignoreWarning(/QML WheelPicker: currentIndexes have to be numbers of rows, 0 or more/)
            wheel.currentIndexes = [NaN, 0]
            compare(wheel.currentIndexes, [999999999, 1, 0])
        }
    }
}
