"""Plants one violation at a time into a small tree and expects the checks of scripts/ to find that and nothing else."""
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))

CLEAN = {
    "platform/CMakeLists.txt": "gx_add_floor(platform\n  FOLDERS Low High\n  PUBLIC_HEADERS A.h B.h)\n",
    "services/CMakeLists.txt": "gx_add_floor(services\n  FOLDERS Units # one room\n  PUBLIC_HEADERS S.h\n  DEPENDS gx_platform)\n",
    "pickers/CMakeLists.txt": "gx_add_floor(pickers\n  FOLDERS Classes\n  PUBLIC_HEADERS P.h\n  DEPENDS gx_services)\n",
    "hosts/qt/CMakeLists.txt": "gx_add_floor(qt\n  FOLDERS .\n  PUBLIC_HEADERS Q.h\n  DEPENDS gx_platform)\n",
    "hosts/web/CMakeLists.txt": "gx_add_part(gx_web\n  FOLDERS Page\n  DEPENDS gx::platform)\n",
    "hosts/elements/CMakeLists.txt": "gx_add_part(gx_elements\n  FOLDERS .\n  DEPENDS gx::pickers)\n",
    "hosts/quick/CMakeLists.txt": "set(ROOMS Item)\n",
    "hosts/web/elements/CMakeLists.txt": "gx_add_part(gx_web_elements\n  FOLDERS Pickers\n  DEPENDS gx_web gx::pickers)\n",
    "gallery/CMakeLists.txt": "set(ROOMS app)\n",
    "platform/Low/A.h": "#pragma once\n#include <vector>\nclass A {\npublic:\n    void one();\n\nprivate:\n    int two_ = 0;\n};\n",
    "platform/Low/A.cpp": '#include "A.h"\nvoid A::one() {}\n',
    "platform/Low/I.h": "#pragma once\nstruct I {};\n",
    "platform/High/B.h": '#pragma once\n#include "A.h"\nclass B : public A {};\n',
    "platform/High/B.cpp": '#include "B.h"\n#include "I.h"\n',
    "services/Units/S.h": '#pragma once\n#include "B.h"\nstruct S {};\n',
    "services/Units/S.cpp": '#include "S.h"\n',
    "pickers/Classes/P.h": '#pragma once\n#include "S.h"\nstruct P {};\n',
    "hosts/qt/Q.h": "#pragma once\n#include <QObject>\n#include <GXUIPickers/A.h>\nstruct Q {};\n",
    "hosts/web/Page/Y.h": "#pragma once\n#include <GXUIPickers/A.h>\nstruct Y {};\n",
    "hosts/web/elements/Pickers/E.h": '#pragma once\n#include "Y.h"\n#include <GXUIPickers/P.h>\nstruct E {};\n',
    "gallery/app/main.cpp": "#include <GXUIPickers/P.h>\n#include <GXUIPickers/Q.h>\nint main() {}\n",
    "tests/ATest.cpp": '#include "A.h"\n// A comment.\nTEST(A, DoesOneThing) {}\n',
    "README.md": "# Title\n\nShort words.\n",
}


def run(script, files, *arguments):
    """Exit code and findings, one a line."""
    with tempfile.TemporaryDirectory() as root:
        for name, text in files.items():
            path = os.path.join(root, name)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, "w", encoding="utf-8") as file:
                file.write(text)
        subprocess.run(["git", "init", "-q", root], check=True)
        command = [sys.executable, os.path.join(ROOT, "scripts", script), "--root", root, *arguments]
        done = subprocess.run(command, capture_output=True, text=True)
        if done.returncode not in (0, 1) or "Traceback" in done.stderr:
            raise AssertionError(done.stderr)
        return done.returncode, done.stdout.splitlines()


class CheckTest(unittest.TestCase):
    script = ""

    def expect(self, changes, *findings):
        """The clean tree with these changes (None takes a file away) has exactly these findings."""
        files = {name: text for name, text in {**CLEAN, **changes}.items() if text is not None}
        code, lines = run(self.script, files)
        self.assertEqual(code, 1 if findings else 0, lines)
        self.assertEqual(len(lines), len(findings), lines)
        for finding in findings:
            self.assertTrue(any(finding in line for line in lines), (finding, lines))


