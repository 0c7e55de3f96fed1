"""The command line as its user meets it: the built program, real files, what it prints and how it exits."""

import json
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest
import zipfile

import openpyxl

KESTRUNE = os.environ["KESTRUNE"]
TOP = pathlib.Path(__file__).resolve().parents[2]
EXAMPLE = TOP / "examples" / "three-statement-model.xlsx"


def kestrune(*arguments, text_in=None):
    return subprocess.run([KESTRUNE, *map(str, arguments)], input=text_in, capture_output=True, text=True, timeout=120)


class CommandLineTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        config = tempfile.TemporaryDirectory()
        self.addCleanup(config.cleanup)
        os.environ["XDG_CONFIG_HOME"] = config.name  # nobody's own settings
        self.config = pathlib.Path(config.name)
        self.book = self.folder / "book.xlsx"
        book = openpyxl.Workbook()
        model = book.active
        model.title = "Model"
        for row in range(1, 6):
            for column in range(1, 5):
                model.cell(row, column, row * 10 + column)
        model["F1"] = "=SUM(A1:A5)"
        book.create_sheet("It's hidden").sheet_state = "hidden"
        name = openpyxl.workbook.defined_name.DefinedName("Inputs", attr_text="Model!$B$2:$C$3")
        names = book.defined_names
        names.append(name) if hasattr(names, "append") else names.add(name)  # before and from openpyxl 3.1 on
        book.save(self.book)

    def run_ok(self, *arguments, **more):
        result = kestrune(*arguments, **more)
        self.assertEqual(result.returncode, 0, result.stderr)
        return result

    def refused(self, status, needle, *arguments):
        result = kestrune(*arguments)
        self.assertEqual(result.returncode, status, f"{arguments}: {result.stdout}{result.stderr}")
        lines = result.stderr.strip().splitlines()
        self.assertEqual(len(lines), 1, f"{arguments}: {result.stderr}")
        self.assertIn(needle, lines[0])

    def cells(self, path, *references):
        return json.loads(self.run_ok("cell", path, *references, "--json").stdout)


