"""The user settings on the command line: their file, what changes it, and what is made of a bad one."""

import datetime
import json
import os
import pathlib
import subprocess
import unittest

import openpyxl
from test_command_line import KESTRUNE, CommandLineTest, kestrune

GOLDEN = pathlib.Path(__file__).resolve().parents[1] / "settings" / "golden" / "UserPreferences.xml"


class PrefsTest(CommandLineTest):
    def setUp(self):
        super().setUp()
        self.own = pathlib.Path(os.environ["XDG_CONFIG_HOME"], "brannoch", "kestrune", "UserPreferences.xml")

    def edited(self, name, what, by):
        text = GOLDEN.read_bytes().decode()
        self.assertIn(what, text)
        path = self.folder / name
        path.write_bytes(text.replace(what, by).encode())
        return path

    def settings(self, *arguments):
        return json.loads(self.run_ok("prefs", "show", "--json", *arguments).stdout)

    def refused(self, *arguments, status=1):
        result = kestrune(*arguments)
        self.assertEqual(result.returncode, status, arguments)
        self.assertEqual(result.stdout, "")
        self.assertEqual(len(result.stderr.splitlines()), 1, result.stderr)
        self.assertTrue(result.stderr.startswith("kestrune: "))
        return result.stderr


class Exchanging(PrefsTest):
    def test_the_users_file_is_made_exchanged_and_restored(self):
        shown = self.run_ok("prefs", "show")
        self.assertIn("not there yet", shown.stderr)
        self.assertFalse(self.own.exists(), "looking makes nothing")
        self.run_ok("prefs", "init")
        defaults = self.settings()
        self.assertIn("is there already", self.refused("prefs", "init"))

        theirs = self.edited("theirs.xml", '<ZoomInterval dt:dt="i4">5<', '<ZoomInterval dt:dt="i4">25<')
        told = self.run_ok("prefs", "import", theirs, "--answer", "cancel").stderr
        self.assertIn("nothing imported", told)
        self.assertEqual(self.settings(), defaults)
        told = self.run_ok("prefs", "import", theirs).stderr
        self.assertIn("successfully imported", told)
        self.assertEqual(self.settings()["ZoomInterval"], 25)

        out = self.folder / "mine.xml"
        self.run_ok("prefs", "export", out)
        self.assertEqual(out.read_bytes(), self.own.read_bytes())
        self.run_ok("prefs", "restore", "--prefs", out)
        self.assertEqual(self.settings("--prefs", out), defaults)
        self.assertEqual(self.settings()["ZoomInterval"], 25, "another file was named")

    def test_a_person_reads_every_setting_by_the_name_that_set_takes(self):
        page = self.run_ok("prefs", "show", "--prefs", GOLDEN).stdout
        rows = dict(line.split(None, 1) for line in page.splitlines() if line.startswith("  ") and len(line.split()) > 1)
        self.assertEqual(rows["SmartFillDates.EndDate"], "2026-12-31")
        self.assertEqual(rows["InputColor"], "#0000FF")
        self.assertEqual(rows["MyColorToggle1"], "Blue Black SmartCycle: #0000FF, #000000")
        self.assertIn("  BR Border Solid Bottom", page)
        # Colours go in as they come out; every setting is taken by its name.
        steps = [f"--set={name}={value}" for name, value in rows.items() if "Toggle" not in name and "BR" != name]
        steps = [step for step in steps if not step.startswith("--set=Preferences")]
        self.assertGreater(len(steps), 50)
        self.run_ok("run", self.book, *steps, "@A1")

    def test_several_at_once_leave_one_whole_file(self):
        files = [self.edited(f"{zoom}.xml", '"i4">5</Zoom', f'"i4">{zoom}</Zoom') for zoom in (11, 22)]
        self.run_ok("prefs", "import", files[0])
        writers = [subprocess.Popen(["sh", "-c", f'for i in 1 2 3 4 5 6 7 8; do "{KESTRUNE}" prefs import "{file}" || exit; done'],
                                    stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) for file in files]
        while any(writer.poll() is None for writer in writers):
            self.assertIn(self.settings()["ZoomInterval"], (11, 22))
        self.assertEqual([writer.returncode for writer in writers], [0, 0])
        self.assertIn(self.own.read_bytes(), [file.read_bytes() for file in files])
        self.assertEqual(os.listdir(self.own.parent), [self.own.name])


