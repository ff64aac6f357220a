import QtQuick
import QtQuick.Controls
import QtTest
import GXUIPickers

Control {
    id: root

    width: 640
    height: 480
    locale: Qt.locale("en_US") // Whatever the user's is.

    Component {
        id: distances

        DistancePicker {
            property int moves: 0
            property int changes: 0

            // The value first: a picker with the bounds of its beginning would not show it.
            value: 42500
            from: 1000
            to: 100000
            onMoved: moves += 1
            onValueChanged: changes += 1
        }
    }
    Component {
        id: integers

        IntegerPicker {
            to: 10
        }
    }
    Component {
        id: bound

        Item {
            id: holder

            property real source: 3
            readonly property IntegerPicker picker: picker

            IntegerPicker {
                id: picker

                to: 10
                value: holder.source
            }
        }
    }
    Component {
        id: broken

        IntegerPicker {
            property var nothing: undefined

            to: 10
            value: nothing
        }
    }
    Component {
        id: crossed

        IntegerPicker {
            from: 8
            to: 5
        }
    }
    Component {
        id: stepless

        IntegerPicker {
            stepSize: -2
        }
    }
    Component {
        id: paces

        PacePicker {
            from: 8
            to: 1
            value: 3
        }
    }
    Component {
        id: crossedPaces

        PacePicker {
            from: 1
            to: 8
        }
    }
    Component {
        id: heartRates

        HeartRatePicker {
            currentAvgHeartRate: 140
            currentMaxHeartRate: 180
        }
    }

    TestCase {
        id: test

        name: "PickerProperties"
        when: windowShown

        function made(component: Component): Item {
            return test.createTemporaryObject(component, root)
        }

        function test_orderInADocumentDoesNotMatter() {
            const picker = made(distances)
            compare(picker.value, 42500)
            compare(picker.from, 1000)
            compare(picker.to, 100000)
            compare(picker.text, "42.5 km")
        }

        function test_movedIsNotEmittedForTheProgram() {
            const picker = made(distances)
            const before = picker.changes
            picker.value = 7300
            compare(picker.text, "7.3 km")
            compare(picker.changes, before + 1)
            picker.value = 7300
            compare(picker.changes, before + 1)
            picker.unitSystem = UnitSystem.Imperial
            picker.to = 50000
            compare(picker.moves, 0)
        }

        function test_aUnitSystemChangesTheTextAndNotTheValue() {
            const picker = made(distances)
            picker.value = 16093.44
            picker.unitSystem = UnitSystem.Imperial
            compare(picker.text, "10.0 mi")
            compare(picker.value, 16093.44)
        }

        function test_bindingsStayAfterTheUser() {
            const holder = made(bound)
            compare(holder.picker.value, 3)
            holder.picker.forceActiveFocus()
            keyClick(Qt.Key_Down)
            tryCompare(holder.picker, "value", 4)
            holder.source = 7
            compare(holder.picker.value, 7)
        }

        function test_aNumberThatIsNoneIsWarnedOf() {
            const picker = made(integers)
            picker.value = 4
            ignoreWarning(/tst_properties.qml:\d+:\d+: QML IntegerPicker: value has to be a number. It stays 4/)
            picker.value = NaN
            compare(picker.value, 4)
            ignoreWarning(/tst_properties.qml:\d+:\d+: QML IntegerPicker: stepSize has to be above 0, not -2. It stays 1/)
            picker.stepSize = -2
            compare(picker.stepSize, 1)
        }

        function test_aBadValueInADocumentIsWarnedOfWithTheLine() {
            ignoreWarning(/tst_properties.qml:\d+:\d+: QML IntegerPicker: stepSize has to be above 0, not -2. It is ignored/)
            compare(made(stepless).stepSize, 1)
        }

        function test_aTextIsNotTaken() {
            const picker = made(integers)
            let message = ""
            try {
                picker.value = "many"
            } catch (error) {
                message = error.message
            }
            compare(message, "Cannot assign QString to double")
            compare(picker.value, 0)
        }

        function test_undefinedIsWarnedOfWithTheLine() {
            ignoreWarning(/tst_properties.qml:\d+:\d+: Unable to assign \[undefined\] to double/)
            const picker = made(broken)
            compare(picker.value, 0)
        }

        function test_crossedBoundsAreWarnedOfAndLeaveTheLowerOne() {
            ignoreWarning(/tst_properties.qml:\d+:\d+: QML IntegerPicker: from \(8\) is above to \(5\). Only 8 can be chosen/)
            const picker = made(crossed)
            compare(picker.from, 8)
            compare(picker.to, 5)
            picker.forceActiveFocus()
            tryVerify(() => !isPolishScheduled(picker.contentItem))
            keyClick(Qt.Key_End)
            compare(picker.text, "8")
        }

        function test_aPaceBeginsWithTheLargestSpeed() {
            failOnWarning(/./)
            const picker = made(paces)
            waitForRendering(picker)
            compare([picker.from, picker.to, picker.value], [8, 1, 3])
            compare(picker.text, "5:30 min/km")
        }

        function test_crossedPacesAreWarnedOf() {
            ignoreWarning(/tst_properties.qml:\d+:\d+: QML PacePicker: from \(1\) is below to \(8\), but from is the fastest pace, the largest speed. Only 1 can be chosen/)
            const picker = made(crossedPaces)
            compare([picker.from, picker.to, picker.value], [1, 8, 1])
            tryVerify(() => !isPolishScheduled(picker.contentItem))
        }

        function test_boundsMayCrossForAMoment() {
            // A warning would fail the test.
            failOnWarning(/./)
            const picker = made(integers)
            waitForRendering(picker)
            picker.from = 20
            picker.to = 30
            waitForRendering(picker)
            compare(picker.from, 20)
            compare(picker.to, 30)
        }

        function test_enumerationsKnowTheirValues() {
            compare([UnitSystem.Metric, UnitSystem.Imperial], [0, 1])
            compare([WeightUnit.Kilogram, WeightUnit.Pound, WeightUnit.Stone], [0, 1, 2])
            compare([DurationType.HoursMinutes, DurationType.HoursMinutesSeconds, DurationType.MinutesSeconds], [0, 1, 2])
            const picker = made(distances)
            ignoreWarning(/QML DistancePicker: unitSystem: 7 is no UnitSystem, which has Metric, Imperial\. It stays as it is\./)
            picker.unitSystem = 7
            compare(picker.unitSystem, UnitSystem.Metric)
            ignoreWarning(/QML DurationPicker: type: 3 is no DurationType, which has HoursMinutes, HoursMinutesSeconds, MinutesSeconds\./)
            createTemporaryQmlObject("import GXUIPickers\nDurationPicker { type: 3 }", root)
            ignoreWarning(/QML WeightPicker: weightUnit: 9 is no WeightUnit, which has Kilogram, Pound, Stone\./)
            createTemporaryQmlObject("import GXUIPickers\nWeightPicker { weightUnit: 9 }", root)
        }

        function test_aUsersValueHasTheDigitsOfAFloat() {
            const height = createTemporaryQmlObject("import GXUIPickers\nHeightPicker { value: 177; unitSystem: UnitSystem.Imperial; reducedMotion: true }", root)
            height.forceActiveFocus()
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Down)
            tryCompare(height, "text", "5' 11\"")
            tryCompare(height, "value", 180.34)
            height.font.pixelSize = 30 // Makes the picker again.
            compare(height.value, 180.34)
            height.value = 180.33999633789062 // What an application sets stays as it is.
            compare(height.value, 180.33999633789062)

            const time = createTemporaryQmlObject("import GXUIPickers\nDurationPicker { value: 356389000; secondsStepSize: 1; type: DurationType.HoursMinutesSeconds; reducedMotion: true }", root)
            time.forceActiveFocus()
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Down)
            tryCompare(time, "value", 356390000)

            const large = createTemporaryQmlObject("import GXUIPickers\nIntegerPicker { from: 123456780; to: 123456800; value: 123456783; reducedMotion: true }", root)
            large.forceActiveFocus()
            keyClick(Qt.Key_Down)
            tryCompare(large, "value", 123456784)
        }

        function test_twoHeartRatesAreTwoValues() {
            const picker = made(heartRates)
            compare(picker.currentAvgHeartRate, 140)
            compare(picker.currentMaxHeartRate, 180)
            compare(picker.text, "AVG 140, MAX 180")
            picker.font.pixelSize = 30
            compare(picker.text, "AVG 140, MAX 180")
            picker.currentMaxHeartRate = 190
            compare(picker.currentMaxHeartRate, 190)
            compare(picker.currentAvgHeartRate, 140)
        }

        function test_thereIsNothingBeforeVersion02() {
            compare(createTemporaryQmlObject("import GXUIPickers 0.2\nBpmPicker { property int unit: UnitSystem.Imperial }", root).unit, 1)
            let message = ""
            try {
                createTemporaryQmlObject("import GXUIPickers 0.1\nBpmPicker {}", root)
            } catch (error) {
                message = error.message
            }
            verify(/BpmPicker is not a type|not installed/.test(message), message)
        }

        function test_everyTypeCanBeMadeAndHasASize_data() {
            return ["BpmPicker", "CaloriesPicker", "DistanceAndDurationPicker", "DistancePicker", "DurationPicker", "HeartRatePicker",
                    "HeightPicker", "IconPicker", "IntegerPicker", "PacePicker", "SpeedPicker", "TemperaturePicker",
                    "WeatherAndTemperaturePicker", "WeightPicker", "WheelPicker"].map(type => ({ tag: type }))
        }
        function test_everyTypeCanBeMadeAndHasASize(data: var) {
            failOnWarning(/./)
            const picker = createTemporaryQmlObject("import GXUIPickers\n" + data.tag + " {}", root)
            compare(picker.width, data.tag === "DistanceAndDurationPicker" ? 560 : 320)
            compare(picker.height, 216)
            waitForRendering(picker)
        }
    }
}
