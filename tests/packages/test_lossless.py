"""Nothing is lost: packages with each feature and combinations go through commands and are compared part by part."""
import itertools
import json
import os
import pathlib
import random
import subprocess
import tempfile
import unittest
import zipfile
from xml.etree import ElementTree

from packages import FEATURES, package

KESTRUNE = os.environ["KESTRUNE"]
SHEET, STYLES = "xl/worksheets/sheet1.xml", "xl/styles.xml"
PAIRS = random.Random(7).sample(list(itertools.combinations(FEATURES, 2)), 12)
# Those that stand in each other's way in one file: two content types for .bin, and what changes every text.
TOGETHER = [name for name in FEATURES if name not in ("page_setup", "signature", "strict", "utf16", "prefixes", "without_references")]
COMBINATIONS = [[], *([name] for name in FEATURES), *map(list, PAIRS), TOGETHER]


def parts_of(file):
    with zipfile.ZipFile(file) as archive:
        return {name: archive.read(name) for name in archive.namelist()}


def without_cells(sheet, touched):
    """The sheet as canonical XML without the cells that a command may have touched."""
    root = ElementTree.fromstring(sheet)
    for row in root.iter():
        for cell in [cell for cell in row if cell.tag.endswith("}c") and cell.get("r") in touched]:
            row.remove(cell)
    return ElementTree.canonicalize(ElementTree.tostring(root))


class Lossless(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        os.environ["XDG_CONFIG_HOME"] = str(self.folder / "config")

    def each_book(self, check):
        for features in COMBINATIONS:
            with self.subTest(features=features):
                book = self.folder / f"book.{'xlsm' if 'vba' in features else 'xlsx'}"
                book.write_bytes(package(features))
                check(features, book)

    def run_steps(self, book, *steps):
        out = book.with_stem("out")
        done = subprocess.run([KESTRUNE, "run", book, "-o", out, *steps], capture_output=True, text=True, timeout=120)
        self.assertEqual(done.returncode, 0, done.stderr)
        return out

    def changed_parts(self, before, after):
        """Those whose bytes differ, but for a signature that is gone, with what led to it."""
        names = {name for name in set(before) | set(after) if before.get(name) != after.get(name)}
        signature = {name for name in before if name.startswith("_xmlsignatures")}
        return names - signature - ({"_rels/.rels", "[Content_Types].xml"} if signature else set())

    def test_a_workbook_without_steps_is_the_same_to_the_byte(self):
        def check(_, book):
            self.assertEqual(self.run_steps(book).read_bytes(), book.read_bytes())
        self.each_book(check)

    def test_formats_change_their_sheet_and_the_styles_and_nothing_else_in_them(self):
        def check(features, book):
            out = self.run_steps(book, "--force", "@One!C2:C3", "20.3")
            before, after = parts_of(book), parts_of(out)
            self.assertEqual(self.changed_parts(before, after), {SHEET, STYLES})
            if "without_references" not in features:
                self.assertEqual(without_cells(before[SHEET], {"C2", "C3"}), without_cells(after[SHEET], {"C2", "C3"}))
            # Lists of the styles grow at their ends.
            for old, new in zip(ElementTree.fromstring(before[STYLES]), ElementTree.fromstring(after[STYLES])):
                self.assertEqual(old.tag, new.tag)
                for entry, same in zip(old, new):
                    self.assertEqual(ElementTree.tostring(entry), ElementTree.tostring(same))
            self.assertEqual(self.difference(book, out), ["One!C2 NumberFormat", "One!C3 NumberFormat"])
        self.each_book(check)

    def test_contents_change_their_sheet_and_drop_the_calculation_chain(self):
        def check(features, book):
            out = self.run_steps(book, "--force", "@One!C2:C3", "2")
            before, after = parts_of(book), parts_of(out)
            self.assertIn(SHEET, self.changed_parts(before, after))
            self.assertLessEqual(self.changed_parts(before, after),
                                 {SHEET, "xl/workbook.xml", "xl/_rels/workbook.xml.rels", "[Content_Types].xml"})
            if "without_references" not in features:
                self.assertEqual(without_cells(before[SHEET], {"C2", "C3"}), without_cells(after[SHEET], {"C2", "C3"}))
            self.assertEqual(self.difference(book, out), ["One!C2 Formula", "One!C2 Value", "One!C3 Formula", "One!C3 Value"])
        self.each_book(check)

    def test_undo_gives_back_what_was_there(self):
        def check(_, book):
            out = self.run_steps(book, "--force", "@One!B2:C5", "20", "55", "29", "63", "102", "undo:5")
            self.assertEqual(self.difference(book, out), [])
        self.each_book(check)

    def test_a_signed_workbook_is_not_changed_without_asking(self):
        book = self.folder / "signed.xlsx"
        book.write_bytes(package(["signature"]))
        out = self.folder / "out.xlsx"
        done = subprocess.run([KESTRUNE, "run", book, "-o", out, "@One!B2", "20"], capture_output=True, text=True, timeout=60)
        self.assertEqual(done.returncode, 1)
        self.assertIn("--force", done.stderr)
        self.assertFalse(out.exists())

    def difference(self, before, after):
        done = subprocess.run([KESTRUNE, "diff", before, after, "--json"], capture_output=True, text=True, timeout=60)
        self.assertEqual(done.returncode, 0, done.stderr)
        return [f"{change['place']} {change['property']}" for change in json.loads(done.stdout)]


if __name__ == "__main__":
    unittest.main()
