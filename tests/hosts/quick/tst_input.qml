import QtQuick
import QtTest
import GXUIPickers

Item {
    id: root

    width: 640
    height: 480

    Flickable {
        id: flickable

        anchors.fill: parent
        contentHeight: 1000

        DurationPicker {
            id: duration

            property int moves: 0

            width: 320
            height: 216
            type: DurationType.HoursMinutes
            value: 3600000
            onMoved: moves += 1
        }
        BpmPicker {
            id: bpm

            y: 230
            width: 320
            from: 40
            to: 220
            stepSize: 1
            value: 120
        }
    }
    SignalSpy {
        id: frames

        target: root.Window.window
        signalName: "frameSwapped"
    }

    TestCase {
        id: test

        // Of the hours and the minutes, found by what they do.
        readonly property real hours: 110
        readonly property real minutes: 195
        // In milliseconds.
        readonly property real hour: 3600000
        readonly property real minute: 60000

        name: "PickerInput"
        when: windowShown

        function init() {
            flickable.contentY = 0
            flickable.cancelFlick()
            duration.value = test.hour
            duration.enabled = true
            duration.wheelEnabled = true
            duration.reducedMotion = true
            bpm.reducedMotion = true
            bpm.value = 120
            waitForRendering(duration)
            duration.moves = 0
        }

        /// By rows of 40 points.
        function drag(x: real, y: real, rows: int) {
            mousePress(duration, x, y)
            for (let i = 1; i <= 10; ++i)
                mouseMove(duration, x, y - rows * 4 * i, 10)
            // It rests, so nothing is thrown.
            mouseRelease(duration, x, y - rows * 40, Qt.LeftButton, Qt.NoModifier, 200)
        }

        function test_aDragOnAColumnTurnsItAndScrollsNothing() {
            drag(test.hours, 108, 2)
            tryCompare(duration, "value", 3 * test.hour)
            compare(duration.moves, 1)
            compare(flickable.contentY, 0)
        }

        function test_aDragBesideTheColumnsScrolls() {
            mousePress(root, 500, 300)
            for (let i = 1; i <= 10; ++i)
                mouseMove(root, 500, 300 - 10 * i, 10)
            mouseRelease(root, 500, 200)
            verify(flickable.contentY > 0)
            compare(duration.value, test.hour)
            compare(duration.moves, 0)
        }

        function test_twoFingersTurnTwoColumns() {
            const touch = touchEvent(duration)
            touch.press(0, duration, test.hours, 108).commit()
            touch.stationary(0).press(1, duration, test.minutes, 108).commit()
            for (let i = 1; i <= 10; ++i) {
                touch.move(0, duration, test.hours, 108 - 4 * i).move(1, duration, test.minutes, 108 - 8 * i).commit()
                wait(5)
            }
            wait(150)
            touch.release(0, duration, test.hours, 68).release(1, duration, test.minutes, 28).commit()
            tryCompare(duration, "value", 2 * test.hour + 2 * test.minute)
            compare(flickable.contentY, 0)
        }

        function test_aNotchIsARow() {
            mouseWheel(duration, test.hours, 108, 0, -120)
            tryCompare(duration, "value", 2 * test.hour)
            compare(duration.moves, 1)
            mouseWheel(duration, test.minutes, 108, 0, -240)
            tryCompare(duration, "value", 2 * test.hour + 2 * test.minute)
        }

        function test_aNotchAtTheEndOfTheRowsScrollsNothing() {
            duration.value = 0
            mouseWheel(duration, test.hours, 108, 0, 120)
            wait(50)
            compare(duration.value, 0)
            compare(flickable.contentY, 0)
            flickable.contentY = 50
            mouseWheel(duration, test.hours, 108, 0, 120)
            wait(50)
            compare(flickable.contentY, 50)
        }

        function test_withoutWheelEnabledNotchesAreForWhatLiesAround() {
            duration.wheelEnabled = false
            mouseWheel(duration, test.hours, 108, 0, -120)
            tryVerify(() => flickable.contentY > 0)
            compare(duration.value, test.hour)
        }

        function test_keysAndTypedDigits() {
            bpm.forceActiveFocus()
            keyClick(Qt.Key_Down)
            tryCompare(bpm, "value", 121)
            keyClick(Qt.Key_Home)
            tryCompare(bpm, "value", 40)
            keyClick("1")
            keyClick("4")
            keyClick("2")
            tryCompare(bpm, "value", 142)
        }

        function test_tabGoesFromPickerToPicker() {
            duration.forceActiveFocus(Qt.TabFocusReason)
            verify(duration.activeFocus)
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Down)
            tryCompare(duration, "value", test.hour + test.minute)
            keyClick(Qt.Key_Tab)
            verify(bpm.activeFocus)
            keyClick(Qt.Key_Backtab)
            verify(duration.activeFocus)
        }

        function test_aPressTakesTheFocusByThePolicy() {
            bpm.forceActiveFocus()
            mouseClick(duration, test.hours, 108)
            verify(duration.activeFocus)
            bpm.forceActiveFocus()
            duration.focusPolicy = Qt.TabFocus
            mouseClick(duration, test.hours, 108)
            verify(bpm.activeFocus)
            duration.focusPolicy = Qt.StrongFocus
        }

        function test_aDisabledPickerTakesNothing() {
            duration.enabled = false
            drag(test.hours, 108, 2)
            mouseWheel(duration, test.hours, 108, 0, -120)
            wait(50)
            compare(duration.value, test.hour)
            compare(duration.moves, 0)
        }

        function test_itIsHoveredBelowThePointer() {
            duration.hoverEnabled = true
            mouseMove(root, 600, 470)
            verify(!duration.hovered)
            mouseMove(duration, 100, 100)
            tryVerify(() => duration.hovered)
            mouseMove(root, 600, 470)
            tryVerify(() => !duration.hovered)
        }

        function test_framesEndWithTheMotion() {
            duration.reducedMotion = false
            mouseWheel(duration, test.hours, 108, 0, -360)
            frames.clear()
            tryCompare(duration, "value", 4 * test.hour)
            verify(frames.count > 3)
            wait(300)
            frames.clear()
            wait(300)
            compare(frames.count, 0)
        }

        function test_hidingEndsAMotionOnTheRowItWasHeadingFor() {
            duration.reducedMotion = false
            mouseWheel(duration, test.hours, 108, 0, -360)
            duration.visible = false
            compare(duration.value, 4 * test.hour)
            compare(duration.moves, 1)
            duration.visible = true
        }
    }
}