class StructureTest(CheckTest):
    script = "check-structure"

    def test_a_clean_tree_has_no_findings(self):
        self.expect({})

    def test_finds_an_arrow_to_a_higher_room(self):
        self.expect({"platform/Low/I.h": '#pragma once\n#include "C.h"\n', "platform/High/C.h": "#pragma once\nstruct C {};\n"},
                    "platform/Low/I.h:2: includes C of platform/High, a higher room", "circle of rooms: platform/High, platform/Low")

    def test_finds_an_arrow_to_a_higher_floor(self):
        self.expect({"services/Units/S.cpp": '#include "P.h"\n'}, "services/Units/S.cpp:1: includes P of pickers/Classes, a floor",
                    "circle: P → S; S → P", "circle of rooms")

    def test_finds_a_host_that_uses_a_service(self):
        self.expect({"hosts/qt/Q.cpp": '#include "Q.h"\n#include <GXUIPickers/S.h>\n'}, "hosts/qt/Q.cpp:2: includes S of services/Units, a floor")

    def test_finds_a_host_that_uses_its_elements(self):
        self.expect({"hosts/web/Page/Y.cpp": '#include "Y.h"\n#include "E.h"\n'},
                    "hosts/web/Page/Y.cpp:2: includes E of hosts/web/elements/Pickers, a floor", "circle: Y → E; E → Y", "circle of rooms")

    def test_finds_a_circle_of_pairs_through_a_source_file(self):
        self.expect({"platform/Low/A.cpp": '#include "A.h"\n#include "D.h"\n', "platform/Low/D.h": '#pragma once\n#include "A.h"\n'},
                    "platform/Low/A.cpp:2: circle: A → D; D → A")

    def test_finds_a_circle_that_a_declaration_hides(self):
        self.expect({"platform/Low/I.h": "#pragma once\nclass A;\nstruct I {};\n", "platform/Low/A.cpp": '#include "A.h"\n#include "I.h"\n'},
                    "circle hidden by a declaration: A → I; I → A")

    def test_finds_a_declaration_of_something_higher(self):
        self.expect({"platform/Low/I.h": "#pragma once\nclass B;\nstruct I {};\n"},
                    "platform/Low/I.h:2: declares B of platform/High, a higher room", "circle hidden by a declaration")

    def test_finds_a_public_header_that_includes_an_internal_one(self):
        self.expect({"platform/High/B.h": '#pragma once\n#include "I.h"\nclass B {};\n'},
                    "platform/High/B.h:2: is public and includes the internal header I.h")

    def test_finds_an_internal_header_included_from_another_floor(self):
        self.expect({"services/Units/S.cpp": '#include "I.h"\n'}, "services/Units/S.cpp:1: includes the internal header I.h of platform")

    def test_finds_a_foreign_header_on_a_portable_floor(self):
        self.expect({"services/Units/S.cpp": "#include <QObject>\n"}, "services/Units/S.cpp:1: includes QObject, which is no header")
        self.expect({"services/Units/S.cpp": "#include <unistd.h>\n"}, "services/Units/S.cpp:1: includes unistd.h, which is no header")

    def test_finds_a_class_that_goes_on_elsewhere(self):
        self.expect({"platform/Low/ATouches.cpp": '#include "A.h"\nvoid A::one() {}\n'},
                    "platform/Low/ATouches.cpp:1: has no header of its name", "platform/Low/ATouches.cpp:2: continues A, which is declared in")

    def test_finds_an_arrow_between_rooms_that_stand_apart(self):
        files = {"platform/CMakeLists.txt": "gx_add_floor(platform\n  FOLDERS Low High UIKit/Picker/Part UIKit/Picker UIKit/Table\n"
                 "  PUBLIC_HEADERS A.h B.h)\n", "platform/UIKit/Picker/W.h": "#pragma once\n",
                 "platform/UIKit/Picker/Part/V.h": "#pragma once\n"}
        self.expect({**files, "platform/UIKit/Table/T.h": '#pragma once\n#include "A.h"\n'})
        self.expect({**files, "platform/UIKit/Table/T.h": '#pragma once\n#include "V.h"\n'},
                    "platform/UIKit/Table/T.h:2: includes V of platform/UIKit/Picker/Part, which stands apart")

    def test_finds_an_included_source_and_a_using_declaration_without_use(self):
        self.expect({"platform/Low/A.cpp": '#include "A.h"\nusing std::vector;\nstatic vector<int> one;\n'})
        self.expect({"platform/Low/A.cpp": '#include "A.h"\nusing std::vector;\nstatic std::vector<int> one;\n'},
                    "platform/Low/A.cpp:2: vector is not used")
        self.expect({"platform/High/B.cpp": '#include "../Low/A.cpp"\n'},
                    "platform/High/B.cpp:1: includes ../Low/A.cpp, which is no header",
                    "platform/High/B.cpp:1: includes ../Low/A.cpp, which is no header of the standard library")

    def test_finds_a_room_that_stands_nowhere(self):
        self.expect({"platform/New/N.h": "#pragma once\n"}, "does not say where the room platform/New stands")

    def test_finds_a_full_room(self):
        twelve = {f"services/Units/T{number}.h": "#pragma once\n" for number in range(10)}
        self.expect(twelve)
        self.expect({**twelve, "services/Units/T10.h": "#pragma once\n"}, "services/Units: 13 files in a room, at most 12")

    def test_finds_a_floor_of_too_many_rooms(self):
        def rooms(count):
            names = [f"R{number}" for number in range(count)]
            return {"gallery/CMakeLists.txt": f"set(ROOMS app {' '.join(names)})\n",
                    **{f"gallery/{name}/{name}.h": "#pragma once\n" for name in names}}
        self.expect(rooms(7))
        inner = rooms(8)
        inner["gallery/CMakeLists.txt"] = inner["gallery/CMakeLists.txt"].replace("R7", "R6/R7")
        inner["gallery/R6/R7/R7.h"] = inner.pop("gallery/R7/R7.h")
        self.expect(inner)
        self.expect(rooms(8), "gallery: 9 rooms on a floor, at most 8")

    def test_finds_a_long_file(self):
        self.expect({"platform/Low/I.h": "\n" * 300})
        self.expect({"platform/Low/I.h": "\n" * 301}, "platform/Low/I.h:301: 301 lines, at most 300")
        self.expect({"tests/ATest.cpp": "\n" * 400})
        self.expect({"tests/ATest.cpp": "\n" * 401}, "tests/ATest.cpp:401: 401 lines, at most 400")

    def test_finds_a_class_of_too_many_private_operations(self):
        def class_of(count):
            operations = "".join(f"    virtual std::vector<int> op{number}(int a = f(1)) const;\n" for number in range(count - 2))
            return {"platform/Low/I.h": "#pragma once\nclass I final : public A {\npublic:\n    int open();\n    int seen() { return 1; }\n"
                    "\nprivate:\n    struct Part {\n        void own();\n    };\n    enum class E { one };\n"
                    "    I(int a) : value_(a) {}\n    bool operator==(const I& other) const { if (value_) { return f(); } return true; }\n"
                    + operations + "    std::function<void(int)> handler_;\n    int value_ = f(1);\n    int list_[2] = {1, 2}; // g();\n};\n"}
        self.expect(class_of(25))
        self.expect(class_of(26), "platform/Low/I.h:2: I has 26 private operations, at most 25")