class Running(PrefsTest):
    def cell_after(self, *arguments):
        out = self.folder / "out.xlsx"
        self.run_ok("run", self.book, "-o", out, *arguments)
        return openpyxl.load_workbook(out)["Model"]["B2"]

    def test_commands_work_by_the_file_that_is_named_and_by_single_settings(self):
        prefs = self.edited("prefs.xml", "[$$-409]#,##0_);([$$-409]#,##0)", "0.000")
        cell = self.cell_after("--prefs", prefs, "--set", "inputcolor=#12AB34", "--set", "bAutoColorOn=False", "@B2", "20", "15")
        self.assertEqual(cell.number_format, "0.000")
        self.assertEqual(cell.font.color.rgb, "FF12AB34")
        self.assertFalse(self.own.exists(), "the user's own file has no part in it")
        self.assertEqual(self.settings("--prefs", prefs)["InputColor"], 0xFF0000, "for that run alone")
        self.assertEqual(self.cell_after("@B2", "20").number_format, "[$$-409]#,##0_);([$$-409]#,##0)")
        self.assertTrue(self.own.exists())

    def test_classes_are_told_by_the_settings_that_autocolor_works_by(self):
        book = openpyxl.Workbook()
        cells = [("a text", None), (datetime.date(2026, 1, 31), None), ("=A1", "https://example.com/")]
        for row, (value, link) in enumerate(cells, 1):
            book.active.cell(row, 1, value).hyperlink = link
        path = self.folder / "links.xlsx"
        book.save(path)

        def classes(*arguments):
            cells = json.loads(self.run_ok("show", path, "--classes", "--json", *arguments).stdout)
            return [(cell["Class"], cell["Color"]) for cell in cells]

        blue, link = 0xFF0000, 0xC16305
        self.assertEqual(classes(), [("text", None), ("date", blue), ("hyperlink", link)])
        prefs = self.edited("prefs.xml", '<bAutoColorHyperlinks dt:dt="boolean">1<', '<bAutoColorHyperlinks>False<')
        mine = ("--set", "bAutoColorText=True", "--set", "bAutoColorDate=False", "--set", "inputcolor=#000012")
        self.assertEqual(classes("--prefs", prefs, *mine), [("text", 0x120000), ("date", None), ("formula", 0)])
        self.run_ok("prefs", "import", prefs)
        self.assertEqual(classes()[2], ("formula", 0), "the user's own file counts")
        prefs.write_text("<Kestrune")
        self.assertIn(str(prefs), self.refused("show", path, "--classes", "--prefs", prefs))
        self.refused("show", path, "--classes", "--set", "InputColor=bluish", status=2)
        self.refused("show", path, "--prefs", prefs, status=2)

    def test_an_unreadable_file_of_the_user_is_kept_and_replaced(self):
        self.own.parent.mkdir(parents=True)
        self.own.write_text("<Kestrune")
        told = self.run_ok("run", self.book, "@B2", "20").stderr
        self.assertIn("Your user preferences could not be found or read", told)
        self.assertEqual((self.own.parent / "UserPreferences (unreadable).xml").read_text(), "<Kestrune")
        self.assertEqual(self.run_ok("run", self.book, "@B2", "20").stderr.count("read"), 0)

    def test_wrong_settings_are_named(self):
        for option, why in (("Zoom=3", "there is no setting 'Zoom'"), ("ZoomInterval", "is not NAME=VALUE"),
                            ("ZoomInterval=2.5", "'2.5' is no whole number"), ("ZoomInterval=", "'' is no whole number"),
                            ("SmartCopyRight.Rule=FOO", "'FOO' is none of FILL, ALWAYS"), ("SmartCopyRight=1", "no setting"),
                            ("SheetStyle=BR Gone", "there is no style 'BR Gone'"), ("InputColor=#12345G", "whole number"),
                            ("bAutoColorOn=maybe", "'maybe' is no Boolean"), ("SmartFillDates.EndDate=31.1.2026", "no date")):
            line = self.refused("run", self.book, "--set", option, "@A1", status=2)
            self.assertIn(f"--set {option}: ", line)
            self.assertIn(why, line)
        self.refused("prefs", status=2)
        self.refused("prefs", "restore", "--answer", "perhaps", status=2)


class BadFiles(PrefsTest):
    def test_bad_files_are_one_line_and_change_nothing(self):
        golden = GOLDEN.read_text(encoding="utf-8")
        laughs = "".join(f'<!ENTITY a{i} "{f"&a{i - 1};" * 10 if i else "ha"}">' for i in range(10))
        contents = {
            "empty": "", "truncated": golden[:5000], "other.xml": "<html/>", "other's": golden.replace("7D3E9B20", "00000000"),
            "later": golden.replace('version="3.0"', 'version="9.0"'), "no value": golden.replace('">5</Zoom', '">five</Zoom'),
            "laughs": golden.replace("?>", f"?><!DOCTYPE Kestrune [{laughs}]>", 1).replace("BR General<", "&a9;<", 1),
            "entity": golden.replace("?>", '?><!DOCTYPE Kestrune [<!ENTITY e SYSTEM "file:///etc/passwd">]>', 1),
            "huge": "<!--" + "x" * (17 << 20) + "-->" + golden,
        }
        self.run_ok("prefs", "init")
        before, book = self.own.read_bytes(), self.book.read_bytes()
        paths = [self.folder / "no such file", self.folder]
        for name, content in contents.items():
            paths.append(self.folder / name)
            paths[-1].write_text(content)
        for path in paths:
            for command in (("prefs", "import", path), ("prefs", "show", "--prefs", path),
                            ("run", self.book, "--in-place", "--prefs", path, "@B2", "20")):
                self.assertIn(str(path), self.refused(*command), command)
        self.assertIn(str(self.folder), kestrune("prefs", "export", self.folder).stderr)
        self.assertEqual(kestrune("prefs", "export", "/dev/null/x.xml").returncode, 1)
        pipe = self.folder / "pipe"
        os.mkfifo(pipe)
        self.assertEqual(kestrune("prefs", "export", pipe).stderr.splitlines()[-1], f"kestrune: {pipe}: is no file")
        self.assertTrue(pipe.is_fifo(), "what is no file is not replaced by one")
        restored = kestrune("prefs", "restore", "--prefs", self.folder)
        self.assertEqual((restored.returncode, len(restored.stderr.splitlines())), (1, 2), "nothing was restored")
        self.assertNotIn("have been restored", restored.stderr)
        self.assertEqual((self.own.read_bytes(), self.book.read_bytes()), (before, book))
        self.assertEqual(os.listdir(self.own.parent), [self.own.name])
        for name, content in contents.items():
            self.assertEqual((self.folder / name).read_text(), content)


if __name__ == "__main__":
    unittest.main()
