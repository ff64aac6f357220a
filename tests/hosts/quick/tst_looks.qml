import QtQuick
import QtQuick.Controls
import QtTest
import GXUIPickers

Rectangle {
    id: root

    width: 640
    height: 480
    color: palette.window

    Control {
        id: outer

        anchors.fill: parent
        locale: Qt.locale("en_US")
        LayoutMirroring.childrenInherit: true

        DistancePicker {
            id: picker

            value: 5300
        }
    }

    TestCase {
        id: test

        name: "PickerLooks"
        when: windowShown

        function cleanup() {
            outer.locale = Qt.locale("en_US")
            picker.font.pixelSize = 22
            picker.highContrast = false
            picker.palette.windowText = "black"
            picker.palette.window = "white"
        }

        /// The place of the first pixel in a row of the picture, from the left or the right, that
        /// a test takes.
        function firstPixel(image: var, y: int, isTaken: var): int {
            for (let x = 0; x < picker.width; ++x)
                if (isTaken(image.red(x, y), image.green(x, y), image.blue(x, y)))
                    return x
            return -1
        }

        function test_theLocaleOfAControlAroundIsTheirs() {
            compare(picker.text, "5.3 km")
            outer.locale = Qt.locale("de_DE")
            compare(picker.text, "5,3 km")
        }

        function test_rowsGrowWithTheFont() {
            picker.font.pixelSize = 44
            compare(picker.implicitWidth, 640)
            compare(picker.implicitHeight, 432)
            compare(picker.value, 5300)
            compare(picker.text, "5.3 km")
        }

        function test_textsHaveTheColourOfThePalette() {
            picker.palette.windowText = "#ff0000"
            waitForRendering(picker)
            const image = grabImage(picker)
            let found = false
            for (let y = 95; y < 120 && !found; ++y)
                found = firstPixel(image, y, (red, green, blue) => red > 200 && green < 60 && blue < 60) >= 0
            verify(found)
        }

        function test_aDarkWindowHasALightIndicator() {
            // Beside the texts, between the rows of the indicator and outside of it.
            waitForRendering(picker)
            const light = grabImage(picker)
            const lightInside = light.red(20, 108)
            root.color = "black"
            picker.palette.window = "black"
            picker.palette.windowText = "white"
            waitForRendering(picker)
            const dark = grabImage(picker)
            verify(lightInside < 255, "darker than a white window")
            verify(dark.red(20, 108) > 0, "lighter than a black window")
            verify(dark.red(20, 108) < lightInside)
            root.color = Qt.binding(() => root.palette.window)
        }

        function test_labelsChangeSidesFromRightToLeft() {
            outer.LayoutMirroring.enabled = true
            verify(picker.mirrored)
            waitForRendering(picker)
            const right = grabImage(picker)
            const isDark = (red, green, blue) => red + green + blue < 500
            let mirrored = picker.width
            for (let y = 95; y < 120; ++y) {
                const x = firstPixel(right, y, isDark)
                if (x >= 0) mirrored = Math.min(mirrored, x)
            }
            outer.LayoutMirroring.enabled = false
            waitForRendering(picker)
            const left = grabImage(picker)
            let usual = picker.width
            for (let y = 95; y < 120; ++y) {
                const x = firstPixel(left, y, isDark)
                if (x >= 0) usual = Math.min(usual, x)
            }
            verify(mirrored < usual, "the unit is left of the columns")
        }

        function test_highContrastHasAnOutline() {
            waitForRendering(picker)
            const before = grabImage(picker)
            picker.highContrast = true
            waitForRendering(picker)
            verify(!grabImage(picker).equals(before))
        }
    }
}