class DrawingTest(unittest.TestCase):
    def test_nothing_is_outside_or_covered(self):
        all_below = "".join(f"#include <GXUIPickers/{name}.h>\n" for name in "ASP")
        arrows = {"pickers/Classes/P.cpp": all_below, "hosts/web/elements/Pickers/F.h": all_below, "gallery/app/all.h": all_below}
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "floors.svg")
            run("check-structure", {**CLEAN, **arrows}, "--svg", path)
            with open(path, encoding="utf-8") as file:
                svg = file.read()
        lanes = [int(x) for x in re.findall(r" H(-?\d+) V", svg)]
        names = [(int(x), name) for x, name in re.findall(r'<text x="(\d+)" [^>]*font-weight="bold">([^<]*)<', svg)]
        boxes = [int(x) for x in re.findall(r'<rect x="(\d+)" [^>]*rx="4"', svg)]
        self.assertTrue(lanes and names and boxes)
        self.assertGreater(min(lanes), 0)
        letter = 7.5  # The width of a bold one, on average.
        for x, name in names:
            self.assertLess(x + letter * len(name), min(boxes), name)


class CommentsTest(CheckTest):
    script = "check-comments"

    def test_a_clean_tree_has_no_findings(self):
        self.expect({})

    def test_finds_a_comment_beyond_100_columns(self):
        self.expect({"platform/Low/I.h": "// " + "é" * 97 + "\n"})
        self.expect({"platform/Low/I.h": "// " + "é" * 98 + "\n"}, "platform/Low/I.h:1: 101 columns, at most 100")
        self.expect({"platform/Low/I.h": "int a = 0; // " + "x" * 87 + "\n"}, "platform/Low/I.h:1: 101 columns")
        self.expect({"platform/Low/I.h": "int a = " + "1 + " * 30 + "1;\n"})
        self.expect({"platform/Low/I.h": 'auto a = "https://' + "x" * 100 + '";\n'})

    def test_finds_a_comment_of_a_page_s_script_beyond_100_columns(self):
        self.expect({"hosts/web/script/s.ts": "/** " + "x" * 96 + "\n */\n"})
        self.expect({"hosts/web/script/s.ts": "/** " + "x" * 97 + "\n */\n"}, "hosts/web/script/s.ts:1: 101 columns, at most 100")
        for name in ("tests/web/t.mjs", "gallery/web/t.js", "hosts/quick/qml/T.qml"):
            self.expect({name: "// " + "x" * 98 + "\n"}, f"{name}:1: 101 columns")

    def test_finds_a_document_beyond_100_columns(self):
        self.expect({"README.md": "x" * 101 + "\n"}, "README.md:1: 101 columns")
        self.expect({"README.md": "| " + "x" * 101 + " |\n\n```\n" + "x" * 101 + "\n```\n"})

    def test_finds_a_paragraph_of_more_than_60_words(self):
        words = "// a b c d e f g h i j\n" * 6
        self.expect({"platform/Low/I.h": words})
        self.expect({"platform/Low/I.h": words + "// k\n"}, "platform/Low/I.h:1: 61 words in a paragraph")
        self.expect({"platform/Low/I.h": words + "//\n// k\n"})
        self.expect({"platform/Low/I.h": words + "// - k\n"})

    def test_finds_private_words(self):
        self.expect({"platform/Low/I.h": "// Asked for anew.\n"}, 'platform/Low/I.h:1: "anew": say again')
        self.expect({"README.md": "It is held\nto the range.\n"}, 'README.md:1: "held to": say clamped to')
        self.expect({"README.md": "The rubber band, `band`, a `whoever()` call.\n"})
        self.expect({"tests/ATest.cpp": "TEST(A, AnswersOnce) {}\n"}, 'tests/ATest.cpp:1: "answers" in the name of a test: say returns')


class ContributingTest(unittest.TestCase):
    """The table of CONTRIBUTING.md that says where things are."""

    def test_names_what_exists(self):
        with open(os.path.join(ROOT, "CONTRIBUTING.md"), encoding="utf-8") as file:
            table = file.read().split("## Where is what?")[1].split("\n## ")[0]
        names = re.findall(r"`([^`]+)`", table)
        operations = [name for name in names if "::" in name]
        paths = [name for name in names if "/" in name]
        self.assertTrue(operations and paths)
        for path in paths:
            self.assertTrue(os.path.exists(os.path.join(ROOT, path)), path)
        folders = ("platform", "services", "pickers", "hosts/qt", "hosts/quick", "hosts/elements", "hosts/web/elements")
        sources = [source for folder in folders for source in Path(ROOT, folder).rglob("*.cpp")]
        code = "".join(source.read_text(encoding="utf-8") for source in sources)
        for operation in operations:
            self.assertTrue(f"{operation}(" in code, operation)


if __name__ == "__main__":
    unittest.main()
