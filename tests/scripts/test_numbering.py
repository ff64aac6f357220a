"""The browser's module, its scripts and the types of QML number the same things alike."""
import os
import re
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
SCRIPTS = "hosts/web/script/"
# The file and the name of a numbering of the module, and its name in the scripts.
PAIRS = [
    ("hosts/elements/Pickers/PickerProperty.h", "PickerKind", "Kind"),
    ("hosts/elements/Pickers/PickerProperty.h", "PickerProperty", "Property"),
    ("hosts/web/elements/Element/WebAccessibility.h", "Number", "ColumnNumber"),
    ("hosts/web/elements/Element/WebAccessibility.h", "Text", "ColumnText"),
    ("hosts/web/elements/Element/WebAccessibility.h", "Action", "ColumnAction"),
    ("hosts/web/Canvas/WebCanvas.h", "WebShape", "Shape"),
    ("platform/UIKit/Events/UIKey.h", "Code", "Code"),
]


def read(path):
    with open(os.path.join(ROOT, path), encoding="utf-8") as file:
        return file.read()


def numbers_of(text, name):
    """What each name of an enumeration stands for; both languages count from the one before."""
    code = re.sub(r"//[^\n]*|/\*.*?\*/", "", text, flags=re.DOTALL)
    found = re.search(r"\benum\s+(?:class\s+)?" + name + r"\b[^{;]*\{([^}]*)\}", code)
    if not found:
        raise AssertionError(f"there is no enumeration {name}")
    numbers = {}
    following = 0
    for entry in filter(None, (entry.strip() for entry in found[1].split(","))):
        entry_name, _, value = (part.strip() for part in entry.partition("="))
        numbers[entry_name] = int(value, 0) if value else following
        following = numbers[entry_name] + 1
    return numbers


class NumberingTest(unittest.TestCase):
    def test_enumerations_of_both_languages_are_read(self):
        self.assertEqual(numbers_of("enum class A : int {\n  B = 0, // b, = 7\n  C,\n  D /* d */\n};", "A"), {"B": 0, "C": 1, "D": 2})
        self.assertEqual(numbers_of("export const enum A {\n    B = 3,\n    /** c */\n    C,\n    D = 0x10,\n}\n", "A"), {"B": 3, "C": 4, "D": 16})
        self.assertEqual(numbers_of("enum AB { X }; enum A { Y };", "A"), {"Y": 0})
        with self.assertRaises(AssertionError):
            numbers_of("enum B { A };", "A")

    def test_enumerations_agree(self):
        scripts = "\n".join(read(SCRIPTS + name) for name in sorted(os.listdir(os.path.join(ROOT, SCRIPTS))) if name.endswith(".ts"))
        for path, name, script_name in PAIRS:
            with self.subTest(name):
                module = numbers_of(read(path), name)
                module.pop("Count", None)  # How many there are.
                self.assertGreater(len(module), 1)
                self.assertEqual(numbers_of(scripts, script_name), module)

    def test_kinds_of_pickers_agree_in_qml(self):
        kinds = numbers_of(read("hosts/elements/Pickers/PickerProperty.h"), "PickerKind")
        for name in ("Columns", "Count"):  # A wheel of an application's columns is a type apart.
            kinds.pop(name)
        kinds["Integer"] = kinds.pop("Number")
        self.assertEqual(numbers_of(read("hosts/quick/Pickers/QuickPickerItem.h"), "Kind"), kinds)

    def test_modifiers_of_keys_agree(self):
        module = numbers_of(read("platform/UIKit/Events/UIKey.h"), "Modifier")
        script = dict(re.findall(r"event\.(shift|ctrl|alt|meta)Key\s*(?:\?|,)\s*(\d+)", read(SCRIPTS + "input.ts")))
        names = {"shift": "Shift", "ctrl": "Control", "alt": "Alternate", "meta": "Command"}
        self.assertEqual({names[key]: int(number) for key, number in script.items()}, module)

    def test_phases_of_touches_agree(self):
        main = read("hosts/web/elements/Module/main.cpp")
        touch = main[main.index('GX_WEB_EXPORT("touch")'):main.index('GX_WEB_EXPORT("pointer")')]
        calls = re.findall(r"(?:case (\d)|(default)):\s*(?:return )?element\.(?:host|window)\(\)\.touch(\w+?)(?:_at_time)?\(", touch)
        module = {phase: int(number) if number else len(calls) - 1 for number, _, phase in calls}
        self.assertEqual(len(module), 4)
        self.assertEqual(numbers_of(read(SCRIPTS + "input.ts"), "Phase"), module)

    def test_the_finger_of_the_mouse_agrees(self):
        module = re.search(r"pointerIdentifier = (-?\d+)", read("platform/UIKit/Events/UITouch.h"))
        script = re.search(r"pointerFinger = (-?\d+)", read(SCRIPTS + "input.ts"))
        self.assertEqual(script[1], module[1])

    def test_sizes_agree(self):
        def number(path, name):
            return float(re.search(r"\b" + name + r"(?: =|:) ([\d.]+)", read(path))[1])

        script = SCRIPTS + "surroundings.ts"
        style_sheet = "services/Style/GXStyleSheet"
        self.assertEqual(number(script, "usualRowSize"), number(style_sheet + ".cpp", "fontSize"))
        self.assertEqual(number(script, "least"), number(style_sheet + ".h", "minTextScale"))
        self.assertEqual(number(script, "most"), number(style_sheet + ".h", "maxTextScale"))
        self.assertEqual(number(script, "usualWidth"), number("hosts/elements/Pickers/HeightPropertyPicker.cpp", "usualWidth"))
        self.assertEqual(number("hosts/quick/qml/PickerControl.qml", "font.pixelSize"), number(style_sheet + ".cpp", "fontSize"))

    def test_choices_agree_in_qml_and_attributes(self):
        properties = read(SCRIPTS + "properties.ts")
        enums = read("hosts/quick/Pickers/QuickEnums.h")

        def of_qml(name):
            return numbers_of(enums[enums.index("namespace " + name):], "Value")

        def of_attribute(start):
            words = re.search(r"words: \{([^}]*)\}", properties[properties.index(start):])[1]
            return [int(number) for number in re.findall(r": (\d)", words)]

        module = read("pickers/Classes/Implementations/WeightPicker/GXWeightPickerView.h")
        units = {name.removeprefix("GXWeightUnit"): number for name, number in numbers_of(module, "GXWeightUnit").items()}
        self.assertEqual(of_qml("WeightUnit"), units)
        self.assertEqual(of_attribute("property: Property.WeightUnit"), list(units.values()))

        module = read("pickers/Classes/Implementations/DurationPicker/GXDurationType.h")
        layouts = {name: int(number) for name, number in re.findall(r"GXDurationType(\w+) = (\d)", module)}
        self.assertEqual(of_qml("DurationType"), layouts)
        self.assertEqual(of_attribute("property: Property.Layout"), list(layouts.values()))


if __name__ == "__main__":
    unittest.main()
