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
    ListModel {
        id: late
    }
    Component {
        id: plain

        WheelPicker {
            property int changes: 0

            reducedMotion: true
            onCurrentIndexesChanged: changes += 1
        }
    }
    Component {
        id: bound

        Item {
            id: holder

            property int chosen: 1
            property alias picker: inner

            WheelPicker {
                id: inner

                reducedMotion: true
                columns: [3, 5]
                currentIndexes: [holder.chosen, 9]
            }
        }
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
            compare(wheel.currentIndexes, [2, 0])
        }

        function test_currentIndexesAreOneRowOfEachColumn() {
            failOnWarning(/./)
            const wheel = test.createTemporaryObject(plain, root)
            compare(wheel.currentIndexes, [])
            wheel.columns = [["low", "high"], 5]
            compare(wheel.currentIndexes, [0, 0])
            wheel.currentIndexes = [9, 2]
            compare(wheel.currentIndexes, [1, 2])
            wheel.currentIndexes = [0]
            compare(wheel.currentIndexes, [0, 2])
            wheel.currentIndexes = [1, 3, 2, 3]
            compare(wheel.currentIndexes, [1, 3])
            wheel.columns = [2]
            compare(wheel.currentIndexes, [1])
        }

        function test_currentIndexesTellOfEachChange() {
            const wheel = test.createTemporaryObject(plain, root)
            wheel.columns = [3, 3]
            compare(wheel.changes, 1)
            wheel.currentIndexes = [1, 1]
            compare(wheel.changes, 2)
            wheel.currentIndexes = [1, 1]
            compare(wheel.changes, 2)
            wheel.columns = [2, 1]
            compare(wheel.currentIndexes, [1, 0])
            compare(wheel.changes, 3)
        }

        function test_indexesMayComeBeforeTheirRows() {
            failOnWarning(/./)
            const wheel = test.createTemporaryObject(plain, root)
            wheel.currentIndexes = [1, 2]
            wheel.columns = [late, 5]
            compare(wheel.currentIndexes, [0, 2])
            late.append({ name: "first" })
            late.append({ name: "second" })
            compare(wheel.currentIndexes, [1, 2])
            wheel.forceActiveFocus()
            keyClick(Qt.Key_Up)
            tryCompare(wheel, "currentIndexes", [0, 2])
            late.append({ name: "third" })
            compare(wheel.currentIndexes, [0, 2])
            late.clear()
            compare(wheel.currentIndexes, [0, 2])
        }

        function test_aBindingOfIndexesStaysAfterTheUser() {
            failOnWarning(/./)
            const holder = test.createTemporaryObject(bound, root)
            compare(holder.picker.currentIndexes, [1, 4])
            holder.picker.forceActiveFocus()
            keyClick(Qt.Key_Up)
            tryCompare(holder.picker, "currentIndexes", [0, 4])
            holder.chosen = 2
            compare(holder.picker.currentIndexes, [2, 4])
        }

        function test_whatIsNoWholeNumberIsNoIndex() {
            const wheel = test.createTemporaryObject(plain, root)
            wheel.columns = [3, 3]
            wheel.currentIndexes = [2, 1]
            for (const indexes of [[1.5, 0], [-1, 0], [NaN, 0], [0, Infinity]]) {
                ignoreWarning(/QML WheelPicker: currentIndexes have to be numbers of rows, 0 or more/)
                wheel.currentIndexes = indexes
                compare(wheel.currentIndexes, [2, 1])
            }
        }

        function test_aModelThatEndsEmptiesItsColumn() {
            failOnWarning(/./)
            const wheel = test.createTemporaryObject(plain, root)
            const model = test.createTemporaryQmlObject("import QtQuick\nListModel { ListElement { name: 'one' } ListElement { name: 'two' } }", root)
            wheel.columns = [model, 4]
            wheel.currentIndexes = [1, 3]
            waitForRendering(wheel)
            const changes = wheel.changes
            model.destroy()
            tryCompare(wheel, "changes", changes + 1)
            compare(wheel.currentIndexes, [0, 3])
            compare(wheel.columns, [0, 4])
            wheel.columnLabels = ["Names", "Numbers"] // Reads the columns again.
        }

        function test_aMisspeltRoleIsWarnedOfOnce() {
            const wheel = test.createTemporaryObject(plain, root)
            wheel.columns = [sports, sports]
            ignoreWarning(/QML WheelPicker: textRole "nmae" is no role of columns\[0\], which has minutes, name\. It shows another one\./)
            wheel.textRole = "nmae"
            failOnWarning(/./)
            sports.append({ name: "Swimming", minutes: 45 })
            sports.remove(2)
        }

        function test_aModelWithoutRowsHasNoRolesYet() {
            failOnWarning(/./)
            const wheel = test.createTemporaryObject(plain, root)
            wheel.textRole = "name"
            wheel.columns = [late]
            late.append({ name: "first" })
            late.clear()
        }
    }
}
