import QtQuick
import QtTest
import GXUIPickers

// A wheel within a flickable, by fingers.
Item {
    id: root

    width: 640
    height: 480

    Flickable {
        id: flickable

        anchors.fill: parent
        contentHeight: 2000

        BpmPicker {
            id: picker

            width: 320
            height: 216
            from: 40
            to: 220
            stepSize: 1
            value: 120
        }
    }

    Component {
        id: weights

        Flickable {
            property alias picker: picker

            width: 320
            height: 216
            contentHeight: 2000

            WeightPicker {
                id: picker

                width: 320
                value: 70
            }
        }
    }

    TestCase {
        id: test

        name: "PickerInFlickable"
        when: windowShown

        function init() {
            flickable.contentY = 0
            flickable.cancelFlick()
            picker.reducedMotion = false
            picker.value = 120
            waitForRendering(picker)
        }

        function swipe(item: Item, x: real, y: real, distance: real, pause: int) {
            const touch = touchEvent(item)
            touch.press(0, item, x, y).commit()
            for (let i = 1; i <= 12; ++i) {
                touch.move(0, item, x, y - distance * i / 12).commit()
                wait(8)
            }
            wait(pause)
            touch.release(0, item, x, y - distance).commit()
        }

        function test_aFingerOnAColumnTurnsItAndNeverScrolls_data() {
            return [{ tag: "slow", distance: 80, pause: 200 },
                    { tag: "thrown", distance: 80, pause: 0 },
                    { tag: "beyond the picker", distance: -260, pause: 200 }]
        }
        function test_aFingerOnAColumnTurnsItAndNeverScrolls(data: var) {
            swipe(picker, 160, 108, data.distance, data.pause)
            compare(flickable.contentY, 0)
            verify(!flickable.moving)
            tryVerify(() => picker.value !== 120)
            wait(100)
            compare(flickable.contentY, 0)
        }

        function test_aFingerBesideTheColumnsScrolls() {
            swipe(root, 500, 400, 200, 0)
            verify(flickable.contentY > 0)
            compare(picker.value, 120)
        }

        function test_notchesAtTheLastRowScrollNothing() {
            picker.value = 220
            flickable.contentY = 20
            for (let i = 0; i < 5; ++i)
                mouseWheel(picker, 160, 108, 0, -120)
            wait(100)
            compare(picker.value, 220)
            compare(flickable.contentY, 20)
        }

        function test_aNotchTurnsAPickerThatNothingIsSaidOf() {
            verify(picker.wheelEnabled)
            mouseWheel(picker, 160, 108, 0, -120)
            tryCompare(picker, "value", 121)
            compare(flickable.contentY, 0)
        }

        function test_aNotchBesideTheColumnsScrolls_data() {
            return [{ tag: "left edge", x: 5 }, { tag: "left", x: 60 }, { tag: "right", x: 300 }]
        }
        function test_aNotchBesideTheColumnsScrolls(data: var) {
            const page = test.createTemporaryObject(weights, root)
            waitForRendering(page.picker)
            mouseWheel(page.picker, data.x, 108, 0, -120)
            tryVerify(() => page.contentY > 0)
            compare(page.picker.value, 70)
        }

        function test_withoutTheMouseWheelANotchOnAColumnScrolls() {
            const page = test.createTemporaryObject(weights, root)
            page.picker.wheelEnabled = false
            waitForRendering(page.picker)
            mouseWheel(page.picker, 160, 108, 0, -120)
            tryVerify(() => page.contentY > 0)
            compare(page.picker.value, 70)
        }

        function test_withLessMotionARowIsThereAtOnce() {
            picker.reducedMotion = true
            picker.forceActiveFocus()
            keyClick(Qt.Key_PageDown)
            verify(picker.value > 120)
            const reached = picker.value
            wait(200)
            compare(picker.value, reached)
        }
    }
}