class Running(CommandLineTest):
    def test_the_examples_open_beside_the_workbook_and_stay_as_they_are(self):
        program = self.folder / "bin" / "kestrune"
        program.parent.mkdir()
        shutil.copy(KESTRUNE, program)
        out = self.folder / "out.xlsx"
        steps = ("run", self.book, "-o", out, "ShowExamplesWorkbook", "@Inputs", "20", "--json")
        without = subprocess.run([program, *steps], capture_output=True, text=True, timeout=120)
        shown = json.loads(without.stdout)[0]["messages"]
        self.assertEqual([message["text"][-21:] for message in shown], ["Kestrune Examples.xls"])

        examples = self.folder / "share" / "kestrune" / "Files" / "Kestrune Examples.xls"
        examples.parent.mkdir(parents=True)
        shutil.copy(EXAMPLE, examples)
        result = subprocess.run([program, *steps], capture_output=True, text=True, timeout=120)
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(json.loads(result.stdout)[0]["messages"], [])
        self.assertIn("'Kestrune Examples.xls'!mPublic.Init", result.stderr, "no VBA runs here, and that is told")
        sheet = openpyxl.load_workbook(out)["Model"]
        self.assertEqual(sheet["B2"].number_format, "[$$-409]#,##0_);([$$-409]#,##0)")
        self.assertEqual(examples.read_bytes(), EXAMPLE.read_bytes())

    def test_a_session_formats_what_is_selected_and_nothing_else(self):
        out = self.folder / "out.xlsx"
        self.run_ok("run", self.book, "-o", out, "@Inputs", "20", "20", "@Model!D:D", "21.2", "@A5:B5,D1", "29.1")
        sheet = openpyxl.load_workbook(out)["Model"]
        self.assertEqual(sheet["B2"].number_format, "[$$-409]#,##0.0_);([$$-409]#,##0.0)")
        self.assertEqual(sheet["A1"].number_format, "General")
        self.assertEqual(sheet["D3"].number_format, "0.0%_);(0.0%)")
        self.assertEqual(sheet["D1"].border.left.style, "thin")
        self.assertEqual((sheet["A5"].border.left.style, sheet["B5"].border.right.style), ("thin", "thin"))
        self.assertEqual(sheet["F1"].value, "=SUM(A1:A5)")
        changed = {change["place"] for change in json.loads(self.run_ok("diff", self.book, out, "--json").stdout)}
        expected = {f"Model!{c}{r}" for c in "BC" for r in (2, 3)} | {f"Model!D{r}" for r in range(1, 6)}
        self.assertEqual(changed, expected | {"Model!A5", "Model!B5", "Model!D:D"})

    def test_reports_each_step_as_json(self):
        steps = json.loads(self.run_ok("run", self.book, "--json", "@Model!A1:D5", "20", "20.3").stdout)
        self.assertEqual([step["step"] for step in steps], ["@Model!A1:D5", "20", "20.3"])
        for step in steps:
            self.assertEqual(set(step), {"step", "ran", "messages", "calls"})
            self.assertTrue(step["ran"])
        self.assertLess(steps[1]["calls"], 200, "20 cells cost no more calls than one")

    def test_undoes_redoes_and_lists_steps(self):
        out = self.folder / "out.xlsx"
        result = self.run_ok("run", self.book, "-o", out, "--json", "@Model!B2:C3", "20", "@D1", "21.2", "history", "undo:3",
                             "redo", "BRUndo", "history:1")
        steps = json.loads(result.stdout)
        currency, percent = "Currency SmartCycle on Model!B2:C3", "Percent SmartCycle on Model!D1"
        self.assertEqual((steps[4]["undo"], steps[4]["redo"]), ([percent, currency], []))
        self.assertGreater(steps[4]["bytes"], 0)
        self.assertEqual((steps[5]["steps"], steps[5]["ran"]), ([percent, currency], False), "there were only two")
        self.assertEqual((steps[6]["steps"], steps[6]["ran"]), ([currency], True))
        self.assertEqual((steps[8]["undo"], steps[8]["redo"]), ([], [currency]))
        self.assertEqual(self.run_ok("diff", self.book, out).stdout, "")
        text = self.run_ok("run", self.book, "20", "undo", "redo", "redo", "HISTORY").stdout
        for line in ("undid Currency SmartCycle on Model!A1", "redid Currency", "nothing to redo", "1 to undo, 0 to redo"):
            self.assertIn(line, text)
        for wrong in ("undo:", "undo:0", "redo:x", "history:-1", "undos"):
            self.assertEqual(kestrune("run", self.book, wrong).returncode, 2, wrong)

    def test_without_steps_the_file_comes_out_as_it_went_in(self):
        out = self.folder / "out.xlsx"
        for source in (self.book, EXAMPLE):
            self.run_ok("run", source, "-o", out)
            self.assertEqual(out.read_bytes(), source.read_bytes())

    def test_saves_in_place_or_not_at_all(self):
        before = self.book.read_bytes()
        result = self.run_ok("run", self.book, "@Model!A1", "20")
        self.assertIn("nothing saved", result.stderr)
        self.assertEqual(self.book.read_bytes(), before)
        self.run_ok("run", self.book, "--in-place", "@Model!A1", "20")
        self.assertEqual(openpyxl.load_workbook(self.book)["Model"]["A1"].number_format,
                         "[$$-409]#,##0_);([$$-409]#,##0)")
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()), ["book.xlsx"])

    def test_window_commands_change_the_view(self):
        out = self.folder / "out.xlsx"
        self.run_ok("run", self.book, "-o", out, "87", "87", "88", "98")
        view = openpyxl.load_workbook(out)["Model"].sheet_view
        self.assertEqual((view.zoomScale, view.showGridLines), (105, False))

    def test_selecting_on_another_sheet_leaves_the_active_sheet_alone(self):
        out = self.folder / "out.xlsx"
        self.run_ok("run", EXAMPLE, "-o", out, "@Debt!C8:J10", "20")
        with zipfile.ZipFile(EXAMPLE) as before, zipfile.ZipFile(out) as after:
            changed = [name for name in before.namelist() if before.read(name) != after.read(name)]
        self.assertEqual(len(changed), 2, changed)
        self.assertIn("xl/styles.xml", changed)

    def test_tells_what_a_protected_sheet_refused(self):
        book = openpyxl.load_workbook(self.book)
        book["Model"].protection.sheet = True
        book["Model"]["B2"].protection = openpyxl.styles.Protection(locked=False)
        locked = self.folder / "locked.xlsx"
        book.save(locked)
        out = self.folder / "out.xlsx"
        result = self.run_ok("run", locked, "-o", out, "@A1:B2", "20", "@B2", "20")
        self.assertIn("the sheet 'Model' is protected", result.stderr)
        sheet = openpyxl.load_workbook(out)["Model"]
        self.assertEqual((sheet["A1"].number_format, sheet["B2"].number_format),
                         ("General", "[$$-409]#,##0_);([$$-409]#,##0)"))

    def test_options_end_at_two_dashes(self):
        result = kestrune("run", self.book, "--", "-1")
        self.assertEqual(result.returncode, 2)
        self.assertIn("-1", result.stderr)


