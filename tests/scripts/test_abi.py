#!/usr/bin/env python3
"""Checks that scripts/abi finds what breaks a binary interface: tests/scripts/test_abi.py [COMPILER]

Compiles a library of a few lines in several versions and compares them.
"""
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
COMPILER = sys.argv.pop(1) if len(sys.argv) > 1 else "c++"
HEADER = """#pragma once
#define PUBLIC __attribute__((visibility("default")))
class PUBLIC Wheel {
public:
    virtual ~Wheel();
    virtual int row() const;
    %s
    void turn(%s rows);
private:
    int row_ = 0;
    %s
};
%s
"""
SOURCE = """#include "Wheel.h"
Wheel::~Wheel() = default;
int Wheel::row() const { return row_; }
void Wheel::turn(%s rows) { row_ += int(rows); }
%s
"""


class Abi(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.work = Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.work)
        cls.build("before")
        written = cls.abi("write", "before")
        if written.returncode != 0:
            raise RuntimeError(written.stdout + written.stderr)

    @classmethod
    def build(cls, name, member="", field="", argument="int", function="", code="", soname="libgx_wheel.so.0.2"):
        folder = cls.work / name
        shutil.rmtree(folder, ignore_errors=True)
        (folder / "include").mkdir(parents=True)
        (folder / "include/Wheel.h").write_text(HEADER % (member, argument, field, function))
        (folder / "wheel.cpp").write_text(SOURCE % (argument, code))
        subprocess.run([COMPILER, "-std=c++20", "-g", "-O0", "-fPIC", "-shared", "-fvisibility=hidden", f"-Wl,-soname,{soname}",
                        "-I", str(folder / "include"), str(folder / "wheel.cpp"), "-o", str(folder / "libgx_wheel.so")], check=True)

    @classmethod
    def abi(cls, what, name, *more):
        return subprocess.run([sys.executable, str(ROOT / "scripts/abi"), what, str(cls.work / name), "--folder", str(cls.work / "abi"),
                               "--headers", str(cls.work / name / "include"), "--library", "wheel", *more], capture_output=True, text=True)

    def expect(self, expected, text, **change):
        self.build("after", **change)
        result = self.abi("check", "after")
        self.assertEqual(result.returncode, expected, result.stdout + result.stderr)
        self.assertIn(text, result.stdout)

    def test_same_library_fits(self):
        self.expect(0, "no change")

    def test_added_function_fits(self):
        self.expect(0, "only additions", function="PUBLIC int rows();", code="int rows() { return 3; }")

    def test_added_virtual_operation_breaks(self):
        self.expect(1, "BROKEN", member="virtual int component() const;", code="int Wheel::component() const { return 0; }")

    def test_added_field_breaks(self):
        self.expect(1, "BROKEN", field="int component_ = 0;")

    def test_other_soname_may_break(self):
        self.expect(0, "programs are linked again", field="int component_ = 0;", soname="libgx_wheel.so.0.3")

    def test_removed_library_breaks(self):
        (self.work / "empty").mkdir()
        self.assertEqual(self.abi("check", "empty").returncode, 1)

    def test_new_library_fits_if_the_version_is_new(self):
        # As a library that the version before did not have: others are described with its SONAME.
        self.build("after", soname="libgx_wheel.so.0.3")
        # A library that is not there is a fault as ever.
        self.assertEqual(self.abi("check", "after", "--library", "table").returncode, 1)
        shutil.copy(self.work / "after/libgx_wheel.so", self.work / "after/libgx_table.so")
        result = self.abi("check", "after", "--library", "table")
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        self.assertIn("table: libgx_wheel.so.0.3 is new", result.stdout)
        self.build("after")
        shutil.copy(self.work / "after/libgx_wheel.so", self.work / "after/libgx_table.so")
        result = self.abi("check", "after", "--library", "table")
        self.assertEqual(result.returncode, 1)
        self.assertIn("table: there is no description of it", result.stdout)

    def test_changed_argument_breaks(self):
        self.expect(1, "BROKEN", argument="long")


if __name__ == "__main__":
    unittest.main()
