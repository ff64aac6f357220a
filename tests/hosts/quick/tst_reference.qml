import QtQuick
import QtTest
import GXUIPickers

// What the reference says of the types: their defaults, and what its examples show.
Item {
    id: root

    width: 640
    height: 480

    TestCase {
        id: test

        readonly property var types: ["BpmPicker", "CaloriesPicker", "DistanceAndDurationPicker", "DistancePicker", "DurationPicker",
            "HeartRatePicker", "HeightPicker", "IconPicker", "IntegerPicker", "PacePicker", "SpeedPicker", "TemperaturePicker",
            "WeatherAndTemperaturePicker", "WeightPicker", "WheelPicker"]
        readonly property var enumerations: ({ "UnitSystem.Metric": UnitSystem.Metric, "WeightUnit.Kilogram": WeightUnit.Kilogram,
            "DurationType.HoursMinutes": DurationType.HoursMinutes, "true": true, "false": false })

        name: "PickerReference"
        when: windowShown

        function textOf(path: string): string {
            const request = new XMLHttpRequest()
            request.open("GET", Qt.resolvedUrl("../../../" + path), false)
            request.send()
            return request.responseText
        }

        function matches(pattern: var, path: string): var {
            const text = textOf(path)
            const found = []
            for (let match = pattern.exec(text); match !== null; match = pattern.exec(text)) found.push(match)
            return found
        }

        function test_defaultsAreThoseOfTheComments_data() {
            return test.types.map(type => ({ tag: type }))
        }
        function test_defaultsAreThoseOfTheComments(data: var) {
            failOnWarning(/./)
            const picker = createTemporaryQmlObject("import QtQuick\nimport GXUIPickers\n" + data.tag + " { locale: Qt.locale(\"en_US\") }", root)
            let count = 0
            const properties = test.matches(/((?:^ *\/\/\/.*\n)+) *property alias (\w+)/gm, "hosts/quick/qml/" + data.tag + ".qml")
            for (const [, comment, name] of properties) {
                const said = comment.match(/Default: (\S+?)\.?$/m)
                if (!said) continue
                count += 1
                const expected = said[1] in test.enumerations ? test.enumerations[said[1]] : Number(said[1])
                if (typeof expected === "boolean") compare(picker[name], expected, name)
                // Comments have two decimal places.
                else fuzzyCompare(picker[name], expected, 0.005, name)
            }
            compare(count > 1, data.tag !== "WheelPicker") // Lists and texts begin empty.
        }

        function test_theReadmesDocumentShowsADistance() {
            failOnWarning(/./)
            const component = Qt.createComponent(Qt.resolvedUrl("../../../docs/examples/readme/Distance.qml"))
            const picker = createTemporaryObject(component, root, { locale: Qt.locale("en_US"), reducedMotion: true })
            verify(picker !== null, component.errorString())
            compare(picker.text, "5.3 km")
            picker.forceActiveFocus()
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Down)
            tryCompare(picker, "text", "5.4 km")
            compare(picker.value, 5400)
        }

        function test_examplesShowWhatTheySay() {
            failOnWarning(/./)
            const path = "docs/examples/reference/pickers.qml"
            const component = Qt.createComponent(Qt.resolvedUrl("../../../" + path))
            const examples = createTemporaryObject(component, root)
            verify(examples !== null, component.errorString())
            const blocks = test.matches(/\/\/ \[(\w+)\]\n([^]*?)\/\/ \[\1\]/g, path)
            compare(blocks.map(block => block[1]), test.types)
            compare(examples.children.length, blocks.length)
            for (let i = 0; i < blocks.length; ++i) {
                const said = blocks[i][2].match(/[Ss]hows "(.*)"/)
                examples.children[i].locale = Qt.locale("en_US") // Whatever the user's is.
                compare(examples.children[i].text, said ? said[1] : undefined)
            }
        }
    }
}
