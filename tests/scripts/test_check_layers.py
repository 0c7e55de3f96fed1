"""Plants broken includes in small source trees; scripts/check-layers must find each, and only those."""

import subprocess
import tempfile
import unittest
from pathlib import Path

CHECK = Path(__file__).resolve().parents[2] / "scripts" / "check-layers"


def check(files):
    """Exit status and output lines of the check on a tree src/ made of {path: text}."""
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder) / "src"
        root.mkdir()
        for name, text in files.items():
            (root / name).parent.mkdir(parents=True, exist_ok=True)
            (root / name).write_text(text)
        run = subprocess.run([CHECK, root], capture_output=True, text=True)
        assert not run.stderr, run.stderr
        return run.returncode, run.stdout.splitlines()


def include(target):
    return f'#pragma once\n#include "{target}"\n'


class CheckLayers(unittest.TestCase):
    def test_each_edge(self):
        allowed = [
            ("excel", "automation"),
            ("brxllib", "formula"),
            ("core/bridges", "excel"),
            ("styles", "core/bridges"),
            ("settings", "styles"),
            ("smart", "settings"),
            ("menus", "automation"),
            ("core", "menus"),
            ("core", "core/bridges"),
            ("host/model", "number_format"),
            ("host/objects", "host/model"),
            ("host/xlsx", "formula"),
            ("cli", "host/objects"),
            ("windows", "brvblib"),
            ("automation/detail", "automation"),
        ]
        forbidden = [
            ("automation", "formula"),
            ("formula", "automation"),
            ("brvblib", "excel"),
            ("core/bridges", "settings"),
            ("core/bridges", "core"),
            ("styles", "settings"),
            ("smart", "menus"),
            ("settings", "formula"),
            ("styles", "host/model"),
            ("core", "brxllib"),
            ("menus", "windows"),
            ("excel", "cli"),
            ("host/model", "host/objects"),
            ("host/xlsx", "host/objects"),
            ("host/xlsx", "automation"),
            ("host/objects", "excel"),
            ("number_format", "formula"),
            ("windows", "cli"),
        ]
        for source, target in allowed:
            with self.subTest(source=source, target=target):
                self.assertEqual(check({f"{source}/A.h": include(f"{target}/B.h"), f"{target}/B.h": ""}), (0, []))
        for source, target in forbidden:
            with self.subTest(source=source, target=target):
                status, lines = check({f"{source}/A.h": include(f"{target}/B.h"), f"{target}/B.h": ""})
                self.assertEqual(status, 1)
                self.assertEqual(lines, [f"src/{source}/A.h:2: {source} must not include {target} ({target}/B.h)"])

    def test_single_lines(self):
        rows = [
            # A line of windows/X.cpp or excel/X.cpp, and what the answer says of it.
            ("excel/X.cpp", "#include <oaidl.h>", "oaidl.h"),
            ("windows/Registration.cpp", "#  include <OAIdl.h>", "oaidl.h"),
            ("excel/X.cpp", '#include "../automation/A.h"', "no file below src/"),
            ("excel/X.cpp", '#include "A.h"', "no file below src/"),
            ("automation/X.cpp", "#include <automation/A.h>", 'include it as "automation/A.h"'),
            ("excel/X.cpp", "#include <gtest/gtest.h>", "test code"),
            ("excel/X.cpp", '#include "../tests/xlsx/Fixture.h"', "test code"),
            ("unheard_of/X.cpp", "", "lies in no folder"),
            ("X.cpp", "", "lies in no folder"),
        ]
        for name, line, answer in rows:
            with self.subTest(line=line):
                status, lines = check({"automation/A.h": "", name: line})
                self.assertEqual((status, len(lines)), (1, 1), lines)
                self.assertTrue(lines[0].startswith(f"src/{name}:1: "), lines)
                self.assertIn(answer, lines[0])

    def test_lines_that_are_fine(self):
        text = '/* once it was\n#include "cli/Main.h"\n*/\n// #include "cli/Main.h"\n#include <vector>\n'
        files = {
            "cli/Main.h": "",
            "cli/Version.h.in": "",
            "cli/Main.cpp": include("cli/Version.h"),
            "excel/A.cpp": text,
            "windows/com/ComClient.h": "#include <oaidl.h>\n",
        }
        self.assertEqual(check(files), (0, []))

    def test_circles(self):
        status, lines = check(
            {
                "formula/A.h": include("formula/B.h"),
                "formula/B.h": include("formula/C.h"),
                "formula/C.h": "\n" + include("formula/B.h"),
            }
        )
        self.assertEqual(status, 1)
        self.assertEqual(
            lines, ["src/formula/C.h:3: includes itself in a circle: formula/B.h -> formula/C.h -> formula/B.h"]
        )
        self.assertEqual(check({"formula/A.h": include("formula/A.h")})[0], 1)
        diamond = {"formula/A.h": include("formula/B.h") + include("formula/C.h"), "formula/D.h": ""}
        diamond |= {"formula/B.h": include("formula/D.h"), "formula/C.h": include("formula/D.h")}
        self.assertEqual(check(diamond), (0, []))


if __name__ == "__main__":
    unittest.main()
