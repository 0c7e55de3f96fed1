"""Installs the built program into an empty prefix and uses it from there, as a package does."""

import gzip
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

BUILD = Path(os.environ["KESTRUNE_BUILD"])


class Installed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.prefix = Path(cls.folder.name) / "usr"
        subprocess.run(["cmake", "--install", BUILD, "--prefix", cls.prefix], check=True, stdout=subprocess.DEVNULL)

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def kestrune(self, *arguments):
        home = {"HOME": self.folder.name, "XDG_CONFIG_HOME": self.folder.name}
        return subprocess.run([self.prefix / "bin" / "kestrune", *map(str, arguments)], capture_output=True, text=True,
                              env=os.environ | home, timeout=60)

    def test_finds_what_was_installed_beside_it(self):
        share = self.prefix / "share"
        model = share / "kestrune" / "examples" / "three-statement-model.xlsx"
        target = Path(self.folder.name) / "out.xlsx"
        # The examples open in the embedded Excel, which runs no macros and says so; a missing file would be told.
        result = self.kestrune("run", model, "-o", target, "@Inputs!C5:D8", "20", "ShowExamplesWorkbook")
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertNotIn("cannot be found", result.stdout + result.stderr)
        self.assertIn("mPublic.Init", result.stderr)
        self.assertIn("NumberFormat", self.kestrune("diff", model, target).stdout)
        page = share / "kestrune" / "Kestrune Help.html"
        self.assertIn("Currency SmartCycle", page.read_text())

    def test_has_a_manual_that_knows_every_subcommand(self):
        manual = gzip.decompress((self.prefix / "share/man/man1/kestrune.1.gz").read_bytes()).decode()
        for line in self.kestrune("--help").stdout.split("Subcommands:")[1].split("\n\n")[0].split("\n")[1:]:
            self.assertIn(f'.SS "kestrune {line.split()[0]}"', manual)
        self.assertNotIn(str(BUILD), manual)
        page = subprocess.run(["groff", "-man", "-ww", "-Tutf8"], input=manual.encode(), capture_output=True)
        self.assertEqual((page.returncode, page.stderr), (0, b""))

    def test_start_bookmarks_lead_to_every_topic(self):
        import openpyxl

        with (self.prefix / "share/kestrune/Files/Kestrune Examples.xls").open("rb") as file:
            book = openpyxl.load_workbook(file)
        listed = subprocess.run([BUILD / "kestrune-companion", "commands"], check=True, capture_output=True, text=True)
        topics = {line.split("\t")[4] for line in listed.stdout.splitlines()}
        self.assertGreater(len(topics), 20)
        for topic in topics:
            (sheet, cell), = book.defined_names[f"bbr.kestrune.{topic}.start.ebr"].destinations
            self.assertTrue(book[sheet][cell.replace("$", "")].value, topic)


if __name__ == "__main__":
    unittest.main()
