"""Tries the companion workbook and its builder from outside.

    python3 test_workbook.py KESTRUNE_COMPANION SOURCE_FOLDER
"""

import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import zipfile
from pathlib import Path
from xml.etree import ElementTree

PROGRAM, SOURCE = sys.argv[1], Path(sys.argv[2])


def program(*arguments):
    result = subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True, timeout=60)
    return result.returncode, result.stdout, result.stderr


class Companion(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.book = Path(cls.folder.name) / "Kestrune.xlam"
        status, _, error = program("add-in", SOURCE / "addin", cls.book)
        assert status == 0, error

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def macros(self):
        code = program("show", self.book, "mDOM")[1]
        return {name: text for text, name in re.findall(r"^(Public (?:Sub|Function) (\w+)\(.*?\).*?^End (?:Sub|Function))",
                                                       code, re.M | re.S)}

    def test_every_macro_that_the_product_names_is_there(self):
        named = set()
        for file in (SOURCE / "src").rglob("*.cpp"):
            text = file.read_text()
            named |= set(re.findall(r"\bmDOM\.(\w+)", text)) - {"bas"}
            named |= set(re.findall(r'macro_of\(\w+, "(\w+)"\)', text))
        members = re.findall(r'^    "(\w+)",$', (SOURCE / "src/core/iGlobalInterface.h").read_text(), re.M)
        self.assertGreater(len(members), 60)
        named |= {m for m in members if m != "CustomSmartCycleInfo"} | {"BRUndo", "BRRedo", "ShowLesson", "RunMacro"}
        macros = self.macros()
        self.assertEqual(sorted(named - set(macros)), [])
        # A button, a key and Excel's undo list call without arguments.
        for name in named - {"ApplySmartCycleStyle", "RunRibbonButton"}:
            self.assertRegex(macros[name], rf"{name}\((Optional [^,]*)?\)")
        self.assertIn('Forward "UpdateCurrencyStyleTogglePopup"', macros["UpdateCurrencyStyleTogglePopup"])

    def test_is_an_add_in_whose_code_excel_finds(self):
        with zipfile.ZipFile(self.book) as book:
            self.assertIsNone(book.testzip())
            self.assertIn("addin.macroEnabled.main+xml", book.read("[Content_Types].xml").decode())
            workbook = book.read("xl/workbook.xml").decode()
            sheet = book.read("xl/worksheets/sheet1.xml").decode()
        modules = [line for line in program("list", self.book)[1].splitlines() if not line.startswith(" ")]
        # Excel asks for a module of each of its objects by these names.
        self.assertEqual(modules, [re.search('workbookPr codeName="(.*?)"', workbook)[1],
                                   re.search('sheetPr codeName="(.*?)"', sheet)[1], "mDOM"])
        for module in modules:
            code = program("show", self.book, module)[1]
            self.assertNotIn("@", code)
            for name in re.findall(r"\bmDOM\.(\w+)", code):
                self.assertIn(name, self.macros())

    def test_has_every_command_on_the_ribbon(self):
        with zipfile.ZipFile(self.book) as book:
            tab = ElementTree.fromstring(book.read("customUI/customUI.xml"))
            self.assertRegex(book.read("_rels/.rels").decode(), r'ui/extensibility" Target="/?customUI/customUI.xml"')
        controls = [element for element in tab.iter() if "id" in element.attrib]
        self.assertEqual(len({control.get("id") for control in controls}), len(controls))
        buttons = [control for control in controls if control.tag.endswith("}button")]
        macros = self.macros()
        for button in buttons:
            self.assertTrue(button.get("label"))
            self.assertNotIn("&", button.get("label"))
            self.assertEqual(button.get("onAction"), "mDOM.RunRibbonButton")
        tags = [button.get("tag") for button in buttons]
        requests = {int(tag.split(".")[0]) for tag in tags if tag[0].isdigit()}
        self.assertEqual(sorted(set(range(103)) - requests), [])
        self.assertEqual([tag for tag in tags if not tag[0].isdigit() and tag not in macros], [])
        self.assertIn("RunRibbonButton", macros)

    def test_the_same_sources_give_the_same_bytes(self):
        again = Path(self.folder.name) / "again.xlam"
        self.assertEqual(program("add-in", SOURCE / "addin", again)[0], 0)
        self.assertEqual(again.read_bytes(), self.book.read_bytes())

    def test_says_what_is_wrong_and_leaves_nothing(self):
        copy = Path(self.folder.name) / "copy"
        target = Path(self.folder.name) / "broken.xlam"
        shutil.copytree(SOURCE / "addin", copy)
        (copy / "mDOM.bas").write_text('Attribute VB_Name = "mDOM"\n\'Straße\n', "utf-8")
        status, _, error = program("add-in", copy, target)
        self.assertEqual((status, error.count("\n")), (1, 1))
        self.assertIn("mDOM.bas, line 2: a character is not ASCII", error)
        (copy / "parts" / "styles.xml").unlink()
        (copy / "mDOM.bas").write_text('Attribute VB_Name = "mDOM"\n')
        status, _, error = program("add-in", copy, target)
        self.assertEqual((status, error.count("\n")), (1, 1))
        self.assertIn("styles.xml: cannot be read", error)
        self.assertFalse(target.exists())
        self.assertEqual(program("list", SOURCE / "README.md")[0], 1)
        status, _, error = program("add-macros", self.book, self.book, target)
        self.assertEqual((status, error), (1, f"kestrune-companion: {self.book}: the data is no compound file\n"))
        self.assertFalse(target.exists())
        self.assertEqual(program("list")[0], 2)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