class Tracing(CommandLineTest):
    def setUp(self):
        super().setUp()
        book = openpyxl.load_workbook(self.book)
        model, other = book["Model"], book.create_sheet("P&L")
        for address, formula in {
                "F2": "=F1*2+F1+Inputs", "F3": "=F2+'P&L'!A1", "F4": "=SUM(F:F)", "F5": "=G5", "G5": "=F5+1",
                "H1": "=[Rates.xlsx]FX!$A$1+A1", "H2": '="F1"&#REF!', "H3": "=1+\n2+A1", "C5": "=F1"}.items():
            model[address] = formula
        other["A1"], other["A2"] = "=Model!F1", "=A1/Model!F1+Missing!A1"
        book.save(self.book)

    def lines(self, *arguments):
        return self.run_ok("trace", self.book, *arguments).stdout.splitlines()

    def test_prints_the_tree_as_deep_as_asked_for(self):
        for arguments, lines in [
            (("A1",), ["Model!A1"]),
            (("F1",), ["Model!F1: =SUM(A1:A5)", "  Model!A1:A5"]),
            (("H2",), ['Model!H2: ="F1"&#REF!']),
            (("H3",), ["Model!H3: =1+ 2+A1", "  Model!A1"]),
            (("H1", "--depth", "0"), ["Model!H1: =[Rates.xlsx]FX!$A$1+A1",
                                        "  '[Rates.xlsx]FX'!A1 [not open]", "  Model!A1"]),
            (("'P&L'!A2",), ["'P&L'!A2: =A1/Model!F1+Missing!A1", "  'P&L'!A1: =Model!F1", "  Model!F1: =SUM(A1:A5)"]),
            (("F3", "--precedents", "--depth", "2"),
             ["Model!F3: =F2+'P&L'!A1", "  Model!F2: =F1*2+F1+Inputs", "    Model!F1: =SUM(A1:A5)",
              "    Model!B2:C3 (Inputs)", "  'P&L'!A1: =Model!F1", "    Model!F1: =SUM(A1:A5)"]),
            (("F3", "--depth", "0"),
             ["Model!F3: =F2+'P&L'!A1", "  Model!F2: =F1*2+F1+Inputs", "    Model!F1: =SUM(A1:A5)", "      Model!A1:A5",
              "    Model!B2:C3 (Inputs)", "  'P&L'!A1: =Model!F1",
              "    Model!F1: =SUM(A1:A5) [followed elsewhere]"]),
            (("F5", "--depth", "0"), ["Model!F5: =G5", "  Model!G5: =F5+1", "    Model!F5: =G5 [circular]"]),
            (("G5", "--dependents", "--depth", "2"),
             ["Model!G5: =F5+1", "  Model!F5: =G5", "    Model!F4: =SUM(F:F)", "    Model!G5: =F5+1 [circular]"]),
            (("F4", "--depth", "2"),
             ["Model!F4: =SUM(F:F)", "  Model!F:F", "    Model!F1: =SUM(A1:A5)", "    Model!F2: =F1*2+F1+Inputs",
              "    Model!F3: =F2+'P&L'!A1", "    Model!F4: =SUM(F:F) [circular]", "    Model!F5: =G5"]),
            (("F1", "--dependents"),
             ["Model!F1: =SUM(A1:A5)", "  Model!F2: =F1*2+F1+Inputs", "  Model!F4: =SUM(F:F)", "  Model!C5: =F1",
              "  'P&L'!A1: =Model!F1", "  'P&L'!A2: =A1/Model!F1+Missing!A1"]),
            (("B2", "--dependents"), ["Model!B2", "  Model!F2: =F1*2+F1+Inputs [through Inputs]"]),
        ]:
            self.assertEqual(self.lines(*arguments), lines, arguments)

    def test_tells_the_words_of_the_references_as_json(self):
        tree = json.loads(self.run_ok("trace", self.book, "F2", "--depth", "2", "--json").stdout)
        self.assertEqual([(row["level"], row["address"], row["text"], row["position"], row["length"], row["through"])
                          for row in tree],
                         [(0, "$F$2", "", 0, 0, ""), (1, "$F$1", "F1", 2, 2, ""), (2, "$A$1:$A$5", "A1:A5", 6, 5, ""),
                          (1, "$B$2:$C$3", "Inputs", 10, 6, "Inputs")])
        self.assertEqual([row["formula"] for row in tree], ["=F1*2+F1+Inputs", "=SUM(A1:A5)", None, None])
        rates = json.loads(self.run_ok("trace", self.book, "H1", "--json").stdout)[1]
        self.assertEqual((rates["workbook"], rates["sheet"], rates["open"]), ("Rates.xlsx", "FX", False))
        uses = json.loads(self.run_ok("trace", self.book, "F5", "--dependents", "--json").stdout)[1:]
        self.assertEqual([(row["address"], row["text"], row["position"]) for row in uses],
                         [("$F$4", "F:F", 6), ("$G$5", "F5", 2)])


