"""Tools with a dialog on the command line: unattended with --set, and on a terminal."""

import json
import os
import pathlib
import subprocess
import tempfile
import unittest

import openpyxl

KESTRUNE = os.environ["KESTRUNE"]


class Dialogs(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        os.environ["XDG_CONFIG_HOME"] = folder.name
        self.book = self.folder / "book.xlsx"
        self.out = self.folder / "out.xlsx"
        book = openpyxl.Workbook()
        for row, label in enumerate(["Item", "Revenue", "Cost", None, None, "Tax", "Net"], 1):
            book.active.cell(row, 1, label)
        book.active["B2"] = "=C2*2"
        book.save(self.book)

    def run_tool(self, *arguments, text_in=None, status=0):
        result = subprocess.run([KESTRUNE, "run", str(self.book), "-o", str(self.out), *arguments], input=text_in,
                                capture_output=True, text=True, timeout=120)
        self.assertEqual(result.returncode, status, result.stderr)
        return result

    def column(self):
        sheet = openpyxl.load_workbook(self.out).active
        return [sheet.cell(row, 2).value for row in range(2, 8)]

    def test_the_settings_stand_in_it_until_set_otherwise(self):
        shown = self.run_tool("@B2", "1").stdout
        self.assertEqual(self.column(), ["=C2*2", "=C3*2", None, None, None, None])
        self.assertIn("BR Kestrune -- Smart Copy Down: Row labels separated by no more than X rows; X: 1; Skip", shown)
        self.run_tool("--set", "fSmartCopy.txtInterval=2", "@B2", "1")
        self.assertEqual(self.column(), ["=C2*2", "=C3*2", None, None, "=C6*2", "=C7*2"])
        self.run_tool("--set", "SmartCopyDown.Show=False", "--set", "SmartCopyDown.Rule=ALWAYS", "@B2", "1")
        self.assertEqual(self.column(), ["=C2*2", None, "=C4*2", None, "=C6*2", None])
        # What the dialog kept holds for the next press, and undo takes the copies back.
        step = json.loads(self.run_tool("--set", "fSmartCopy.optAll=True", "--set", "fSmartCopy.ckbShow=no", "--json",
                                        "@B2", "1", "undo", "@B2", "1").stdout)
        self.assertEqual(self.column(), ["=C2*2", "=C3*2", None, None, "=C6*2", "=C7*2"])
        form = step[1]["forms"][0]
        self.assertEqual((form["form"], form["answer"]), ("fSmartCopy", "btnOK"))
        self.assertEqual((form["controls"]["optAll"], form["controls"]["txtInterval"]), (True, "1"))
        self.assertNotIn("forms", step[4])

    def test_it_can_be_cancelled(self):
        self.run_tool("--answer", "cancel", "@B2", "1")
        self.assertEqual(self.column(), ["=C2*2", None, None, None, None, None])

    def test_it_is_worked_on_a_terminal(self):
        asked = self.run_tool("--answer", "ask", "@B2", "1", text_in="3\n5=x\n\n5=0\nok\n").stderr
        self.assertIn("   3   ( ) ALL row labels", asked)
        self.assertIn("Brannoch Kestrune: Please enter a number for the interval.", asked)
        self.assertEqual(self.column(), ["=C2*2", "=C3*2", None, None, "=C6*2", "=C7*2"])

    def test_conditions(self):
        for setting in ("SmartCopyDown.Operator=not equal", "fSmartCopy.cmbOperator=NOT"):
            values = "SmartCopyDown.Values=True"
            self.run_tool("--set", values, "--set", setting, "--set", "SmartCopyDown.Value=5", "@B2", "1")
            self.assertEqual(self.column(), ["=C2*2", "=C3*2", None, None, None, None])

    def test_what_cannot_stand_in_it_is_told(self):
        cases = [
            ("fSmartCopy.optNone=True", 2, "the dialog has no such control"),
            ("fSmartCopy.ckbText=perhaps", 2, "is neither True nor False"),
            ("fSmartCopy.cmbOperator=EQUAL", 2, "the control is disabled"),
            ("fSmartFill.optAll=True", 1, "no step showed this dialog"),
            ("SmartCopyDown.Operator=LIKE", 2, "'LIKE' is none of EQUAL, NOT EQUAL"),
        ]
        for setting, status, reason in cases:
            told = self.run_tool("--set", setting, "@B2", "1", status=status).stderr
            self.assertIn(f"--set {setting}: ", told)
            self.assertIn(reason, told)
            self.assertEqual(told.count("\n"), 1)
            self.assertFalse(self.out.exists())


    def test_references_lead_where_a_script_wants(self):
        rates = openpyxl.Workbook()
        rates.active.title = "FX"
        rates.save(self.folder / "Rates.xlsx")
        book = openpyxl.load_workbook(self.book)
        book.create_sheet("Calc")["C4"] = "=Sheet!B2"
        book["Sheet"]["C2"] = "=B2+Calc!$C$4"
        book["Sheet"]["D2"] = f"='{self.folder}/[Rates.xlsx]FX'!$A$2+'/gone/[Lost.xlsx]P'!$A$1"
        book.save(self.book)
        for arguments, place in (
                (("--set", "fSmartPrecedents.lstCells=calc", "@C2", "7"), "Calc!C4"),
                (("--set", "fSmartDependents.cmbBox=#3", "@B2", "8"), "Calc!C4"),
                (("--set", "fSmartDependents.lstBox=C2", "@B2", "8"), "Sheet!C2"),
                (("--answer", "cancel", "@C2", "7"), None),
                (("--answer", "no", "@D2", "7"), None)):
            step = json.loads(self.run_tool("--json", *arguments).stdout)[1]
            self.assertEqual(step.get("selection"), place, arguments)
        # A workbook is opened from the path that the formula holds, and the session stays with its own.
        told = self.run_tool("@D2", "7", "@C2").stdout
        self.assertIn("7            Smart Precedents, to '[Rates.xlsx]FX'!A2  (", told)
        self.assertIn("unable to open the workbook located at /gone/Lost.xlsx.  Please make sure the workbook", told)
        self.assertIn("selected Sheet!C2", told)
        self.assertIn(f"Formula: =\u00ab'{self.folder}/[Rates.xlsx]FX'!$A$2\u00bb+", told)
        refused = self.run_tool("--set", "fSmartPrecedents.lstCells=Z9", "@C2", "7", status=2)
        self.assertIn("fSmartPrecedents.lstCells=Z9: is none of B2, Calc!C4", refused.stderr)
        told = self.run_tool("--answer", "ask", "@C2", "7", text_in="1=#2\nca\n")
        self.assertIn("       #2 > Calc!C4  Calc!$C$4", told.stderr)
        self.assertIn("Smart Precedents  (", told.stdout)

    def test_the_hot_key_manager_gives_keys(self):
        def key_of(number):
            table = subprocess.run([KESTRUNE, "keys", "--json"], capture_output=True, text=True, timeout=120, check=True)
            return next(row["key"] for row in json.loads(table.stdout)["keys"] if row["command"] == number)
        chosen = ("--set", "fHotKeyManager.lstCommands=Currency SmartCycle", "--set", "fHotKeyManager.txtKey=ctrl-shift-u")
        for answer, keys in (("cancel", "Ctrl+Shift+4"), ("no", "Ctrl+Shift+4"), ("yes", "Ctrl+Shift+U")):
            self.run_tool(*chosen, "--answer", answer, "ShowHotKeyManager")
            self.assertEqual(key_of("20"), keys, answer)
        told = self.run_tool("--set", "fHotKeyManager.txtKey=x", "ShowHotKeyManager").stdout
        self.assertIn("X: types a character; hold Ctrl or Alt with it", told)
        terminal = self.run_tool("--answer", "ask", "ShowHotKeyManager", text_in="1=redo\ncopy\nprint\ncancel\n")
        self.assertIn("Redo\tCtrl+Shift+Z\t", terminal.stderr)
        page = next(self.folder.rglob("HotKeys.html")).read_text()
        self.assertIn("<td>Ctrl+Shift+U</td><td>Currency SmartCycle</td>", page)

    def test_a_session_renames_a_cycle_and_gives_it_a_style_of_its_own(self):
        prefs = str(self.folder / "house.xml")

        def program(*arguments):
            done = subprocess.run([KESTRUNE, *arguments], capture_output=True, text=True, timeout=120, check=True)
            return json.loads(done.stdout) if "--json" in arguments else done.stdout

        program("prefs", "init", "--prefs", prefs)
        before = pathlib.Path(prefs).read_bytes()
        fills = [
            "fStyleEditor.txtName=House Money", "fStyleEditor.optDataLong=True", "fStyleEditor.txtComments=For banks",
            "fStyleEditor.tabStyle=Number", 'fStyleEditor.txtNumberFormat=#,##0.0 "mln"',
            "fStyleEditor.tabStyle=Font", "fStyleEditor.ckbFontSize=False", "fStyleEditor.cmbFontColor=Dark Red",
            "fUserSettings.tabSettings=Styles", "fUserSettings.btnNewStyle=click", "fUserSettings.btnStyleListUp=click",
            "fUserSettings.tabSettings=Style Cycles", "fUserSettings.lstStyleToggles=Currency SmartCycle",
            "fUserSettings.txtStyleToggleName=Money", "fUserSettings.lstToggleStyles=#1",
            "fUserSettings.lstAllStyles=House Money", "fUserSettings.btnAddStyle=click",
            "fUserSettings.btnStyleUp=click", "fUserSettings.btnApply=click",
        ]
        session = [part for fill in fills for part in ("--set", fill)] + ["--prefs", prefs]
        # With the editor cancelled there is no style to move: nothing of the session is done.
        refused = self.run_tool(*session, "--answer", "cancel", "ShowUserSettings", status=2)
        self.assertIn("fUserSettings.btnStyleListUp=click: the control is disabled", refused.stderr)
        self.assertEqual(pathlib.Path(prefs).read_bytes(), before)

        steps = json.loads(self.run_tool(*session, "--json", "ShowUserSettings", "@B2",
                                         "menu:Kestrune/Format/Money/1").stdout)
        editor = steps[0]["forms"][0]
        self.assertEqual((editor["form"], editor["answer"]), ("fStyleEditor", "btnOK"))
        self.assertEqual(editor["controls"]["smpStyle"], "1,234.6 mln in Arial 10, #800000, at the right")
        self.assertEqual(steps[2]["clicked"], "Kestrune/Format/Money/House Money")
        cell = openpyxl.load_workbook(self.out).active["B2"]
        self.assertEqual((cell.number_format, cell.font.color.rgb, cell.font.sz), ('#,##0.0 "mln"', "FF800000", 11))

        kept = program("prefs", "show", "--json", "--prefs", prefs)
        self.assertEqual(kept["CurrencyStyleToggle"]["Name"], "Money")
        self.assertEqual(kept["CurrencyStyleToggle"]["Styles"][:2], ["House Money", "BR US Dollar No Decimals"])
        style = kept["Styles"][0]
        self.assertEqual([style[name] for name in ("FriendlyName", "Category", "Comments", "bTransFontSize", "FontColor")],
                         ["House Money", 1, "For banks", True, 0x80])
        popup = program("menu", str(self.book), "--prefs", prefs, "--json", "Kestrune/Format/Money")
        self.assertEqual(popup[0]["items"][0]["caption"], "House Money")


if __name__ == "__main__":
    unittest.main()
