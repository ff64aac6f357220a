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

        readonly property var types: ["BpmPicker", "CaloriesPicker", "DistanceAndDurationPicker", "DistancePicker", "DurationPicker",
            "HeartRatePicker", "HeightPicker", "IconPicker", "IntegerPicker", "PacePicker", "SpeedPicker", "TemperaturePicker",
            "WeatherAndTemperaturePicker", "WeightPicker", "WheelPicker"]
        readonly property var everyType: types.map(type => ({ tag: type }))
        readonly property var typesWithTexts: everyType.filter(type => type.tag !== "IconPicker")

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

        /// On a dark ground of its own, beside the other one.
        function made(type: string, properties: string): Item {
            const columns = type === "WheelPicker" ? "columns: [9]; " : ""
            return createTemporaryQmlObject("import QtQuick\nimport GXUIPickers\n" + type + " { " + columns + properties
                + "background: Rectangle { color: '#14161a' } palette.window: '#14161a'; palette.windowText: '#f0f2f5' }", outer)
        }

        /// How often a test takes a pixel of the picture, of which it looks at every fourth.
        function count(picture: var, isTaken: var): int {
            let count = 0
            for (let y = 0; y < picture.height; y += 2)
                for (let x = 0; x < picture.width; x += 2)
                    if (isTaken(picture.red(x, y), picture.green(x, y), picture.blue(x, y)))
                        count += 1
            return count
        }

        function pictureOf(item: Item): var {
            waitForRendering(item)
            return grabImage(item)
        }

        function test_everyTypeFollowsThePaletteAndTheFont_data() {
            return typesWithTexts
        }
        function test_everyTypeFollowsThePaletteAndTheFont(data: var) {
            const isLight = (red, green, blue) => red > 180 && green > 180 && blue > 180
            const wheel = made(data.tag, "")
            const picture = pictureOf(wheel)
            verify(count(picture, isLight) > 5, "the texts are light")
            compare(count(picture, (red, green, blue) => red < 16 || green < 18 || blue < 22), 0, "nothing is darker than the ground")

            wheel.enabled = false
            const dimmed = pictureOf(wheel)
            compare(count(dimmed, isLight), 0)
            verify(count(dimmed, red => red > 80) > 5, "it can still be read")
            wheel.enabled = true

            const families = Qt.fontFamilies().filter(family => /Mono/.test(family))
            verify(families.length > 0)
            wheel.font.family = families[0]
            const other = pictureOf(wheel)
            verify(count(other, isLight) > 5)
            verify(!other.equals(picture), "another font")
            wheel.palette.windowText = "#ff2020"
            const red = pictureOf(wheel)
            compare(count(red, isLight), 0)
            verify(count(red, (red, green, blue) => red > 150 && green < 60 && blue < 60) > 5, "another colour")
        }

        function test_theIndicatorOfEveryTypeGrowsWithTheFont_data() {
            return everyType
        }
        function test_theIndicatorOfEveryTypeGrowsWithTheFont(data: var) {
            const heightOfIndicator = item => {
                const picture = pictureOf(item)
                let height = 0
                for (let y = 0; y < picture.height; ++y)
                    if (picture.red(14, y) > 0x14 + 8) height += 1
                return height
            }
            const usual = heightOfIndicator(made(data.tag, ""))
            verify(usual >= 39)
            const large = heightOfIndicator(made(data.tag, "font.pixelSize: 33; "))
            fuzzyCompare(large / usual, 1.5, 0.04)
        }

        function test_distanceAndDurationHaveTheCommonFontAtTheirImplicitWidth() {
            const heightOfTexts = item => {
                const picture = pictureOf(item)
                let height = 0
                for (let y = 90; y < 126; ++y)
                    if (Array.from({ length: picture.width }, (_, x) => x).some(x => picture.red(x, y) > 180)) height += 1
                return height
            }
            const usual = heightOfTexts(made("DistanceAndDurationPicker", ""))
            verify(usual > 12)
            compare(usual, heightOfTexts(made("DistanceAndDurationPicker", "width: 638; ")))
            compare(usual, heightOfTexts(made("DurationPicker", "")))
        }

        function test_aFontThatIsTooLargeForTheWidthIsFitted() {
            const isLight = (red, green, blue) => red > 200 && green > 200 && blue > 200
            const height = made("HeightPicker", "font.pixelSize: 66; width: 200; height: 216; unitSystem: UnitSystem.Imperial; ")
            const picture = pictureOf(height)
            for (let y = 0; y < picture.height; ++y) {
                verify(!isLight(picture.red(0, y), picture.green(0, y), picture.blue(0, y)))
                verify(!isLight(picture.red(199, y), picture.green(199, y), picture.blue(199, y)))
            }
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