class HotKeys(CommandLineTest):
    def keys(self, *arguments):
        return json.loads(self.run_ok("keys", *arguments, "--json").stdout)

    def key_of(self, command):
        return next(row for row in self.keys()["keys"] if row["command"] == command)

    def test_a_key_runs_its_command_and_is_undone(self):
        out = self.folder / "out.xlsx"
        steps = ("run", self.book, "-o", out, "@Inputs", "key:ctrl-shift-4", "key:Ctrl+Shift+4")
        self.run_ok(*steps)
        twice = openpyxl.load_workbook(out)["Model"]["B2"].number_format
        self.run_ok("run", self.book, "-o", out, "@Inputs", "20", "20")
        self.assertEqual(twice, openpyxl.load_workbook(out)["Model"]["B2"].number_format)
        report = json.loads(self.run_ok(*steps, "key:Ctrl+Z", "key:Ctrl+Z", "key:Ctrl+Shift+Z", "--json").stdout)
        self.assertEqual([step.get("did") for step in report],
                         [None, "Currency SmartCycle", "Currency SmartCycle", "undoes", "undoes", "BRRedo"])
        self.assertEqual((report[1]["key"], report[1]["ran"]), ("Ctrl+Shift+4", True))
        self.run_ok("run", self.book, "-o", out, "@Inputs", "20")
        self.run_ok("run", self.book, "--in-place", "@Inputs", *steps[5:], "key:Ctrl+Z", "key:Ctrl+Z",
                    "key:Ctrl+Shift+Z")
        self.assertEqual(json.loads(self.run_ok("diff", self.book, out, "--json").stdout), [])

    def test_keys_that_no_command_has_do_as_excel_does(self):
        out = self.folder / "out.xlsx"
        self.run_ok("run", self.book, "-o", out, "@A1", "key:Right", "key:Ctrl+Shift+Down", "key:Ctrl+B",
                    "key:Ctrl+Shift+6", "@C1:D2", "key:Ctrl+D", "@A5", "key:Delete")
        sheet = openpyxl.load_workbook(out)["Model"]
        self.assertEqual([sheet.cell(5, column).font.bold for column in (1, 2, 3)], [False, True, False])
        self.assertEqual(sheet["B3"].number_format, "0.00E+00")
        self.assertEqual((sheet["C2"].value, sheet["D2"].value, sheet["A5"].value), (13, 14, None))

    def test_keys_are_changed_kept_and_given_back(self):
        self.assertIn("cleared", self.run_ok("keys", "clear", "34").stdout)
        self.assertEqual((self.key_of("34")["key"], self.key_of("34")["status"]), ("", "cleared"))
        self.assertIn("Ctrl+Shift+Q", self.run_ok("keys", "set", "20", "ctrl-shift-q").stdout)
        self.assertEqual(self.key_of("20")["status"], "chosen")
        self.assertEqual(json.loads(self.run_ok("commands", "--json").stdout)[20]["key"], "Ctrl+Shift+Q")
        out = self.folder / "out.xlsx"
        self.run_ok("run", self.book, "-o", out, "@Inputs", "key:Ctrl+Shift+Q", "@A1", "key:Ctrl+Shift+4")
        sheet = openpyxl.load_workbook(out)["Model"]
        self.assertEqual(sheet["B2"].number_format, "[$$-409]#,##0_);([$$-409]#,##0)")
        self.assertIn("[Red]", sheet["A1"].number_format, "Excel's own currency format")
        self.run_ok("keys", "swallow", "Ctrl+B")
        self.assertEqual(self.keys("off")["enabled"], False)
        self.run_ok("run", self.book, "-o", out, "@Inputs", "key:Ctrl+B")
        self.assertTrue(openpyxl.load_workbook(out)["Model"]["B2"].font.bold)
        self.run_ok("keys", "on")
        step = json.loads(self.run_ok("run", self.book, "--json", "@Inputs", "key:Ctrl+B").stdout)[1]
        self.assertEqual(step["ran"], False)
        self.assertEqual(self.keys("reset")["swallowed"], [])
        self.assertEqual(self.key_of("20")["key"], "Ctrl+Shift+4")

    def test_an_unreadable_file_is_kept_aside_and_told(self):
        self.run_ok("keys", "clear", "20")
        file = pathlib.Path(self.keys()["file"])
        self.assertTrue(file.is_relative_to(self.config))
        file.write_text(file.read_text().replace("<Key></Key>", "<Key>Ctrl+Foo</Key>"))
        result = self.run_ok("keys")
        self.assertIn("there is no key 'Foo'", result.stderr)
        self.assertEqual([path.name for path in self.config.rglob("HotKeys*")], ["HotKeys (unreadable).xml"])
        self.assertEqual(self.key_of("20")["key"], "Ctrl+Shift+4")

    def test_the_document_tells_what_the_default_keys_replace(self):
        rows = [f"| `{row['key']}` | {row['name']} | {row['in_excel']} |"
                for row in self.keys()["keys"] if row["status"] == "default" and row["in_excel"]]
        document = (TOP / "docs" / "hot-keys.md").read_text()
        self.assertEqual([line for line in document.splitlines() if line.startswith("| `")], rows)


