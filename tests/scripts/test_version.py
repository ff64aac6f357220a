#!/usr/bin/env python3
"""Checks that every place with the version has that of project(): tests/scripts/test_version.py VERSION

CMake's project() is the one place where the number is chosen. Libraries, their SONAME, the CMake package, pkg-config, the
QML module and Debian's packages take it from there. The places below are read by tools that cannot.
"""
import json
import re
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
VERSION = sys.argv.pop(1)


class Version(unittest.TestCase):
    def test_project_has_the_number_that_was_configured(self):
        text = (ROOT / "CMakeLists.txt").read_text()
        self.assertEqual(re.search(r"project\(GXUIPickers VERSION ([\d.]+) ", text).group(1), VERSION)

    def test_package_of_npm(self):
        self.assertEqual(json.loads((ROOT / "hosts/web/package/package.json").read_text())["version"], VERSION)

    def test_changelog_begins_with_it_or_with_what_is_not_released(self):
        text = (ROOT / "CHANGELOG.md").read_text()
        headings = re.findall(r"^## (.*)$", text, re.MULTILINE)
        released = [heading for heading in headings if heading != "[Unreleased]"]
        self.assertLessEqual(len(headings) - len(released), 1)
        self.assertRegex(released[0], rf"^\[{re.escape(VERSION)}\] - \d{{4}}-\d\d-\d\d$")
        for heading in released:
            self.assertRegex(heading, r"^\[\d+\.\d+\.\d+\] - \d{4}-\d\d-\d\d$")
        dates = [heading[-10:] for heading in released]
        self.assertEqual(dates, sorted(dates, reverse=True))

    def test_changelog_groups_what_changed(self):
        groups = set(re.findall(r"^### (.*)$", (ROOT / "CHANGELOG.md").read_text(), re.MULTILINE))
        self.assertLessEqual({"Added"}, groups)
        self.assertLessEqual(groups, {"Added", "Changed", "Deprecated", "Removed", "Fixed", "Security"})

    def test_documents_name_no_other(self):
        names = [ROOT / "README.md", *sorted((ROOT / "docs").rglob("*.md"))]
        for name in names:
            for found in re.findall(r"(?:libgxuipickers(?:-\w+)?|GXUIPickers )(\d+\.\d+(?:\.\d+)?)", name.read_text()):
                self.assertTrue(VERSION == found or VERSION.startswith(found + "."), f"{name} names {found}")


if __name__ == "__main__":
    unittest.main()