class Menus(CommandLineTest):
    def tree(self, *arguments):
        return json.loads(self.run_ok("menu", self.book, *arguments, "--json").stdout)

    def test_the_menus_are_shown_as_they_open(self):
        menu, tutorial, toolbar = self.tree()
        self.assertEqual([root["caption"] for root in (menu, tutorial, toolbar)],
                         ["Kestrune", "BR Tutorial", "Kestrune (toolbar)"])
        (currency,) = self.tree("kestrune/&format/CURRENCY")
        self.assertEqual((currency["path"], currency["key"], currency["access_key"]),
                         ("Kestrune/Format/Currency", "Ctrl+Shift+4", "c"))
        self.assertEqual([item["parameter"] for item in currency["items"]], [f"20.{i}" for i in range(1, 11)])
        by_path = {}

        def gather(items):
            for item in items:
                self.assertNotIn(item["path"], by_path)
                by_path[item["path"]] = item
                gather(item.get("items", []))

        gather([menu, toolbar])
        colors = by_path["Kestrune/Format/My Color SmartCycles/Blue Black"]["items"]
        self.assertEqual([(item["caption"], item["color"]) for item in colors],
                         [("Color 1", "#0000FF"), ("Color 2", "#000000")])
        self.assertEqual((by_path["Kestrune/Undo"]["enabled"], by_path["Kestrune/View/Toggle Gridlines"]["checked"]),
                         (False, True))
        settings = self.folder / "settings.xml"
        self.run_ok("prefs", "init", "--prefs", settings)
        settings.write_text(settings.read_text().replace("<Name>Blue Black SmartCycle<", "<Name>Ours SmartCycle<"))
        page = self.run_ok("menu", self.book, "--prefs", settings).stdout
        self.assertRegex(page, r"(?m)^ +Smart Copy Right +Ctrl\+Shift\+R +0$")
        self.assertRegex(page, r"(?m)^ +Color 1 +46\.1 +\[#0000FF\]$")
        self.assertRegex(page, r"(?m)^  Undo +BRUndo +\[greyed\]$")
        self.assertRegex(page, r"(?m)^ +Ours +Ctrl\+Shift\+F$")
        # What fills its column does not touch the next.
        self.assertRegex(page, r"(?m)^ +Right Border +Ctrl\+Alt\+Shift\+Right +83$")

    def test_the_menus_follow_what_dialogs_and_clicks_decide(self):
        def show(dialog, *fills, answer="ok", then=()):
            sets = [part for fill in fills for part in ("--set", fill)]
            return ("run", self.book, "--answer", answer, *sets, "CreateBRMenus", dialog, *then, "--json")

        # Each within the session of the dialog, and in the next one.
        hide, unhide = "fUserSettings.ckbTrainingModule=False", "fUserSettings.ckbTrainingModule=True"
        self.run_ok(*show("ShowUserSettings", hide, answer="cancel", then=["menu:BR Tutorial/1"]))
        self.refused(1, "no 'BR Tutorial'", *show("ShowUserSettings", hide, then=["menu:BR Tutorial/1"]))
        self.assertNotIn("BR Tutorial", [root["caption"] for root in self.tree()])
        self.run_ok(*show("ShowUserSettings", unhide, then=["menu:BR Tutorial/1"]))
        self.assertEqual([root["caption"] for root in self.tree()].count("BR Tutorial"), 1)

        cycle = ["fUserSettings.tabSettings=Style Cycles", "fUserSettings.lstStyleToggles=Percent SmartCycle",
                 "fUserSettings.txtStyleToggleName=P&L SmartCycle", "fUserSettings.lstToggleStyles=BR Percent One Decimal",
                 "fUserSettings.btnStyleUp=click"]
        self.refused(1, "no 'P&L' on Kestrune/Format",
                     *show("ShowUserSettings", *cycle, answer="cancel", then=["menu:Kestrune/Format/P&L/1"]))
        first = self.run_ok(*show("ShowUserSettings", *cycle, then=["menu:Kestrune/Format/P&L/1"]))
        self.assertEqual(json.loads(first.stdout)[2]["clicked"], "Kestrune/Format/P&L/BR Percent One Decimal")
        (renamed,) = self.tree("Kestrune/Format/P&L")
        self.assertEqual((renamed["tooltip"], renamed["items"][1]["caption"]),
                         ("P&L.  Shortcut: Ctrl+Shift+5", "BR Percent No Decimals"))

        key = ["fHotKeyManager.lstCommands=Percent SmartCycle", "fHotKeyManager.txtKey=ctrl-alt-f9"]
        self.run_ok(*show("ShowHotKeyManager", *key))
        self.assertEqual(self.tree("Kestrune/Format/P&L")[0]["key"], "Ctrl+Alt+F9")
        copied = self.run_ok(*show("ShowHotKeyManager", "fHotKeyManager.txtSearch=percent smart",
                                   "fHotKeyManager.btnCopy=click"))
        self.assertIn("Percent SmartCycle\tCtrl+Alt+F9\t", copied.stderr)

        for shown in (False, True):
            self.run_ok("run", self.book, "menu:Kestrune/Show Toolbar")
            self.assertEqual(self.tree("Kestrune (toolbar)")[0]["visible"], shown)
            self.assertEqual(self.tree("Kestrune/Show Toolbar")[0]["checked"], shown)

    def test_a_click_runs_the_command(self):
        out, same = self.folder / "out.xlsx", self.folder / "same.xlsx"
        steps = ("run", self.book, "-o", out, "@Inputs", "menu:Kestrune/Format/Currency/3")
        report = json.loads(self.run_ok(*steps, "menu:kestrune/view/zoom &in", "--json").stdout)
        self.assertEqual((report[1]["clicked"], report[1]["did"], report[1]["ran"]),
                         ("Kestrune/Format/Currency/BR US Dollar Two Decimals", "20.3", True))
        self.run_ok("run", self.book, "-o", same, "@Inputs", "20.3", "87")
        self.assertEqual(json.loads(self.run_ok("diff", out, same, "--json").stdout), [])
        self.run_ok(*steps, "menu:Kestrune/Undo")
        self.assertEqual(json.loads(self.run_ok("diff", out, self.book, "--json").stdout), [])
        self.run_ok("run", self.book, "-o", out, "@Inputs", "menu:Kestrune (toolbar)/Percent/2", "--json")
        self.assertEqual(openpyxl.load_workbook(out)["Model"]["C3"].number_format, "0.0%_);(0.0%)")
        self.refused(1, "no 'Kestrune' on the menu bar, which has no items", "run", self.book, "DeleteBRMenus",
                     "menu:Kestrune/Format/Currency/3")
        self.run_ok("run", self.book, "DeleteBRMenus", "CreateBRMenus", "menu:Kestrune/View/Zoom In")
        lesson = json.loads(self.run_ok("run", self.book, "menu:BR Tutorial/2/1/1", "--json").stdout)
        self.assertIn("lesson", lesson[0]["messages"][0]["text"])


class Refusing(CommandLineTest):
    def test_wrong_usage(self):
        for needle, *arguments in [
            ("subcommand", ),
            ("--classes", "show", self.book, "--json"),
            ("WORKBOOK", "run"),
            ("--nonsense", "run", self.book, "--nonsense"),
            ("103", "run", self.book, "103"),
            ("-1", "run", self.book, "--", "-1"),
            ("Frobnicate", "run", self.book, "Frobnicate"),
            ("twenty", "run", self.book, "20", "twenty"),
            ("maybe", "run", self.book, "--answer", "maybe", "20"),
            ("--in-place", "run", self.book, "--in-place", "-o", "x.xlsx"),
            (".xlsx", "run", self.book, "-o", self.folder / "out.xlsm", "20"),
            ("--precedents", "trace", self.book, "F1", "--precedents", "--dependents"),
            ("--depth", "trace", self.book, "F1", "--depth", "-1"),
            ("CELL", "trace", self.book),
        ]:
            self.refused(2, needle, *arguments)

    def test_what_does_not_exist(self):
        out = self.folder / "out.xlsx"
        for needle, *steps in [
            ("there is no sheet 'Nowhere'", "@Nowhere!A1"),
            ("hidden", "@'It''s hidden'!A1"),
            ("NoSuchName", "@NoSuchName"),
            ("ZZZ9", "@Model!ZZZ9"),
            ("A1048577", "@A1048577"),
        ]:
            self.refused(1, needle, "run", self.book, "-o", out, *steps)
            self.assertFalse(out.exists(), steps)
        self.refused(1, "'Inputs' stands for 4 cells", "trace", self.book, "Inputs")
        self.refused(1, "there is no sheet 'Nowhere'", "trace", self.book, "Nowhere!A1")
        self.refused(1, "missing.xlsx", "run", self.folder / "missing.xlsx", "20")
        self.refused(1, "No such file", "run", self.book, "-o", self.folder / "nowhere" / "out.xlsx", "@A1", "20")

    def test_keys_that_cannot_be(self):
        for status, needle, *arguments in (
                (2, "there is no key 'Foo'", "run", self.book, "key:Ctrl+Foo"),
                (2, "names no key", "run", self.book, "key:"),
                (1, "Excel shows the Go To dialog, which needs", "run", self.book, "key:F5"),
                (1, "Excel does nothing with it", "run", self.book, "key:Ctrl+Alt+Q"),
                (1, "nothing that a macro could take back", "run", self.book, "key:Ctrl+Z"),
                (1, "is the key of Currency SmartCycle (20)", "keys", "set", "21", "Ctrl+Shift+4"),
                (1, "belongs to Windows", "keys", "set", "21", "Alt+F4"),
                (1, "103: there is no such command", "keys", "clear", "103"),
                (2, "KEY", "keys", "set", "21")):
            self.refused(status, needle, *arguments)
        self.assertEqual(list(self.config.rglob("HotKeys*")), [])

    def test_clicks_on_what_is_not_there(self):
        out = self.folder / "out.xlsx"
        for status, needle, way in (
                (1, "no 'Formt' on Kestrune, which has 18 items; nearest: 'Format', ", "Kestrune/Formt/Currency/3"),
                (1, "no 'Excel' on the menu bar", "Excel"),
                (1, "no item 99 on Kestrune/Format/Currency, which has 10 items", "Kestrune/Format/Currency/99"),
                (1, "Kestrune/Format/Currency: is a menu", "Kestrune/Format/Currency"),
                (1, "Kestrune/Redo: is greyed out", "Kestrune/Redo"),
                (1, "My SmartCycle 15 is greyed out", "Kestrune/Format/My SmartCycles/My SmartCycle 15/1"),
                (1, "opens no menu that could have 'x'", "Kestrune/Undo/x"),
                (1, "no 'a b' on Kestrune", "Kestrune/a\nb"),
                (2, "no way through the menus", ""),
                (2, "no way through the menus", "Kestrune//Format/")):
            self.refused(status, needle, "run", self.book, "-o", out, "@A1", "20", "menu:" + way)
            self.assertFalse(out.exists(), way)
        self.refused(1, "(toolbar) is hidden", "run", self.book, "menu:Kestrune/Show Toolbar",
                     "menu:Kestrune (toolbar)/1")
        self.refused(1, "nearest: 'Kestrune'", "menu", self.book, "Kestrun")

    def test_changes_a_signed_workbook_only_when_told_to(self):
        signed = self.folder / "signed.xlsx"
        kinds = "http://schemas.openxmlformats.org/package/2006/relationships/digital-signature/"
        with zipfile.ZipFile(self.book) as package, zipfile.ZipFile(signed, "w", zipfile.ZIP_DEFLATED) as out:
            for name in package.namelist():
                text = package.read(name)
                if name == "_rels/.rels":
                    arrow = f'<Relationship Id="s" Type="{kinds}origin" Target="_xmlsignatures/origin.sigs"/>'
                    text = text.replace(b"</Relationships>", arrow.encode() + b"</Relationships>")
                if name == "[Content_Types].xml":
                    types = "application/vnd.openxmlformats-package.digital-signature-"
                    sigs = (
                        f'<Default Extension="sigs" ContentType="{types}origin"/>'
                        f'<Override PartName="/_xmlsignatures/sig1.xml" ContentType="{types}xmlsignature+xml"/>'
                    )
                    text = text.replace(b"</Types>", sigs.encode() + b"</Types>")
                out.writestr(name, text)
            out.writestr("_xmlsignatures/origin.sigs", b"")
            out.writestr("_xmlsignatures/sig1.xml", b"<Signature/>")
            out.writestr(
                "_xmlsignatures/_rels/origin.sigs.rels",
                '<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">'
                f'<Relationship Id="r" Type="{kinds}signature" Target="sig1.xml"/></Relationships>',
            )
        out = self.folder / "out.xlsx"
        self.run_ok("run", signed, "-o", out)  # nothing changes, and it still holds
        self.assertEqual(out.read_bytes(), signed.read_bytes())
        out.unlink()
        self.refused(1, "signed.xlsx: is digitally signed", "run", signed, "-o", out, "@A1", "20")
        self.assertFalse(out.exists())
        self.run_ok("run", signed, "-o", out, "--force", "@A1", "20")
        with zipfile.ZipFile(out) as package:
            self.assertEqual([name for name in package.namelist() if "signatures" in name], [])
            for part in ("_rels/.rels", "[Content_Types].xml"):
                self.assertNotIn(b"sig1", package.read(part))
                self.assertNotIn(b"digital-signature/origin", package.read(part))

    def test_files_that_are_no_workbooks(self):
        with zipfile.ZipFile(self.book) as package:
            parts = {name: package.read(name) for name in package.namelist()}

        def variant(name, changes):
            path = self.folder / name
            with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as package:
                for part, content in {**parts, **changes}.items():
                    if content is not None:
                        package.writestr(part, content)
            return path

        def plain(name, content):
            path = self.folder / name
            path.write_bytes(content)
            return path

        def compound(stream):  # a header, and a directory with one stream
            name = stream.encode("utf-16-le")
            header = bytearray(512)
            header[:8] = bytes.fromhex("d0cf11e0a1b11ae1")
            header[24:34] = bytes.fromhex("3e000300feff09000600")
            entry = bytearray(512)
            entry[: len(name)] = name
            entry[64:67] = bytes([len(name) + 2, 0, 2])
            return bytes(header + entry)

        sheet = "xl/worksheets/sheet1.xml"
        whole = self.book.read_bytes()
        cases = [
            ("zip", plain("text.xlsx", b"Name,Amount\n")),
            ("empty", plain("empty.xlsx", b"")),
            ("cut short", plain("half.xlsx", whole[: len(whole) // 2])),
            (".xls", plain("old.xlsx", compound("Workbook"))),
            ("encrypted", plain("secret.xlsx", compound("EncryptedPackage"))),
            ("xl/workbook.xml", variant("gone.xlsx", {"xl/workbook.xml": None})),
            (sheet + ", line 3", variant("broken.xlsx", {sheet: parts[sheet].replace(b"<sheetData>", b"\n\n<sheetData><row>")})),
            ("ZZZ9", variant("outside.xlsx", {sheet: parts[sheet].replace(b'r="A1"', b'r="ZZZ9"')})),
            ("document type", variant("entity.xlsx", {sheet: b'<!DOCTYPE x [<!ENTITY e SYSTEM "file:///etc/passwd">]>' + parts[sheet]})),
        ]
        for needle, path in cases:
            before = path.read_bytes()
            self.refused(1, needle, "run", path, "--in-place", "@A1:B2", "20")
            self.refused(1, path.name, "run", path, "--in-place", "@A1:B2", "20")
            self.assertEqual(path.read_bytes(), before)

    def test_a_target_that_cannot_be_written_leaves_everything_as_it_was(self):
        target = self.folder / "folder.xlsx"
        target.mkdir()
        self.refused(1, "folder.xlsx", "run", self.book, "-o", target, "@A1", "20")
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()), ["book.xlsx", "folder.xlsx"])


class Telling(CommandLineTest):
    def test_lists_all_commands(self):
        commands = json.loads(self.run_ok("commands", "--json").stdout)
        self.assertEqual([command["number"] for command in commands], list(range(103)))
        self.assertEqual(len({command["name"] for command in commands}), 103)
        for command in commands:
            self.assertTrue(command["description"].endswith("."), command)
        self.assertEqual([c["number"] for c in commands if c["parameter"]], [*range(19, 51), 58, 59, 60, 97, 99])
        listed = self.run_ok("commands").stdout
        self.assertRegex(listed, r"\n +20\.n +Currency SmartCycle +Ctrl\+Shift\+4 +Steps ")
        page = self.folder / "Kestrune Help.html"
        self.run_ok("commands", "--html", page)
        html = page.read_text()
        for command in commands:
            self.assertIn(f"<td>{command['name']}</td>", html)
        self.assertIn("<kbd>Ctrl+Shift+4</kbd>", html)
        self.assertEqual(kestrune("commands", "--html", self.folder / "no" / "page.html").returncode, 1)
        self.assertEqual(kestrune("commands", "--json", "--html", page).returncode, 2)

    def test_describes_cells_in_the_object_models_terms(self):
        out = self.folder / "out.xlsx"
        self.run_ok("run", self.book, "-o", out, "@B2", "20", "30.4", "29.3")
        (cell,) = self.cells(out, "Model!B2")
        self.assertEqual(cell["Address"], "Model!$B$2")
        self.assertEqual((cell["Value"], cell["Formula"], cell["Text"]), (22, "22", "$22 "))
        self.assertEqual(cell["Interior"], {"Color": 65535, "ColorIndex": 6})
        self.assertEqual(cell["Borders"]["xlEdgeTop"]["LineStyle"], -4119)
        self.assertEqual(cell["Font"]["Underline"], -4142)
        (formula,) = self.cells(out, "F1")
        self.assertEqual(formula["Formula"], "=SUM(A1:A5)")
        self.assertIn('"Size":11,"Bold":false', self.run_ok("cell", out, "F1", "--json").stdout)
        self.assertEqual(len(self.cells(out, "A1:B2", "D4")), 5)
        self.assertIn("Model!$B$2 Interior.Color 65535", self.run_ok("cell", out, "Model!B2").stdout)

    def test_shows_a_sheet_in_the_terminal_and_as_a_page(self):
        out = self.folder / "out.xlsx"
        self.run_ok("run", self.book, "-o", out, "@A1:D1", "20", "31.3", "@A2:A3", "26")
        plain = self.run_ok("show", out, "Model!A1:D2").stdout
        self.assertIn("$11", plain)
        self.assertNotIn("\x1b[", plain)
        self.assertIn("\x1b[", self.run_ok("show", out, "--color", "always").stdout)
        page = self.folder / "page.html"
        self.run_ok("show", out, "--html", page)
        html = page.read_text()
        self.assertIn("$11", html)
        self.assertNotIn("It&#39;s hidden", html)
        self.assertIn("<label", html)

    def test_shows_numbers_that_have_no_room_as_excel_does(self):
        book = self.folder / "narrow.xlsx"
        workbook = openpyxl.Workbook()
        sheet = workbook.active
        for column, width in (("A", 4), ("B", 4), ("C", 4), ("D", 12)):
            sheet[column + "1"] = 123456.75
            sheet[column + "1"].number_format = "General" if column == "B" else "#,##0.00"
            sheet.column_dimensions[column].width = width
        sheet["B1"] = 1.23456789
        sheet["C1"].alignment = openpyxl.styles.Alignment(shrink_to_fit=True)
        workbook.save(book)
        page = self.folder / "narrow.html"
        self.run_ok("show", book, "--html", page)
        cells = re.findall(r"<td[^>]*>(?:<div>)?([^<]*)", page.read_text())
        self.assertEqual([cell for cell in cells if cell], ["###", "1.2", "123,456.75", "123,456.75"])

    def test_shows_what_autocolor_sees(self):
        plain = self.run_ok("show", self.book, "--classes").stdout.splitlines()
        self.assertRegex(plain[1], r"^ +1 i +11 i +12 i +13 i +14 +f")
        self.assertEqual(plain[-1], "i input 20 #0000FF  f formula 1 #000000")
        self.assertIn("\x1b[0;48;2;", self.run_ok("show", self.book, "--classes", "--color", "always").stdout)
        cells = json.loads(self.run_ok("show", self.book, "Model!E1:F2", "--classes", "--json").stdout)
        self.assertEqual(cells, [{"Address": "Model!$F$1", "Class": "formula", "Color": 0}])
        self.assertEqual(json.loads(self.run_ok("show", self.book, "Model!J1", "--classes", "--json").stdout), [])
        page = self.folder / "page.html"
        self.run_ok("show", self.book, "--classes", "--html", page)
        self.assertIn('title="formula: =SUM(A1:A5)"', page.read_text())
        self.assertIn("input</span> 20 #0000FF", page.read_text())

    def test_black_fonts_come_and_go_with_the_file(self):
        black, back = self.folder / "black.xlsx", self.folder / "back.xlsx"
        self.run_ok("run", self.book, "-o", black, "ToggleBlackFonts")
        rules = [rule for area in openpyxl.load_workbook(black)["Model"].conditional_formatting for rule in area.rules]
        self.assertEqual([rule.dxf.font.color.rgb for rule in rules], ["FF000000"])
        self.run_ok("run", black, "-o", back, "ToggleBlackFonts")
        self.assertEqual(self.run_ok("diff", self.book, back).stdout, "")

    def test_diff_tells_one_line_for_like_changes(self):
        out = self.folder / "out.xlsx"
        self.run_ok("run", self.book, "-o", out, "@Model!A1:D5", "21")
        lines = self.run_ok("diff", self.book, out).stdout.splitlines()
        self.assertEqual(lines, ["Model!A1:D5 NumberFormat: General -> 0%_);(0%)"])
        self.assertEqual(self.run_ok("diff", out, out).stdout, "")

    def test_help_helps(self):
        self.assertIn("Examples:", self.run_ok("--help").stdout)
        self.assertIn("--in-place", self.run_ok("run", "--help").stdout)
        self.assertRegex(self.run_ok("--version").stdout, r"^kestrune \d+\.\d+\.\d+$")


if __name__ == "__main__":
    unittest.main()
